#include "desktop/study/PointsWindow.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>

#include "desktop/ChartPane.h"
#include "desktop/ChartView.h"
#include "desktop/EditGrid.h"
#include "desktop/KeptSize.h"
#include "desktop/ManualTopics.h"
#include "desktop/PaneKeys.h"
#include "desktop/SaveChart.h"
#include "desktop/SaveDialog.h"
#include "desktop/Sizes.h"
#include "desktop/SpokenAlert.h"
#include "desktop/WidgetInk.h"
#include "desktop/study/AskTools.h"
#include "desktop/study/CommandBar.h"
#include "desktop/study/SaveTable.h"
#include "desktop/study/WorkRow.h"
#include "files/CommonStep.h"
#include "render/QtText.h"
#include "render/drawings/Inks.h"
#include "render/drawings/Symbols.h"
#include "services/storage/WrittenFile.h"
#include "services/texts/LanguageTexts.h"
#include "study/StudyFailure.h"
#include "study/window/CommandWords.h"
#include "study/window/NoticeWords.h"
#include "study/window/PointsChart.h"
#include "study/window/ShortNumber.h"
#include "ui/model/UnsavedInput.h"
#include "ui/model/UnsavedTable.h"

namespace lithmark {

namespace {

constexpr int kPointsRest = 150;  // ms after the last change until the points are worked

std::vector<FieldChoice> CoordinatesOf(const StudySubject& subject) {
    std::vector<FieldChoice> coordinates;
    for (const char* name : {"x", "y", "z"})
        for (const FieldChoice& field : subject.Fields)
            if (field.Name == name) coordinates.push_back(field);
    return coordinates;
}

// "sigma z, kN/m2", for those who hear a cell.
std::string InWords(const ResultChoice& result) {
    return SpokenSymbol(result.Symbol).toStdString() + (result.Unit.empty() ? "" : ", " + result.Unit);
}

}  // namespace

PointsWindow::PointsWindow(const StudySubject& subject, QWidget* parent)
    : QDialog(parent),
      subject_(subject),
      points_(CoordinatesOf(subject), subject.Results),
      project_(subject.Draft),
      process_(this),
      rest_(kPointsRest, [this] { Start(); }),
      keep_(kKeepAfter, [this] { Keep(); }),
      shown_([this] { ShowResults(false); }) {
    setObjectName(QStringLiteral("pointsWindow"));
    setWindowTitle(Q(Text(913278_text, {{"|1", subject.Title}})));
    setLayoutDirection(LanguageTexts().RightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    process_.OnLine = [this](const std::string& line) { Take(line); };
    process_.OnErrorLine = [this](const std::string& line) { trouble_ = line; };
    process_.OnEnd = [this](const CliEnd& end) { End(end); };

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(sizes::kEdge, sizes::kEdge, sizes::kEdge, sizes::kEdge);
    column->setSpacing(sizes::kRowGap);
    column->addWidget(InputLabel(this, subject));
    column->addLayout(FillRow());
    tabs_ = new QTabWidget(this);
    tabs_->setObjectName(QStringLiteral("tabs"));
    tabs_->tabBar()->setAccessibleName(Q(Text(913270_text)));
    tabs_->addTab(PointsTab(), Q(Text(913270_text)));
    tabs_->addTab(ChartTab(), Q(Text(913246_text)));
    column->addWidget(tabs_, 1);
    note_ = WordsLabel(this, "lblNote", 1);
    MakeAlert(*note_);
    column->addWidget(note_);
    progress_ = new WorkRow(this, [this] { process_.Cancel(); });
    column->addWidget(progress_);
    command_ = new CommandBar(this);
    command_->PlaceWith(*column, Buttons());
    BindHelpKey(*this, [] { return std::string("studies"); });
    new PaneKeys(*this);
    BindSaveKey(*this, *sheet_, *saveChart_, [this] { return tabs_->currentIndex() == 0; });
    grid_->OnRows = [this] { Changed(); };
    grid_->OnSelection = [this] { ShowState(); };
    grid_->OnPasted = [this](const std::string& words) {
        pasted_ = words;
        ShowState();
    };
    grid_->ShowRows();
    Recall();
    grid_->resizeColumnsToContents();
    grid_->setCurrentCell(0, 0);
    resize(1180, 640);
    KeepSize(*this);
}

QLayout* PointsWindow::FillRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(sizes::kColumnGap);
    const QString dots = QStringLiteral("...");
    AskButton(this, *row, Q(Text(913271_text)) + dots, "cmdGrid", [this] { Fill(PointsFill::Kind::Grid); });
    AskButton(this, *row, Q(Text(913272_text)) + dots, "cmdLine", [this] { Fill(PointsFill::Kind::Line); });
    AskButton(this, *row, Q(Text(913273_text)) + dots, "cmdDepths", [this] { Fill(PointsFill::Kind::Depths); });
    AskButton(this, *row, Q(Text(913279_text)), "cmdPaste", [this] { grid_->Paste(); });
    AskButton(this, *row, Q(Text(903013_text)), "cmdAddRow", [this] { grid_->InsertRow(); });
    delete_ = AskButton(this, *row, Q(Text(903014_text)), "cmdDeleteRow", [this] { grid_->DeleteRows(); });
    undo_ = AskButton(this, *row, Q(Text(906536_text, Styles::Button)), "cmdUndo", [this] { grid_->Undo(); });
    redo_ = AskButton(this, *row, Q(Text(906537_text, Styles::Button)), "cmdRedo", [this] { grid_->Redo(); });
    EditGrid::TellKeys(*this);
    row->addStretch(1);
    count_ = new QLabel(this);
    count_->setObjectName(QStringLiteral("lblCount"));
    row->addWidget(count_);
    return row;
}

QWidget* PointsWindow::PointsTab() {
    grid_ = new EditGrid(points_.Editing(), this);
    grid_->setAccessibleName(Q(Text(913270_text)));
    QStringList heads;
    const auto add = [&](const std::string& symbol, const std::string& unit) {
        heads.append(Q(symbol + "\n[" + (unit.empty() ? "-" : unit) + "]"));
    };
    for (const FieldChoice& field : points_.Coordinates()) add(field.Short(), field.Unit);
    for (const ResultChoice& result : points_.Results()) add(result.Short(), result.Unit);
    heads.append(Q(Text(913330_text)));
    grid_->setColumnCount(static_cast<int>(heads.size()));
    grid_->setHorizontalHeaderLabels(heads);
    for (std::size_t i = 0; i < points_.Results().size(); ++i)
        grid_->horizontalHeaderItem(static_cast<int>(points_.Coordinates().size() + i))
            ->setToolTip(Q(points_.Results()[i].Label));
    grid_->horizontalHeader()->setStretchLastSection(true);
    grid_->horizontalHeaderItem(grid_->columnCount() - 1)->setTextAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    return grid_;
}

QWidget* PointsWindow::ChartTab() {
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad);
    column->setSpacing(sizes::kRowGap);
    auto* row = new QHBoxLayout;
    row->setSpacing(sizes::kColumnGap);
    std::vector<QString> results, coordinates;
    for (const ResultChoice& result : points_.Results())
        results.push_back(SymbolAndWords(result.Short(), result.Label));
    for (const FieldChoice& field : points_.Coordinates()) coordinates.push_back(Q(field.Short()));
    result_ = AskList(page, QStringLiteral("cboResult"), results, [this] { ShowChart(); });
    coordinate_ = AskList(page, QStringLiteral("cboCoordinate"), coordinates, [this] { ShowChart(); });
    coordinate_->setCurrentIndex(coordinate_->count() - 1);
    row->addWidget(AskLabel(page, Text(913223_text), result_));
    row->addWidget(result_);
    row->addWidget(AskLabel(page, Text(913280_text), coordinate_));
    row->addWidget(coordinate_);
    row->addStretch(1);
    column->addLayout(row);
    constexpr int kLeastPlot = 150;
    chart_ = new ChartPane(PointsChart(points_, 0, 2, {}), page);
    chart_->Plot().setMinimumHeight(kLeastPlot);
    column->addWidget(chart_, 1);
    return page;
}

