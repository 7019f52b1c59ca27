#include "desktop/study/StudyWindow.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>

#include "desktop/ChartPane.h"
#include "desktop/ChartView.h"
#include "desktop/KeptSize.h"
#include "desktop/ManualTopics.h"
#include "desktop/PaneKeys.h"
#include "desktop/SaveChart.h"
#include "desktop/ScrollColumn.h"
#include "desktop/Sizes.h"
#include "desktop/SpokenAlert.h"
#include "desktop/WidgetInk.h"
#include "desktop/study/AskTools.h"
#include "desktop/study/CommandBar.h"
#include "desktop/study/FieldChartView.h"
#include "desktop/study/RowsTab.h"
#include "desktop/study/SaveTable.h"
#include "desktop/study/StudyAsk.h"
#include "desktop/study/TornadoTab.h"
#include "desktop/study/WorkRow.h"
#include "files/CommonStep.h"
#include "render/QtText.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"
#include "study/window/ShortNumber.h"
#include "study/window/StudyCharts.h"
#include "study/window/StudyContour.h"
#include "study/window/StudyMemory.h"
#include "ui/model/BoxMarks.h"

namespace lithmark {

namespace {

constexpr int kStudyRest = 150;  // ms after the last change until the study begins

const std::string kStudySection = "Study";

// The last study of each problem.
std::string MemoryKey() {
    return "Problem " + std::to_string(Session.ProblemType);
}

}  // namespace

StudyWindow::StudyWindow(const StudySubject& subject, QWidget* parent)
    : QDialog(parent),
      subject_(subject),
      question_(subject.Fields, subject.Results, subject.First),
      work_(subject.Draft, this),
      rest_(kStudyRest, [this] { Work(false); }),
      patience_(kUnfinishedFor, [this] { ShowFaults(); }),
      shown_([this] { ShowWork(); }) {
    setObjectName(QStringLiteral("studyWindow"));
    Recall(question_, SharedServices().GetSetting(kApplicationTitle, kStudySection, MemoryKey(), ""));
    setWindowTitle(Q(Text(913242_text, {{"|1", subject.Title}})));
    setLayoutDirection(LanguageTexts().RightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(sizes::kEdge, sizes::kEdge, sizes::kEdge, sizes::kEdge);
    column->setSpacing(sizes::kRowGap);
    column->addWidget(InputLabel(this, subject));
    auto* columns = new QHBoxLayout;
    columns->setSpacing(sizes::kGroupGap);
    ask_ = new StudyAsk(question_, this);
    columns->addWidget(new ScrollColumn(ask_, this));
    columns->addWidget(Tabs(), 1);
    column->addLayout(columns, 1);
    answer_ = WordsLabel(this, "lblAnswer", 2);
    MakeAlert(*answer_);
    column->addWidget(answer_);
    progress_ = new WorkRow(this, [this] { work_.Cancel(); });
    run_ = AskButton(progress_, progress_->Row(), Q(Text(913233_text, Styles::Button)), "cmdRun", [this] { Run(); });
    run_->setToolTip(QKeySequence(Qt::Key_F5).toString(QKeySequence::NativeText));
    column->addWidget(progress_);
    command_ = new CommandBar(this);
    command_->PlaceWith(*column, Buttons());
    BindHelpKey(*this, [] { return std::string("studies"); });
    new PaneKeys(*this);
    BindSaveKey(*this, *sheet_, *chart_, [this] { return tabs_->currentIndex() == kTable; });

    ask_->OnChange = tornado_->OnChange = [this] { Asked(); };
    ask_->OnFind = [this] { Find(); };
    work_.OnChange = [this] { Came(); };
    // A number that is left is finished.
    connect(qApp, &QApplication::focusChanged, &patience_, [this] {
        typing_ = false;
        if (patience_.isActive()) return ShowFaults();
        TellFault();
    });
    connect(tabs_, &QTabWidget::currentChanged, this, [this] { Asked(); });
    resize(1080, 720);
    KeepSize(*this);
    Asked();
}

QWidget* StudyWindow::Tabs() {
    tabs_ = new QTabWidget(this);
    tabs_->setObjectName(QStringLiteral("tabs"));
    tabs_->tabBar()->setAccessibleName(Q(Text(913324_text)));
    StudyCurves none;
    const auto chart = [&] {
        return question_.FirstVaried() != nullptr ? CurveChart(question_, none) : ChartArguments();
    };
    const auto add = [&](QWidget* page, TextId text) {
        if (page->layout() != nullptr)
            page->layout()->setContentsMargins(sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad);
        tabs_->addTab(page, Q(Text(text)));
    };
    constexpr int kLegendRoom = 560, kLeastPlot = 150;
    drawn_ = new QStackedWidget(tabs_);
    curve_ = new ChartPane(chart(), drawn_, kLegendRoom);
    curve_->setObjectName(QStringLiteral("curve"));
    contour_ = new FieldChartView(drawn_);
    contour_->setObjectName(QStringLiteral("contour"));
    drawn_->addWidget(curve_);
    drawn_->addWidget(contour_);
    // Pages that lie on each other take no edge of their layout.
    drawn_->setContentsMargins(sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad);
    add(drawn_, 913227_text);
    table_ = new RowsTab(tabs_);
    add(table_, 913228_text);
    histogram_ = new ChartPane(HistogramChart(question_, {}), tabs_, kLegendRoom);
    histogram_->setObjectName(QStringLiteral("histogram"));
    add(histogram_, 913229_text);
    for (ChartPane* pane : {curve_, histogram_}) pane->Plot().setMinimumHeight(kLeastPlot);
    tornado_ = new TornadoTab(question_, tabs_);
    add(tornado_, 913230_text);
    return tabs_;
}

QBoxLayout* StudyWindow::Buttons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(sizes::kColumnGap);
    const QString dots = QStringLiteral("...");
    csv_ = AskButton(this, *row, QStringLiteral("CSV") + dots, "cmdCsv",
                     [this] { SaveCsvFile(*this, work_.Rows()->Csv()); });
    sheet_ = AskButton(this, *row, Q(Text(910007_text)) + dots, "cmdSheet",
                       [this] { SaveSheetFile(*this, work_.Rows()->Cells()); });
    chart_ = AskButton(this, *row, Q(Text(913246_text)) + dots, "cmdChart", [this] { SaveShown(); });
    row->addStretch(1);
    AskButton(this, *row, Q(Text(913247_text, Styles::Button)), "cmdok", [this] { accept(); });
    return row;
}

void StudyWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F5) return Run();
    QDialog::keyPressEvent(event);
}

