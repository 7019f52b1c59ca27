#include "desktop/ThemeKeeper.h"

#include <QApplication>

#include "desktop/Palettes.h"

namespace lithmark {

ThemeKeeper::ThemeKeeper(const QDBusConnection& bus) : system_(bus) {
    system_.OnChange = [this] { Apply(); };
    Apply();
}

void ThemeKeeper::Choose(ThemeChoice choice) {
    choice_ = choice;
    Apply();
}

void ThemeKeeper::Apply() const {
    Theme theme = choice_ == ThemeChoice::Dark ? Theme::Dark : Theme::Light;
    if (choice_ == ThemeChoice::System) theme = system_.Now();
    if (ThemeOf(QApplication::palette()) != theme) QApplication::setPalette(PaletteOf(theme));
}

}  // namespace lithmark
