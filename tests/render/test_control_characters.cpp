// Texts of files that no document can hold as they stand: control characters, bytes that are no text.
#include <zip.h>

#include "base/Utf8.h"
#include "render/ChartDocument.h"
#include "render/ContourDocument.h"
#include "render/RenderCase.h"
#include "render/ReportDocument.h"
#include "report/ToolLib.h"

namespace lithmark::tests {
namespace {

const std::string kBad = std::string("a\0b", 3) + "\x01\x1B[2J\x7F\uFFFE\uFFFF";

class ControlCharacters : public RenderTest {
  protected:
    void RunWithBadTexts(const std::string& example) {
        RunExample(example);
        Session.Auftr = Session.Datum = Session.Proj = Session.FirmaLine1 = Session.TimeUnit = kBad;
        Session.ProjectName = "a\x1B\uFFFE";
    }
};

void ExpectNoControls(const std::string& text) {
    EXPECT_EQ(text, PrintableText(text));
}

TEST_F(ControlCharacters, LeaveVectorPicturesWellFormed) {
    RunWithBadTexts("OfficeBuilding");
    ExpectXml(ChartSvg(Chart("Tab1")));
    RunWithBadTexts("SquareRaft");
    Session.ProjectName = "SquareRaft";  // the plot is read from its files
    BasContour plot = Contour("Tab5");
    Session.ProjectName = kBad;
    ExpectXml(ContourSvg(plot, 200));
}

TEST_F(ControlCharacters, LeaveSpreadsheetsWellFormed) {
    RunWithBadTexts("OfficeBuilding");
    for (const std::string& workbook : {ChartXlsx(Chart("Tab1")), TableXlsx(kBad, {{kBad, "A"}, {kBad, "1"}})}) {
        zip_source_t* source = zip_source_buffer_create(workbook.data(), workbook.size(), 0, nullptr);
        zip_t* archive = zip_open_from_source(source, ZIP_RDONLY, nullptr);
        ASSERT_NE(archive, nullptr);
        for (zip_int64_t i = 0; i < zip_get_num_entries(archive, 0); ++i) {
            zip_stat_t stat;
            zip_stat_index(archive, static_cast<zip_uint64_t>(i), 0, &stat);
            SCOPED_TRACE(stat.name);
            std::string content(stat.size, '\0');
            zip_file_t* file = zip_fopen_index(archive, static_cast<zip_uint64_t>(i), 0);
            EXPECT_EQ(zip_fread(file, content.data(), stat.size), static_cast<zip_int64_t>(stat.size));
            zip_fclose(file);
            ExpectXml(content);
        }
        zip_discard(archive);
    }
}

TEST_F(ControlCharacters, DoNotReachThePagesOfAReport) {
    RunWithBadTexts("OfficeBuilding");
    ReportHeading();
    ExpectNoControls(Session.ResultText);
    ExpectNoControls(ReportHtml(Session.ResultText));
    ExpectNoControls(ReportRtf(Session.ResultText));
}

}  // namespace
}  // namespace lithmark::tests