void StudyWindow::done(int result) {
    UnderCommonStep(
        [&] { SharedServices().SaveSetting(kApplicationTitle, kStudySection, MemoryKey(), MemoryOf(question_)); });
    QDialog::done(result);
}

// --- what is asked ---

void StudyWindow::Asked() {
    findShown_ = false;
    const auto* typed = qobject_cast<const QLineEdit*>(focusWidget());
    typing_ = typed != nullptr;
    if (const bool faulty = !Faults().empty(); faulty && typed != nullptr && IsUnfinished(typed->text().toStdString()))
        patience_.start();
    else
        ShowFaults();
    run_->setEnabled(Faults().empty());
    ShowCommand();
    ShowProgress();
    rest_.start();
}

std::vector<AskFault> StudyWindow::Faults() const {
    return tabs_->currentIndex() == kTornado ? question_.TornadoFaults() : question_.Faults();
}

void StudyWindow::ShowFaults() {
    patience_.stop();
    ask_->Mark(question_.Faults());
    tornado_->Mark(question_.TornadoFaults());
    if (const auto faults = Faults(); !faults.empty()) ShowFault(faults.front().Reason);
}

void StudyWindow::ShowFault(const std::string& reason) {
    if (isVisible() && answer_->text() != Q(reason)) untold_ = Q(reason);
    Say(Q(reason), Ink::Error);
    TellFault();
}

// Nothing is said as one types: what is wrong is told as its box is left.
void StudyWindow::TellFault() {
    if (typing_ || untold_.isEmpty()) return;
    if (answer_->text() == untold_) SpeakAlert(*answer_, untold_);
    untold_.clear();
}

