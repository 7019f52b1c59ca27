// The manual in the program: F1 shows the page in the language, with its pictures, and every link leads somewhere.
#include <gtest/gtest.h>

#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <filesystem>
#include <regex>

#include "ScreenRun.h"
#include "desktop/ManualTopics.h"
#include "desktop/ManualWindow.h"
#include "support/Places.h"
#include "ui/frmConsolidation.h"
#include "ui/frmUnits.h"

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
    EXPECT_EQ(ManualPage("manual/pictures/raft.svg"), ReadBytes(kDocs / "manual/pictures/raft.svg"));
    EXPECT_EQ(ManualPage("7_7"), "");
}

TEST_F(ManualOnScreen, TopicsHavePagesInTheLanguage) {
    EXPECT_EQ(PageOfTopic("Titel"), "manual/en/index");
    EXPECT_EQ(PageOfTopic("2"), "manual/en/which-problem");
    EXPECT_EQ(PageOfTopic("7_2"), "project-files");
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

// Links of the pages lead to pages of the program; those to projects and to the sources to files that are there.
TEST_F(ManualOnScreen, EveryLinkLeadsSomewhere) {
    const std::regex link(R"(\]\(([^)\s]+)\))");
    int links = 0;
    for (const char* folder : {"manual/en", "manual/de", "manual/ar"})
        for (const auto& file : std::filesystem::directory_iterator(kDocs / folder)) {
            const std::string name = std::string(folder) + "/" + file.path().stem().string();
            const std::string text = ManualPage(name);
            ASSERT_FALSE(text.empty()) << name;
            for (std::sregex_iterator it(text.begin(), text.end(), link), end; it != end; ++it, ++links) {
                const std::string target = (*it)[1];
                if (!PageOfLink(name, target).empty()) continue;
                EXPECT_TRUE(std::filesystem::exists(file.path().parent_path() / target)) << name << ": " << target;
            }
        }
    EXPECT_GT(links, 100);
    EXPECT_EQ(PageOfLink("manual/en/problem-4", "problem-3.md#sketch"), "manual/en/problem-3#sketch");
    EXPECT_EQ(PageOfLink("manual/en/problem-4", "../../notices.md"), "notices");
    EXPECT_EQ(PageOfLink("notices", "#raft-tension"), "notices#raft-tension");
}

}  // namespace
}  // namespace lithmark::tests
