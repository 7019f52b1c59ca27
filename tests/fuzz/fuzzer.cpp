// The program that the fuzzer drives: lithmark-fuzz --target=NAME CORPUS [libFuzzer's own options].
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "fuzz/Targets.h"

namespace {

const lithmark::fuzz::FuzzTarget* target = nullptr;

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    constexpr std::string_view kOption = "--target=";
    for (int i = 1; i < *argc; ++i) {
        const std::string_view word = (*argv)[i];
        if (word.starts_with(kOption)) target = lithmark::fuzz::FindTarget(word.substr(kOption.size()));
    }
    if (target != nullptr) return 0;
    std::fprintf(stderr, "usage: lithmark-fuzz --target=NAME CORPUS ...\ntargets:");
    for (const auto& row : lithmark::fuzz::Targets()) std::fprintf(stderr, " %s", std::string(row.Name).c_str());
    std::fprintf(stderr, "\n");
    std::exit(2);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    target->Run({reinterpret_cast<const char*>(bytes), size});
    return 0;
}
