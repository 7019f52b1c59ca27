#include "study/RowWork.h"

#include <exception>
#include <utility>

#include "core/Catalogue.h"
#include "core/SessionFields.h"
#include "kernels/RunProject.h"
#include "kernels/raft/RaftRun.h"
#include "report/Notices.h"
#include "services/SharedServices.h"
#include "services/host/ConsoleHost.h"

namespace lithmark {

namespace {

// Collects what a run says, and takes the place of the host for as long.
class RowHost : public Host {
  public:
    RowHost(RowOutcome& outcome, const std::function<bool()>& goOn)
        : outcome_(outcome), goOn_(goOn), previous_(CurrentHost()) {
        SetCurrentHost(this);
    }
    ~RowHost() override { SetCurrentHost(&previous_); }
    RowHost(const RowHost&) = delete;
    RowHost& operator=(const RowHost&) = delete;

    void ShowMessage(const std::string&, const std::string& text, MessageIcon) override {
        outcome_.Messages.push_back(OneLine(text));
    }
    bool Progress(double) override { return !goOn_ || goOn_(); }

  private:
    RowOutcome& outcome_;
    const std::function<bool()>& goOn_;
    Host& previous_;
};

// A row writes none of the files that a raft's run leaves beside its project.
class WithoutExport {
  public:
    WithoutExport() { SetRaftExport(false); }
    ~WithoutExport() { SetRaftExport(true); }
    WithoutExport(const WithoutExport&) = delete;
    WithoutExport& operator=(const WithoutExport&) = delete;
};

// Nothing, or what is wrong with the change.
std::string PutField(const FieldChange& change) {
    const auto trouble = [&](TextId text) { return Text(text, {{"|1", change.Name + "=" + change.Value}}); };
    switch (SetSessionField(change.Name, change.Value)) {
        case SetFieldOutcome::NoSuchField:
            return trouble(902008_text);
        case SetFieldOutcome::NoSuchElement:
            return trouble(902009_text);
        case SetFieldOutcome::BadValue:
            return trouble(902010_text);
        case SetFieldOutcome::Done:
            break;
    }
    return FindProblem(Session.ProblemType) ? std::string() : trouble(902010_text);
}

}  // namespace

RowWork::RowWork(const SessionRecord& start, std::vector<Take> takes, std::function<bool()> goOn)
    : start_(start), takes_(std::move(takes)), goOn_(std::move(goOn)) {}

void RowWork::TakeResults(RowOutcome& outcome) const {
    for (const Take& take : takes_) {
        if (take.What == Take::Kind::List) {
            outcome.Lists.push_back(TakenList(take));
        } else {
            const auto number = TakenNumber(take);
            outcome.Numbers.push_back(number ? static_cast<float>(*number) : kMissing);
        }
    }
}

RowOutcome RowWork::Run(const RowInput& input) const {
    RowOutcome outcome;
    const RowHost host(outcome, goOn_);
    const WithoutExport noFiles;
    const auto fail = [&](const std::string& message) {
        outcome.Aborted = true;
        outcome.Messages.push_back(OneLine(message));
    };
    Session = start_;
    try {
        for (const FieldChange& change : input) {
            const std::string trouble = PutField(change);
            if (trouble.empty()) continue;
            fail(trouble);
            return outcome;
        }
        SetDerivedFields(Session);
        RunProject();
        outcome.Notices = NoticeIds();
        outcome.Aborted = Session.CalcAborted;
        if (!outcome.Aborted) TakeResults(outcome);
    } catch (const std::exception& error) {
        fail(SharedServices().FailureText(FailureFrom(error)));
    }
    return outcome;
}

}  // namespace lithmark
