// ManualWindow: a page of the manual, at a section.
#pragma once

#include <QDialog>
#include <string>
#include <vector>

class QPushButton;
class QTextBrowser;

namespace lithmark {

class ManualWindow : public QDialog {
  public:
    // A page with its section, as PageOfTopic tells it. Where examples cannot be opened, a link to one says why.
    ManualWindow(QWidget* parent, const std::string& page, bool opensExamples = false);

    const std::string& Page() const noexcept { return page_; }
    // The example that the user has asked for, which closes the window; else empty.
    const std::string& Example() const noexcept { return example_; }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void Open(const std::string& page);
    void Follow(const std::string& link);
    void ScrollToSection();
    void GoBack();

    struct Former {
        std::string Page;
        int Scrolled;
    };
    QTextBrowser* browser_;
    QPushButton* back_;
    std::vector<Former> former_;
    const bool opensExamples_;
    std::string page_, section_, example_;
};

}  // namespace lithmark
