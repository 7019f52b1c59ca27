#include "desktop/compare/CompareWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <utility>

#include "desktop/CellWords.h"
#include "desktop/ChartPane.h"
#include "desktop/ChartView.h"
#include "desktop/KeptSize.h"
#include "desktop/ManualTopics.h"
#include "desktop/PaneKeys.h"
#include "desktop/SaveChart.h"
#include "desktop/SaveDialog.h"
#include "desktop/ScreenRoom.h"
#include "desktop/Sizes.h"
#include "desktop/Toast.h"
#include "desktop/compare/SymbolCells.h"
#include "render/ChartDocument.h"
#include "render/QtText.h"
#include "render/drawings/Symbols.h"
#include "render/figures/ChartSymbols.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

enum ComparedColumn {
    kQuantityColumn,
    kSymbolColumn,
    kOneColumn,
    kOtherColumn,
    kUnitColumn,
    kChangeColumn,
    kComparedColumns
};

// What is written from left to right, kept together in a line of any direction.
QString KeptTogether(const std::string& text) {
    return text.empty() ? QString() : QChar(0x2066) + Q(text) + QChar(0x2069);
}

}  // namespace

CompareWindow::CompareWindow(ComparedPair pair, QWidget* parent)
    : QDialog(parent),
      pair_(std::move(pair)),
      inputs_(DifferingInputs(pair_)),
      state_(new QLabel(this)),
      tabs_(new QTabWidget(this)) {
    setObjectName(QStringLiteral("compareWindow"));
    setWindowTitle(Q(Text(913520_text)));
    setLayoutDirection(LanguageTexts().RightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(sizes::kEdge, sizes::kEdge, sizes::kEdge, sizes::kEdge);
    column->setSpacing(sizes::kGroupPad);
    state_->setObjectName(QStringLiteral("lblState"));
    state_->setTextFormat(Qt::PlainText);
    state_->setWordWrap(true);
    state_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    column->addWidget(state_);
    tabs_->setObjectName(QStringLiteral("tabs"));
    tabs_->tabBar()->setAccessibleName(windowTitle());
    differing_ = AddTable("differing", 913521_text);
    results_ = AddTable("results", 913522_text);
    curves_ = MakeCurves();
    tabs_->addTab(curves_, Q(Text(913523_text)));
    tabs_->setTabEnabled(tabs_->indexOf(curves_), false);
    column->addWidget(tabs_, 1);
    column->addWidget(MakeButtons());
    Show(*differing_, inputs_);
    new PaneKeys(*this);
    BindHelpKey(*this, [] { return std::string("compare"); });
    resize(QSize(940, 600).boundedTo(ScreenRoom(*this)));
    KeepSize(*this);
    ShowState();
    tabs_->setCurrentWidget(inputs_.empty() ? results_ : differing_);
    tabs_->currentWidget()->setFocus();
    Work(true);
}

QTableWidget* CompareWindow::AddTable(const char* name, TextId caption) {
    auto* table = new QTableWidget(0, kComparedColumns, tabs_);
    table->setObjectName(QString::fromLatin1(name));
    table->setAccessibleName(Q(Text(caption)));
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setAlternatingRowColors(false);
    table->verticalHeader()->hide();
    table->installEventFilter(this);
    table->setItemDelegateForColumn(kSymbolColumn, new SymbolCells(table));
    table->setHorizontalHeaderLabels({Q(Text(913524_text)), Q(Text(913525_text)), KeptTogether(pair_.NameOfOne),
                                      KeptTogether(pair_.NameOfOther), Q(Text(913526_text)), Q(Text(913527_text))});
    QHeaderView& head = *table->horizontalHeader();
    head.setSectionResizeMode(QHeaderView::ResizeToContents);
    head.setSectionResizeMode(kQuantityColumn, QHeaderView::Stretch);
    head.setMinimumSectionSize(sizes::kSymbolWidth);
    tabs_->addTab(table, Q(Text(caption)));
    return table;
}

QWidget* CompareWindow::MakeCurves() {
    auto* page = new QWidget(tabs_);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad);
    choice_ = new QComboBox(page);
    choice_->setObjectName(QStringLiteral("cboCurves"));
    choice_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    chart_ = new QLabel(Q(Text(913601_text)), page);
    chart_->setBuddy(choice_);
    auto* row = new QHBoxLayout;
    row->setSpacing(sizes::kColumnGap);
    row->addWidget(chart_);
    row->addWidget(choice_);
    row->addStretch(1);
    column->addLayout(row);
    connect(choice_, &QComboBox::activated, this, [this] { ShowCurve(); });
    return page;
}

QWidget* CompareWindow::MakeButtons() {
    auto* buttons = new QWidget(this);
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(sizes::kColumnGap);
    const auto add = [&](TextId caption, Style style, const char* name, auto slot) {
        auto* button = new QPushButton(Q(Text(caption, style)), buttons);
        button->setObjectName(QString::fromLatin1(name));
        button->setMinimumHeight(sizes::kClicked);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, slot);
        row->addWidget(button);
        return button;
    };
    QPushButton* save = add(9_text, Styles::DialogButton, "cmdSaveAs", [this] { Save(); });
    save->setToolTip(QKeySequence(QKeySequence::Save).toString(QKeySequence::NativeText));
    row->addStretch(1);
    QPushButton* ok = add(6_text, Styles::Button, "cmdok", [this] { accept(); });
    ok->setDefault(true);
    return buttons;
}

