// StartView: the page of the frame while no project is open.
#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "ui/frame/MDITools.h"

class QLabel;

namespace lithmark {

class PageButton;

class StartView : public QWidget {
  public:
    StartView(MDITools& frame, QWidget* parent);
    void Show(const StartPage& page);

    // The user asks for the command of an entry.
    std::function<void(const std::string& key)> OnCommand;

  private:
    QLabel* recentHead_;
    std::vector<PageButton*> recent_;
};

}  // namespace lithmark
