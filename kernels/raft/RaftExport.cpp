// The eleven export files of a raft run. Text files hold one written value or list a line; record files hold one value
// in each record of 128 bytes, so the place of every value is the number of its record.
#include <string>
#include <vector>

#include "core/Problems.h"
#include "core/Session.h"
#include "files/GloableVariable.h"
#include "kernels/raft/RaftRun.h"
#include "services/numerics/MeshLib.h"

namespace lithmark {

namespace {

const std::string kVersion = "Version 9";

bool exportOn = true;

// An open export file, ready to take its place once Close has been called; left open by a failure it is dropped by the
// shared failure routine. Nothing is opened or written while the export is off.
class TextExport {
  public:
    explicit TextExport(const std::string& extension, FileMode mode = FileMode::Output) {
        if (exportOn) OpenDataFile(DataFileName(Session.WorkDir, Session.WorkName, extension), mode, kDataFile);
    }
    void Close() {
        if (exportOn) CloseDataFile(kDataFile);
    }

    template <typename Number>
    void Put(Number value) {
        if (exportOn) WriteNumber(kDataFile, value);
    }
    void PutAll(const Array<Single>& values) {
        for (const Single value : values) Put(value);
    }
    void PutList(std::initializer_list<ListItem> items) {
        if (exportOn) WriteList(kDataFile, items);
    }
    void PutLine(const std::string& text) {
        if (exportOn) WriteRawLine(kDataFile, text);
    }
};

// The same for records, numbered in the order in which they are put.
class RecordExport : private TextExport {
  public:
    explicit RecordExport(const std::string& extension) : TextExport(extension, FileMode::RandomOutput) {}
    using TextExport::Close;

    template <typename T>
    void Put(const T& value) {
        ++record_;
        if (exportOn) PutRecord(kDataFile, record_, value);
    }
    template <typename T>
    void Put(int times, const T& value) {
        for (int i = 0; i < times; ++i) Put(value);
    }

