// A report on pages: head and foot, the lines on their columns, figures behind them.
#include <qcustomplot.h>

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPaintEngine>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "base/Utf8.h"
#include "render/DisplayLines.h"
#include "render/QtText.h"
#include "render/ReportDocument.h"
#include "render/ReportLines.h"
#include "render/SansFont.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr double kSideMm = 20, kTopMm = 12, kBottomMm = 10;
constexpr double kMmPerInch = 25.4, kPointsPerInch = 72, kFigureUnitsPerInch = 96;
// Everything is laid out in 1/600 inch, whatever dots the device has: fonts have whole sizes, and a screen's size would
// not be the paper's.
constexpr double kUnitsPerInch = 600, kUnitsPerPoint = kUnitsPerInch / kPointsPerInch;
constexpr double kLineSpacing = 1.09, kMarginPoints = 8;
constexpr double kCaptionSteps = 2.5, kGapSteps = 1.5;  // under a figure and above it, in lines of the report

class ReportPainter {
  public:
    ReportPainter(QPagedPaintDevice& device, const ReportPaper& paper, const std::string& fontName, double pointSize,
                  bool rightToLeft)
        : device_(device), paper_(paper), rightToLeft_(rightToLeft) {
        painter_.begin(&device);
        painter_.setMode(QCPPainter::pmVectorized);
        painter_.setMode(QCPPainter::pmNoCaching);
        const double dots = device.logicalDpiY() / kUnitsPerInch;
        painter_.scale(dots, dots);
        width_ = device.width() / dots;
        height_ = device.height() / dots;
        font_ = QFont(Q(fontName));
        font_.setStyleHint(QFont::Monospace);
        font_.setPixelSize(qRound(pointSize * kUnitsPerPoint));
        small_ = SansFont(kMarginPoints * kUnitsPerPoint);
        // A screen's letters are as wide as the paper's: none is fitted to the dots.
        font_.setHintingPreference(QFont::PreferNoHinting);
        small_.setHintingPreference(QFont::PreferNoHinting);
        smallStep_ = QFontMetricsF(small_).height() * 1.15;
        const auto mm = [](double length) { return length / kMmPerInch * kUnitsPerInch; };
        const double logo = LogoSize(paper.Logo).isEmpty() ? 0 : mm(11);
        const std::size_t headLines = std::max<std::size_t>({1, paper.HeadLines().size(), paper.Company.size()});
        headHeight_ = std::max(logo, static_cast<double>(headLines) * smallStep_);
        body_ = QRectF(0, headHeight_ + mm(6), width_, 0);
        body_.setBottom(height_ - smallStep_ - mm(5));
        step_ = QFontMetricsF(font_).height() * kLineSpacing;
    }

    std::vector<PaintedHeading> Paint(const std::string& report) {
        lines_ = ReportLinesOf(report);
        display_ = DisplayLines(lines_, rightToLeft_);
        FindScales();
        const std::vector<PageOfLines> pages =
            PagesOf(lines_, static_cast<std::size_t>(std::max(10.0, body_.height() / step_)));
        PlaceFigures(pages);
        pageCount_ = std::max(pages.size(), figures_.empty() ? 0 : figures_.back().Page + 1);
        for (std::size_t page = 0; page < pageCount_; ++page) {
            if (page > 0) device_.newPage();
            PaintMargins(page);
            if (page < pages.size()) PaintLines(pages[page]);
            for (std::size_t i = 0; i < figures_.size(); ++i)
                if (figures_[i].Page == page) PaintFigure(i);
        }
        return Headings(pages);
    }

  private:
    struct PlacedFigure {
        std::size_t Page;
        QRectF Area;  // of the drawing; its caption stands below
    };

    static double CellWidth(const QFont& font) { return QFontMetricsF(font).horizontalAdvance(QLatin1Char('0')); }

    // A table, or a line of text, that is wider than the page gets a smaller font, as a whole: its columns stay in
    // line.
    void FindScales() {
        scales_.assign(lines_.size(), 1);
        const double cell = CellWidth(font_);
        const auto fit = [&](std::size_t first, std::size_t end) {
            int cells = 1;
            for (std::size_t i = first; i < end; ++i) cells = std::max(cells, display_[i].Cells);
            const double scale = std::min(1.0, body_.width() / (cell * cells));
            std::fill(scales_.begin() + static_cast<std::ptrdiff_t>(first),
                      scales_.begin() + static_cast<std::ptrdiff_t>(end), scale);
        };
        for (std::size_t i = 0; i < lines_.size(); ++i) fit(i, i + 1);
        for (const TablePlace& table : TablesOf(lines_)) fit(table.Head, table.End);
    }

