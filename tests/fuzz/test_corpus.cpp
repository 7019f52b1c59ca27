// Replays what the fuzzer starts from and what it found: the example projects, and the inputs kept in corpus/.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "base/Utf8.h"
#include "fuzz/Targets.h"
#include "support/Files.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

namespace fs = std::filesystem;
using namespace fuzz;

class Corpus : public testing::TestWithParam<FuzzTarget> {};

// The bytes of an input, whole and with pieces gone: a reader meets the end of a file everywhere.
void RunCut(const FuzzTarget& target, const std::string& bytes) {
    target.Run(bytes);
    const bool kernel = target.Name.starts_with("run");
    const std::size_t step = std::max<std::size_t>(1, bytes.size() / (kernel ? 4 : 60));
    for (std::size_t length = 0; length < bytes.size(); length += step) {
        target.Run(bytes.substr(0, length));
        target.Run(bytes.substr(length));
    }
}

TEST_P(Corpus, BreaksNoLaw) {
    const FuzzTarget& target = GetParam();
    int inputs = 0;
    for (const auto& entry : fs::recursive_directory_iterator(SourceDir() / "examples")) {
        if (!entry.is_regular_file()) continue;
        const std::string name = entry.path().filename();
        const std::string extension = UpperAscii(entry.path().extension().string());
        const bool ofSettings = target.SeedExtension.empty() && LowerAscii(name) == target.Name;
        if (!ofSettings && (target.SeedExtension.empty() || extension != "." + std::string(target.SeedExtension)))
            continue;
        SCOPED_TRACE(name);
        RunCut(target, ReadBytes(entry.path()));
        ++inputs;
    }
    const fs::path kept = SourceDir() / "tests/fuzz/corpus" / target.Name;
    if (fs::exists(kept))
        for (const auto& entry : fs::directory_iterator(kept)) {
            SCOPED_TRACE(entry.path().filename().string());
            RunCut(target, ReadBytes(entry.path()));
            ++inputs;
        }
    EXPECT_GT(inputs, 0);
}

INSTANTIATE_TEST_SUITE_P(Targets, Corpus, testing::ValuesIn(Targets().begin(), Targets().end()),
                         [](const auto& target) { return std::string(target.param.Name); });

}  // namespace
}  // namespace lithmark::tests