QBoxLayout* PointsWindow::Buttons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(sizes::kColumnGap);
    const QString dots = QStringLiteral("...");
    csv_ = AskButton(this, *row, QStringLiteral("CSV") + dots, "cmdCsv", [this] { SaveCsvFile(*this, table_->Csv()); });
    sheet_ = AskButton(this, *row, Q(Text(910007_text)) + dots, "cmdSheet",
                       [this] { SaveSheetFile(*this, table_->Cells()); });
    saveChart_ = AskButton(this, *row, Q(Text(913246_text)) + dots, "cmdChart", [this] {
        SaveChart(this, chart_->Plot().Chart(), chart_->Plot().Look(), ChartOf(points_.InPlainSymbols()));
    });
    save_ = AskButton(this, *row, Q(Text(913281_text)) + dots, "cmdSavePoints", [this] { SavePoints(); });
    save_->setToolTip(Q(Text(913282_text)));
    row->addStretch(1);
    AskButton(this, *row, Q(Text(913247_text, Styles::Button)), "cmdok", [this] { accept(); });
    return row;
}

// The rows are marked in inks of light or dark windows.
void PointsWindow::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && save_ != nullptr) ShowResults(true);
}

// --- the points ---

void PointsWindow::Fill(PointsFill::Kind kind) {
    PointsFill fill(points_, kind, this);
    if (fill.exec() != QDialog::Accepted) return;
    grid_->ShowRows();
    grid_->setCurrentCell(0, 0);
}

