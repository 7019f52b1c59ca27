#include "files/ProblemData.h"

#include <utility>

#include "base/NumberText.h"
#include "core/Catalogue.h"
#include "core/SessionFields.h"
#include "files/GloableVariable.h"
#include "files/ProjectFiles.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

constexpr int kFile = 1;

// One row of a file's layout. A table's count may stand ahead of its rows with other fields between.
enum class RowKind {
    Fields,    // a line for each field, or element of an array that always has the same size
    ListItem,  // a text written as a raw line and read to the next comma. Kept: existing files have both
    Count,     // the number of rows of the table whose columns are Fields
    Table      // that table: row by row, a line for each column
};
struct FileRow {
    RowKind Kind;
    std::vector<std::string_view> Fields;
    std::string_view Count = {};
};
using FileRows = std::vector<FileRow>;

FileRow Plain(std::vector<std::string_view> fields) {
    return {RowKind::Fields, std::move(fields)};
}

// The count of a table, the fields between it and the table, and the table.
void AddTable(FileRows& rows, std::string_view count, const std::vector<std::string_view>& columns,
              std::vector<std::string_view> between = {}) {
    rows.push_back({RowKind::Count, columns, count});
    if (!between.empty()) rows.push_back(Plain(std::move(between)));
    rows.push_back({RowKind::Table, columns, count});
}

FileRows TimeSettlementRows() {
    FileRows rows = {Plain({"DrainageFaces", "CvChoice", "CvTS", "kf", "EsTS", "Ws", "qv", "qe", "Hm", "h", "Sc", "Pt",
                            "TimePeriod", "StartDate", "Ms", "Sm", "DesignCode", "TimeUnit"})};
    AddTable(rows, "NLoad", {"LoadValue", "LoadTime"});
    AddTable(rows, "NSts", {"StsValue", "StsTime"});
    rows.push_back({RowKind::ListItem, {"OedUnit"}});
    AddTable(rows, "NOed", {"OedSettlement", "OedTime"});
    return rows;
}

FileRows LayerTableRows() {
    FileRows rows = {Plain({"ScLoad"})};
    // The last two columns stand in the order 9, 8. Kept: existing files have it.
    AddTable(rows, "NScA", {"ScA1", "ScA2", "ScA3", "ScA4", "ScA5", "ScA6", "ScA7", "ScA9", "ScA8"},
             {"ScValue1", "ScValue2", "ScFlag", "ScValue3", "ScValue4"});
    AddTable(rows, "NScB", {"ScB1", "ScB2", "ScB3", "ScB4", "ScB5"});
    return rows;
}

