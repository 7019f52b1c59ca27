#include "ui/frmNumberFormats.h"

#include <algorithm>

#include "core/Session.h"
#include "core/Units.h"
#include "files/CommonStep.h"
#include "files/SettingsFiles.h"
#include "services/SharedServices.h"
#include "ui/model/FormatCheck.h"
#include "ui/model/HelpText.h"

namespace lithmark {

namespace {

using R = SessionRecord;

// A format that is in use: the field, what it is for, and a usual value in base units.
struct UsedFormat {
    std::string R::*Field;
    TextId For;
    Unit In;
    double Value;
};
constexpr UsedFormat kUsed[frmNumberFormats::kFormats] = {
    {&R::FmtForce, 913461_text, Unit::Force, 1250},
    {&R::FmtSettlement, 913462_text, Unit::Settlement, 3.456},
    {&R::FmtStress, 913463_text, Unit::Pressure, 187.46},
    {&R::FmtModulus, 913464_text, Unit::Pressure, 24000},
    {&R::FmtDialogModulus, 913465_text, Unit::Pressure, 24000},
    {&R::FmtLength, 913466_text, Unit::Length, 5},
    {&R::FmtStrain, 913467_text, Unit::None, 0.00123},
    {&R::FmtPermeability, 913468_text, Unit::LengthPerTime, 0.00004},
    {&R::FmtCv, 913469_text, Unit::AreaPerTime, 0.0000015},
    {&R::FmtRatio, 913470_text, Unit::None, 0.3},
    {&R::FmtTime, 913471_text, Unit::None, 18},
    {&R::FmtPercent, 913472_text, Unit::PerCent, 74.5},
    {&R::FmtUnitWeight, 913473_text, Unit::UnitWeight, 18.5},
};

std::string DefaultOf(std::string R::*field) {
    return std::ranges::find(NumberFormats(), field, &NumberFormatRow::Field)->Default;
}

std::string Preview(const UsedFormat& format, const std::string& pattern) {
    if (FormatFault(pattern)) return Text(913474_text);
    std::string number = FormatValue(format.Value * FactorOf(format.In), pattern);
    if (format.In == Unit::None) return number;
    std::string unit = LabelOf(format.In);
    return number + " " + unit.substr(1, unit.size() - 2);
}

}  // namespace

frmNumberFormats::frmNumberFormats() : FieldForm("frmNumberFormats") {
    std::vector<FieldRow> rows;
    for (int i = 0; i < kFormats; ++i) {
        const EnterStep next = i + 1 < kFormats ? GoTo(txtFormat[i + 1]) : Press(cmdSave);
        rows.emplace_back(LabelPart(lblFormat[i], kUsed[i].For), LabelPart(), txtFormat[i], UnitPart(), StoredField(),
                          Range(), std::vector{next}, CheckedWhen::Always, Words(), &lblPreview[i]);
        txtFormat[i].OnChange = [this] { ShowPreviews(); };
    }
    SetFields(std::move(rows));
    SetCaptionRows({{fraFormats, 913475_text, Styles::Heading},
                    {cmdDefault, 913477_text, Styles::Button},
                    {cmdSave, 111_text, Styles::Button},
                    {CmdCancel, 7_text, Styles::Button},
                    {cmdHelp, 8_text, Styles::Button}});
    cmdDefault.OnClick = [this] { cmdDefault_Click(); };
    cmdSave.OnClick = [this] { cmdSave_Click(); };
    CmdCancel.OnClick = [this] { CmdCancel_Click(); };
    cmdHelp.OnClick = [this] { cmdHelp_Click(); };
}

void frmNumberFormats::Load() {
    SharedServices().PrepareForm(*this);
    Caption = Text(913405_text);
    ShowCaptions();
    for (int i = 0; i < kFormats; ++i) txtFormat[i].Text = Session.*kUsed[i].Field;
    ShowPreviews();
}

void frmNumberFormats::ShowPreviews() {
    lblFault.Caption = " ";
    for (int i = kFormats - 1; i >= 0; --i) {
        lblPreview[i].Caption = Preview(kUsed[i], txtFormat[i].Text);
        if (const auto fault = FormatFault(txtFormat[i].Text)) lblFault.Caption = *fault;
    }
}

std::string frmNumberFormats::MarkOf(const Control& box) const {
    return RowOf(box) != nullptr ? FormatFault(box.Text).value_or("") : "";
}

void frmNumberFormats::cmdDefault_Click() {
    for (int i = 0; i < kFormats; ++i) txtFormat[i].Text = DefaultOf(kUsed[i].Field);
    ShowPreviews();
}

void frmNumberFormats::cmdSave_Click() {
    UnderCommonStep([&] {
        for (TextBox& box : txtFormat)
            if (const auto fault = FormatFault(box.Text)) return SharedServices().RefuseBox(*this, box, *fault);
        const SessionRecord before = Session;
        for (int i = 0; i < kFormats; ++i) Session.*kUsed[i].Field = txtFormat[i].Text;
        if (!WriteNumberFormats()) {
            for (const NumberFormatRow& row : NumberFormats()) Session.*row.Field = before.*row.Field;
            return;
        }
        DeriveNumberFormats();
        Unload();
    });
}

void frmNumberFormats::cmdHelp_Click() {
    ShowHelp(Caption, Text(913478_text));
}

}  // namespace lithmark
