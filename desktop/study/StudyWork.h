// StudyWork: a study of a draft at work beside the windows, one run after the other, and what has come of it.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desktop/CliProcess.h"
#include "desktop/Pause.h"
#include "study/window/StudyAnswerTexts.h"
#include "study/window/StudyQuestion.h"
#include "study/window/StudyTable.h"
#include "ui/model/DraftProject.h"

namespace lithmark {

class StudyWork : public QObject {
  public:
    enum class Job { None, Rows, Present, Find, Middle, Tornado };
    // How the rows ended.
    enum class RowsEnd { None, Done, Cancelled, Promised, Failed };

    // The draft is valid. Failure where no scratch project can be written.
    StudyWork(const SessionRecord& draft, QObject* parent);

    // More has come, or a run has begun or ended.
    std::function<void()> OnChange;

    // The rows, and then the one of the present values. `asked`: the user wants them whatever it
    // takes; else rows that promise to take long are left (RowsEnd::Promised).
    void StartRows(const StudyQuestion& question, bool asked);
    void StartFind(const StudyQuestion& question);
    void StartTornado(const StudyQuestion& question);
    void Cancel();

    Job Doing() const noexcept { return job_; }
    // What the rows answer; null before the first ones.
    const StudyQuestion* Question() const noexcept { return question_ ? &*question_ : nullptr; }
    const StudyTable* Rows() const noexcept { return rows_.get(); }
    const StudyTable* Present() const noexcept { return present_.get(); }
    RowsEnd EndOfRows() const noexcept { return rowsEnd_; }
    double PromisedSeconds() const noexcept { return promised_; }
    // The answer of the last search; empty before it and while it runs.
    const std::string& Found() const noexcept { return found_; }
    const std::optional<StudyQuestion>& TornadoQuestion() const noexcept { return tornadoQuestion_; }
    const std::vector<TornadoBar>& Bars() const noexcept { return bars_; }
    std::optional<double> TornadoMiddle() const noexcept { return middle_; }
    // Why the last run gave nothing; empty where it did.
    const std::string& Trouble() const noexcept { return trouble_; }

    // Words of the command for what is asked, of a project; the window shows them of the project as it is saved.
    static std::vector<std::string> RowsWords(const StudyQuestion& question, const std::string& project);
    static std::vector<std::string> FindWords(const StudyQuestion& question, const std::string& project);
    static std::vector<std::string> TornadoWords(const StudyQuestion& question, const std::string& project);

  private:
    void Start(Job job, std::vector<std::string> words);
    void Take(const std::string& line);
    void End(const CliEnd& end);
    void EndRows(const CliEnd& end);
    void LookAtPromise();
    void Fail(const CliEnd& end);
    void Tell() const;

    DraftProject project_;
    CliProcess process_;
    Job job_ = Job::None;
    std::optional<StudyQuestion> question_, tornadoQuestion_, findQuestion_;
    std::unique_ptr<StudyTable> rows_, present_, middleRow_;
    RowsEnd rowsEnd_ = RowsEnd::None;
    bool asked_ = false, left_ = false;
    QElapsedTimer since_;
    Pause promise_;
    double promised_ = 0;
    std::string answer_, found_, trouble_, lastError_;
    std::vector<TornadoBar> bars_;
    std::optional<double> middle_;
};

}  // namespace lithmark
