#include "cli/CommandLine.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>
#include <utility>

#include "base/Paths.h"
#include "base/Utf8.h"
#include "cli/Choices.h"
#include "cli/HelpFormatter.h"
#include "cli/Output.h"
#include "core/Problems.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageCodes.h"

namespace lithmark {

namespace {

// The values of options as the help shows them.
constexpr char kField[] = "FIELD=VALUE", kFile[] = "FILE", kFolder[] = "DIR", kCount[] = "N";

std::vector<std::string> LanguageChoices() {
    std::vector<std::string> codes;
    codes.reserve(std::size(kLanguageCodes));
    for (const LanguageCodeRow& row : kLanguageCodes) codes.emplace_back(row.Code);
    return codes;
}

// The last value that the words give an option; empty where they do not.
std::string ValueAsked(const std::vector<std::string>& words, const std::string& option) {
    std::string value;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == option && i + 1 < words.size()) value = words[i + 1];
        if (words[i].starts_with(option + "=")) value = words[i].substr(option.size() + 1);
    }
    return value;
}

// A description with what holds where the option is not given.
std::string WithDefault(TextId description, const std::string& value) {
    return Text(description) + " " + Text(911215_text, {{"|1", value}});
}

}  // namespace

void UseLanguageAsked(int argc, char** argv) {
    const std::vector<std::string> words(argv, argv + argc);
    const std::string language = ValueAsked(words, "--lang"), settings = ValueAsked(words, "--settings");
    LanguageTexts().SetCurrent(LanguageOfCode(language));
    if (std::ranges::any_of(kLanguageCodes, [&](const LanguageCodeRow& row) { return row.Code == language; })) return;
    std::error_code error;
    if (!settings.empty() && !std::filesystem::is_directory(PathOf(settings), error)) return;
    if (!settings.empty()) SharedServices().UseSettingsDirectory(settings);
    SharedServices().LoadLanguage();
}

CommandLine::CommandLine() : app_(Text(902016_text), "lithmark-cli") {
    const auto formatter = std::make_shared<HelpFormatter>();
    formatter->label("Positionals", Text(911246_text));
    app_.formatter(formatter);
    AddCommonOptions();
    app_.require_subcommand(0, 1);
    app_.fallthrough();
    app_.option_defaults()->group(Text(911242_text));
    AddNew();
    AddShow();
    AddReport();
    AddChart();
    AddContour();
    AddStudy();
    AddHelp();
    app_.footer(HelpFooter({"lithmark-cli report Raft.PO3", "lithmark-cli help report"}, {0, 1, 2, 3, 4, 130}));
}

// Known to the program and to every command, before and behind its name.
void CommandLine::AddCommonOptions() {
    app_.option_defaults()->group(Text(911247_text));
    OneOf(*app_.add_option("--lang", options_.Lang, Text(902023_text)), LanguageChoices());
    app_.add_option("--settings", options_.Settings, Text(902024_text))->type_name(kFolder);
    app_.add_option("--set", options_.Sets, Text(902025_text))->take_all()->allow_extra_args(false)->type_name(kField);
    app_.set_help_flag("-h,--help", Text(902028_text));
    app_.set_version_flag("-V,--version", "lithmark-cli " + LanguageTexts().VersionText(), Text(902029_text));
}

CLI::App* CommandLine::Command(const About& about, const std::string& subject, TextId meaning) {
    CLI::App* command = app_.add_subcommand(about.Name, Text(about.Description));
    command->group(Text(911241_text));
    command->get_help_ptr()->group({});  // it stands among the common options
    command->add_option(subject, options_.Project, Text(meaning));
    command->footer(HelpFooter(about.Examples, about.Statuses));
    return command;
}

void CommandLine::AddOutput(CLI::App& command, const std::vector<std::string>& formats) {
    OneOf(*command.add_option("--format", options_.Format, WithDefault(902026_text, formats.front())), formats);
    command.add_option("-o,--output", options_.Output, Text(902027_text))->type_name(kFile);
}

void CommandLine::AddNew() {
    CLI::App* command = Command(
        {"new", 902017_text, {"lithmark-cli new work/Footing --problem 1 --set LoadType=2 --set P=150"}, {0, 1, 2}},
        "DIR/NAME", 902021_text);
    CLI::Option* problem = command->add_option("--problem", problem_, Text(902022_text))->required();
    problem->type_name(kCount);
    WholeNumber(*problem, Problem::SoilStress, Problem::LayerTable);
    command->callback([this] {
        run_ = [this](const CommonOptions& options, ConsoleHost& host) { return NewCommand(options, problem_, host); };
    });
}

void CommandLine::AddShow() {
    CLI::App* command = Command(
        {"show", 902018_text, {"lithmark-cli show Raft.PO3", "lithmark-cli show Raft.PO3 --format json"}, {0, 1, 2}},
        "PROJECT", 902020_text);
    AddOutput(*command, kShowFormats);
    command->callback([this] { run_ = ShowCommand; });
}

void CommandLine::AddReport() {
    CLI::App* command = Command({"report",
                                 902019_text,
                                 {"lithmark-cli report Raft.PO3", "lithmark-cli report Raft.PO3 -o raft.pdf --lang de",
                                  "lithmark-cli report Raft.PO3 --set Es=8000 --format json"},
                                 {0, 1, 2, 3}},
                                "PROJECT", 902020_text);
    AddOutput(*command, kReportFormats);
    command->add_flag("--tables", report_.Tables, Text(907257_text));
    command->add_flag("--no-notices", report_.NoNotices, Text(907258_text));
    command->add_flag("--with-figures", report_.Figures, Text(911003_text));
    command->add_flag("--no-export", options_.NoExport, Text(911216_text));
    command->callback([this] {
        run_ = [this](const CommonOptions& options, ConsoleHost& host) {
            return ReportCommand(options, report_, host);
        };
    });
}

