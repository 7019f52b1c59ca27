#include "desktop/ChartWindow.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QClipboard>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>

#include "contour/ChartTable.h"
#include "desktop/ChartView.h"
#include "desktop/GraphicWords.h"
#include "desktop/ManualTopics.h"
#include "desktop/PaneKeys.h"
#include "desktop/Printing.h"
#include "desktop/SaveDialog.h"
#include "desktop/ScreenRoom.h"
#include "desktop/ScrollColumn.h"
#include "desktop/Sizes.h"
#include "files/CommonStep.h"
#include "render/QtText.h"
#include "services/SharedServices.h"
#include "services/storage/WrittenFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

const std::string kSection = "Chart";

// What a curve looks like, for the box that shows and hides it.
QIcon SampleOf(int curve, const ChartInks& inks) {
    QPixmap picture(30, 12);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(CurvePen(curve, inks));
    painter.drawLine(1, 6, 29, 6);
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

}  // namespace

ChartWindow::ChartWindow(const ChartArguments& chart, QWidget* parent)
    : QDialog(parent),
      chart_(chart),
      small_(OnSmallScreen(*this)),
      plot_(new ChartView(chart, this)),
      values_(ReadingLabel(this, "lblValues")),
      marks_(ReadingLabel(this, "lblMarks")) {
    setObjectName(QStringLiteral("chartWindow"));
    setWindowTitle(Q(chart.ChartTitle));
    setLayoutDirection(LanguageTexts().RightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    auto* window = new QHBoxLayout(this);
    window->setContentsMargins(sizes::kEdge, sizes::kEdge, sizes::kEdge, sizes::kEdge);
    window->setSpacing(sizes::kEdge);
    Arrange(*window);
    // From the boxes the Tab key goes down to the plot.
    if (auto* last = findChild<QCheckBox*>(QStringLiteral("chkCurve(%1)").arg(int(chart.Curves))))
        setTabOrder(last, plot_);
    MakeGraphic(*plot_, Q(chart.ChartTitle));
    plot_->OnReading = [this] { ShowReading(); };
    ShowReading();
    new PaneKeys(*this);
    PaneKeys::MakePane(*plot_);
    BindHelpKey(*this, TopicOfProblem);
    plot_->setFocus();
    resize(960, 640);
}

void ChartWindow::Arrange(QBoxLayout& window) {
    auto* column = new QVBoxLayout;
    column->setSpacing(sizes::kRowGap);
    window.addLayout(column, 1);
    column->addLayout(LegendRow());
    auto* drawn = new QHBoxLayout;
    drawn->setSpacing(sizes::kEdge);
    drawn->addWidget(plot_, 1);
    column->addLayout(drawn, 1);
    column->addWidget(values_);
    if (small_) {
        column->addWidget(marks_);
        auto* ways = new QWidget;
        auto* buttons = new QVBoxLayout(ways);
        buttons->setContentsMargins(0, 0, 0, 0);
        buttons->setSpacing(sizes::kRowGap);
        AddWays(*buttons);
        auto* side = new QVBoxLayout;
        side->addWidget(new ScrollColumn(ways, this), 1);
        side->addWidget(OkButton());
        window.addLayout(side);
        return;
    }
    marks_->setFixedWidth(MarksWidth());
    marks_->setAlignment(Qt::AlignTop | (marks_->alignment() & Qt::AlignHorizontal_Mask));
    drawn->addWidget(marks_);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(sizes::kColumnGap);
    AddWays(*buttons);
    buttons->addWidget(OkButton());
    column->addLayout(buttons);
}

int ChartWindow::MarksWidth() const {
    const ChartReading& reading = plot_->Reading();
    int width = 0;
    for (int row = 1; row <= reading.Rows(); ++row)
        for (int curve = 1; curve <= reading.Curves(); ++curve)
            width = std::max(width, fontMetrics().horizontalAdvance(Q(reading.MarkText({row, curve}))));
    return width + fontMetrics().horizontalAdvance(QStringLiteral("B - A: -  "));
}

QBoxLayout* ChartWindow::LegendRow() {
    // Side by side, or under each other where their names are long.
    int width = 0;
    for (int i = 1; i <= chart_.Curves; ++i) width += fontMetrics().horizontalAdvance(Q(chart_.Legends(i))) + 80;
    auto* row = new QBoxLayout(width < 800 ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    row->setSpacing(width < 800 ? sizes::kGroupGap : 0);
    for (int i = 1; i <= chart_.Curves; ++i) {
        QString name = Q(chart_.Legends(i));
        auto* box = new QCheckBox(name.replace(QLatin1Char('&'), QStringLiteral("&&")), this);
        box->setObjectName(QStringLiteral("chkCurve(%1)").arg(i));
        box->setIcon(SampleOf(i, plot_->InksShown()));
        box->setIconSize(QSize(30, 12));
        box->setChecked(true);
        connect(box, &QCheckBox::toggled, this, [this, i](bool on) { plot_->ShowCurve(i, on); });
        row->addWidget(box);
    }
    row->addStretch(1);
    return row;
}

void ChartWindow::AddTurn(QBoxLayout& row) {
    const ChartTurn turn = TurnOf(chart_);
    if (turn == ChartTurn::None) return;
    const bool depth = turn == ChartTurn::Depth;
    auto* box = new QCheckBox(Q(Text(depth ? 910005_text : 910004_text)), this);
    box->setObjectName(QStringLiteral("chkDownward"));
    const std::string key = depth ? "Depth downward" : "Settlement downward";
    const bool down = SharedServices().GetSetting(kApplicationTitle, kSection, key, false);
    box->setChecked(down);
    if (down) plot_->Turn(true);
    connect(box, &QCheckBox::toggled, this, [this, key](bool on) {
        plot_->Turn(on);
        UnderCommonStep([&] { SharedServices().SaveSetting(kApplicationTitle, kSection, key, on); });
    });
    row.addWidget(box);
}

QPushButton* ChartWindow::AddButton(QBoxLayout& row, const std::string& caption, const char* name,
                                    void (ChartWindow::*slot)()) {
    auto* button = new QPushButton(Q(caption), this);
    button->setObjectName(QString::fromLatin1(name));
    if (slot != nullptr) connect(button, &QPushButton::clicked, this, slot);
    row.addWidget(button);
    return button;
}

void ChartWindow::AddWays(QBoxLayout& row) {
    AddButton(row, Text(26_text, Styles::Button), "cmdOriginal", &ChartWindow::Original);
    if (chart_.ShowContours) AddButton(row, Text(140017_text), "cmdContours", &ChartWindow::Contours);
    AddTurn(row);
    row.addStretch(1);
    QPushButton* copy = AddButton(row, Text(906521_text, Styles::Button), "cmdCopy", nullptr);
    auto* menu = new QMenu(copy);
    menu->addAction(Q(Text(910001_text)), QKeySequence::Copy, this, &ChartWindow::CopyPicture)
        ->setObjectName(QStringLiteral("mnuCopyPicture"));
    menu->addAction(Q(Text(910002_text)), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), this, &ChartWindow::CopyTable)
        ->setObjectName(QStringLiteral("mnuCopyTable"));
    copy->setMenu(menu);
    AddButton(row, Text(910003_text, Styles::Button), "cmdPrint", &ChartWindow::Print)
        ->setToolTip(QKeySequence(QKeySequence::Print).toString(QKeySequence::NativeText));
    AddButton(row, Text(9_text, Styles::DialogButton), "cmdExport", &ChartWindow::Save)
        ->setToolTip(QKeySequence(QKeySequence::Save).toString(QKeySequence::NativeText));
}

QPushButton* ChartWindow::OkButton() {
    auto* ok = new QPushButton(Q(Text(6_text, Styles::Button)), this);
    ok->setObjectName(QStringLiteral("cmdok"));
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    ok->setDefault(true);
    return ok;
}

void ChartWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return CopyPicture();
    if (event->matches(QKeySequence::Print)) return Print();
    if (event->matches(QKeySequence::Save)) return Save();
    if (event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier) && event->key() == Qt::Key_C)
        return CopyTable();
    QDialog::keyPressEvent(event);
}

