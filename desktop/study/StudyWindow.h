// StudyWindow: a study of what a problem's dialog holds: what varies at the side, curve, table, frequency and tornado
// beside it, the command that does the same below. Looking changes nothing: all runs work on a copy.
#pragma once

#include <QDialog>

#include "desktop/Pause.h"
#include "desktop/study/ShowTimer.h"
#include "desktop/study/StudySubject.h"
#include "desktop/study/StudyWork.h"
#include "render/drawings/Inks.h"

class QBoxLayout;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTabWidget;

namespace lithmark {

class ChartPane;
class CommandBar;
class FieldChartView;
class RowsTab;
class StudyAsk;
class TornadoTab;
class WorkRow;

class StudyWindow : public QDialog {
  public:
    StudyWindow(const StudySubject& subject, QWidget* parent);

    const StudyWork& Work() const noexcept { return work_; }

    void done(int result) override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    enum Tab { kCurve, kTable, kHistogram, kTornado };

    QWidget* Tabs();
    QBoxLayout* Buttons();

    // After a change of what is asked, and as the former one has rested for a moment.
    void Asked();
    void Work(bool wanted);
    void Run();
    void Find();
    // What has come of the work.
    void Came();
    void ShowWork();
    void ShowRows();
    void ShowCurves(const StudyQuestion& asked, const StudyCurves& curves);
    void ShowTornado();
    void ShowProgress();
    void ShowCommand();
    std::vector<AskFault> Faults() const;  // of what is looked at
    void ShowFaults();
    void TellFault();
    void ShowFault(const std::string& reason);
    void Say(const QString& words, Ink ink);
    const StudyQuestion& AskedOfRows() const;
    bool RowsAreOld() const;
    bool BarsAreOld() const;

    void SaveShown();

    const StudySubject subject_;
    StudyQuestion question_;
    StudyWork work_;
    Pause rest_, patience_;
    bool typing_ = false;  // the last change came from a box that has the focus
    QString untold_;       // what is wrong and has not been said yet
    ShowTimer shown_;
    std::vector<std::string> rowsWords_;     // of the rows that are shown
    std::vector<std::string> tornadoWords_;  // of the tornado that is shown
    bool findShown_ = false;

    StudyAsk* ask_ = nullptr;
    QTabWidget* tabs_ = nullptr;
    QStackedWidget* drawn_ = nullptr;  // curves or a contour
    ChartPane *curve_ = nullptr, *histogram_ = nullptr;
    FieldChartView* contour_ = nullptr;
    TornadoTab* tornado_ = nullptr;
    RowsTab* table_ = nullptr;
    QLabel* answer_ = nullptr;
    WorkRow* progress_ = nullptr;
    CommandBar* command_ = nullptr;
    QPushButton *run_ = nullptr, *csv_ = nullptr, *sheet_ = nullptr, *chart_ = nullptr;
};

}  // namespace lithmark
