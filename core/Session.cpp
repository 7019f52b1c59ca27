#include "core/Session.h"

namespace lithmark {

void ResetSession() {
    Session = SessionRecord{};
}

}  // namespace lithmark
