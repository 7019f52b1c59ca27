// Every output format, without a display.
#include <cstdlib>

#include "cli/CliCase.h"
#include "support/Matchers.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

class CliFormats : public CliTest {};

TEST_F(CliFormats, EachFormatIsWhatItsNameSays) {
    LITHMARK_NEEDS(PosixShell);
    const std::string time = Example("OfficeBuilding"), raft = Example("SquareRaft");
    struct Case {
        std::vector<std::string> Words;
        std::string Format, Begin;
    };
    const std::vector<Case> cases = {
        {{"report", time}, "html", "<!DOCTYPE html>"},
        {{"report", time}, "pdf", "%PDF-"},
        {{"report", time}, "rtf", "{\\rtf1"},
        {{"report", raft, "--with-figures"}, "pdf", "%PDF-"},
        {{"chart", time, "--curve", "Tab2"}, "svg", "<?xml"},
        {{"chart", time, "--curve", "Tab2"}, "png", "\x89PNG"},
        {{"chart", time, "--curve", "Tab2"}, "pdf", "%PDF-"},
        {{"chart", time, "--curve", "Tab2"}, "xlsx", "PK"},
        {{"contour", raft}, "svg", "<?xml"},
        {{"contour", raft, "--result", "pressure"}, "png", "\x89PNG"},
        {{"contour", raft, "--size", "300"}, "pdf", "%PDF-"},
        {{"study", raft, "--vary", "Q=1000:2000:1000", "--take", "h"}, "xlsx", "PK"},
    };
    runner = "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM ";
    for (const Case& c : cases) {
        const std::string output = work / (c.Words[0] + "." + c.Format);
        SCOPED_TRACE(output);
        std::vector<std::string> words = c.Words;
        words.insert(words.end(), {"--output", output});
        const CliResult result = Run(words);
#ifdef LITHMARK_RENDER
        EXPECT_EQ(result.Status, 0) << result.Err;
        EXPECT_EQ(result.Out, "");
        for (const std::string& line : LinesOf(result.Err)) EXPECT_TRUE(line.starts_with("notice: ")) << line;
        EXPECT_TRUE(ReadBytes(output).starts_with(c.Begin));
#else
        ExpectFailure(result, 1, {c.Format, "lithmark-render"});
        EXPECT_FALSE(std::filesystem::exists(output));
#endif
    }
}

// The program for scripts starts in a few milliseconds because it loads nothing that draws.
TEST_F(CliFormats, TheProgramIsLinkedWithoutTheToolkit) {
    LITHMARK_NEEDS(PosixShell);
    const std::string list = work / "libraries";
    ASSERT_EQ(std::system(("ldd '" + CommandLineTool().string() + "' >'" + list + "'").c_str()), 0);
    EXPECT_THAT(ReadBytes(list), HasSubstr("libc.so"));
    for (const char* library : {"libQt", "libqcustomplot", "libxlsxwriter", "libX11"})
        EXPECT_THAT(ReadBytes(list), testing::Not(HasSubstr(library)));
}

// lithmark-cli alone, as a package without documents has it.
TEST_F(CliFormats, WithoutTheProgramThatDrawsADocumentIsRefusedAndTextIsNot) {
    const std::string project = New("Footing", 1), report = Run({"report", project}).Out;
    const std::string alone = work / "alone";
    std::filesystem::create_directory(alone);
    std::filesystem::copy_file(CommandLineTool(), alone + "/lithmark-cli");
    otherProgram = alone + "/lithmark-cli";
    EXPECT_EQ(Run({"report", project}).Out, report);
    for (const char* format : {"pdf", "html", "rtf"}) {
        ExpectFailure(Run({"report", project, "--format", format}), 1, {format, alone + "/lithmark-render", "package"});
        ExpectFailure(Run({"report", project, "-o", work / (std::string("report.") + format)}), 1, {"lithmark-render"});
    }
    ExpectFailure(Run({"study", project, "--vary", "Q=1,2", "-o", work / "rows.xlsx"}), 1, {"lithmark-render"});
    EXPECT_FALSE(std::filesystem::exists(work / "report.pdf"));
    WriteBytes(alone + "/lithmark-render", "no program");
    ExpectFailure(Run({"report", project, "--format", "pdf"}), 1, {"lithmark-render", "cannot be started"});
}

#ifdef LITHMARK_RENDER
TEST_F(CliFormats, ADocumentGoesToStandardOutputWithTheMessagesOfItsOwnRun) {
    const std::string project = New("Raft", 9, {"LoadType=2", "A=4", "B=4", "h=5", "Exz_x=1.2"});
    const CliResult text = Run({"report", project}), page = Run({"report", project, "--format", "html", "-o", "-"});
    EXPECT_EQ(page.Status, 0);
    EXPECT_TRUE(page.Out.starts_with("<!DOCTYPE html>"));
    EXPECT_EQ(page.Err, text.Err);
    EXPECT_EQ(Run({"report", project, "--format", "pdf", "--set", "Es=0"}).Status, 3);
    ExpectFailure(Run({"report", work / "Nothing.PO3", "--format", "pdf"}), 1, {"Nothing.PO3"});
}
#endif

TEST_F(CliFormats, AProjectIsFoundFromItsOwnFolderAndUnderAnyLetterCase) {
    LITHMARK_NEEDS(PosixShell);
    const std::string project = Example("PointLoad");
    const std::string report = Run({"report", project}).Out;
    ASSERT_FALSE(report.empty());
    runner = "cd '" + work.Dir() + "' && ";
    EXPECT_EQ(Run({"report", "PointLoad.PO3"}).Out, report);
    EXPECT_EQ(Run({"report", "./PointLoad.po3"}).Out, report);
    EXPECT_EQ(Run({"new", "Here", "--problem", "4"}).Status, 0);
    EXPECT_TRUE(std::filesystem::exists(work / "Here.CON"));
}

#ifdef LITHMARK_RENDER
TEST_F(CliFormats, ADocumentHasTheDrawingAndOnRequestTheFiguresOfTheResults) {
    const std::string time = Example("OfficeBuilding"), output = work / "report.html";
    const auto figures = [&](const std::vector<std::string>& more) {
        std::vector<std::string> words = {"report", time, "--output", output};
        words.insert(words.end(), more.begin(), more.end());
        EXPECT_EQ(Run(words).Status, 0);
        const std::string html = ReadBytes(output);
        int count = 0;
        for (std::size_t at = html.find("<figure>"); at != std::string::npos; at = html.find("<figure>", at + 1))
            ++count;
        return count;
    };
    EXPECT_EQ(figures({}), 1);
    EXPECT_EQ(figures({"--with-figures"}), 5) << "the load, two settlements, the corrected one";
    const CliResult text = Run({"report", time, "--with-figures"});
    EXPECT_EQ(text.Status, 2);
    EXPECT_THAT(text.Err, HasSubstr("\"txt\" has no figures"));
}
#endif

}  // namespace
}  // namespace lithmark::tests
