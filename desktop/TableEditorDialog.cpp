#include "desktop/TableEditorDialog.h"

#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <algorithm>

#include "base/Utf8.h"
#include "desktop/ManualTopics.h"
#include "desktop/PageTools.h"
#include "desktop/PaneKeys.h"
#include "desktop/RowsChart.h"
#include "desktop/ScreenRoom.h"
#include "desktop/Sizes.h"
#include "desktop/SpokenAlert.h"
#include "render/QtText.h"
#include "render/drawings/Inks.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"
#include "ui/model/UnsavedInput.h"
#include "ui/model/UnsavedTable.h"

namespace lithmark {

namespace {

// "Time [days]": title and unit of a column.
QString AxisTitle(const std::string& head) {
    const std::size_t first = head.find('\n'), last = head.rfind('\n');
    return Q(first == std::string::npos ? head : head.substr(0, first) + " " + head.substr(last + 1));
}

// The unit, the last line of a head.
QString UnitOf(const std::string& head) {
    return Q(head.substr(head.rfind('\n') + 1));
}

// A load history goes up in stairs: a load counts from the begin of its time step.
RowsChart::Kind KindOf(const TableEdit& table) {
    return table.Title == Text(400125_text) ? RowsChart::Kind::Stairs : RowsChart::Kind::Line;
}

}  // namespace

TableEditorDialog::TableEditorDialog(TableEdit& table, QWidget* parent)
    : QDialog(parent),
      table_(table),
      rows_(table),
      grid_(new QTableWidget(this)),
      chart_(new RowsChart(KindOf(table), this)),
      note_(new QLabel(this)) {
    setObjectName(QStringLiteral("tableEditor"));
    setWindowTitle(PlainCaption(table.Title));
    setLayoutDirection(LanguageTexts().RightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    grid_->setObjectName(QStringLiteral("grid"));
    grid_->setAccessibleName(windowTitle());
    grid_->setColumnCount(rows_.Columns());
    for (int c = 0; c < rows_.Columns(); ++c)
        grid_->setHorizontalHeaderItem(c, new QTableWidgetItem(Q(table.Columns[static_cast<std::size_t>(c)].Head)));
    grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid_->setSelectionMode(QAbstractItemView::ContiguousSelection);
    grid_->setToolTip(Q(ReplaceAll(table.RowHead, "\n", " ")));
    grid_->installEventFilter(this);
    MakeAlert(*note_);
    note_->setObjectName(QStringLiteral("lblNote"));
    note_->setTextFormat(Qt::PlainText);
    note_->setWordWrap(true);
    note_->setMinimumHeight(2 * note_->fontMetrics().height());

    auto* window = new QVBoxLayout(this);
    window->setContentsMargins(sizes::kEdge, sizes::kEdge, sizes::kEdge, sizes::kEdge);
    window->addWidget(RowsAndChart(), 1);
    window->addWidget(note_);
    window->addWidget(Buttons());
    BindKeys();
    keep_.setSingleShot(true);
    keep_.setInterval(kKeepAfter);
    connect(&keep_, &QTimer::timeout, this, [this] { KeepRows(table_, rows_.Texts()); });
    connect(grid_, &QTableWidget::cellChanged, this, [this](int row, int column) { Typed(row, column); });
    connect(grid_, &QTableWidget::itemSelectionChanged, this, [this] {
        if (!showing_) ShowState();
    });
    ShowRows();
    grid_->setCurrentCell(0, 0);
    resize(820, 520);
}

QWidget* TableEditorDialog::RowsAndChart() {
    if (rows_.Columns() < 2) {
        chart_->hide();
        return grid_;
    }
    if (OnSmallScreen(*this)) {
        auto* tabs = new QTabWidget(this);
        tabs->setObjectName(QStringLiteral("tabs"));
        tabs->tabBar()->setAccessibleName(windowTitle());
        tabs->addTab(grid_, Q(Text(913600_text)));
        tabs->addTab(chart_, Q(Text(913601_text)));
        return tabs;
    }
    auto* both = new QWidget(this);
    auto* columns = new QHBoxLayout(both);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(sizes::kGroupGap);
    columns->addWidget(grid_, 3);
    columns->addWidget(chart_, 2);
    return both;
}

QWidget* TableEditorDialog::Buttons() {
    auto* line = new QWidget(this);
    auto* buttons = new QHBoxLayout(line);
    buttons->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const std::string& caption, const char* name, auto&& slot) {
        auto* button = new QPushButton(Q(caption), this);
        button->setObjectName(QString::fromLatin1(name));
        connect(button, &QPushButton::clicked, this, slot);
        buttons->addWidget(button);
        return button;
    };
    add(Text(903013_text), "cmdAddRow", [this] {
        const int row = grid_->currentRow() < 0 ? rows_.Rows() : grid_->currentRow() + 1;
        Change([&] { rows_.InsertRow(row); }, row, 0);
    });
    delete_ = add(Text(903014_text), "cmdDeleteRow", [this] {
        const Selection at = Selected();
        Change([&] { rows_.DeleteRows(at.FirstRow, at.LastRow); }, at.FirstRow, at.FirstColumn);
    });
    up_ = add(Text(906534_text), "cmdUp", [this] { MoveRows(-1); });
    down_ = add(Text(906535_text), "cmdDown", [this] { MoveRows(1); });
    undo_ = add(Text(906536_text), "cmdUndo",
                [this] { Change([&] { rows_.Undo(); }, grid_->currentRow(), grid_->currentColumn()); });
    redo_ = add(Text(906537_text), "cmdRedo",
                [this] { Change([&] { rows_.Redo(); }, grid_->currentRow(), grid_->currentColumn()); });
    buttons->addStretch(1);
    add(Text(8_text, Styles::Button), "cmdHelp", [this] {
        SharedServices().SetHelpText(table_.Help);
        SharedServices().ShowHelpText(windowTitle().toStdString());
    });
    ok_ = add(Text(6_text, Styles::Button), "cmdok", [this] { accept(); });
    ok_->setDefault(true);
    add(Text(7_text, Styles::Button), "CmdCancel", [this] { reject(); });
    return line;
}

void TableEditorDialog::BindKeys() {
    const auto bind = [this](const QKeySequence& keys, auto&& slot) {
        auto* shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, slot);
    };
    bind(QKeySequence::Copy, [this] { Copy(); });
    bind(QKeySequence::Paste, [this] { Paste(); });
    bind(QKeySequence::Undo, [this] { undo_->click(); });
    bind(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), [this] { redo_->click(); });
    bind(QKeySequence(Qt::CTRL | Qt::Key_Plus),
         [this] { findChild<QPushButton*>(QStringLiteral("cmdAddRow"))->click(); });
    bind(QKeySequence(Qt::CTRL | Qt::Key_Minus), [this] { delete_->click(); });
    bind(QKeySequence(Qt::ALT | Qt::Key_Up), [this] { up_->click(); });
    bind(QKeySequence(Qt::ALT | Qt::Key_Down), [this] { down_->click(); });
    BindHelpKey(*this, TopicOfProblem);
    new PaneKeys(*this);
}

