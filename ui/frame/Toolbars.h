// The bars of the frame: the menu bar and four bars of buttons, one for each of four menus.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "ui/frame/MenuTree.h"

namespace lithmark {

struct Toolbar {
    std::string Name;         // "MENU", or the key of the menu whose entries its buttons are
    std::string SettingsKey;  // empty for the menu bar, which is always shown
    std::string Caption;      // of the bar as a window of its own, without a mnemonic mark
    bool Visible = true;
    std::vector<std::string> Buttons;  // keys of the entries, in order
    int Width = 0, Height = 0;         // pixels
    std::array<std::string, 3> Words;  // what the bar's own menu says: more buttons, add or remove, reset
};

class Toolbars {
  public:
    static constexpr int kCount = 4;

    // The menu bar and the four bars of a menu whose captions are set.
    void Build(MenuTree& menu);

    const Toolbar& MenuBar() const { return bars_.front(); }
    // The bar of MnuVeiwToolBar(index); SubscriptRange outside 0 to 3.
    Toolbar& operator[](int index);
    // All five, the menu bar first: the default order.
    const std::array<Toolbar, kCount + 1>& All() const noexcept { return bars_; }

  private:
    std::array<Toolbar, kCount + 1> bars_;
};

}  // namespace lithmark
