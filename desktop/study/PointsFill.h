// PointsFill: asks for many points at once: a grid, a line, depths below a point.
#pragma once

#include <QDialog>
#include <QString>
#include <array>

#include "desktop/Pause.h"
#include "study/window/Points.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace lithmark {

class PointsFill : public QDialog {
  public:
    enum class Kind { Grid, Line, Depths };
    PointsFill(PointsTable& points, Kind kind, QWidget* parent);

    // Puts the points into the table, or marks what keeps them from it.
    void accept() override;

  private:
    struct Line {
        QLineEdit *From = nullptr, *To = nullptr, *Count = nullptr;
    };
    void AddLine(QGridLayout& grid, int coordinate);
    // What is typed; what is wrong is told when a box is left.
    void Typed();
    void Left();
    bool Check();
    void Say(const QString& words);
    int LeastCount() const { return kind_ == Kind::Line ? 2 : 1; }
    bool Mark(QLineEdit* box, int kind, double upper, double lower, const std::string& name);
    EvenValues ValuesOf(const Line& line) const;

    PointsTable& points_;
    const Kind kind_;
    std::array<Line, 3> lines_;
    QCheckBox* replace_;
    QLabel* note_;
    QLineEdit* typed_ = nullptr;  // the box that is typed into, as long as the number in it may be unfinished
    QString wrong_, told_;
    Pause patience_;  // a number that is not ended is an error after a while
};

}  // namespace lithmark
