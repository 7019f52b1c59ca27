// The drawing of a problem with the values that Session holds, of a form that nobody sees.
#pragma once

#include <QSize>
#include <memory>

#include "core/KeptSession.h"
#include "render/drawings/Inks.h"

class QPainter;

namespace lithmark {

class ProblemPicture {
  public:
    // Of the problem in force. What is drawn may ask Session for something else than what the user has chosen, so who
    // makes one keeps the session.
    ProblemPicture();
    ~ProblemPicture();

    // The problem has a drawing.
    bool Exists() const;
    // Fills an area from the painter's origin, in the painter's font.
    void Paint(QPainter& painter, const QSize& size, Theme theme) const;

  private:
    struct Drawn;
    std::unique_ptr<Drawn> drawn_;
};

}  // namespace lithmark
