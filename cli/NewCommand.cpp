#include <filesystem>

#include "base/Paths.h"
#include "base/Utf8.h"
#include "cli/Commands.h"
#include "cli/Output.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "files/GloableVariable.h"
#include "files/ProblemData.h"
#include "files/ProjectFiles.h"
#include "services/SharedServices.h"
#include "services/TextTools.h"

namespace lithmark {

// A project DIR/NAME with the defaults of its problem and what --set changes of them.
ExitStatus NewCommand(const CommonOptions& options, int problem, ConsoleHost& host) {
    namespace fs = std::filesystem;
    fs::path path = PathOf(options.Project);
    if (LowerAscii(path.extension().string()) == ".po3") path.replace_extension();
    const auto fail = [&](ExitStatus status, TextId text, const std::string& subject) {
        throw CommandFailure(status, Text(text, {{"|1", subject}}));
    };
    if (path.filename().empty() || path.filename() == "." || path.filename() == "..")
        fail(ExitStatus::BadCommandLine, 902012_text, options.Project);
    const fs::path dir = path.has_parent_path() ? path.parent_path() : fs::path(".");
    RequireFolderOf(options.Project);
    if (!fs::is_directory(dir)) fail(ExitStatus::FileTrouble, 902003_text, dir.generic_string());

    Session.DataDir = Session.WorkDir = dir.generic_string() + "/";
    Session.ProjectName = Session.WorkName = path.filename().string();
    Session.ProjectFile = DataFileName(Session.WorkDir, Session.WorkName, "PO3");
    if (fs::exists(PathOf(Session.ProjectFile))) fail(ExitStatus::FileTrouble, 902013_text, Session.ProjectFile);

    Session.ProblemType = problem;
    Session.Datum = TextTools().LongDateOfToday();
    SetProblemDefaults();
    ApplySets(options.Sets);
    if (Session.ProblemType != problem) fail(ExitStatus::BadCommandLine, 902014_text, "ProblemType");

    WriteProjectData();
    if (Session.FileSaved) WriteProblemData();
    if (!Session.FileSaved) throw CommandFailure(ExitStatus::FileTrouble, host.Messages().back().Text);
    return ExitStatus::Done;
}

}  // namespace lithmark
