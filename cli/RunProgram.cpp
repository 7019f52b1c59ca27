#include "cli/RunProgram.h"

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "cli/CommandLine.h"
#include "cli/Documents.h"
#include "services/SharedServices.h"
#include "services/platform/Process.h"
#include "services/platform/RemovedOnEnd.h"
#include "study/StudyFailure.h"

namespace lithmark {

int RunProgram(int argc, char** argv) {
    const auto fail = [](ExitStatus status, const std::string& line) {
        std::fprintf(stderr, "lithmark-cli: %s\n", OneLine(line).c_str());
        return static_cast<int>(status);
    };
    EndCleanlyOnSignals();
    KeepCommandLine(argv);
    platform::UseBytesForStandardStreams();
    std::vector<std::string> arguments = platform::Arguments(argc, argv);
    std::vector<char*> words;
    words.reserve(arguments.size() + 1);
    for (std::string& argument : arguments) words.push_back(argument.data());
    const int count = static_cast<int>(words.size());
    words.push_back(nullptr);
    try {
        UseLanguageAsked(count, words.data());
        return static_cast<int>(CommandLine().Run(count, words.data()));
    } catch (const CommandFailure& failure) {
        return fail(failure.Status(), failure.what());
    } catch (const StudyFailure& failure) {
        const bool request = failure.Why() == StudyFailure::Cause::Request;
        return fail(request ? ExitStatus::BadCommandLine : ExitStatus::FileTrouble, failure.what());
    } catch (const std::exception& error) {
        return fail(ExitStatus::FileTrouble, SharedServices().FailureText(FailureFrom(error)));
    }
}

}  // namespace lithmark
