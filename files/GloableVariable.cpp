#include "files/GloableVariable.h"

#include "services/SharedServices.h"
#include "services/storage/FileNames.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

int OpenDataFile(const std::string& name, FileMode mode, int fileNumber) {
    SharedServicesService& services = SharedServices();
    const std::string path = MappedFileName(name);
    services.SetCurrentFile(path);
    const bool reading = mode == FileMode::Input || mode == FileMode::RandomInput;
    if (reading && services.FileMissing(path, false)) return -1;
    services.ShowFileStatus(reading ? FileStatus::Reading : FileStatus::Writing);
    OpenNumberedFile(fileNumber, path, mode);
    return 0;
}

void CloseDataFile(int fileNumber) {
    CloseNumberedFile(fileNumber);
    SharedServices().ClearFileStatus();
}

void CommitDataFiles(NumberedFileSet& files) {
    files.Commit([](const std::string& path) { SharedServices().SetCurrentFile(path); });
}

void FileError(const Failure& failure, const std::string& more) {
    if (more.empty())
        SharedServices().ShowFileError(failure);
    else
        SharedServices().ShowMessageBox(Text(160030_text), SharedServices().FailureText(failure) + " " + more,
                                        MessageIcon::Exclamation);
    DropNumberedFile(1);
    SharedServices().ClearFileStatus();
}

std::string DataFileName(const std::string& dir, const std::string& name, const std::string& extension) {
    SharedServices().SetFileName(dir + name + "." + extension);
    return SharedServices().GetFileName();
}

}  // namespace lithmark
