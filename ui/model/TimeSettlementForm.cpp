#include "ui/model/TimeSettlementForm.h"

#include <utility>

#include "base/NumberText.h"
#include "core/Units.h"
#include "files/CommonStep.h"
#include "services/TextTools.h"
#include "ui/model/TableRows.h"

namespace lithmark {

namespace {

using R = SessionRecord;
constexpr int kLastSlot = 70;

// How many times the list of measuring times offers: three steps past the last load.
int TimesOffered() {
    int previous = 0, slot = 1;
    for (int row = 1; row <= Session.NLoad; ++row) {
        const int time = Session.LoadTime(row);
        if (time > previous + 1) slot = time;
        ++slot;
        previous = time;
    }
    return slot - 1 < kLastSlot ? slot + 2 : slot - 1;
}

template <typename T>
void AppendTexts(std::vector<std::string>& texts, const Array<T>& values, int count) {
    for (int row = 1; row <= count; ++row) texts.push_back(NumberToText(values(row)));
}

}  // namespace

TimeSettlementForm::TimeSettlementForm(std::string name, PictureOf picture)
    : PictureForm(std::move(name), std::move(picture)) {
    cmdTimeLoad.OnClick = [this] { cmdTimeLoad_Click(); };
    DTPicker1.OnChange = [this] { DTPicker1_Change(); };
}

std::vector<std::string> TimeSettlementForm::Inputs() const {
    std::vector<std::string> inputs = PictureForm::Inputs();
    const R& s = Session;
    AppendTexts(inputs, s.LoadTime, s.NLoad);
    AppendTexts(inputs, s.LoadValue, s.NLoad);
    AppendTexts(inputs, s.StsTime, s.NSts);
    AppendTexts(inputs, s.StsValue, s.NSts);
    AppendTexts(inputs, s.OedTime, s.NOed);
    AppendTexts(inputs, s.OedSettlement, s.NOed);
    return inputs;
}

FieldRow TimeSettlementForm::RowSm() {
    return FieldRow({lblMt, 300029_text}, {lbl_sm, "Sm"}, txt_Sm, {lblcm_2, Unit::Settlement},
                    {&R::Sm, &R::FmtSettlement}, {0}, {Press(cmdResult)}, CheckedWhen::Enabled);
}

FieldRow TimeSettlementForm::RowSc() {
    return FieldRow({lblSc, 400124_text}, {lbl_sc, "Sc"}, txt_Sc, {lblcm_1, Unit::Settlement},
                    {&R::Sc, &R::FmtSettlement}, {0}, {GoTo(txt_Pt)});
}

FieldRow TimeSettlementForm::RowPt() {
    return FieldRow({lblPt, 300026_text}, {lbl_pt, "Pt"}, txt_Pt, {lblkn, Unit::Force}, {&R::Pt, &R::FmtForce}, {0},
                    {GoTo(txt_Date)});
}

FieldRow TimeSettlementForm::RowTimePeriod() {
    return FieldRow({lblTimePeriod, 300071_text}, {}, txtTimePeriod,
                    {lblTimePeriodUnit, [] { return Session.TimeUnit; }}, {&R::TimePeriod, &R::FmtTime}, {0, kLastSlot},
                    {GoTo(txt_Date)});
}

FieldRow TimeSettlementForm::RowDate() {
    return FieldRow({lblDate, 300027_text}, {}, txt_Date, {}, {}, {}, {GoToIfUsable(txt_Sm), Press(cmdResult)},
                    CheckedWhen::Always, {}, &DTPicker1);
}

FieldRow TimeSettlementForm::RowTimeOfMeasurement() {
    return FieldRow({lblSm, 300028_text}, {}, cmbDesignCode[0], {lblUnit, [] { return Session.TimeUnit; }});
}

ChoiceRow TimeSettlementForm::TimeUnits() {
    return ChoiceRow(optTimeUnit, {10001_text, 10002_text, 10003_text, 10004_text},
                     {&R::TimeUnit, {10001_text, 10002_text, 10003_text, 10004_text}}, [this] { optTimeUnit_Click(); });
}

ChoiceRow TimeSettlementForm::Measured() {
    return ChoiceRow(chkMs, {300046_text}, {&R::Ms, {0, 1}}, [this] { chkMs_Click(); });
}

std::vector<CaptionRow> TimeSettlementForm::WithSharedCaptions(std::vector<CaptionRow> own) {
    own.insert(own.end(), {{fraData, 300021_text, Styles::Heading},
                           {frmSelectTimeUnit, 300037_text, Styles::Heading},
                           {frmEMS, 300030_text, Styles::Heading},
                           {cmdTimeLoad, 400125_text, Styles::Button}});
    return own;
}

void TimeSettlementForm::ShowChoices() {
    shownDate_ = txt_Date.Text = Session.StartDate;
    if (const auto day = TextTools().ReadDate(Session.StartDate)) DTPicker1.Text = TextTools().LongDate(*day);
    FillTimes();
    ShowChoiceRows();
}

// Deliberate: the first time of the list, at position 0, leaves the time of the measurement as it was.
void TimeSettlementForm::StoreChoices(SessionRecord& record) const {
    StoreChoiceRows(record);
    if (const int position = cmbDesignCode[0].ListIndex; record.Ms && position >= 1) record.DesignCode = position + 1;
    if (txt_Date.Text == shownDate_) return;
    const auto day = TextTools().ReadDate(txt_Date.Text);
    record.StartDate = day ? TextTools().LongDate(*day) : txt_Date.Text;
}

std::string TimeSettlementForm::Help() const {
    return Text(906502_text);
}

void TimeSettlementForm::FillTimes() {
    ComboBox& times = cmbDesignCode[0];
    times.Items.clear();
    for (int time = 1; time <= TimesOffered(); ++time) times.Items.push_back(FormatValue(time, "0"));
    times.ListIndex = -1;
    times.Text.clear();
    const int position = Session.Ms ? Session.DesignCode - 1 : 1;
    if (position >= 0 && position < static_cast<int>(times.Items.size())) SelectRow(times, position);
}

void TimeSettlementForm::cmdTimeLoad_Click() {
    const EditedColumn time(TableHead(10247_text, "N", Session.TimeUnit), "0", TableEdit::Kind::Whole, 1, 32000);
    // Deliberate: the load is a percentage of the total load, whatever the head's unit says.
    const EditedColumn load(TableHead(40087_text, "P", Session.Force1Label), Session.FmtForce, TableEdit::Kind::Real,
                            -1e38);
    const int chosen = cmbDesignCode[0].ListIndex;
    UnderCommonStep([&] {
        EditRows(400125_text, 906503_text, Text(13_text) + "\n" + Text(90000_text), time, load, Session.NLoad,
                 Session.LoadTime, Session.LoadValue);
    });
    FillTimes();
    if (chosen >= 0 && chosen < static_cast<int>(cmbDesignCode[0].Items.size())) SelectRow(cmbDesignCode[0], chosen);
}

// The unit is in force at once, since the tables show it too.
void TimeSettlementForm::optTimeUnit_Click() {
    if (const int chosen = optTimeUnit.Selected(); chosen >= 0) Session.TimeUnit = optTimeUnit[chosen].Caption;
    lblUnit.Caption = lblTimePeriodUnit.Caption = Session.TimeUnit;
}

void TimeSettlementForm::chkMs_Click() {
    SwitchLines(txt_Sm, chkMs.Value);
    ShowLines(cmbDesignCode[0], chkMs.Value);
}

void TimeSettlementForm::DTPicker1_Change() {
    if (const auto day = TextTools().ReadDate(DTPicker1.Text)) txt_Date.Text = TextTools().LongDate(*day);
}

}  // namespace lithmark
