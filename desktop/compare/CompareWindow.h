// CompareWindow: two stored projects of one problem beside each other: the inputs that differ, the results, the curves
// over each other.
#pragma once

#include <QDialog>
#include <optional>
#include <string>
#include <vector>

#include "desktop/answer/CliAnswerWorker.h"
#include "ui/compare/Comparison.h"

class QComboBox;
class QLabel;
class QTabWidget;
class QTableWidget;

namespace lithmark {

class ChartPane;

class CompareWindow : public QDialog {
  public:
    CompareWindow(ComparedPair pair, QWidget* parent);

    // Both have been worked out, or cannot be.
    bool Worked() const { return one_ && other_; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QTableWidget* AddTable(const char* name, TextId caption);
    QWidget* MakeCurves();
    QWidget* MakeButtons();
    void Show(QTableWidget& table, const std::vector<ComparedRow>& rows) const;
    // The first, then the other.
    void Work(bool first);
    void Take(bool first, ComparedAnswer answer);
    void ShowState();
    void ShowResults();
    void ShowCurve();
    const ChartArguments& ChosenChart() const;
    void Save();
    void Copy();

    const ComparedPair pair_;
    const std::vector<ComparedRow> inputs_;
    CliAnswerWorker worker_;
    std::optional<ComparedAnswer> one_, other_;
    std::vector<ComparedRow> compared_;
    std::vector<ChartArguments> charts_;
    QLabel *state_, *chart_ = nullptr;
    QTabWidget* tabs_;
    QTableWidget *differing_, *results_;
    QWidget* curves_;
    QComboBox* choice_ = nullptr;
    ChartPane* pane_ = nullptr;
};

}  // namespace lithmark
