// ManualWindow: a page of the manual, at a section.
#pragma once

#include <QDialog>
#include <string>

class QTextBrowser;

namespace lithmark {

// The Markdown of a page ("notices"); empty for a page that the program does not bring along.
std::string ManualPage(const std::string& name);

class ManualWindow : public QDialog {
  public:
    // A topic is the name of a page, or page#section.
    ManualWindow(QWidget* parent, const std::string& topic);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void Open(const std::string& topic);
    void ScrollToSection();

    QTextBrowser* browser_;
    std::string page_, section_;
};

}  // namespace lithmark
