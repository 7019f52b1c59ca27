// A session with the defaults of the time-settlement problems, written out here so that the tests stand on their own.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "core/Session.h"
#include "kernels/timesettlement/BasTimeSettlement.h"
#include "services/texts/LanguageTexts.h"
#include "support/ScriptedHost.h"
#include "support/TestSession.h"

namespace lithmark::tests {

using Rows = std::vector<std::pair<double, double>>;

inline void SetLoads(const Rows& rows) {
    Session.NLoad = static_cast<int>(rows.size());
    Session.LoadTime.Redim(1, Session.NLoad);
    Session.LoadValue.Redim(1, Session.NLoad);
    for (int i = 1; i <= Session.NLoad; ++i) {
        Session.LoadTime(i) = static_cast<int>(rows[static_cast<std::size_t>(i - 1)].first);
        Session.LoadValue(i) = rows[static_cast<std::size_t>(i - 1)].second;
    }
}

inline void SetPairs(const Rows& rows, Integer& count, Array<Single>& times, Array<Single>& values) {
    count = static_cast<int>(rows.size());
    times.Redim(1, count);
    values.Redim(1, count);
    for (int i = 1; i <= count; ++i) {
        times(i) = rows[static_cast<std::size_t>(i - 1)].first;
        values(i) = rows[static_cast<std::size_t>(i - 1)].second;
    }
}

inline void SetCurve(const Rows& rows) {
    SetPairs(rows, Session.NSts, Session.StsTime, Session.StsValue);
}

inline void SetReadings(const Rows& rows) {
    SetPairs(rows, Session.NOed, Session.OedTime, Session.OedSettlement);
}

inline void StartTimeSettlement(int problemType, Language language = Language::English) {
    FreshSession(language);
    Session.ProblemType = problemType;
    Session.DrainageFaces = 2;
    Session.CvChoice = 1;
    Session.CvTS = 0.0000015;
    Session.kf = 0.00004;
    Session.EsTS = 24000;
    Session.Ws = 80000;
    Session.qv = 36;
    Session.qe = 130;
    Session.h = 8;
    Session.Hm = 0.019;
    Session.Sc = 12.1;
    Session.Pt = 6350;
    Session.TimePeriod = 18;
    Session.StartDate = Session.Datum;
    Session.TimeUnit = Text(10001_text);
    Session.Ms = true;
    Session.Sm = 4.61;
    Session.DesignCode = 4;
    Session.OedUnit = Text(42_text);
    SetLoads({{1, 19}, {2, 42}, {4, 83}, {7, 94}, {12, 100}});
    SetCurve({{1, 49}, {2, 74}, {3, 89}, {4, 97}, {5, 100}});
    SetReadings({{0.25, 0.14},
                 {1, 0.282},
                 {2.25, 0.424},
                 {4, 0.564},
                 {9, 0.839},
                 {16, 1.019},
                 {25, 1.148},
                 {36, 1.231},
                 {49, 1.257},
                 {1440, 1.309}});
}

class TimeSettlementTest : public testing::Test {
  protected:
    void Run() {
        Session.CalcAborted = false;
        ComputeTimeSettlement();
    }
    // A run that ends well and without a word.
    void RunWell() {
        Run();
        ASSERT_FALSE(Session.CalcAborted);
        ASSERT_TRUE(host.Messages.empty()) << host.LastMessage().Text;
        EXPECT_EQ(host.Pointer(), PointerShape::Default);
    }
    ScriptedHost host;
};

}  // namespace lithmark::tests
