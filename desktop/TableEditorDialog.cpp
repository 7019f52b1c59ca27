#include "desktop/TableEditorDialog.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

#include "base/Utf8.h"
#include "desktop/EditGrid.h"
#include "desktop/KeptSize.h"
#include "desktop/ManualTopics.h"
#include "desktop/PageTools.h"
#include "desktop/PaneKeys.h"
#include "desktop/RowsChart.h"
#include "desktop/ScreenRoom.h"
#include "desktop/Sizes.h"
#include "desktop/SpokenAlert.h"
#include "desktop/WidgetInk.h"
#include "render/QtText.h"
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

// A load history goes up in stairs: a load counts from the begin of its time step.
RowsChart::Kind KindOf(const TableEdit& table) {
    return table.Title == Text(400125_text) ? RowsChart::Kind::Stairs : RowsChart::Kind::Line;
}

}  // namespace

TableEditorDialog::TableEditorDialog(TableEdit& table, QWidget* parent)
    : QDialog(parent),
      table_(table),
      rows_(table),
      keep_(kKeepAfter, [this] { KeepRows(table_, rows_.Texts()); }),
      grid_(new EditGrid(rows_, this)),
      chart_(new RowsChart(KindOf(table), this)),
      note_(new QLabel(this)) {
    setObjectName(QStringLiteral("tableEditor"));
    setWindowTitle(PlainCaption(table.Title));
    setLayoutDirection(LanguageTexts().RightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    grid_->setAccessibleName(windowTitle());
    for (int c = 0; c < rows_.Columns(); ++c)
        grid_->setHorizontalHeaderItem(c, new QTableWidgetItem(Q(table.Columns[static_cast<std::size_t>(c)].Head)));
    grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid_->setToolTip(Q(ReplaceAll(table.RowHead, "\n", " ")));
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
    BindHelpKey(*this, TopicOfProblem);
    new PaneKeys(*this);
    grid_->OnSelection = [this] { ShowState(); };
    grid_->OnPasted = [this](const std::string& words) {
        pasted_ = words;
        ShowState();
    };
    grid_->ShowRows();
    grid_->OnRows = [this] {
        pasted_.clear();
        ShowState();
        keep_.start();
    };
    ShowState();
    grid_->setCurrentCell(0, 0);
    resize(820, 520);
    KeepSize(*this);
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
    add(Text(903013_text), "cmdAddRow", [this] { grid_->InsertRow(); });
    delete_ = add(Text(903014_text), "cmdDeleteRow", [this] { grid_->DeleteRows(); });
    up_ = add(Text(906534_text), "cmdUp", [this] { grid_->MoveRows(-1); });
    down_ = add(Text(906535_text), "cmdDown", [this] { grid_->MoveRows(1); });
    undo_ = add(Text(906536_text), "cmdUndo", [this] { grid_->Undo(); });
    redo_ = add(Text(906537_text), "cmdRedo", [this] { grid_->Redo(); });
    EditGrid::TellKeys(*this);
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
    SetInk(*note_, fault ? Ink::Error : Ink::Text);
    ok_->setEnabled(!fault);
    undo_->setEnabled(rows_.CanUndo());
    redo_->setEnabled(rows_.CanRedo());
    delete_->setEnabled(grid_->CanDelete());
    up_->setEnabled(grid_->CanMove(-1));
    down_->setEnabled(grid_->CanMove(1));

    if (rows_.Columns() < 2) return;
    std::vector<QPointF> points;
    for (int r = 0; r < rows_.Rows(); ++r) {
        const auto x = rows_.Number(r, 0), y = rows_.Number(r, 1);
        if (x && y) points.emplace_back(*x, *y);
    }
    chart_->Show(std::move(points), AxisTitle(table_.Columns[0].Head), AxisTitle(table_.Columns[1].Head));
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
