// The choice of what a document has besides the report: one row of boxes for the printer's preview and for the dialog
// that saves a report.
#pragma once

#include <QWidget>
#include <functional>
#include <utility>
#include <vector>

#include "base/TextId.h"
#include "render/ReportPaper.h"
#include "report/AfterReport.h"

class QBoxLayout;
class QCheckBox;

namespace lithmark {

class DocumentChoices : public QWidget {
  public:
    // Boxes for what the report in force can have, as they are chosen.
    explicit DocumentChoices(QWidget* parent);
    // Whether there is anything to choose.
    bool Any() const noexcept { return !boxes_.empty(); }
    // The boxes as the parts are chosen now, somewhere else.
    void Follow();
    // After a change.
    std::function<void()> OnChange;

  private:
    void Add(QBoxLayout& row, TextId caption, const char* name, bool DocumentParts::*part);

    std::vector<std::pair<QCheckBox*, bool DocumentParts::*>> boxes_;
};

// The paper of the report in force with the figures that are chosen. A Failure when they cannot be drawn.
ReportPaper PaperChosen();

}  // namespace lithmark
