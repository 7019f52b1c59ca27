#include <string_view>

#include "cli/Commands.h"
#include "core/Session.h"
#include "kernels/stress/PrincipalValues.h"

namespace lithmark {

namespace {

// Adds Session's fields under their own names.
#define LITHMARK_PUT(name) json[#name] = ToJson(Session.name)

void PutStress(Json& json) {
    LITHMARK_PUT(Sigma_x);
    LITHMARK_PUT(Sigma_y);
    LITHMARK_PUT(Sigma_z);
    LITHMARK_PUT(Tau_xy);
    LITHMARK_PUT(Tau_xz);
    LITHMARK_PUT(Tau_yz);
    LITHMARK_PUT(Varepsilon_x);
    LITHMARK_PUT(Varepsilon_y);
    LITHMARK_PUT(Varepsilon_z);
    LITHMARK_PUT(Gamma_xy);
    LITHMARK_PUT(Gamma_xz);
    LITHMARK_PUT(Gamma_yz);
    LITHMARK_PUT(u);
    LITHMARK_PUT(v);
    LITHMARK_PUT(w);
    LITHMARK_PUT(s);
    // Of an aborted run the principal values may not exist.
    if (Session.CalcAborted) return;
    if (Session.ProblemType == 1) {
        const PrincipalStresses principal =
            ComputePrincipalStresses(Session.Sigma_x, Session.Sigma_y, Session.Sigma_z, Session.Tau_xz);
        json["max_Tau"] = ToJson(principal.max_Tau);
        json["max_Sigma"] = ToJson(principal.max_Sigma);
        json["min_Sigma"] = ToJson(principal.min_Sigma);
        json["p"] = ToJson(principal.p);
        json["q"] = ToJson(principal.q);
    } else if (Session.ProblemType == 2) {
        const PrincipalStrains principal =
            ComputePrincipalStrains(Session.Varepsilon_x, Session.Varepsilon_y, Session.Varepsilon_z, Session.Gamma_xz);
        json["max_Gamma"] = ToJson(principal.max_Gamma);
        json["max_Epsilon"] = ToJson(principal.max_Epsilon);
        json["min_Epsilon"] = ToJson(principal.min_Epsilon);
        json["Epsilon_p"] = ToJson(principal.Epsilon_p);
        json["Epsilon_q"] = ToJson(principal.Epsilon_q);
    }
}

void PutConsolidationRate(Json& json) {
    LITHMARK_PUT(Uc);
    LITHMARK_PUT(IsoLast);
    LITHMARK_PUT(IsoZ);
    LITHMARK_PUT(IsoU0);
    LITHMARK_PUT(IsoUf);
    // One depth more than there are nodes is computed; it is never shown.
    if (json["IsoZ"].size() > json["IsoU0"].size()) json["IsoZ"].erase(json["IsoU0"].size());
    LITHMARK_PUT(PrefDz);
}

void PutTimeSettlement(Json& json) {
    LITHMARK_PUT(LoadCurve);
    LITHMARK_PUT(SuddenPercent);
    LITHMARK_PUT(SuddenSettlement);
    LITHMARK_PUT(SettlementSum);
    LITHMARK_PUT(LoadChartTime);
    LITHMARK_PUT(LoadChartNew);
    LITHMARK_PUT(LoadChartPrev);
    LITHMARK_PUT(ConsolidationEnd);
    if (Session.Ms) LITHMARK_PUT(MeasureFactor);
    if (Session.ProblemType == 8) LITHMARK_PUT(CvTS);
}

void PutRaft(Json& json) {
    LITHMARK_PUT(NodeX);
    LITHMARK_PUT(NodeY);
    LITHMARK_PUT(NodeArea);
    LITHMARK_PUT(NodeForce);
    LITHMARK_PUT(NodePressure);
    LITHMARK_PUT(NodeSettlement);
    LITHMARK_PUT(RaftMidX);
    LITHMARK_PUT(RaftMidSettlement);
    LITHMARK_PUT(RaftMidPressure);
    LITHMARK_PUT(RaftMidFlexible);
    LITHMARK_PUT(RaftMeanPressure);
    LITHMARK_PUT(z);
    LITHMARK_PUT(h);
}

}  // namespace

Json ResultsJson() {
    Json json = Json::object();
    switch (static_cast<int>(Session.ProblemType)) {
        case 1:
        case 2:
        case 3:
            PutStress(json);
            break;
        case 4:
            LITHMARK_PUT(Sigma_z);
            LITHMARK_PUT(s);
            break;
        case 5:
            PutConsolidationRate(json);
            break;
        case 6:
        case 7:
        case 8:
            PutTimeSettlement(json);
            break;
        case 9:
        case 10:
            PutRaft(json);
            break;
        default:
            break;
    }
    return json;
}

#undef LITHMARK_PUT

Json MessagesJson(const ConsoleHost& host) {
    Json list = Json::array();
    for (const auto& message : host.Messages()) list.push_back({{"title", message.Title}, {"text", message.Text}});
    return list;
}

}  // namespace lithmark
