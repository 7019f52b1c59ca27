// What the preview of the paper shows is what the paper will have: words from right to left keep their signs at their
// ends.
#include <gmock/gmock.h>

#include <QImage>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QTest>
#include <optional>

#include "../ui/FormTest.h"
#include "render/ReportDocument.h"

namespace lithmark::tests {
namespace {

class PreviewTest : public FormTest {
  protected:
    // The page of a report as the preview shows it.
    static QImage Page(const std::string& report, bool rightToLeft) {
        QPrinter printer(QPrinter::HighResolution);
        SetReportPage(printer);
        QPrintPreviewWidget pages(&printer);
        QObject::connect(&pages, &QPrintPreviewWidget::paintRequested, [&](QPrinter* target) {
            PaintReport(*target, report, ReportPaper(), "DejaVu Sans Mono", 14, rightToLeft);
        });
        pages.resize(1500, 1700);
        pages.show();
        pages.setZoomFactor(1.2);
        pages.updatePreview();
        QCoreApplication::processEvents();
        const QImage shown = pages.grab().toImage();
        QRect paper;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                if (shown.pixelColor(x, y) == QColor(Qt::white)) paper |= QRect(x, y, 1, 1);
        return shown.copy(paper.adjusted(4, 4, -4, -4));
    }
    static bool Ink(const QImage& page, int x, int y) { return qGray(page.pixel(x, y)) < 140; }
    // The rows of the first line under the rule of the head.
    static std::optional<QRect> FirstLine(const QImage& page) {
        bool ruled = false;
        int first = -1;
        for (int y = 0; y < page.height(); ++y) {
            int count = 0;
            for (int x = 0; x < page.width(); ++x) count += qGray(page.pixel(x, y)) < 225 ? 1 : 0;
            if (count > page.width() / 2) {
                ruled = true;
                continue;
            }
            if (!ruled) continue;
            if (count > 0 && first < 0) first = y;
            // Two dots of a colon have rows between them that are empty, but not so many.
            if (first >= 0 && count == 0 && y > first + 40) return QRect(0, first, page.width(), y - first);
        }
        return std::nullopt;
    }
    // What stands farthest to the left in a line: its columns.
    static QRect Leftmost(const QImage& page, const QRect& line) {
        const auto inked = [&](int x) {
            for (int y = line.top(); y <= line.bottom(); ++y)
                if (Ink(page, x, y)) return true;
            return false;
        };
        int from = line.left();
        while (from <= line.right() && !inked(from)) ++from;
        int to = from;
        while (to <= line.right() && inked(to)) ++to;
        return {from, line.top(), to - from, line.height()};
    }
    // How many spots stand above each other.
    static int Spots(const QImage& page, const QRect& columns) {
        int spots = 0;
        bool before = false;
        for (int y = columns.top(); y <= columns.bottom(); ++y) {
            bool ink = false;
            for (int x = columns.left(); x <= columns.right(); ++x) ink = ink || Ink(page, x, y);
            spots += ink && !before ? 1 : 0;
            before = ink;
        }
        return spots;
    }
};

// Two dots above each other and nothing else, at the left end.
TEST_F(PreviewTest, TheColonOfAnArabicWordStandsAtItsLeft) {
    StartIn(Language::Arabic);
    const QImage page = Page("المعطيات:\r\n", true);
    const auto line = FirstLine(page);
    ASSERT_TRUE(line.has_value());
    const QRect colon = Leftmost(page, *line);
    EXPECT_GT(colon.left(), page.width() / 2) << "the line begins at the right";
    EXPECT_EQ(Spots(page, colon), 2);
    EXPECT_LT(colon.width(), 12);
}

// The same look at a line that begins at the left, where the letter is the first.
TEST_F(PreviewTest, ALatinWordEndsWithItsColon) {
    const QImage page = Page("Data:\r\n", false);
    const auto line = FirstLine(page);
    ASSERT_TRUE(line.has_value());
    const QRect letter = Leftmost(page, *line);
    EXPECT_LT(letter.left(), page.width() / 2);
    EXPECT_EQ(Spots(page, letter), 1);
    EXPECT_GT(letter.width(), 5);
}

}  // namespace
}  // namespace lithmark::tests
