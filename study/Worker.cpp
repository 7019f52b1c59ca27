#include "study/Worker.h"

#include <array>
#include <chrono>
#include <utility>

#include "study/RowWork.h"

namespace lithmark {

namespace {

using Clock = std::chrono::steady_clock;

// False when the study is gone.
bool Receive(platform::Socket socket, FrameBuffer& frames) {
    std::array<char, 65536> buffer;
    const std::size_t count = platform::ReceiveSome(socket, buffer.data(), buffer.size());
    frames.Append({buffer.data(), count});
    return count > 0;
}

// Outcomes are kept back for a moment, so that short rows travel together.
class Answers {
  public:
    explicit Answers(platform::Socket socket) : socket_(socket) {}

    bool Add(Ticket ticket, float seconds, const RowOutcome& outcome) {
        writer_.Put(ticket);
        writer_.Put(seconds);
        writer_.Put(outcome);
        return Clock::now() - sent_ < kPatience || Send();
    }
    bool Send() {
        sent_ = Clock::now();
        return writer_.Empty() || platform::SendAll(socket_, writer_.TakeFrame());
    }

  private:
    static constexpr std::chrono::milliseconds kPatience{20};

    platform::Socket socket_;
    WireWriter writer_;
    Clock::time_point sent_ = Clock::now();
};

}  // namespace

void WorkRows(platform::Socket socket, std::atomic<Ticket>& inWork, const SessionRecord& start,
              const std::vector<Take>& takes, FrameBuffer frames) {
    const int study = platform::StarterId();
    const RowWork work(start, takes, [study] { return platform::StarterId() == study; });
    Answers answers(socket);
    for (;;) {
        while (const auto frame = frames.Next()) {
            WireReader rows(*frame);
            while (!rows.AtEnd()) {
                const Ticket ticket = rows.Number<Ticket>();
                const RowInput input = rows.Input();
                inWork = ticket;
                const auto begun = Clock::now();
                const RowOutcome outcome = work.Run(input);
                const std::chrono::duration<float> taken = Clock::now() - begun;
                inWork = kNoRow;
                if (!answers.Add(ticket, taken.count(), outcome)) return;
            }
            if (!answers.Send()) return;
        }
        if (!Receive(socket, frames)) return;
    }
}

std::string TakesFrame(const std::vector<Take>& takes) {
    WireWriter writer;
    for (const Take& take : takes) writer.Put(take.Name);
    return writer.TakeFrame();
}

void WorkIfStartedAnew() {
    platform::RunAsWorker([](platform::Socket socket, std::atomic<Ticket>& inWork) {
        FrameBuffer frames;
        std::vector<Take> takes;
        for (bool told = false; !told;) {
            if (!Receive(socket, frames)) return;
            const auto frame = frames.Next();
            if (!frame) continue;
            WireReader names(*frame);
            while (!names.AtEnd()) takes.push_back(ParseTake(Session.ProblemType, names.Text()).value());
            told = true;
        }
        WorkRows(socket, inWork, Session, takes, std::move(frames));
    });
}

}  // namespace lithmark
