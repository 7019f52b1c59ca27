// Session: the one process-wide state record. Everything a dialog shows, a data file stores and a kernel takes or
// leaves lies here, in base units: metres, kilonewtons, kN/m2, seconds in Cv and k; settlements in centimetres.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "base/Array.h"
#include "base/Integer.h"
#include "base/Single.h"
#include "base/TextId.h"
#include "core/Problems.h"

namespace lithmark {

// The arrays of the record are compiled once.
extern template class Array<Single>;
extern template class Array<Integer>;
extern template class Array<std::string>;
extern template class Matrix<Single>;
extern template class Matrix<std::string>;

// A report label or title: nothing, a text number, or a ready text.
using Label = std::variant<std::monostate, TextId, std::string>;
// A column's unit: nothing, a selector of UnitLabel, or a ready text.
using ColumnUnit = std::variant<std::monostate, long, std::string>;
// A report value: nothing, a number, or a ready text.
using ReportValue = std::variant<std::monostate, double, std::string>;

struct SessionRecord {
    // Made and copied in one place: hundreds of fields would be code in every file that reads the record.
    SessionRecord();
    SessionRecord(const SessionRecord&);
    SessionRecord& operator=(const SessionRecord&);
    SessionRecord& operator=(SessionRecord&&) noexcept;
    ~SessionRecord();

    // Project location and identity.
    std::string ProgramDir;   // with a trailing separator
    std::string DataDir;      // of the open project, with a trailing separator
    std::string ProjectName;  // bare; empty when no project is open
    std::string ProjectFile;  // full path of the last chosen project file
    std::string WorkDir;      // where the problem files are read and written
    std::string WorkName;
    long CompressFlag = 2;  // 7 packing on, 0 off, 2 no setting file exists
    Integer ProblemType = Problem::SoilStress;
    std::string Auftr, Datum, Proj;  // order, date, project description
    std::string FirmaLine1, FirmaLine2;

    // Status flags.
    bool DialogOk = false, DataValid = false, FileSaved = false, CalcAborted = false;

    // Load and geometry.
    Single x, y, z;        // calculation point; z is the depth
    Single Q;              // total load
    Single P;              // uniform load
    Single A, B;           // length or radius, and width, of the loaded area
    Single A0;             // copy of A; the radius for circular loads
    Integer LoadType = 0;  // LoadShape
    Single Nue, Es, h, eo, Po, Cc, Gamma;
    Integer SoilPropertyType = 0;  // SoilDefinition
    Single Exz_x, Exz_y;           // eccentricity of the load on the raft
    bool AnalysisType = Analysis::Numerical;
    bool SettlementAt = SettlementPlace::AllNodes;

    // Degree of consolidation for two layers.
    Integer NumLayers = 0;
    Array<Single> hLayer{1, 2}, CvLayer{1, 2}, KLayer{1, 2};
    Integer DrainageCondition = 0;  // Drainage
    Single T;
    Single U;               // constant initial pore water pressure, kN/m2
    bool Pressure = false;  // true: constant initial pressure
    std::string TimeUnit;   // the word of the current language

    // Time-settlement.
    Single CvTS, kf, EsTS, Ws, qv, qe, Hm, Sc, Pt, Sm;
    bool Ms = false;         // a measurement is to be evaluated
    Integer DesignCode = 0;  // time of the measurement
    Integer TimePeriod = 0;  // time units that the report shows
    std::string StartDate;
    Integer DrainageFaces = 0;  // Faces
    Integer CvChoice = 0;       // CvFrom
    Integer NLoad = 0;
    Array<Integer> LoadTime;
    Array<Single> LoadValue;
    Integer NSts = 0;
    Array<Single> StsTime, StsValue;
    Integer NOed = 0;
    Array<Single> OedTime, OedSettlement;
    std::string OedUnit;
    std::string
        MeasuredUnit;  // Deliberate: nothing sets it, so that readings count as per cent and stand without a unit.

    // Problem 11: stored and exported, never calculated.
    Single ScLoad;
    Integer NScA = 0;
    Array<Single> ScA1, ScA2, ScA3, ScA4, ScA5, ScA6, ScA7, ScA8, ScA9;
    Integer NScB = 0;
    Array<Single> ScB1, ScB2, ScB3, ScB4, ScB5;
    Single ScValue1, ScValue2;
    bool ScFlag = false;
    Single ScValue3, ScValue4;

    // Units: labels with brackets, factors in display units per base unit (m, cm, kN, MN).
    std::string Len1Label, Len2Label, Force1Label, Force2Label, TempLabel;
    double Len1Factor = 1, Len2Factor = 1, Force1Factor = 1, Force2Factor = 1;

    // Number formats, in the order of the file "NOFORMAT"; the last two are derived.
    std::string FmtForce, FmtSettlement, FmtStress, FmtReserve1, FmtReserve2, FmtReserve3, FmtModulus, FmtReserve4,
        FmtLength, FmtStrain, FmtPermeability, FmtCv, FmtRatio, FmtTime, FmtPercent, FmtUnitWeight, FmtReserve5,
        FmtDialogModulus;
    std::string FmtForceFine, FmtStressFine;

    // Preferences.
    Single PrefDx = 0.5, PrefDy = 0.5, PrefDz = 0.25;  // m
    Integer PrefND = 12;
    Single PrefTol = 0.001;
    Integer PrefImax = 1000;

    // Report.
    std::string ResultText;  // lines end in CR LF
    std::string SymbolSuffix;
    Integer TableLastColumn = 0, TableLastRow = 0, HeaderRows = 0;
    std::string TableTitle;
    Array<Label> ColumnTitles{0, -1};
    Array<std::string> ColumnSymbols{0, -1};
    Array<ColumnUnit> ColumnUnits{0, -1};
    Matrix<std::string> TableCells;

    // Results: stresses (kN/m2), strains, displacements and settlement (cm).
    Single Sigma_x, Sigma_y, Sigma_z, Tau_xy, Tau_xz, Tau_yz;
    Single Varepsilon_x, Varepsilon_y, Varepsilon_z, Gamma_xy, Gamma_xz, Gamma_yz;
    Single u, v, w, s;

    // Results: degree of consolidation.
    Integer IsoLast = 0;
    Array<Single> IsoU0{0, -1}, IsoUf{0, -1}, IsoZ{0, -1};
    Single Uc;

    // Results: time-settlement, index 0 to 70.
    Array<Single> LoadCurve{0, 70}, SuddenPercent{0, 70}, SuddenSettlement{0, 70}, SettlementSum{0, 70};
    Array<Single> LoadChartTime{0, 70}, LoadChartNew{0, 70}, LoadChartPrev{0, 70};
    Single ConsolidationEnd;  // when consolidation counts as finished, time units
    Single MeasureFactor;

    // Results: rafts. Forces kN, pressures kN/m2, settlements cm.
    Array<Single> NodeX, NodeY, NodeArea, NodeForce, NodePressure, NodeSettlement;
    Integer RaftMidCount = 0;
    Single RaftMeanPressure;
    Array<Single> RaftMidX, RaftMidSettlement, RaftMidPressure, RaftMidFlexible;

    // Choices of the curve dialog and of the contour window.
    std::string CurveChoice, CurveLoadUnit, CurveSettlementUnit, ContourResult;
};

extern SessionRecord Session;

// A fresh record, as at the start of the process.
void ResetSession();

}  // namespace lithmark
