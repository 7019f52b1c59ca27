// The readers of files: settings, projects, data files, archives, the raft files of a contour plot.
#include "contour/BasContour.h"
#include "contour/RecordingSurface.h"
#include "core/Session.h"
#include "core/SessionFields.h"
#include "core/StartSession.h"
#include "core/Units.h"
#include "files/ProblemData.h"
#include "files/ProjectFiles.h"
#include "files/SettingsFiles.h"
#include "fuzz/FuzzCase.h"
#include "fuzz/FuzzTargets.h"
#include "services/ProjectStore.h"
#include "services/SharedServices.h"
#include "services/storage/ProjectArchive.h"

namespace lithmark::fuzz {

namespace {

// Every field that a data file can hold, as text.
std::string AllFields() {
    std::string texts;
    for (const SessionField& field : SessionFields()) texts += SessionFieldText(field.Ref) + "\n";
    return texts;
}

}  // namespace

void ReadProjectFileTarget(std::string_view bytes) {
    FuzzCase fuzz;
    fuzz.Write("F.PO3", bytes);
    if (bytes.substr(0, 4) == "PK\x03\x04") return;  // the archive's target
    const ReadOutcome outcome = ReadProjectFile();
    if (outcome != ReadOutcome::Read) return fuzz.HoldRefused("F.PO3");
    fuzz.HoldSilent();
    const int problem = Session.ProblemType;
    WriteProjectFile(Session.DataDir, "F");
    Session.ProblemType = 0;
    Hold(ReadProjectFile() == ReadOutcome::Read && Session.ProblemType == problem, "a project file comes back");
}

void ReadOrderFileTarget(std::string_view bytes) {
    FuzzCase fuzz;
    fuzz.Write("F.AUF", bytes);
    if (ReadOrderFile() != ReadOutcome::Read) return fuzz.HoldRefused("F.AUF");
    fuzz.HoldSilent();
    const std::string order = Session.Auftr, date = Session.Datum, project = Session.Proj;
    WriteProjectData();
    Hold(Session.FileSaved, "a heading that was read can be written");
    Hold(ReadOrderFile() == ReadOutcome::Read, "a written heading can be read");
    Hold(Session.Auftr == order && Session.Datum == date && Session.Proj == project, "a heading comes back");
}

void ReadDataFile(std::string_view bytes, int problem, const char* name) {
    FuzzCase fuzz;
    fuzz.Write(name, bytes);
    Session.ProblemType = problem;
    if (ReadProblemData() != ReadOutcome::Read) return fuzz.HoldRefused(name);
    fuzz.HoldSilent();
    const std::string fields = AllFields();
    WriteProblemData();
    Hold(Session.FileSaved, "what was read can be written");
    const std::string written = fuzz.Read(name);
    Hold(ReadProblemData() == ReadOutcome::Read, "what was written can be read");
    Hold(AllFields() == fields, "what is accepted comes back unchanged");
    WriteProblemData();
    Hold(fuzz.Read(name) == written, "a file that is read and saved stays as it is");
}

void ReadArchiveTarget(std::string_view bytes) {
    FuzzCase fuzz;
    fuzz.Write("F.PO3", bytes);
    const bool archive = IsArchiveFile(fuzz.Path("F.PO3"));
    if (!ProjectStore().UnpackProject(fuzz.Path("F"), ".po3")) {
        Hold(archive, "a plain file is left alone");
        Hold(fuzz.Host.Messages.size() == 1, "a damaged archive is told once");
        Hold(fuzz.Host.Messages.front().find(fuzz.Path("F.PO3")) != std::string::npos, "it is named");
        Hold(fuzz.Read("F.PO3") == bytes, "a damaged archive stays as it is");
        return;
    }
    fuzz.HoldSilent();
    if (!archive) return Hold(fuzz.Read("F.PO3") == bytes, "a plain file is left alone");
    const ProjectFiles files = ReadArchive(bytes);
    for (const auto& [extension, content] : files)
        Hold(fuzz.Read("F." + extension) == content, "every entry comes out");
    Hold(ReadArchive(BuildArchive("F", files)) == files, "what came out goes in again");
}

void ReadSettingsStore(std::string_view bytes) {
    FuzzCase fuzz;
    fuzz.Write("settings.json", bytes);
    SharedServices().GetSetting("Lithmark", "Settings", "Language", "none");
    SharedServices().SaveSetting("Lithmark", "Settings", "Language", std::string("Deutsch"));
    Hold(SharedServices().GetSetting("Lithmark", "Settings", "Language", "") == "Deutsch", "a setting is kept");
    Hold(fuzz.Host.Messages.size() <= 1, "a damaged store is told once");
}

void ReadUnits(std::string_view bytes) {
    FuzzCase fuzz;
    fuzz.Write("Units", bytes);
    LoadUnits();
    if (!fuzz.Host.Messages.empty()) return fuzz.HoldRefused("Units");
    const auto units = [] {
        return Session.Len1Label + Session.Len2Label + Session.Force1Label + Session.Force2Label + Session.TempLabel;
    };
    const std::string before = units();
    const double factor = Session.Len1Factor;
    Hold(factor > 0, "a unit has a factor");
    Hold(WriteUnits(), "units that were read can be written");
    LoadUnits();
    Hold(units() == before && Session.Len1Factor == factor, "units come back");
    fuzz.HoldSilent();
}

void ReadNumberFormats(std::string_view bytes) {
    FuzzCase fuzz;
    fuzz.Write("NOFORMAT", bytes);
    LoadNumberFormats();
    if (!fuzz.Host.Messages.empty()) fuzz.HoldRefused("NOFORMAT");
    // Whatever stands there formats a number.
    for (const NumberFormatRow& row : NumberFormats())
        for (const double value : {0.0, -1234567.891, 1e-30, 9.9999e37}) FormatValue(value, Session.*row.Field);
}

void ReadPreferences(std::string_view bytes) {
    FuzzCase fuzz;
    fuzz.Write("Preferen.tol", bytes);
    LoadPreferences();
    if (!fuzz.Host.Messages.empty()) return fuzz.HoldRefused("Preferen.tol");
    SavePreferences();
    const std::string written = fuzz.Read("Preferen.tol");
    LoadPreferences();
    SavePreferences();
    Hold(fuzz.Read("Preferen.tol") == written, "preferences come back");
    fuzz.HoldSilent();
}

void ReadDataDirectory(std::string_view bytes) {
    FuzzCase fuzz;
    fuzz.Write("STEU", bytes);
    SharedServices().GetDirectories();
    if (!fuzz.Host.Messages.empty()) return fuzz.HoldRefused("STEU");
    std::string dir, again;
    Hold(ReadDataDirSettings(dir), "both readers accept the same");
    const long flag = Session.CompressFlag;
    WriteDataDirSettings(dir);
    Hold(ReadDataDirSettings(again) && again == dir && Session.CompressFlag == flag, "the directory comes back");
    fuzz.HoldSilent();
}

// The mesh, a byte 1, and the node values of a contour plot.
void ReadContour(std::string_view bytes) {
    FuzzCase fuzz;
    const auto cut = bytes.find('\x01');
    const std::string_view values = cut == std::string_view::npos ? std::string_view() : bytes.substr(cut + 1);
    fuzz.Write("F.TO1", bytes.substr(0, cut));
    fuzz.Write("F.PH1", values);
    fuzz.Write("F.PW1", values);
    for (const char* result : {"Tab5", "Tab6"}) {
        Session.ContourResult = result;
        BasContour plot;
        try {
            plot.Prepare();
        } catch (const Failure&) {
            continue;
        }
        RecordingSurface surface(64, 64);
        try {
            plot.Redraw(surface, {});
        } catch (const Failure&) {  // values that no plot can show
        }
    }
}

}  // namespace lithmark::fuzz
