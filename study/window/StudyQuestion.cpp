#include "study/window/StudyQuestion.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"
#include "study/StudyField.h"
#include "study/window/ShortNumber.h"

namespace lithmark {

namespace {

constexpr int kWhole = 1, kReal = 2;
constexpr int kMostValues = 10000;

std::string BoxOf(const char* name, int line) {
    return std::string(name) + "(" + std::to_string(line + 1) + ")";
}

double NumberOf(const std::string& typed) {
    return SharedServices().NumberOf(typed).value_or(0);
}

// A typed value as the command line takes it.
std::string BaseText(const FieldChoice& field, double shown) {
    const StudyField of{field.Name, field.Whole ? FieldKind::Whole : FieldKind::Number};
    return ValueText(of, shown / field.Factor);
}
std::string BaseText(const FieldChoice& field, const std::string& typed) {
    return BaseText(field, NumberOf(typed));
}

std::vector<std::string> ItemsOf(const std::string& list) {
    std::vector<std::string> items;
    for (const std::string& part : Split(ReplaceAll(list, " ", ";"), ';'))
        if (!Trim(part).empty()) items.push_back(Trim(part));
    return items;
}

// "10 %" is ten, and a percentage.
std::pair<std::string, bool> WithoutPerCent(const std::string& typed) {
    std::string text = Trim(typed);
    const bool perCent = text.ends_with('%');
    if (perCent) text.pop_back();
    return {Trim(text), perCent};
}

std::string NameOf(DistributionKind kind) {
    switch (kind) {
        case DistributionKind::Normal:
            return "normal";
        case DistributionKind::LogNormal:
            return "lognormal";
        case DistributionKind::Uniform:
            return "uniform";
        default:
            return "triangular";
    }
}

bool ByMean(DistributionKind kind) {
    return kind == DistributionKind::Normal || kind == DistributionKind::LogNormal;
}

}  // namespace

int TextsOf(DistributionKind kind) {
    return kind == DistributionKind::Triangular ? 3 : 2;
}

StudyQuestion::StudyQuestion(std::vector<FieldChoice> fields, std::vector<ResultChoice> results, int first)
    : Taken(results.size(), false), fields_(std::move(fields)), results_(std::move(results)) {
    if (!Taken.empty()) Taken[0] = true;
    ChooseVaried(0, fields_.empty() ? kNoField : first);
    ChooseVaried(1, kNoField);
    for (int line = 0; line < kRandomLines; ++line) ChooseRandom(line, kNoField);
}

StudyQuestion StudyQuestion::InPlainSymbols() const {
    StudyQuestion plain = *this;
    for (FieldChoice& field : plain.fields_) field.InPrint.clear();
    for (ResultChoice& result : plain.results_) result.InPrint.clear();
    return plain;
}

const FieldChoice* StudyQuestion::Choice(int field) const {
    return field < 0 || field >= static_cast<int>(fields_.size()) ? nullptr : &fields_[static_cast<std::size_t>(field)];
}

void StudyQuestion::ChooseVaried(int line, int field) {
    VaryLine& vary = Vary[static_cast<std::size_t>(line)];
    const StepKind steps = vary.Steps;
    vary = {};
    vary.Steps = steps;
    vary.Field = field;
    const FieldChoice* choice = Choice(field);
    if (choice == nullptr) return;
    const FieldRange range = ProposedRange(*choice);
    vary.From = ShortNumber(range.From);
    vary.To = ShortNumber(range.To);
    const int values = line == 0 ? kValues : contour_ ? kContour : kFamily;
    const int whole = static_cast<int>(std::min<double>(values, range.To - range.From + 1));
    vary.Count = std::to_string(choice->Whole ? std::max(2, whole) : values);
    vary.List = vary.From + "; " + vary.To;
}

void StudyQuestion::ChooseRandom(int line, int field) {
    RandomLine& random = Random[static_cast<std::size_t>(line)];
    random.Field = field;
    if (const FieldChoice* choice = Choice(field))
        random.Kind = choice->Value > 0 ? DistributionKind::LogNormal : DistributionKind::Normal;
    ProposeTexts(line);
}

void StudyQuestion::ProposeTexts(int randomLine) {
    RandomLine& random = Random[static_cast<std::size_t>(randomLine)];
    random.Texts = {};
    const FieldChoice* choice = Choice(random.Field);
    if (choice == nullptr) return;
    const FieldRange range = ProposedRange(*choice);
    const std::string mean = ShortNumber(choice->Value), from = ShortNumber(range.From), to = ShortNumber(range.To);
    if (ByMean(random.Kind))
        random.Texts = {mean, choice->Value == 0 ? "1" : "10 %", ""};
    else if (random.Kind == DistributionKind::Uniform)
        random.Texts = {from, to, ""};
    else
        random.Texts = {from, choice->Value == 0 ? from : mean, to};
}

void StudyQuestion::DrawContour(bool on) {
    std::string& count = Vary[1].Count;
    const std::string former = std::to_string(contour_ ? kContour : kFamily);
    contour_ = on;
    if (count == former) count = std::to_string(on ? kContour : kFamily);
}

int StudyQuestion::MostValues(int line) const {
    if (line == 0) return kMostValues;
    return contour_ ? kMostContour : kMostFamily;
}

bool StudyQuestion::IsRandom() const {
    return std::ranges::any_of(Random, [&](const RandomLine& line) { return Choice(line.Field) != nullptr; });
}

std::optional<double> StudyQuestion::LimitNumber() const {
    const auto shown = SharedServices().NumberOf(Limit);
    if (!shown || results_.empty()) return std::nullopt;
    return *shown / Drawn().Factor;
}

void StudyQuestion::AddVaryFaults(std::vector<AskFault>& faults, int line) const {
    const VaryLine& vary = Vary[static_cast<std::size_t>(line)];
    const FieldChoice* field = Choice(vary.Field);
    if (field == nullptr) return;
    const auto check = [&](const char* box, const std::string& typed, int kind, double upper, double lower,
                           const std::string& label) {
        if (auto reason = SharedServices().TextFault(typed, kind, upper, lower, label))
            faults.push_back({BoxOf(box, line), *reason});
    };
    const int kind = field->Whole ? kWhole : kReal;
    if (vary.Steps == StepKind::List) {
        const std::vector<std::string> items = ItemsOf(vary.List);
        if (items.empty()) faults.push_back({BoxOf("txtList", line), Text(913300_text, {{"|1", field->Label}})});
        for (const std::string& item : items) check("txtList", item, kind, field->Greatest, field->Least, field->Label);
        return;
    }
    const std::size_t before = faults.size();
    check("txtFrom", vary.From, kind, field->Greatest, field->Least, field->Label);
    check("txtTo", vary.To, kind, field->Greatest, field->Least, field->Label);
    check("txtCount", vary.Count, kWhole, MostValues(line), 2, Text(913301_text));
    if (faults.size() > before) return;
    const double from = NumberOf(vary.From), to = NumberOf(vary.To);
    if (from == to) faults.push_back({BoxOf("txtTo", line), Text(913302_text, {{"|1", field->Label}})});
    if (vary.Steps == StepKind::Factors && from * to <= 0)
        faults.push_back({BoxOf("txtFrom", line), Text(913303_text, {{"|1", field->Label}})});
}

void StudyQuestion::AddRandomFaults(std::vector<AskFault>& faults, int line) const {
    const RandomLine& random = Random[static_cast<std::size_t>(line)];
    const FieldChoice* field = Choice(random.Field);
    if (field == nullptr) return;
    for (int other = 0; other < kRandomLines; ++other)
        if (other < line && Random[static_cast<std::size_t>(other)].Field == random.Field)
            faults.push_back({BoxOf("cboRandom", line), Text(913304_text, {{"|1", field->Label}})});
    for (const VaryLine& vary : Vary)
        if (vary.Field == random.Field)
            faults.push_back({BoxOf("cboRandom", line), Text(913304_text, {{"|1", field->Label}})});
    const std::size_t before = faults.size();
    std::array<double, 3> numbers{};
    for (int i = 0; i < TextsOf(random.Kind); ++i) {
        const auto at = static_cast<std::size_t>(i);
        const std::string box = "txtRandom" + std::to_string(i + 1);
        const bool deviation = ByMean(random.Kind) && i == 1;
        const std::string typed = deviation ? WithoutPerCent(random.Texts[at]).first : random.Texts[at];
        const bool above = deviation || (random.Kind == DistributionKind::LogNormal && i == 0);
        const double least = above ? 0 : -kNoLimit;
        if (auto reason = SharedServices().TextFault(typed, kReal, kNoLimit, least, field->Label))
            faults.push_back({BoxOf(box.c_str(), line), *reason});
        numbers[at] = NumberOf(typed);
    }
    if (faults.size() > before || ByMean(random.Kind)) return;
    const double last = numbers[random.Kind == DistributionKind::Triangular ? 2 : 1];
    const bool inOrder = numbers[0] < last &&
                         (random.Kind == DistributionKind::Uniform || (numbers[0] <= numbers[1] && numbers[1] <= last));
    if (!inOrder) faults.push_back({BoxOf("txtRandom2", line), Text(913305_text, {{"|1", field->Label}})});
}

void StudyQuestion::AddLimitFault(std::vector<AskFault>& faults) const {
    if (Trim(Limit).empty()) return;
    if (auto reason = SharedServices().TextFault(Limit, kReal, kNoLimit, -kNoLimit, Drawn().Label))
        faults.push_back({"txtLimit", *reason});
}

std::vector<AskFault> StudyQuestion::Faults() const {
    std::vector<AskFault> faults;
    for (int line = 0; line < kVaryLines; ++line) AddVaryFaults(faults, line);
    if (Vary[0].Field != kNoField && Vary[0].Field == Vary[1].Field)
        faults.push_back({BoxOf("cboField", 1), Text(913304_text, {{"|1", Varied(1)->Label}})});
    for (int line = 0; line < kRandomLines; ++line) AddRandomFaults(faults, line);
    if (IsRandom())
        if (auto reason = SharedServices().TextFault(Samples, kWhole, kMostSamples, kLeastSamples, Text(913306_text)))
            faults.push_back({"txtSamples", *reason});
    AddLimitFault(faults);
    if (Varied(0) == nullptr && Varied(1) == nullptr && !IsRandom())
        faults.push_back({BoxOf("cboField", 0), Text(913307_text)});
    return faults;
}

std::vector<AskFault> StudyQuestion::FindFaults() const {
    std::vector<AskFault> faults = Faults();
    if (Varied(0) == nullptr) faults.push_back({BoxOf("cboField", 0), Text(913308_text)});
    if (!LimitNumber()) faults.push_back({"txtLimit", Text(913309_text)});
    if (IsRandom())
        if (auto reason = SharedServices().TextFault(Share, kReal, 100, 0, Text(913310_text)))
            faults.push_back({"txtShare", *reason});
    return faults;
}

std::vector<AskFault> StudyQuestion::TornadoFaults() const {
    if (!TornadoOfAll) return Faults();
    std::vector<AskFault> faults;
    if (auto reason = SharedServices().TextFault(TornadoSwing, kReal, kMostSwing, 0, Text(913311_text)))
        faults.push_back({"txtSwing", *reason});
    return faults;
}

std::string StudyQuestion::VaryText(int line) const {
    const VaryLine& vary = Vary[static_cast<std::size_t>(line)];
    const FieldChoice& field = *Choice(vary.Field);
    std::string list;
    const auto add = [&](const std::string& value) { list += (list.empty() ? "" : ",") + value; };
    if (vary.Steps == StepKind::List) {
        for (const std::string& item : ItemsOf(vary.List)) add(BaseText(field, item));
        return field.Name + "=" + list;
    }
    if (!field.Whole)
        return field.Name + "=" + BaseText(field, vary.From) + ":" + BaseText(field, vary.To) + ":" +
               (vary.Steps == StepKind::Factors ? "^" : "*") + std::to_string(std::lround(NumberOf(vary.Count)));
    // Counts are whole numbers, each of them once.
    const double from = NumberOf(vary.From), to = NumberOf(vary.To), steps = std::max(1.0, NumberOf(vary.Count) - 1);
    std::string former;
    for (int i = 0; i <= steps; ++i) {
        const double value =
            vary.Steps == StepKind::Factors ? from * std::pow(to / from, i / steps) : from + (to - from) * i / steps;
        const std::string text = BaseText(field, std::round(value));
        if (text != former) add(text);
        former = text;
    }
    return field.Name + "=" + list;
}

std::string StudyQuestion::RandomText(int line) const {
    const RandomLine& random = Random[static_cast<std::size_t>(line)];
    const FieldChoice& field = *Choice(random.Field);
    std::string text = field.Name + "=" + NameOf(random.Kind);
    for (int i = 0; i < TextsOf(random.Kind); ++i) {
        const auto [typed, perCent] = WithoutPerCent(random.Texts[static_cast<std::size_t>(i)]);
        text += ":" + (perCent ? JsonNumber(NumberOf(typed)) + "%" : BaseText(field, typed));
    }
    return text;
}

std::string StudyQuestion::LimitText() const {
    return Drawn().Take + "=" + JsonNumber(Single(LimitNumber().value_or(0)));
}

void StudyQuestion::Take(StudyRequest& request, bool all) const {
    for (std::size_t i = 0; i < results_.size(); ++i)
        if (static_cast<int>(i) == Result || (all && Taken[i])) request.Take.push_back(results_[i].Take);
    if (all && LimitNumber()) request.Limit.push_back(LimitText());
}

StudyRequest StudyQuestion::Rows() const {
    StudyRequest request;
    for (int line = 0; line < kVaryLines; ++line)
        if (Varied(line) != nullptr) request.Vary.push_back(VaryText(line));
    for (int line = 0; line < kRandomLines; ++line)
        if (Choice(Random[static_cast<std::size_t>(line)].Field) != nullptr) request.Random.push_back(RandomText(line));
    if (IsRandom()) request.Samples = static_cast<std::uint64_t>(std::lround(NumberOf(Samples)));
    Take(request, true);
    return request;
}

StudyRequest StudyQuestion::Present() const {
    StudyRequest request;
    const FieldChoice* field = FirstVaried();
    if (field == nullptr) field = &fields_.front();
    request.Vary.push_back(field->Name + "=" + BaseText(*field, field->Value));
    Take(request, true);
    request.Limit.clear();
    return request;
}

std::string StudyQuestion::FindRange() const {
    const VaryLine& vary = Vary[0];
    const FieldChoice& field = *Varied(0);
    double from = NumberOf(vary.From), to = NumberOf(vary.To);
    if (vary.Steps == StepKind::List) {
        const std::vector<std::string> items = ItemsOf(vary.List);
        from = std::numeric_limits<double>::max();
        to = -from;
        for (const std::string& item : items) {
            from = std::min(from, NumberOf(item));
            to = std::max(to, NumberOf(item));
        }
    }
    return field.Name + "=" + BaseText(field, std::min(from, to)) + ":" + BaseText(field, std::max(from, to));
}

std::string StudyQuestion::ShareText() const {
    return JsonNumber(NumberOf(Share)) + "%";
}

StudyRequest StudyQuestion::Find() const {
    StudyRequest request = Rows();
    request.Vary.erase(request.Vary.begin());
    request.Take.clear();
    return request;
}

StudyRequest StudyQuestion::Tornado() const {
    StudyRequest request;
    if (!TornadoOfAll) {
        request = Rows();
        request.Take.clear();
        request.Limit.clear();
        Take(request, false);
        return request;
    }
    Take(request, false);
    const double swing = NumberOf(TornadoSwing) / 100;
    for (const FieldChoice& field : fields_) {
        if (field.Whole || field.Value == 0) continue;
        const double a = field.Value * (1 - swing), b = field.Value * (1 + swing);
        const double low = std::clamp(std::min(a, b), field.Least, field.Greatest);
        const double high = std::clamp(std::max(a, b), field.Least, field.Greatest);
        if (low < high) request.Vary.push_back(field.Name + "=" + BaseText(field, low) + "," + BaseText(field, high));
    }
    return request;
}

}  // namespace lithmark
