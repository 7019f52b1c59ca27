// CliAnswerWorker: works the commands of an answer by the command line program, each in a process of its own.
#pragma once

#include <QByteArray>
#include <QObject>
#include <memory>
#include <vector>

#include "desktop/CliProcess.h"
#include "ui/answer/AnswerRun.h"
#include "ui/model/DraftProject.h"

namespace lithmark {

class CliAnswerWorker : public QObject, public AnswerWorker {
  public:
    explicit CliAnswerWorker(QObject* parent = nullptr);

    void Start(const SessionRecord& draft, std::vector<CommandWords> commands, Done done) override;
    void Cancel() override;

  private:
    void Next();
    void Ended(const CliEnd& end);
    void Finish();

    CliProcess process_;
    std::unique_ptr<DraftProject> project_;
    std::vector<CommandWords> commands_;
    std::vector<CommandOutput> outputs_;
    Done done_;
    QByteArray text_;
    std::string trouble_;
    unsigned run_ = 0;
};

}  // namespace lithmark
