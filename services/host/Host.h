// Host: whoever shows the program. Everything that needs a screen goes through this one interface.
//
// Three hosts exist: the desktop's windows, the command line (collects messages, prints them), and the scripted host of
// the tests (answers, records every question, and fails a test when an answer is left over or missing). An operation
// that a host does not offer is a failure of the caller.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "services/host/Charting.h"
#include "services/host/Form.h"
#include "services/host/TableEditor.h"
#include "texts/LanguageTable.h"

namespace lithmark {

enum class MessageIcon { None, Information, Exclamation, Critical };
enum class PointerShape { Default, Hourglass };
enum class FileStatus { None, Reading, Writing };

struct CompanyLines {
    std::string Line1, Line2;
};

class Host {
  public:
    virtual ~Host() = default;

    // A message box with an OK button.
    virtual void ShowMessage(const std::string& title, const std::string& text, MessageIcon icon) = 0;
    virtual void SetPointer(PointerShape) {}
    // The reading or writing notice of the status bar.
    virtual void ShowFileStatus(FileStatus) {}
    // Long runs tell how far they are, 0 to 1. False asks the run to end.
    virtual bool Progress(double /*fraction*/) { return true; }

    // A question with yes and no.
    virtual bool AskYesNo(const std::string& title, const std::string& text);
    // Shows a form modally and returns when it is unloaded. The form's Load has not run yet.
    virtual void ShowForm(Form& form);
    // Shows a loaded form in front of all windows without waiting for its end, and takes it away again. Whoever shows
    // it calls the form's own events in between.
    virtual void ShowSplash(Form&) {}
    virtual void CloseSplash(Form&) {}
    // Lets the windows react while the program waits; may rest for some milliseconds.
    virtual void RunEvents() {}
    // Puts the input focus on a control of a shown form.
    virtual void SetFocus(Form& form, Control& control);
    // A help text in a window; a topic of the help pages.
    virtual void ShowHelpText(const std::string& title, const std::string& text);
    virtual void ShowHelpTopic(const std::string& topic);

    // Paths as the user chose them; nothing when the dialog was cancelled. `pattern` is such as "*.PO3" or "PO3".
    virtual std::optional<std::string> ChooseFileToOpen(const std::string& title, const std::string& startDir,
                                                        const std::string& pattern);
    virtual std::optional<std::string> ChooseFileToSave(const std::string& title, const std::string& startDir,
                                                        const std::string& name, const std::string& extension);
    virtual std::optional<std::string> BrowseFolder(const std::string& start);

    virtual std::optional<CompanyLines> EditCompanyLines(const CompanyLines& lines);
    virtual std::optional<Language> ChooseLanguage(Language current);
    // The table editor; false when cancelled.
    virtual bool EditTable(TableEdit& table);
    // A window with the files of a folder that have an extension; a window with a text.
    virtual void ShowFileList(const std::string& dir, const std::string& extension);
    virtual void ShowTextEditor(const std::string& text);
    virtual void ShowChart(const ChartArguments& chart);

    // The ways out of the result viewer.
    virtual void PrintText(const std::string& text, const std::string& fontName, int fontSize, bool rightToLeft);
    virtual void OpenWordProcessor(const std::string& text, const std::string& fontName, int fontSize,
                                   bool rightToLeft);
    virtual void SetClipboardText(const std::string& text);
    // Starts a program with its arguments, never by way of a command line, and does not wait for it. FileMissing when
    // it cannot be started.
    virtual void StartProcess(const std::string& program, const std::vector<std::string>& arguments);
};

// The host in force. Until one is set it is a host that keeps silent about messages and offers nothing else.
Host& CurrentHost();
void SetCurrentHost(Host* host);

}  // namespace lithmark
