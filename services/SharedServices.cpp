#include "services/SharedServices.h"

#include <cmath>
#include <optional>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "services/storage/DataFile.h"
#include "services/storage/FileNames.h"

namespace lithmark {

namespace {

// A limit from here on is no limit: the greatest Single, near enough.
constexpr double kUnlimited = 1e38;

// What the user typed, with Arabic digits and typeset signs as their plain forms.
std::string PlainDigits(const std::string& typed, char decimalSign) {
    std::string plain;
    for (const char32_t c : CodePoints(typed)) {
        if (c >= 0x0660 && c <= 0x0669)  // Arabic-Indic digits
            plain += static_cast<char>('0' + (c - 0x0660));
        else if (c == 0x066B)  // Arabic decimal sign
            plain += decimalSign;
        else if (c == 0x2212)  // minus sign
            plain += '-';
        else if (c == 0x00A0 || c == 0x200E || c == 0x200F)  // pasted with the number: no-break blank, direction marks
            plain += ' ';
        else
            AppendCodePoint(plain, c);
    }
    return plain;
}

bool IsDigits(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// "1,500" may be one and a half or fifteen hundred. "0,500", "1500,250" and "1,5" may not: nobody parts them so.
bool MayPartThousands(std::string_view number, std::size_t sign) {
    const std::size_t first = number.starts_with('-') || number.starts_with('+') ? 1 : 0;
    const std::string_view ahead = number.substr(first, sign - first), behind = number.substr(sign + 1);
    return IsDigits(ahead) && ahead.size() <= 3 && ahead.front() != '0' && IsDigits(behind) && behind.size() == 3;
}

// The text of a failure that concerns a file, or nothing when the kind does not.
std::optional<TextId> FileText(const Failure& failure) {
    switch (failure.Kind()) {
        case FailureKind::FileMissing:
            return 900000_text;
        case FailureKind::NotAFile:
            return 900001_text;
        case FailureKind::PermissionDenied:
            return 900002_text;
        case FailureKind::DiskFull:
            return 900003_text;
        case FailureKind::ReadError:
            return failure.Line() > 0 ? 900021_text : 900004_text;
        case FailureKind::WriteError:
            return 900005_text;
        case FailureKind::EndOfFile:
            return 900006_text;
        case FailureKind::BadNumber:
            return 900007_text;
        case FailureKind::BadFlag:
            return 900008_text;
        case FailureKind::BadWord:
            return 900022_text;
        case FailureKind::BadCount:
            return 900009_text;
        case FailureKind::DamagedArchive:
            return 900011_text;
        case FailureKind::TooLarge:
            return 909000_text;
        case FailureKind::ArchiveTooLarge:
            return 909001_text;
        case FailureKind::ProjectInUse:
            return 909002_text;
        case FailureKind::BadInput:
            return 909100_text;
        case FailureKind::OutOfMemory:  // for a file, or for a calculation
            if (!failure.File().empty()) return 909003_text;
            return std::nullopt;
        case FailureKind::Overflow:  // a number in a file, or one of a calculation
            if (failure.Line() > 0) return 900010_text;
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

// A detail that the text has no place for stands behind it.
bool AppendsDetail(const Failure& failure) {
    if (failure.Line() > 0 || failure.Detail().empty()) return false;
    return failure.Kind() == FailureKind::ReadError || failure.Kind() == FailureKind::WriteError ||
           failure.Kind() == FailureKind::DamagedArchive;
}

TextId CalculationText(FailureKind kind) {
    switch (kind) {
        case FailureKind::DivisionByZero:
            return 900012_text;
        case FailureKind::Overflow:
            return 900013_text;
        case FailureKind::InvalidArgument:
            return 900014_text;
        case FailureKind::SubscriptRange:
            return 900015_text;
        case FailureKind::SingularMatrix:
            return 900016_text;
        case FailureKind::OutOfMemory:
            return 900017_text;
        case FailureKind::Cancelled:
            return 900018_text;
        case FailureKind::NoSuchForm:
            return 900019_text;
        default:
            return 900020_text;
    }
}

}  // namespace

void SharedServicesService::SetProgramNumber(int /*number*/) {
    // The number told apart the programs of a family that shared their settings; the application title does that now.
}

void SharedServicesService::CloseServices() {
    DropNumberedFile(1);
}

void SharedServicesService::SetFileName(const std::string& name) {
    fileName_ = MappedFileName(name);
}

std::string SharedServicesService::GetFileName() const {
    return fileName_;
}

void SharedServicesService::SetCurrentFile(const std::string& name) {
    currentFile_ = name;
}

bool SharedServicesService::FileMissing(const std::string& name, bool /*quiet*/) const {
    return !PathExists(MappedFileName(name));
}

void SharedServicesService::ShowFileStatus(FileStatus status) {
    CurrentHost().ShowFileStatus(status);
}

void SharedServicesService::ClearFileStatus() {
    CurrentHost().ShowFileStatus(FileStatus::None);
}

std::string SharedServicesService::FailureText(const Failure& failure) const {
    if (const auto id = FileText(failure)) {
        const std::string& file = failure.File().empty() ? currentFile_ : failure.File();
        const std::string text =
            Text(*id, {{"|1", file}, {"|2", std::to_string(failure.Line())}, {"|3", failure.Detail()}});
        return AppendsDetail(failure) ? text + " (" + failure.Detail() + ")" : text;
    }
    const std::string text = Text(CalculationText(failure.Kind()));
    return failure.Detail().empty() ? text : text + " " + failure.Detail();
}

void SharedServicesService::ShowFileError(const Failure& failure) {
    const bool cancelled = failure.Kind() == FailureKind::Cancelled;
    ShowMessageBox(Text(160030_text), FailureText(failure),
                   cancelled ? MessageIcon::Information : MessageIcon::Exclamation);
}

void SharedServicesService::ShowMessageBox(const std::string& title, const std::string& text, MessageIcon icon) {
    CurrentHost().ShowMessage(title, text, icon);
}

void SharedServicesService::SetPointer(PointerShape shape) {
    CurrentHost().SetPointer(shape);
}

void SharedServicesService::ReportProgress(double fraction) {
    constexpr std::chrono::milliseconds kPause(50);
    const auto now = std::chrono::steady_clock::now();
    if (fraction > 0 && fraction < 1 && now - lastProgress_ < kPause) return;
    lastProgress_ = now;
    if (!CurrentHost().Progress(fraction)) Fail(FailureKind::Cancelled);
}

void SharedServicesService::PrepareForm(Form& form) {
    form.RightToLeft = LanguageTexts().RightToLeft();
}

std::string SharedServicesService::AsTyped(double number) const {
    std::string text = NumberToText(number);
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    if (text[first] == '.') text.insert(first, "0");
    return ReplaceAll(text, ".", std::string(1, DecimalSign));
}

std::optional<double> SharedServicesService::NumberOf(const std::string& typed) const {
    const std::string plain = Trim(PlainDigits(typed, DecimalSign));
    if (const auto value = ParseNumber(plain, DecimalSign)) return value;
    const char other = DecimalSign == '.' ? ',' : '.';
    const std::size_t at = plain.find(other);
    if (at == std::string::npos || MayPartThousands(plain, at)) return std::nullopt;
    return ParseNumber(plain, other);
}

double SharedServicesService::GetNumber(const Control& control) const {
    const auto value = NumberOf(control.Text);
    if (!value) Fail(FailureKind::InvalidArgument, control.Name);
    return *value;
}

namespace {

// What is wrong with a typed number that cannot be taken.
std::string WhatIsWrong(const std::string& typed, std::optional<double> value, double upper, double lower, char sign) {
    if (value && *value < lower) return Text(906542_text);
    if (value && *value > upper) return Text(906543_text);
    if (value) return {};  // not whole, and told so
    if (Trim(typed).empty()) return Text(906540_text);
    if (ParseNumber(PlainDigits(typed, sign), sign == '.' ? ',' : '.'))
        return Text(906544_text, {{"|1", std::string(1, sign)}});
    return Text(906541_text, {{"|1", Excerpt(Trim(typed))}});
}

}  // namespace

std::optional<std::string> SharedServicesService::TextFault(const std::string& typed, int kind, double upper,
                                                            double lower, const std::string& label) const {
    const auto value = NumberOf(typed);
    const bool whole = kind == 1;
    if (value && *value >= lower && *value <= upper && (!whole || *value == std::floor(*value))) return std::nullopt;

    const bool hasLower = lower > -kUnlimited, hasUpper = upper < kUnlimited;
    const TextId id = hasLower && hasUpper ? 901000_text
                      : hasLower           ? 901001_text
                      : hasUpper           ? 901002_text
                                           : 901003_text;
    std::string name = Trim(label);
    if (name.ends_with(':')) name.pop_back();
    std::string text =
        Text(id, {{"|1", name}, {"|2", hasLower ? AsTyped(lower) : ""}, {"|3", hasUpper ? AsTyped(upper) : ""}});
    if (whole) text += " " + Text(901004_text);
    const std::string wrong = WhatIsWrong(typed, value, upper, lower, DecimalSign);
    return wrong.empty() ? text : text + " " + wrong;
}

void SharedServicesService::RefuseBox(Form& form, Control& box, const std::string& reason) {
    ShowMessageBox(Text(160030_text), reason, MessageIcon::Exclamation);
    CurrentHost().SetFocus(form, box);
}

bool SharedServicesService::CheckNumber(Form& form, Control& control, int kind, double upper, double lower,
                                        const std::string& label) {
    const auto fault = NumberFault(control, kind, upper, lower, label);
    if (fault) RefuseBox(form, control, *fault);
    return !fault;
}

void SharedServicesService::ShowHelpText(const std::string& title) {
    CurrentHost().ShowHelpText(title, helpText_);
}

void SharedServicesService::ShowHelpTopic(const std::string& topic) {
    CurrentHost().ShowHelpTopic(topic);
}

bool SharedServicesService::ConfirmQuit() {
    return CurrentHost().AskYesNo(Text(160030_text), Text(901005_text));
}

SharedServicesService& SharedServices() {
    static SharedServicesService instance;
    return instance;
}

}  // namespace lithmark
