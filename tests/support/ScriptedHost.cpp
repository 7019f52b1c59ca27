#include "support/ScriptedHost.h"

#include <gtest/gtest.h>

namespace lithmark::tests {

template <typename T>
T ScriptedHost::Script<T>::Take(const std::string& question, T otherwise) {
    if (answers.empty()) {
        ADD_FAILURE() << "no answer in the script for: " << question;
        return otherwise;
    }
    T answer = std::move(answers.front());
    answers.pop_front();
    return answer;
}

template <typename T>
void ScriptedHost::Script<T>::Verify(const std::string& kind) {
    if (!answers.empty()) ADD_FAILURE() << answers.size() << " answer(s) left over: " << kind;
    answers.clear();
}

ScriptedHost::ScriptedHost() {
    SetCurrentHost(this);
}

ScriptedHost::~ScriptedHost() {
    SetCurrentHost(nullptr);
    Verify();
}

void ScriptedHost::OnForm(std::function<void(Form&)> script) {
    forms_.answers.push_back(std::move(script));
}

void ScriptedHost::FailOnAnotherForm(const Form& form) {
    ADD_FAILURE() << "the form " << form.Name << " was shown instead of the one in the script";
}

void ScriptedHost::AnswerYesNo(bool yes) {
    yesNo_.answers.push_back(yes);
}

void ScriptedHost::AnswerFileToOpen(std::optional<std::string> path) {
    open_.answers.push_back(std::move(path));
}

void ScriptedHost::AnswerFileToSave(std::optional<std::string> path) {
    save_.answers.push_back(std::move(path));
}

void ScriptedHost::AnswerFolder(std::optional<std::string> path) {
    folder_.answers.push_back(std::move(path));
}

void ScriptedHost::AnswerCompanyLines(std::optional<CompanyLines> lines) {
    company_.answers.push_back(std::move(lines));
}

void ScriptedHost::AnswerLanguage(std::optional<Language> language) {
    language_.answers.push_back(language);
}

void ScriptedHost::OnTable(std::function<bool(TableEdit&)> script) {
    table_.answers.push_back(std::move(script));
}

ScriptedHost::Message ScriptedHost::LastMessage() const {
    return Messages.empty() ? Message() : Messages.back();
}

void ScriptedHost::Verify() {
    forms_.Verify("form");
    yesNo_.Verify("yes or no question");
    open_.Verify("file to open");
    save_.Verify("file to save");
    folder_.Verify("folder");
    company_.Verify("company lines");
    language_.Verify("language");
    table_.Verify("table");
}

void ScriptedHost::ShowMessage(const std::string& title, const std::string& text, MessageIcon icon) {
    Messages.push_back({title, text, icon});
}

void ScriptedHost::SetPointer(PointerShape shape) {
    Pointers.push_back(shape);
}

void ScriptedHost::ShowFileStatus(FileStatus status) {
    FileStatuses.push_back(status);
}

bool ScriptedHost::Progress(double fraction) {
    ProgressReports.push_back(fraction);
    return static_cast<int>(ProgressReports.size()) != cancelAt_;
}

bool ScriptedHost::AskYesNo(const std::string& title, const std::string& text) {
    Questions.push_back({title, text, MessageIcon::None});
    return yesNo_.Take("yes or no question: " + text, false);
}

void ScriptedHost::ShowForm(Form& form) {
    FormsShown.push_back(form.Name);
    const auto script = forms_.Take("form " + form.Name, [](Form&) {});
    form.Reopen();
    form.Load();
    if (!form.Unloaded()) form.Activate();
    if (!form.Unloaded()) script(form);
    if (!form.Unloaded()) form.Unload();
}

void ScriptedHost::ShowSplash(Form& form) {
    SplashesShown.push_back(form.Name);
}

void ScriptedHost::CloseSplash(Form& form) {
    SplashesClosed.push_back(form.Name);
}

void ScriptedHost::RunEvents() {
    if (OnEvents) OnEvents();
}

void ScriptedHost::SetFocus(Form& form, Control& control) {
    form.Focus = &control;
}

void ScriptedHost::ShowHelpText(const std::string& title, const std::string& text) {
    HelpTexts.push_back({title, text, MessageIcon::None});
}

void ScriptedHost::ShowHelpTopic(const std::string& topic) {
    HelpTopics.push_back(topic);
}

std::optional<std::string> ScriptedHost::ChooseFileToOpen(const std::string& title, const std::string& startDir,
                                                          const std::string& pattern) {
    OpenQuestions.push_back({title, startDir, pattern, ""});
    return open_.Take("file to open", {});
}

std::optional<std::string> ScriptedHost::ChooseFileToSave(const std::string& title, const std::string& startDir,
                                                          const std::string& name, const std::string& extension) {
    SaveQuestions.push_back({title, startDir, extension, name});
    return save_.Take("file to save", {});
}

std::optional<std::string> ScriptedHost::BrowseFolder(const std::string& start) {
    FolderQuestions.push_back(start);
    return folder_.Take("folder", {});
}

std::optional<CompanyLines> ScriptedHost::EditCompanyLines(const CompanyLines&) {
    return company_.Take("company lines", {});
}

std::optional<Language> ScriptedHost::ChooseLanguage(Language) {
    return language_.Take("language", {});
}

bool ScriptedHost::EditTable(TableEdit& table) {
    TablesShown.push_back(table);
    return table_.Take("table " + table.Title, [](TableEdit&) { return false; })(table);
}

void ScriptedHost::ShowFileList(const std::string& dir, const std::string& extension) {
    FileLists.emplace_back(dir, extension);
}

void ScriptedHost::ShowTextEditor(const std::string& text) {
    EditorTexts.push_back(text);
}

void ScriptedHost::ShowChart(const ChartArguments& chart) {
    Charts.push_back(chart);
}

void ScriptedHost::PrintText(const std::string& text, const std::string& font, int size, bool rightToLeft) {
    Printed.push_back({text, font, size, rightToLeft});
}

void ScriptedHost::OpenWordProcessor(const std::string& text, const std::string& font, int size, bool rightToLeft) {
    WordTexts.push_back({text, font, size, rightToLeft});
}

void ScriptedHost::SetClipboardText(const std::string& text) {
    ClipboardTexts.push_back(text);
}

void ScriptedHost::StartProcess(const std::string& program, const std::vector<std::string>& arguments) {
    Processes.push_back({program, arguments});
}

Control* UsableControl(Form& form, std::string_view name) {
    Control* control = form.Find(name);
    if (control == nullptr)
        ADD_FAILURE() << "the form " << form.Name << " has no control " << name;
    else if (!control->Visible || !control->Enabled)
        ADD_FAILURE() << name << " is not " << (control->Visible ? "enabled" : "visible");
    else
        return control;
    return nullptr;
}

void Type(Form& form, std::string_view name, const std::string& text) {
    Control* control = UsableControl(form, name);
    if (control == nullptr) return;
    if (control->ReadOnly) ADD_FAILURE() << name << " is read-only";
    form.Focus = control;
    control->Text = text;
    if (control->OnChange) control->OnChange();
}

void Click(Form& form, std::string_view name) {
    Control* control = UsableControl(form, name);
    if (control == nullptr) return;
    form.Focus = control;
    if (control->Kind == ControlKind::CheckBox) control->Value = !control->Value;
    if (control->Kind == ControlKind::Option) form.SelectOption(*control);
    if (control->OnClick) control->OnClick();
}

void Select(Form& form, std::string_view name, int index) {
    Control* control = UsableControl(form, name);
    if (control == nullptr) return;
    ASSERT_TRUE(index >= 0 && index < static_cast<int>(control->Items.size())) << name << " has no row " << index;
    form.Focus = control;
    control->ListIndex = index;
    if (control->Kind == ControlKind::ComboBox) control->Text = control->Items[static_cast<std::size_t>(index)];
    if (control->OnChange) control->OnChange();
}

void PressEnter(Form& form, std::string_view name) {
    Control* control = UsableControl(form, name);
    if (control == nullptr) return;
    form.Focus = control;
    if (control->OnEnter) control->OnEnter();
}

}  // namespace lithmark::tests