    void PaintLines(const PageOfLines& page) {
        double top = body_.top();
        for (std::size_t i = page.HeadFirst; i < page.HeadEnd; ++i, top += step_) PaintLine(i, top);
        for (std::size_t i = page.First; i < page.End; ++i, top += step_) PaintLine(i, top);
    }

    void PaintLine(std::size_t index, double top) {
        QFont font = font_;
        font.setPixelSize(static_cast<int>(font_.pixelSize() * scales_[index]));
        const double cell = CellWidth(font);
        painter_.setPen(Qt::black);
        for (const DisplayPiece& piece : display_[index].Pieces) {
            const double from = piece.Column * cell, width = piece.Cells * cell;
            const double left = rightToLeft_ ? body_.right() - from - width : body_.left() + from;
            // What is broader than its cells (a letter of another font) grows towards the end of the line.
            const bool atRight = rightToLeft_;
            PaintText({left, top, width, step_}, font, Q(piece.Text), atRight ? Qt::AlignRight : Qt::AlignLeft,
                      piece.RightToLeft);
        }
    }

    // A text on one line; wider than its area it goes over the side that it is not aligned to.
    void PaintText(const QRectF& area, const QFont& font, const QString& text, Qt::Alignment alignment,
                   bool rightToLeft) {
        QTextLayout layout(text, font);
        QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
        option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        option.setWrapMode(QTextOption::NoWrap);
        layout.setTextOption(option);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        if (!line.isValid()) return;
        line.setLineWidth(1e6);
        layout.endLayout();
        const double width = line.naturalTextWidth();
        double left = area.left();
        if (alignment & Qt::AlignRight) left = area.right() - width;
        if (alignment & Qt::AlignHCenter) left = area.center().x() - width / 2;
        const QPointF at(left - line.naturalTextRect().left(), area.top());
        // Glyphs stay where they are.
        if (IsRecorded(painter_))
            for (const QGlyphRun& run : layout.glyphRuns()) painter_.drawGlyphRun(at, run);
        else
            layout.draw(&painter_, at);
    }

    // A text as wide as its area at most, its end cut with dots.
    void PaintMarginText(const QRectF& area, const std::string& text, Qt::Alignment alignment) {
        const QString cut = QFontMetricsF(small_).elidedText(Q(text), Qt::ElideRight, area.width());
        PaintText(area, small_, cut, alignment, rightToLeft_);
    }

    void PaintMargins(std::size_t page) {
        const Qt::Alignment near = rightToLeft_ ? Qt::AlignRight : Qt::AlignLeft;
        const Qt::Alignment far = rightToLeft_ ? Qt::AlignLeft : Qt::AlignRight;
        const QSizeF logo =
            QSizeF(LogoSize(paper_.Logo)).scaled(body_.width() * 0.25, headHeight_, Qt::KeepAspectRatio);
        const double logoRoom = logo.isEmpty() ? 0 : logo.width() + smallStep_ / 2;
        QRectF head(body_.left(), 0, body_.width(), headHeight_);
        if (!logo.isEmpty()) {
            DrawLogoFile(painter_,
                         QRectF(rightToLeft_ ? head.left() : head.right() - logo.width(), 0, logo.width(), headHeight_),
                         paper_.Logo, rightToLeft_);
            if (rightToLeft_)
                head.setLeft(head.left() + logoRoom);
            else
                head.setRight(head.right() - logoRoom);
        }
        painter_.setPen(QColor(0x33, 0x33, 0x33));
        const double companyShare = paper_.Company.empty() ? 0 : 0.4;
        const auto rows = [&](const std::vector<std::string>& texts, double share, Qt::Alignment side) {
            QRectF row = head;
            row.setHeight(smallStep_);
            const double width = head.width() * share;
            if (side & Qt::AlignRight)
                row.setLeft(row.right() - width);
            else
                row.setRight(row.left() + width);
            for (const std::string& text : texts) {
                PaintMarginText(row, text, side);
                row.translate(0, smallStep_);
            }
        };
        rows(paper_.HeadLines(), 0.98 - companyShare, near);
        rows(paper_.Company, companyShare, far);
        painter_.setPen(QPen(QColor(0x88, 0x88, 0x88), 0.5 * kUnitsPerPoint));
        const double rule = headHeight_ + smallStep_ * 0.3, foot = height_ - smallStep_;
        painter_.drawLine(QPointF(body_.left(), rule), QPointF(body_.right(), rule));
        painter_.drawLine(QPointF(body_.left(), foot - smallStep_ * 0.3),
                          QPointF(body_.right(), foot - smallStep_ * 0.3));
        painter_.setPen(QColor(0x33, 0x33, 0x33));
        const double third = body_.width() / 3;
        const QRectF middle(body_.left() + third, foot, third, smallStep_);
        PaintMarginText(middle.translated(rightToLeft_ ? third : -third, 0), paper_.Date, near);
        PaintMarginText(middle, ReportPaper::PageText(std::to_string(page + 1), std::to_string(pageCount_)),
                        Qt::AlignHCenter);
        PaintMarginText(middle.translated(rightToLeft_ ? -third : third, 0), ReportPaper::Maker(), far);
    }

