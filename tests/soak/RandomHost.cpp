#include "soak/RandomHost.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>

#include "ui/model/UnsavedTable.h"

namespace lithmark::tests {

namespace {

namespace fs = std::filesystem;

constexpr const char* kTexts[] = {"",
                                  "0",
                                  "1",
                                  "2",
                                  "3",
                                  "5",
                                  "8",
                                  ".25",
                                  "0.5",
                                  "12.75",
                                  "100",
                                  "7854",
                                  "5000",
                                  "-1",
                                  "-0.5",
                                  "1e-9",
                                  "1E9",
                                  "1e38",
                                  "1e39",
                                  "1e400",
                                  "abc",
                                  "1,5",
                                  "1.5.2",
                                  " 2 ",
                                  "٣٫٥",
                                  "−4",
                                  "1 000",
                                  "#TRUE#",
                                  "nan",
                                  "inf",
                                  "0x10",
                                  "%",
                                  "17.5.2024",
                                  "Montag",
                                  "\x1B[2J",
                                  "32768",
                                  "-2E-3",
                                  "999999999999",
                                  "days",
                                  "Tage",
                                  "‏سنة‏",
                                  "\"a, b\"",
                                  "&Go|9",
                                  "\\..\\x"};

const std::vector<std::string>& Names() {
    static const std::vector<std::string> names = {"P1.PO3", "P4.PO3",   "P8.PO3", "P9.PO3",
                                                   "New",    "New2.po3", "bad.PO3"};
    return names;
}

}  // namespace

RandomHost::RandomHost(unsigned seed, std::string folder) : random_(seed), folder_(std::move(folder)) {
    SetCurrentHost(this);
}

RandomHost::~RandomHost() {
    SetCurrentHost(nullptr);
}

int RandomHost::Below(int count) {
    return count <= 0 ? 0 : static_cast<int>(random_() % static_cast<unsigned>(count));
}

std::string RandomHost::AnyText() {
    if (OnceIn(200)) return std::string(70000, '9');
    return kTexts[Below(static_cast<int>(std::size(kTexts)))];
}

void RandomHost::Note(std::string step) {
    constexpr std::size_t kKept = 40;
    ++events_;
    steps_.push_back(std::move(step));
    if (steps_.size() > kKept) steps_.erase(steps_.begin());
    runBegan_ = std::chrono::steady_clock::now();
}

void RandomHost::ShowMessage(const std::string&, const std::string& text, MessageIcon) {
    Note("message: " + text.substr(0, 200));
    EXPECT_FALSE(text.empty()) << "a message without a word";
    EXPECT_LT(text.size(), 2000u) << text;
    EXPECT_EQ(text.find("|1"), std::string::npos) << text;
}

// Patience for a fifth of a second.
bool RandomHost::Progress(double) {
    return std::chrono::steady_clock::now() - runBegan_ < std::chrono::milliseconds(200);
}

bool RandomHost::AskYesNo(const std::string&, const std::string& text) {
    const bool yes = OnceIn(3);
    Note("question: " + text + (yes ? " yes" : " no"));
    return yes;
}

void RandomHost::ShowForm(Form& form) {
    constexpr int kDeepest = 4, kMostSteps = 25;
    Note("form " + form.Name);
    form.Reopen();
    ++depth_;
    form.Load();
    if (!form.Unloaded()) form.Activate();
    for (int steps = depth_ > kDeepest ? 0 : Below(kMostSteps); steps > 0 && !form.Unloaded(); --steps)
        DoAnything(form);
    --depth_;
    form.KeepInput();
    if (!form.Unloaded()) form.Unload();
}

void RandomHost::DoAnything(Form& form) {
    std::vector<Control*> usable;
    for (Control* control : form.Controls())
        if (control->Visible && control->Enabled) usable.push_back(control);
    if (usable.empty()) return;
    Control& control = *usable[static_cast<std::size_t>(Below(static_cast<int>(usable.size())))];
    form.Focus = &control;
    if (OnceIn(6)) {
        Note(form.Name + "." + control.Name + " Enter");
        if (control.OnEnter) control.OnEnter();
        return;
    }
    switch (control.Kind) {
        case ControlKind::TextBox:
        case ControlKind::TextArea:
        case ControlKind::DatePicker:
            if (control.ReadOnly) return;
            control.Text = AnyText();
            Note(form.Name + "." + control.Name + " = " + control.Text.substr(0, 40));
            if (control.OnChange) control.OnChange();
            return;
        case ControlKind::ComboBox:
        case ControlKind::Tab:
            if (control.Items.empty()) return;
            control.ListIndex = Below(static_cast<int>(control.Items.size()));
            if (control.Kind == ControlKind::ComboBox)
                control.Text = control.Items[static_cast<std::size_t>(control.ListIndex)];
            Note(form.Name + "." + control.Name + " row " + std::to_string(control.ListIndex));
            if (control.OnChange) control.OnChange();
            return;
        case ControlKind::CheckBox:
            control.Value = !control.Value;
            break;
        case ControlKind::Option:
            form.SelectOption(control);
            break;
        case ControlKind::List:
            if (control.Items.empty()) return;
            control.ListIndex = Below(static_cast<int>(control.Items.size()));
            break;
        case ControlKind::TextLabel:
        case ControlKind::Button:
        case ControlKind::Frame:
        case ControlKind::Picture:
            break;
    }
    Note(form.Name + "." + control.Name + " click");
    if (control.OnClick) control.OnClick();
}

std::string RandomHost::AnyFile() {
    if (OnceIn(20)) return folder_ + "no/such/folder/P";
    if (OnceIn(20)) return folder_;
    std::vector<std::string> files = Names();
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder_, error)) files.push_back(entry.path().filename());
    return folder_ + files[static_cast<std::size_t>(Below(static_cast<int>(files.size())))];
}

