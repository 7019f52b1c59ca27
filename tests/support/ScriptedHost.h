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

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
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
    ScriptedHost() { SetCurrentHost(this); }
    ~ScriptedHost() override {
        SetCurrentHost(nullptr);
        Verify();
    }

    // --- the script: each answer serves one question of its kind, in order ---

    // What the user does on the next form that is shown. Afterwards the host unloads the form, if that has not
    // happened.
    void OnForm(std::function<void(Form&)> script) { forms_.answers.push_back(std::move(script)); }
    // The same for a form that must be of this type.
    template <typename F>
    void OnForm(std::function<void(F&)> script) {
        OnForm([script = std::move(script)](Form& form) {
            auto* expected = dynamic_cast<F*>(&form);
            ASSERT_NE(expected, nullptr) << "the form " << form.Name << " was shown instead of the one in the script";
            script(*expected);
        });
    }
    void AnswerYesNo(bool yes) { yesNo_.answers.push_back(yes); }
    // Nothing stands for a cancelled dialog, here and below.
    void AnswerFileToOpen(std::optional<std::string> path) { open_.answers.push_back(std::move(path)); }
    void AnswerFileToSave(std::optional<std::string> path) { save_.answers.push_back(std::move(path)); }
    void AnswerFolder(std::optional<std::string> path) { folder_.answers.push_back(std::move(path)); }
    void AnswerCompanyLines(std::optional<CompanyLines> lines) { company_.answers.push_back(std::move(lines)); }
    void AnswerLanguage(std::optional<Language> language) { language_.answers.push_back(language); }
    // What the user does in the table editor; false cancels.
    void OnTable(std::function<bool(TableEdit&)> script) { table_.answers.push_back(std::move(script)); }
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
    std::vector<std::string> HelpTopics, EditorTexts, ClipboardTexts, Processes;
    std::vector<std::pair<std::string, std::string>> FileLists;  // folder, extension
    std::vector<ChartArguments> Charts;
    std::vector<SentText> Printed, WordTexts;
    std::vector<PointerShape> Pointers;
    std::vector<FileStatus> FileStatuses;
    std::vector<double> ProgressReports;

    // The last message, an empty one when there was none.
    Message LastMessage() const { return Messages.empty() ? Message() : Messages.back(); }
    PointerShape Pointer() const { return Pointers.empty() ? PointerShape::Default : Pointers.back(); }

    // Fails the test for every answer that was left over, and forgets it.
    void Verify() {
        forms_.Verify("form");
        yesNo_.Verify("yes or no question");
        open_.Verify("file to open");
        save_.Verify("file to save");
        folder_.Verify("folder");
        company_.Verify("company lines");
        language_.Verify("language");
        table_.Verify("table");
    }

    // --- the host ---

    void ShowMessage(const std::string& title, const std::string& text, MessageIcon icon) override {
        Messages.push_back({title, text, icon});
    }
    void SetPointer(PointerShape shape) override { Pointers.push_back(shape); }
    void ShowFileStatus(FileStatus status) override { FileStatuses.push_back(status); }
    bool Progress(double fraction) override {
        ProgressReports.push_back(fraction);
        return static_cast<int>(ProgressReports.size()) != cancelAt_;
    }
    bool AskYesNo(const std::string& title, const std::string& text) override {
        Questions.push_back({title, text, MessageIcon::None});
        return yesNo_.Take("yes or no question: " + text, false);
    }
    void ShowForm(Form& form) override {
        FormsShown.push_back(form.Name);
        const auto script = forms_.Take("form " + form.Name, [](Form&) {});
        form.Reopen();
        form.Load();
        if (!form.Unloaded()) form.Activate();
        if (!form.Unloaded()) script(form);
        if (!form.Unloaded()) form.Unload();
    }
    void ShowSplash(Form& form) override { SplashesShown.push_back(form.Name); }
    void CloseSplash(Form& form) override { SplashesClosed.push_back(form.Name); }
    void RunEvents() override {
        if (OnEvents) OnEvents();
    }
    void SetFocus(Form& form, Control& control) override { form.Focus = &control; }
    void ShowHelpText(const std::string& title, const std::string& text) override {
        HelpTexts.push_back({title, text, MessageIcon::None});
    }
    void ShowHelpTopic(const std::string& topic) override { HelpTopics.push_back(topic); }
    std::optional<std::string> ChooseFileToOpen(const std::string& title, const std::string& startDir,
                                                const std::string& pattern) override {
        OpenQuestions.push_back({title, startDir, pattern, ""});
        return open_.Take("file to open", {});
    }
    std::optional<std::string> ChooseFileToSave(const std::string& title, const std::string& startDir,
                                                const std::string& name, const std::string& extension) override {
        SaveQuestions.push_back({title, startDir, extension, name});
        return save_.Take("file to save", {});
    }
    std::optional<std::string> BrowseFolder(const std::string& start) override {
        FolderQuestions.push_back(start);
        return folder_.Take("folder", {});
    }
    std::optional<CompanyLines> EditCompanyLines(const CompanyLines&) override {
        return company_.Take("company lines", {});
    }
    std::optional<Language> ChooseLanguage(Language) override { return language_.Take("language", {}); }
    bool EditTable(TableEdit& table) override {
        TablesShown.push_back(table);
        return table_.Take("table " + table.Title, [](TableEdit&) { return false; })(table);
    }
    void ShowFileList(const std::string& dir, const std::string& extension) override {
        FileLists.emplace_back(dir, extension);
    }
    void ShowTextEditor(const std::string& text) override { EditorTexts.push_back(text); }
    void ShowChart(const ChartArguments& chart) override { Charts.push_back(chart); }
    void PrintText(const std::string& text, const std::string& font, int size, bool rightToLeft) override {
        Printed.push_back({text, font, size, rightToLeft});
    }
    void OpenWordProcessor(const std::string& text, const std::string& font, int size, bool rightToLeft) override {
        WordTexts.push_back({text, font, size, rightToLeft});
    }
    void SetClipboardText(const std::string& text) override { ClipboardTexts.push_back(text); }
    void StartProcess(const std::string& commandLine) override { Processes.push_back(commandLine); }

  private:
    template <typename T>
    struct Script {
        std::deque<T> answers;
        // The next answer. A missing one fails the test and gives `otherwise`.
        T Take(const std::string& question, T otherwise) {
            if (answers.empty()) {
                ADD_FAILURE() << "no answer in the script for: " << question;
                return otherwise;
            }
            T answer = std::move(answers.front());
            answers.pop_front();
            return answer;
        }
        void Verify(const std::string& kind) {
            if (!answers.empty()) ADD_FAILURE() << answers.size() << " answer(s) left over: " << kind;
            answers.clear();
        }
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
inline Control* UsableControl(Form& form, std::string_view name) {
    Control* control = form.Find(name);
    if (control == nullptr)
        ADD_FAILURE() << "the form " << form.Name << " has no control " << name;
    else if (!control->Visible || !control->Enabled)
        ADD_FAILURE() << name << " is not " << (control->Visible ? "enabled" : "visible");
    else
        return control;
    return nullptr;
}

// Puts a text in the place of a text box's or date picker's content.
inline void Type(Form& form, std::string_view name, const std::string& text) {
    Control* control = UsableControl(form, name);
    if (control == nullptr) return;
    if (control->ReadOnly) ADD_FAILURE() << name << " is read-only";
    form.Focus = control;
    control->Text = text;
    if (control->OnChange) control->OnChange();
}

// Clicks a button, an option (which clears the others of its array) or a check box (which turns).
inline void Click(Form& form, std::string_view name) {
    Control* control = UsableControl(form, name);
    if (control == nullptr) return;
    form.Focus = control;
    if (control->Kind == ControlKind::CheckBox) control->Value = !control->Value;
    if (control->Kind == ControlKind::Option) form.SelectOption(*control);
    if (control->OnClick) control->OnClick();
}

// Picks a row of a combo box or a tab.
inline void Select(Form& form, std::string_view name, int index) {
    Control* control = UsableControl(form, name);
    if (control == nullptr) return;
    ASSERT_TRUE(index >= 0 && index < static_cast<int>(control->Items.size())) << name << " has no row " << index;
    form.Focus = control;
    control->ListIndex = index;
    if (control->Kind == ControlKind::ComboBox) control->Text = control->Items[static_cast<std::size_t>(index)];
    if (control->OnChange) control->OnChange();
}

inline void PressEnter(Form& form, std::string_view name) {
    Control* control = UsableControl(form, name);
    if (control == nullptr) return;
    form.Focus = control;
    if (control->OnEnter) control->OnEnter();
}

}  // namespace lithmark::tests
