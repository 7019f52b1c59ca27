// ConsoleHost: the host of the command line. It collects messages, shows progress on a terminal, and turns Ctrl+C into
// the orderly end of a long run.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "services/host/Host.h"

namespace lithmark {

// A text as one printable line: line ends and tabs become blanks, several of them one.
std::string OneLine(const std::string& text);

class ConsoleHost : public Host {
  public:
    struct Message {
        std::string Title, Text;
    };

    // Writes to standard error; the progress bar comes only where that is a terminal.
    ConsoleHost();
    ConsoleHost(std::FILE* out, bool terminal);
    // Takes the bar away and gives Ctrl+C and the signals of EndOnTermination back their meaning.
    ~ConsoleHost() override;
    ConsoleHost(const ConsoleHost&) = delete;
    ConsoleHost& operator=(const ConsoleHost&) = delete;

    // Every message so far, in order.
    const std::vector<Message>& Messages() const noexcept { return messages_; }
    // Takes back the messages from the n-th on, from 0, that have not been printed.
    void ForgetMessages(std::size_t from);
    // Prints the messages that have not been printed, each as one line. The caller decides when: a command that fails
    // has one line to say.
    void PrintMessages();
    // Prints a text as one line.
    void PrintLine(const std::string& text);

    // From now on SIGTERM and SIGHUP end a long run as Ctrl+C does: for a command that has to clear up behind itself.
    void EndOnTermination();

    void ShowMessage(const std::string& title, const std::string& text, MessageIcon icon) override;
    // False once after Ctrl+C. A second Ctrl+C before that ends the process at once.
    bool Progress(double fraction) override;

  private:
    void ClearBar();

    std::FILE* out_;
    bool terminal_;
    bool barShown_ = false;
    int percentShown_ = -1;
    std::size_t printed_ = 0;
    std::vector<Message> messages_;
    struct Handler {
        int Signal;
        void (*Previous)(int);
    };
    void Catch(int signal);

    std::vector<Handler> handlers_;
};

}  // namespace lithmark
