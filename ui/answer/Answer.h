// Answer: what a problem's dialog shows of the results of its present input: the main values, the curves that an
// engineer would sketch, and the notices.
#pragma once

#include <string>
#include <vector>

namespace lithmark {

// A line of the answer.
struct AnswerValue {
    std::string Symbol;  // as the report writes it, "Sigma_z"; it tells lines apart
    std::string Label;   // in words
    std::string Text;    // as Results would print it
    std::string Unit;    // with its brackets
    double Number = 0;   // what the text stands for, in the unit shown
    bool Main = true;    // shown at once, and not only on request
};

// A curve over the depth or, for a raft, a length and, for a building, the time. The second axis always points down.
struct AnswerCurve {
    struct Line {
        std::string Name;  // empty where a curve has one line
        // Of one length. A value that could not be worked out is no number, and parts the line there.
        std::vector<double> X, Y;
    };
    struct Point {
        std::string Name;
        double X = 0, Y = 0;
    };
    std::string Title;
    std::string XSymbol, XUnit, YSymbol, YUnit;  // symbols as the report writes them
    bool WholeX = false;                         // time units are counted
    bool Beside = false;                         // stands beside its neighbour, not below it
    std::vector<Line> Lines;
    std::vector<Point> Points;  // of the present input, or measured
};

struct AnswerNotice {
    std::string Id, Text;
};

struct Answer {
    std::vector<AnswerValue> Values;
    std::vector<AnswerCurve> Curves;
    std::vector<AnswerNotice> Notices;

    // The line of a symbol; null where there is none.
    const AnswerValue* Find(const std::string& symbol) const;
};

// Four digits of a value whose text has fewer than two; empty for all others.
std::string FineText(const AnswerValue& value);
// "+4.1 %", the change from a kept value; "-" where the kept one is 0 and this is not.
std::string DifferenceText(const AnswerValue& value, const AnswerValue& kept);

}  // namespace lithmark
