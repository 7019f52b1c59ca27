// SharedServices: directories, file names, settings store, messages, input checks, help.
//
// None of these reads the program's state record: they get what they need as arguments.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "base/Failure.h"
#include "services/host/Host.h"
#include "services/storage/SettingsStore.h"
#include "services/storage/UnitsFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

struct Directories {
    std::string ProgramDir, DataDir;
    long CompressFlag = 2;
};

class SharedServicesService {
  public:
    // The first and the last call of the process. The last one drops a file that is still open.
    void SetProgramNumber(int number);
    void CloseServices();

    // The program directory holds the settings files and the settings store: the user's own settings directory
    // ($XDG_CONFIG_HOME/lithmark or ~/.config/lithmark), never a place beside the program; a user without a home has
    // the settings that were installed. An explicit directory (command line, tests) goes before it; an empty name
    // takes it back.
    void UseSettingsDirectory(const std::string& dir);
    // Program directory, and data directory and packing flag from the file "STEU" in it; without the file
    // DataDirUnset and 2. A damaged file is told and counts as missing.
    Directories GetDirectories();
    // Where the program's own files lie, ../share/lithmark beside an installed program; they are only read.
    std::string ResourceDir() const;
    std::string GetHelpFile(const std::string& key);
    // The folder of the running program, with a trailing separator.
    std::string ExecutableDir() const;
    // Where the program keeps what is no setting but survives its end ($XDG_STATE_HOME/lithmark or
    // ~/.local/state/lithmark), with a trailing separator; in an explicit settings directory a folder of its own. Empty
    // when the user has no home; it need not exist.
    std::string StateDir() const;
    // The file "Units" in the program directory; without it m, cm, kN, MN and degrees Celsius, each with factor 1. A
    // damaged file is told and counts as missing.
    UnitSettings GetUnits(const std::string& programDir);

    CompanyLines GetFirmaData();
    // Shows its dialog; true when the lines were changed, and then stores them.
    bool EditFirmaData(CompanyLines& lines);
    // Shows its dialog; LanguageTexts answers in the chosen language from then on, and the choice is stored.
    void ChooseLanguage();
    // The stored language, put in force; when none is stored, the given one.
    void LoadLanguage(Language otherwise = Language::English);
    void StoreLanguage(Language language);

    // The name a file is really opened under (MappedFileName): a project extension folded to upper case, an existing
    // file of another letter case found, separators those of the platform.
    void SetFileName(const std::string& name);
    std::string GetFileName() const;
    // The name that error texts refer to.
    void SetCurrentFile(const std::string& name);
    const std::string& CurrentFile() const noexcept { return currentFile_; }
    // True when no such file exists under any letter case of its extension.
    bool FileMissing(const std::string& name, bool quiet) const;

    // The reading or writing notice in the status bar.
    void ShowFileStatus(FileStatus status);
    void ClearFileStatus();
    // A message box with the text of a failure, with the current file and line where they apply.
    void ShowFileError(const Failure& failure);
    // The same text, one line, as the command line prints it.
    std::string FailureText(const Failure& failure) const;
    void ShowMessageBox(const std::string& title, const std::string& text, MessageIcon icon);
    void SetPointer(PointerShape shape);

    // How far a long run is, 0 to 1. Throws Failure(Cancelled) when the user ends the run. Cheap enough for inner
    // loops: the host hears of it twenty times a second, and always at 0 and 1.
    void ReportProgress(double fraction);

    void SetCurrentTextId(TextId id) { currentTextId_ = id; }
    TextId GetCurrentTextId() const noexcept { return currentTextId_; }

    // The decimal sign of what the user types and sees; "." in files and in the command line tool always.
    char DecimalSign = '.';

    // Fits a form to the language as it loads.
    void PrepareForm(Form& form);
    // The number in a text box by the current decimal sign; InvalidArgument when it holds none. Arabic digits, the
    // Arabic decimal sign and the minus sign of typesetting are read as their plain forms.
    double GetNumber(const Control& control) const;
    // A message that names `label` and the allowed range when the box holds no number or one outside lower..upper, else
    // nothing. Kind 2 is a real number; kind 1 must be whole too.
    std::optional<std::string> NumberFault(const Control& control, int kind, double upper, double lower,
                                           const std::string& label) const {
        return TextFault(control.Text, kind, upper, lower, label);
    }
    std::optional<std::string> TextFault(const std::string& typed, int kind, double upper, double lower,
                                         const std::string& label) const;
    // A number as a user would type it: with a digit ahead of the decimal sign in force.
    std::string AsTyped(double number) const;
    // The number of a typed text, nothing when it is none. The other of "." and "," is taken as the decimal sign too
    // where it cannot part thousands, as in "1,5", "0,125" and "1500,250", but not in "1,500".
    std::optional<double> NumberOf(const std::string& typed) const;
    // Shows why a box cannot be taken and puts the focus on it.
    void RefuseBox(Form& form, Control& box, const std::string& reason);
    // False, after RefuseBox, when the box has a fault.
    bool CheckNumber(Form& form, Control& control, int kind, double upper, double lower, const std::string& label);

    void SetHelpText(const std::string& text) { helpText_ = text; }
    const std::string& GetHelpText() const noexcept { return helpText_; }
    // Shows the help text that was set.
    void ShowHelpText(const std::string& title);
    void ShowHelpTopic(const std::string& topic);
    // Asks whether to end the program.
    bool ConfirmQuit();

    // Persistent settings by application title, section and key. A value of another type than asked for counts as
    // missing. A store that cannot be read or written is told once, stays as it is, and the
    // program goes on.
    void SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                     const SettingValue& value);
    bool GetSetting(const std::string& app, const std::string& section, const std::string& key, bool defaultValue);
    std::string GetSetting(const std::string& app, const std::string& section, const std::string& key,
                           const std::string& defaultValue);
    std::string GetSetting(const std::string& app, const std::string& section, const std::string& key,
                           const char* defaultValue) {
        return GetSetting(app, section, key, std::string(defaultValue));
    }
    long GetSetting(const std::string& app, const std::string& section, const std::string& key, long defaultValue);

  private:
    std::string ProgramDir() const;
    std::string SettingsFile() const;
    void TellDamage(const std::string& file, const Failure& failure);
    std::optional<SettingValue> StoredValue(const std::string& app, const std::string& section, const std::string& key);
    void Tell(const StoreTrouble& trouble);
    void TellStoreOnce(const std::string& text);

    std::string fileName_, currentFile_, helpText_, settingsDir_;
    TextId currentTextId_{};
    std::chrono::steady_clock::time_point lastProgress_{};
    bool storeTold_ = false;
};

// The title under which the program keeps its settings.
inline const std::string kApplicationTitle = "Lithmark";

SharedServicesService& SharedServices();

}  // namespace lithmark
