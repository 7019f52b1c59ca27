// The drawing of a problem with the values that Session holds, of a form that nobody sees.
#pragma once

#include <QSize>
#include <memory>
#include <utility>

#include "core/Session.h"
#include "render/drawings/Inks.h"

class QPainter;

namespace lithmark {

// What is drawn may ask Session for something else than what the user has chosen. It works on a copy, and the record
// itself comes back, its tables in the very place where they were.
class KeptSession {
  public:
    KeptSession() : kept_(std::exchange(Session, SessionRecord(Session))) {}
    ~KeptSession() { Session = std::move(kept_); }
    KeptSession(const KeptSession&) = delete;
    KeptSession& operator=(const KeptSession&) = delete;

  private:
    SessionRecord kept_;
};

class ProblemPicture {
  public:
    // Of the problem in force. Who makes one keeps the session.
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
