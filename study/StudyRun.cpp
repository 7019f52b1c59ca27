#include "study/StudyRun.h"

#include <charconv>
#include <chrono>
#include <deque>
#include <filesystem>
#include <optional>
#include <utility>

#include "base/NumberText.h"
#include "base/Paths.h"
#include "core/Session.h"
#include "study/OrderedRows.h"
#include "study/PartFile.h"
#include "study/StudyFailure.h"

namespace lithmark {

namespace {

using Clock = std::chrono::steady_clock;

// The places of a shard that are to be worked: all but those of the kept rows, as stretches.
class OpenPlaces {
  public:
    explicit OpenPlaces(std::uint64_t count) : count_(count) {}

    // Kept places come in order.
    void Keep(std::uint64_t place) {
        if (place > next_) stretches_.emplace_back(next_, place);
        next_ = place + 1;
    }
    void End() {
        if (next_ < count_) stretches_.emplace_back(next_, count_);
        next_ = count_;
    }
    std::uint64_t Count() const {
        std::uint64_t count = 0;
        for (const auto& [first, end] : stretches_) count += end - first;
        return count;
    }

    // Goes through the places one by one.
    class Walk {
      public:
        explicit Walk(const OpenPlaces& places) : places_(places) {}
        std::uint64_t Next() {
            const auto& [first, end] = places_.stretches_[stretch_];
            const std::uint64_t place = first + at_++;
            if (first + at_ == end) {
                ++stretch_;
                at_ = 0;
            }
            return place;
        }

      private:
        const OpenPlaces& places_;
        std::size_t stretch_ = 0;
        std::uint64_t at_ = 0;
    };

  private:
    std::uint64_t count_, next_ = 0;
    std::vector<std::pair<std::uint64_t, std::uint64_t>> stretches_;
};

// The rows of an earlier start, in order.
class KeptRows {
  public:
    KeptRows(const StudyRun& run, const std::string& path) : run_(run) {
        if (path.empty() || !std::filesystem::exists(PathOf(path))) return;
        file_.emplace(path, run.Head);
        Advance();
    }

    bool AtEnd() const noexcept { return !line_; }
    std::uint64_t Place() const noexcept { return (line_->Row - run_.Part.K) / run_.Part.N; }
    bool Stays() const noexcept { return !run_.RetryAborted || !line_->Aborted(); }
    StudyLine Take() {
        StudyLine line = std::move(*line_);
        Advance();
        return line;
    }

  private:
    void Advance() {
        line_ = file_->Next(run_.Plan);
        if (!line_) return file_.reset();  // some systems let nothing take the place of a file that is read
        if (line_->Row < run_.Part.K || (line_->Row - run_.Part.K) % run_.Part.N != 0)
            throw StudyFailure(StudyFailure::Cause::File,
                               Text(908028_text, {{"|1", file_->Path()}, {"|2", std::to_string(line_->Row)}}));
    }

    const StudyRun& run_;
    std::optional<PartFile> file_;
    std::optional<StudyLine> line_;
};

OpenPlaces PlacesToWork(const StudyRun& run) {
    OpenPlaces places(run.Part.Count(run.Plan.Count()));
    KeptRows kept(run, run.Resume);
    while (!kept.AtEnd()) {
        if (kept.Stays()) places.Keep(kept.Place());
        kept.Take();
    }
    places.End();
    return places;
}

}  // namespace

Shard Shard::Parse(const std::string& text) {
    Shard shard;
    const auto slash = text.find('/');
    const auto read = [&](std::string_view part, std::uint64_t& number) {
        const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), number);
        return error == std::errc{} && end == part.data() + part.size();
    };
    const std::string_view whole(text);
    if (slash == std::string::npos || !read(whole.substr(0, slash), shard.K) ||
        !read(whole.substr(slash + 1), shard.N) || shard.K < 1 || shard.K > shard.N)
        FailRequest(908029_text, text);
    return shard;
}

void StudyTally::Add(bool aborted, const std::string& message) {
    ++Rows;
    if (aborted && Aborted++ == 0) FirstMessage = message;
}

StudyTally StudyRun::Work(RowWriter& writer) const {
    StudyTally tally;
    const auto write = [&](const StudyLine& line) {
        writer.Write(line);
        tally.Add(line);
        if (Seen) Seen(line);
    };
    const OpenPlaces places = PlacesToWork(*this);
    KeptRows kept(*this, Resume);
    std::uint64_t next = 0;  // the place behind the last row that was worked
    // An aborted row that is worked again stays in its file until its place has come.
    const auto writeKeptBefore = [&](std::uint64_t place, bool againToo) {
        while (!kept.AtEnd() && kept.Place() < place) {
            const bool wanted = kept.Place() >= next && (againToo || kept.Stays());
            const StudyLine line = kept.Take();
            if (wanted) write(line);
        }
    };

    OrderedRows rows;
    rows.Count = places.Count();
    OpenPlaces::Walk toWork(places);
    struct Handed {
        std::uint64_t Place;
        PlannedRow Row;
    };
    std::deque<Handed> handed;
    rows.Input = [&](std::uint64_t) {
        const std::uint64_t place = toWork.Next();
        handed.push_back({place, Plan.Row(Part.Row(place) - 1)});
        return std::exchange(handed.back().Row.Input, {});
    };
    bool settled = false;  // what stood in the output's place is not needed any more
    rows.Ready = [&](std::uint64_t, const RowOutcome& outcome) {
        Handed row = std::move(handed.front());
        handed.pop_front();
        writeKeptBefore(row.Place, false);
        write(LineOf(Part.Row(row.Place), std::move(row.Row), outcome, Head));
        next = row.Place + 1;
        if (kept.AtEnd() && !std::exchange(settled, true)) writer.Settle();
    };
    Clock::time_point flushed = Clock::now();
    rows.GoOn = [&](std::uint64_t done) {
        constexpr std::chrono::milliseconds kFlushEvery{500};
        if (Clock::now() - flushed > kFlushEvery) {
            writer.Flush();
            flushed = Clock::now();
        }
        return !GoOn || GoOn(static_cast<double>(done) / static_cast<double>(rows.Count));
    };
    if (rows.Count > 0) {
        WorkerPool pool(Session, Head.Takes, Jobs);
        WorkInOrder(pool, rows);
    }
    writeKeptBefore(Part.Count(Plan.Count()), true);
    tally.Missing = Part.Count(Plan.Count()) - tally.Rows;
    writer.Finish();
    return tally;
}

}  // namespace lithmark
