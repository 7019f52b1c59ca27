// The values of an answer as they are painted.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>

#include "desktop/answer/AnswerList.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark::tests {
namespace {

// The columns of pixels that differ from the ground, from the left, each by its height in ink.
std::vector<int> InkOf(const QImage& picture) {
    const QRgb ground = picture.pixel(0, 0);
    std::vector<int> columns;
    for (int x = 0; x < picture.width(); ++x) {
        int top = picture.height(), bottom = -1;
        for (int y = 0; y < picture.height(); ++y)
            if (picture.pixel(x, y) != ground) {
                top = std::min(top, y);
                bottom = y;
            }
        if (bottom >= 0) columns.push_back(bottom - top + 1);
    }
    return columns;
}

class AnswerListTest : public ::testing::Test {
  protected:
    ~AnswerListTest() override {
        LanguageTexts().SetCurrent(Language::English);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }
    // What stands in the column of values, of a list with one line.
    static QImage NumberIn(Language language, const std::string& text) {
        LanguageTexts().SetCurrent(language);
        const bool mirrored = language == Language::Arabic;
        AnswerList list(nullptr);
        list.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        const Answer answer{{{"Sigma_z", "Stress", text, "[kN/m²]", -8}}, {}, {}};
        list.ShowAnswer(&answer, nullptr, true, true);
        list.resize(400, 120);
        list.show();
        QApplication::processEvents();
        const QRect line = list.visualItemRect(list.item(0));
        const AnswerColumns& columns = list.Columns();
        constexpr int kPad = 4;
        const int begin = kPad + columns.Symbol;
        const int left = mirrored ? line.right() + 1 - begin - columns.Now : line.left() + begin;
        return list.viewport()->grab(QRect(left, line.top(), columns.Now, line.height())).toImage();
    }
};

// A dash is flat, a digit is not.
TEST_F(AnswerListTest, TheSignOfANegativeNumberStandsInFrontOfItInEveryLanguage) {
    for (const Language language : {Language::English, Language::German, Language::Arabic}) {
        SCOPED_TRACE(static_cast<int>(language));
        const std::vector<int> negative = InkOf(NumberIn(language, "-88"));
        ASSERT_GT(negative.size(), 6u);
        EXPECT_LT(negative[1], 4);
        EXPECT_GT(negative[negative.size() - 3], 5);
        EXPECT_GT(InkOf(NumberIn(language, "88"))[2], 5);
    }
}

// Above former values stand a word and a sign, with kept values beside them and without, and nothing moves for them.
TEST_F(AnswerListTest, FormerValuesAreCalledSo) {
    const Answer answer{{{"Sigma_z", "Stress", "63.5", "[kN/m²]", 63.5}}, {}, {}};
    for (const Answer* kept : {static_cast<const Answer*>(nullptr), &answer}) {
        AnswerList list(nullptr);
        list.resize(400, 120);
        list.show();
        const auto* head = list.findChild<QWidget*>(QStringLiteral("answerHead"));
        ASSERT_NE(head, nullptr);
        const auto shown = [&](bool present) {
            list.ShowAnswer(&answer, kept, present, true);
            QApplication::processEvents();
            return list.grab(head->geometry()).toImage();
        };
        const QImage now = shown(true);
        const AnswerColumns before = list.Columns();
        const QImage former = shown(false);
        const AnswerColumns& after = list.Columns();
        EXPECT_EQ(after.Now, before.Now);
        EXPECT_EQ(after.Symbol, before.Symbol);
        // The sign over the symbols, the word over the values.
        const QRect sign(0, 0, before.Symbol, head->height()), word(before.Symbol, 0, before.Now, head->height());
        EXPECT_NE(former.copy(sign), now.copy(sign));
        EXPECT_NE(former.copy(word), now.copy(word));
        EXPECT_EQ(shown(true), now);
        list.ShowAnswer(nullptr, nullptr, false, true);
        EXPECT_TRUE(list.Present()) << "nothing is of another input";
    }
}

}  // namespace
}  // namespace lithmark::tests
