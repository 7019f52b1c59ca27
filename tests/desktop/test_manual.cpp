// The manual in the program: F1 shows the page in the language, with its pictures, and every link leads somewhere.
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <filesystem>
#include <regex>

#include "ScreenRun.h"
#include "desktop/ManualTopics.h"
#include "desktop/ManualWindow.h"
#include "support/Matchers.h"
#include "support/Places.h"
#include "support/Variable.h"
#include "ui/frmConsolidation.h"
#include "ui/frmUnits.h"
#include "ui/frmstress.h"

namespace lithmark::tests {
namespace {

const std::filesystem::path kDocs = SourceDir() / "docs";

QString FirstHeading(QWidget& manual) {
    return Child<QTextBrowser>(manual, "manualPage").document()->begin().text();
}

class ManualOnScreen : public testing::Test {
  protected:
    // What F1 in a form shows: the page's first line.
    template <typename F>
    QString HeadingBehindF1(Language language, int problem) {
        ScreenRun run(settings_.Dir(), {}, language);
        run.Start();
        LanguageTexts().SetCurrent(language);
        Session.ProblemType = problem;
        QString heading;
        F form;
        run.In(form.Name, [&](QWidget& dialog) {
            run.In("manualWindow", [&](QWidget& manual) {
                heading = FirstHeading(manual);
                ClickOn(manual, "cmdok");
            });
            QTest::keyClick(&dialog, Qt::Key_F1);
            dialog.close();
        });
        CurrentHost().ShowForm(form);
        return heading;
    }
    TestFolder settings_;
};

TEST_F(ManualOnScreen, F1ShowsThePageOfTheProblemInTheLanguage) {
    EXPECT_EQ(HeadingBehindF1<frmConsolidation>(Language::English, 4),
              QStringLiteral("Problem 4: Consolidation settlement"));
    EXPECT_EQ(HeadingBehindF1<frmConsolidation>(Language::German, 4),
              QStringLiteral("Aufgabe 4: Konsolidationssetzung"));
    EXPECT_EQ(HeadingBehindF1<frmConsolidation>(Language::Arabic, 4), QStringLiteral("كلمات البرنامج"));
    EXPECT_EQ(HeadingBehindF1<frmUnits>(Language::German, 4), QStringLiteral("Einstellungsdateien, Zeile für Zeile"));
}

TEST_F(ManualOnScreen, PicturesAreShownAndTablesHaveLines) {
    for (int problem = 1; problem <= 10; ++problem) {
        ManualWindow window(nullptr, "manual/de/problem-" + std::to_string(problem));
        window.show();
        const QTextDocument& page = *Child<QTextBrowser>(window, "manualPage").document();
        int pictures = 0, tables = 0;
        for (QTextBlock block = page.begin(); block.isValid(); block = block.next())
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                const QTextImageFormat image = piece.fragment().charFormat().toImageFormat();
                if (!image.isValid()) continue;
                ++pictures;
                EXPECT_FALSE(page.resource(QTextDocument::ImageResource, QUrl(image.name())).value<QImage>().isNull())
                    << image.name().toStdString();
            }
        for (QTextFrame* frame : page.rootFrame()->childFrames()) tables += qobject_cast<QTextTable*>(frame) != nullptr;
        EXPECT_GE(pictures, 1) << problem;
        EXPECT_GE(tables, 3) << problem;
    }
}

TEST_F(ManualOnScreen, PagesAreThoseOfTheDocumentation) {
    for (const char* name : {"notices", "manual/de/notices", "manual/ar/notices", "manual", "raft-theory",
                             "manual/en/problem-1", "manual/ar/words"})
        EXPECT_EQ(ManualPage(name), ReadBytes(kDocs / (std::string(name) + ".md"))) << name;
    EXPECT_EQ(ManualPage("changes"), ReadBytes(SourceDir() / "CHANGELOG.md"));
    EXPECT_EQ(ManualPage("manual/pictures/raft.svg"), ReadBytes(kDocs / "manual/pictures/raft.svg"));
    EXPECT_EQ(ManualPage("7_7"), "");
}

TEST_F(ManualOnScreen, TopicsHavePagesInTheLanguage) {
    EXPECT_EQ(PageOfTopic("Titel"), "manual/en/index");
    EXPECT_EQ(PageOfTopic("2"), "manual/en/which-problem");
    EXPECT_EQ(PageOfTopic("7_2"), "project-files");
    EXPECT_EQ(PageOfTopic("verda_new"), "changes");
    EXPECT_EQ(PageOfTopic("notices#raft-tension"), "notices#raft-tension");
    EXPECT_EQ(PageOfTopic("no such topic"), "");
    LanguageTexts().SetCurrent(Language::German);
    EXPECT_EQ(PageOfTopic("7_7"), "manual/de/settings-files");
    EXPECT_EQ(PageOfTopic("problem-7"), "manual/de/problem-7");
    EXPECT_EQ(PageOfTopic("notices#raft-tension"), "manual/de/notices#raft-tension");
    LanguageTexts().SetCurrent(Language::Arabic);
    EXPECT_EQ(PageOfTopic("problem-7"), "manual/ar/words#7");
    EXPECT_EQ(PageOfTopic("notices#raft-tension"), "manual/ar/notices#raft-tension");
    EXPECT_EQ(PageOfTopic("7_7"), "manual/en/settings-files");
    LanguageTexts().SetCurrent(Language::English);
}

TEST_F(ManualOnScreen, HeadingsBeginWhereThePagesLinesDo) {
    for (const auto& [page, direction] : {std::pair("notices#raft-tension", Qt::LeftToRight),
                                          std::pair("manual/ar/notices#raft-tension", Qt::RightToLeft)}) {
        ManualWindow window(nullptr, page);
        window.show();
        const QTextBlock heading = Child<QTextBrowser>(window, "manualPage").textCursor().block();
        EXPECT_EQ(heading.text(), QStringLiteral("raft-tension")) << page;
        EXPECT_EQ(heading.textDirection(), direction) << page;
    }
}

// The pages that the program brings along.
std::vector<std::string> Pages() {
    std::vector<std::string> pages = {"changes"};
    for (const auto& file : std::filesystem::recursive_directory_iterator(kDocs)) {
        std::filesystem::path name = std::filesystem::relative(file.path(), kDocs);
        if (name.extension() != ".md") continue;
        if (!ManualPage(name.replace_extension().string()).empty()) pages.push_back(name.string());
    }
    return pages;
}

std::vector<std::string> LinksOf(const std::string& text) {
    static const std::regex link(R"((^|[^!])\[[^\]]*\]\(([^)\s]+)\))");
    std::vector<std::string> links;
    for (std::sregex_iterator it(text.begin(), text.end(), link), end; it != end; ++it) links.push_back((*it)[2]);
    return links;
}

// In the files every link leads to something that is there; in the window to a page or to an example that opens.
TEST_F(ManualOnScreen, EveryLinkLeadsSomewhere) {
    int links = 0, examples = 0;
    EXPECT_GT(Pages().size(), 40u);
    for (const std::string& page : Pages()) {
        for (const std::string& link : LinksOf(ManualPage(page))) {
            if (!PageOfLink(page, link).empty() || link.starts_with("http")) continue;
            const std::string file = link.substr(0, link.find('#'));
            EXPECT_TRUE(std::filesystem::exists((kDocs / page).parent_path() / file)) << page << ": " << link;
        }
        for (const std::string& link : LinksOf(ShownPage(page))) {
            const std::string example = ExampleOfLink(page, link);
            EXPECT_TRUE(!example.empty() || !PageOfLink(page, link).empty()) << page << ": " << link;
            ++links;
            examples += example.empty() ? 0 : 1;
        }
    }
    EXPECT_GT(links, 200);
    EXPECT_GT(examples, 20);
    EXPECT_EQ(PageOfLink("manual/en/problem-4", "problem-3.md#sketch"), "manual/en/problem-3#sketch");
    EXPECT_EQ(PageOfLink("manual/en/problem-4", "../../notices.md"), "notices");
    EXPECT_EQ(PageOfLink("notices", "#raft-tension"), "notices#raft-tension");
    EXPECT_EQ(ExampleOfLink("manual/en/problem-4", "../../../examples/ClayUnderTank"), "ClayUnderTank");
    EXPECT_EQ(ExampleOfLink("manual/en/problem-4", "../../../examples/README.md"), "");
    EXPECT_EQ(ExampleOfLink("manual/en/problem-4", "../examples/ClayUnderTank"), "");
}

// From where a link has led, a key leads back to the line where one was.
TEST_F(ManualOnScreen, AKeyLeadsBackToTheFormerPage) {
    ManualWindow manual(nullptr, PageOfTopic("problem-4"));
    manual.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&manual));
    auto& browser = Child<QTextBrowser>(manual, "manualPage");
    auto& back = Child<QPushButton>(manual, "cmdBack");
    const std::string first = manual.Page();
    EXPECT_FALSE(back.isEnabled());
    QScrollBar& bar = *browser.verticalScrollBar();
    bar.setValue(bar.maximum() / 2);
    const int scrolled = bar.value();
    ASSERT_GT(scrolled, 0);
    emit browser.anchorClicked(QUrl(QStringLiteral("problem-3.md")));
    EXPECT_EQ(manual.Page(), "manual/en/problem-3");
    emit browser.anchorClicked(QUrl(QStringLiteral("problem-1.md")));
    QTest::keyClick(&browser, Qt::Key_Backspace);
    EXPECT_EQ(manual.Page(), "manual/en/problem-3");
    QTest::keyClick(&browser, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(manual.Page(), first);
    EXPECT_EQ(bar.value(), scrolled);
    EXPECT_FALSE(back.isEnabled());
    EXPECT_TRUE(manual.isVisible());
}

