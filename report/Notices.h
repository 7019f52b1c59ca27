// Notices: what an engineer must know about the result of the last run.
//
// One board for the process. A kernel raises a notice where it can measure that a result deserves less trust than its
// digits promise; the run starts with an empty board (RunKernel). A notice never stops a run and never stands in the
// report: viewer, documents and command line show the notices beside it, and a run that fails tells them behind its
// failure. docs/notices.md has a section for each id.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Failure.h"
#include "base/TextId.h"

namespace lithmark {

// In the order in which they are shown.
enum class NoticeId {
    RaftIllConditioned,
    RaftEquilibrium,
    RaftTension,
    RaftLayerUnused,
    RaftLimitingDepth,
    RaftThinLayer,
    RaftClosedFormTilt,
    MarchUnstable,
    MarchRange,
    MarchFewSteps,
    MarchCirclePressure,
    HistoryShift,
    HistoryCurve,
    HistoryOedometerMm,
    HistoryEnd,
    CircleNearNodes,
    CircleMeanStress,
    ShearInLine,
    QImpossible,
    IterationEnd,
    SolverFallback,
};
inline constexpr int kNoticeIds = static_cast<int>(NoticeId::SolverFallback) + 1;

// The name by which scripts and the manual know a notice: "raft-tension".
std::string_view NoticeName(NoticeId id);

// One or more sentences, each a text with the measured values in the order of its place-holders |1, |2, ...
struct Notice {
    struct Sentence {
        TextId Text;
        std::vector<std::string> Values;
    };
    NoticeId Id;
    std::vector<Sentence> Sentences;
};

class NoticeBoard {
  public:
    void Clear() { all_.clear(); }
    // A second call with the same id adds a sentence to the notice.
    void Raise(NoticeId id, TextId text, std::vector<std::string> values = {});
    bool Holds(NoticeId id) const;
    const std::vector<Notice>& All() const noexcept { return all_; }

  private:
    std::vector<Notice> all_;  // in the order of the ids
};

NoticeBoard& Notices();

// The notice's sentences in the language in force.
std::string NoticeText(const Notice& notice);

// Measures a run for a notice. A value that cannot be had ends the measuring alone, never the run.
template <typename Body>
void MeasureRun(Body&& body) {
    try {
        body();
    } catch (const Failure&) {  // NOLINT(bugprone-empty-catch)
    }
}

// The ids on the board, parted by blanks.
std::string NoticeIds();

}  // namespace lithmark
