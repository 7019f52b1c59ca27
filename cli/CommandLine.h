// The command line of lithmark-cli: its commands and options, and the run of the one that is asked for.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <string>
#include <vector>

#include "base/TextId.h"
#include "cli/Commands.h"
#include "cli/StudyCommand.h"

namespace lithmark {

class CommandLine {
  public:
    // The texts of the help are those of the language in force.
    CommandLine();

    ExitStatus Run(int argc, char** argv);

  private:
    using Runner = std::function<ExitStatus(const CommonOptions&, ConsoleHost&)>;
    // What the help of a command says of it.
    struct About {
        std::string Name;
        TextId Description;
        std::vector<std::string> Examples;
        std::vector<int> Statuses;
    };

    void AddCommonOptions();
    void AddHelp();
    void AddNew();
    void AddShow();
    void AddReport();
    void AddChart();
    void AddContour();
    void AddStudy();
    CLI::App* Command(const About& about, const std::string& subject, TextId meaning);
    void AddOutput(CLI::App& command, const std::vector<std::string>& formats);
    // Prints the help or the version that was asked for.
    ExitStatus Tell(const CLI::ParseError& asked);
    ExitStatus HelpCommand();
    // What the parser leaves to the program: that there is a command, and a project to work on.
    void CheckWords();

    CLI::App app_;
    CommonOptions options_;
    ReportOptions report_;
    ChartOptions chart_;
    ContourCommandOptions contour_;
    StudyOptions study_;
    int problem_ = 0;
    std::string helpOn_;
    Runner run_;
};

// The language of help texts and command line errors, before the command line has been understood: the one asked for,
// or the stored one.
void UseLanguageAsked(int argc, char** argv);

}  // namespace lithmark
