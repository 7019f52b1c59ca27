#include "report/ToolLib.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "base/Utf8.h"
#include "core/Units.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kMostParameterGap = 8;
constexpr int kMostColumnGap = 6;

// The parameter block between ClearParameters or AddParameter and ReportParameters: five lists with a common index.
Array<Label> ParamLabels{0, -1};
Array<std::string> ParamSymbols{0, -1};
Array<std::string> ParamUnits{0, -1};
Array<ReportValue> ParamValues{0, -1};
Array<std::string> ParamFormats{0, -1};

void GrowParameters(int upper) {
    ParamLabels.Grow(upper);
    ParamSymbols.Grow(upper);
    ParamUnits.Grow(upper);
    ParamValues.Grow(upper);
    ParamFormats.Grow(upper);
}

int Length(const std::string& text) {
    return static_cast<int>(CharacterCount(text));
}

// That many blanks; none for a negative count, as where a cell is wider than its column.
std::string Blanks(int count) {
    return std::string(static_cast<std::size_t>(std::max(count, 0)), ' ');
}

std::string PadBehind(const std::string& text, int width) {
    return text + Blanks(width - Length(text));
}

std::string PadInFront(const std::string& text, int width) {
    return Blanks(width - Length(text)) + text;
}

void AppendLine(const std::string& line) {
    Session.ResultText += PrintableText(line);
    Session.ResultText += kLineEnd;
}

// The number that a string of digits holds. A ready text of digits alone counts as a number in the parameter block and
// in ReportLines.
std::optional<int> DigitsOf(const std::string& text) {
    int number = 0;
    if (text.empty() || text.find_first_not_of("0123456789") != std::string::npos) return std::nullopt;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} ? std::optional<int>(number) : std::nullopt;
}

// The text number of a numeric label, 0 for an empty one; nothing for a label that is a ready text.
std::optional<int> TextNumber(const Label& label) {
    if (const auto* id = std::get_if<TextId>(&label)) return id->Number;
    if (const auto* text = std::get_if<std::string>(&label)) return DigitsOf(*text);
    return 0;
}

std::string ResolvedLabel(const Label& label) {
    const std::optional<int> number = TextNumber(label);
    if (!number) return std::get<std::string>(label);
    return *number == 0 ? std::string() : Text(TextId{*number});
}

bool IsMissing(const ReportValue& value) {
    return std::holds_alternative<std::monostate>(value);
}

std::string ResolvedValue(const ReportValue& value, const std::string& format) {
    if (const auto* number = std::get_if<double>(&value)) return FormatValue(*number, format);
    const std::string& text = std::get<std::string>(value);
    const std::optional<int> number = DigitsOf(text);
    return number ? FormatValue(*number, format) : text;
}

// A column's title as text. A text number is replaced in Session.ColumnTitles by the text in the style of column
// titles.
const std::string& ResolvedTitle(int column) {
    Label& title = Session.ColumnTitles(column);
    if (const auto* id = std::get_if<TextId>(&title)) title = Text(*id, Styles::ColumnTitle);
    if (std::holds_alternative<std::monostate>(title)) title = std::string();
    return std::get<std::string>(title);
}

bool HasUnit(const ColumnUnit& unit) {
    if (const auto* selector = std::get_if<long>(&unit)) return *selector != 0;
    const auto* text = std::get_if<std::string>(&unit);
    return text != nullptr && !text->empty();
}

std::string ResolvedUnit(const ColumnUnit& unit) {
    if (const auto* selector = std::get_if<long>(&unit)) return UnitLabel(*selector);
    const auto* text = std::get_if<std::string>(&unit);
    return text != nullptr ? *text : std::string();
}

}  // namespace

std::string Ruler() {
    return std::string(kReportWidth, '-');
}

std::string Centred(const std::string& text) {
    return Blanks(static_cast<int>(RoundHalfEven((kReportWidth - Length(text)) / 2.0))) + text;
}

