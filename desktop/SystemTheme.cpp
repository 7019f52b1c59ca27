#include "desktop/SystemTheme.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>

namespace lithmark {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop"),
              kPath = QStringLiteral("/org/freedesktop/portal/desktop"),
              kInterface = QStringLiteral("org.freedesktop.portal.Settings"),
              kGroup = QStringLiteral("org.freedesktop.appearance"), kKey = QStringLiteral("color-scheme");
constexpr uint kPrefersDark = 1;

// The portal wraps a value twice.
QVariant Unwrapped(QVariant value) {
    while (value.userType() == qMetaTypeId<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
    return value;
}

}  // namespace

SystemTheme::SystemTheme(const QDBusConnection& bus) {
    if (!bus.isConnected()) return;
    // From whoever it comes: the portal may be started later, or anew, and be another one on the bus then.
    QDBusConnection(bus).connect(QString(), kPath, kInterface, QStringLiteral("SettingChanged"), this,
                                 SLOT(SettingChanged(QDBusMessage)));
    QDBusMessage question = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
    question.setArguments({kGroup, kKey});
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QVariant> reply = *answer;
        if (!reply.isError()) Take(reply.value());
    });
}

void SystemTheme::SettingChanged(const QDBusMessage& signal) {
    const QVariantList told = signal.arguments();
    if (told.size() == 3 && told[0].toString() == kGroup && told[1].toString() == kKey) Take(told[2]);
}

void SystemTheme::Take(const QVariant& scheme) {
    const Theme theme = Unwrapped(scheme).toUInt() == kPrefersDark ? Theme::Dark : Theme::Light;
    if (theme == now_) return;
    now_ = theme;
    if (OnChange) OnChange();
}

QDBusConnection SessionBus() {
    const bool named = !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS");
    const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    if (named || QFileInfo::exists(socket)) return QDBusConnection::sessionBus();
    return QDBusConnection(QStringLiteral("none"));
}

}  // namespace lithmark
