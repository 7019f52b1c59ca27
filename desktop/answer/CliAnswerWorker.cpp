#include "desktop/answer/CliAnswerWorker.h"

#include <utility>

#include "base/Failure.h"
#include "desktop/answer/AnswerReader.h"
#include "services/SharedServices.h"

namespace lithmark {

CliAnswerWorker::CliAnswerWorker(QObject* parent) : QObject(parent) {
    process_.OnLine = [this](const std::string& line) { text_.append(line.c_str()).append('\n'); };
    process_.OnErrorLine = [this](const std::string& line) { trouble_ = line; };
    process_.OnEnd = [this](const CliEnd& end) { Ended(end); };
}

void CliAnswerWorker::Start(const SessionRecord& draft, std::vector<CommandWords> commands, Done done) {
    Cancel();
    commands_ = std::move(commands);
    done_ = std::move(done);
    outputs_.clear();
    try {
        project_ = std::make_unique<DraftProject>(draft);
        Next();
    } catch (const Failure& failure) {
        outputs_.push_back({.Status = -1, .Trouble = SharedServices().FailureText(failure)});
        const auto tell = [this, run = run_] {
            if (run == run_) Finish();
        };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    }
}

void CliAnswerWorker::Cancel() {
    ++run_;
    process_.EndNow();
    done_ = nullptr;
    project_.reset();
}

void CliAnswerWorker::Next() {
    CommandWords words = commands_.at(outputs_.size());
    words.insert(words.begin() + 1, project_->ProjectFile());
    for (const std::string& option : project_->Options()) words.push_back(option);
    text_.clear();
    trouble_.clear();
    process_.Start(words);
}

void CliAnswerWorker::Ended(const CliEnd& end) {
    CommandOutput output = ReadCommandOutput(text_);
    output.Status = end.Way == CliEnd::How::Exited ? end.Status : -1;
    output.Trouble = trouble_;
    outputs_.push_back(std::move(output));
    // Without a report there is nothing that a curve could belong to.
    const bool more = outputs_.size() < commands_.size() && outputs_.front().Status == 0;
    if (more) return Next();
    Finish();
}

void CliAnswerWorker::Finish() {
    project_.reset();
    const Done done = std::exchange(done_, nullptr);
    if (done) done(outputs_);
}

}  // namespace lithmark
