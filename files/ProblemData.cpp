#include "files/ProblemData.h"

#include <map>
#include <span>

#include "base/NumberText.h"
#include "core/Catalogue.h"
#include "core/SessionFields.h"
#include "files/GloableVariable.h"
#include "files/ProjectFiles.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

constexpr int kFile = 1;

// One row of a file: a field, or a table whose rows hold several fields, a line each, behind a count read before.
struct FileRow {
    std::vector<std::string_view> Fields;
    std::string_view Count = {};  // of a table
    bool ListItem = false;        // a text written as a raw line and read to the next comma
};
using FileRows = std::vector<FileRow>;

FileRow Plain(std::vector<std::string_view> fields) {
    return {std::move(fields)};
}

const FileRows& RowsOf(int problemType) {
    static const FileRows stress = {Plain({"x", "y", "z", "Q", "P", "A", "B", "Nue", "Es", "LoadType"})};
    static const FileRows consolidation = {Plain(
        {"x", "y", "z", "Q", "P", "A", "B", "h", "eo", "Po", "Gamma", "Cc", "Es", "LoadType", "SoilPropertyType"})};
    static const FileRows rate = {Plain({"x", "y", "z", "Q", "P", "A", "B", "LoadType", "U", "T", "NumLayers", "hLayer",
                                         "CvLayer", "KLayer", "DrainageCondition", "Pressure", "TimeUnit"})};
    static const FileRows timeSettlement = {
        Plain({"DrainageFaces", "CvChoice", "CvTS", "kf", "EsTS", "Ws", "qv", "qe", "Hm", "h", "Sc", "Pt", "TimePeriod",
               "StartDate", "Ms", "Sm", "DesignCode", "TimeUnit", "NLoad"}),
        {{"LoadValue", "LoadTime"}, "NLoad"},
        Plain({"NSts"}),
        {{"StsValue", "StsTime"}, "NSts"},
        {{"OedUnit"}, {}, true},
        Plain({"NOed"}),
        {{"OedSettlement", "OedTime"}, "NOed"}};
    static const FileRows displacement = {
        Plain({"Q", "A", "B", "h", "Nue", "Es", "LoadType", "Exz_x", "Exz_y", "AnalysisType", "SettlementAt"})};
    static const FileRows raftConsolidation = {
        Plain({"z", "Q", "A", "B", "h", "eo", "Po", "Cc", "Es", "LoadType", "SoilPropertyType", "Exz_x", "Exz_y",
               "Gamma", "AnalysisType", "SettlementAt"})};
    // The last two columns stand in the order 9, 8; kept: existing files have it.
    static const FileRows table11 = {
        Plain({"ScLoad", "NScA", "ScValue1", "ScValue2", "ScFlag", "ScValue3", "ScValue4"}),
        {{"ScA1", "ScA2", "ScA3", "ScA4", "ScA5", "ScA6", "ScA7", "ScA9", "ScA8"}, "NScA"},
        Plain({"NScB"}),
        {{"ScB1", "ScB2", "ScB3", "ScB4", "ScB5"}, "NScB"}};
    switch (problemType) {
        case 1:
        case 2:
        case 3:
            return stress;
        case 4:
            return consolidation;
        case 5:
            return rate;
        case 6:
        case 7:
        case 8:
            return timeSettlement;
        case 9:
            return displacement;
        case 10:
            return raftConsolidation;
        case 11:
            return table11;
        default:
            Fail(FailureKind::SubscriptRange);
    }
}

const FieldRef& Field(std::string_view name) {
    return FindSessionField(name)->Ref;
}

void ReadValue(Single& value) {
    value = ReadSingle(kFile);
}
void ReadValue(Integer& value) {
    value = ReadInteger(kFile);
}
void ReadValue(bool& value) {
    value = ReadFlag(kFile);
}
void ReadValue(std::string& value) {
    value = ReadRawLine(kFile);
}
template <typename T>
void ReadValue(Array<T>& values) {
    for (T& value : values) ReadValue(value);
}

