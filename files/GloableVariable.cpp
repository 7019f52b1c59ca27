#include "files/GloableVariable.h"

#include "services/SharedServices.h"

namespace lithmark {

int OpenDataFile(const std::string& name, FileMode mode, int fileNumber) {
    SharedServicesService& services = SharedServices();
    services.SetCurrentFile(name);
    const bool reading = mode == FileMode::Input || mode == FileMode::RandomInput;
    if (reading && services.FileMissing(name, false)) return -1;
    services.ShowFileStatus(reading ? FileStatus::Reading : FileStatus::Writing);
    OpenNumberedFile(fileNumber, name, mode);
    return 0;
}

void CloseDataFile(int fileNumber) {
    CloseNumberedFile(fileNumber);
    SharedServices().ClearFileStatus();
}

void FileError(const Failure& failure) {
    SharedServices().ShowFileError(failure);
    DropNumberedFile(1);
    SharedServices().ClearFileStatus();
}

std::string DataFileName(const std::string& dir, const std::string& name, const std::string& extension) {
    SharedServices().SetFileName(dir + name + "." + extension);
    return SharedServices().GetFileName();
}

}  // namespace lithmark
