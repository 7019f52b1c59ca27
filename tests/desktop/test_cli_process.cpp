// The command line program beside the windows: its lines as they come, its end, and how it is ended.
#include <QElapsedTimer>
#include <QTest>
#include <filesystem>

#include "../ui/FormTest.h"
#include "core/Catalogue.h"
#include "desktop/CliProcess.h"
#include "support/Matchers.h"
#include "ui/model/DraftProject.h"

namespace lithmark::tests {
namespace {

class CliProcessTest : public FormTest {
  protected:
    CliProcessTest() {
        process.OnLine = [this](const std::string& line) {
            lines.push_back(line);
            if (onLine) onLine();
        };
        process.OnErrorLine = [this](const std::string& line) { errorLines.push_back(line); };
        process.OnEnd = [this](const CliEnd& end) { ends.push_back(end); };
        Session.ProblemType = Problem::SoilStress;
        SetProblemDefaults();
    }
    void AwaitEnd(std::size_t ends_ = 1) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return ends.size() >= ends_; }, 60000));
        EXPECT_FALSE(process.Running());
    }
    // A study of more rows than anybody waits for.
    std::vector<std::string> LongStudy(const DraftProject& draft) const {
        return Words(draft, {"study", draft.ProjectFile(), "--vary", "z=1:30000:*30000", "--jobs", "1"});
    }
    static std::vector<std::string> Words(const DraftProject& draft, std::vector<std::string> words) {
        for (const std::string& word : draft.Options()) words.push_back(word);
        return words;
    }

    CliProcess process;
    std::vector<std::string> lines, errorLines;
    std::vector<CliEnd> ends;
    std::function<void()> onLine;
};

TEST_F(CliProcessTest, TellsLinesAndTheEndFromTheEventLoop) {
    const DraftProject draft(Session);
    process.Start(Words(draft, {"study", draft.ProjectFile(), "--vary", "z=1,2,3", "--take", "Sigma_z"}));
    EXPECT_TRUE(process.Running());
    EXPECT_THAT(lines, IsEmpty());
    AwaitEnd();
    ASSERT_THAT(lines, SizeIs(4));
    EXPECT_THAT(lines[0], HasSubstr("Sigma_z"));
    EXPECT_EQ(ends[0].Way, CliEnd::How::Exited);
    EXPECT_EQ(ends[0].Status, 0);
    EXPECT_THAT(errorLines, IsEmpty());
}

TEST_F(CliProcessTest, TellsWhyARunFailed) {
    process.Start({"report", DataFile("Missing.PO3"), "--lang", "en"});
    AwaitEnd();
    EXPECT_EQ(ends[0].Status, 1);
    ASSERT_THAT(errorLines, SizeIs(1));
    EXPECT_THAT(errorLines[0], HasSubstr("Missing.PO3"));
}

TEST_F(CliProcessTest, ACancelledRunTellsItsEndAndNothingElse) {
    const DraftProject draft(Session);
    process.Start(LongStudy(draft));
    onLine = [&] {
        if (lines.size() == 3) process.Cancel();
    };
    AwaitEnd();
    EXPECT_THAT(lines, SizeIs(3));
    EXPECT_EQ(ends[0].Way, CliEnd::How::Cancelled);
}

TEST_F(CliProcessTest, AnotherStartEndsTheRunWithoutTelling) {
    const DraftProject draft(Session);
    process.Start(LongStudy(draft));
    onLine = [&] {
        if (lines.size() != 3) return;
        lines.clear();
        process.Start({"--version"});
    };
    AwaitEnd();
    EXPECT_THAT(lines, ElementsAre(HasSubstr(LITHMARK_VERSION)));
    QTest::qWait(50);
    EXPECT_THAT(ends, SizeIs(1));
    EXPECT_EQ(ends[0].Way, CliEnd::How::Exited);
}

TEST_F(CliProcessTest, GoesWithItsOwner) {
    const DraftProject draft(Session);
    auto owner = std::make_unique<CliProcess>();
    bool told = false;
    owner->OnEnd = [&](const CliEnd&) { told = true; };
    owner->Start(LongStudy(draft));
    owner.reset();
    QTest::qWait(20);
    EXPECT_FALSE(told);
}

}  // namespace
}  // namespace lithmark::tests
