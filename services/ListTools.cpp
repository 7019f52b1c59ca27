#include "services/ListTools.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "base/Utf8.h"
#include "services/SharedServices.h"
#include "services/storage/FileNames.h"

namespace lithmark {

namespace {

constexpr std::size_t kMostFiles = 4;
const std::string kRecentSection = "Recent Files", kRecentKey = "Files";
const std::string kDockSection = "Docks";

// Pixels of a bar: 16 by 16 icons with a margin of 4 on every side, and the grip in front.
constexpr int kButton = 16 + 2 * 4, kGrip = 10;

std::vector<std::string> FilesOf(const RecentFileTable& table) {
    std::vector<std::string> files;
    for (std::size_t i = 1; i < table.size(); ++i)
        if (table[i].Visible) files.push_back(table[i].Caption);
    return files;
}

void FillTable(const std::vector<std::string>& files, RecentFileTable& table) {
    table[0] = {"-", !files.empty()};
    for (std::size_t i = 1; i < table.size(); ++i)
        table[i] = i <= files.size() ? RecentFile{files[i - 1], true} : RecentFile{};
}

void StoreFiles(const std::vector<std::string>& files, const std::string& title) {
    std::string list;
    for (const std::string& file : files) list += (list.empty() ? "" : "\n") + file;
    SharedServices().SaveSetting(title, kRecentSection, kRecentKey, list);
}

// The whole numbers of a text that are parted by blanks.
std::vector<int> WholeNumbers(const std::string& text) {
    std::vector<int> numbers;
    for (const std::string& word : Split(text, ' ')) {
        int number = 0;
        const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
        if (error != std::errc{} || end != word.data() + word.size()) return {};
        numbers.push_back(number);
    }
    return numbers;
}

}  // namespace

int ListToolsService::KeyIndex(const std::string& key) const {
    const auto open = key.rfind('(');
    if (open == std::string::npos || !key.ends_with(')')) return -1;
    int index = -1;
    const char* last = key.data() + key.size() - 1;
    const auto [end, error] = std::from_chars(key.data() + open + 1, last, index);
    return error == std::errc{} && end == last ? index : -1;
}

void ListToolsService::LoadRecentFiles(const std::string& title, RecentFileTable& table) {
    std::vector<std::string> files = Split(SharedServices().GetSetting(title, kRecentSection, kRecentKey, ""), '\n');
    std::erase(files, "");
    files.resize(std::min(files.size(), kMostFiles));
    FillTable(files, table);
}

void ListToolsService::AddRecentFile(const std::string& path, const std::string& title, RecentFileTable& table) {
    const std::string file = MappedFileName(path);
    std::vector<std::string> files = FilesOf(table);
    std::erase(files, file);
    files.insert(files.begin(), file);
    files.resize(std::min(files.size(), kMostFiles));
    FillTable(files, table);
    StoreFiles(files, title);
}

std::string ListToolsService::GetRecentFile(const std::string& title, int index, RecentFileTable& table) {
    if (index < 1 || index >= static_cast<int>(table.size())) return {};
    const RecentFile& row = table[static_cast<std::size_t>(index)];
    if (!row.Visible) return {};
    std::string path = row.Caption;
    if (!SharedServices().FileMissing(path, false)) return path;
    SharedServices().ShowMessageBox(Text(160030_text), Text(901007_text, {{"|1", path}}), MessageIcon::Information);
    std::vector<std::string> files = FilesOf(table);
    std::erase(files, path);
    FillTable(files, table);
    StoreFiles(files, title);
    return {};
}

void ListToolsService::SaveFormPosition(const std::string& form, const FormPosition& position, const std::string& title,
                                        const std::string& section) {
    std::string text;
    for (const int number : {position.Left, position.Top, position.Width, position.Height})
        text += std::to_string(number) + " ";
    SharedServices().SaveSetting(title, section, form + " Position", text + (position.Maximized ? "1" : "0"));
}

std::optional<FormPosition> ListToolsService::LoadFormPosition(const std::string& form, const std::string& title,
                                                               const std::string& section) {
    const auto n = WholeNumbers(SharedServices().GetSetting(title, section, form + " Position", ""));
    if (n.size() != 5 || n[2] <= 0 || n[3] <= 0) return std::nullopt;
    return FormPosition{n[0], n[1], n[2], n[3], n[4] != 0};
}

std::optional<std::string> ListToolsService::LoadDockLayout(const std::string& dock, const std::string& title) {
    const std::string layout = SharedServices().GetSetting(title, kDockSection, dock, "");
    return layout.empty() ? std::nullopt : std::optional(layout);
}

void ListToolsService::SaveDockLayout(const std::string& dock, const std::string& layout, const std::string& title) {
    SharedServices().SaveSetting(title, kDockSection, dock, layout);
}

int ListToolsService::BarWidth(int buttons) const {
    return kGrip + std::max(0, buttons) * kButton;
}

int ListToolsService::BarHeight() const {
    return kButton;
}

ListToolsService& ListTools() {
    static ListToolsService instance;
    return instance;
}

}  // namespace lithmark
