#include "desktop/study/StudyWork.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/NumberText.h"
#include "services/texts/LanguageTexts.h"
#include "study/StudyFailure.h"
#include "study/WorkerPool.h"
#include "study/window/CommandWords.h"

namespace lithmark {

namespace {

constexpr int kPromiseAfter = 700;     // ms of rows that tell how long all take
constexpr double kPromisedAtOnce = 1;  // s; longer ones wait for the user
constexpr double kTellingRow = 0.1;    // s of a first row that tells how long all take

double Seconds(const QElapsedTimer& since) {
    return static_cast<double>(since.elapsed()) / 1000;
}

}  // namespace

StudyWork::StudyWork(const SessionRecord& draft, QObject* parent)
    : QObject(parent), project_(draft), process_(this), promise_(kPromiseAfter, [this] { LookAtPromise(); }) {
    process_.OnLine = [this](const std::string& line) { Take(line); };
    process_.OnErrorLine = [this](const std::string& line) { lastError_ = line; };
    process_.OnEnd = [this](const CliEnd& end) { End(end); };
}

std::vector<std::string> StudyWork::RowsWords(const StudyQuestion& question, const std::string& project) {
    return StudyWords(project, question.Rows());
}

std::vector<std::string> StudyWork::FindWords(const StudyQuestion& question, const std::string& project) {
    std::vector<std::string> more = {"--find", question.FindRange()};
    if (question.IsRandom()) {
        more.emplace_back("--share");
        more.push_back(question.ShareText());
    }
    return StudyWords(project, question.Find(), more);
}

std::vector<std::string> StudyWork::TornadoWords(const StudyQuestion& question, const std::string& project) {
    return StudyWords(project, question.Tornado(), {"--tornado"});
}

void StudyWork::Tell() const {
    if (OnChange) OnChange();
}

void StudyWork::Start(Job job, std::vector<std::string> words) {
    job_ = job;
    answer_.clear();
    lastError_.clear();
    trouble_.clear();
    const std::vector<std::string> options = project_.Options();
    words.insert(words.end(), options.begin(), options.end());
    since_.start();
    process_.Start(words);
    Tell();
}

void StudyWork::StartRows(const StudyQuestion& question, bool asked) {
    promise_.stop();
    question_ = question;
    present_.reset();
    found_.clear();
    rowsEnd_ = RowsEnd::None;
    asked_ = asked;
    left_ = false;
    try {
        rows_ = std::make_unique<StudyTable>(question.Rows());
    } catch (const StudyFailure& failure) {
        rows_.reset();
        trouble_ = failure.what();
        rowsEnd_ = RowsEnd::Failed;
        return Tell();
    }
    if (!asked) promise_.start();
    Start(Job::Rows, RowsWords(question, project_.ProjectFile()));
}

void StudyWork::StartFind(const StudyQuestion& question) {
    promise_.stop();
    findQuestion_ = question;
    found_.clear();
    Start(Job::Find, FindWords(question, project_.ProjectFile()));
}

void StudyWork::StartTornado(const StudyQuestion& question) {
    promise_.stop();
    tornadoQuestion_ = question;
    bars_.clear();
    middle_.reset();
    middleRow_ = std::make_unique<StudyTable>(question.Present());
    Start(Job::Middle, StudyWords(project_.ProjectFile(), question.Present()));
}

void StudyWork::Cancel() {
    process_.Cancel();
}

// The first row alone tells where it takes long; many short ones tell a moment later.
void StudyWork::Take(const std::string& line) {
    try {
        if (job_ == Job::Rows) {
            rows_->Append(line + "\n");
            const double first = Seconds(since_);
            if (!asked_ && rows_->Lines().size() == 1 && first > kTellingRow) LookAtPromise();
        } else if (job_ == Job::Present || job_ == Job::Middle) {
            (job_ == Job::Present ? present_ : middleRow_)->Append(line + "\n");
        } else {
            answer_ += line + "\n";
        }
    } catch (const StudyFailure& failure) {
        lastError_ = failure.what();
        process_.Cancel();
    }
    Tell();
}

void StudyWork::LookAtPromise() {
    if (job_ != Job::Rows || asked_ || left_) return;
    const double cores = WorkerPool::AllCores();
    const auto done = static_cast<double>(rows_->Lines().size()), wanted = static_cast<double>(rows_->Wanted());
    // A first row has been worked by one core, while the others were at work on the next ones.
    const double perRow = done <= 1 ? Seconds(since_) / cores : Seconds(since_) / done;
    const double rest = perRow * (wanted - done);
    if (rest <= kPromisedAtOnce) return;
    promised_ = perRow * wanted;
    left_ = true;
    process_.Cancel();
}

void StudyWork::Fail(const CliEnd& end) {
    if (end.Way == CliEnd::How::Cancelled) return;
    trouble_ = !lastError_.empty() ? lastError_ : Text(913244_text, {{"|1", CliProcess::Program()}});
}

void StudyWork::EndRows(const CliEnd& end) {
    promise_.stop();
    const bool whole = rows_->Lines().size() == rows_->Wanted();
    if (end.Way == CliEnd::How::Cancelled && lastError_.empty())
        rowsEnd_ = left_ ? RowsEnd::Promised : RowsEnd::Cancelled;
    else
        rowsEnd_ = whole ? RowsEnd::Done : RowsEnd::Failed;
    if (rowsEnd_ == RowsEnd::Failed) {
        trouble_ = lastError_;
        Fail(end);
    }
    // Nothing is drawn over a field that does not vary.
    if (rowsEnd_ != RowsEnd::Done || question_->FirstVaried() == nullptr) return;
    present_ = std::make_unique<StudyTable>(question_->Present());
    Start(Job::Present, StudyWords(project_.ProjectFile(), question_->Present()));
}

// Statuses: 3 and 4 tell of aborted rows, which stand in the table.
void StudyWork::End(const CliEnd& end) {
    constexpr int kAllAborted = 3, kSomeAborted = 4;
    const Job ended = std::exchange(job_, Job::None);
    const bool good =
        end.Way == CliEnd::How::Exited && (end.Status == 0 || end.Status == kAllAborted || end.Status == kSomeAborted);
    switch (ended) {
        case Job::Rows:
            EndRows(end);
            break;
        case Job::Find:
            if (good)
                found_ = FoundText(*findQuestion_, StudyAnswer(answer_));
            else
                Fail(end);
            break;
        case Job::Middle:
            if (!good) {
                Fail(end);
                break;
            }
            if (!middleRow_->Lines().empty()) {
                const float number = PlottedNumber(*tornadoQuestion_, *middleRow_, middleRow_->Lines().front());
                if (!IsMissing(number)) middle_ = static_cast<double>(number) * tornadoQuestion_->Drawn().Factor;
            }
            return Start(Job::Tornado, TornadoWords(*tornadoQuestion_, project_.ProjectFile()));
        case Job::Tornado:
            if (good)
                bars_ = TornadoBarsOf(*tornadoQuestion_, StudyAnswer(answer_));
            else
                Fail(end);
            break;
        case Job::Present:
        case Job::None:
            break;
    }
    Tell();
}

}  // namespace lithmark