TEST_F(ManualOnScreen, WordsOfALinkThatLeadsOutStay) {
    EXPECT_THAT(ManualPage("verification/stress-point"), HasSubstr("[PointLoadStresses](../../tests/"));
    const std::string shown = ShownPage("verification/stress-point");
    EXPECT_THAT(shown, HasSubstr("PointLoadStresses"));
    EXPECT_THAT(shown, Not(HasSubstr("(../../tests/")));
    EXPECT_THAT(ShownPage("manual/de/problem-1"), StartsWith("# Aufgabe 1"));
}

void ClickOnLink(QWidget& manual, const QString& link) {
    auto& browser = Child<QTextBrowser>(manual, "manualPage");
    for (QTextBlock block = browser.document()->begin(); block.isValid(); block = block.next())
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            if (piece.fragment().charFormat().anchorHref() != link) continue;
            QTextCursor cursor(browser.document());
            cursor.setPosition(piece.fragment().position() + 2);
            browser.setTextCursor(cursor);
            browser.ensureCursorVisible();
            QTest::mouseClick(browser.viewport(), Qt::LeftButton, {}, browser.cursorRect(cursor).center());
            return;
        }
    ADD_FAILURE() << "no link " << link.toStdString();
}

class ExamplesOfTheManual : public ManualOnScreen {
  protected:
    ExamplesOfTheManual() {
        std::filesystem::create_directories(settings_ / "home/Documents");
        home_.Set(settings_ / "home");
    }
    std::string Copy(const std::string& name) const { return settings_ / ("home/Documents/Lithmark/" + name); }
    Variable home_{"HOME"}, config_{"XDG_CONFIG_HOME"};
    static constexpr const char* kLink = "../../../examples/PointLoad";
};

