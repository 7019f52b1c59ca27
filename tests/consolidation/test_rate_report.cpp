// The report of problem 5: rows by hand, and whole reports as goldens in three languages.
#include <gtest/gtest.h>

#include "RateCase.h"
#include "support/Golden.h"
#include "support/Lines.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class RateReport : public testing::Test {
  protected:
    RateReport() {
        FreshSession();
        c = RateCase();
    }
    void Run() {
        c.Run();
        ASSERT_FALSE(Session.CalcAborted);
        lines = ReportLinesOf(Session.ResultText);
    }
    // The line of the parameter block with this symbol.
    std::string LineOf(const std::string& symbol) const {
        const std::string sign = " " + symbol + Text(123_text) + " ";
        for (const std::string& line : lines)
            if (line.find(sign) != std::string::npos && line.find(" = ") != std::string::npos) return line;
        return "no row";
    }
    std::string ValueOf(const std::string& symbol) const {
        const std::string line = LineOf(symbol);
        return line == "no row" ? line : line.substr(line.find(" = ") + 3);
    }
    ScriptedHost host;
    RateCase c;
    std::vector<std::string> lines;
};

TEST_F(RateReport, RowsOfOneLayerByHand) {
    c.T = 0.2;
    Run();
    EXPECT_EQ(ValueOf("uo"), "100.0");
    EXPECT_EQ(ValueOf("h1"), "4.00");
    EXPECT_EQ(ValueOf("Tc"), "0.20");
    // Cv T c/(h/2)^2 = 0.0000015 0.2 31540000/4 = 2.3655
    EXPECT_EQ(ValueOf("Tv"), "2.37");
    EXPECT_EQ(ValueOf("Cv1"), "0.0000");
    for (const char* symbol : {"k1", "k2", "Cv2", "h2", "x", "p", "a"}) EXPECT_EQ(ValueOf(symbol), "no row") << symbol;
    EXPECT_THAT(lines, testing::Contains(Text(300011_text)));
    EXPECT_THAT(lines, Not(testing::Contains(Text(300010_text))));
}

TEST_F(RateReport, ImpermeableBottomTakesTheWholeThicknessForTv) {
    c.T = 0.2;
    c.Drainage = 2;
    Run();
    EXPECT_EQ(ValueOf("Tv"), "0.59");
    EXPECT_THAT(lines, testing::Contains(Text(300010_text)));
}

TEST_F(RateReport, TwoLayersTellPermeabilitiesAndTvOfLayer1) {
    c.NumLayers = 2;
    c.T = 0.2;
    c.K = Array<Single>::Of({0.0000004, 0.0000008});
    Run();
    EXPECT_EQ(ValueOf("h2"), "5.00");
    EXPECT_EQ(ValueOf("k1"), "0.0000004");
    EXPECT_EQ(ValueOf("k2"), "0.0000008");
    EXPECT_EQ(ValueOf("Tv"), "2.37");
}

TEST_F(RateReport, SideAOfTheRectangleIsScaledTwiceAndBOnceDeliberately) {
    c.Pressure = false;
    c.B = 3;
    Session.Len1Factor = 10;
    Session.Len1Label = "[dm]";
    Run();
    EXPECT_EQ(ValueOf("a"), "200.00");
    EXPECT_EQ(ValueOf("b"), "30.00");
    EXPECT_EQ(ValueOf("h1"), "40.00");
    EXPECT_EQ(ValueOf("z"), "10.00");
    EXPECT_EQ(ValueOf("p"), "1.5");  // 150/10^2
}

TEST_F(RateReport, RadiusOfTheCircleIsScaledOnce) {
    c.Pressure = false;
    c.LoadType = 3;
    Session.Len1Factor = 10;
    Session.Len1Label = "[dm]";
    Run();
    EXPECT_EQ(ValueOf("a"), "20.00");
}

TEST_F(RateReport, TableHasARowForEachNodeAndNoneForTheEntryBeyond) {
    c.T = 0.02;
    Run();
    EXPECT_EQ(Session.TableLastRow, 5);
    const auto last = lines.end();
    EXPECT_EQ(*(last - 1), "") << "one empty line at the end";
    EXPECT_THAT(*(last - 2), ContainsRegex("^-+$"));
    EXPECT_THAT(*(last - 3), ContainsRegex("^ *4 +5.00 +100.0 +0.0$"));
    EXPECT_THAT(*(last - 7), ContainsRegex("^ *0 +1.00 +100.0 +0.0$"));
    EXPECT_THAT(*(last - 8), ContainsRegex("^-+$"));
}

// --- goldens ---

struct GoldenCase {
    const char* Name;
    void (*Change)(RateCase&);
};

class RateReportGolden : public testing::TestWithParam<GoldenCase> {
  protected:
    ScriptedHost host;
};

TEST_P(RateReportGolden, InThreeLanguages) {
    const std::pair<Language, const char*> languages[] = {
        {Language::German, "de"}, {Language::English, "en"}, {Language::Arabic, "ar"}};
    for (const auto& [language, suffix] : languages) {
        FreshSession(language);
        RateCase c;
        c.T = 0.1;
        GetParam().Change(c);
        c.Run();
        ASSERT_FALSE(Session.CalcAborted);
        EXPECT_TRUE(MatchesGolden(std::string("consolidation/rate_") + GetParam().Name + "_" + suffix + ".txt",
                                  Session.ResultText));
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, RateReportGolden,
                         testing::Values(GoldenCase{"constant", [](RateCase&) {}},
                                         GoldenCase{"rectangle",
                                                    [](RateCase& c) {
                                                        c.Pressure = false;
                                                        c.x = 0.5;
                                                        c.Drainage = 2;
                                                    }},
                                         GoldenCase{"two_layers",
                                                    [](RateCase& c) {
                                                        c.NumLayers = 2;
                                                        c.K = Array<Single>::Of({0.0000004, 0.0000008});
                                                        c.Cv(2) = 0.000001;
                                                    }},
                                         GoldenCase{"circle",
                                                    [](RateCase& c) {
                                                        c.Pressure = false;
                                                        c.LoadType = 3;
                                                    }},
                                         GoldenCase{"point",
                                                    [](RateCase& c) {
                                                        c.Pressure = false;
                                                        c.LoadType = 1;
                                                        c.x = 1;
                                                        c.y = 2;
                                                    }}),
                         [](const auto& param) { return std::string(param.param.Name); });

}  // namespace
}  // namespace lithmark::tests
