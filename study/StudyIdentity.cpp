#include "study/StudyIdentity.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <set>

#include "base/NumberText.h"
#include "core/Session.h"
#include "core/SessionFields.h"
#include "core/TimeUnits.h"

namespace lithmark {

namespace {

// FNV-1a, 64 bits (Fowler, Noll, Vo), folded to 32. Each text ends with a byte that no text holds.
class Digest {
  public:
    void Add(std::string_view text) {
        for (const char c : text) Byte(static_cast<unsigned char>(c));
        Byte(0xFF);
    }
    void Add(const std::vector<std::string>& texts) {
        for (const std::string& text : texts) Add(text);
        Byte(0xFE);
    }
    std::string Hex() const {
        constexpr std::size_t kDigits = 8;
        std::array<char, 16> digits;
        const auto folded = static_cast<std::uint32_t>(sum_ ^ sum_ >> 32);
        const auto end = std::to_chars(digits.begin(), digits.end(), folded, 16).ptr;
        const std::string hex(digits.begin(), end);
        return std::string(kDigits - hex.size(), '0') + hex;
    }

  private:
    void Byte(unsigned char byte) { sum_ = (sum_ ^ byte) * 0x100000001b3U; }

    std::uint64_t sum_ = 0xcbf29ce484222325U;
};

// The word is that of the language in force; what it stands for is the same in all of them.
std::string TimeUnitOfAnyLanguage() {
    const Single seconds = SecondsPerTimeUnit(Session.TimeUnit);
    return seconds > 0 ? NumberToText(seconds) : Session.TimeUnit;
}

void AddProject(Digest& digest) {
    const std::set<std::string_view> heading = {"Auftr", "Datum", "Proj"};
    for (const SessionField& field : SessionFields()) {
        if (heading.contains(field.Name)) continue;
        digest.Add(field.Name);
        digest.Add(field.Name == "TimeUnit" ? TimeUnitOfAnyLanguage() : SessionFieldText(field.Ref));
    }
}

void AddSettings(Digest& digest) {
    const SessionRecord& s = Session;
    for (const std::string& label : {s.Len1Label, s.Len2Label, s.Force1Label, s.Force2Label}) digest.Add(label);
    for (const double factor : {s.Len1Factor, s.Len2Factor, s.Force1Factor, s.Force2Factor})
        digest.Add(JsonNumber(factor));
    for (const std::string& format :
         {s.FmtForce, s.FmtSettlement, s.FmtStress, s.FmtModulus, s.FmtLength, s.FmtStrain, s.FmtPermeability, s.FmtCv,
          s.FmtRatio, s.FmtTime, s.FmtPercent, s.FmtUnitWeight, s.FmtDialogModulus})
        digest.Add(format);
}

// Everything as the rows show it, whatever words it was asked for by.
void AddPlan(Digest& digest, const StudyPlan& plan) {
    for (const StudyField& field : plan.Fields()) digest.Add(field.Name);
    for (const StudyCase& each : plan.Cases()) {
        digest.Add(each.Name);
        for (const FieldChange& change : each.Changes) digest.Add(std::vector<std::string>{change.Name, change.Value});
    }
    for (std::uint64_t row = 0; plan.Rows() && row < plan.Rows()->Count(); ++row) digest.Add(plan.Rows()->Values(row));
    for (const Variation& variation : plan.Variations()) digest.Add(variation.Plain());
    if (plan.Samples()) digest.Add(plan.Samples()->Plain());
}

}  // namespace

std::string StudyIdentity(const StudyPlan& plan, const std::vector<Take>& takes, std::vector<ResultLimit> limits) {
    Digest digest;
    digest.Add(LITHMARK_VERSION);
    AddProject(digest);
    AddSettings(digest);
    AddPlan(digest, plan);
    for (const Take& take : takes) digest.Add(take.Name);
    std::ranges::sort(limits, {}, &ResultLimit::Result);
    for (const ResultLimit& limit : limits) {
        digest.Add(limit.Result);
        digest.Add(JsonNumber(static_cast<double>(limit.Value)));
    }
    return digest.Hex();
}

}  // namespace lithmark
