// The dialog that asks where a document, a picture or a table goes: the folder that it offers.
#include <QComboBox>
#include <QFileDialog>
#include <filesystem>

#include "ScreenRun.h"
#include "desktop/SaveDialog.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

namespace fs = std::filesystem;

class SaveDialogTest : public ::testing::Test {
  protected:
    SaveDialogTest() {
        for (const char* name : {"settings", "crane", "silo", "crane/reports"}) fs::create_directory(folder_ / name);
        run_ = std::make_unique<ScreenRun>(folder_ / "settings/");
        run_->Start();
        Open("crane");
    }
    void Open(const std::string& name) const {
        Session.WorkDir = folder_ / (name + "/");
        Session.ProjectName = Session.WorkName = name;
    }
    // Saves under a name, or cancels without one; the folder that was offered.
    std::string Offered(const std::string& name = {}) {
        std::string offered;
        run_->In("QFileDialog", [&](QWidget& window) {
            offered = dynamic_cast<QFileDialog&>(window).directory().path().toStdString();
            if (name.empty()) {
                QTest::keyClick(&window, Qt::Key_Escape);
                return;
            }
            auto& box = Child<QLineEdit>(window, "fileNameEdit");
            box.setText(QString::fromStdString(folder_ / name));
            QTest::keyClick(&box, Qt::Key_Return);
        });
        const auto file = AskForFile(&run_->Window(), QStringLiteral("Save"), {{QStringLiteral("PDF"), "pdf"}});
        EXPECT_EQ(file.has_value(), !name.empty());
        return fs::relative(offered, folder_ / "").string();
    }
    static std::vector<std::string> BesideTheProgram() {
        std::vector<std::string> names;
        const std::string folder = QCoreApplication::applicationDirPath().toStdString();
        for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename());
        return names;
    }

    TestFolder folder_;
    std::unique_ptr<ScreenRun> run_;
};

TEST_F(SaveDialogTest, OffersTheFolderThatTheProjectsLastFileWentTo) {
    const std::vector<std::string> beside = BesideTheProgram();
    EXPECT_EQ(Offered("crane/reports/one"), "crane");
    EXPECT_EQ(Offered(), "crane/reports");
    EXPECT_EQ(Offered(), "crane/reports") << "a cancelled dialog changes nothing";
    Open("silo");
    EXPECT_EQ(Offered(), "silo");
    Open("crane");
    EXPECT_EQ(Offered("crane/two"), "crane/reports");
    EXPECT_EQ(Offered(), "crane");
    EXPECT_EQ(BesideTheProgram(), beside);
    EXPECT_THAT(ReadBytes(folder_ / "settings/settings.json"), Not(HasSubstr("one.pdf")));
}

// The name and the folders are paths, also in a window that runs from right to left.
TEST_F(SaveDialogTest, PathsRunFromLeftToRight) {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    run_->In("QFileDialog", [](QWidget& window) {
        EXPECT_EQ(window.layoutDirection(), Qt::RightToLeft);
        EXPECT_EQ(Child<QLineEdit>(window, "fileNameEdit").layoutDirection(), Qt::LeftToRight);
        EXPECT_EQ(Child<QComboBox>(window, "lookInCombo").layoutDirection(), Qt::LeftToRight);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    EXPECT_FALSE(AskForFile(&run_->Window(), QStringLiteral("Save"), {{QStringLiteral("PDF"), "pdf"}}));
    for (const auto& ask : {std::function([] { return CurrentHost().ChooseFileToOpen("Open", "/", "*.PO3"); }),
                            std::function([] { return CurrentHost().BrowseFolder("/"); })}) {
        run_->In("QFileDialog", [](QWidget& window) {
            EXPECT_EQ(Child<QLineEdit>(window, "fileNameEdit").layoutDirection(), Qt::LeftToRight);
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        EXPECT_FALSE(ask());
    }
}

}  // namespace
}  // namespace lithmark::tests