void ReportHeading() {
    const std::string stars(kReportWidth, '*');
    Session.ResultText = stars + kLineEnd;
    AppendLine(Centred(Text(160030_text)));
    AppendLine(Centred(Text(91_text, {{"|1", LanguageTexts().VersionText()}})));
    AppendLine(Centred(Text(90_text) + LanguageTexts().AuthorsText()));
    AppendLine(stars);
    AppendLine(Text(11_text, Styles::Heading) + Session.Auftr);
    AppendLine(Text(12_text, Styles::Heading) + Session.Datum);
    AppendLine(Text(95_text, Styles::Heading) + Session.Proj);
    AppendLine(Text(107_text, Styles::Heading) + Session.ProjectName);
    AppendLine("");
    AppendLine(Ruler());
    ClearParameters();
}

void ClearParameters() {
    GrowParameters(-1);
    GrowParameters(0);
}

void AddParameter(const Label& label, const std::string& symbol, const std::string& unit, const ReportValue& value,
                  const std::string& format) {
    const int slot = ParamLabels.Upper() + 1;
    GrowParameters(slot);
    ParamLabels(slot) = std::holds_alternative<std::monostate>(label) ? Label(std::string()) : label;
    ParamSymbols(slot) = symbol;
    const auto* text = std::get_if<std::string>(&value);
    const bool hasValue = !IsMissing(value) && (text == nullptr || !text->empty());
    ParamUnits(slot) = unit.empty() && hasValue ? "[-]" : unit;
    ParamValues(slot) = value;
    ParamFormats(slot) = format;
}

void ReportParameters() {
    const int last = ParamLabels.Upper();
    Array<std::string> labels(0, last), values(0, last);
    int labelWidth = 0, symbolWidth = 0, unitWidth = 0, valueWidth = 0;
    for (int i = 0; i <= last; ++i) {
        labels(i) = ResolvedLabel(ParamLabels(i));
        // Lines of text are measured too, so that one long heading moves the "=" signs of its whole block.
        labelWidth = std::max(labelWidth, Length(labels(i)));
        if (IsMissing(ParamValues(i))) continue;
        values(i) = ResolvedValue(ParamValues(i), ParamFormats(i));
        ParamSymbols(i) += Session.SymbolSuffix;
        symbolWidth = std::max(symbolWidth, Length(ParamSymbols(i)));
        unitWidth = std::max(unitWidth, Length(ParamUnits(i)));
        valueWidth = std::max(valueWidth, Length(values(i)));
    }

    const int gap = std::clamp(kReportWidth - symbolWidth - unitWidth - valueWidth - labelWidth, 1, kMostParameterGap);
    for (int i = 0; i <= last; ++i) {
        if (IsMissing(ParamValues(i))) {
            AppendLine(labels(i));
            continue;
        }
        const std::string front = PadBehind(labels(i), gap + labelWidth) + PadBehind(ParamSymbols(i), symbolWidth);
        AppendLine(values(i).empty() ? front : front + " " + PadBehind(ParamUnits(i), unitWidth) + " = " + values(i));
    }
    GrowParameters(-1);
}

void ReportLines(std::initializer_list<Label> lines) {
    for (const Label& line : lines) {
        const std::optional<int> number = TextNumber(line);
        if (!number)
            AppendLine(std::get<std::string>(line));
        else if (*number != 0)
            AppendLine(Text(TextId{*number}));
    }
}

int LigatureCount(const std::string& text) {
    static constexpr char32_t kLam = 0x0644;
    static constexpr char32_t kAlefs[] = {0x0627, 0x0625, 0x0623, 0x0622};
    const std::vector<char32_t> letters = CodePoints(text);
    int count = 0;
    for (std::size_t i = 1; i < letters.size(); ++i)
        if (letters[i - 1] == kLam && std::ranges::find(kAlefs, letters[i]) != std::end(kAlefs)) ++count;
    return count;
}