// One step back leads to the point of the dialog.
void PointsWindow::Recall() {
    const auto kept = KeptRows(points_.Opened());
    if (!kept || kept->Rows.empty() || kept->Rows == points_.Opened().Rows) return;
    points_.Editing().AppendRows(kept->Rows, true);
    grid_->ShowRows();
    keep_.stop();
    pasted_ = Text(913653_text);
    ShowState();
}

void PointsWindow::Keep() {
    keep_.stop();
    const TableTexts rows = points_.Editing().Texts();
    if (rows == points_.Opened().Rows)
        DropUnsavedRows(points_.Opened());
    else
        KeepRows(points_.Opened(), rows);
}

void PointsWindow::done(int result) {
    if (keep_.isActive()) Keep();
    QDialog::done(result);
}

void PointsWindow::Changed() {
    if (points_.Editing().CanUndo() || points_.Editing().CanRedo()) keep_.start();
    pasted_.clear();
    stale_ = true;
    faults_.clear();
    for (int row = 0; row < points_.Editing().Rows(); ++row) faults_.push_back(points_.Fault(row).value_or(""));
    rest_.start();
    ShowResults(true);
}

void PointsWindow::SavePoints() {
    const auto file = AskForFile(this, windowTitle(), {{Q(Text(910008_text)), QStringLiteral("csv")}});
    if (!file) return;
    UnderCommonStep([&] {
        WriteWholeFile(file->Path, points_.RowsCsv());
        pointsFile_ = file->Path;
    });
    ShowCommand();
}

// --- their work ---

void PointsWindow::Start() {
    worked_ = points_.GoodRows();
    table_.reset();
    trouble_.clear();
    cancelled_ = false;
    stale_ = false;
    if (worked_.empty()) {
        process_.Cancel();
        return ShowResults(true);
    }
    UnderCommonStep([&] {
        const std::string file = project_.Folder() + "points.csv";
        WriteWholeFile(file, points_.RowsCsv());
        const StudyRequest request = points_.Request(file);
        table_ = std::make_unique<StudyTable>(request);
        std::vector<std::string> words = StudyWords(project_.ProjectFile(), request);
        const std::vector<std::string> options = project_.Options();
        words.insert(words.end(), options.begin(), options.end());
        process_.Start(words);
    });
    ShowResults(true);
}

void PointsWindow::Take(const std::string& line) {
    try {
        if (table_) table_->Append(line + "\n");
    } catch (const StudyFailure& failure) {
        trouble_ = failure.what();
        process_.Cancel();
    }
    shown_.Came();
}

// Statuses 3 and 4 tell of aborted rows, which stand in the table.
void PointsWindow::End(const CliEnd& end) {
    constexpr int kAllAborted = 3, kSomeAborted = 4;
    cancelled_ = end.Way == CliEnd::How::Cancelled;
    const bool good =
        end.Way == CliEnd::How::Exited && (end.Status == 0 || end.Status == kAllAborted || end.Status == kSomeAborted);
    if (good)
        trouble_.clear();
    else if (trouble_.empty() && !cancelled_)
        trouble_ = Text(913244_text, {{"|1", CliProcess::Program()}});
    ShowResults(false);
    grid_->resizeColumnsToContents();
}

const StudyLine* PointsWindow::LineOf(int row) const {
    const auto found = std::lower_bound(worked_.begin(), worked_.end(), row);
    if (!table_ || found == worked_.end() || *found != row) return nullptr;
    const auto place = static_cast<std::size_t>(found - worked_.begin());
    return place < table_->Lines().size() ? &table_->Lines()[place] : nullptr;
}

// --- what is shown ---

void PointsWindow::ShowResults(bool all) {
    shown_.stop();
    const QSignalBlocker quiet(grid_);
    const std::size_t lines = table_ && !stale_ ? table_->Lines().size() : 0;
    if (all) {
        for (int row = 0; row < points_.Editing().Rows(); ++row) ShowRow(row);
    } else {
        for (std::size_t line = linesShown_; line < lines; ++line) ShowRow(worked_[line]);
    }
    linesShown_ = lines;
    ShowChart();
    ShowState();
}

void PointsWindow::ShowChart() {
    chart_->ShowChart(ChartOf(points_));
}