  private:
    int record_ = 0;
};

Integer ElementCount(const RaftResult& result) {
    return result.Elements.size();
}

void WriteMesh(const RaftResult& result) {
    TextExport file("To1");
    file.Put(Integer(Session.NodeX.Upper()));
    for (int i = 1; i <= Session.NodeX.Upper(); ++i) {
        file.Put(Session.NodeX(i));
        file.Put(Session.NodeY(i));
    }
    file.Put(ElementCount(result));
    for (const RaftElement& element : result.Elements) {
        file.Put(Integer(element.Count));
        for (int k = 0; k < element.Count; ++k) file.Put(Integer(element.Nodes[k]));
    }
    file.Close();
}

void WriteRunOptions(const RaftResult& result) {
    TextExport file("PO1");
    file.PutLine(kVersion);
    file.Put(Integer(1));
    file.Put(Integer(result.Input.AnalysisType ? 19 : 7));
    for (int i = 0; i < 13; ++i) file.Put(Integer(2));
    file.Put(0L);
    file.Close();
}

void WriteAreas() {
    TextExport file("PL4");
    file.Put(Integer(Session.NodeArea.Upper()));
    file.PutAll(Session.NodeArea);
    file.Close();
}

// The corners of each element going round it: the first two of the mesh file change places.
std::vector<MeshLib::ElementRecord> ElementRecords(const RaftResult& result) {
    std::vector<MeshLib::ElementRecord> records;
    records.reserve(result.Elements.size());
    for (const RaftElement& element : result.Elements) {
        MeshLib::ElementRecord record;
        record.Count = element.Count;
        record.Node[1] = element.Nodes[1];
        record.Node[2] = element.Nodes[0];
        for (int k = 2; k < element.Count; ++k) record.Node[static_cast<std::size_t>(k) + 1] = element.Nodes[k];
        records.push_back(record);
    }
    return records;
}

void WriteMeshWithEdges(const RaftResult& result, const std::vector<MeshLib::ElementRecord>& records) {
    // A circle's coordinates, which count from its centre, are moved so that all are positive.
    const double shift = result.Circular ? static_cast<double>(result.Input.A) : 0;
    TextExport file("PL6");
    file.Put(Integer(Session.NodeX.Upper()));
    for (int i = 1; i <= Session.NodeX.Upper(); ++i) {
        file.Put(Single(Session.NodeX(i) + shift));
        file.Put(Single(Session.NodeY(i) + shift));
    }
    file.Put(ElementCount(result));
    for (const MeshLib::ElementRecord& record : records) {
        file.Put(record.Count);
        for (std::size_t k = 1; k <= static_cast<std::size_t>(record.Count); ++k) {
            file.Put(record.Node[k]);
            file.Put(record.Edge[k]);
        }
    }
    file.Close();
}

void WriteOutline(const RaftResult& result, const MeshLib::MeshValues& values) {
    // Deliberate: a circular raft, too, is outlined as a rectangle, with the width that the record happens to hold.
    const Single a = result.Input.A, b = result.Circular ? Session.B : result.Input.B, o = 0;
    TextExport file("PL8");
    file.Put(Integer(4));
    const auto line = [&file, o](Single x1, Single y1, Single x2, Single y2) {
        file.PutList({false, x1, y1, x2, y2, o, o, false});
    };
    line(o, o, a, o);
    line(a, o, a, b);
    line(a, b, o, b);
    line(o, b, o, o);
    file.PutList({Integer(0), Integer(0)});  // no inner lines
    file.PutList({Integer(0), Integer(0)});  // no further tables
    file.Put(values.EdgeCount);
    file.PutList({values.OffsetX, values.OffsetY, values.Turn});
    // A direction without a grid gets ten places of its own.
    const auto places = [](Integer intervals) { return intervals == 0 ? Integer(10) : intervals; };
    file.PutList({places(result.NX), places(result.NY)});
    const auto grid = [&file](Integer intervals, const Array<std::string>& texts) {
        if (intervals != 0) {
            for (const std::string& text : texts) file.PutList({text});
            return;
        }
        file.PutList({std::monostate{}});
        for (int i = 1; i <= 10; ++i) file.Put(Integer(i));
    };
    grid(result.NX, result.GridX);
    grid(result.NY, result.GridY);
    file.Close();
}

void WriteLoads(const RaftResult& result) {
    const RaftInput& input = result.Input;
    const Integer none = 0, one = 1;
    RecordExport file("PC1");
    file.Put(2, none);
    file.Put(one);  // point loads
    file.Put(4, none);
    file.Put(one);  // rows of the second table
    file.Put(kVersion);
    file.Put(one);
    file.Put(input.Q);
    file.Put(Single(result.Circular ? input.A + input.Exz_x : input.A / 2 + input.Exz_x));
    file.Put(Single(result.Circular ? static_cast<double>(input.A) : input.B / 2 + input.Exz_y));
    file.Put(2, Single(0.5));
    file.Close();
}

void WriteMaterial(const RaftResult& result) {
    RecordExport file("P21");
    file.Put(Single(0));
    file.Put(Integer(1));
    file.Put(kVersion);
    file.Put(4, Single(0));
    file.Put(std::string());
    file.Put(Single(0));
    // Thickness [m], modulus [kN/m2] and Poisson's ratio of the raft.
    file.Put(Single(1));
    file.Put(Single(20000000));
    file.Put(Single(0.25));
    file.Put(ElementCount(result), Integer(1));
    file.Close();
}

struct SoilLayer {
    Single Depth, Modulus1, Modulus2, UnitWeight;
    std::string Soil;
    Single Friction, Cohesion, Poisson;
    Integer Kind = 0;
};

// The soil model as the file tells it.
struct SoilModel {
    std::vector<SoilLayer> Layers;
    Integer CaseCode = 0;
    Single CaseValue;       // modulus or compression index of an analytical run
    Single Shift1, Shift2;  // the two values behind the borings
};

constexpr double kStiff = 200000000;  // kN/m2, soil above the clay

SoilLayer ClayOf(const RaftInput& input) {
    const bool byModulus = input.SoilPropertyType == SoilDefinition::ByModulus;
    SoilLayer clay;
    clay.Depth = input.z + input.h;
    clay.Modulus1 = clay.Modulus2 = byModulus ? input.Es : input.Cc;
    clay.UnitWeight = byModulus ? Single(18) : input.Gamma;
    clay.Soil = "T/vi";
    clay.Cohesion = 30;
    clay.Poisson = byModulus ? Single(0) : input.eo;
    clay.Kind = byModulus ? 2 : 3;
    return clay;
}

SoilModel NumericalModel(const RaftInput& input) {
    SoilModel model;
    if (Session.ProblemType == Problem::RaftDisplacement) {
        model.Layers.push_back({input.h, input.Es, input.Es, input.Gamma, "G/ge", 30, 0, Session.Nue, 1});
        return model;
    }
    if (input.z != 0) {
        SoilLayer above;
        if (input.z > 0) {
            const Single unitWeight =
                input.SoilPropertyType == SoilDefinition::ByModulus ? Single(18) : Single(input.Po / input.z);
            above = {input.z, kStiff, kStiff, unitWeight, "G/ge", 30, 0, 0, 2};
        }
        model.Layers.push_back(above);
    }
    model.Layers.push_back(ClayOf(input));
    return model;
}

// An analytical run has one layer without values.
SoilModel AnalyticalModel(const RaftInput& input) {
    SoilModel model;
    model.Layers.emplace_back();
    if (Session.ProblemType == Problem::RaftDisplacement) {
        model.CaseCode = 4;
        model.CaseValue = input.Es;
        model.Shift1 = 30;
        return model;
    }
    const bool byModulus = input.SoilPropertyType == SoilDefinition::ByModulus;
    model.CaseCode = byModulus ? 5 : 6;
    model.CaseValue = byModulus ? input.Es : input.Cc;
    model.Shift2 = 30;
    return model;
}

void WriteSoil(const RaftInput& input) {
    const SoilModel model = input.AnalysisType ? AnalyticalModel(input) : NumericalModel(input);
    const Single zero = 0;
    RecordExport file("BAU");
    file.Put(Single(1));
    file.Put(SoilFileNue(input));
    file.Put(Single(1));
    file.Put(Integer(1));  // borings
    file.Put(model.CaseValue);
    file.Put(2, zero);  // the boring's place
    file.Put(std::string("BP1"));
    file.Put(Integer(model.Layers.size()));
    file.Put(zero);
    for (const SoilLayer& layer : model.Layers) {
        file.Put(layer.Depth);
        file.Put(layer.Modulus1);
        file.Put(layer.Modulus2);
        file.Put(layer.UnitWeight);
        file.Put(layer.Soil);
    }
    for (const SoilLayer& layer : model.Layers) {
        file.Put(layer.Friction);
        file.Put(layer.Cohesion);
    }
    file.Put(zero);
    file.Put(model.Shift1);
    file.Put(model.Shift2);
    for (const SoilLayer& layer : model.Layers) {
        file.Put(layer.Poisson);
        file.Put(layer.Kind);
    }
    file.Put(input.AnalysisType ? input.Gamma : zero);
    file.Put(model.CaseCode);
    file.Put(Single(100));
    file.Put(2, Integer(1));
    file.Put(Integer(2));
    file.Put(kVersion);
    file.Close();
}

// Contact pressure over settlement [kN/m3]. A settlement of exactly 0 counts as next to nothing.
Array<Single> SubgradeModulus() {
    Array<Single> modulus(1, Session.NodePressure.Upper());
    for (int i = 1; i <= modulus.Upper(); ++i) {
        const double settlement = Session.NodeSettlement(i) == 0 ? 1e-20 : Session.NodeSettlement(i) / 100;
        modulus(i) = Session.NodePressure(i) / settlement;
    }
    return modulus;
}

void WriteNodeValues(const std::string& extension, const Array<Single>& values) {
    TextExport file(extension);
    file.PutAll(values);
    file.Close();
}

// All eleven files, in their order.
void WriteFiles(const RaftResult& result) {
    WriteMesh(result);
    WriteRunOptions(result);
    WriteAreas();
    std::vector<MeshLib::ElementRecord> records = ElementRecords(result);
    const MeshLib::MeshValues values = MeshLib::BuildEdges(records);
    WriteMeshWithEdges(result, records);
    WriteOutline(result, values);
    WriteLoads(result);
    WriteMaterial(result);
    WriteSoil(result.Input);

    const Array<Single> modulus = SubgradeModulus();
    Array<Single> metres(1, Session.NodeSettlement.Upper());
    for (int i = 1; i <= metres.Upper(); ++i) metres(i) = Session.NodeSettlement(i) / 100;
    WriteNodeValues("PH1", metres);
    WriteNodeValues("PH2", Session.NodePressure);
    WriteNodeValues("PW1", modulus);
}

}  // namespace

void SetRaftExport(bool on) {
    exportOn = on;
}

Single SoilFileNue(const RaftInput& input) {
    if (!input.AnalysisType || Session.ProblemType == Problem::RaftDisplacement) return Session.Nue;
    return input.SoilPropertyType == SoilDefinition::ByModulus ? Single(0) : input.eo;
}

void ExportRaft(const RaftResult& result) {
    NumberedFileSet files;
    try {
        WriteFiles(result);
    } catch (const Failure&) {
        // What stands before the failure is put in place; the failure is the one to be told.
        try {
            files.Commit([](const std::string&) {});
        } catch (const Failure&) {
        }
        throw;
    }
    CommitDataFiles(files);
}

}  // namespace lithmark