void CompareWindow::Show(QTableWidget& table, const std::vector<ComparedRow>& rows) const {
    table.setRowCount(static_cast<int>(rows.size()));
    for (int row = 0; row < table.rowCount(); ++row) {
        const ComparedRow& of = rows[static_cast<std::size_t>(row)];
        const QString cells[kComparedColumns] = {Q(of.Label),           Q(of.Symbol),
                                                 KeptTogether(of.One),  KeptTogether(of.Other),
                                                 KeptTogether(of.Unit), KeptTogether(of.Change)};
        for (int i = 0; i < kComparedColumns; ++i) {
            auto* item = new QTableWidgetItem(cells[i]);
            // Numbers stand under each other in every language; words begin at the side where the language begins.
            const bool number = i == kChangeColumn || ((i == kOneColumn || i == kOtherColumn) && !of.Change.empty());
            item->setTextAlignment(Qt::AlignVCenter |
                                   (number ? Qt::AlignRight | Qt::AlignAbsolute : Qt::Alignment(Qt::AlignLeading)));
            QString said = i == kSymbolColumn && !of.Symbol.empty() ? SpokenSymbol(of.Symbol) : cells[i];
            if (number && i != kChangeColumn) said = (said + QLatin1Char(' ') + Q(of.Unit)).trimmed();
            item->setData(Qt::AccessibleTextRole, CellInWords(table, row, i, said));
            if (i != kSymbolColumn) item->setToolTip(cells[i]);
            table.setItem(row, i, item);
        }
    }
}

void CompareWindow::Work(bool first) {
    const StoredProject& project = first ? pair_.One : pair_.Other;
    if (!project.Stopped.empty()) return Take(first, AnswerOfProject(project, {}));
    worker_.Start(project.Record, ComparisonCommands(pair_),
                  [this, first, &project](const std::vector<CommandOutput>& outputs) {
                      Take(first, AnswerOfProject(project, outputs));
                  });
}

void CompareWindow::Take(bool first, ComparedAnswer answer) {
    (first ? one_ : other_) = std::move(answer);
    if (first) return Work(false);
    ShowResults();
    ShowState();
}

// What there is to say of both, in lines that stay: what is on its way has its line from the start.
void CompareWindow::ShowState() {
    QStringList lines{
        Q(inputs_.empty() ? Text(913528_text) : Text(913529_text, {{"|1", std::to_string(inputs_.size())}}))};
    for (const auto& [project, name] : {std::pair(&pair_.One, &pair_.NameOfOne), {&pair_.Other, &pair_.NameOfOther}})
        if (!project->Holder.empty())
            lines.append(Q(Text(913533_text, {{"|1", project->File}, {"|2", project->Holder}})));
    if (!Worked()) lines.append(Q(Text(913540_text)));
    for (const auto& [answer, name] : {std::pair(&one_, &pair_.NameOfOne), {&other_, &pair_.NameOfOther}})
        if (*answer && !(*answer)->Failure.empty())
            lines.append(Q(Text(913530_text, {{"|1", *name}, {"|2", (*answer)->Failure}})));
    if (Worked() && charts_.empty()) lines.append(Q(Text(913539_text)));
    state_->setText(lines.join(QLatin1Char('\n')));
}

void CompareWindow::ShowResults() {
    compared_ = ComparedResults(one_->Is, other_->Is);
    Show(*results_, compared_);
    charts_ = ComparedCharts(pair_, one_->Is, other_->Is);
    for (const ChartArguments& chart : charts_) choice_->addItem(Q(chart.ChartTitle));
    for (QWidget* part : {static_cast<QWidget*>(chart_), static_cast<QWidget*>(choice_)})
        part->setVisible(charts_.size() > 1);
    tabs_->setTabEnabled(tabs_->indexOf(curves_), !charts_.empty());
    ShowCurve();
}

const ChartArguments& CompareWindow::ChosenChart() const {
    return charts_[static_cast<std::size_t>(choice_->currentIndex())];
}

void CompareWindow::ShowCurve() {
    if (choice_->currentIndex() < 0) return;
    const ChartArguments chart = WithSymbolsInPrint(ChosenChart());
    if (pane_ != nullptr) return pane_->ShowChart(chart);
    pane_ = new ChartPane(chart, curves_);
    pane_->setObjectName(QStringLiteral("pane"));
    qobject_cast<QVBoxLayout*>(curves_->layout())->addWidget(pane_, 1);
}

// The curve that is seen, or both tables.
void CompareWindow::Save() {
    if (tabs_->currentWidget() == curves_ && pane_ != nullptr)
        return SaveChart(this, pane_->Plot().Chart(), pane_->Plot().Look(), ChosenChart());
    const std::vector<std::vector<std::string>> table = ComparisonTable(pair_, inputs_, compared_);
    SaveAs(*this, {{Q(Text(910007_text)), QStringLiteral("xlsx")}, {Q(Text(910008_text)), QStringLiteral("csv")}},
           [&](const QString& ending) {
               return ending == QStringLiteral("csv") ? ComparisonCsv(table) : TableXlsx(pair_.NameOfOne, table);
           });
}

// As a spreadsheet takes it.
void CompareWindow::Copy() {
    const auto* table = qobject_cast<QTableWidget*>(tabs_->currentWidget());
    if (table == nullptr) return;
    QString text;
    for (const std::vector<std::string>& row :
         ComparisonTable(pair_, table == differing_ ? inputs_ : std::vector<ComparedRow>(),
                         table == results_ ? compared_ : std::vector<ComparedRow>())) {
        QStringList cells;
        for (const std::string& cell : row) cells.append(Q(cell));
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    QApplication::clipboard()->setText(text);
    ShowToast(*this, Q(Text(910214_text)));
}

void CompareWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Save)) return Save();
    QDialog::keyPressEvent(event);
}

// By itself a table copies one cell.
bool CompareWindow::eventFilter(QObject* watched, QEvent* event) {
    const bool copy = event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy);
    if (!copy) return QDialog::eventFilter(watched, event);
    Copy();
    return true;
}

}  // namespace lithmark
