#include "study/StudyIdentity.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <set>

#include "base/NumberText.h"
#include "core/Session.h"
#include "core/SessionFields.h"

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

void AddProject(Digest& digest) {
    const std::set<std::string_view> heading = {"Auftr", "Datum", "Proj"};
    for (const SessionField& field : SessionFields()) {
        if (heading.contains(field.Name)) continue;
        digest.Add(field.Name);
        digest.Add(SessionFieldText(field.Ref));
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

}  // namespace

std::string StudyIdentity(const StudyRequest& request, const StudyPlan& plan, const std::vector<Take>& takes) {
    Digest digest;
    digest.Add(LITHMARK_VERSION);
    AddProject(digest);
    AddSettings(digest);
    digest.Add(request.Vary);
    digest.Add(plan.Rows() ? plan.Rows()->Content() : std::string());
    digest.Add(request.Cases);
    digest.Add(request.Random);
    if (!request.Random.empty()) {
        digest.Add(request.Correlate);
        digest.Add(std::to_string(plan.Samples()->Count()));
        digest.Add(std::to_string(request.Seed));
        digest.Add(request.Sobol ? "sobol" : "random");
    }
    for (const Take& take : takes) digest.Add(take.Name);
    digest.Add(request.Limit);
    return digest.Hex();
}

}  // namespace lithmark
