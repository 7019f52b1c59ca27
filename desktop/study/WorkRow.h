// WorkRow: how far a run is, in words and as a bar, and the button that ends it.
#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>
#include <string>

class QBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;

namespace lithmark {

class WorkRow : public QWidget {
  public:
    WorkRow(QWidget* parent, std::function<void()> cancel);

    // Room for a button ahead of the one that ends the run.
    QBoxLayout& Row() noexcept { return *row_; }
    // A run's words, in the ink of warnings or quiet.
    void Say(const std::string& words, bool warning);
    // Nothing runs.
    void Rest();
    // Rows done of those that are wanted; 0 wanted: nobody knows how many.
    void Run(std::uint64_t done, std::uint64_t wanted);

  private:
    QBoxLayout* row_;
    QLabel* words_;
    QProgressBar* bar_;
    QPushButton* cancel_;
};

}  // namespace lithmark
