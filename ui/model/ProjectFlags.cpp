#include "ui/model/ProjectFlags.h"

#include "base/Array.h"

namespace lithmark {

namespace {

Array<char>& Flags() {
    static Array<char> flags(0, kProblemEntries - 1);
    return flags;
}

}  // namespace

bool ProblemSaved(int menuEntry) {
    return Flags()(menuEntry);
}

void SetProblemSaved(int menuEntry, bool saved) {
    Flags()(menuEntry) = saved;
}

}  // namespace lithmark
