// Up, Down and the page keys step the digit left of the cursor.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

#include "../ui/FormTest.h"
#include "desktop/FormView.h"
#include "desktop/NumberSteps.h"
#include "ui/frmstress.h"

namespace lithmark::tests {
namespace {

std::string Stepped(const char* text, int cursor, int steps, char decimalSign = '.') {
    const auto result = StepNumber(QString::fromLatin1(text), cursor, steps, QLatin1Char(decimalSign));
    if (!result) return "nothing";
    QString shown = result->Text;
    return shown.insert(result->Cursor, QLatin1Char('|')).toStdString();
}

TEST(NumberSteps, TheDigitLeftOfTheCursorGoesUpAndDown) {
    EXPECT_EQ(Stepped("120.0", 5, 1), "120.1|");
    EXPECT_EQ(Stepped("120.0", 4, 1), "121.|0");
    EXPECT_EQ(Stepped("120.0", 3, 1), "121|.0");
    EXPECT_EQ(Stepped("120.0", 1, -1), "0|20.0");
    EXPECT_EQ(Stepped("120.0", 0, 1), "2|20.0");
    EXPECT_EQ(Stepped("120", 3, 10), "130|");
    EXPECT_EQ(Stepped("0,25", 4, 10, ','), "0,35|");
}

TEST(NumberSteps, AStepCarriesAndPassesZero) {
    EXPECT_EQ(Stepped("99", 2, 1), "100|");
    EXPECT_EQ(Stepped("0.95", 3, 1), "1.0|5");
    EXPECT_EQ(Stepped("100", 3, -1), "99|");
    EXPECT_EQ(Stepped("0.2", 3, -10), "-0.8|");
    EXPECT_EQ(Stepped("-0.8", 4, 10), "0.2|");
    EXPECT_EQ(Stepped("-5", 2, 1), "-4|");
}

TEST(NumberSteps, WhatIsNoPlainNumberStays) {
    for (const char* text : {"", "-", ".", "1e5", "abc", "1.2.3", "1 0", "1234567890123456"})
        EXPECT_EQ(Stepped(text, 1, 1), "nothing") << text;
    EXPECT_EQ(Stepped("1,5", 3, 1, '.'), "nothing");
}

class NumberStepsInAWindow : public FormTest {};

TEST_F(NumberStepsInAWindow, KeysStepAndTheFormFollows) {
    frmstress form;
    form.Load();
    FormView view(form, nullptr);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    auto* box = view.findChild<QLineEdit*>("txt_A");
    box->setFocus();
    box->setText("4.00");
    box->setCursorPosition(1);
    QTest::keyClick(box, Qt::Key_Up);
    EXPECT_EQ(form.txt_A.Text, "5.00");
    QTest::keyClick(box, Qt::Key_PageUp);
    EXPECT_EQ(form.txt_A.Text, "15.00");
    QTest::keyClick(box, Qt::Key_Down);
    QTest::keyClick(box, Qt::Key_PageDown);
    EXPECT_EQ(form.txt_A.Text, "4.00");
    EXPECT_EQ(box->cursorPosition(), 1);
}

}  // namespace
}  // namespace lithmark::tests
