#include "files/ProblemData.h"

#include <utility>
#include <variant>

#include "base/NumberText.h"
#include "core/Catalogue.h"
#include "core/SessionFields.h"
#include "core/TimeUnits.h"
#include "files/CommonStep.h"
#include "files/ProjectFiles.h"
#include "services/ProjectStore.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

// The layout of a data file is a list of rows, and reading and writing walk the same list. Rows point at Session's
// fields, so that a field that does not exist, or is of the wrong kind, does not compile.
using S = SessionRecord;
using FieldPointer =
    std::variant<Single S::*, Integer S::*, bool S::*, std::string S::*, Array<Single> S::*, Array<Integer> S::*>;
using ColumnPointer = std::variant<Array<Single> S::*, Array<Integer> S::*>;

// A line for each field, or element of an array that always has the same size.
struct Fields {
    std::vector<FieldPointer> Items;
};
// Deliberate: a text written as a raw line and read to the next comma, so that a value behind it is passed over.
struct ListText {
    std::string S::*Item;
};
// The number of rows of a table; it may stand ahead of the table with other fields between.
struct Count {
    Integer S::*Rows;
    std::vector<ColumnPointer> Columns;
};
// The table: row by row, a line for each column.
struct Table {
    Integer S::*Rows;
    std::vector<ColumnPointer> Columns;
};
using FileRow = std::variant<Fields, ListText, Count, Table>;
using FileRows = std::vector<FileRow>;

// The count of a table, the fields between it and the table, and the table.
void AddTable(FileRows& rows, Integer S::*count, const std::vector<ColumnPointer>& columns,
              std::vector<FieldPointer> between = {}) {
    rows.push_back(Count{count, columns});
    if (!between.empty()) rows.push_back(Fields{std::move(between)});
    rows.push_back(Table{count, columns});
}

FileRows TimeSettlementRows() {
    FileRows rows = {
        Fields{{&S::DrainageFaces, &S::CvChoice, &S::CvTS, &S::kf, &S::EsTS, &S::Ws, &S::qv, &S::qe, &S::Hm, &S::h,
                &S::Sc, &S::Pt, &S::TimePeriod, &S::StartDate, &S::Ms, &S::Sm, &S::DesignCode, &S::TimeUnit}}};
    AddTable(rows, &S::NLoad, {&S::LoadValue, &S::LoadTime});
    AddTable(rows, &S::NSts, {&S::StsValue, &S::StsTime});
    rows.push_back(ListText{&S::OedUnit});
    AddTable(rows, &S::NOed, {&S::OedSettlement, &S::OedTime});
    return rows;
}

FileRows LayerTableRows() {
    FileRows rows = {Fields{{&S::ScLoad}}};
    // Deliberate: the last two columns stand in the order 9, 8.
    AddTable(rows, &S::NScA, {&S::ScA1, &S::ScA2, &S::ScA3, &S::ScA4, &S::ScA5, &S::ScA6, &S::ScA7, &S::ScA9, &S::ScA8},
             {&S::ScValue1, &S::ScValue2, &S::ScFlag, &S::ScValue3, &S::ScValue4});
    AddTable(rows, &S::NScB, {&S::ScB1, &S::ScB2, &S::ScB3, &S::ScB4, &S::ScB5});
    return rows;
}

