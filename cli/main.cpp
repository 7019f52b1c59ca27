// lithmark-cli: everything of Lithmark that can be done without a screen, for scripts, batch runs and tests.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <functional>
#include <string>

#include "base/RemovedOnEnd.h"
#include "base/Utf8.h"
#include "cli/Commands.h"
#include "cli/StudyCommand.h"
#include "services/SharedServices.h"
#include "study/StudyFailure.h"

namespace lithmark {

namespace {

// The language of help texts and command line errors, before the command line has been understood.
Language LanguageAsked(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        const std::string lang = word == "--lang" && i + 1 < argc ? argv[i + 1]
                                 : word.starts_with("--lang=")    ? word.substr(7)
                                                                  : "";
        if (lang == "de") return Language::German;
        if (lang == "ar") return Language::Arabic;
    }
    return Language::English;
}

class CommandLine {
  public:
    CommandLine() : app_(Text(902016_text), "lithmark-cli") {
        app_.set_help_flag("--help", Text(902028_text));
        app_.set_version_flag("--version", "lithmark-cli " + LanguageTexts().VersionText(), Text(902029_text));
        app_.require_subcommand(1);

        CLI::App* create = Command("new", 902017_text, 902021_text, {}, NewRunner());
        create->add_option("--problem", problem_, Text(902022_text))->required()->check(CLI::Range(1, 11));
        Command("show", 902018_text, 902020_text, {}, ShowCommand);
        AddReport();
        AddChart();
        AddContour();
        AddStudy();
    }

    ExitStatus Run(int argc, char** argv) {
        try {
            app_.parse(argc, argv);
        } catch (const CLI::ParseError& error) {
            if (error.get_exit_code() == 0) {
                app_.exit(error);
                return ExitStatus::Done;
            }
            throw CommandFailure(ExitStatus::BadCommandLine, error.what());
        }
        ConsoleHost host;
        StartCommand(options_, host);
        ExitStatus status = ExitStatus::Done;
        try {
            status = run_(options_, host);
        } catch (...) {
            PackProjectAgain();
            throw;
        }
        if (!PackProjectAgain()) throw CommandFailure(ExitStatus::FileTrouble, host.Messages().back().Text);
        host.PrintMessages();
        return status;
    }

  private:
    using Runner = std::function<ExitStatus(const CommonOptions&, ConsoleHost&)>;

    Runner NewRunner() {
        return [this](const CommonOptions& options, ConsoleHost& host) { return NewCommand(options, problem_, host); };
    }

    void AddReport() {
        CLI::App* report = Command(
            "report", 902019_text, 902020_text, kReportFormats,
            [this](const CommonOptions& options, ConsoleHost& host) { return ReportCommand(options, report_, host); });
        report->add_flag("--tables", report_.Tables, Text(907257_text));
        report->add_flag("--no-notices", report_.NoNotices, Text(907258_text));
        report->add_flag("--with-figures", report_.Figures, Text(911003_text));
    }

    void AddChart() {
        CLI::App* chart = Command(
            "chart", 902033_text, 902020_text, kChartFormats,
            [this](const CommonOptions& options, ConsoleHost& host) { return ChartCommand(options, chart_, host); });
        chart->add_option("--curve", chart_.Curve, Text(902034_text))
            ->check(CLI::IsMember({"Tab1", "Tab2", "Tab3", "Tab4", "Tab5", "Tab6"}));
        chart->add_option("--load-unit", chart_.LoadUnit, Text(902035_text))->check(CLI::IsMember({"%", "force"}));
        chart->add_option("--settlement-unit", chart_.SettlementUnit, Text(902036_text))
            ->check(CLI::IsMember({"%", "length"}));
        chart->add_flag("--downward", chart_.Downward, Text(910030_text));
    }

    void AddContour() {
        CLI::App* contour = Command("contour", 902037_text, 902020_text, kContourFormats,
                                    [this](const CommonOptions& options, ConsoleHost& host) {
                                        return ContourCommand(options, contour_, host);
                                    });
        contour->add_option("--result", contour_.Result, Text(902038_text))
            ->check(CLI::IsMember({"settlement", "pressure"}));
        contour->add_option("--size", contour_.Size, Text(902039_text))->check(CLI::Range(1, 8192));
        contour
            ->add_option_function<std::string>(
                "--style", [this](const std::string& style) { contour_.Field = style == "field"; }, Text(910031_text))
            ->check(CLI::IsMember({"classes", "field"}));
        contour->add_option("--section", contour_.Section, Text(910032_text));
    }

    void AddStudy() {
        CLI::App* study = Command(
            "study", 902040_text, 902020_text, kStudyFormats,
            [this](const CommonOptions& options, ConsoleHost& host) { return StudyCommand(options, study_, host); });
        AddStudyOptions(*study, study_);
    }

    // A command with the options that every command has; formats only where it has several.
    CLI::App* Command(const std::string& name, TextId description, TextId subject,
                      const std::vector<std::string>& formats, const Runner& runner) {
        CLI::App* command = app_.add_subcommand(name, Text(description));
        command->set_help_flag("--help", Text(902028_text));
        command->add_option("project", options_.Project, Text(subject))->required();
        command->add_option("--lang", options_.Lang, Text(902023_text))
            ->check(CLI::IsMember({"de", "en", "ar", "ids"}));
        command->add_option("--settings", options_.Settings, Text(902024_text));
        command->add_option("--set", options_.Sets, Text(902025_text))
            ->take_all()
            ->allow_extra_args(false)
            ->type_name("FIELD=VALUE");
        if (!formats.empty()) {
            command->add_option("--format", options_.Format, Text(902026_text))->check(CLI::IsMember(formats));
            command->add_option("--output", options_.Output, Text(902027_text));
        }
        command->callback([this, runner] { run_ = runner; });
        return command;
    }

    CLI::App app_;
    CommonOptions options_;
    ReportOptions report_;
    ChartOptions chart_;
    ContourCommandOptions contour_;
    StudyOptions study_;
    int problem_ = 0;
    Runner run_;
};

}  // namespace

}  // namespace lithmark

int main(int argc, char** argv) {
    using namespace lithmark;
    const auto fail = [](ExitStatus status, const std::string& line) {
        std::fprintf(stderr, "lithmark-cli: %s\n", OneLine(line).c_str());
        return static_cast<int>(status);
    };
    EndCleanlyOnSignals();
    try {
        LanguageTexts().SetCurrent(LanguageAsked(argc, argv));
        return static_cast<int>(CommandLine().Run(argc, argv));
    } catch (const CommandFailure& failure) {
        return fail(failure.Status(), failure.what());
    } catch (const StudyFailure& failure) {
        const bool request = failure.Why() == StudyFailure::Cause::Request;
        return fail(request ? ExitStatus::BadCommandLine : ExitStatus::FileTrouble, failure.what());
    } catch (const std::exception& error) {
        return fail(ExitStatus::FileTrouble, SharedServices().FailureText(FailureFrom(error)));
    }
}