void PointsWindow::ShowRow(int row) {
    const Theme theme = ThemeOf(palette());
    const int first = points_.Editing().Columns(), last = grid_->columnCount() - 1;
    const StudyLine* line = stale_ ? nullptr : LineOf(row);
    const std::string& fault = faults_[static_cast<std::size_t>(row)];
    const bool wrong = !fault.empty() || (line != nullptr && line->Aborted());
    const bool noticed = line != nullptr && !line->Notices.empty();
    for (int column = first; column <= last; ++column) {
        QTableWidgetItem* item = grid_->item(row, column);
        if (item == nullptr) {
            item = new QTableWidgetItem;
            item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
            item->setTextAlignment(column == last ? Qt::Alignment(Qt::AlignVCenter | Qt::AlignLeading)
                                                  : Qt::AlignRight | Qt::AlignVCenter | Qt::AlignAbsolute);
            grid_->setItem(row, column, item);
        }
        std::string text;
        if (column == last) {
            text = !fault.empty() ? fault : line == nullptr ? "" : line->Status;
            if (noticed) text = Together(text) + " - " + NoticeWords(line->Notices);
        } else if (line != nullptr && !line->Aborted()) {
            const auto place = static_cast<std::size_t>(column - first);
            const float number = line->Numbers[place];
            if (!IsMissing(number)) text = points_.Results()[place].Shown(static_cast<double>(number));
        }
        item->setText(Q(text));
        const std::string head =
            column == last ? Text(913330_text) : InWords(points_.Results()[static_cast<std::size_t>(column - first)]);
        item->setData(Qt::AccessibleTextRole,
                      Q(Text(906538_text, {{"|1", std::to_string(row + 1)}, {"|2", head}}) + ", " + text));
        item->setForeground(wrong                       ? QBrush(ColourOf(Ink::Error, theme))
                            : noticed && column == last ? QBrush(ColourOf(Ink::Warning, theme))
                                                        : QBrush());
        const std::string ids = noticed ? "\n" + line->Notices : std::string();
        item->setToolTip(column == last ? Q(text + ids) : QString());
    }
}

ChartArguments PointsWindow::ChartOf(const PointsTable& points) const {
    const int result = std::max(0, result_->currentIndex());
    std::vector<float> numbers;
    for (int row = 0; row < points_.Editing().Rows(); ++row) {
        const StudyLine* line = stale_ ? nullptr : LineOf(row);
        numbers.push_back(line == nullptr || line->Aborted() ? kMissing
                                                             : line->Numbers[static_cast<std::size_t>(result)]);
    }
    return PointsChart(points, result, std::max(0, coordinate_->currentIndex()), numbers);
}

void PointsWindow::ShowState() {
    const int rows = points_.Editing().Rows();
    const auto bad = std::ranges::count_if(faults_, [](const std::string& fault) { return !fault.empty(); });
    const auto fault = bad > 0 ? points_.Editing().FirstFault() : std::nullopt;
    std::string note = pasted_;
    if (fault) {
        // The reason begins with the name of the column, which stands behind the row already.
        const std::string title = points_.Editing().Title(fault->Column);
        std::string reason = points_.Editing().Fault(fault->Row, fault->Column).value_or("");
        if (reason.starts_with(title + ": ")) reason = reason.substr(title.size() + 2);
        note = Text(906538_text, {{"|1", std::to_string(fault->Row + 1)}, {"|2", title}}) + ": " + reason;
    }
    if (!trouble_.empty()) note = trouble_;
    // What has become wrong, or is wrong otherwise, is told at once.
    if ((fault || !trouble_.empty()) && isVisible() && note_->text() != Q(note)) SpeakAlert(*note_, Q(note));
    note_->setText(Q(note));
    note_->setAccessibleName(Q(note));
    SetInk(*note_, fault || !trouble_.empty() ? Ink::Error : Ink::Text);
    count_->setText(Q(Text(913283_text, {{"|1", std::to_string(rows)}})));

    const std::size_t done = table_ ? table_->Lines().size() : 0;
    const int aborted = table_ ? table_->Aborted() : 0;
    const auto wrong = bad + aborted;
    std::string state = Text(913284_text, {{"|1", std::to_string(done - static_cast<std::size_t>(aborted))}});
    if (wrong > 0) state += Text(913285_text, {{"|1", std::to_string(wrong)}});
    if (cancelled_ && table_ && done < worked_.size())
        state += Text(913239_text, {{"|1", std::to_string(worked_.size() - done)}});
    if (stale_) state = "! " + Text(913241_text);
    progress_->Say(state, stale_ || wrong > 0);
    const bool working = process_.Running();
    if (working)
        progress_->Run(done, worked_.size());
    else
        progress_->Rest();
    delete_->setEnabled(grid_->CanDelete());
    undo_->setEnabled(points_.Editing().CanUndo());
    redo_->setEnabled(points_.Editing().CanRedo());
    for (QPushButton* button : {csv_, sheet_}) button->setEnabled(done > 0 && !working && !stale_);
    ShowCommand();
}

void PointsWindow::ShowCommand() {
    command_->Show(StudyWords(SavedProject(), points_.Request(pointsFile_)));
}

}  // namespace lithmark
