#include "study/window/StudyAnswerTexts.h"

#include <algorithm>

#include "base/NumberText.h"
#include "services/texts/LanguageTexts.h"
#include "study/window/NoticeWords.h"
#include "study/window/ShortNumber.h"

namespace lithmark {

namespace {

std::string HeadOf(const std::string& symbol, const std::string& unit) {
    return unit.empty() ? symbol : symbol + " [" + unit + "]";
}

const FieldChoice* FieldOf(const StudyQuestion& asked, const std::string& name) {
    const auto found = std::ranges::find(asked.Fields(), name, &FieldChoice::Name);
    return found == asked.Fields().end() ? nullptr : &*found;
}

const ResultChoice* ResultOf(const StudyQuestion& asked, const std::string& take) {
    const auto found = std::ranges::find(asked.Results(), take, &ResultChoice::Take);
    return found == asked.Results().end() ? nullptr : &*found;
}

// A field's value in base units as the windows show it; a text that is no number as it stands.
std::string ShownValue(const FieldChoice& field, const std::string& value, int digits = 6) {
    const auto number = ParseNumber(value);
    return number ? ShortNumber(*number * field.Factor, digits) : value;
}

std::string ValueWithUnit(const FieldChoice& field, const std::string& value) {
    return WithUnit(ShownValue(field, value, 5), field.Unit);
}

}  // namespace

ShownRows RowsOf(const StudyQuestion& asked, const StudyTable& table, std::size_t most) {
    ShownRows shown;
    const StudyHead& head = table.Head();
    shown.Heads.push_back(Text(913329_text));
    std::vector<const FieldChoice*> fields;
    for (const StudyField& field : head.Fields) {
        fields.push_back(FieldOf(asked, field.Name));
        shown.Heads.push_back(fields.back() == nullptr ? field.Name
                                                       : HeadOf(fields.back()->Short(), fields.back()->Unit));
    }
    std::vector<const ResultChoice*> results;
    for (const Take& take : head.Takes) {
        results.push_back(ResultOf(asked, take.Name));
        shown.Heads.push_back(results.back() == nullptr ? take.Name
                                                        : HeadOf(results.back()->Short(), results.back()->Unit));
    }
    shown.Heads.push_back(Text(913330_text));
    shown.Heads.push_back(Text(913331_text));
    for (const StudyLine& line : table.Lines()) {
        if (shown.Rows.size() == most) break;
        ShownRows::Row row;
        row.Is = line.Aborted()          ? ShownRows::Kind::Aborted
                 : !line.Notices.empty() ? ShownRows::Kind::Noticed
                                         : ShownRows::Kind::Good;
        row.Cells.push_back(std::to_string(line.Row));
        for (std::size_t i = 0; i < fields.size(); ++i)
            row.Cells.push_back(fields[i] == nullptr ? line.Values[i] : ShownValue(*fields[i], line.Values[i]));
        for (std::size_t i = 0; i < results.size(); ++i) {
            const float number = line.Numbers[i];
            row.Cells.push_back(IsMissing(number) || results[i] == nullptr
                                    ? std::string()
                                    : results[i]->Shown(static_cast<double>(number)));
        }
        row.Cells.push_back(line.Status);
        row.Cells.push_back(NoticeWords(line.Notices));
        row.Notices = line.Notices;
        shown.Rows.push_back(std::move(row));
    }
    for (const std::size_t row : CrossedRows(asked, table))
        if (row < shown.Rows.size()) shown.Rows[row].Crossed = true;
    return shown;
}

std::string FoundText(const StudyQuestion& asked, const StudyAnswer& answer) {
    const FieldChoice* field = asked.Varied(0);
    const auto limit = asked.LimitNumber();
    if (field == nullptr || !limit) return {};
    const FieldChoice* second = asked.Varied(1);
    const ResultChoice& drawn = asked.Drawn();
    std::string places, status;
    for (std::size_t row = 0; row < answer.Rows.size(); ++row) {
        const std::string value = answer.Cell(row, field->Name);
        if (status.empty() && answer.Cell(row, "Status") != "ok") status = answer.Cell(row, "Status");
        if (!ParseNumber(value)) continue;
        std::string place = field->Short() + " = " + ValueWithUnit(*field, value);
        const std::string low = answer.Cell(row, field->Name + "_low"), high = answer.Cell(row, field->Name + "_high");
        if (ParseNumber(low) && ParseNumber(high))
            place += " (95 %: " + ShownValue(*field, low, 5) + " ... " + ShownValue(*field, high, 5) + ")";
        if (second != nullptr)
            place += " (" + second->Short() + " = " + ValueWithUnit(*second, answer.Cell(row, second->Name)) + ")";
        places += (places.empty() ? "" : Text(913314_text) + " ") + Together(place);
    }
    const std::string shown = WithUnit(drawn.Shown(*limit), drawn.Unit);
    std::string what = Together(drawn.Short() + " = " + shown);
    if (asked.IsRandom())
        what = Text(913332_text, {{"|1", Together(drawn.Short() + " > " + shown)}, {"|2", asked.Share}});
    const std::string text =
        places.empty() ? Text(913316_text, {{"|1", what}}) : Text(913315_text, {{"|1", what}, {"|2", places}});
    return status.empty() ? text : text + " " + status;
}

std::vector<TornadoBar> TornadoBarsOf(const StudyQuestion& asked, const StudyAnswer& answer) {
    std::vector<TornadoBar> bars;
    for (std::size_t row = 0; row < answer.Rows.size(); ++row) {
        const auto low = ParseNumber(answer.Cell(row, "at_low")), high = ParseNumber(answer.Cell(row, "at_high"));
        const FieldChoice* field = FieldOf(asked, answer.Cell(row, "Field"));
        if (!low || !high || field == nullptr) continue;
        const double factor = asked.Drawn().Factor;
        const auto end = [&](const char* column) {
            const auto number = ParseNumber(answer.Cell(row, column));
            return number ? PictureNumber(*number * field->Factor, 4) : answer.Cell(row, column);
        };
        bars.push_back({field->Short() + "  " + end("low") + " ... " + WithUnit(end("high"), field->Unit),
                        *low * factor, *high * factor});
    }
    return bars;
}

}  // namespace lithmark
