// Reading the mesh and the values of a raft, and finding the mesh's outer boundary.
#include <unordered_map>

#include "base/NumberText.h"
#include "contour/BasContour.h"
#include "core/CurveRequest.h"
#include "core/Session.h"
#include "core/Units.h"
#include "files/GloableVariable.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

// Opens a file of the open project under number 1, and drops it if reading ends early.
class ProjectInput {
  public:
    explicit ProjectInput(const std::string& extension) {
        const std::string name = DataFileName(Session.DataDir, Session.ProjectName, extension);
        SharedServices().SetCurrentFile(name);
        OpenNumberedFile(kDataFile, name, FileMode::Input);
    }
    ~ProjectInput() { DropNumberedFile(kDataFile); }
    ProjectInput(const ProjectInput&) = delete;
    ProjectInput& operator=(const ProjectInput&) = delete;
};

Integer ReadCount() {
    const Integer count = ReadInteger(kDataFile);
    if (count < 1) Fail(FailureKind::BadCount, NumberToText(static_cast<int>(count)), LineToRead(kDataFile) - 1);
    return count;
}

}  // namespace

void BasContour::ReadContourData() {
    {
        const ProjectInput file("To1");
        NodeCount = ReadCount();
        CtrX.Redim(1, NodeCount);
        CtrY.Redim(1, NodeCount);
        CtrZ.Redim(1, NodeCount);
        for (int i = 1; i <= NodeCount; ++i) {
            CtrX(i) = ReadSingle(kDataFile);
            CtrY(i) = ReadSingle(kDataFile);
        }
        ElementCount = ReadCount();
        ElemNodeCount.Redim(1, ElementCount);
        ElemNode.Redim(1, ElementCount, 1, 4);
        ElemNext.Redim(1, ElementCount, 1, 4);
        for (int e = 1; e <= ElementCount; ++e) {
            ElemNodeCount(e) = ReadCount();
            if (ElemNodeCount(e) != 3 && ElemNodeCount(e) != 4) Fail(FailureKind::BadCount);
            // The file's first two corners change places, so that the corners run round the element.
            constexpr int kColumn[] = {0, 2, 1, 3, 4};
            for (int j = 1; j <= ElemNodeCount(e); ++j) {
                const Integer node = ReadInteger(kDataFile);
                if (node < 1 || node > NodeCount) Fail(FailureKind::SubscriptRange);
                ElemNode(e, kColumn[j]) = node;
            }
        }
    }
    const bool pressure = PressureContoursRequested();
    const ProjectInput file(pressure ? "PH2" : "PH1");
    ZFormat = pressure ? Session.FmtStress : Session.FmtSettlement;
    const double factor = pressure ? FactorOf(Unit::Pressure) : Session.Len2Factor;
    for (int i = 1; i <= NodeCount; ++i) CtrZ(i) = ReadSingle(kDataFile) * factor;
}

// An edge that two elements share is cleared in both, so that what stays is the outer boundary. An element's edge is
// compared with the edges of later elements only.
void BasContour::FindBoundary() {
    struct Place {
        int Element, Corner;
    };
    std::unordered_map<std::uint32_t, std::vector<Place>> edges;
    edges.reserve(static_cast<std::size_t>(ElementCount) * 4);
    const auto key = [](int a, int b) {
        return static_cast<std::uint32_t>(std::min(a, b)) << 16 | static_cast<std::uint32_t>(std::max(a, b));
    };
    for (int e = 1; e <= ElementCount; ++e)
        for (int j = 1; j <= ElemNodeCount(e); ++j) {
            ElemNext(e, j) = ElemNode(e, j == ElemNodeCount(e) ? 1 : j + 1);
            edges[key(ElemNode(e, j), ElemNext(e, j))].push_back({e, j});
        }
    for (int e = 1; e <= ElementCount; ++e)
        for (int j = 1; j <= ElemNodeCount(e); ++j) {
            if (ElemNext(e, j) == 0) continue;
            auto& places = edges[key(ElemNode(e, j), ElemNext(e, j))];
            bool shared = false;
            while (!places.empty() && places.back().Element > e) {
                ElemNext(places.back().Element, places.back().Corner) = 0;
                places.pop_back();
                shared = true;
            }
            if (shared) ElemNext(e, j) = 0;
        }
}

}  // namespace lithmark