void BuildTableHeader(Matrix<std::string>& header) {
    const int lastColumn = Session.TableLastColumn;
    int lastRow = 0;
    bool hasUnits = false, hasSymbols = false;
    for (int c = 0; c <= lastColumn; ++c) {
        const std::string& title = ResolvedTitle(c);
        lastRow = std::max(lastRow, static_cast<int>(std::ranges::count(title, '\n')));
        hasUnits = hasUnits || HasUnit(Session.ColumnUnits(c));
        hasSymbols = hasSymbols || !Session.ColumnSymbols(c).empty();
    }
    lastRow += (hasUnits ? 1 : 0) + (hasSymbols ? 1 : 0);
    Session.HeaderRows = lastRow;

    header.Redim(0, lastRow, 0, lastColumn);
    for (int c = 0; c <= lastColumn; ++c) {
        int row = 0;
        for (const std::string& piece : Split(std::get<std::string>(Session.ColumnTitles(c)), '\n'))
            header(row++, c) = Trim(piece);
        if (hasSymbols) header(hasUnits ? lastRow - 1 : lastRow, c) = Session.ColumnSymbols(c);
        if (hasUnits) header(lastRow, c) = ResolvedUnit(Session.ColumnUnits(c));
    }
}

void PrintTableHeader(std::string& ruler, Array<Integer>& widths) {
    Matrix<std::string> header;
    BuildTableHeader(header);
    const int lastColumn = Session.TableLastColumn, lastRow = Session.HeaderRows;

    // The cells take no part: a title is at least as wide as the longest cell under it.
    widths.Redim(0, lastColumn);
    int sum = 0;
    for (int c = 0; c <= lastColumn; ++c) {
        for (int row = 0; row <= lastRow; ++row) widths(c) = std::max<int>(widths(c), Length(header(row, c)));
        sum += widths(c);
    }
    const int share = static_cast<int>(RoundHalfEven(Quotient(kReportWidth - sum, lastColumn)));
    const int gap = std::clamp(share, 1, kMostColumnGap);
    ruler.clear();
    for (int c = 0; c <= lastColumn; ++c) {
        if (c > 0) widths(c) += gap;
        ruler.append(static_cast<std::size_t>(widths(c)), '-');
    }

    ReportLines({ruler});
    for (int row = 0; row <= lastRow; ++row) {
        std::string line;
        for (int c = 0; c <= lastColumn; ++c)
            line += PadInFront(header(row, c), widths(c) + LigatureCount(header(row, c)));
        AppendLine(line);
    }
    ReportLines({ruler});
}

void ReportTable() {
    AppendLine(Session.TableTitle + ":");
    std::string ruler;
    Array<Integer> widths;
    PrintTableHeader(ruler, widths);

    const std::string exponentLetter = Text(160020_text);
    Session.HeaderRows = Session.TableCells.UpperRow();
    for (int row = 1; row <= Session.HeaderRows; ++row) {
        std::string line = PadInFront(Session.TableCells(row, 0), widths(0));
        for (int c = 1; c <= Session.TableLastColumn; ++c)
            line += PadInFront(ReplaceAll(Session.TableCells(row, c), "E", exponentLetter), widths(c));
        AppendLine(line);
    }
    ReportLines({ruler});
}

void TableColumns(int lastColumn, int lastRow, const std::string& title) {
    Session.TableLastColumn = lastColumn;
    Session.TableLastRow = lastRow;
    Session.TableTitle = title;
    Session.ColumnTitles.Redim(0, lastColumn);
    Session.ColumnSymbols.Redim(0, lastColumn);
    Session.ColumnUnits.Redim(0, lastColumn);
    Session.TableCells.Redim(0, lastRow, 0, lastColumn);
}

void TableColumn(int column, const Label& title, const std::string& symbol, const ColumnUnit& unit) {
    Session.ColumnTitles(column) = title;
    Session.ColumnSymbols(column) = symbol;
    Session.ColumnUnits(column) = unit;
}

void ReportSectionTitle(const std::string& tableNumber) {
    AppendLine(Text(40079_text) + " " + tableNumber);
    AppendLine("----------");
}

void AddSection(TextId heading) {
    AddParameter();
    AddParameter(Text(heading, Styles::Heading));
}

}  // namespace lithmark
