#include "desktop/ChartPane.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <algorithm>

#include "desktop/ChartView.h"
#include "desktop/GraphicWords.h"
#include "desktop/PaneKeys.h"
#include "desktop/ScreenRoom.h"
#include "desktop/Sizes.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr QSize kSampleSize(30, 12);

// What a curve looks like, for the box that shows and hides it: its dash and its marker in inks of light or dark
// windows.
QIcon SampleOf(const QCPCurve& drawn, int curve, const ChartInks& inks, double ratio) {
    QPixmap picture(kSampleSize * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QCPPainter painter(&picture);
    painter.setAntialiasing(true);
    const QPen pen = CurvePen(curve, inks);
    const QPointF middle(kSampleSize.width() / 2.0, kSampleSize.height() / 2.0);
    if (drawn.lineStyle() != QCPCurve::lsNone) {
        painter.setPen(pen);
        painter.drawLine(QPointF(1, middle.y()), QPointF(kSampleSize.width() - 1, middle.y()));
    }
    QCPScatterStyle marker = drawn.scatterStyle();
    if (marker.isNone()) return picture;
    const bool filled = marker.brush().color() == marker.pen().color();
    marker.setPen(QPen(pen.color(), marker.pen().widthF()));
    marker.setBrush(filled ? pen.color() : inks.Ground);
    marker.applyTo(&painter, pen);
    marker.drawShape(&painter, middle);
    return picture;
}

QLabel* ReadingLabel(QWidget* parent, const char* name) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setMinimumHeight(label->fontMetrics().height());
    return label;
}

QString CaptionOf(const ChartArguments& chart, int curve) {
    return Q(chart.Legends(curve)).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

}  // namespace

ChartPane::ChartPane(const ChartArguments& chart, QWidget* parent, int legendRoom, Marks marks)
    : QWidget(parent),
      legendRoom_(legendRoom),
      marksAt_(marks),
      column_(new QVBoxLayout(this)),
      drawn_(new QHBoxLayout) {
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(sizes::kRowGap);
    // In the order of the Tab key.
    BuildLegend(chart);
    plot_ = new ChartView(chart, this);
    ShowSamples();
    values_ = ReadingLabel(this, "lblValues");
    marks_ = ReadingLabel(this, "lblMarks");
    drawn_->setSpacing(sizes::kEdge);
    drawn_->insertWidget(0, plot_, 1);
    column_->addLayout(drawn_, 1);
    auto* readings = new QVBoxLayout;
    readings->setSpacing(2);
    readings->addWidget(values_);
    column_->addLayout(readings);
    if (marks == Marks::Beside) {
        marks_->setFixedWidth(MarksWidth());
        marks_->setAlignment(Qt::AlignTop | (marks_->alignment() & Qt::AlignHorizontal_Mask));
        drawn_->addWidget(marks_);
    } else {
        readings->addWidget(marks_);
    }
    MakeGraphic(*plot_, Q(chart.ChartTitle));
    PaneKeys::MakePane(*plot_);
    plot_->OnReading = [this] { ShowReading(); };
    ShowReading();
}

void ChartPane::BuildLegend(const ChartArguments& chart) {
    delete legend_;
    legend_ = new QWidget(this);
    boxes_.clear();
    // Side by side, or as many in a row as there is room for where their names are long.
    constexpr int kSample = 80;
    int together = 0, widest = 1;
    for (int i = 1; i <= chart.Curves; ++i) {
        const int width = fontMetrics().horizontalAdvance(Q(chart.Legends(i))) + kSample;
        together += width;
        widest = std::max(widest, width);
    }
    int columns = together < legendRoom_ ? std::max(1, int(chart.Curves)) : std::max(1, legendRoom_ / widest);
    constexpr int kMostAbove = 2, kMostBeside = 12;
    const bool beside = OnSmallScreen(*this) && chart.Curves > kMostAbove * columns && chart.Curves <= kMostBeside;
    if (beside) columns = 1;
    auto* grid = new QGridLayout(legend_);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(sizes::kGroupGap);
    grid->setVerticalSpacing(0);
    for (int i = 1; i <= chart.Curves; ++i) {
        auto* box = new QCheckBox(CaptionOf(chart, i), legend_);
        box->setObjectName(QStringLiteral("chkCurve(%1)").arg(i));
        box->setIconSize(kSampleSize);
        box->setChecked(true);
        connect(box, &QCheckBox::toggled, this, [this, i](bool on) { plot_->ShowCurve(i, on); });
        grid->addWidget(box, (i - 1) / columns, (i - 1) % columns);
        boxes_.push_back(box);
    }
    grid->setColumnStretch(columns, 1);
    if (beside)
        drawn_->addWidget(legend_, 0, Qt::AlignTop);
    else
        column_->insertWidget(0, legend_);
    if (plot_ == nullptr) return;
    ShowSamples();
    // Boxes that come later stand above the plot too, on the way of the Tab key.
    QWidget* before = plot_->previousInFocusChain();
    while (before != plot_ && before->focusPolicy() == Qt::NoFocus) before = before->previousInFocusChain();
    for (QCheckBox* box : boxes_) {
        setTabOrder(before, box);
        before = box;
    }
    setTabOrder(before, plot_);
}

