// The small habits of the windows: colours as the desktop asks for them, the splash, where the focus is, the list of
// files, a report without a word processor.
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QFileDialog>
#include <QProcess>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>
#include <filesystem>

#include "ScreenRun.h"
#include "desktop/Palettes.h"
#include "desktop/SplashView.h"
#include "desktop/ThemeKeeper.h"
#include "support/Matchers.h"
#include "support/Variable.h"
#include "ui/frmSplash.h"

namespace lithmark::tests {
namespace {

// --- light and dark ---

// A bus of the test's own with a settings portal on it.
class Portal : public QDBusVirtualObject {
  public:
    Portal() {
        bus_.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address=1")});
        if (bus_.waitForStarted() && bus_.waitForReadyRead()) Address = QString::fromUtf8(bus_.readLine()).trimmed();
        QDBusConnection own = QDBusConnection::connectToBus(Address, kName);
        own.registerVirtualObject(QStringLiteral("/org/freedesktop/portal/desktop"), this);
        Up = own.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    ~Portal() override {
        QDBusConnection::disconnectFromBus(kName);
        bus_.terminate();
        bus_.waitForFinished();
    }
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.member() != QLatin1String("Read")) return false;
        Asked.push_back(message.arguments().at(0).toString() + QLatin1Char(' ') + message.arguments().at(1).toString());
        const QVariant inner = QVariant::fromValue(QDBusVariant(QVariant::fromValue(Scheme)));
        connection.send(message.createReply(QVariant::fromValue(QDBusVariant(inner))));
        return true;
    }
    void Change(const char* group, uint scheme) {
        QDBusMessage signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
                                                         QStringLiteral("org.freedesktop.portal.Settings"),
                                                         QStringLiteral("SettingChanged"));
        signal << QString::fromLatin1(group) << QStringLiteral("color-scheme")
               << QVariant::fromValue(QDBusVariant(QVariant::fromValue(scheme)));
        QDBusConnection(kName).send(signal);
    }

    QString Address;
    bool Up = false;
    uint Scheme = 1;
    QStringList Asked;

  private:
    const QString kName = QStringLiteral("portal");
    QProcess bus_;
};

class ThemeTest : public ::testing::Test {
  protected:
    ThemeTest() { QApplication::setPalette(PaletteOf(Theme::Light)); }
    ~ThemeTest() override {
        QDBusConnection::disconnectFromBus(QStringLiteral("program"));
        QApplication::setPalette(PaletteOf(Theme::Light));
    }
    static Theme Shown() { return ThemeOf(QApplication::palette()); }
    static bool Becomes(Theme theme) {
        return QTest::qWaitFor([theme] { return Shown() == theme; });
    }
};

TEST_F(ThemeTest, TheDesktopsWishIsAskedForAndFollowed) {
    Portal portal;
    ASSERT_TRUE(portal.Up);
    ThemeKeeper keeper(QDBusConnection::connectToBus(portal.Address, QStringLiteral("program")));
    EXPECT_EQ(Shown(), Theme::Light);  // nobody has waited for the answer
    EXPECT_TRUE(Becomes(Theme::Dark));
    EXPECT_EQ(portal.Asked, QStringList{"org.freedesktop.appearance color-scheme"});
    portal.Change("org.freedesktop.appearance", 2);
    EXPECT_TRUE(Becomes(Theme::Light));
    portal.Change("org.freedesktop.appearance", 1);
    EXPECT_TRUE(Becomes(Theme::Dark));
    portal.Change("org.freedesktop.appearance", 0);  // no wish
    EXPECT_TRUE(Becomes(Theme::Light));
    portal.Change("org.example.other", 1);
    QTest::qWait(50);
    EXPECT_EQ(Shown(), Theme::Light);
}

TEST_F(ThemeTest, AChoiceGoesBeforeTheDesktopsWish) {
    Portal portal;
    ASSERT_TRUE(portal.Up);
    ThemeKeeper keeper(QDBusConnection::connectToBus(portal.Address, QStringLiteral("program")));
    keeper.Choose(ThemeChoice::Light);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !portal.Asked.isEmpty(); }));
    QTest::qWait(50);
    EXPECT_EQ(Shown(), Theme::Light);
    keeper.Choose(ThemeChoice::System);
    EXPECT_EQ(Shown(), Theme::Dark);
    keeper.Choose(ThemeChoice::Dark);
    portal.Change("org.freedesktop.appearance", 2);
    QTest::qWait(50);
    EXPECT_EQ(Shown(), Theme::Dark);
}

TEST_F(ThemeTest, SilenceMeansLight) {
    QApplication::setPalette(PaletteOf(Theme::Dark));
    ThemeKeeper keeper(QDBusConnection(QStringLiteral("no such bus")));
    EXPECT_EQ(Shown(), Theme::Light);
    const Variable address("DBUS_SESSION_BUS_ADDRESS"), runtime("XDG_RUNTIME_DIR");
    address.Unset();
    runtime.Unset();
    EXPECT_FALSE(SessionBus().isConnected());
}

// --- windows ---

