// KeptSession: Session while somebody else works on a copy of it.
#pragma once

#include <utility>

#include "core/Session.h"

namespace lithmark {

// From now on Session is a copy; at the end of this object's life the record itself comes back, its tables in the very
// place where they were.
class KeptSession {
  public:
    KeptSession() : kept_(std::exchange(Session, SessionRecord(Session))) {}
    ~KeptSession() { Session = std::move(kept_); }
    KeptSession(const KeptSession&) = delete;
    KeptSession& operator=(const KeptSession&) = delete;

  private:
    SessionRecord kept_;
};

}  // namespace lithmark
