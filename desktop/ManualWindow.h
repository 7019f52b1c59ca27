// ManualWindow: a page of the manual, at a section.
#pragma once

#include <QDialog>
#include <string>

class QTextBrowser;

namespace lithmark {

class ManualWindow : public QDialog {
  public:
    // A page with its section, as PageOfTopic tells it.
    ManualWindow(QWidget* parent, const std::string& page);

    const std::string& Page() const noexcept { return page_; }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void Open(const std::string& page);
    void Follow(const std::string& link);
    void ScrollToSection();

    QTextBrowser* browser_;
    std::string page_, section_;
};

}  // namespace lithmark
