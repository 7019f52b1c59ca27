// SystemTheme: whether the user's desktop asks for light or dark windows. The desktop portal's setting "color-scheme"
// is asked for without waiting, and its signal is followed. A desktop that says nothing has light ones.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <functional>

#include "render/drawings/Inks.h"

namespace lithmark {

class SystemTheme : public QObject {
    Q_OBJECT

  public:
    // Asks as soon as it is made; a bus that is not connected is a desktop that says nothing.
    explicit SystemTheme(const QDBusConnection& bus);

    Theme Now() const { return now_; }
    // The desktop asks for others than before.
    std::function<void()> OnChange;

  private slots:
    // Group, key, value.
    void SettingChanged(const QDBusMessage& signal);

  private:
    void Take(const QVariant& scheme);

    Theme now_ = Theme::Light;
};

// The bus of the user's session; one that is not connected where there is none, without starting any.
QDBusConnection SessionBus();

}  // namespace lithmark
