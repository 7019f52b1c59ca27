#include "support/Places.h"

namespace lithmark::tests {

const std::filesystem::path& SourceDir() {
    static const std::filesystem::path path = LITHMARK_SOURCE_DIR;
    return path;
}

const std::filesystem::path& TestOutputDir() {
    static const std::filesystem::path path = LITHMARK_TEST_OUTPUT_DIR;
    return path;
}

const std::filesystem::path& BuildDir() {
    static const std::filesystem::path path = LITHMARK_BUILD_DIR;
    return path;
}

const std::filesystem::path& CommandLineTool() {
    static const std::filesystem::path path = BuildDir() / "cli/lithmark-cli" LITHMARK_PROGRAM_SUFFIX;
    return path;
}

}  // namespace lithmark::tests
