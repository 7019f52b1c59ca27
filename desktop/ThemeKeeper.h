// ThemeKeeper: the palette of all windows by the user's choice and, where that leaves it to the system, the desktop's.
#pragma once

#include "desktop/SystemTheme.h"
#include "ui/frame/Theme.h"

namespace lithmark {

class ThemeKeeper {
  public:
    explicit ThemeKeeper(const QDBusConnection& bus);
    void Choose(ThemeChoice choice);

  private:
    void Apply() const;

    SystemTheme system_;
    ThemeChoice choice_ = ThemeChoice::System;
};

}  // namespace lithmark
