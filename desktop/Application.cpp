#include "desktop/Application.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStatusBar>
#include <QTimer>
#include <QTranslator>

#include "desktop/EnterKey.h"
#include "desktop/Icons.h"
#include "desktop/MainWindow.h"
#include "desktop/Palettes.h"
#include "desktop/QtHost.h"
#include "desktop/ScreenRoom.h"
#include "desktop/ThemeKeeper.h"
#include "desktop/WindowStyle.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageCodes.h"
#include "services/texts/LanguageTexts.h"
#include "ui/frame/MDITools.h"

namespace lithmark {

namespace {

constexpr double kLeastPointSize = 10;

// The words of Qt's own dialogs (files, printing) in the language of the program, where the system has them.
void UseQtTexts(QApplication& application, Language language) {
    const QString code = QString::fromLatin1(PublicLanguageCode(language));
    auto* translator = new QTranslator(&application);
    if (translator->load(QStringLiteral("qtbase_") + code, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        application.installTranslator(translator);
}

// The one path that the command line may name; a path with blanks that came in pieces is put together again.
std::string PathOf(const QStringList& arguments) {
    return arguments.mid(1).join(QLatin1Char(' ')).toStdString();
}

}  // namespace

void PrepareApplication(QApplication& application) {
    application.setApplicationName(QString::fromStdString(kApplicationTitle));
    application.setApplicationVersion(QStringLiteral(LITHMARK_VERSION));
    application.setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new WindowStyle);
    QFont font = QApplication::font();
    if (font.pointSizeF() < kLeastPointSize) font.setPointSizeF(kLeastPointSize);
    QApplication::setFont(font);
    QApplication::setPalette(PaletteOf(Theme::Light));
    application.installEventFilter(new KeepsOnScreen(&application));
    application.installEventFilter(new EnterClicks(&application));
    QApplication::setWindowIcon(ProgramIcon());
    SharedServices().DecimalSign = QLocale::system().decimalPoint() == QLatin1String(",") ? ',' : '.';
}

Language SystemLanguage() {
    switch (QLocale::system().language()) {
        case QLocale::German:
            return Language::German;
        case QLocale::Arabic:
            return Language::Arabic;
        default:
            return Language::English;
    }
}

int RunDesktop(int argc, char** argv) {
    QApplication application(argc, argv);
    PrepareApplication(application);
    QtHost host;
    SetCurrentHost(&host);
    int code = 0;
    {
        MDITools frame;
        MainWindow window(frame);
        ThemeKeeper theme(SessionBus());
        window.OnEnd = [] { QApplication::exit(0); };
        window.OnTheme = [&theme](ThemeChoice choice) { theme.Choose(choice); };
        host.OpenProject = [&window, &frame](const std::string& path) {
            QTimer::singleShot(0, &window, [&frame, path] { frame.OpenListed(path); });
        };
        frame.SetWindow(&window);
        host.SetFrame(&window);
        host.StatusNotice = [&window](const QString& notice) { window.ShowNotice(notice); };
        host.OpenExample = [&frame](const std::string& name) { frame.OpenExample(name); };
        const std::string path = PathOf(QApplication::arguments());
        frame.Start(path, SystemLanguage());
        UseQtTexts(application, LanguageTexts().Current());
        if (!path.empty() && !frame.ProjectOpen())
            window.statusBar()->showMessage(QString::fromStdString(Text(903021_text, {{"|1", path}})));
        if (!frame.Ended) code = QApplication::exec();
        host.StatusNotice = nullptr;
        host.OpenExample = nullptr;
        host.OpenProject = nullptr;
        frame.SetWindow(nullptr);
    }
    SetCurrentHost(nullptr);
    return code;
}

}  // namespace lithmark