const FileRows& RowsOf(int problemType) {
    static const FileRows stress = {Plain({"x", "y", "z", "Q", "P", "A", "B", "Nue", "Es", "LoadType"})};
    static const FileRows consolidation = {Plain(
        {"x", "y", "z", "Q", "P", "A", "B", "h", "eo", "Po", "Gamma", "Cc", "Es", "LoadType", "SoilPropertyType"})};
    static const FileRows rate = {Plain({"x", "y", "z", "Q", "P", "A", "B", "LoadType", "U", "T", "NumLayers", "hLayer",
                                         "CvLayer", "KLayer", "DrainageCondition", "Pressure", "TimeUnit"})};
    static const FileRows timeSettlement = TimeSettlementRows();
    static const FileRows displacement = {
        Plain({"Q", "A", "B", "h", "Nue", "Es", "LoadType", "Exz_x", "Exz_y", "AnalysisType", "SettlementAt"})};
    static const FileRows raftConsolidation = {
        Plain({"z", "Q", "A", "B", "h", "eo", "Po", "Cc", "Es", "LoadType", "SoilPropertyType", "Exz_x", "Exz_y",
               "Gamma", "AnalysisType", "SettlementAt"})};
    static const FileRows layerTable = LayerTableRows();
    switch (problemType) {
        case Problem::SoilStress:
        case Problem::SoilStrain:
        case Problem::SoilDisplacement:
            return stress;
        case Problem::Consolidation:
            return consolidation;
        case Problem::ConsolidationRate:
            return rate;
        case Problem::TimeDirect:
        case Problem::TimeOedometer:
        case Problem::TimeTheory:
            return timeSettlement;
        case Problem::RaftDisplacement:
            return displacement;
        case Problem::RaftConsolidation:
            return raftConsolidation;
        case Problem::LayerTable:
            return layerTable;
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

// Takes a table's count and gives its arrays that size; nothing of their old rows stays. A count that no table can have
// is refused before anything is changed.
void ReadCount(const FileRow& row) {
    const long line = LineToRead(kFile);
    Integer count;
    try {
        count = ReadInteger(kFile);
    } catch (const Failure& failure) {
        if (failure.Kind() == FailureKind::Overflow) Fail(FailureKind::BadCount, failure.Detail(), line);
        throw;
    }
    if (count < 1) Fail(FailureKind::BadCount, NumberToText(static_cast<int>(count)), line);
    *std::get<Integer*>(Field(row.Count)) = count;
    ForEachColumn(row, [&](auto& column) { column.Redim(1, count); });
}

// The number of rows that a table has by its count.
int RowsInUse(const FileRow& row) {
    return *std::get<Integer*>(Field(row.Count));
}

void ReadRow(const FileRow& row) {
    switch (row.Kind) {
        case RowKind::Fields:
            for (const std::string_view name : row.Fields)
                std::visit([](auto* target) { ReadValue(*target); }, Field(name));
            break;
        case RowKind::ListItem:
            *std::get<std::string*>(Field(row.Fields.front())) = ReadListItem(kFile);
            break;
        case RowKind::Count:
            ReadCount(row);
            break;
        case RowKind::Table:
            for (int i = 1; i <= RowsInUse(row); ++i) ForEachColumn(row, [&](auto& column) { ReadValue(column(i)); });
            break;
    }
}

void WriteRow(const FileRow& row) {
    switch (row.Kind) {
        case RowKind::Fields:
        case RowKind::ListItem:
            for (const std::string_view name : row.Fields)
                std::visit([](const auto* target) { WriteValue(*target); }, Field(name));
            break;
        case RowKind::Count:
            WriteValue(*std::get<Integer*>(Field(row.Count)));
            break;
        case RowKind::Table:
            for (int i = 1; i <= RowsInUse(row); ++i)
                ForEachColumn(row, [&](const auto& column) { WriteValue(column(i)); });
            break;
    }
}

std::string NameOfDataFile() {
    return DataFileName(Session.WorkDir, Session.WorkName, ProblemInForce().Extension);
}

}  // namespace

ReadOutcome ReadProblemData() {
    SharedServices().SetPointer(PointerShape::Hourglass);
    try {
        if (OpenDataFile(NameOfDataFile(), FileMode::Input, kFile) != 0) return ReadOutcome::Missing;
        for (const FileRow& row : RowsOf(Session.ProblemType)) ReadRow(row);
        CloseDataFile(kFile);
    } catch (const Failure& failure) {
        FileError(failure);
        SharedServices().SetPointer(PointerShape::Default);
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
        if (IsTimeSettlement(problem)) WriteProjectFile(Session.WorkDir, Session.WorkName);
        OpenDataFile(NameOfDataFile(), FileMode::Output, kFile);
        for (const FileRow& row : RowsOf(problem)) WriteRow(row);
        CloseDataFile(kFile);
        Session.FileSaved = true;
    } catch (const Failure& failure) {
        FileError(failure);
    }
    SharedServices().SetPointer(PointerShape::Default);
}

std::vector<std::string_view> ProblemFieldNames(int problemType) {
    std::vector<std::string_view> names;
    for (const FileRow& row : RowsOf(problemType)) {
        if (row.Kind == RowKind::Count)
            names.push_back(row.Count);
        else
            names.insert(names.end(), row.Fields.begin(), row.Fields.end());
    }
    return names;
}

}  // namespace lithmark
