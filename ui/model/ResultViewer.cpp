#include "ui/model/ResultViewer.h"

#include "base/Failure.h"

namespace lithmark {

namespace {

void (*showResults)() = nullptr;

}  // namespace

void SetResultViewer(void (*show)()) {
    showResults = show;
}

void ShowResultViewer() {
    if (showResults == nullptr) Fail(FailureKind::NoSuchForm);
    showResults();
}

}  // namespace lithmark