class HabitsTest : public ::testing::Test {
  protected:
    HabitsTest() {
        std::filesystem::create_directory(folder_ / "settings");
        std::filesystem::create_directory(folder_ / "bin");
    }
    std::string Settings() const { return folder_ / "settings/"; }
    void WriteProgram(const char* name, const std::string& script) const {
        WriteBytes(folder_ / ("bin/" + std::string(name)), "#!/bin/sh\n" + script + "\n");
        std::filesystem::permissions(folder_ / ("bin/" + std::string(name)), std::filesystem::perms::owner_all);
    }
    TestFolder folder_;
};

TEST_F(HabitsTest, AKeyEndsTheSplashWhateverHasTheFocus) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_A}) {
        frmSplash form([] { return 0LL; });
        QLineEdit other;
        other.show();
        SplashView splash(form);
        splash.show();
        other.setFocus();
        QTest::keyClick(&other, key);
        EXPECT_TRUE(form.Unloaded());
        EXPECT_FALSE(splash.isVisible());
        EXPECT_TRUE(other.text().isEmpty());  // the key was for the splash
        QTest::keyClick(&other, Qt::Key_B);
        EXPECT_EQ(other.text(), "b");
    }
}

TEST_F(HabitsTest, CompanyAndLanguageHaveTheFocusInTheirFirstField) {
    ScreenRun run(Settings());
    run.Start();
    run.In("companyLines", [](QWidget& dialog) {
        EXPECT_EQ(dialog.focusWidget()->objectName(), "txtFirma1");
        dialog.close();
    });
    CurrentHost().EditCompanyLines({"Baugrund Nord", "Hamburg"});
    run.In("languageDialog", [](QWidget& dialog) {
        const auto* option = qobject_cast<QRadioButton*>(dialog.focusWidget());
        ASSERT_NE(option, nullptr);
        EXPECT_TRUE(option->isChecked());
        dialog.close();
    });
    CurrentHost().ChooseLanguage(Language::German);
}

TEST_F(HabitsTest, TheListOfFilesTellsProblemAndOrderAndOpensOnADoubleClick) {
    WriteBytes(Settings() + "Crane.PO3", "Version 9\r\n1\r\n0\r\n");
    WriteBytes(Settings() + "Crane.AUF", "GT-2026-01\r\nD\r\nP\r\n");
    WriteBytes(Settings() + "Silo.PO3", "Version 9\r\n9\r\n0\r\n");
    ScreenRun run(Settings());
    run.Start();
    std::vector<std::string> opened;
    auto& host = dynamic_cast<QtHost&>(CurrentHost());
    host.OpenProject = [&](const std::string& path) { opened.push_back(path); };
    run.In("fileListWindow", [](QWidget& window) {
        auto& table = Child<QTableWidget>(window, "fileList");
        ASSERT_EQ(table.rowCount(), 2);
        EXPECT_EQ(table.item(0, 1)->text(), "[1] Stresses in soil");
        EXPECT_EQ(table.item(0, 2)->text(), "GT-2026-01");
        EXPECT_EQ(table.item(1, 2)->text(), "");
        const QRect row = table.visualItemRect(table.item(0, 0));
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, row.center());
        QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, row.center());
    });
    run.Menu("mnuFileList");
    EXPECT_EQ(opened, std::vector<std::string>{Settings() + "Crane.PO3"});
    run.In("fileListWindow", [](QWidget& window) { window.close(); });
    run.Menu("mnuFileList");
    EXPECT_EQ(opened.size(), 1u);  // looked at only
}

// Where no program is set up for the document, the report can be saved in the place of an error.
TEST_F(HabitsTest, WithoutAWordProcessorTheReportIsOfferedToBeSaved) {
    const Variable path("PATH");
    path.Set(folder_ / "bin");
    WriteProgram("xdg-mime", "exit 0");
    WriteProgram("xdg-open", "exit 3");
    ScreenRun run(Settings());
    run.Start();
    Session.WorkName = "Crane";
    Session.WorkDir = folder_.Dir();
    bool offered = false;
    run.In("QFileDialog", [&](QWidget& dialog) {
        offered = true;
        EXPECT_THAT(dynamic_cast<QFileDialog&>(dialog).selectedFiles().value(0).toStdString(), HasSubstr("Crane"));
        dialog.close();
    });
    CurrentHost().OpenWordProcessor("Report\r\n", "DejaVu Sans Mono", 8, false);
    EXPECT_TRUE(offered);
}

TEST_F(HabitsTest, AWordProcessorGetsTheReport) {
    const Variable path("PATH");
    path.Set(folder_ / "bin");
    WriteProgram("xdg-mime", "echo writer.desktop");
    WriteProgram("xdg-open", "echo \"$1\" > '" + (folder_ / "opened.tmp") + "'\n/bin/mv '" + (folder_ / "opened.tmp") +
                                 "' '" + (folder_ / "opened") + "'");
    ScreenRun run(Settings());
    run.Start();
    CurrentHost().OpenWordProcessor("Report\r\n", "DejaVu Sans Mono", 8, false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(folder_ / "opened"); }));
    std::string file = ReadBytes(folder_ / "opened");
    file.pop_back();
    EXPECT_THAT(ReadBytes(file), HasSubstr("Report"));
    std::filesystem::remove_all(std::filesystem::path(file).parent_path());
}

}  // namespace
}  // namespace lithmark::tests
