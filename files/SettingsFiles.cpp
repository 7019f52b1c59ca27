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

std::string SettingsFileName(const std::string& name) {
    SharedServices().SetFileName(Session.ProgramDir + name);
    return SharedServices().GetFileName();
}

// Reads a settings file that may as well not be there: one that is missing or cannot be opened is passed over without
// a word. What `read` does not reach of a shorter file keeps its value; that is told.
template <typename Read>
void ReadOptionalSettings(const std::string& name, Read&& read) {
    try {
        if (OpenDataFile(SettingsFileName(name), FileMode::Input, kDataFile) != 0) return;
    } catch (const Failure&) {
        SharedServices().ClearFileStatus();
        return;
    }
    UnderCommonStep([&] {
        read();
        CloseDataFile(kDataFile);
    });
}

// Writes a settings file; false when that failed, which is told.
template <typename Write>
bool WriteSettings(const std::string& name, Write&& write) {
    return UnderCommonStep([&] {
        MakeSettingsDir(Session.ProgramDir);
        OpenDataFile(SettingsFileName(name), FileMode::Output, kDataFile);
        write();
        CloseDataFile(kDataFile);
    });
}

}  // namespace

void LoadUnits() {
    SetUnits(SharedServices().GetUnits(Session.ProgramDir));
}

bool WriteUnits() {
    return WriteSettings("Units", [] { WriteUnitLines(kDataFile, UnitsInForce()); });
}

void LoadNumberFormats() {
    SetDefaultNumberFormats();
    ReadOptionalSettings("NOFORMAT", [] {
        for (const NumberFormatRow& row : NumberFormats()) Session.*row.Field = ReadRawLine(kDataFile);
    });
    DeriveNumberFormats();
}

bool WriteNumberFormats() {
    return WriteSettings("NOFORMAT", [] {
        for (const NumberFormatRow& row : NumberFormats()) WriteRawLine(kDataFile, Session.*row.Field);
    });
}

void LoadPreferences() {
    SetDefaultPreferences();
    ReadOptionalSettings("Preferen.tol", [] {
        Session.PrefDx = ReadSingle(kDataFile);
        Session.PrefDy = ReadSingle(kDataFile);
        Session.PrefDz = ReadSingle(kDataFile);
        Session.PrefND = ReadInteger(kDataFile);
        Session.PrefTol = ReadSingle(kDataFile);
        Session.PrefImax = ReadInteger(kDataFile);
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
        for (const std::string& line : PreferenceLines(Session)) WriteRawLine(kDataFile, line);
    });
}

bool ReadDataDirSettings(std::string& dataDir) {
    dataDir = DataDirUnset(Session.ProgramDir);
    Session.CompressFlag = 2;
    bool read = false;
    const bool done = UnderCommonStep([&] {
        if (OpenDataFile(SettingsFileName("STEU"), FileMode::Input, kDataFile) != 0) return;
        dataDir = ReadRawLine(kDataFile);
        Session.CompressFlag = ReadLong(kDataFile);
        CloseDataFile(kDataFile);
        read = true;
    });
    return done && read;
}

void WriteDataDirSettings(const std::string& dataDir) {
    Session.FileSaved = false;
    Session.FileSaved = WriteSettings("STEU", [&] {
        WriteRawLine(kDataFile, dataDir);
        WriteNumber(kDataFile, Session.CompressFlag);
    });
}

}  // namespace lithmark
