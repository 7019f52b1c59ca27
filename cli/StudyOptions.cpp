#include <CLI/CLI.hpp>
#include <cstdint>
#include <limits>

#include "cli/Choices.h"
#include "cli/StudyCommand.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// An option that may stand several times, each time with one value.
CLI::Option* AddList(CLI::App& command, const std::string& name, std::vector<std::string>& values, TextId text,
                     const std::string& form) {
    return command.add_option(name, values, Text(text))->take_all()->allow_extra_args(false)->type_name(form);
}

}  // namespace

void AddStudyOptions(CLI::App& command, StudyOptions& study) {
    constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();
    StudyRequest& request = study.Request;
    AddList(command, "--vary", request.Vary, 902041_text, "FIELD=FROM:TO:STEP");
    command.add_option("--rows", request.Rows, Text(908040_text))->type_name("FILE");
    AddList(command, "--case", request.Cases, 908041_text, "NAME:FIELD=*FACTOR,...");
    AddList(command, "--random", request.Random, 908042_text, "FIELD=DISTRIBUTION");
    AddList(command, "--correlate", request.Correlate, 908043_text, "A,B=R");
    WholeNumber(*command.add_option("--samples", request.Samples, Text(908044_text))->type_name("N"), 0, kMost);
    WholeNumber(*command.add_option("--seed", request.Seed, Text(908045_text))->type_name("S"), 0, kMost);
    OneOf(*command.add_option("--design", study.Design, Text(908046_text)), {"random", "sobol"});
    AddList(command, "--take", request.Take, 902042_text, "RESULT");
    AddList(command, "--limit", request.Limit, 908047_text, "RESULT=VALUE");
    WholeNumber(*command.add_option("--jobs", study.Jobs, Text(908048_text))->type_name("N"), 1, 4096);
    command.add_option("--shard", study.Shard, Text(908049_text))->type_name("K/N");
    command.add_option("--join", study.Join, Text(908050_text))->type_name("FILE ...");
    command.add_option("--resume", study.Resume, Text(908051_text))->type_name("FILE");
    command.add_flag("--retry-aborted", study.RetryAborted, Text(908052_text));
    command.add_option("--summary", study.Summary, Text(908310_text))->type_name("FILE");
    command.add_flag("--tornado", study.Tornado, Text(908311_text));
    command.add_option("--find", study.Find, Text(908312_text))->type_name("FIELD=FROM:TO");
    command.add_option("--share", study.Share, Text(908313_text))->type_name("P");
}

}  // namespace lithmark
