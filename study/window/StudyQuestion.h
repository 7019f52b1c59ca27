// What the window of a study asks: which fields vary over which values, which are random, what is taken, what it is
// held against. It is typed in the units of the dialog and handed to the study in base units.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "study/StudyRequest.h"
#include "study/window/FieldChoices.h"
#include "study/window/ResultChoices.h"

namespace lithmark {

enum class StepKind { Even, Factors, List };
enum class DistributionKind { Normal, LogNormal, Uniform, Triangular };

inline constexpr int kNoField = -1;

// A field that varies, by its place among the choices, and its values as they are typed.
struct VaryLine {
    int Field = kNoField;
    StepKind Steps = StepKind::Even;
    std::string From, To, Count;
    std::string List;  // parted by semicolons or blanks
};

// A field that is random. What the three texts are is told by the distribution: mean and deviation; the ends; an end,
// the mode, the other end.
struct RandomLine {
    int Field = kNoField;
    DistributionKind Kind = DistributionKind::LogNormal;
    std::array<std::string, 3> Texts;
};
// How many of the texts a distribution has.
int TextsOf(DistributionKind kind);

// A box that cannot be taken, by the name of its widget, and why.
struct AskFault {
    std::string Box, Reason;
};

class StudyQuestion {
  public:
    static constexpr int kVaryLines = 2, kRandomLines = 3;
    static constexpr int kValues = 21, kFamily = 7, kMostFamily = 12, kContour = 15, kMostContour = 60;
    static constexpr int kLeastSamples = 2, kMostSamples = 1000000;
    static constexpr int kMostSwing = 99;  // per cent

    // Begins with the field `first` and the result that is looked for most often.
    StudyQuestion(std::vector<FieldChoice> fields, std::vector<ResultChoice> results, int first);

    const std::vector<FieldChoice>& Fields() const noexcept { return fields_; }
    const std::vector<ResultChoice>& Results() const noexcept { return results_; }
    // The same question in the symbols of reports, as files have them.
    StudyQuestion InPlainSymbols() const;

    std::array<VaryLine, kVaryLines> Vary;
    std::array<RandomLine, kRandomLines> Random;
    std::string Samples = "1000";
    std::vector<bool> Taken;  // for each result
    int Result = 0;           // that is drawn; it is taken in any case
    std::string Limit;        // of the result that is drawn; empty: none
    std::string Share = "5";  // per cent of samples that may be beyond it, for a search
    bool TornadoOfAll = true;
    std::string TornadoSwing = "10";  // per cent up and down, of all fields

    // Sets the field of a line and proposes its values.
    void ChooseVaried(int line, int field);
    void ChooseRandom(int line, int field);
    void ProposeTexts(int randomLine);

    // Draws the result over both varied fields instead of a family of curves; its number of values follows as long as
    // it is the proposed one.
    void DrawContour(bool on);
    // There is a second field, and a contour is asked for.
    bool DrawsContour() const { return contour_ && SecondVaried() != nullptr; }
    bool ContourAsked() const noexcept { return contour_; }

    // How many values a line may have at most.
    int MostValues(int line) const;

    bool IsRandom() const;
    // The field of a line of `Vary`; null where there is none.
    const FieldChoice* Varied(int line) const { return Choice(Vary[static_cast<std::size_t>(line)].Field); }
    // What the result is drawn over, and what makes a family of curves of it; null where there is none.
    const FieldChoice* FirstVaried() const { return Varied(0) != nullptr ? Varied(0) : Varied(1); }
    const FieldChoice* SecondVaried() const { return Varied(0) != nullptr ? Varied(1) : nullptr; }
    const ResultChoice& Drawn() const { return results_[static_cast<std::size_t>(Result)]; }
    // In base units; nothing without a limit.
    std::optional<double> LimitNumber() const;

    // What keeps the rows from being asked for, in the order of the boxes.
    std::vector<AskFault> Faults() const;
    // The same for the search of the limit, and for the tornado.
    std::vector<AskFault> FindFaults() const;
    std::vector<AskFault> TornadoFaults() const;

    // There are no faults. The rows; the one row of the values that the dialog holds; the search along the first field;
    // the tornado of the result that is drawn.
    StudyRequest Rows() const;
    StudyRequest Present() const;
    StudyRequest Find() const;
    StudyRequest Tornado() const;
    // FIELD=FROM:TO of the search.
    std::string FindRange() const;
    // "5%": the share of samples that may be beyond the limit.
    std::string ShareText() const;

  private:
    const FieldChoice* Choice(int field) const;
    void AddVaryFaults(std::vector<AskFault>& faults, int line) const;
    void AddRandomFaults(std::vector<AskFault>& faults, int line) const;
    void AddLimitFault(std::vector<AskFault>& faults) const;
    std::string VaryText(int line) const;
    std::string RandomText(int line) const;
    std::string LimitText() const;
    void Take(StudyRequest& request, bool all) const;

    std::vector<FieldChoice> fields_;
    std::vector<ResultChoice> results_;
    bool contour_ = false;
};

}  // namespace lithmark
