#include "services/host/ConsoleHost.h"

#include <algorithm>
#include <csignal>

#include "base/Utf8.h"
#include "services/platform/Process.h"
#include "services/platform/RemovedOnEnd.h"

namespace lithmark {

namespace {

constexpr int kBarWidth = 40;
constexpr int kExitAfterInterrupt = 130;  // 128 + SIGINT, as shells tell it

volatile std::sig_atomic_t interrupted = 0;

extern "C" {
static void OnInterrupt(int signal) {
    std::signal(signal, OnInterrupt);  // some systems forget a handler that they have called
    if (interrupted != 0) {
        RemoveRegisteredFiles();
        platform::EndAtOnce(kExitAfterInterrupt);
    }
    interrupted = 1;
}
}  // extern "C"

}  // namespace

std::string OneLine(const std::string& text) {
    std::string line;
    for (const char c : PrintableText(text)) {
        const char plain = c == '\r' || c == '\n' || c == '\t' ? ' ' : c;
        if (plain != ' ' || (!line.empty() && line.back() != ' ')) line += plain;
    }
    if (line.ends_with(' ')) line.pop_back();
    return line;
}

ConsoleHost::ConsoleHost() : ConsoleHost(stderr, platform::IsTerminal(stderr)) {}

ConsoleHost::ConsoleHost(std::FILE* out, bool terminal) : out_(out), terminal_(terminal) {
    interrupted = 0;
    Catch(SIGINT);
}

ConsoleHost::~ConsoleHost() {
    ClearBar();
    for (const Handler& handler : handlers_) std::signal(handler.Signal, handler.Previous);
}

void ConsoleHost::Catch(int signal) {
    const auto previous = std::signal(signal, OnInterrupt);
    if (previous != SIG_ERR) handlers_.push_back({signal, previous});
}

void ConsoleHost::EndOnTermination() {
    for (const int signal : platform::EndingSignals()) Catch(signal);
}

void ConsoleHost::ShowMessage(const std::string& title, const std::string& text, MessageIcon) {
    messages_.push_back({title, text});
}

void ConsoleHost::ForgetMessages(std::size_t from) {
    messages_.resize(std::min(messages_.size(), std::max(from, printed_)));
}

void ConsoleHost::PrintMessages() {
    ClearBar();
    for (; printed_ < messages_.size(); ++printed_) {
        const Message& message = messages_[printed_];
        std::fprintf(out_, "%s: %s\n", OneLine(message.Title).c_str(), OneLine(message.Text).c_str());
    }
    std::fflush(out_);
}

void ConsoleHost::PrintLine(const std::string& text) {
    ClearBar();
    std::fprintf(out_, "%s\n", OneLine(text).c_str());
    std::fflush(out_);
}

bool ConsoleHost::Progress(double fraction) {
    if (interrupted != 0) {
        interrupted = 0;
        ClearBar();
        return false;
    }
    if (!terminal_) return true;
    const int percent = static_cast<int>(std::clamp(fraction, 0.0, 1.0) * 100);
    if (percent == 100) {
        ClearBar();
    } else if (percent != percentShown_) {
        const int full = percent * kBarWidth / 100;
        std::fprintf(out_, "\r[%s%s] %2d %%", std::string(static_cast<std::size_t>(full), '#').c_str(),
                     std::string(static_cast<std::size_t>(kBarWidth - full), ' ').c_str(), percent);
        std::fflush(out_);
        percentShown_ = percent;
        barShown_ = true;
    }
    return true;
}

void ConsoleHost::ClearBar() {
    if (!barShown_) return;
    std::fputs("\r\x1B[K", out_);
    std::fflush(out_);
    barShown_ = false;
    percentShown_ = -1;
}

}  // namespace lithmark
