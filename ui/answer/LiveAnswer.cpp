#include "ui/answer/LiveAnswer.h"

#include <algorithm>
#include <utility>

#include "base/Failure.h"
#include "core/Units.h"
#include "files/ProblemData.h"
#include "files/SettingsFiles.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// In milliseconds.
constexpr LiveAnswer::Milliseconds kAfterKey = 150, kValuesStand = 300, kUnfinished = 1000, kProgress = 1000;

// All that an answer depends on.
std::string KeyOf(const SessionRecord& draft) {
    std::string key;
    for (const auto& lines :
         {ProblemDataLines(draft), NumberFormatLines(draft), PreferenceLines(draft), UnitLines(UnitsInForce())})
        for (const std::string& line : lines) key += line + '\n';
    return key + std::to_string(static_cast<int>(LanguageTexts().Current())) + SharedServices().DecimalSign;
}

}  // namespace

LiveAnswer::LiveAnswer(const ProblemForm& form, AnswerWorker& worker, std::function<Milliseconds()> clock)
    : form_(form), worker_(worker), clock_(std::move(clock)) {}

LiveAnswer::~LiveAnswer() {
    worker_.Cancel();
}

void LiveAnswer::Typed(const Control& box) {
    typed_ = &box;
    typedAt_ = clock_();
    Changed(kAfterKey);
}

void LiveAnswer::Chosen() {
    Changed(0);
}

void LiveAnswer::Left() {
    if (typed_ == nullptr) return;
    typed_ = nullptr;
    if (lookAt_) Changed(0);
}

void LiveAnswer::Changed(Milliseconds after) {
    const Milliseconds now = clock_();
    lookAt_ = now + after;
    if (state_ == AnswerState::Now && !staleAt_) staleAt_ = now + kValuesStand;
}

void LiveAnswer::Ask() {
    speak_ = true;
    lookAt_.reset();
    Look(true);
}

void LiveAnswer::Keep(bool keep) {
    if (!keep)
        kept_.reset();
    else if (state_ == AnswerState::Now)
        kept_ = answer_->Is;
    if (OnChange) OnChange();
}

void LiveAnswer::Rest() {
    Quit();
    lookAt_.reset();
    staleAt_.reset();
    if (state_ == AnswerState::Now) Show(AnswerState::Stale);
}

std::optional<LiveAnswer::Milliseconds> LiveAnswer::NextDue() const {
    std::optional<Milliseconds> next;
    const auto take = [&next](std::optional<Milliseconds> at) {
        if (at && (!next || *at < *next)) next = at;
    };
    take(lookAt_);
    take(staleAt_);
    if (running_ && !progressTold_) take(running_->Since + kProgress);
    if (next) next = std::max<Milliseconds>(0, *next - clock_());
    return next;
}

void LiveAnswer::Due() {
    const Milliseconds now = clock_();
    if (lookAt_ && now >= *lookAt_) {
        lookAt_.reset();
        Look(false);
    }
    if (staleAt_ && now >= *staleAt_) {
        staleAt_.reset();
        if (state_ == AnswerState::Now) Show(AnswerState::Stale);
    }
    if (!progressTold_ && InProgress()) {
        progressTold_ = true;
        if (OnChange) OnChange();
    }
}

bool LiveAnswer::InProgress() const {
    return running_ && clock_() >= running_->Since + kProgress;
}

void LiveAnswer::Look(bool asked) {
    const FormDraft draft = form_.Draft();
    if (!draft.Valid()) return Stop(draft.Faults.front());
    const std::string key = KeyOf(draft.Record);
    if (answer_ && answer_->Key == key) {
        Quit();
        Show(AnswerState::Now);
        if (std::exchange(speak_, false) && OnSpeak) OnSpeak();
        return;
    }
    if (running_ && running_->Key == key) return;
    size_ = SizeOf(draft.Record);
    if (WaitsToBeAsked(size_) && !asked) {
        Quit();
        return Show(AnswerState::OnRequest);
    }
    Work(draft.Record, key);
}

void LiveAnswer::Stop(const BoxFault& fault) {
    Quit();
    // One who is still typing is told a second after the last key.
    const Milliseconds patient = typedAt_ + kUnfinished;
    if (typed_ == fault.Box && IsUnfinished(fault.Box->Text) && clock_() < patient) {
        lookAt_ = patient;
        return;
    }
    Show(AnswerState::Stopped, fault.Reason, fault.Box);
    if (std::exchange(speak_, false) && OnSpeak) OnSpeak();
}

void LiveAnswer::Work(const SessionRecord& draft, const std::string& key) {
    running_ = Running{++runs_, key, clock_()};
    progressTold_ = false;
    // What was said of the former input goes; its values stand for a while.
    if (state_ != AnswerState::Now && state_ != AnswerState::None)
        Show(answer_ ? AnswerState::Stale : AnswerState::None);
    worker_.Start(
        draft, AnswerCommands(draft),
        [this, number = runs_, draft](const std::vector<CommandOutput>& outputs) { Take(number, draft, outputs); });
}

void LiveAnswer::Take(unsigned number, const SessionRecord& draft, const std::vector<CommandOutput>& outputs) {
    if (!running_ || running_->Number != number) return;
    const std::string key = std::exchange(running_, std::nullopt)->Key;
    // The input is another one already.
    if (lookAt_) return;
    const CommandOutput& report = outputs.front();
    if (report.Status != 0) {
        Show(AnswerState::Failed, WhyFailed(report));
    } else {
        answer_ = Worked{key, AnswerOf(draft, outputs)};
        Show(AnswerState::Now);
    }
    if (std::exchange(speak_, false) && OnSpeak) OnSpeak();
}

void LiveAnswer::Quit() {
    if (running_) worker_.Cancel();
    running_.reset();
}

void LiveAnswer::Show(AnswerState state, std::string reason, Control* box) {
    state_ = state;
    reason_ = std::move(reason);
    box_ = box;
    if (state != AnswerState::Now || !lookAt_) staleAt_.reset();
    if (OnChange) OnChange();
}

}  // namespace lithmark
