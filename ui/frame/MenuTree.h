// The menu of the frame: one entry for each command, by its key.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "base/TextId.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

// One entry. The key is "mnuFile", or "mnuProblem(3)" in an array of entries. Headings and submenus are the entries
// that others name as their parent; the top entries have none and stand in the bar.
class MenuItem {
  public:
    MenuItem(std::string key, std::string parent, TextId id = {}, Style as = Styles::Button, std::string shortcut = {});

    const std::string Key, Parent;
    const TextId Id;  // number 0: a separator, or a caption that is no text by number
    const Style As;
    const std::string Shortcut;  // "Ctrl+N"
    std::string Caption;         // with its mnemonic mark; "-" is a separator
    bool Enabled = true;
    bool Visible = true;

    bool Separator() const { return Caption == "-"; }
    // The tick. That of mnuProblem(i) is not the entry's own: it says that the project holds the data (ProjectFlags).
    bool Checked() const;
    void SetChecked(bool checked);

  private:
    const int problemEntry_;  // index of mnuProblem, -1 for all other entries
    bool checked_ = false;
};

class MenuTree {
  public:
    // All entries with empty captions; separators have theirs.
    MenuTree();
    MenuTree(const MenuTree&) = delete;
    MenuTree& operator=(const MenuTree&) = delete;

    // In the order in which they stand in the menus.
    const std::deque<MenuItem>& Items() const noexcept { return items_; }
    // The entry of a key; null, or SubscriptRange, for a key that does not exist.
    MenuItem* Find(std::string_view key);
    MenuItem& operator[](std::string_view key);
    // An entry of an array of entries: ("mnuProblem", 3).
    MenuItem& At(std::string_view array, int index);
    // The entries of a heading or submenu, in order; those of the bar for "".
    std::vector<MenuItem*> Children(std::string_view parent);

    // The captions in the language in force. Captions that are no texts by number stay.
    void SetCaptions();

  private:
    std::deque<MenuItem> items_;
};

}  // namespace lithmark
