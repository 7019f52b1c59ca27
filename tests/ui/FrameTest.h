// FrameTest: the frame with a window that records and a clock of the test's own. The program has not been started, and
// no project is open.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "FormTest.h"
#include "ui/compare/Comparison.h"
#include "ui/frame/MDITools.h"
#include "ui/frmProblemType.h"
#include "ui/frmProjectCheck.h"

namespace lithmark::tests {

class RecordingWindow : public FrameWindow {
  public:
    int Refreshes = 0;
    bool ProcessEnded = false;
    std::optional<FormPosition> At;
    std::string Docked = "as it came";
    std::function<void()> OnDock;
    std::vector<ComparedPair> Compared;

    void Refresh() override { ++Refreshes; }
    std::optional<FormPosition> Position() const override { return At; }
    void SetPosition(const FormPosition& position) override { At = position; }
    std::string DockLayout() const override { return Docked; }
    void SetDockLayout(const std::string& layout) override {
        if (OnDock) OnDock();
        Docked = layout;
    }
    void EndProcess() override { ProcessEnded = true; }
    void ShowComparison(const ComparedPair& pair) override { Compared.push_back(pair); }
};

class FrameTest : public FormTest {
  protected:
    FrameTest();
    ~FrameTest() override;

    // Starts the program with the test's folder as data directory.
    void Start(const std::string& commandLine = {});
    // A project with its heading data; the data file of the problem is the caller's.
    void WriteProject(const std::string& name, int problemType) const;
    // A project of problem 1 that lacks nothing.
    void WriteStressProject(const std::string& name) const;
    void OpenStressProject(const std::string& name);
    void OpenByDialog(const std::string& file);
    // The answer to the list of missing data that comes next.
    void GoOn();
    void Stay();
    bool Enabled(const char* key);
    std::vector<int> VisibleProblems();
    std::vector<int> TickedProblems();
    // The captions of the recent files that are shown.
    std::vector<std::string> Recent();

    RecordingWindow window;
    MDITools frame;
    long long now = 0;
    int packing = 0;
};

}  // namespace lithmark::tests
