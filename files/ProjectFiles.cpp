#include "files/ProjectFiles.h"

#include "base/NumberText.h"
#include "core/Session.h"
#include "files/CommonStep.h"
#include "services/ProjectStore.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

// Opens a file, hands it to `read`, closes it. A failure goes through the common step.
template <typename Read>
ReadOutcome ReadFile(const std::string& dir, const std::string& name, const std::string& extension, Read&& read) {
    ReadOutcome outcome = ReadOutcome::Failed;
    UnderCommonStep([&] {
        if (OpenDataFile(DataFileName(dir, name, extension), FileMode::Input, kDataFile) != 0) {
            outcome = ReadOutcome::Missing;
            return;
        }
        read();
        CloseDataFile(kDataFile);
        outcome = ReadOutcome::Read;
    });
    return outcome;
}

void ReadHeadingData() {
    Session.Auftr = ReadRawLine(kDataFile);
    Session.Datum = ReadRawLine(kDataFile);
    Session.Proj = ReadRawLine(kDataFile);
}

}  // namespace

ReadOutcome ReadProjectFile(const std::string& dir, const std::string& name, Integer& problemType) {
    return ReadFile(dir, name, "PO3", [&] {
        ReadRawLine(kDataFile);
        problemType = ReadInteger(kDataFile);
    });
}

ReadOutcome ReadProjectFile() {
    return ReadProjectFile(Session.DataDir, Session.ProjectName, Session.ProblemType);
}

ReadOutcome ReadOrderFile() {
    return ReadFile(Session.DataDir, Session.ProjectName, "AUF", ReadHeadingData);
}

ReadOutcome ReadProjectData() {
    const ReadOutcome order = ReadFile(Session.WorkDir, Session.WorkName, "AUF", ReadHeadingData);
    if (order == ReadOutcome::Missing) Session.Auftr = Session.Datum = Session.Proj = std::string();
    const ReadOutcome project = ReadProjectFile(Session.WorkDir, Session.WorkName, Session.ProblemType);
    return order == ReadOutcome::Failed ? order : project;
}

std::vector<std::string> ProjectFileLines(const SessionRecord& record) {
    return {"Version 9", NumberToText(static_cast<int>(record.ProblemType)), "0"};
}

std::vector<std::string> OrderFileLines(const SessionRecord& record) {
    return {record.Auftr, record.Datum, record.Proj};
}

void WriteProjectFile(const std::string& dir, const std::string& name) {
    OpenDataFile(DataFileName(dir, name, "PO3"), FileMode::Output, kDataFile);
    for (const std::string& line : ProjectFileLines(Session)) WriteRawLine(kDataFile, line);
    CloseDataFile(kDataFile);
}

void WriteProjectData() {
    SharedServices().SetPointer(PointerShape::Hourglass);
    Session.FileSaved = false;
    UnderCommonStep([] {
        const auto saving = ProjectStore().BeginSave(Session.WorkDir + Session.WorkName);
        NumberedFileSet files;
        OpenDataFile(DataFileName(Session.WorkDir, Session.WorkName, "AUF"), FileMode::Output, kDataFile);
        for (const std::string& line : OrderFileLines(Session)) WriteRawLine(kDataFile, line);
        CloseDataFile(kDataFile);
        WriteProjectFile(Session.WorkDir, Session.WorkName);
        CommitDataFiles(files);
        Session.FileSaved = true;
    });
    SharedServices().SetPointer(PointerShape::Default);
}

bool ProjectHasFile(const std::string& extension) {
    return !SharedServices().FileMissing(DataFileName(Session.DataDir, Session.ProjectName, extension), true);
}

}  // namespace lithmark