TableEditorDialog::Selection TableEditorDialog::Selected() const {
    const auto ranges = grid_->selectedRanges();
    if (ranges.isEmpty()) {
        const int row = grid_->currentRow(), column = grid_->currentColumn();
        return {row, column, row, column};
    }
    const QTableWidgetSelectionRange& at = ranges.front();
    return {at.topRow(), at.leftColumn(), at.bottomRow(), at.rightColumn()};
}

void TableEditorDialog::ShowRows() {
    showing_ = true;
    grid_->setRowCount(rows_.Rows());
    for (int r = 0; r < rows_.Rows(); ++r)
        for (int c = 0; c < rows_.Columns(); ++c) {
            if (grid_->item(r, c) == nullptr) grid_->setItem(r, c, new QTableWidgetItem);
            grid_->item(r, c)->setText(Q(rows_.Cell(r, c)));
            MarkCell(r, c);
        }
    showing_ = false;
    ShowState();
}

// A cell in error bears a mark and its reason; one that shows fewer digits than its value has is written aslant.
void TableEditorDialog::MarkCell(int row, int column) {
    QTableWidgetItem& item = *grid_->item(row, column);
    const auto fault = rows_.Fault(row, column);
    const bool hides = !fault && rows_.HidesDigits(row, column);
    const QColor ink = ColourOf(Ink::Error, ThemeOf(palette()));
    QColor ground = ink;
    ground.setAlpha(40);
    item.setBackground(fault ? QBrush(ground) : QBrush());
    item.setForeground(fault ? QBrush(ink) : QBrush());
    QFont font = item.font();
    font.setItalic(hides);
    font.setBold(fault.has_value());
    item.setFont(font);
    item.setTextAlignment(Qt::AlignRight | Qt::AlignVCenter | Qt::AlignAbsolute);
    item.setData(Qt::AccessibleTextRole, InWords(row, column));
    item.setToolTip(Q(fault   ? *fault
                      : hides ? Text(906539_text, {{"|1", rows_.AllDigits(row, column)}})
                              : std::string()));
}

