// The part of SharedServices that knows where files lie and what the settings files hold.
#include <filesystem>
#include <system_error>

#include "base/Paths.h"
#include "base/Utf8.h"
#include "services/SharedServices.h"
#include "services/platform/Process.h"
#include "services/storage/DataFile.h"
#include "services/storage/FileNames.h"
#include "services/storage/SettingsStore.h"
#include "services/storage/UserFolders.h"

namespace lithmark {

namespace {

namespace fs = std::filesystem;

// The word by which a language is stored, the same as it calls itself: text 140156.
std::string LanguageWord(Language language) {
    return TextIn(*FindLanguageRow((140156_text).Number), language);
}

}  // namespace

void SharedServicesService::UseSettingsDirectory(const std::string& dir) {
    settingsDir_ = WithSeparator(dir);
    storeTold_ = false;
}

std::string SharedServicesService::ExecutableDir() const {
    const std::string program = platform::ProgramFile();
    std::error_code error;
    return WithSeparator((program.empty() ? fs::current_path(error) : PathOf(program).parent_path()).generic_string());
}

std::string SharedServicesService::StateDir() const {
    return settingsDir_.empty() ? UserStateDir() : settingsDir_ + "state/";
}

std::string SharedServicesService::ResourceDir() const {
    const std::string executable = ExecutableDir();
    const std::string shared = (PathOf(executable) / "../share/lithmark").lexically_normal().generic_string();
    std::error_code error;
    return fs::is_directory(PathOf(shared), error) ? WithSeparator(shared) : executable;
}

std::string SharedServicesService::ProgramDir() const {
    if (!settingsDir_.empty()) return settingsDir_;
    const std::string user = UserSettingsDir();
    return user.empty() ? ResourceDir() : user;
}

std::string SharedServicesService::SettingsFile() const {
    return ProgramDir() + "settings.json";
}

void SharedServicesService::TellDamage(const std::string& file, const Failure& failure) {
    DropNumberedFile(kDataFile);
    SetCurrentFile(file);
    ShowFileError(failure);
}

Directories SharedServicesService::GetDirectories() {
    const std::string program = ProgramDir();
    Directories defaults{program, DataDirUnset(program), 2};
    const std::string file = program + "STEU";
    if (FileMissing(file, true)) return defaults;
    try {
        Directories result = defaults;
        OpenNumberedFile(kDataFile, file, FileMode::Input);
        const std::string dataDir = ReadRawLine(kDataFile);
        result.CompressFlag = ReadLong(kDataFile);
        CloseNumberedFile(kDataFile);
        if (!dataDir.empty()) result.DataDir = WithSeparator(MappedFileName(dataDir));
        return result;
    } catch (const std::exception& error) {
        TellDamage(file, FailureFrom(error));
        return defaults;
    }
}

std::string SharedServicesService::GetHelpFile(const std::string& key) {
    return ResourceDir() + "help/" + key + ".html";
}

UnitSettings SharedServicesService::GetUnits(const std::string& programDir) {
    const std::string file = programDir + "Units";
    if (FileMissing(file, true)) return BaseUnits();
    try {
        OpenNumberedFile(kDataFile, file, FileMode::Input);
        UnitSettings units = ReadUnitLines(kDataFile);
        CloseNumberedFile(kDataFile);
        return units;
    } catch (const std::exception& error) {
        TellDamage(file, FailureFrom(error));
        return BaseUnits();
    }
}

CompanyLines SharedServicesService::GetFirmaData() {
    return {GetSetting(kApplicationTitle, "Company", "Line 1", ""),
            GetSetting(kApplicationTitle, "Company", "Line 2", "")};
}

bool SharedServicesService::EditFirmaData(CompanyLines& lines) {
    const auto edited = CurrentHost().EditCompanyLines(lines);
    if (!edited || (edited->Line1 == lines.Line1 && edited->Line2 == lines.Line2)) return false;
    lines = *edited;
    SaveSetting(kApplicationTitle, "Company", "Line 1", lines.Line1);
    SaveSetting(kApplicationTitle, "Company", "Line 2", lines.Line2);
    return true;
}

void SharedServicesService::ChooseLanguage() {
    const auto chosen = CurrentHost().ChooseLanguage(LanguageTexts().Current());
    if (!chosen) return;
    LanguageTexts().SetCurrent(*chosen);
    StoreLanguage(*chosen);
}

void SharedServicesService::LoadLanguage(Language otherwise) {
    const std::string word = GetSetting(kApplicationTitle, "Settings", "Language", "");
    for (const Language language : {Language::German, Language::English, Language::Arabic})
        if (word == LanguageWord(language)) otherwise = language;
    LanguageTexts().SetCurrent(otherwise);
}

void SharedServicesService::StoreLanguage(Language language) {
    SaveSetting(kApplicationTitle, "Settings", "Language", LanguageWord(language));
}

std::optional<SettingValue> SharedServicesService::StoredValue(const std::string& app, const std::string& section,
                                                               const std::string& key) {
    StoreTrouble trouble;
    auto value = ReadSetting(SettingsFile(), app, section, key, trouble);
    Tell(trouble);
    return value;
}

void SharedServicesService::Tell(const StoreTrouble& trouble) {
    if (!trouble.SetAside.empty())
        ShowMessageBox(Text(160030_text), Text(901006_text, {{"|1", trouble.SetAside}}), MessageIcon::Exclamation);
    if (trouble.Unreadable) TellStoreOnce(Text(909011_text, {{"|1", SettingsFile()}}));
}

void SharedServicesService::TellStoreOnce(const std::string& text) {
    if (!storeTold_) ShowMessageBox(Text(160030_text), text, MessageIcon::Exclamation);
    storeTold_ = true;
}

void SharedServicesService::SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                                        const SettingValue& value) {
    StoreTrouble trouble;
    try {
        WriteSetting(SettingsFile(), app, section, key, value, trouble);
        Tell(trouble);
    } catch (const Failure& failure) {
        Tell(trouble);
        SetCurrentFile(SettingsFile());
        TellStoreOnce(FailureText(failure));
    }
}

bool SharedServicesService::GetSetting(const std::string& app, const std::string& section, const std::string& key,
                                       bool defaultValue) {
    const auto value = StoredValue(app, section, key);
    return value && std::holds_alternative<bool>(*value) ? std::get<bool>(*value) : defaultValue;
}

std::string SharedServicesService::GetSetting(const std::string& app, const std::string& section,
                                              const std::string& key, const std::string& defaultValue) {
    const auto value = StoredValue(app, section, key);
    return value && std::holds_alternative<std::string>(*value) ? std::get<std::string>(*value) : defaultValue;
}

long SharedServicesService::GetSetting(const std::string& app, const std::string& section, const std::string& key,
                                       long defaultValue) {
    const auto value = StoredValue(app, section, key);
    return value && std::holds_alternative<long>(*value) ? std::get<long>(*value) : defaultValue;
}

}  // namespace lithmark
