// RandomHost: a user who does anything, in any order, for as long as it takes.
#pragma once

#include <chrono>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "services/host/Host.h"

namespace lithmark::tests {

class RandomHost : public Host {
  public:
    RandomHost(unsigned seed, std::string folder);
    ~RandomHost() override;
    RandomHost(const RandomHost&) = delete;
    RandomHost& operator=(const RandomHost&) = delete;

    // A whole number from 0 to below `count`; true once in so many times.
    int Below(int count);
    bool OnceIn(int times) { return Below(times) == 0; }
    // Any of the user's texts: numbers that are good and bad, words, nothing, too much.
    std::string AnyText();

    // What the user did last, the newest at the end: how a broken law came about.
    const std::vector<std::string>& Steps() const noexcept { return steps_; }
    void Note(std::string step);
    long Events() const noexcept { return events_; }

    void ShowMessage(const std::string& title, const std::string& text, MessageIcon icon) override;
    bool Progress(double fraction) override;
    bool AskYesNo(const std::string& title, const std::string& text) override;
    void ShowForm(Form& form) override;
    void SetFocus(Form& form, Control& control) override { form.Focus = &control; }
    void ShowHelpText(const std::string&, const std::string&) override {}
    void ShowHelpTopic(const std::string&) override {}
    std::optional<std::string> ChooseFileToOpen(const std::string& title, const std::string& startDir,
                                                const std::string& pattern) override;
    std::optional<std::string> ChooseFileToSave(const std::string& title, const std::string& startDir,
                                                const std::string& name, const std::string& extension) override;
    std::optional<std::string> BrowseFolder(const std::string& start) override;
    std::optional<CompanyLines> EditCompanyLines(const CompanyLines& lines) override;
    std::optional<Language> ChooseLanguage(Language current) override;
    bool EditTable(TableEdit& table) override;
    void ShowFileList(const std::string&, const std::string&) override {}
    void ShowTextEditor(const std::string&) override {}
    void ShowChart(const ChartArguments& chart) override;
    void PrintText(const std::string&, const std::string&, int, bool) override {}
    void OpenWordProcessor(const std::string&, const std::string&, int, bool) override {}
    void SetClipboardText(const std::string&) override {}
    void StartProcess(const std::string&, const std::vector<std::string>&) override {}

  private:
    void DoAnything(Form& form);
    std::string AnyFile();

    std::mt19937 random_;
    std::string folder_;
    std::vector<std::string> steps_;
    long events_ = 0;
    int depth_ = 0;
    std::chrono::steady_clock::time_point runBegan_;
};

}  // namespace lithmark::tests
