// What a colour tells follows a change between light and dark windows.
#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

#include "../ui/FormTest.h"
#include "ScreenRun.h"
#include "desktop/BoxMark.h"
#include "desktop/EditGrid.h"
#include "desktop/FormView.h"
#include "desktop/LinkList.h"
#include "desktop/Palettes.h"
#include "desktop/ProjectView.h"
#include "desktop/WidgetInk.h"
#include "ui/frmNumberFormats.h"
#include "ui/frmstress.h"

namespace lithmark::tests {
namespace {

using ::testing::HasSubstr;

class ThemeChangeTest : public FormTest {
  protected:
    ThemeChangeTest() { Turn(Theme::Light); }
    ~ThemeChangeTest() override { Turn(Theme::Light); }

    static void Turn(Theme theme) {
        QApplication::setPalette(PaletteOf(theme));
        QCoreApplication::processEvents();
    }
    static void Show(QWidget& window) {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
    static std::string WordsInk(const QWidget& widget) {
        return widget.palette().color(QPalette::WindowText).name().toStdString();
    }
    static std::string InkOf(Ink ink, Theme theme) { return ColourOf(ink, theme).name().toStdString(); }
};

TEST_F(ThemeChangeTest, TheMarkOfABox) {
    QWidget window;
    QLineEdit box(&window);
    Show(window);
    ShowMark(box, "more than 0.5");
    EXPECT_THAT(box.styleSheet().toStdString(), HasSubstr(InkOf(Ink::Error, Theme::Light)));
    for (const Theme theme : {Theme::Dark, Theme::Light}) {
        Turn(theme);
        EXPECT_THAT(box.styleSheet().toStdString(), HasSubstr(InkOf(Ink::Error, theme)));
        EXPECT_EQ(box.toolTip(), QStringLiteral("more than 0.5"));
    }
    // A mark that is gone does not come back.
    ShowMark(box, "");
    Turn(Theme::Dark);
    EXPECT_TRUE(box.styleSheet().isEmpty());
}

TEST_F(ThemeChangeTest, WordsInAnInkOfTheirOwn) {
    QWidget window;
    QLabel words(&window);
    Show(window);
    SetInk(words, Ink::Error);
    EXPECT_EQ(WordsInk(words), InkOf(Ink::Error, Theme::Light));
    Turn(Theme::Dark);
    EXPECT_EQ(WordsInk(words), InkOf(Ink::Error, Theme::Dark));
    SetInk(words, Ink::Text);
    EXPECT_EQ(WordsInk(words), InkOf(Ink::Text, Theme::Dark));
    Turn(Theme::Light);
    EXPECT_EQ(WordsInk(words), InkOf(Ink::Text, Theme::Light));
}

TEST_F(ThemeChangeTest, TheReasonBelowTheFields) {
    frmstress form;
    Session.ProblemType = 1;
    form.Load();
    FormView view(form, nullptr);
    Show(view);
    for (const Theme theme : {Theme::Dark, Theme::Light}) {
        Turn(theme);
        EXPECT_EQ(WordsInk(Child<QLabel>(view, "reason")), InkOf(Ink::Error, theme));
    }
}

TEST_F(ThemeChangeTest, ACellInError) {
    TableEdit table;
    table.Columns = {{"t\n[1]\n[-]", TableEdit::Kind::Whole}, {"p\n[2]\n[%]", TableEdit::Kind::Real, 100, 0}};
    table.Rows = {{"1", "19"}, {"2", "420"}};
    TableEditing rows(table);
    EditGrid grid(rows, nullptr);
    grid.ShowRows();
    Show(grid);
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        Turn(theme);
        EXPECT_EQ(grid.item(1, 1)->foreground().color().name().toStdString(), InkOf(Ink::Error, theme));
        EXPECT_EQ(grid.item(0, 1)->foreground(), QBrush());
    }
    EXPECT_FALSE(rows.CanUndo()) << "a mark is no change";
}

TEST_F(ThemeChangeTest, LinksOfAList) {
    LinkList list(nullptr);
    list.ShowItems({"one", "two"});
    Show(list);
    for (const Theme theme : {Theme::Dark, Theme::Light}) {
        Turn(theme);
        for (int i = 0; i < list.count(); ++i)
            EXPECT_EQ(list.item(i)->foreground().color().name().toStdString(), InkOf(Ink::Link, theme));
    }
}

TEST_F(ThemeChangeTest, PicturesOfTheProjectPage) {
    ProjectView page(nullptr);
    ProjectSummary summary;
    summary.ProblemEntry = summary.ProblemType = 1;
    const auto picture = [&](const char* button) {
        page.Show(summary);
        return Child<QPushButton>(page, button).findChild<QLabel*>()->pixmap().toImage();
    };
    for (const char* button : {"projectCalculate", "projectData"}) {
        Turn(Theme::Light);
        const QImage light = picture(button);
        Turn(Theme::Dark);
        EXPECT_NE(picture(button), light) << button;
    }
}

TEST_F(ThemeChangeTest, WhatIsWrongWithAPattern) {
    frmNumberFormats formats;
    formats.Load();
    FormView view(formats, nullptr);
    Show(view);
    for (const Theme theme : {Theme::Dark, Theme::Light}) {
        Turn(theme);
        EXPECT_EQ(WordsInk(Child<QLabel>(view, "lblFault")), InkOf(Ink::Error, theme));
    }
}

}  // namespace
}  // namespace lithmark::tests