void CommandLine::AddChart() {
    CLI::App* command = Command({"chart",
                                 902033_text,
                                 {"lithmark-cli chart Building.PO3 --curve Tab3 -o curve.svg",
                                  "lithmark-cli chart Raft.PO3 --curve Tab6 --format csv"},
                                 {0, 1, 2, 3}},
                                "PROJECT", 902020_text);
    OneOf(*command->add_option("--curve", chart_.Curve, Text(902034_text)),
          {"Tab1", "Tab2", "Tab3", "Tab4", "Tab5", "Tab6"});
    OneOf(*command->add_option("--load-unit", chart_.LoadUnit, WithDefault(902035_text, "force")), {"%", "force"});
    OneOf(*command->add_option("--settlement-unit", chart_.SettlementUnit, WithDefault(902036_text, "length")),
          {"%", "length"});
    command->add_flag("--downward", chart_.Downward, Text(910030_text));
    AddOutput(*command, kChartFormats);
    command->add_flag("--no-export", options_.NoExport, Text(911216_text));
    command->callback([this] {
        run_ = [this](const CommonOptions& options, ConsoleHost& host) { return ChartCommand(options, chart_, host); };
    });
}

void CommandLine::AddContour() {
    CLI::App* command = Command({"contour",
                                 902037_text,
                                 {"lithmark-cli contour Raft.PO3 --result pressure -o pressure.png",
                                  "lithmark-cli contour Raft.PO3 --format json"},
                                 {0, 1, 2, 3}},
                                "PROJECT", 902020_text);
    constexpr std::uint64_t kMostPixels = 8192;
    OneOf(*command->add_option("--result", contour_.Result, WithDefault(902038_text, "settlement")),
          {"settlement", "pressure"});
    CLI::Option* size = command->add_option("--size", contour_.Size, Text(902039_text))->type_name(kCount);
    WholeNumber(*size, 1, kMostPixels);
    OneOf(*command->add_option_function<std::string>(
              "--style", [this](const std::string& style) { contour_.Field = style == "field"; }, Text(910031_text)),
          {"classes", "field"});
    command->add_option("--section", contour_.Section, Text(910032_text))->type_name("X1,Y1,X2,Y2");
    AddOutput(*command, kContourFormats);
    command->add_flag("--no-export", options_.NoExport, Text(911216_text));
    command->callback([this] {
        run_ = [this](const CommonOptions& options, ConsoleHost& host) {
            return ContourCommand(options, contour_, host);
        };
    });
}

void CommandLine::AddStudy() {
    CLI::App* command =
        Command({"study",
                 902040_text,
                 {"lithmark-cli study Raft.PO3 --vary Q=1000:3000:500 --take RaftMeanPressure",
                  "lithmark-cli study Clay.PO3 --random \"Es=lognormal:6000:20%\" --limit s=5 -o rows.csv"},
                 {0, 1, 2, 3, 4, 130}},
                "PROJECT", 902020_text);
    AddStudyOptions(*command, study_);
    AddOutput(*command, kStudyFormats);
    command->callback([this] {
        run_ = [this](const CommonOptions& options, ConsoleHost& host) { return StudyCommand(options, study_, host); };
    });
}

void CommandLine::AddHelp() {
    CLI::App* command = app_.add_subcommand("help", Text(911217_text));
    command->group(Text(911241_text));
    command->get_help_ptr()->group({});
    command->add_option("COMMAND", helpOn_, Text(911218_text));
    command->footer(HelpFooter({"lithmark-cli help report"}, {0, 2}));
}

ExitStatus CommandLine::Tell(const CLI::ParseError& asked) {
    const bool version = asked.get_name() == "CallForVersion";
    WriteOutput({}, version ? std::string(asked.what()) + "\n" : app_.help());
    return ExitStatus::Done;
}

ExitStatus CommandLine::HelpCommand() {
    if (helpOn_.empty()) {
        app_.clear();
        WriteOutput({}, app_.help());
        return ExitStatus::Done;
    }
    const auto commands =
        std::as_const(app_).get_subcommands([this](const CLI::App* command) { return command->get_name() == helpOn_; });
    if (commands.empty()) throw CommandFailure(ExitStatus::BadCommandLine, UnknownCommandText(app_, helpOn_));
    WriteOutput({}, commands.front()->help(app_.get_name()));
    return ExitStatus::Done;
}

void CommandLine::CheckWords() {
    // A list of files takes the project's too where that stands behind it.
    std::vector<std::string>& files = study_.Join;
    if (options_.Project.empty() && files.size() > 1 && LowerAscii(files.back()).ends_with(".po3")) {
        options_.Project = files.back();
        files.pop_back();
    }
    if (!options_.Project.empty()) return;
    const CLI::App& command = *app_.get_subcommands().front();
    for (const CLI::Option* word : command.get_options([](const CLI::Option* o) { return o->get_positional(); }))
        throw CommandFailure(ExitStatus::BadCommandLine, Text(911211_text, {{"|1", word->get_name(true, false)}}));
}

ExitStatus CommandLine::Run(int argc, char** argv) {
    try {
        app_.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) return Tell(error);
        throw CommandFailure(ExitStatus::BadCommandLine, TroubleText(app_, error));
    }
    if (app_.got_subcommand("help")) return HelpCommand();
    if (!run_) {
        std::fputs(ShortHelp(app_).c_str(), stderr);
        return ExitStatus::BadCommandLine;
    }
    CheckWords();
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

}  // namespace lithmark
