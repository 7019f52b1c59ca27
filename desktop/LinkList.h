// LinkList: a few lines of text, each of which leads somewhere.
#pragma once

#include <QListWidget>
#include <functional>
#include <string>
#include <vector>

namespace lithmark {

class LinkList : public QListWidget {
  public:
    explicit LinkList(QWidget* parent);
    void ShowItems(const std::vector<std::string>& items);
    // A click on a row, or Enter on it.
    std::function<void(int row)> OnLink;

    QSize sizeHint() const override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
};

}  // namespace lithmark
