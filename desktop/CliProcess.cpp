#include "desktop/CliProcess.h"

#include "render/QtText.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

constexpr int kEndPatience = 500;  // ms from the request to end until the end

}  // namespace

CliProcess::CliProcess(QObject* parent) : QObject(parent), patience_(kEndPatience, [this] { process_.kill(); }) {
    process_.setStandardInputFile(QProcess::nullDevice());
    connect(&process_, &QProcess::readyReadStandardOutput, this,
            [this] { Take(QProcess::StandardOutput, out_, OnLine); });
    connect(&process_, &QProcess::readyReadStandardError, this,
            [this] { Take(QProcess::StandardError, error_, OnErrorLine); });
    connect(&process_, &QProcess::finished, this, [this](int status, QProcess::ExitStatus how) {
        End({how == QProcess::NormalExit ? CliEnd::How::Exited : CliEnd::How::Died, status});
    });
    // A start can fail within itself.
    connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart) return;
        const auto tell = [this, run = run_] {
            if (run == run_) End({CliEnd::How::NotStarted});
        };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    });
}

CliProcess::~CliProcess() {
    EndNow();
}

void CliProcess::Start(const std::vector<std::string>& words) {
    EndNow();
    out_.clear();
    error_.clear();
    cancelled_ = false;
    running_ = true;
    ++run_;
    QStringList arguments;
    for (const std::string& word : words) arguments.append(Q(word));
    process_.start(Q(Program()), arguments, QIODevice::ReadOnly);
}

void CliProcess::Cancel() {
    if (!running_ || cancelled_) return;
    cancelled_ = true;
    process_.terminate();
    patience_.start();
}

std::string CliProcess::Program() {
    return SharedServices().ExecutableDir() + "lithmark-cli";
}

void CliProcess::Take(QProcess::ProcessChannel channel, QByteArray& rest,
                      const std::function<void(const std::string&)>& tell) {
    process_.setReadChannel(channel);
    const QByteArray text = rest + process_.readAll();
    const qsizetype whole = text.lastIndexOf('\n') + 1;
    rest = text.mid(whole);
    // Who hears of a line may cancel the run or start another one.
    const auto on = [this, run = run_] { return running_ && !cancelled_ && run == run_; };
    for (qsizetype begin = 0; begin < whole && on();) {
        const qsizetype end = text.indexOf('\n', begin);
        if (tell) tell(text.mid(begin, end - begin).toStdString());
        begin = end + 1;
    }
}

void CliProcess::End(CliEnd end) {
    if (!running_) return;
    patience_.stop();
    if (cancelled_) {
        end.Way = CliEnd::How::Cancelled;
    } else {
        // A last line without its end.
        for (auto [rest, tell] : {std::pair(&out_, &OnLine), std::pair(&error_, &OnErrorLine)})
            if (!rest->isEmpty() && *tell) (*tell)(std::exchange(*rest, {}).toStdString());
    }
    running_ = false;
    if (OnEnd) OnEnd(end);
}

void CliProcess::EndNow() {
    running_ = false;
    patience_.stop();
    if (process_.state() == QProcess::NotRunning) return;
    process_.kill();
    process_.waitForFinished();
}

}  // namespace lithmark
