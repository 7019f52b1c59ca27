#include "files/SettingsFiles.h"

#include "base/NumberText.h"
#include "core/Session.h"
#include "core/StartSession.h"
#include "core/Units.h"
#include "files/CommonStep.h"
#include "services/SharedServices.h"
#include "services/storage/UserFolders.h"

namespace lithmark {

namespace {

constexpr int kFile = 1;

std::string SettingsFileName(const std::string& name) {
    SharedServices().SetFileName(Session.ProgramDir + name);
    return SharedServices().GetFileName();
}

// Reads a settings file that may as well not be there: one that is missing or cannot be opened is passed over without
// a word. What `read` does not reach of a shorter file keeps its value; that is told.
template <typename Read>
void ReadOptionalSettings(const std::string& name, Read&& read) {
    try {
        if (OpenDataFile(SettingsFileName(name), FileMode::Input, kFile) != 0) return;
    } catch (const Failure&) {
        SharedServices().ClearFileStatus();
        return;
    }
    UnderCommonStep([&] {
        read();
        CloseDataFile(kFile);
    });
}

// Writes a settings file; false when that failed, which is told.
template <typename Write>
bool WriteSettings(const std::string& name, Write&& write) {
    return UnderCommonStep([&] {
        MakeSettingsDir(Session.ProgramDir);
        OpenDataFile(SettingsFileName(name), FileMode::Output, kFile);
        write();
        CloseDataFile(kFile);
    });
}

}  // namespace

void LoadUnits() {
    SetUnits(SharedServices().GetUnits(Session.ProgramDir));
}

bool WriteUnits() {
    return WriteSettings("Units", [] { WriteUnitLines(kFile, UnitsInForce()); });
}

void LoadNumberFormats() {
    SetDefaultNumberFormats();
    ReadOptionalSettings("NOFORMAT", [] {
        for (const NumberFormatRow& row : NumberFormats()) Session.*row.Field = ReadRawLine(kFile);
    });
    DeriveNumberFormats();
}

bool WriteNumberFormats() {
    return WriteSettings("NOFORMAT", [] {
        for (const NumberFormatRow& row : NumberFormats()) WriteRawLine(kFile, Session.*row.Field);
    });
}

void LoadPreferences() {
    SetDefaultPreferences();
    ReadOptionalSettings("Preferen.tol", [] {
        Session.PrefDx = ReadSingle(kFile);
        Session.PrefDy = ReadSingle(kFile);
        Session.PrefDz = ReadSingle(kFile);
        Session.PrefND = ReadInteger(kFile);
        Session.PrefTol = ReadSingle(kFile);
        Session.PrefImax = ReadInteger(kFile);
    });
}

std::vector<std::string> NumberFormatLines(const SessionRecord& record) {
    std::vector<std::string> lines;
    for (const NumberFormatRow& row : NumberFormats()) lines.push_back(record.*row.Field);
    return lines;
}

std::vector<std::string> PreferenceLines(const SessionRecord& record) {
    return {NumberToText(record.PrefDx),  NumberToText(record.PrefDy),
            NumberToText(record.PrefDz),  NumberToText(static_cast<int>(record.PrefND)),
            NumberToText(record.PrefTol), NumberToText(static_cast<int>(record.PrefImax))};
}

void SavePreferences() {
    Session.FileSaved = false;
    Session.FileSaved = WriteSettings("Preferen.tol", [] {
        for (const std::string& line : PreferenceLines(Session)) WriteRawLine(kFile, line);
    });
}

bool ReadDataDirSettings(std::string& dataDir) {
    dataDir = DataDirUnset(Session.ProgramDir);
    Session.CompressFlag = 2;
    bool read = false;
    const bool done = UnderCommonStep([&] {
        if (OpenDataFile(SettingsFileName("STEU"), FileMode::Input, kFile) != 0) return;
        dataDir = ReadRawLine(kFile);
        Session.CompressFlag = ReadLong(kFile);
        CloseDataFile(kFile);
        read = true;
    });
    return done && read;
}

void WriteDataDirSettings(const std::string& dataDir) {
    Session.FileSaved = false;
    Session.FileSaved = WriteSettings("STEU", [&] {
        WriteRawLine(kFile, dataDir);
        WriteNumber(kFile, Session.CompressFlag);
    });
}

}  // namespace lithmark