// "Row 3, Time, days, 4.5", and what is wrong with it.
QString TableEditorDialog::InWords(int row, int column) const {
    const std::string place = Text(906538_text, {{"|1", std::to_string(row + 1)}, {"|2", rows_.Title(column)}});
    QStringList words{Q(place)};
    if (const QString unit = UnitOf(table_.Columns[static_cast<std::size_t>(column)].Head);
        unit != QLatin1String("[-]"))
        words.append(QString(unit).remove(QLatin1Char('[')).remove(QLatin1Char(']')));
    words.append(Q(rows_.Cell(row, column)));
    if (const auto fault = rows_.Fault(row, column)) words.append(Q(*fault));
    return words.join(QStringLiteral(", "));
}

void TableEditorDialog::ShowState() {
    const auto fault = rows_.FirstFault();
    std::string note = pasted_;
    if (fault) {
        const std::string place =
            Text(906538_text, {{"|1", std::to_string(fault->Row + 1)}, {"|2", rows_.Title(fault->Column)}});
        note = place + " - " + rows_.Fault(fault->Row, fault->Column).value_or("");
    }
    // What has become wrong, or is wrong otherwise, is told at once.
    if (fault && isVisible() && note_->text() != Q(note)) SpeakAlert(*note_, Q(note));
    note_->setText(Q(note));
    note_->setAccessibleName(Q(note));
    QPalette ink = palette();
    if (fault) ink.setColor(QPalette::WindowText, ColourOf(Ink::Error, ThemeOf(palette())));
    note_->setPalette(ink);
    ok_->setEnabled(!fault);
    undo_->setEnabled(rows_.CanUndo());
    redo_->setEnabled(rows_.CanRedo());
    const Selection at = Selected();
    delete_->setEnabled(at.FirstRow >= 0 && at.LastRow - at.FirstRow + 1 < rows_.Rows());
    up_->setEnabled(at.FirstRow > 0);
    down_->setEnabled(at.FirstRow >= 0 && at.LastRow + 1 < rows_.Rows());

    if (rows_.Columns() < 2) return;
    std::vector<QPointF> points;
    for (int r = 0; r < rows_.Rows(); ++r) {
        const auto x = rows_.Number(r, 0), y = rows_.Number(r, 1);
        if (x && y) points.emplace_back(*x, *y);
    }
    chart_->Show(std::move(points), AxisTitle(table_.Columns[0].Head), AxisTitle(table_.Columns[1].Head));
}

void TableEditorDialog::Typed(int row, int column) {
    if (showing_) return;
    pasted_.clear();
    rows_.SetCell(row, column, grid_->item(row, column)->text().toStdString());
    showing_ = true;
    MarkCell(row, column);
    showing_ = false;
    ShowState();
    keep_.start();
}

template <typename Command>
void TableEditorDialog::Change(Command&& command, int row, int column) {
    pasted_.clear();
    command();
    ShowRows();
    grid_->setCurrentCell(std::clamp(row, 0, rows_.Rows() - 1), std::clamp(column, 0, rows_.Columns() - 1));
    ShowState();
    keep_.start();
}

void TableEditorDialog::MoveRows(int by) {
    const Selection at = Selected();
    Change([&] { rows_.MoveRows(at.FirstRow, at.LastRow, by); }, at.FirstRow + by, at.FirstColumn);
    grid_->setRangeSelected({at.FirstRow + by, at.FirstColumn, at.LastRow + by, at.LastColumn}, true);
}

void TableEditorDialog::Copy() {
    const Selection at = Selected();
    if (at.FirstRow < 0) return;
    QApplication::clipboard()->setText(Q(rows_.Copied(at.FirstRow, at.FirstColumn, at.LastRow, at.LastColumn)));
}

void TableEditorDialog::Paste() {
    const Selection at = Selected();
    const std::string text = QApplication::clipboard()->text().toStdString();
    std::string words;
    Change([&] { words = rows_.Paste(std::max(at.FirstRow, 0), std::max(at.FirstColumn, 0), text); }, at.FirstRow,
           at.FirstColumn);
    pasted_ = std::move(words);
    ShowState();
}

// Enter and Tab at the end of a cell go on as in a spreadsheet: Enter to the cell below.
bool TableEditorDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == grid_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            grid_->setCurrentCell(std::min(grid_->currentRow() + 1, rows_.Rows() - 1), grid_->currentColumn());
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

bool TableEditorDialog::Run() {
    return exec() == QDialog::Accepted;
}

void TableEditorDialog::reject() {
    if (keep_.isActive()) KeepRows(table_, rows_.Texts());
    keep_.stop();
    QDialog::reject();
}

void TableEditorDialog::accept() {
    if (rows_.FirstFault()) return;
    keep_.stop();
    table_.Rows = rows_.Texts();
    QDialog::accept();
}

}  // namespace lithmark