TEST_F(ExamplesOfTheManual, ALinkOpensACopy) {
    ScreenRun run(settings_.Dir());
    run.Start();
    config_.Unset();
    for (const std::string name : {"PointLoad", "PointLoad 2"}) {
        run.In("manualWindow", [](QWidget& manual) { ClickOnLink(manual, kLink); });
        SharedServices().ShowHelpTopic("problem-1");
        EXPECT_EQ(run.Window().windowTitle().toStdString(), "Lithmark - [" + name + "]");
        EXPECT_EQ(Session.DataDir, Copy(""));
        for (const char* ending : {".PO3", ".AUF", ".SSD"})
            EXPECT_EQ(ReadBytes(Copy(name + ending)),
                      ReadBytes(SourceDir() / "examples/PointLoad" / (std::string("PointLoad") + ending)));
    }
}

// What a dialog works on stays until it is closed.
TEST_F(ExamplesOfTheManual, NoneIsOpenedUnderADialog) {
    ScreenRun run(settings_.Dir());
    run.Start();
    Session.ProblemType = Problem::SoilStress;
    run.In("frmstress", [&](QWidget& dialog) {
        run.In("manualWindow", [&](QWidget& manual) {
            run.In("messageBox", [](QWidget& box) {
                EXPECT_TRUE(dynamic_cast<QMessageBox&>(box).text().startsWith(QStringLiteral("The example PointLoad")));
                box.close();
            });
            ClickOnLink(manual, kLink);
            EXPECT_TRUE(manual.isVisible());
            ClickOn(manual, "cmdok");
        });
        QTest::keyClick(&dialog, Qt::Key_F1);
        dialog.close();
    });
    frmstress form;
    CurrentHost().ShowForm(form);
    EXPECT_FALSE(run.Frame().ProjectOpen());
    EXPECT_FALSE(std::filesystem::exists(settings_ / "home/Documents/Lithmark"));
}

}  // namespace
}  // namespace lithmark::tests
