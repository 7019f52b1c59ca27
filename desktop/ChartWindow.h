// ChartWindow: the curves of a problem on the screen, and their way into files.
#pragma once

#include <QDialog>

#include "services/host/Charting.h"

namespace lithmark {

class ChartWindow : public QDialog {
  public:
    ChartWindow(const ChartArguments& chart, QWidget* parent);

  private:
    // Asks for a name and writes the chart in the format of its ending.
    void Export();

    const ChartArguments chart_;
};

}  // namespace lithmark
