// PointsWindow: the points of a stress, strain or displacement problem as a table with all their results, worked beside
// the windows as they are typed.
#pragma once

#include <QDialog>
#include <memory>
#include <vector>

#include "desktop/CliProcess.h"
#include "desktop/Pause.h"
#include "desktop/study/PointsFill.h"
#include "desktop/study/ShowTimer.h"
#include "desktop/study/StudySubject.h"
#include "services/host/Charting.h"
#include "ui/model/DraftProject.h"

class QBoxLayout;
class QComboBox;
class QLabel;
class QPushButton;
class QTabWidget;

namespace lithmark {

class ChartPane;
class CommandBar;
class EditGrid;
class WorkRow;

class PointsWindow : public QDialog {
  public:
    // The fields of the subject hold x, y and z.
    PointsWindow(const StudySubject& subject, QWidget* parent);

    const PointsTable& Points() const noexcept { return points_; }
    // The rows that are worked; null before the first.
    const StudyTable* Table() const noexcept { return table_.get(); }
    bool Working() const noexcept { return process_.Running(); }

    // The points are there again when the window opens anew.
    void done(int result) override;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    QLayout* FillRow();
    QWidget* PointsTab();
    QWidget* ChartTab();
    QBoxLayout* Buttons();

    void Fill(PointsFill::Kind kind);
    // The points of the last time, as long as they are of the same project, units and language.
    void Recall();
    void Keep();
    // The points are other ones.
    void Changed();
    void Start();
    void Take(const std::string& line);
    void End(const CliEnd& end);
    // Of all rows, or of those alone that have come since.
    void ShowResults(bool all);
    void ShowRow(int row);
    void ShowChart();
    // The result and the coordinate that are chosen, of all points that are worked.
    ChartArguments ChartOf(const PointsTable& points) const;
    void ShowState();
    void ShowCommand();
    // The results of a row of the table; null where there are none.
    const StudyLine* LineOf(int row) const;
    void SavePoints();

    const StudySubject subject_;
    PointsTable points_;
    DraftProject project_;
    CliProcess process_;
    std::unique_ptr<StudyTable> table_;
    std::vector<int> worked_;          // rows of the points by the rows of the study
    std::vector<std::string> faults_;  // why rows cannot be worked, by row; empty for good ones
    std::size_t linesShown_ = 0;
    bool stale_ = false, cancelled_ = false;
    std::string trouble_, pasted_, pointsFile_ = "points.csv";
    Pause rest_, keep_;
    ShowTimer shown_;

    EditGrid* grid_ = nullptr;
    ChartPane* chart_ = nullptr;
    QTabWidget* tabs_ = nullptr;
    QComboBox *result_ = nullptr, *coordinate_ = nullptr;
    QLabel *count_ = nullptr, *note_ = nullptr;
    WorkRow* progress_ = nullptr;
    CommandBar* command_ = nullptr;
    QPushButton *delete_ = nullptr, *undo_ = nullptr, *redo_ = nullptr, *csv_ = nullptr, *sheet_ = nullptr,
                *save_ = nullptr, *saveChart_ = nullptr;
};

}  // namespace lithmark
