// Spreadsheets opened as what they are: archives of XML.
#include <zip.h>

#include <QXmlStreamReader>

#include "base/NumberText.h"
#include "render/ChartDocument.h"
#include "render/RenderCase.h"
#include "support/Matchers.h"
#include "support/Variable.h"

namespace lithmark::tests {
namespace {

// The parts of a workbook by name, read with the archive library's own checks.
std::map<std::string, std::string> PartsOf(const std::string& bytes) {
    std::map<std::string, std::string> parts;
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
    zip_t* archive = zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, &error);
    if (!archive) {
        ADD_FAILURE() << zip_error_strerror(&error);
        return parts;
    }
    for (zip_int64_t i = 0; i < zip_get_num_entries(archive, 0); ++i) {
        zip_stat_t stat;
        zip_stat_index(archive, static_cast<zip_uint64_t>(i), 0, &stat);
        std::string content(stat.size, '\0');
        zip_file_t* file = zip_fopen_index(archive, static_cast<zip_uint64_t>(i), 0);
        EXPECT_EQ(zip_fread(file, content.data(), stat.size), static_cast<zip_int64_t>(stat.size));
        zip_fclose(file);
        parts[stat.name] = content;
    }
    zip_discard(archive);
    return parts;
}

// The cells of a sheet by their references, texts looked up among the shared strings.
std::map<std::string, std::string> CellsOf(const std::map<std::string, std::string>& parts) {
    std::vector<std::string> strings;
    QXmlStreamReader shared(QByteArray::fromStdString(parts.at("xl/sharedStrings.xml")));
    while (!shared.atEnd())
        if (shared.readNextStartElement() && shared.name() == QLatin1String("t"))
            strings.push_back(shared.readElementText().toStdString());
    std::map<std::string, std::string> cells;
    QXmlStreamReader sheet(QByteArray::fromStdString(parts.at("xl/worksheets/sheet1.xml")));
    std::string reference;
    bool text = false;
    while (!sheet.atEnd()) {
        sheet.readNext();
        if (!sheet.isStartElement()) continue;
        if (sheet.name() == QLatin1String("c")) {
            reference = sheet.attributes().value("r").toString().toStdString();
            text = sheet.attributes().value("t") == QLatin1String("s");
        } else if (sheet.name() == QLatin1String("v")) {
            const std::string value = sheet.readElementText().toStdString();
            cells[reference] = text ? strings.at(std::stoul(value)) : "=" + value;
        }
    }
    EXPECT_FALSE(sheet.hasError()) << sheet.errorString().toStdString();
    return cells;
}

class Spreadsheet : public RenderTest {};

TEST_F(Spreadsheet, AChartHasItsTableAndANativeChartOverIt) {
    RunExample("OfficeBuilding");
    Session.FirmaLine1 = "Lithos GmbH";
    const ChartArguments chart = Chart("Tab4");
    const auto parts = PartsOf(ChartXlsx(chart));
    const auto cells = CellsOf(parts);
    // Company line, four lines of the project, an empty one, the table's title, the head; then the rows.
    EXPECT_EQ(cells.at("A1"), "Lithos GmbH");
    EXPECT_EQ(cells.at("A7"), "Table T4");
    EXPECT_EQ(cells.at("B8"), "Settlement Zse [cm]");
    EXPECT_EQ(cells.at("C8"), chart.Legends(2) + " Zse [cm]") << "a name of its own";
    const std::string sheet = parts.at("xl/worksheets/sheet1.xml");
    EXPECT_THAT(sheet, HasSubstr("topLeftCell=\"A9\"")) << "the head stays in sight";
    EXPECT_THAT(sheet, HasSubstr("orientation=\"landscape\""));
    EXPECT_THAT(sheet, HasSubstr("<pageSetup")) << "and on one page: fitToWidth and fitToHeight are 1 unless told";
    EXPECT_THAT(sheet, HasSubstr("<pageSetUpPr fitToPage=\"1\"/>"));
    EXPECT_THAT(sheet, Not(HasSubstr("fitToHeight")));
    EXPECT_THAT(parts.at("xl/workbook.xml"), HasSubstr("_xlnm.Print_Titles"));
    EXPECT_THAT(parts.at("xl/styles.xml"), HasSubstr("formatCode=\"0.00\"")) << "settlements have two decimals";
    EXPECT_THAT(parts.at("xl/drawings/drawing1.xml"), HasSubstr("<xdr:row>8</xdr:row>"))
        << "the chart is below the head";
    const int rows = chart.LastRow;
    for (int r = 1; r <= rows; ++r)
        for (int c = 1; c <= 3; ++c) {
            const std::string cell = cells.at(std::string(1, static_cast<char>('A' + c - 1)) + std::to_string(8 + r));
            ASSERT_EQ(cell.front(), '=') << "a number, not a text";
            EXPECT_DOUBLE_EQ(std::stod(cell.substr(1)), *ParseNumber(chart.Cells(r, c)));
        }
    const std::string xml = parts.at("xl/charts/chart1.xml");
    EXPECT_THAT(xml, HasSubstr("<c:scatterChart>"));
    const std::string last = std::to_string(8 + rows);
    for (const char column : {'B', 'C'})
        EXPECT_THAT(xml, HasSubstr("Lithmark!$" + std::string(1, column) + "$9:$" + column + "$" + last));
    EXPECT_THAT(xml, HasSubstr("Lithmark!$A$9:$A$" + last));
    EXPECT_THAT(xml, HasSubstr(chart.Legends(1)));
    EXPECT_THAT(xml, HasSubstr(chart.Legends(2)));
    EXPECT_THAT(xml, HasSubstr(chart.XTitle));
    EXPECT_THAT(xml, Not(HasSubstr("<c:orientation val=\"maxMin\"/>")));
    ChartArguments turned = chart;
    turned.SettlementsDown = true;
    EXPECT_THAT(PartsOf(ChartXlsx(turned)).at("xl/charts/chart1.xml"), HasSubstr("<c:orientation val=\"maxMin\"/>"))
        << "settlements point down";
}

TEST_F(Spreadsheet, LineStylesAreThoseOfTheCurves) {
    RunExample("EccentricRaft");
    const std::string xml = PartsOf(ChartXlsx(Chart("Tab6"))).at("xl/charts/chart1.xml");
    std::vector<std::string> series;
    for (std::size_t at = xml.find("<c:ser>"); at != std::string::npos; at = xml.find("<c:ser>", at + 1))
        series.push_back(xml.substr(at, xml.find("</c:ser>", at) - at));
    ASSERT_EQ(series.size(), 3u);
    EXPECT_THAT(series[0], HasSubstr("<a:noFill/>"));               // points alone
    EXPECT_THAT(series[1], HasSubstr("<c:symbol val=\"none\"/>"));  // a line alone
    EXPECT_THAT(series[2], HasSubstr("<c:symbol val=\"circle\"/>"));
    EXPECT_THAT(series[2], Not(HasSubstr("<a:noFill/>")));
}

TEST_F(Spreadsheet, AnArabicSheetRunsFromRightToLeft) {
    RunExample("SquareRaft", Language::Arabic);
    const auto parts = PartsOf(ChartXlsx(Chart("Tab5")));
    EXPECT_THAT(parts.at("xl/worksheets/sheet1.xml"), HasSubstr("rightToLeft=\"1\""));
    EXPECT_THAT(parts.at("xl/styles.xml"), HasSubstr("readingOrder=\"2\"")) << "and so do the words in its cells";
    EXPECT_THAT(parts.at("xl/worksheets/sheet1.xml"), HasSubstr("&amp;C\u202Bصفحة &amp;P من &amp;N\u202C"));
    RunExample("SquareRaft", Language::German);
    const auto german = PartsOf(ChartXlsx(Chart("Tab5")));
    EXPECT_THAT(german.at("xl/worksheets/sheet1.xml"), Not(HasSubstr("rightToLeft")));
    EXPECT_THAT(german.at("xl/styles.xml"), Not(HasSubstr("readingOrder")));
}

TEST_F(Spreadsheet, ATableHasItsHeadInTheFirstRow) {
    const auto cells = CellsOf(PartsOf(
        TableXlsx("a/b: c?", {{"Q", "s", "status"}, {"1000", "2.5", "ok"}, {"2e3", "", "<failed> & \"told\""}})));
    EXPECT_EQ(cells, (std::map<std::string, std::string>{{"A1", "Q"},
                                                         {"B1", "s"},
                                                         {"C1", "status"},
                                                         {"A2", "=1000"},
                                                         {"B2", "=2.5"},
                                                         {"C2", "ok"},
                                                         {"A3", "=2000"},
                                                         {"C3", "<failed> & \"told\""}}));
}

TEST_F(Spreadsheet, WhatLooksLikeAFormulaStaysText) {
    const auto parts = PartsOf(TableXlsx("t", {{"a", "b"}, {"=1+1", "+x"}, {"-x", "@x"}, {"-1.5", "+2"}}));
    const auto cells = CellsOf(parts);
    EXPECT_EQ(cells.at("A2"), "=1+1");
    EXPECT_EQ(cells.at("B2"), "+x");
    EXPECT_EQ(cells.at("A3"), "-x");
    EXPECT_EQ(cells.at("B3"), "@x");
    EXPECT_EQ(cells.at("A4"), "=-1.5") << "a number";
    EXPECT_THAT(parts.at("xl/worksheets/sheet1.xml"), Not(HasSubstr("<f>")));
    EXPECT_THAT(parts.at("xl/styles.xml"), HasSubstr("formatCode=\"@\"")) << "text for whoever edits the cell";
}

// It names its scratch and no file of the project, in no words of the library.
TEST_F(Spreadsheet, WhatItsScratchCannotTakeIsToldForTheScratch) {
    const std::vector<std::vector<std::string>> table(3000, {"Q", "1.25", "some words"});
    EXPECT_TRUE(OnAFullDisk(1000, [&] {
        testing::internal::CaptureStderr();
        const auto failure = FailureOf([&] { TableXlsx("t", table); });
        const std::string words = testing::internal::GetCapturedStderr();
        return failure && failure->File().find("lithmark-") != std::string::npos && words.empty();
    }));
    const Variable scratch("TMPDIR");
    scratch.Set(folder / "none");
    const auto failure = FailureOf([&] { TableXlsx("t", table); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Kind(), FailureKind::FileMissing);
    EXPECT_EQ(failure->File(), folder / "none");
}

}  // namespace
}  // namespace lithmark::tests
