#include "CliCase.h"

#include <algorithm>
#include <filesystem>

#include "support/Places.h"
#include "support/System.h"

namespace lithmark::tests {

CliResult CliTest::Run(std::vector<std::string> words) const {
    words.insert(words.end(), {"--settings", settings_.Dir()});
    return RunPlain(words);
}

CliResult CliTest::RunPlain(const std::vector<std::string>& words, const std::string& out) const {
    const std::string outFile = out.empty() ? output_ / "out" : out, errFile = output_ / "err";
    const int status = RunProgram({otherProgram.empty() ? CommandLineTool().string() : otherProgram,
                                   words,
                                   {{"XDG_CONFIG_HOME", settings_.Dir()}},
                                   outFile,
                                   errFile,
                                   runner,
                                   asOrdinaryUser});
    return {status, out.empty() ? ReadBytes(outFile) : "", ReadBytes(errFile)};
}

std::string CliTest::Example(const std::string& name) const {
    namespace fs = std::filesystem;
    const fs::path from = SourceDir() / "examples" / name;
    for (const auto& entry : fs::directory_iterator(from))
        if (entry.is_regular_file()) fs::copy_file(entry.path(), work / entry.path().filename().string());
    if (fs::exists(from / "settings"))
        for (const auto& entry : fs::directory_iterator(from / "settings"))
            fs::copy_file(entry.path(), settings_ / entry.path().filename().string());
    return work / (name + ".PO3");
}

std::string CliTest::New(const std::string& name, int problem, const std::vector<std::string>& sets) const {
    std::vector<std::string> words = {"new", work / name, "--problem", std::to_string(problem)};
    for (const std::string& set : sets) words.insert(words.end(), {"--set", set});
    const CliResult result = Run(words);
    EXPECT_EQ(result.Status, 0) << result.Err;
    return work / (name + ".PO3");
}

void ExpectFailure(const CliResult& result, int status, const std::vector<std::string>& parts) {
    EXPECT_EQ(result.Status, status) << result.Err;
    EXPECT_EQ(result.Out, "");
    EXPECT_TRUE(result.Err.starts_with("lithmark-cli: ")) << result.Err;
    EXPECT_EQ(std::count(result.Err.begin(), result.Err.end(), '\n'), 1) << result.Err;
    for (const std::string& part : parts) EXPECT_THAT(result.Err, testing::HasSubstr(part));
}

std::vector<std::string> With(std::vector<std::string> words, const std::vector<std::string>& more) {
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

std::vector<std::string> Keys(const Json& json) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : json.items()) keys.push_back(key);
    return keys;
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        lines.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return lines;
}

}  // namespace lithmark::tests
