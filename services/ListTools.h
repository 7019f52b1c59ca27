// ListTools: keys of menu entries, the list of recent files, places of windows and bars.
#pragma once

#include <array>
#include <optional>
#include <string>

namespace lithmark {

// A row of the recent file list. Row 0 is the separator "-", rows 1 to 4 the files, the newest first.
struct RecentFile {
    std::string Caption;
    bool Visible = false;
};
using RecentFileTable = std::array<RecentFile, 5>;

// Where a window stands on the screen, in pixels.
struct FormPosition {
    int Left = 0, Top = 0, Width = 0, Height = 0;
    bool Maximized = false;
};

class ListToolsService {
  public:
    // The number in brackets of a menu key, "mnuProblem(3)" gives 3; -1 for a key without one.
    int KeyIndex(const std::string& key) const;

    // The stored list of an application.
    void LoadRecentFiles(const std::string& title, RecentFileTable& table);
    // Puts a file at the top, once; the list keeps four files and is stored.
    void AddRecentFile(const std::string& path, const std::string& title, RecentFileTable& table);
    // The file of a row. One that does not exist any more is told, taken from the list, and gives an empty path; so
    // does a row that holds no file.
    std::string GetRecentFile(const std::string& title, int index, RecentFileTable& table);

    void SaveFormPosition(const std::string& form, const FormPosition& position, const std::string& title,
                          const std::string& section);
    // Nothing when none is stored, or one that is no position.
    std::optional<FormPosition> LoadFormPosition(const std::string& form, const std::string& title,
                                                 const std::string& section);

    // The layout of a dock's bars is a text of the dock's own. Nothing when none is stored; saving an empty one forgets
    // it.
    std::optional<std::string> LoadDockLayout(const std::string& dock, const std::string& title);
    void SaveDockLayout(const std::string& dock, const std::string& layout, const std::string& title);
    // The size of a bar with so many buttons, in pixels.
    int BarWidth(int buttons) const;
    int BarHeight() const;
};

ListToolsService& ListTools();

}  // namespace lithmark
