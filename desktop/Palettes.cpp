#include "desktop/Palettes.h"

namespace lithmark {

QPalette PaletteOf(Theme theme) {
    const auto ink = [theme](Ink of) { return ColourOf(of, theme); };
    const bool dark = theme == Theme::Dark;
    const QColor window = ink(Ink::Window), base = ink(Ink::Base);
    const QColor button = dark ? window.lighter(125) : window;
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, const QColor& colour) { palette.setColor(role, colour); };
    set(QPalette::Window, window);
    set(QPalette::Base, base);
    set(QPalette::AlternateBase, window);
    set(QPalette::ToolTipBase, base);
    set(QPalette::Button, button);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        set(role, ink(Ink::Text));
    set(QPalette::BrightText, ink(Ink::Error));
    set(QPalette::PlaceholderText, ink(Ink::Hint));
    set(QPalette::Highlight, ink(Ink::Selection));
    set(QPalette::HighlightedText, ink(Ink::OnSelection));
    set(QPalette::Link, ink(Ink::Link));
    set(QPalette::LinkVisited, ink(Ink::Link));
    set(QPalette::Light, button.lighter(dark ? 120 : 105));
    set(QPalette::Midlight, button.lighter(dark ? 110 : 102));
    set(QPalette::Mid, ink(Ink::Grid));
    set(QPalette::Dark, ink(Ink::Edge));
    set(QPalette::Shadow, dark ? QColor(Qt::black) : ink(Ink::Edge));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                           QPalette::PlaceholderText, QPalette::Link, QPalette::LinkVisited})
        palette.setColor(QPalette::Disabled, role, ink(Ink::Hint));
    palette.setColor(QPalette::Disabled, QPalette::Base, window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, ink(Ink::Grid));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, ink(Ink::Text));
    return palette;
}

}  // namespace lithmark
