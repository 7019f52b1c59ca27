// What the fuzzer and the replay of its corpus run: one target for each reader of files, for
// what users type, and for each kernel.
//
// A target takes any bytes. It ends the process where a law is broken: no exception leaves a reader or a kernel; what a
// reader accepts comes back unchanged after writing; what it refuses is told once, with the file and, in a text, the
// line; a kernel ends in a report or in one message.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lithmark::fuzz {

struct FuzzTarget {
    std::string_view Name;
    // The ending of the example files that are its seeds, upper case; empty for none.
    std::string_view SeedExtension;
    void (*Run)(std::string_view bytes);
};

std::span<const FuzzTarget> Targets();
// The target of a name, or null.
const FuzzTarget* FindTarget(std::string_view name);

}  // namespace lithmark::fuzz
