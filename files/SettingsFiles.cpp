#include "files/SettingsFiles.h"

#include "core/Session.h"
#include "core/StartSession.h"
#include "core/Units.h"
#include "files/GloableVariable.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

constexpr int kFile = 1;

std::string SettingsFileName(const std::string& name) {
    SharedServices().SetFileName(Session.ProgramDir + name);
    return SharedServices().GetFileName();
}

// Reads the open settings file. What `read` does not reach keeps its value; a failure is told.
template <typename Read>
void ReadOpenFile(Read&& read) {
    try {
        read();
        CloseDataFile(kFile);
    } catch (const Failure& failure) {
        FileError(failure);
    }
}

// Reads a settings file that may as well not be there: one that is missing or cannot be opened is passed over without
// a word.
template <typename Read>
void ReadOptionalSettings(const std::string& name, Read&& read) {
    try {
        if (OpenDataFile(SettingsFileName(name), FileMode::Input, kFile) != 0) return;
    } catch (const Failure&) {
        SharedServices().ClearFileStatus();
        return;
    }
    ReadOpenFile(read);
}

// Writes a settings file; false when that failed, which is told.
template <typename Write>
bool WriteSettings(const std::string& name, Write&& write) {
    try {
        OpenDataFile(SettingsFileName(name), FileMode::Output, kFile);
        write();
        CloseDataFile(kFile);
    } catch (const Failure& failure) {
        FileError(failure);
        return false;
    }
    return true;
}

// The form of a label that no language changes: that of the row whose label text it is.
std::string CanonicalLabel(std::span<const UnitRow> units, const std::string& label) {
    for (const UnitRow& unit : units)
        if (Text(unit.UnitLabel) == label) return unit.InFiles;
    return label;
}

}  // namespace

void LoadUnits() {
    const UnitSettings units = SharedServices().GetUnits(Session.ProgramDir);
    Session.Len1Label = units.Len1Label;
    Session.Len1Factor = units.Len1Factor;
    Session.Len2Label = units.Len2Label;
    Session.Len2Factor = units.Len2Factor;
    Session.Force1Label = units.Force1Label;
    Session.Force1Factor = units.Force1Factor;
    Session.Force2Label = units.Force2Label;
    Session.Force2Factor = units.Force2Factor;
    Session.TempLabel = units.TempLabel;
}

bool WriteUnits() {
    const auto pair = [](std::span<const UnitRow> units, const std::string& label, double factor) {
        WriteList(kFile, {CanonicalLabel(units, label), factor});
    };
    return WriteSettings("Units", [&] {
        pair(LengthUnits(), Session.Len1Label, Session.Len1Factor);
        pair(LengthUnits(), Session.Len2Label, Session.Len2Factor);
        pair(ForceUnits(), Session.Force1Label, Session.Force1Factor);
        pair(ForceUnits(), Session.Force2Label, Session.Force2Factor);
        WriteList(kFile, {CanonicalLabel(TemperatureUnits(), Session.TempLabel)});
    });
}

void LoadNumberFormats() {
    SetDefaultNumberFormats();
    ReadOptionalSettings("NOFORMAT", [] {
        for (const NumberFormatRow& row : NumberFormats()) Session.*row.Field = ReadRawLine(kFile);
    });
    DeriveNumberFormats();
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

void SavePreferences() {
    Session.FileSaved = false;
    Session.FileSaved = WriteSettings("Preferen.tol", [] {
        WriteNumber(kFile, Session.PrefDx);
        WriteNumber(kFile, Session.PrefDy);
        WriteNumber(kFile, Session.PrefDz);
        WriteNumber(kFile, Session.PrefND);
        WriteNumber(kFile, Session.PrefTol);
        WriteNumber(kFile, Session.PrefImax);
    });
}

void ReadDataDirSettings(std::string& dataDir) {
    dataDir = Session.ProgramDir;
    Session.CompressFlag = 2;
    try {
        if (OpenDataFile(SettingsFileName("STEU"), FileMode::Input, kFile) != 0) return;
    } catch (const Failure& failure) {
        FileError(failure);
        return;
    }
    ReadOpenFile([&] {
        dataDir = ReadRawLine(kFile);
        Session.CompressFlag = ReadLong(kFile);
    });
}

void WriteDataDirSettings(const std::string& dataDir) {
    Session.FileSaved = false;
    Session.FileSaved = WriteSettings("STEU", [&] {
        WriteRawLine(kFile, dataDir);
        WriteNumber(kFile, Session.CompressFlag);
    });
}

}  // namespace lithmark
