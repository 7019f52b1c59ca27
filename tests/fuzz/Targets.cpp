#include "fuzz/Targets.h"

#include <algorithm>
#include <array>

#include "fuzz/FuzzTargets.h"

namespace lithmark::fuzz {

namespace {

constexpr std::array kTargets = {
    FuzzTarget{"po3", "PO3", ReadProjectFileTarget},
    FuzzTarget{"auf", "AUF", ReadOrderFileTarget},
    FuzzTarget{"ssd", "SSD", [](std::string_view b) { ReadDataFile(b, 1, "F.SSD"); }},
    FuzzTarget{"con", "CON", [](std::string_view b) { ReadDataFile(b, 4, "F.CON"); }},
    FuzzTarget{"rat", "RAT", [](std::string_view b) { ReadDataFile(b, 5, "F.RAT"); }},
    FuzzTarget{"tst", "TST", [](std::string_view b) { ReadDataFile(b, 6, "F.TST"); }},
    FuzzTarget{"rde", "RDE", [](std::string_view b) { ReadDataFile(b, 9, "F.RDE"); }},
    FuzzTarget{"rco", "RCO", [](std::string_view b) { ReadDataFile(b, 10, "F.RCO"); }},
    FuzzTarget{"sc1", "SC1", [](std::string_view b) { ReadDataFile(b, 11, "F.SC1"); }},
    FuzzTarget{"archive", "", ReadArchiveTarget},
    FuzzTarget{"settings", "", ReadSettingsStore},
    FuzzTarget{"units", "", ReadUnits},
    FuzzTarget{"noformat", "", ReadNumberFormats},
    FuzzTarget{"preferences", "", ReadPreferences},
    FuzzTarget{"steu", "", ReadDataDirectory},
    FuzzTarget{"contour", "", ReadContour},
    FuzzTarget{"number", "", ReadTypedNumber},
    FuzzTarget{"kept", "", ReadKeptInput},
    FuzzTarget{"rows", "", ReadStudyRows},
    FuzzTarget{"part", "", ReadStudyPart},
    FuzzTarget{"run1", "SSD", [](std::string_view b) { RunKernelOn(b, 1, "F.SSD"); }},
    FuzzTarget{"run2", "SSD", [](std::string_view b) { RunKernelOn(b, 2, "F.SSD"); }},
    FuzzTarget{"run3", "SSD", [](std::string_view b) { RunKernelOn(b, 3, "F.SSD"); }},
    FuzzTarget{"run4", "CON", [](std::string_view b) { RunKernelOn(b, 4, "F.CON"); }},
    FuzzTarget{"run5", "RAT", [](std::string_view b) { RunKernelOn(b, 5, "F.RAT"); }},
    FuzzTarget{"run6", "TST", [](std::string_view b) { RunKernelOn(b, 6, "F.TST"); }},
    FuzzTarget{"run7", "TST", [](std::string_view b) { RunKernelOn(b, 7, "F.TST"); }},
    FuzzTarget{"run8", "TST", [](std::string_view b) { RunKernelOn(b, 8, "F.TST"); }},
    FuzzTarget{"run9", "RDE", [](std::string_view b) { RunKernelOn(b, 9, "F.RDE"); }},
    FuzzTarget{"run10", "RCO", [](std::string_view b) { RunKernelOn(b, 10, "F.RCO"); }},
};

}  // namespace

std::span<const FuzzTarget> Targets() {
    return kTargets;
}

const FuzzTarget* FindTarget(std::string_view name) {
    const auto target = std::ranges::find(kTargets, name, &FuzzTarget::Name);
    return target == kTargets.end() ? nullptr : &*target;
}

}  // namespace lithmark::fuzz
