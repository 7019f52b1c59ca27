// The kernels on what data files hold.
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "contour/CurveSets.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "files/ProblemData.h"
#include "fuzz/FuzzCase.h"
#include "fuzz/FuzzTargets.h"
#include "kernels/RunKernel.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark::fuzz {

namespace {

// Runs that would take seconds are no matter of a fuzzer: rafts of many nodes, marches of many steps.
bool TooLong() {
    const SessionRecord& p = Session;
    const auto steps = [](double length, double step) { return step > 0 ? std::abs(length) / step : 0; };
    if (IsRaft(p.ProblemType)) return steps(p.A, p.PrefDx) * steps(p.B, p.PrefDy) > 150 || steps(p.A, 0.5) > 40;
    if (p.ProblemType == Problem::ConsolidationRate)
        return steps(p.hLayer(1) + p.hLayer(2), p.PrefDz) > 100 || std::abs(p.T * 3e7 * p.CvLayer(1)) > 1e3 ||
               std::abs(p.T * 3e7 * p.CvLayer(2)) > 1e3;
    return false;
}

void HoldPrintable() {
    std::string report = Session.ResultText;
    Hold(report.ends_with("\r\n"), "a report ends its last line");
    // The day of the beginning is the user's own words.
    if (const auto day = report.find(Text(300051_text)); day != std::string::npos)
        report.erase(day, report.find('\n', day) - day);
    Hold(report.find("nan") == std::string::npos && report.find("inf") == std::string::npos,
         "a report has numbers in it");
}

void BuildCurves() {
    const int problem = Session.ProblemType;
    Session.CurveLoadUnit = Session.Force1Label;
    Session.CurveSettlementUnit = Session.Len2Label;
    for (const char* choice : {"Tab1", "Tab2", "Tab3", "Tab4", "Tab5", "Tab6"}) {
        const bool raft = choice[3] >= '5';
        if (problem != Problem::ConsolidationRate && (IsRaft(problem) != raft || !(raft || IsTimeSettlement(problem))))
            continue;
        Session.CurveChoice = choice;
        try {
            BuildChart();
        } catch (const Failure&) {  // a value that its axis cannot show
        }
    }
}

// "The calculation was stopped: ...", or that it is not possible with the time unit.
bool TellsAnAbort(const std::string& message) {
    const std::string text = Text(909100_text);
    return (message.starts_with(text.substr(0, text.find('|'))) && message.size() > text.size()) ||
           message == Text(400123_text, {{"|1", Session.TimeUnit}});
}

}  // namespace

void RunKernelOn(std::string_view bytes, int problem, const char* name) {
    FuzzCase fuzz;
    fuzz.Write(name, bytes);
    Session.ProblemType = problem;
    SetProblemDefaults();
    if (ReadProblemData() != ReadOutcome::Read) return;
    Session.A0 = Session.A;
    if (TooLong()) return;
    Session.CalcAborted = false;
    Session.ResultText.clear();
    const bool ran = RunProblemKernel();
    if (Session.CalcAborted) {
        Hold(ran, "a run that aborts has begun");
        // An advice may stand ahead of it: "consolidation takes longer than 70 months".
        const std::vector<std::string>& told = fuzz.Host.Messages;
        Hold(std::count_if(told.begin(), told.end(), TellsAnAbort) == 1, "an aborted run is told once");
        Hold(TellsAnAbort(told.back()), "and last");
        return;
    }
    if (!ran) return;
    HoldPrintable();
    BuildCurves();
}

}  // namespace lithmark::fuzz