// The line at the cursor, and the marks with their difference; what can be done where there is nothing to read.
void ChartWindow::ShowReading() {
    const ChartReading& reading = plot_->Reading();
    // The mark in front gives the line the direction of the language, whatever it begins with.
    const QString direction = LanguageTexts().RightToLeft() ? QString(QChar(0x200F)) : QString();
    values_->setText(direction + Q(plot_->Row() ? reading.ValuesAt(*plot_->Row()) : Text(910009_text)));
    QString marks;
    const auto add = [&](const char* name, const std::string& text) {
        const QString parting = small_ ? QStringLiteral("     ") : QLatin1Char('\n') + direction;
        marks += (marks.isEmpty() ? direction : parting) + QString::fromLatin1(name) + QStringLiteral(": ") + Q(text);
    };
    const auto &a = plot_->A(), &b = plot_->B();
    // Beside the plot the lines keep their places.
    const auto line = [&](const char* name, bool there, const std::string& text) {
        if (there || !small_) add(name, there ? text : "–");
    };
    line("A", a.has_value(), a ? reading.MarkText(*a) : "");
    line("B", b.has_value(), b ? reading.MarkText(*b) : "");
    line("B - A", a && b, a && b ? reading.DifferenceText(*a, *b) : "");
    marks_->setText(marks);
    // What is walked to is spoken.
    TellGraphic(*plot_, Q(plot_->Row() ? reading.ValuesAt(*plot_->Row()) : reading.Summary()));
}

