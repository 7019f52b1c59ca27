// Where the tests find the sources and the programs, and where they may write. One translation unit alone knows the
// paths, so that a compiler cache serves every checkout.
#pragma once

#include <filesystem>

namespace lithmark::tests {

const std::filesystem::path& SourceDir();      // the project's root
const std::filesystem::path& TestOutputDir();  // what came, beside a reference that differs
const std::filesystem::path& BuildDir();       // the root of the build in which the tests run
const std::filesystem::path& CommandLineTool();

}  // namespace lithmark::tests