// The samples have the colours of light or dark windows.
void ChartPane::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && plot_ != nullptr) ShowSamples();
}

void ChartPane::ShowSamples() {
    const ChartInks inks = WindowInks(palette());
    for (int i = 1; i <= static_cast<int>(boxes_.size()); ++i)
        if (const auto* curve = qobject_cast<const QCPCurve*>(plot_->plottable(i - 1)))
            boxes_[static_cast<std::size_t>(i - 1)]->setIcon(SampleOf(*curve, i, inks, devicePixelRatioF()));
}

void ChartPane::ShowChart(const ChartArguments& chart) {
    plot_->ShowChart(chart);
    bool same = boxes_.size() == static_cast<std::size_t>(chart.Curves);
    for (int i = 1; same && i <= chart.Curves; ++i)
        same = boxes_[static_cast<std::size_t>(i - 1)]->text() == CaptionOf(chart, i);
    if (!same) return BuildLegend(chart);
    ShowSamples();
    for (int i = 1; i <= chart.Curves; ++i)
        if (!boxes_[static_cast<std::size_t>(i - 1)]->isChecked()) plot_->ShowCurve(i, false);
}

int ChartPane::MarksWidth() const {
    const ChartReading& reading = plot_->Reading();
    int width = 0;
    for (int row = 1; row <= reading.Rows(); ++row)
        for (int curve = 1; curve <= reading.Curves(); ++curve)
            width = std::max(width, fontMetrics().horizontalAdvance(Q(reading.MarkText({row, curve}))));
    return width + fontMetrics().horizontalAdvance(QStringLiteral("B - A: -  "));
}

// The line at the cursor, and the marks with their difference; what can be done where there is nothing to read.
void ChartPane::ShowReading() {
    const ChartReading& reading = plot_->Reading();
    // The mark in front gives the line the direction of the language, whatever it begins with.
    const bool mirrored = LanguageTexts().RightToLeft();
    const QString direction = mirrored ? QString(QChar(0x200F)) : QString();
    values_->setText(direction + Q(plot_->Row() ? reading.ValuesAt(*plot_->Row()) : Text(910009_text)));
    QString marks;
    const auto add = [&](const char* name, const std::string& text) {
        const QString parting = marksAt_ == Marks::Below ? QStringLiteral("     ") : QLatin1Char('\n') + direction;
        QString mark = QString::fromLatin1(name) + QStringLiteral(": ") + Q(text);
        // Each for itself: the Latin names of neighbours would draw what stands between them to their direction.
        if (mirrored) mark = QChar(0x2067) + mark + QChar(0x2069);
        marks += (marks.isEmpty() ? direction : parting) + mark;
    };
    const auto &a = plot_->A(), &b = plot_->B();
    // Beside the plot the lines keep their places.
    const auto line = [&](const char* name, bool there, const std::string& text) {
        if (there || marksAt_ == Marks::Beside) add(name, there ? text : "–");
    };
    line("A", a.has_value(), a ? reading.MarkText(*a) : "");
    line("B", b.has_value(), b ? reading.MarkText(*b) : "");
    line("B - A", a && b, a && b ? reading.DifferenceText(*a, *b) : "");
    marks_->setText(marks);
    // What is walked to is spoken.
    TellGraphic(*plot_, Q(plot_->Row() ? reading.ValuesAt(*plot_->Row()) : reading.Summary()));
}

}  // namespace lithmark