    // Under the text as long as there is room, then on pages of their own.
    void PlaceFigures(const std::vector<PageOfLines>& pages) {
        std::size_t page = pages.size() - 1;
        double top = body_.top() + static_cast<double>(pages.back().Count()) * step_;
        for (const ReportFigure& figure : paper_.Figures) {
            const double caption = kCaptionSteps * step_, gap = top > body_.top() ? kGapSteps * step_ : 0;
            const double units = kUnitsPerInch / kFigureUnitsPerInch;
            // Two of them have room on a page.
            const QSizeF most(body_.width(), (body_.height() - (2 * kCaptionSteps + kGapSteps) * step_) / 2 - 1);
            QSizeF size = QSizeF(figure.Size) * units;
            if (size.width() > most.width() || size.height() > most.height()) size.scale(most, Qt::KeepAspectRatio);
            if (top + gap + size.height() + caption > body_.bottom()) {
                ++page;
                top = body_.top();
            } else {
                top += gap;
            }
            figures_.push_back({page, QRectF(QPointF(body_.center().x() - size.width() / 2, top), size)});
            top += size.height() + caption;
        }
    }

    void PaintFigure(std::size_t index) {
        const ReportFigure& figure = paper_.Figures[index];
        const QRectF& area = figures_[index].Area;
        painter_.save();
        painter_.translate(area.topLeft());
        painter_.scale(area.width() / figure.Size.width(), area.height() / figure.Size.height());
        painter_.setClipRect(QRectF(QPointF(0, 0), QSizeF(figure.Size)));
        DrawOnPage(painter_, figure.Size, figure.Paint);
        painter_.restore();
        painter_.setPen(Qt::black);
        QFont font = small_;
        font.setPixelSize(qRound(kMarginPoints * 1.1 * kUnitsPerPoint));
        PaintText({body_.left(), area.bottom() + 0.5 * step_, body_.width(), step_}, font, Q(paper_.CaptionOf(index)),
                  Qt::AlignHCenter, rightToLeft_);
    }

    std::vector<PaintedHeading> Headings(const std::vector<PageOfLines>& pages) const {
        const double full = device_.pageLayout().fullRectPoints().height() * kUnitsPerPoint;
        const double margin = device_.pageLayout().marginsPoints().top() * kUnitsPerPoint;
        std::vector<PaintedHeading> headings;
        for (const HeadingPlace& heading : HeadingsOf(lines_)) {
            std::size_t page = 0;
            while (page + 1 < pages.size() && heading.Line >= pages[page].End) ++page;
            const auto row = heading.Line - pages[page].First + pages[page].HeadEnd - pages[page].HeadFirst;
            const double top = margin + body_.top() + static_cast<double>(row) * step_;
            headings.push_back({heading.Text, heading.Level, static_cast<int>(page), top / full});
        }
        for (std::size_t i = 0; i < figures_.size(); ++i)
            headings.push_back(
                {paper_.CaptionOf(i), 0, static_cast<int>(figures_[i].Page), (margin + figures_[i].Area.top()) / full});
        return headings;
    }

    QPagedPaintDevice& device_;
    const ReportPaper& paper_;
    const bool rightToLeft_;
    QCPPainter painter_;
    QFont font_, small_;
    double width_ = 0, height_ = 0;
    double step_ = 0, smallStep_ = 0, headHeight_ = 0;
    QRectF body_;
    std::vector<std::string> lines_;
    std::vector<DisplayLine> display_;
    std::vector<double> scales_;
    std::vector<PlacedFigure> figures_;
    std::size_t pageCount_ = 1;
};

}  // namespace

void SetReportPage(QPagedPaintDevice& device) {
    device.setPageSize(QPageSize(QPageSize::A4));
    device.setPageMargins(QMarginsF(kSideMm, kTopMm, kSideMm, kBottomMm), QPageLayout::Millimeter);
}

std::vector<PaintedHeading> PaintReport(QPagedPaintDevice& device, const std::string& report, const ReportPaper& paper,
                                        const std::string& fontName, double pointSize, bool rightToLeft) {
    return ReportPainter(device, paper, fontName, pointSize, rightToLeft).Paint(report);
}

}  // namespace lithmark