std::optional<std::string> RandomHost::ChooseFileToOpen(const std::string&, const std::string&, const std::string&) {
    if (OnceIn(4)) return std::nullopt;
    std::string file = AnyFile();
    Note("open " + file);
    return file;
}

std::optional<std::string> RandomHost::ChooseFileToSave(const std::string&, const std::string&, const std::string& name,
                                                        const std::string&) {
    if (OnceIn(4)) return std::nullopt;
    std::string file = OnceIn(3) ? folder_ + name : AnyFile();
    Note("save " + file);
    return file;
}

std::optional<std::string> RandomHost::BrowseFolder(const std::string& start) {
    return OnceIn(2) ? std::optional(OnceIn(2) ? start : folder_) : std::nullopt;
}

std::optional<CompanyLines> RandomHost::EditCompanyLines(const CompanyLines& lines) {
    return OnceIn(2) ? std::optional(CompanyLines{AnyText(), lines.Line1}) : std::nullopt;
}

std::optional<Language> RandomHost::ChooseLanguage(Language current) {
    constexpr Language kLanguages[] = {Language::German, Language::English, Language::Arabic};
    return OnceIn(3) ? std::optional(current) : std::optional(kLanguages[Below(3)]);
}

bool RandomHost::EditTable(TableEdit& table) {
    Note("table " + table.Title);
    for (int edits = Below(12); edits > 0; --edits) {
        const int row = Below(static_cast<int>(table.Rows.size()) + 1);
        const auto at = table.Rows.begin() + row;
        if (OnceIn(4))
            table.Rows.insert(at, std::vector<std::string>(table.Columns.size(), AnyText()));
        else if (at != table.Rows.end() && OnceIn(4))
            table.Rows.erase(at);
        else if (at != table.Rows.end() && !at->empty())
            (*at)[static_cast<std::size_t>(Below(static_cast<int>(at->size())))] = AnyText();
        KeepRows(table, table.Rows);
    }
    return OnceIn(2);
}

void RandomHost::ShowChart(const ChartArguments& chart) {
    Note("chart " + chart.ChartTitle);
    EXPECT_GE(chart.LastRow, 1);
}

}  // namespace lithmark::tests
