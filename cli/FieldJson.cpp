#include "cli/FieldJson.h"

#include <cstdio>

#include "cli/Json.h"
#include "contour/FieldSection.h"

namespace lithmark {

namespace {

Json Point(const FieldPoint& at) {
    return {at.X, at.Y};
}

Json Extreme(double value, const std::vector<FieldPoint>& places) {
    Json json = Json::object();
    json["value"] = Single(value).Stored();
    json["at"] = Json::array();
    for (const FieldPoint& place : places) json["at"].push_back(Point(place));
    return json;
}

// N rows from the top, each of N classes; 0 beside the raft.
Json Pixels(const BasContour& plot, const FieldPlot& field, int size) {
    const WorldWindow& w = plot.Window;
    Json rows = Json::array();
    for (int row = 0; row < size; ++row) {
        Json classes = Json::array();
        const double y = w.YMax - (row + 0.5) / size * (w.YMax - w.YMin);
        for (int column = 0; column < size; ++column) {
            const auto value = plot.ValueAt(w.XMin + (column + 0.5) / size * (w.XMax - w.XMin), y);
            classes.push_back(value ? field.ClassOf(*value * plot.CaptionFactor()) : 0);
        }
        rows.push_back(classes);
    }
    return rows;
}

}  // namespace

std::string FieldJson(const BasContour& plot, const FieldPlot& field, const std::optional<FieldLine>& section,
                      int size) {
    Json json = Json::object();
    json["title"] = FieldTitle();
    json["unit"] = FieldUnit();
    json["limits"] = field.Limits();
    json["colours"] = Json::array();
    for (int cls = 1; cls <= field.Classes(); ++cls) {
        char colour[8];
        std::snprintf(colour, sizeof colour, "#%06x", static_cast<unsigned>(field.ColourOf(cls)));
        json["colours"].push_back(colour);
    }
    json["least"] = Extreme(field.Least(), field.LeastAt());
    json["greatest"] = Extreme(field.Greatest(), field.GreatestAt());
    json["lines"] = Json::array();
    for (std::size_t i = 1; i + 1 < field.Limits().size(); ++i)
        for (const FieldLine& line : field.LineAt(field.Limits()[i]))
            json["lines"].push_back({field.Limits()[i], Single(line.From.X).Stored(), Single(line.From.Y).Stored(),
                                     Single(line.To.X).Stored(), Single(line.To.Y).Stored()});
    if (section) {
        json["section"] = Json::array();
        for (const auto& point : field.Section(*section))
            json["section"].push_back({Single(point.Distance).Stored(), Single(point.At.X).Stored(),
                                       Single(point.At.Y).Stored(), Single(point.Value).Stored()});
    }
    if (size > 0) json["pixels"] = Pixels(plot, field, size);
    return json.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace lithmark
