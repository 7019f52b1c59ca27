// CommandBar: the command that does the same as a window, ready to be copied.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

class QBoxLayout;
class QLineEdit;
class QPushButton;

namespace lithmark {

class CommandBar : public QWidget {
  public:
    // On a small screen it is a button alone.
    explicit CommandBar(QWidget* parent);
    // Ends a window's column with itself and the row of buttons below it; on a small screen it stands in that row,
    // ahead of the last button.
    void PlaceWith(QBoxLayout& column, QBoxLayout* buttons);
    // Empty where there is none.
    void Show(const std::vector<std::string>& words);

  private:
    QLineEdit* text_;
    QPushButton* copy_ = nullptr;
};

}  // namespace lithmark
