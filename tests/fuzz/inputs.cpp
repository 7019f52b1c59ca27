// What users type and what studies read: numbers in boxes, kept input, tables of rows, parts of a study.
#include <filesystem>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "core/SessionFields.h"
#include "fuzz/FuzzCase.h"
#include "fuzz/FuzzTargets.h"
#include "services/SharedServices.h"
#include "services/storage/DraftStore.h"
#include "study/PartFile.h"
#include "study/RowsFile.h"
#include "study/StudyFailure.h"
#include "study/StudyTakes.h"

namespace lithmark::fuzz {

namespace {

constexpr std::size_t kLongestMessage = 2000;

void HoldMessage(const std::string& text) {
    Hold(!text.empty() && text.size() < kLongestMessage, "a message is short");
    Hold(IsUtf8(text), "a message is text");
}

// Runs a reader of a study's files; what it refuses names the file unless the words in it are wrong.
void HoldReader(const FuzzCase& fuzz, std::string_view name, auto&& reader) {
    try {
        reader();
    } catch (const StudyFailure& failure) {
        const std::string text = failure.what();
        HoldMessage(text);
        Hold(failure.Why() == StudyFailure::Cause::Request || text.find(fuzz.Path(name)) != std::string::npos,
             "what is refused names its file");
    }
}

}  // namespace

void ReadTypedNumber(std::string_view bytes) {
    const FuzzCase fuzz;
    const std::string typed(bytes);
    constexpr double kLower = -100, kUpper = 100;
    for (const char sign : {'.', ','}) {
        SharedServices().DecimalSign = sign;
        const auto number = SharedServices().NumberOf(typed);
        const auto fault = SharedServices().TextFault(typed, 2, kUpper, kLower, "Width");
        const bool right = number && *number >= kLower && *number <= kUpper;
        Hold(fault.has_value() != right, "a number within its limits is taken, and nothing else");
        if (fault) HoldMessage(*fault);
        if (!number) continue;
        const std::string written = ReplaceAll(NumberToText(*number), ".", std::string(1, sign));
        Hold(!(*number != SharedServices().NumberOf(written)), "a number comes back");
    }
    SharedServices().DecimalSign = '.';
}

void ReadKeptInput(std::string_view bytes) {
    const FuzzCase fuzz;
    const std::string dir = fuzz.Path("");
    WriteDraft(dir, {"F", "frmstress", {}, {}, {}, {}});
    for (const auto& entry : std::filesystem::directory_iterator(dir))
        fuzz.Write(entry.path().filename().string(), bytes);
    const auto draft = ReadDraft(dir, "F", "frmstress");
    if (!draft) return;
    for (const auto& [name, value] : draft->Data) SetSessionField(name, value);
    WriteDraft(dir, *draft);
    Hold(ReadDraft(dir, "F", "frmstress") == draft, "kept input comes back");
}

void ReadStudyRows(std::string_view bytes) {
    const FuzzCase fuzz;
    fuzz.Write("rows.csv", bytes);
    Session.ProblemType = Problem::SoilStress;
    HoldReader(fuzz, "rows.csv", [&] {
        const RowsFile rows(fuzz.Path("rows.csv"));
        for (std::uint64_t row = 0; row < rows.Count(); ++row)
            Hold(rows.Values(row).size() == rows.Fields().size(), "a row has a cell for each field");
    });
}

// A part of the study "z=1:3:1" with the results Sigma_z, whose sign is 00000000.
void ReadStudyPart(std::string_view bytes) {
    const FuzzCase fuzz;
    fuzz.Write("part.csv", bytes);
    Session.ProblemType = Problem::SoilStress;
    SetProblemDefaults();
    StudyRequest request;
    request.Vary = {"z=1:3:1"};
    request.Take = {"Sigma_z"};
    const StudyPlan plan(request);
    const StudyHead head{false, plan.Fields(), TakesOf(request), "00000000"};
    HoldReader(fuzz, "part.csv", [&] {
        PartFile part(fuzz.Path("part.csv"), head);
        while (const auto line = part.Next(plan)) {
            const auto again = LineOfCells(head, CellsOf(head, *line));
            Hold(again && CellsOf(head, *again) == CellsOf(head, *line), "a row comes back");
        }
    });
}

}  // namespace lithmark::fuzz
