// ProjectView: the page of the frame while a project is open: what it is about, what it lacks, and the way on.
#pragma once

#include <QWidget>
#include <functional>
#include <string>

#include "ui/frame/MDITools.h"

class QLabel;

namespace lithmark {

class PageButton;

class ProjectView : public QWidget {
  public:
    explicit ProjectView(QWidget* parent);
    void Show(const ProjectSummary& summary);

    std::function<void(const std::string& key)> OnCommand;

  private:
    QLabel *name_, *directory_, *problem_, *order_, *date_, *project_, *state_, *stateIcon_, *problemIcon_;
    PageButton *calculate_, *data_;
    QString calculateCaption_;
    int entry_ = -1;
};

}  // namespace lithmark
