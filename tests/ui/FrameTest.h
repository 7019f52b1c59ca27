// FrameTest: the frame with a window that records and a clock of the test's own. The program has not been started, and
// no project is open.
#pragma once

#include "FormTest.h"
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

    void Refresh() override { ++Refreshes; }
    std::optional<FormPosition> Position() const override { return At; }
    void SetPosition(const FormPosition& position) override { At = position; }
    std::string DockLayout() const override { return Docked; }
    void SetDockLayout(const std::string& layout) override {
        if (OnDock) OnDock();
        Docked = layout;
    }
    void EndProcess() override { ProcessEnded = true; }
};

class FrameTest : public FormTest {
  protected:
    FrameTest() {
        Session.ProjectName.clear();
        frame.SetWindow(&window);
        frame.SetClock([this] { return now; });
        host.OnEvents = [this] { now += 100; };
    }

    // Starts the program with the test's folder as data directory.
    void Start(const std::string& commandLine = {}) {
        WriteBytes(SettingsFile("STEU"), Lines({DataDir().c_str(), std::to_string(packing).c_str()}));
        frame.Start(commandLine);
    }
    // A project with its heading data; the data file of the problem is the caller's.
    void WriteProject(const std::string& name, int problemType) const {
        WriteBytes(DataFile(name + ".PO3"), Lines({"Version 9", std::to_string(problemType).c_str(), "0"}));
        WriteBytes(DataFile(name + ".AUF"), Lines({("Order " + name).c_str(), "1 May", ("House " + name).c_str()}));
    }
    // A project of problem 1 that lacks nothing.
    void WriteStressProject(const std::string& name) const {
        WriteProject(name, 1);
        WriteBytes(DataFile(name + ".SSD"), Lines({"1", "2", "3", "900", "10", "6", "7", ".3", "5000", "1"}));
    }
    void OpenStressProject(const std::string& name) {
        WriteStressProject(name);
        OpenByDialog(name + ".PO3");
        ASSERT_EQ(Session.ProjectName, name);
    }
    void OpenByDialog(const std::string& file) {
        host.AnswerFileToOpen(DataFile(file));
        frame.m_cMenu_Click("mnuOpenProject");
    }
    // The answer to the list of missing data that comes next.
    void GoOn() {
        host.OnForm<frmProjectCheck>([](frmProjectCheck& form) { Click(form, "cmdok"); });
    }
    void Stay() {
        host.OnForm<frmProjectCheck>([](frmProjectCheck& form) { Click(form, "CmdCancel"); });
    }
    bool Enabled(const char* key) { return frame.Menu[key].Enabled; }
    std::vector<int> VisibleProblems() {
        std::vector<int> entries;
        for (int i = 0; i < kProblemEntries; ++i)
            if (frame.Menu.At("mnuProblem", i).Visible) entries.push_back(i);
        return entries;
    }
    std::vector<int> TickedProblems() {
        std::vector<int> entries;
        for (int i = 0; i < kProblemEntries; ++i)
            if (frame.Menu.At("mnuProblem", i).Checked()) entries.push_back(i);
        return entries;
    }
    // The captions of the recent files that are shown.
    std::vector<std::string> Recent() {
        std::vector<std::string> files;
        for (int i = 1; i <= 4; ++i)
            if (const MenuItem& item = frame.Menu.At("MnuRecentFile", i); item.Visible) files.push_back(item.Caption);
        return files;
    }

    RecordingWindow window;
    MDITools frame;
    long long now = 0;
    int packing = 0;
};

}  // namespace lithmark::tests
