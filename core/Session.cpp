#include "core/Session.h"

namespace lithmark {

template class Array<Single>;
template class Array<Integer>;
template class Array<std::string>;
template class Matrix<Single>;
template class Matrix<std::string>;

SessionRecord Session;

SessionRecord::SessionRecord() = default;
SessionRecord::SessionRecord(const SessionRecord&) = default;
SessionRecord& SessionRecord::operator=(const SessionRecord&) = default;
SessionRecord& SessionRecord::operator=(SessionRecord&&) noexcept = default;
SessionRecord::~SessionRecord() = default;

void ResetSession() {
    Session = SessionRecord{};
}

}  // namespace lithmark
