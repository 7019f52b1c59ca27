// What the targets share: a folder of their own, a host that keeps the messages, and the laws.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "services/host/Host.h"

namespace lithmark::fuzz {

// A broken law ends the process, so that the fuzzer keeps the input.
void Hold(bool law, const char* what);

class FuzzHost : public Host {
  public:
    std::vector<std::string> Messages;
    void ShowMessage(const std::string&, const std::string& text, MessageIcon) override { Messages.push_back(text); }
};

// A fresh session over an empty folder, with the project "F" open in it and the host in force. The folder is the same
// for every input of a process, and is cleared as a case begins.
class FuzzCase {
  public:
    FuzzCase();
    ~FuzzCase();
    FuzzCase(const FuzzCase&) = delete;
    FuzzCase& operator=(const FuzzCase&) = delete;

    // Full path of a name in the folder.
    std::string Path(std::string_view name) const;
    void Write(std::string_view name, std::string_view bytes) const;
    std::string Read(std::string_view name) const;

    // What was refused is told once and names the file; a failure inside a text file names its line too.
    void HoldRefused(std::string_view name) const;
    // Nothing was told.
    void HoldSilent() const;

    FuzzHost Host;
};

}  // namespace lithmark::fuzz
