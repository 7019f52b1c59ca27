// ReportView: a report in a fixed-pitch font, with find; lines run from right to left in Arabic.
#pragma once

#include <QPlainTextEdit>
#include <string>

namespace lithmark {

class ReportView : public QPlainTextEdit {
  public:
    explicit ReportView(QWidget* parent);
    void ShowReport(const std::string& text, const std::string& fontName, bool rightToLeft);
    // Selects the next place of a text, from the begin again after the last one. False when there is none.
    bool FindNext(const QString& text, bool backwards = false);

  private:
    std::string shown_;
};

}  // namespace lithmark