const FileRows& RowsOf(int problemType) {
    static const FileRows stress = {
        Fields{{&S::x, &S::y, &S::z, &S::Q, &S::P, &S::A, &S::B, &S::Nue, &S::Es, &S::LoadType}}};
    static const FileRows consolidation = {
        Fields{{&S::x, &S::y, &S::z, &S::Q, &S::P, &S::A, &S::B, &S::h, &S::eo, &S::Po, &S::Gamma, &S::Cc, &S::Es,
                &S::LoadType, &S::SoilPropertyType}}};
    static const FileRows rate = {
        Fields{{&S::x, &S::y, &S::z, &S::Q, &S::P, &S::A, &S::B, &S::LoadType, &S::U, &S::T, &S::NumLayers, &S::hLayer,
                &S::CvLayer, &S::KLayer, &S::DrainageCondition, &S::Pressure, &S::TimeUnit}}};
    static const FileRows timeSettlement = TimeSettlementRows();
    static const FileRows displacement = {Fields{{&S::Q, &S::A, &S::B, &S::h, &S::Nue, &S::Es, &S::LoadType, &S::Exz_x,
                                                  &S::Exz_y, &S::AnalysisType, &S::SettlementAt}}};
    static const FileRows raftConsolidation = {
        Fields{{&S::z, &S::Q, &S::A, &S::B, &S::h, &S::eo, &S::Po, &S::Cc, &S::Es, &S::LoadType, &S::SoilPropertyType,
                &S::Exz_x, &S::Exz_y, &S::Gamma, &S::AnalysisType, &S::SettlementAt}}};
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

void ReadValue(Single& value) {
    value = ReadSingle(kDataFile);
}
void ReadValue(Integer& value) {
    value = ReadInteger(kDataFile);
}
void ReadValue(bool& value) {
    value = ReadFlag(kDataFile);
}
void ReadValue(std::string& value) {
    value = ReadRawLine(kDataFile);
}
template <typename T>
void ReadValue(Array<T>& values) {
    for (T& value : values) ReadValue(value);
}

// A line for each value of a record.
class LineWriter {
  public:
    explicit LineWriter(const SessionRecord& record) : record_(record) {}

    void operator()(const Fields& row) {
        for (const FieldPointer& field : row.Items)
            std::visit([this](const auto value) { Add(record_.*value); }, field);
    }
    void operator()(const ListText& row) { Add(record_.*row.Item); }
    void operator()(const Count& row) { Add(record_.*row.Rows); }
    void operator()(const Table& row) {
        for (int i = 1; i <= record_.*row.Rows; ++i)
            for (const ColumnPointer& column : row.Columns)
                std::visit([this, i](const auto values) { Add((record_.*values)(i)); }, column);
    }

    std::vector<std::string> Lines;

  private:
    void Add(Single value) { Lines.push_back(NumberToText(value)); }
    void Add(Integer value) { Lines.push_back(NumberToText(static_cast<int>(value))); }
    void Add(bool value) { Lines.push_back(FlagText(value)); }
    void Add(const std::string& value) { Lines.push_back(value); }
    template <typename T>
    void Add(const Array<T>& values) {
        for (const T& value : values) Add(value);
    }

    const SessionRecord& record_;
};

// Takes a table's count and gives its arrays that size; nothing of their old rows stays. A count that no table can have
// is refused before anything is changed.
void Read(const Count& row) {
    const long line = LineToRead(kDataFile);
    Integer count;
    try {
        count = ReadInteger(kDataFile);
    } catch (const Failure& failure) {
        if (failure.Kind() == FailureKind::Overflow) Fail(FailureKind::BadCount, failure.Detail(), line);
        throw;
    }
    if (count < 1) Fail(FailureKind::BadCount, NumberToText(static_cast<int>(count)), line);
    Session.*row.Rows = count;
    for (const ColumnPointer& column : row.Columns)
        std::visit([&](const auto values) { (Session.*values).Redim(1, count); }, column);
}

void Read(const Fields& row) {
    for (const FieldPointer& field : row.Items) std::visit([](const auto value) { ReadValue(Session.*value); }, field);
}

void Read(const ListText& row) {
    Session.*row.Item = ReadListItem(kDataFile);
}

void Read(const Table& row) {
    for (int i = 1; i <= Session.*row.Rows; ++i)
        for (const ColumnPointer& column : row.Columns)
            std::visit([i](const auto values) { ReadValue((Session.*values)(i)); }, column);
}

// The fields that a row has in the file and no row ahead of it.
std::vector<FieldPointer> FieldsOf(const Fields& row) {
    return row.Items;
}
std::vector<FieldPointer> FieldsOf(const ListText& row) {
    return {row.Item};
}
std::vector<FieldPointer> FieldsOf(const Count& row) {
    return {row.Rows};
}
std::vector<FieldPointer> FieldsOf(const Table& row) {
    std::vector<FieldPointer> fields;
    for (const ColumnPointer& column : row.Columns)
        std::visit([&](const auto values) { fields.emplace_back(values); }, column);
    return fields;
}

std::string NameOfDataFile() {
    return DataFileName(Session.WorkDir, Session.WorkName, ProblemInForce().Extension);
}

}  // namespace

ReadOutcome ReadProblemData() {
    SharedServices().SetPointer(PointerShape::Hourglass);
    ReadOutcome outcome = ReadOutcome::Failed;
    UnderCommonStep([&] {
        if (OpenDataFile(NameOfDataFile(), FileMode::Input, kDataFile) != 0) {
            outcome = ReadOutcome::Missing;
            return;
        }
        for (const FileRow& row : RowsOf(Session.ProblemType)) std::visit([](const auto& r) { Read(r); }, row);
        CloseDataFile(kDataFile);
        Session.TimeUnit = TimeUnitInForce(Session.TimeUnit);
        outcome = ReadOutcome::Read;
    });
    if (outcome != ReadOutcome::Missing) SharedServices().SetPointer(PointerShape::Default);
    return outcome;
}

void WriteProblemData() {
    SharedServices().SetPointer(PointerShape::Hourglass);
    Session.FileSaved = false;
    UnderCommonStep([] {
        const int problem = Session.ProblemType;
        const auto saving = ProjectStore().BeginSave(Session.WorkDir + Session.WorkName);
        NumberedFileSet files;
        if (IsTimeSettlement(problem)) WriteProjectFile(Session.WorkDir, Session.WorkName);
        OpenDataFile(NameOfDataFile(), FileMode::Output, kDataFile);
        for (const std::string& line : ProblemDataLines(Session)) WriteRawLine(kDataFile, line);
        CloseDataFile(kDataFile);
        CommitDataFiles(files);
        Session.FileSaved = true;
    });
    SharedServices().SetPointer(PointerShape::Default);
}

std::vector<std::string> ProblemDataLines(const SessionRecord& record) {
    LineWriter writer(record);
    for (const FileRow& row : RowsOf(record.ProblemType)) std::visit(writer, row);
    return std::move(writer.Lines);
}

std::vector<std::string_view> ProblemFieldNames(int problemType) {
    std::vector<std::string_view> names;
    for (const FileRow& row : RowsOf(problemType))
        for (const FieldPointer& field : std::visit([](const auto& r) { return FieldsOf(r); }, row))
            names.push_back(NameOf(std::visit([](const auto value) { return FieldRef(&(Session.*value)); }, field)));
    return names;
}

}  // namespace lithmark
