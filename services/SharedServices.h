// SharedServices: directories, file names, settings store, messages, input checks, help.
//
// None of these reads the program's state record: they get what they need as arguments.
#pragma once

#include <string>
#include <variant>

#include "base/Failure.h"
#include "services/Host.h"
#include "services/LanguageTexts.h"

namespace lithmark {

// What the file "Units" gives: labels in the current language, factors in display units per base unit.
struct UnitSettings {
    std::string Len1Label, Len2Label, Force1Label, Force2Label, TempLabel;
    double Len1Factor = 1, Len2Factor = 1, Force1Factor = 1, Force2Factor = 1;
};

struct Directories {
    std::string ProgramDir, DataDir;
    long CompressFlag = 2;
};

class SharedServicesService {
  public:
    // The first and the last call of the process.
    void SetProgramNumber(int number);
    void CloseServices();

    // The program directory holds the settings files. When it is not writable the user's own settings directory
    // takes its place. An explicit directory (command line, tests) goes before both.
    void UseSettingsDirectory(const std::string& dir);
    Directories GetDirectories();
    std::string GetHelpFile(const std::string& key);
    UnitSettings GetUnits(const std::string& programDir);

    CompanyLines GetFirmaData();
    // Shows its dialog; true when the lines were changed, and then stores them.
    bool EditFirmaData(CompanyLines& lines);
    // Shows its dialog; LanguageTexts answers in the chosen language from then on, and the choice is stored.
    void ChooseLanguage();
    // The stored language, put in force.
    void LoadLanguage();

    // The name a file is really opened under: extension folded to upper case, an existing file of another letter case
    // found, separators those of the platform.
    void SetFileName(const std::string& name);
    std::string GetFileName() const;
    // The name that error texts refer to.
    void SetCurrentFile(const std::string& name);
    const std::string& CurrentFile() const noexcept { return currentFile_; }
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

    // How far a long run is, 0 to 1. Throws Failure(Cancelled) when the user ends the run.
    void ReportProgress(double fraction);

    void SetCurrentTextId(TextId id) { currentTextId_ = id; }
    TextId GetCurrentTextId() const noexcept { return currentTextId_; }

    // The decimal sign of what the user types and sees; "." in files and in the command line tool always.
    char DecimalSign = '.';

    // Registers a form as it loads.
    void PrepareForm(Form& form);
    // The number in a text box by the current decimal sign; InvalidArgument when it holds none.
    double GetNumber(const Control& control) const;
    // False, after a message that names `label` and with the focus on the control, when the box holds no number or one
    // outside lower..upper.
    bool CheckNumber(Form& form, Control& control, int kind, double upper, double lower, const std::string& label);

    void SetHelpText(const std::string& text) { helpText_ = text; }
    const std::string& GetHelpText() const noexcept { return helpText_; }
    // Shows the help text that was set.
    void ShowHelpText(const std::string& title);
    void ShowHelpTopic(const std::string& topic);
    // Asks whether to end the program.
    bool ConfirmQuit();

    // Persistent settings by application title, section and key.
    void SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                     const std::variant<bool, long, std::string>& value);
    bool GetSetting(const std::string& app, const std::string& section, const std::string& key, bool defaultValue);
    std::string GetSetting(const std::string& app, const std::string& section, const std::string& key,
                           const std::string& defaultValue);

  private:
    std::string fileName_, currentFile_, helpText_, settingsDir_;
    TextId currentTextId_{};
};

SharedServicesService& SharedServices();

}  // namespace lithmark
