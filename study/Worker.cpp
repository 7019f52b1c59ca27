#include "study/Worker.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>

#include "study/RowWork.h"

namespace lithmark {

namespace {

using Clock = std::chrono::steady_clock;

// False when the study is gone.
bool SendAll(int socket, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR) continue;
        if (sent <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

bool Receive(int socket, FrameBuffer& frames) {
    std::array<char, 65536> buffer;
    ssize_t count = 0;
    do count = recv(socket, buffer.data(), buffer.size(), 0);
    while (count < 0 && errno == EINTR);
    if (count <= 0) return false;
    frames.Append({buffer.data(), static_cast<std::size_t>(count)});
    return true;
}

// Outcomes are kept back for a moment, so that short rows travel together.
class Answers {
  public:
    explicit Answers(int socket) : socket_(socket) {}

    bool Add(Ticket ticket, float seconds, const RowOutcome& outcome) {
        writer_.Put(ticket);
        writer_.Put(seconds);
        writer_.Put(outcome);
        return Clock::now() - sent_ < kPatience || Send();
    }
    bool Send() {
        sent_ = Clock::now();
        return writer_.Empty() || SendAll(socket_, writer_.TakeFrame());
    }

  private:
    static constexpr std::chrono::milliseconds kPatience{20};

    int socket_;
    WireWriter writer_;
    Clock::time_point sent_ = Clock::now();
};

}  // namespace

void WorkRows(int socket, std::atomic<Ticket>& inWork, const SessionRecord& start, const std::vector<Take>& takes) {
    const pid_t study = getppid();
    const RowWork work(start, takes, [study] { return getppid() == study; });
    FrameBuffer frames;
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

}  // namespace lithmark
