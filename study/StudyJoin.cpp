#include "study/StudyJoin.h"

#include <functional>
#include <optional>
#include <queue>
#include <utility>

#include "services/platform/Process.h"
#include "study/PartFile.h"
#include "study/StudyFailure.h"

namespace lithmark {

namespace {

struct Part {
    PartFile File;
    std::optional<StudyLine> Line;
};

// Rows that are in no part, as "2, 5-8, 11"; of many the first ones.
class MissingRows {
  public:
    void Add(std::uint64_t first, std::uint64_t last) {
        constexpr std::size_t kMostNamed = 20;
        count_ += last - first + 1;
        if (named_++ >= kMostNamed) {
            if (!text_.ends_with("...")) text_ += ", ...";
            return;
        }
        if (!text_.empty()) text_ += ", ";
        text_ += std::to_string(first);
        if (last > first) text_ += "-" + std::to_string(last);
    }
    std::uint64_t Count() const noexcept { return count_; }
    const std::string& Text() const noexcept { return text_; }

  private:
    std::uint64_t count_ = 0;
    std::size_t named_ = 0;
    std::string text_;
};

// All parts as one, in order of rows.
class MergedParts {
  public:
    MergedParts(const std::vector<std::string>& files, const StudyHead& head, const StudyPlan& plan) : plan_(plan) {
        for (const std::string& file : files) {
            parts_.push_back({PartFile(file, head), {}});
            Advance(parts_.size() - 1);
        }
    }

    // The next row, from the best of the parts that hold it; nothing at the end.
    std::optional<StudyLine> Next() {
        if (waiting_.empty()) return std::nullopt;
        std::optional<StudyLine> line;
        const std::uint64_t row = waiting_.top().first;
        while (!waiting_.empty() && waiting_.top().first == row) {
            const std::size_t part = waiting_.top().second;
            waiting_.pop();
            if (!line || (line->Aborted() && !parts_[part].Line->Aborted())) line = std::move(parts_[part].Line);
            Advance(part);
        }
        return line;
    }

  private:
    void Advance(std::size_t part) {
        parts_[part].Line = parts_[part].File.Next(plan_);
        if (parts_[part].Line) waiting_.emplace(parts_[part].Line->Row, part);
    }

    const StudyPlan& plan_;
    std::vector<Part> parts_;
    using Place = std::pair<std::uint64_t, std::size_t>;  // the row that a part has next
    std::priority_queue<Place, std::vector<Place>, std::greater<>> waiting_;
};

}  // namespace

StudyTally JoinParts(const StudyPlan& plan, const StudyHead& head, const std::vector<std::string>& files,
                     RowWriter& writer, const std::function<void(const StudyLine&)>& seen) {
    platform::AllowManyOpenFiles();  // each part stays open
    MergedParts parts(files, head, plan);
    StudyTally tally;
    MissingRows missing;
    std::uint64_t expected = 1;
    while (const auto line = parts.Next()) {
        if (line->Row > expected) missing.Add(expected, line->Row - 1);
        expected = line->Row + 1;
        tally.Add(*line);
        if (missing.Count() > 0) continue;
        writer.Write(*line);
        if (seen) seen(*line);
    }
    if (expected <= plan.Count()) missing.Add(expected, plan.Count());
    if (missing.Count() > 0)
        throw StudyFailure(StudyFailure::Cause::File,
                           Text(908030_text, {{"|1", std::to_string(missing.Count())}, {"|2", missing.Text()}}));
    writer.Finish();
    return tally;
}

}  // namespace lithmark
