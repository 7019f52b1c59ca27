// ReportView: a report in a fixed-pitch font, with find; lines run from right to left in Arabic.
#pragma once

#include <QPlainTextEdit>
#include <string>
#include <utility>

namespace lithmark {

class ReportView : public QPlainTextEdit {
  public:
    explicit ReportView(QWidget* parent);
    QSize sizeHint() const override;
    void ShowReport(const std::string& text, const std::string& fontName, bool rightToLeft);
    // Which of how many places of a text is selected, from 1; 0 when none of them is.
    std::pair<int, int> PlaceOf(const QString& text) const;
    // Selects the next place of a text, from the begin again after the last one. False when there is none.
    bool FindNext(const QString& text, bool backwards = false);
    // The place that is selected, or the next one: as a text grows letter by letter, its place stays. An empty text
    // selects nothing.
    bool FindHere(const QString& text);

  private:
    std::string shown_;
};

}  // namespace lithmark
