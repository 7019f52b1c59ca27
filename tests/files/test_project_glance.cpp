// What lists tell of a project without opening it.
#include <chrono>
#include <filesystem>

#include "core/Problems.h"
#include "files/ProjectGlance.h"
#include "services/storage/ProjectArchive.h"
#include "support/Files.h"
#include "support/Matchers.h"
#include "support/ScriptedHost.h"

namespace lithmark::tests {
namespace {

class GlanceTest : public ::testing::Test {
  protected:
    std::string File(const std::string& name) const { return folder_ / name; }
    // Noon of a day in the machine's time zone, so that no zone moves it to another day.
    void ChangedOn(const std::string& name, int year, int month, int day) const {
        std::tm noon{};
        noon.tm_year = year - 1900;
        noon.tm_mon = month - 1;
        noon.tm_mday = day;
        noon.tm_hour = 12;
        const auto time = std::chrono::file_clock::from_sys(std::chrono::system_clock::from_time_t(std::mktime(&noon)));
        std::filesystem::last_write_time(File(name), time);
    }

    TestFolder folder_;
    ScriptedHost host;
};

TEST_F(GlanceTest, TellsProblemHeadingAndTheDayOfTheLastChange) {
    WriteBytes(File("Crane.PO3"), "Version 9\r\n9\r\n0\r\n");
    WriteBytes(File("Crane.AUF"), "GT-1\r\n1 May\r\nCrane runway\r\n");
    WriteBytes(File("Crane.RDE"), "1\r\n");
    ChangedOn("Crane.PO3", 2026, 3, 1);
    ChangedOn("Crane.AUF", 2026, 2, 11);
    ChangedOn("Crane.RDE", 2026, 3, 2);
    const ProjectGlance glance = GlanceAt(File("Crane.PO3"));
    EXPECT_TRUE(glance.There);
    EXPECT_EQ(glance.ProblemType, Problem::RaftDisplacement);
    EXPECT_EQ(glance.Order, "GT-1");
    EXPECT_EQ(glance.Project, "Crane runway");
    EXPECT_EQ(glance.Changed, "2026-03-02");  // the day of the data, which changed last
    EXPECT_THAT(host.Messages, IsEmpty());
    EXPECT_THAT(host.FileStatuses, IsEmpty());
    EXPECT_THAT(folder_.Names(), ElementsAre("Crane.AUF", "Crane.PO3", "Crane.RDE"));  // no lock
}

TEST_F(GlanceTest, APackedProjectStaysPackedAndTellsTheSame) {
    const std::string archive =
        BuildArchive("Silo", {{"PO3", "Version 9\r\n10\r\n0\r\n"}, {"AUF", "GT-2\r\n\r\nSilo\r\n"}, {"RCO", "1\r\n"}});
    WriteBytes(File("Silo.PO3"), archive);
    const ProjectGlance glance = GlanceAt(File("Silo.PO3"));
    EXPECT_EQ(glance.ProblemType, Problem::RaftConsolidation);
    EXPECT_EQ(glance.Order, "GT-2");
    EXPECT_EQ(glance.Project, "Silo");
    EXPECT_EQ(ReadBytes(File("Silo.PO3")), archive);
    EXPECT_THAT(folder_.Names(), ElementsAre("Silo.PO3"));
}

TEST_F(GlanceTest, WhatIsNotThereOrNoProjectIsLeftOut) {
    EXPECT_FALSE(GlanceAt(File("Gone.PO3")).There);
    WriteBytes(File("Bare.PO3"), "Version 9\r\n4\r\n0\r\n");
    EXPECT_EQ(GlanceAt(File("Bare.PO3")).ProblemType, Problem::Consolidation);
    EXPECT_EQ(GlanceAt(File("Bare.PO3")).Order, "");
    for (const char* damaged : {"", "Version 9", "Version 9\r\nx\r\n", "Version 9\r\n99\r\n", "PK\x03\x04 broken"}) {
        WriteBytes(File("Bad.PO3"), damaged);
        EXPECT_TRUE(GlanceAt(File("Bad.PO3")).There) << damaged;
        EXPECT_EQ(GlanceAt(File("Bad.PO3")).ProblemType, 0) << damaged;
    }
    EXPECT_THAT(host.Messages, IsEmpty());
}

}  // namespace
}  // namespace lithmark::tests
