#include "FrameTest.h"

namespace lithmark::tests {

FrameTest::FrameTest() {
    Session.ProjectName.clear();
    frame.SetWindow(&window);
    frame.SetClock([this] { return now; });
    host.OnEvents = [this] { now += 100; };
}

FrameTest::~FrameTest() = default;

void FrameTest::Start(const std::string& commandLine) {
    WriteBytes(SettingsFile("STEU"), Lines({DataDir().c_str(), std::to_string(packing).c_str()}));
    frame.Start(commandLine);
}

void FrameTest::WriteProject(const std::string& name, int problemType) const {
    WriteBytes(DataFile(name + ".PO3"), Lines({"Version 9", std::to_string(problemType).c_str(), "0"}));
    WriteBytes(DataFile(name + ".AUF"), Lines({("Order " + name).c_str(), "1 May", ("House " + name).c_str()}));
}

void FrameTest::WriteStressProject(const std::string& name) const {
    WriteProject(name, 1);
    WriteBytes(DataFile(name + ".SSD"), Lines({"1", "2", "3", "900", "10", "6", "7", ".3", "5000", "1"}));
}

void FrameTest::OpenStressProject(const std::string& name) {
    WriteStressProject(name);
    OpenByDialog(name + ".PO3");
    ASSERT_EQ(Session.ProjectName, name);
}

void FrameTest::OpenByDialog(const std::string& file) {
    host.AnswerFileToOpen(DataFile(file));
    frame.m_cMenu_Click("mnuOpenProject");
}

void FrameTest::GoOn() {
    host.OnForm<frmProjectCheck>([](frmProjectCheck& form) { Click(form, "cmdok"); });
}

void FrameTest::Stay() {
    host.OnForm<frmProjectCheck>([](frmProjectCheck& form) { Click(form, "CmdCancel"); });
}

bool FrameTest::Enabled(const char* key) {
    return frame.Menu[key].Enabled;
}

std::vector<int> FrameTest::VisibleProblems() {
    std::vector<int> entries;
    for (int i = 0; i < kProblemEntries; ++i)
        if (frame.Menu.At("mnuProblem", i).Visible) entries.push_back(i);
    return entries;
}

std::vector<int> FrameTest::TickedProblems() {
    std::vector<int> entries;
    for (int i = 0; i < kProblemEntries; ++i)
        if (frame.Menu.At("mnuProblem", i).Checked()) entries.push_back(i);
    return entries;
}

std::vector<std::string> FrameTest::Recent() {
    std::vector<std::string> files;
    for (int i = 1; i <= 4; ++i)
        if (const MenuItem& item = frame.Menu.At("MnuRecentFile", i); item.Visible) files.push_back(item.Caption);
    return files;
}

}  // namespace lithmark::tests
