// ScriptedHost: the host of the tests. It answers from a script, records everything that is shown or asked, and fails
// the test when an answer is missing or one is left over.
//
//     ScriptedHost host;
//     host.OnForm<frmstress>([](frmstress& form) {
//         Type(form, "txt_Nue", "0.6");
//         Click(form, "cmdResult");
//         EXPECT_EQ(form.Focus, &form.txt_Nue);
//     });
//     host.AnswerYesNo(true);
//     ...
//     EXPECT_THAT(host.LastMessage().Text, HasSubstr("0.5"));
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "services/host/Host.h"

namespace lithmark::tests {

class ScriptedHost : public Host {
  public:
    struct Message {
        std::string Title, Text;
        MessageIcon Icon = MessageIcon::None;
    };
    struct FileQuestion {
        std::string Title, StartDir;
        std::string Pattern;  // of an open dialog; the extension of a save dialog
        std::string Name;     // proposed by a save dialog
    };
    struct SentText {
        std::string Text, FontName;
        int FontSize = 0;
        bool RightToLeft = false;
    };

    // The host is in force as long as it lives.
    ScriptedHost();
    ~ScriptedHost() override;

    // --- the script: each answer serves one question of its kind, in order ---

    // What the user does on the next form that is shown. Afterwards the host unloads the form, if that has not
    // happened.
    void OnForm(std::function<void(Form&)> script);
    // The same for a form that must be of this type.
    template <typename F>
    void OnForm(std::function<void(F&)> script) {
        OnForm([script = std::move(script)](Form& form) {
            if (auto* expected = dynamic_cast<F*>(&form))
                script(*expected);
            else
                FailOnAnotherForm(form);
        });
    }
    void AnswerYesNo(bool yes);
    // Nothing stands for a cancelled dialog, here and below.
    void AnswerFileToOpen(std::optional<std::string> path);
    void AnswerFileToSave(std::optional<std::string> path);
    void AnswerFolder(std::optional<std::string> path);
    void AnswerCompanyLines(std::optional<CompanyLines> lines);
    void AnswerLanguage(std::optional<Language> language);
    // What the user does in the table editor; false cancels.
    void OnTable(std::function<bool(TableEdit&)> script);
    // The user ends a long run at its n-th report of progress, from 1.
    void CancelAtProgress(int report) { cancelAt_ = report; }

    // What happens while the program lets the windows react.
    std::function<void()> OnEvents;

    // --- the record ---

    std::vector<Message> Messages;
    std::vector<Message> Questions;  // with yes and no
    std::vector<std::string> FormsShown;
    std::vector<std::string> SplashesShown, SplashesClosed;
    std::vector<FileQuestion> OpenQuestions, SaveQuestions;
    std::vector<std::string> FolderQuestions;  // the start folders
    std::vector<TableEdit> TablesShown;        // as the editor got them
    std::vector<Message> HelpTexts;
    std::vector<std::string> HelpTopics, EditorTexts, ClipboardTexts;
    std::vector<std::pair<std::string, std::vector<std::string>>> Processes;  // program, arguments
    std::vector<std::pair<std::string, std::string>> FileLists;               // folder, extension
    std::vector<ChartArguments> Charts;
    std::vector<SentText> Printed, WordTexts;
    std::vector<PointerShape> Pointers;
    std::vector<FileStatus> FileStatuses;
    std::vector<double> ProgressReports;

    // The last message, an empty one when there was none.
    Message LastMessage() const;
    PointerShape Pointer() const { return Pointers.empty() ? PointerShape::Default : Pointers.back(); }

    // Fails the test for every answer that was left over, and forgets it.
    void Verify();

    // --- the host ---

    void ShowMessage(const std::string& title, const std::string& text, MessageIcon icon) override;
    void SetPointer(PointerShape shape) override;
    void ShowFileStatus(FileStatus status) override;
    bool Progress(double fraction) override;
    bool AskYesNo(const std::string& title, const std::string& text) override;
    void ShowForm(Form& form) override;
    void ShowSplash(Form& form) override;
    void CloseSplash(Form& form) override;
    void RunEvents() override;
    void SetFocus(Form& form, Control& control) override;
    void ShowHelpText(const std::string& title, const std::string& text) override;
    void ShowHelpTopic(const std::string& topic) override;
    std::optional<std::string> ChooseFileToOpen(const std::string& title, const std::string& startDir,
                                                const std::string& pattern) override;
    std::optional<std::string> ChooseFileToSave(const std::string& title, const std::string& startDir,
                                                const std::string& name, const std::string& extension) override;
    std::optional<std::string> BrowseFolder(const std::string& start) override;
    std::optional<CompanyLines> EditCompanyLines(const CompanyLines&) override;
    std::optional<Language> ChooseLanguage(Language) override;
    bool EditTable(TableEdit& table) override;
    void ShowFileList(const std::string& dir, const std::string& extension) override;
    void ShowTextEditor(const std::string& text) override;
    void ShowChart(const ChartArguments& chart) override;
    void PrintText(const std::string& text, const std::string& font, int size, bool rightToLeft) override;
    void OpenWordProcessor(const std::string& text, const std::string& font, int size, bool rightToLeft) override;
    void SetClipboardText(const std::string& text) override;
    void StartProcess(const std::string& program, const std::vector<std::string>& arguments) override;

  private:
    static void FailOnAnotherForm(const Form& form);

    template <typename T>
    struct Script {
        std::deque<T> answers;
        // The next answer. A missing one fails the test and gives `otherwise`.
        T Take(const std::string& question, T otherwise);
        void Verify(const std::string& kind);
    };

    Script<std::function<void(Form&)>> forms_;
    Script<bool> yesNo_;
    Script<std::optional<std::string>> open_, save_, folder_;
    Script<std::optional<CompanyLines>> company_;
    Script<std::optional<Language>> language_;
    Script<std::function<bool(TableEdit&)>> table_;
    int cancelAt_ = 0;
};

// --- what a user does on a form; each fails the test when a user could not do it ---

// The control of a name, if a user can work with it.
Control* UsableControl(Form& form, std::string_view name);
// Puts a text in the place of a text box's or date picker's content.
void Type(Form& form, std::string_view name, const std::string& text);
// Clicks a button, an option (which clears the others of its array) or a check box (which turns).
void Click(Form& form, std::string_view name);
// Picks a row of a combo box or a tab.
void Select(Form& form, std::string_view name, int index);
void PressEnter(Form& form, std::string_view name);

}  // namespace lithmark::tests