void WriteValue(Single value) {
    WriteNumber(kFile, value);
}
void WriteValue(Integer value) {
    WriteNumber(kFile, value);
}
void WriteValue(bool value) {
    WriteFlag(kFile, value);
}
void WriteValue(const std::string& value) {
    WriteRawLine(kFile, value);
}
template <typename T>
void WriteValue(const Array<T>& values) {
    for (const T& value : values) WriteValue(value);
}

// Calls `action` with each array of a table row.
template <typename Action>
void ForEachColumn(const FileRow& row, Action&& action) {
    for (const std::string_view name : row.Fields)
        std::visit(
            [&]<typename T>(T* target) {
                if constexpr (requires { target->Upper(); }) action(*target);
            },
            Field(name));
}

class Reader {
  public:
    void Read(const FileRow& row) {
        if (!row.Count.empty()) {
            ReadTable(row);
        } else if (row.ListItem) {
            *std::get<std::string*>(Field(row.Fields.front())) = ReadListItem(kFile);
        } else {
            for (const std::string_view name : row.Fields) {
                lines_[name] = LineToRead(kFile);
                std::visit([](auto* target) { ReadValue(*target); }, Field(name));
            }
        }
    }

  private:
    // The arrays take the count just read, and nothing of the old rows stays.
    void ReadTable(const FileRow& row) {
        const int count = *std::get<Integer*>(Field(row.Count));
        if (count < 1) Fail(FailureKind::BadCount, NumberToText(count), lines_[row.Count]);
        ForEachColumn(row, [&](auto& column) { column.Redim(1, count); });
        for (int i = 1; i <= count; ++i) ForEachColumn(row, [&](auto& column) { ReadValue(column(i)); });
    }

    std::map<std::string_view, long> lines_;  // where each field stood
};

void WriteRow(const FileRow& row) {
    if (row.Count.empty()) {
        for (const std::string_view name : row.Fields)
            std::visit([](const auto* target) { WriteValue(*target); }, Field(name));
        return;
    }
    const int count = *std::get<Integer*>(Field(row.Count));
    for (int i = 1; i <= count; ++i) ForEachColumn(row, [&](const auto& column) { WriteValue(column(i)); });
}

std::string NameOfDataFile() {
    const ProblemRow* problem = FindProblem(Session.ProblemType);
    if (!problem) Fail(FailureKind::SubscriptRange);
    return DataFileName(Session.WorkDir, Session.WorkName, problem->Extension);
}

}  // namespace

ReadOutcome ReadProblemData() {
    SharedServices().SetPointer(PointerShape::Hourglass);
    try {
        if (OpenDataFile(NameOfDataFile(), FileMode::Input, kFile) != 0) return ReadOutcome::Missing;
        Reader reader;
        for (const FileRow& row : RowsOf(Session.ProblemType)) reader.Read(row);
        CloseDataFile(kFile);
    } catch (const Failure& failure) {
        FileError(failure);
        return ReadOutcome::Failed;
    }
    SharedServices().SetPointer(PointerShape::Default);
    return ReadOutcome::Read;
}

void WriteProblemData() {
    SharedServices().SetPointer(PointerShape::Hourglass);
    Session.FileSaved = false;
    try {
        const int problem = Session.ProblemType;
        if (problem >= 6 && problem <= 8) WriteProjectFile(Session.WorkDir, Session.WorkName);
        OpenDataFile(NameOfDataFile(), FileMode::Output, kFile);
        for (const FileRow& row : RowsOf(problem)) WriteRow(row);
        CloseDataFile(kFile);
        Session.FileSaved = true;
    } catch (const Failure& failure) {
        FileError(failure);
        return;
    }
    SharedServices().SetPointer(PointerShape::Default);
}

std::vector<std::string_view> ProblemFieldNames(int problemType) {
    std::vector<std::string_view> names;
    for (const FileRow& row : RowsOf(problemType)) names.insert(names.end(), row.Fields.begin(), row.Fields.end());
    return names;
}

}  // namespace lithmark
