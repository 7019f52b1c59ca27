#include "fuzz/FuzzCase.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "core/Session.h"
#include "core/StartSession.h"
#include "services/SharedServices.h"
#include "services/storage/DataFile.h"

namespace lithmark::fuzz {

namespace {

namespace fs = std::filesystem;

// Takes its folder away when the process ends.
class Folder {
  public:
    Folder() {
        const fs::path memory = "/dev/shm";  // where there is one: no disk takes part
        std::error_code error;
        const fs::path base = fs::is_directory(memory, error) ? memory : fs::temp_directory_path();
        path_ = (base / "lithmark-fuzz-XXXXXX").string();
        if (mkdtemp(path_.data()) == nullptr) std::abort();
    }
    ~Folder() {
        std::error_code error;
        fs::remove_all(path_, error);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    std::string Dir() const { return path_ + "/"; }

  private:
    std::string path_;
};

const Folder& TheFolder() {
    static const Folder folder;
    return folder;
}

}  // namespace

void Hold(bool law, const char* what) {
    if (law) return;
    std::fprintf(stderr, "law broken: %s\n", what);
    std::abort();
}

FuzzCase::FuzzCase() {
    for (const auto& entry : fs::directory_iterator(TheFolder().Dir())) fs::remove_all(entry.path());
    SetCurrentHost(&Host);
    LanguageTexts().SetCurrent(Language::English);
    SharedServices().UseSettingsDirectory(TheFolder().Dir());
    StartSession();
    Session.ProgramDir = Session.DataDir = Session.WorkDir = TheFolder().Dir();
    Session.ProjectName = Session.WorkName = "F";
    Session.Datum = "1 May 2026";
}

FuzzCase::~FuzzCase() {
    Hold(!IsNumberedFileOpen(1), "no file stays open");
    for (const auto& entry : fs::directory_iterator(TheFolder().Dir()))
        Hold(!entry.path().filename().string().starts_with(".lithmark-"), "nothing temporary is left");
    SetCurrentHost(nullptr);
}

std::string FuzzCase::Path(std::string_view name) const {
    return TheFolder().Dir() + std::string(name);
}

void FuzzCase::Write(std::string_view name, std::string_view bytes) const {
    std::ofstream(Path(name), std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string FuzzCase::Read(std::string_view name) const {
    std::ifstream file(Path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void FuzzCase::HoldRefused(std::string_view name) const {
    Hold(Host.Messages.size() == 1, "what is refused is told once");
    const std::string& text = Host.Messages.front();
    Hold(text.find(Path(name)) != std::string::npos, "what is refused names its file");
    Hold(text.find("ine ") != std::string::npos, "what is refused in a text names its line");
    Hold(text.size() < 400, "a message is short");
}

void FuzzCase::HoldSilent() const {
    Hold(Host.Messages.empty(), "what is accepted is not told");
}

}  // namespace lithmark::fuzz
