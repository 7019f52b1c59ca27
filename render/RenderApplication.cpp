#include "render/RenderApplication.h"

#include <QApplication>

namespace lithmark {

void EnsureRenderApplication() {
    if (QCoreApplication::instance()) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // A tool for scripts says nothing but its own line; what Qt remarks about the session is no concern of its user.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static int argc = 1;
    static char name[] = "lithmark";
    static char* argv[] = {name, nullptr};
    // Never deleted: pictures may be drawn until the process ends.
    [[maybe_unused]] static const QApplication* const application = new QApplication(argc, argv);
}

}  // namespace lithmark