void StudyWindow::Say(const QString& words, Ink ink) {
    answer_->setText(words);
    answer_->setAccessibleName(words);
    SetInk(*answer_, ink);
}

// The rows as soon as what is asked rests, unless they are there already; the tornado where it is looked at.
void StudyWindow::Work(bool wanted) {
    rest_.stop();
    if (tabs_->currentIndex() == kTornado) {
        if (!question_.TornadoFaults().empty()) return;
        const auto words = StudyWork::TornadoWords(question_, SavedProject());
        if (words == tornadoWords_ && !wanted) return ShowWork();
        tornadoWords_ = words;
        work_.StartTornado(question_);
        return;
    }
    if (!question_.Faults().empty()) return;
    const auto words = StudyWork::RowsWords(question_, SavedProject());
    if (words == rowsWords_ && !wanted && work_.EndOfRows() != StudyWork::RowsEnd::None) return ShowWork();
    rowsWords_ = words;
    work_.StartRows(question_, wanted);
    ShowProgress();
}

void StudyWindow::Run() {
    Work(true);
}

void StudyWindow::Find() {
    const std::vector<AskFault> faults = question_.FindFaults();
    if (!faults.empty()) {
        ask_->Mark(faults);
        return ShowFault(faults.front().Reason);
    }
    rest_.stop();
    findShown_ = true;
    ShowCommand();
    work_.StartFind(question_);
}

// Of the same rows, what is drawn is as it is asked now.
const StudyQuestion& StudyWindow::AskedOfRows() const {
    const StudyQuestion* told = work_.Question();
    return told && RowsAreOld() ? *told : question_;
}

bool StudyWindow::RowsAreOld() const {
    return work_.Rows() != nullptr &&
           (!question_.Faults().empty() || StudyWork::RowsWords(question_, SavedProject()) != rowsWords_);
}

bool StudyWindow::BarsAreOld() const {
    return !work_.Bars().empty() &&
           (!question_.TornadoFaults().empty() || StudyWork::TornadoWords(question_, SavedProject()) != tornadoWords_);
}

// --- what has come ---

void StudyWindow::Came() {
    shown_.Came();
    if (work_.Doing() == StudyWork::Job::None) ShowWork();
}

void StudyWindow::ShowWork() {
    shown_.stop();
    ShowRows();
    ShowTornado();
    ShowProgress();
}

void StudyWindow::ShowRows() {
    if (work_.Question() == nullptr || work_.Rows() == nullptr) return;
    const StudyQuestion& asked = AskedOfRows();
    std::string answer;
    if (asked.FirstVaried() != nullptr) {
        const StudyCurves curves = CurvesOf(asked, *work_.Rows(), work_.Present());
        ShowCurves(asked, curves);
        if (work_.Doing() != StudyWork::Job::Rows) answer = CrossingText(asked, curves);
    }
    if (asked.IsRandom()) {
        histogram_->ShowChart(HistogramChart(asked, HistogramOf(asked, *work_.Rows())));
        answer += (answer.empty() ? "" : " ") + HistogramText(asked, *work_.Rows());
    }
    tabs_->setTabEnabled(kCurve, asked.FirstVaried() != nullptr);
    tabs_->setTabEnabled(kHistogram, asked.IsRandom());
    table_->ShowRows(asked, *work_.Rows());
    if (!work_.Found().empty()) answer = Text(913248_text, {{"|1", work_.Found()}});
    if (work_.Doing() == StudyWork::Job::Find) answer = Text(903005_text);
    if (!work_.Trouble().empty()) answer = work_.Trouble();
    if (!question_.Faults().empty() && tabs_->currentIndex() != kTornado) return;
    const QString direction = LanguageTexts().RightToLeft() ? QString(QChar(0x200F)) : QString();
    Say(direction + Q(answer), work_.Trouble().empty() ? Ink::Text : Ink::Error);
}

void StudyWindow::ShowCurves(const StudyQuestion& asked, const StudyCurves& curves) {
    const bool contour = asked.DrawsContour();
    tabs_->setTabText(kCurve, Q(Text(contour ? 140017_text : 913227_text)));
    drawn_->setCurrentWidget(contour ? static_cast<QWidget*>(contour_) : curve_);
    if (!contour) return curve_->ShowChart(CurveChart(asked, curves));
    const std::optional<FieldChart> chart = ContourOf(asked, curves);
    contour_->Show(chart, chart ? ContourWords(asked, *chart) : std::string(),
                   [asked, chart](const FieldPoint& at) { return UnderContour(asked, *chart, at); });
}