void ChartWindow::CopyPicture() {
    UnderCommonStep([this] {
        QApplication::clipboard()->setImage(
            QImage::fromData(QByteArray::fromStdString(ChartPng(plot_->Chart(), plot_->Look())), "PNG"));
    });
}

void ChartWindow::CopyTable() {
    QApplication::clipboard()->setText(Q(ChartTabs(chart_)));
}

void ChartWindow::Print() {
    PrintPicture(this, QSize(kChartPageWidth, kChartPageHeight),
                 [this](QCPPainter& painter) { DrawChartPage(painter, plot_->Chart(), plot_->Look()); });
}

void ChartWindow::Save() {
    const auto file = AskForFile(this, windowTitle(),
                                 {{QStringLiteral("PDF"), QStringLiteral("pdf")},
                                  {QStringLiteral("PNG"), QStringLiteral("png")},
                                  {QStringLiteral("SVG"), QStringLiteral("svg")},
                                  {Q(Text(910007_text)), QStringLiteral("xlsx")},
                                  {Q(Text(910008_text)), QStringLiteral("csv")}});
    if (!file) return;
    UnderCommonStep([&] {
        const ChartArguments& chart = plot_->Chart();
        const ChartLook look = plot_->Look();
        SharedServices().SetCurrentFile(file->Path);
        WriteWholeFile(file->Path, file->Ending == QStringLiteral("pdf")   ? ChartPdf(chart, look)
                                   : file->Ending == QStringLiteral("svg") ? ChartSvg(chart, look)
                                   : file->Ending == QStringLiteral("png") ? ChartPng(chart, look)
                                   : file->Ending == QStringLiteral("csv") ? ChartCsv(chart)
                                                                           : ChartXlsx(chart));
    });
}

void ChartWindow::Original() {
    plot_->Whole();
}

void ChartWindow::Contours() {
    chart_.ShowContours();
}

}  // namespace lithmark
