#include "desktop/ChartWindow.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QClipboard>
#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>

#include "contour/ChartTable.h"
#include "desktop/ChartPane.h"
#include "desktop/ChartView.h"
#include "desktop/KeptSize.h"
#include "desktop/ManualTopics.h"
#include "desktop/PaneKeys.h"
#include "desktop/Printing.h"
#include "desktop/SaveChart.h"
#include "desktop/ScreenRoom.h"
#include "desktop/ScrollColumn.h"
#include "desktop/Sizes.h"
#include "desktop/Toast.h"
#include "files/CommonStep.h"
#include "render/QtText.h"
#include "render/figures/ChartSymbols.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

const std::string kSection = "Chart";

}  // namespace

ChartWindow::ChartWindow(const ChartArguments& chart, QWidget* parent)
    : QDialog(parent),
      chart_(chart),
      small_(OnSmallScreen(*this)),
      pane_(new ChartPane(WithSymbolsInPrint(chart), this, ChartPane::kLegendRoom,
                          small_ ? ChartPane::Marks::Below : ChartPane::Marks::Beside)),
      plot_(&pane_->Plot()) {
    setObjectName(QStringLiteral("chartWindow"));
    setWindowTitle(Q(chart.ChartTitle));
    setLayoutDirection(LanguageTexts().RightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    auto* window = new QBoxLayout(small_ ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, this);
    window->setContentsMargins(sizes::kEdge, sizes::kEdge, sizes::kEdge, sizes::kEdge);
    window->setSpacing(small_ ? sizes::kEdge : sizes::kRowGap);
    Arrange(*window);
    new PaneKeys(*this);
    BindHelpKey(*this, TopicOfProblem);
    plot_->setFocus();
    resize(960, 640);
    KeepSize(*this);
}

void ChartWindow::Arrange(QBoxLayout& window) {
    window.addWidget(pane_, 1);
    if (small_) {
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
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(sizes::kColumnGap);
    AddWays(*buttons);
    buttons->addWidget(OkButton());
    window.addLayout(buttons);
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

void ChartWindow::CopyPicture() {
    UnderCommonStep([this] {
        QApplication::clipboard()->setImage(
            QImage::fromData(QByteArray::fromStdString(ChartPng(plot_->Chart(), plot_->Look())), "PNG"));
        ShowToast(*this, Q(Text(910214_text)));
    });
}

void ChartWindow::CopyTable() {
    QApplication::clipboard()->setText(Q(ChartTabs(chart_)));
    ShowToast(*this, Q(Text(910214_text)));
}

void ChartWindow::Print() {
    PrintPicture(this, QSize(kChartPageWidth, kChartPageHeight),
                 [this](QCPPainter& painter) { DrawChartPage(painter, plot_->Chart(), plot_->Look()); });
}

void ChartWindow::Save() {
    SaveChart(this, plot_->Chart(), plot_->Look(), chart_);
}

void ChartWindow::Original() {
    plot_->Whole();
}

void ChartWindow::Contours() {
    chart_.ShowContours();
}

}  // namespace lithmark
