#include "services/host/Host.h"

#include "base/Failure.h"

namespace lithmark {

namespace {

// The host of a program that has not said who shows it.
class SilentHost : public Host {
  public:
    void ShowMessage(const std::string&, const std::string&, MessageIcon) override {}
};

Host* current = nullptr;

[[noreturn]] void NotOffered(const char* operation) {
    Fail(FailureKind::Other, operation);
}

}  // namespace

bool Host::AskYesNo(const std::string&, const std::string&) {
    NotOffered("AskYesNo");
}

void Host::ShowForm(Form&) {
    NotOffered("ShowForm");
}

void Host::SetFocus(Form&, Control&) {
    NotOffered("SetFocus");
}

void Host::ShowHelpText(const std::string&, const std::string&) {
    NotOffered("ShowHelpText");
}

void Host::ShowHelpTopic(const std::string&) {
    NotOffered("ShowHelpTopic");
}

std::optional<std::string> Host::ChooseFileToOpen(const std::string&, const std::string&, const std::string&) {
    NotOffered("ChooseFileToOpen");
}

std::optional<std::string> Host::ChooseFileToSave(const std::string&, const std::string&, const std::string&,
                                                  const std::string&) {
    NotOffered("ChooseFileToSave");
}

std::optional<std::string> Host::BrowseFolder(const std::string&) {
    NotOffered("BrowseFolder");
}

std::optional<CompanyLines> Host::EditCompanyLines(const CompanyLines&) {
    NotOffered("EditCompanyLines");
}

std::optional<Language> Host::ChooseLanguage(Language) {
    NotOffered("ChooseLanguage");
}

bool Host::EditTable(TableEdit&) {
    NotOffered("EditTable");
}

void Host::ShowFileList(const std::string&, const std::string&) {
    NotOffered("ShowFileList");
}

void Host::ShowTextEditor(const std::string&) {
    NotOffered("ShowTextEditor");
}

void Host::ShowChart(const ChartArguments&) {
    NotOffered("ShowChart");
}

void Host::PrintText(const std::string&, const std::string&, int, bool) {
    NotOffered("PrintText");
}

void Host::OpenWordProcessor(const std::string&, const std::string&, int, bool) {
    NotOffered("OpenWordProcessor");
}

void Host::SetClipboardText(const std::string&) {
    NotOffered("SetClipboardText");
}

void Host::StartProcess(const std::string&, const std::vector<std::string>&) {
    NotOffered("StartProcess");
}

Host& CurrentHost() {
    static SilentHost silent;
    return current != nullptr ? *current : silent;
}

void SetCurrentHost(Host* host) {
    current = host;
}

}  // namespace lithmark
