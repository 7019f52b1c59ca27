// CommandBar: the command that does the same as a window, ready to be copied.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

class QLineEdit;
class QPushButton;

namespace lithmark {

class CommandBar : public QWidget {
  public:
    // On a small screen it is a button alone.
    explicit CommandBar(QWidget* parent);
    // Empty where there is none.
    void Show(const std::vector<std::string>& words);

  private:
    QLineEdit* text_;
    QPushButton* copy_ = nullptr;
};

}  // namespace lithmark
