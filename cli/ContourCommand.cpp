#include "cli/Commands.h"
#include "cli/Documents.h"
#include "cli/FieldJson.h"
#include "cli/Output.h"
#include "cli/RunFiles.h"
#include "contour/BasContour.h"
#include "contour/FieldSection.h"
#include "contour/RecordingSurface.h"
#include "core/Catalogue.h"
#include "core/CurveRequest.h"
#include "core/Session.h"
#include "files/GloableVariable.h"
#include "kernels/RunProject.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// The class, 1 to 10, whose colour a pixel has; 0 where nothing was filled.
int ClassOfColor(const BasContour& plot, int color) {
    for (int k = 1; k <= BasContour::kClasses; ++k)
        if (plot.ClassColor(k) == color) return k;
    return 0;
}

Json PixelsJson(BasContour& plot, int size) {
    RecordingSurface surface(size, size);
    plot.Redraw(surface, {.ColorContours = true, .Displaylines = false, .DrawGrid = false, .DisplayValues = false});
    Json rows = Json::array();
    for (int y = 0; y < size; ++y) {
        Json row = Json::array();
        for (int x = 0; x < size; ++x) row.push_back(ClassOfColor(plot, surface.ColorAt(x, y)));
        rows.push_back(row);
    }
    return rows;
}

// The class of a drawn isoline is not in its colour over a fill, so the lines are drawn once more without one: there a
// line has the colour of its class.
Json IsolinesJson(BasContour& plot) {
    RecordingSurface surface(1, 1);
    plot.Redraw(surface, {.ColorContours = false, .Displaylines = true, .DrawGrid = false, .DisplayValues = false});
    Json lines = Json::array();
    for (const auto& line : surface.Lines) {
        const int k = ClassOfColor(plot, line.Color);
        if (line.Color == BasContour::kColorBoundary || k == 0) continue;
        lines.push_back({k, Single(line.X1).Stored(), Single(line.Y1).Stored(), Single(line.X2).Stored(),
                         Single(line.Y2).Stored()});
    }
    return lines;
}

std::string ContourJson(BasContour& plot, int size) {
    RecordingSurface surface(1, 1);
    plot.Redraw(surface, {});
    Json json = Json::object();
    json["ZMin"] = ToJson(plot.ZMin);
    json["ZMax"] = ToJson(plot.ZMax);
    json["ZStep"] = ToJson(plot.ZStep);
    const WorldWindow& w = plot.Window;
    json["window"] = {ToJson(w.XMin), ToJson(w.XMax), ToJson(w.YMin), ToJson(w.YMax)};
    json["labels"] = Json::array();
    for (const std::string& label : plot.ClassLabel) json["labels"].push_back(label);

    Json boundary = Json::array(), values = Json::array(), mesh = Json::array();
    for (const auto& line : surface.Lines)
        if (line.Color == BasContour::kColorBoundary)
            boundary.push_back({Single(line.X1).Stored(), Single(line.Y1).Stored(), Single(line.X2).Stored(),
                                Single(line.Y2).Stored()});
    for (const auto& text : surface.Texts)
        values.push_back({Single(text.X).Stored(), Single(text.Y).Stored(), text.Text});
    for (int e = 1; e <= plot.ElementCount; ++e) {
        Json polygon = Json::array();
        for (int j = 1; j <= plot.ElemNodeCount(e); ++j)
            polygon.push_back({ToJson(plot.CtrX(plot.ElemNode(e, j))), ToJson(plot.CtrY(plot.ElemNode(e, j)))});
        mesh.push_back(polygon);
    }
    json["boundary"] = boundary;
    json["isolines"] = IsolinesJson(plot);
    json["values"] = values;
    json["mesh"] = mesh;
    if (size > 0) json["pixels"] = PixelsJson(plot, size);
    return json.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

// The section asked for, which belongs to the field alone.
std::optional<FieldLine> SectionAsked(const ContourCommandOptions& contour) {
    const auto fail = [&](TextId text) {
        throw CommandFailure(ExitStatus::BadCommandLine, Text(text, {{"|1", contour.Section}}));
    };
    if (contour.Section.empty()) return std::nullopt;
    if (!contour.Field) fail(910034_text);
    const auto line = contour.Section == "middle" ? FieldLine{{0, 0}, {1, 0}} : ParseFieldLine(contour.Section);
    if (!line) fail(910033_text);
    return line;
}

std::string FieldIn(const std::string& format, const BasContour& plot, const ContourCommandOptions& contour) {
    const FieldPlot field(plot);
    std::optional<FieldLine> section = SectionAsked(contour);
    if (contour.Section == "middle") section = MiddleLine(plot);
    if (section && field.Section(*section).empty())
        throw CommandFailure(ExitStatus::BadCommandLine, Text(910035_text, {{"|1", contour.Section}}));
    if (format == "json") return FieldJson(plot, field, section, contour.Size);
    if (!Documents()) FailFormat(format);
    return Documents()->Field(format, plot, field, section, contour.Size);
}

std::string ContourIn(const std::string& format, BasContour& plot, int size) {
    if (format == "json") return ContourJson(plot, size);
    if (!Documents()) FailFormat(format);
    plot.LabelClasses(BasContour::Labels::Fine);  // on paper, in the unit of the title
    return Documents()->Contour(format, plot, size);
}

}  // namespace

ExitStatus ContourCommand(const CommonOptions& options, const ContourCommandOptions& contour, ConsoleHost& host) {
    const std::string format = FormatInForce(options, kContourFormats);
    SectionAsked(contour);  // what is wrong with it is told before the run
    OpenProjectForRun(options);
    if (!ProblemInForce().HasContours())
        throw CommandFailure(ExitStatus::BadCommandLine,
                             Text(902032_text, {{"|1", std::to_string(Session.ProblemType)}}));
    // The plot reads the files of the run.
    const RunFiles files(options.NoExport ? RunFiles::Where::Aside : RunFiles::Where::BesideProject);
    RunProject();
    if (Session.CalcAborted) throw CommandFailure(ExitStatus::Aborted, AbortedLine(host));
    RequestContours(contour.Result == "pressure" ? CurveSet::ContactPressure : CurveSet::RaftSettlement);
    BasContour plot;
    plot.Prepare();
    WriteOutput(options.Output, contour.Field ? FieldIn(format, plot, contour) : ContourIn(format, plot, contour.Size));
    TellNotices(host);
    return ExitStatus::Done;
}

}  // namespace lithmark