void StudyWindow::ShowTornado() {
    if (!work_.TornadoQuestion()) return;
    const bool working = work_.Doing() == StudyWork::Job::Middle || work_.Doing() == StudyWork::Job::Tornado;
    const bool none = work_.Bars().empty() || !work_.TornadoMiddle();
    TornadoPicture picture;
    if (!none) picture = TornadoPictureOf(*work_.TornadoQuestion(), work_.Bars(), *work_.TornadoMiddle());
    QString note;
    if (none) note = Q(working ? Text(903005_text) : work_.Trouble().empty() ? Text(913249_text) : work_.Trouble());
    tornado_->ShowBars(picture, note);
}

void StudyWindow::ShowProgress() {
    using Job = StudyWork::Job;
    using End = StudyWork::RowsEnd;
    const StudyTable* rows = work_.Rows();
    const std::uint64_t done = rows == nullptr ? 0 : rows->Lines().size(),
                        wanted = rows == nullptr ? 0 : rows->Wanted();
    if (work_.Doing() == Job::None)
        progress_->Rest();
    else
        progress_->Run(done, work_.Doing() == Job::Rows ? wanted : 0);
    std::string text;
    bool warning = false;
    if (rows != nullptr) {
        text = Text(913237_text, {{"|1", std::to_string(done)}, {"|2", std::to_string(wanted)}});
        if (const int aborted = rows->Aborted(); aborted > 0)
            text += Text(913238_text, {{"|1", std::to_string(aborted)}});
        if (work_.EndOfRows() != End::None && done < wanted)
            text += Text(913239_text, {{"|1", std::to_string(wanted - done)}});
        if (work_.EndOfRows() == End::Promised) {
            text += Text(913240_text, {{"|1", ShortNumber(work_.PromisedSeconds(), 2)}});
            warning = true;
        }
    }
    // What belongs to former boxes says so.
    if (tabs_->currentIndex() == kTornado ? BarsAreOld() : RowsAreOld()) {
        text = "! " + Text(913241_text) + (text.empty() ? "" : " - " + text);
        warning = true;
    }
    progress_->Say(text, warning);
    const bool any = done > 0 && work_.Doing() != Job::Rows;
    csv_->setEnabled(any);
    sheet_->setEnabled(any);
    const bool contour = tabs_->currentIndex() == kCurve && drawn_->currentWidget() == contour_;
    chart_->setEnabled(tabs_->currentIndex() == kTornado ? !tornado_->Picture().Bars.empty()
                                                         : any && (!contour || contour_->Chart().has_value()));
}

void StudyWindow::ShowCommand() {
    std::vector<std::string> words;
    if (findShown_)
        words = StudyWork::FindWords(question_, SavedProject());
    else if (tabs_->currentIndex() == kTornado)
        words = question_.TornadoFaults().empty() ? StudyWork::TornadoWords(question_, SavedProject()) : words;
    else if (question_.Faults().empty())
        words = StudyWork::RowsWords(question_, SavedProject());
    command_->Show(words);
}

// --- the ways out ---

void StudyWindow::SaveShown() {
    if (tabs_->currentIndex() == kTornado) return SaveTornadoFile(*this, tornado_->Picture());
    if (tabs_->currentIndex() == kCurve && drawn_->currentWidget() == contour_)
        return SaveFieldChartFile(*this, *contour_->Chart());
    const bool histogram = tabs_->currentIndex() == kHistogram;
    ChartView& plot = (histogram ? histogram_ : curve_)->Plot();
    const StudyQuestion plain = AskedOfRows().InPlainSymbols();
    SaveChart(this, plot.Chart(), plot.Look(),
              histogram ? HistogramChart(plain, HistogramOf(plain, *work_.Rows()))
                        : CurveChart(plain, CurvesOf(plain, *work_.Rows(), work_.Present())));
}

}  // namespace lithmark
