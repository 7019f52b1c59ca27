// CliProcess: the command line program at work beside the windows, which it can neither stop nor change.
#pragma once

#include <QObject>
#include <QProcess>
#include <functional>
#include <string>
#include <vector>

#include "desktop/Pause.h"

namespace lithmark {

// How a run ended.
struct CliEnd {
    enum class How { Exited, Cancelled, Died, NotStarted };
    How Way = How::Exited;
    int Status = 0;  // of one that exited
};

// One run at a time. Nothing of it is told within Start or Cancel; all of it from the event loop, its end last.
class CliProcess : public QObject {
  public:
    explicit CliProcess(QObject* parent = nullptr);
    // Ends a run at once, without telling.
    ~CliProcess() override;

    // A line of standard output or standard error without its end, as it comes; may be empty.
    std::function<void(const std::string&line)> OnLine, OnErrorLine;
    std::function<void(const CliEnd& end)> OnEnd;

    // lithmark-cli with these words: "report", "Crane.PO3", ... A run that is on is ended before, without telling.
    void Start(const std::vector<std::string>& words);
    // Asks the run to end, and ends it half a second later. It tells no line any more, and its end.
    void Cancel();
    // Ends a run at once, without telling.
    void EndNow();
    bool Running() const noexcept { return running_; }

    // Beside the running program.
    static std::string Program();

  private:
    void Take(QProcess::ProcessChannel channel, QByteArray& rest, const std::function<void(const std::string&)>& tell);
    void End(CliEnd end);

    QProcess process_;
    Pause patience_;
    QByteArray out_, error_;  // a line that has not ended
    unsigned run_ = 0;
    bool running_ = false, cancelled_ = false;
};

}  // namespace lithmark
