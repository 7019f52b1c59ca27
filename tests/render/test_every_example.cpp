// Every example gives its report, its curves and its documents in every language.
#include "render/ChartDocument.h"
#include "render/ContourDocument.h"
#include "render/RenderCase.h"
#include "render/ReportDocument.h"
#include "services/ProjectStore.h"
#include "support/Languages.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

std::vector<std::string> ExampleNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(SourceDir() / "examples"))
        if (entry.is_directory()) names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

class EveryExample : public RenderTest, public testing::WithParamInterface<std::string> {
  protected:
    static std::vector<std::string> CurveChoices() {
        const int problem = Session.ProblemType;
        if (problem == Problem::ConsolidationRate) return {""};
        if (IsTimeSettlement(problem)) return {"Tab1", "Tab2", "Tab3", "Tab4"};
        if (IsRaft(problem)) return {"Tab5", "Tab6"};
        return {};
    }
    static void ExpectDocuments() {
        const std::string& report = Session.ResultText;
        EXPECT_THAT(ReportHtml(report), HasSubstr("</html>"));
        EXPECT_TRUE(ReportPdf(report).starts_with("%PDF-"));
        EXPECT_TRUE(ReportRtf(report).starts_with("{\\rtf1"));
        for (const std::string& choice : CurveChoices()) {
            const ChartArguments chart = Chart(choice);
            ExpectXml(ChartSvg(chart));
            EXPECT_TRUE(ChartXlsx(chart).starts_with("PK"));
        }
        if (!IsRaft(Session.ProblemType)) return;
        for (const char* result : {"Tab5", "Tab6"}) {
            BasContour plot = Contour(result);
            ExpectXml(ContourSvg(plot, 200));
        }
    }
};

TEST_P(EveryExample, GivesReportCurvesAndDocumentsInEveryLanguage) {
    for (const Language language : kLanguages) {
        SCOPED_TRACE(static_cast<int>(language));
        RunExample(GetParam(), language);
        if (HasFatalFailure()) return;
        EXPECT_THAT(Session.ResultText, HasSubstr(Session.Proj));
        ExpectDocuments();
        EXPECT_TRUE(host.Messages.empty()) << host.LastMessage().Text;
    }
}

// A project that was made and packed under one language runs under every other with the same numbers.
TEST_P(EveryExample, MadeAndPackedUnderOneLanguageRunsUnderEveryOther) {
    const std::string stem = folder / GetParam();
    std::map<Language, std::string> expected;
    for (const Language language : kLanguages) {
        RunExample(GetParam(), language);
        expected[language] = Session.ResultText;
    }
    for (const Language made : kLanguages) {
        RunExample(GetParam(), made);
        WriteProblemData();
        ASSERT_TRUE(Session.FileSaved);
        ASSERT_TRUE(ProjectStore().PackProject(stem, 7, "", ".po3"));
        const std::string archive = ReadBytes(stem + ".PO3");
        for (const Language language : kLanguages) {
            SCOPED_TRACE(std::to_string(static_cast<int>(made)) + " " + std::to_string(static_cast<int>(language)));
            for (const std::string& name : folder.Names()) std::filesystem::remove(folder / name);
            WriteBytes(stem + ".PO3", archive);
            ASSERT_TRUE(ProjectStore().UnpackProject(stem, ".po3"));
            ReadAndRun(GetParam(), language);
            EXPECT_EQ(Session.ResultText, expected[language]);
        }
    }
    EXPECT_TRUE(host.Messages.empty()) << host.LastMessage().Text;
}

INSTANTIATE_TEST_SUITE_P(Examples, EveryExample, testing::ValuesIn(ExampleNames()),
                         [](const auto& example) { return example.param; });

}  // namespace
}  // namespace lithmark::tests
