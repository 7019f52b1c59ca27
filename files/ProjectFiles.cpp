#include "files/ProjectFiles.h"

#include "core/Session.h"
#include "files/GloableVariable.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

constexpr int kFile = 1;

// Opens a file, hands it to `read`, closes it. A failure goes through the common step.
template <typename Read>
ReadOutcome ReadFile(const std::string& dir, const std::string& name, const std::string& extension, Read&& read) {
    try {
        if (OpenDataFile(DataFileName(dir, name, extension), FileMode::Input, kFile) != 0) return ReadOutcome::Missing;
        read();
        CloseDataFile(kFile);
    } catch (const Failure& failure) {
        FileError(failure);
        return ReadOutcome::Failed;
    }
    return ReadOutcome::Read;
}

void ReadHeadingData() {
    Session.Auftr = ReadRawLine(kFile);
    Session.Datum = ReadRawLine(kFile);
    Session.Proj = ReadRawLine(kFile);
}

void ReadProblemNumber() {
    ReadRawLine(kFile);
    Session.ProblemType = ReadInteger(kFile);
}

}  // namespace

ReadOutcome ReadProjectFile() {
    return ReadFile(Session.DataDir, Session.ProjectName, "PO3", ReadProblemNumber);
}

ReadOutcome ReadOrderFile() {
    return ReadFile(Session.DataDir, Session.ProjectName, "AUF", ReadHeadingData);
}

ReadOutcome ReadProjectData() {
    const ReadOutcome order = ReadFile(Session.WorkDir, Session.WorkName, "AUF", ReadHeadingData);
    if (order != ReadOutcome::Read) return order;
    return ReadFile(Session.WorkDir, Session.WorkName, "PO3", ReadProblemNumber);
}

void WriteProjectFile(const std::string& dir, const std::string& name) {
    OpenDataFile(DataFileName(dir, name, "PO3"), FileMode::Output, kFile);
    WriteRawLine(kFile, "Version 9");
    WriteNumber(kFile, Session.ProblemType);
    WriteNumber(kFile, 0L);
    CloseDataFile(kFile);
}

void WriteProjectData() {
    SharedServices().SetPointer(PointerShape::Hourglass);
    Session.FileSaved = false;
    try {
        OpenDataFile(DataFileName(Session.WorkDir, Session.WorkName, "AUF"), FileMode::Output, kFile);
        WriteRawLine(kFile, Session.Auftr);
        WriteRawLine(kFile, Session.Datum);
        WriteRawLine(kFile, Session.Proj);
        CloseDataFile(kFile);
        WriteProjectFile(Session.WorkDir, Session.WorkName);
        Session.FileSaved = true;
    } catch (const Failure& failure) {
        FileError(failure);
    }
    SharedServices().SetPointer(PointerShape::Default);
}

bool ProjectHasFile(const std::string& extension) {
    return !SharedServices().FileMissing(DataFileName(Session.DataDir, Session.ProjectName, extension), true);
}

}  // namespace lithmark
