// LiveAnswer: the answer beside a problem's fields while one types, without a screen.
//
// It works out what Results would print for the form as it stands, on a copy, and changes nothing. Who shows it tells
// it what the user does, gives it the time and calls Due when NextDue says so. An answer that does not belong to the
// present input is never shown as one: it is stale as long as another one is on its way, and dropped when it comes too
// late.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "ui/answer/AnswerRun.h"
#include "ui/answer/RaftSize.h"
#include "ui/model/ProblemForm.h"

namespace lithmark {

enum class AnswerState {
    None,      // nothing has been worked out yet
    Now,       // the values are those of the present input
    Stale,     // they are those of the former input, others are on their way
    Stopped,   // a box keeps the input from being stored
    Failed,    // the calculation was aborted, or could not be run
    OnRequest  // a long one, which waits to be asked for
};

class LiveAnswer {
  public:
    using Milliseconds = long long;

    LiveAnswer(const ProblemForm& form, AnswerWorker& worker, std::function<Milliseconds()> clock);
    ~LiveAnswer();
    LiveAnswer(const LiveAnswer&) = delete;
    LiveAnswer& operator=(const LiveAnswer&) = delete;

    // --- what the user does ---
    // A key in a box.
    void Typed(const Control& box);
    // A click, a choice in a list, another table; also a first look.
    void Chosen();
    // The focus has left the box that was typed into.
    void Left();
    // F5: at once, long or not; speaks when it is there.
    void Ask();
    // Freezes the present values to compare with, or lets them go. Nothing without present values.
    void Keep(bool keep);
    // Nobody looks any more; Chosen begins anew.
    void Rest();

    // --- time ---
    // Milliseconds until Due wants to be called; nothing while there is nothing to wait for.
    std::optional<Milliseconds> NextDue() const;
    void Due();

    // --- what is shown ---
    AnswerState State() const noexcept { return state_; }
    // The last values that there are, of the present or a former input; null before the first.
    const Answer* Shown() const noexcept { return answer_ ? &answer_->Is : nullptr; }
    const Answer* Kept() const noexcept { return kept_ ? &*kept_ : nullptr; }
    // Why it is stopped or failed.
    const std::string& Reason() const noexcept { return reason_; }
    // The box that stops it; null otherwise.
    Control* Box() const noexcept { return box_; }
    // No answer is on its way.
    bool Settled() const noexcept { return state_ != AnswerState::None && !running_ && !lookAt_; }
    // Another answer has been on its way for longer than a second.
    bool InProgress() const;
    // Of a raft that waits to be asked for.
    const RaftSize& Size() const noexcept { return size_; }

    std::function<void()> OnChange;  // what is shown has changed
    std::function<void()> OnSpeak;   // what was asked for is there

  private:
    struct Worked {
        std::string Key;
        Answer Is;
    };
    struct Running {
        unsigned Number = 0;
        std::string Key;
        Milliseconds Since = 0;
    };

    void Changed(Milliseconds after);
    void Look(bool asked);
    void Stop(const BoxFault& fault);
    void Work(const SessionRecord& draft, const std::string& key);
    void Take(unsigned number, const SessionRecord& draft, const std::vector<CommandOutput>& outputs);
    void Quit();
    void Show(AnswerState state, std::string reason = {}, Control* box = nullptr);

    const ProblemForm& form_;
    AnswerWorker& worker_;
    const std::function<Milliseconds()> clock_;

    AnswerState state_ = AnswerState::None;
    std::optional<Worked> answer_;
    std::optional<Answer> kept_;
    std::string reason_;
    Control* box_ = nullptr;
    RaftSize size_;
    std::optional<Running> running_;
    unsigned runs_ = 0;
    std::optional<Milliseconds> lookAt_, staleAt_;
    const Control* typed_ = nullptr;  // the box that was typed into last, while it has the focus
    Milliseconds typedAt_ = 0;
    bool speak_ = false, progressTold_ = false;
};

}  // namespace lithmark
