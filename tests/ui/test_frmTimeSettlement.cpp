// The dialogs of the time-settlement curve: the choice of the method, the data, the tables.
#include "ProblemDialogTest.h"
#include "base/Utf8.h"
#include "services/TextTools.h"
#include "support/Matchers.h"
#include "ui/frmMethodtype.h"
#include "ui/frmTimeSettlement1.h"
#include "ui/frmTimeSettlement2.h"
#include "ui/frmTimeSettlement3.h"

namespace lithmark::tests {
namespace {

class MethodDialog : public ProblemDialogTest {};

TEST_F(MethodDialog, OpensOnTheMethodInForceAndTakesTheChosenOne) {
    On<frmMethodtype>(7, [](frmMethodtype& form) {
        EXPECT_EQ(form.OptMethodType.Selected(), 1);
        Click(form, "OptMethodType(2)");
        Click(form, "cmdok");
    });
    EXPECT_TRUE(Session.DialogOk);
    EXPECT_EQ(Session.ProblemType, Problem::TimeTheory);
}

TEST_F(MethodDialog, CancelLeavesTheProblem) {
    On<frmMethodtype>(1, [](frmMethodtype& form) {
        EXPECT_EQ(form.OptMethodType.Selected(), 0);
        Click(form, "OptMethodType(2)");
        Click(form, "CmdCancel");
    });
    EXPECT_FALSE(Session.DialogOk);
    EXPECT_EQ(Session.ProblemType, Problem::SoilStress);
}

class TimeDialog : public ProblemDialogTest {};

// By hand: the loads of the defaults end at 12, so the list runs to 15, three steps further.
TEST_F(TimeDialog, ShowsTheDefaultsAndOffersTheTimesUpToThreeStepsPastTheLastLoad) {
    On<frmTimeSettlement1>(6, [](frmTimeSettlement1& form) {
        EXPECT_EQ(form.txt_Sc.Text, "12.10");
        EXPECT_EQ(form.txt_Pt.Text, "6350.0");
        EXPECT_EQ(form.txt_Sm.Text, "4.61");
        EXPECT_EQ(form.txtTimePeriod.Text, "18.00");
        EXPECT_EQ(form.txt_Date.Text, Session.Datum);
        EXPECT_EQ(form.DTPicker1.Text, Session.Datum);
        EXPECT_TRUE(form.optTimeUnit[0].Value);
        EXPECT_EQ(form.lblUnit.Caption, "days");
        EXPECT_EQ(form.cmbDesignCode[0].Items.size(), 15u);
        EXPECT_EQ(form.cmbDesignCode[0].Text, "4");
    });
}

// By hand: a pause is skipped, 1 2 9 gives the slots 1, 2 and 9.
TEST_F(TimeDialog, TheListOfTimesRunsOnOverAPauseAndEndsAtTheLastSlot) {
    WriteBytes(DataFile("P1.TST"), "");
    On<frmTimeSettlement1>(6, [this](frmTimeSettlement1& form) {
        host.OnTable([](TableEdit& table) {
            table.Rows = {{"1", "10"}, {"2", "20"}, {"9", "100"}};
            return true;
        });
        Click(form, "cmdTimeLoad");
        EXPECT_EQ(form.cmbDesignCode[0].Items.size(), 12u);
        EXPECT_EQ(form.cmbDesignCode[0].Text, "4");
        host.OnTable([](TableEdit& table) {
            table.Rows = {{"1", "10"}, {"72", "100"}};
            return true;
        });
        Click(form, "cmdTimeLoad");
        EXPECT_EQ(form.cmbDesignCode[0].Items.size(), 72u);
    });
}

TEST_F(TimeDialog, TheFirstEntryOfTheTimesKeepsTheFormerTime) {
    On<frmTimeSettlement1>(6, [this](frmTimeSettlement1& form) {
        Select(form, "cmbDesignCode(0)", 0);
        GetResult(form);
        EXPECT_EQ(Session.DesignCode, 4);
        Select(form, "cmbDesignCode(0)", 6);
        GetResult(form);
        EXPECT_EQ(Session.DesignCode, 7);
    });
}

TEST_F(TimeDialog, WithoutAMeasurementItsBoxIsShutAndNotChecked) {
    On<frmTimeSettlement1>(6, [this](frmTimeSettlement1& form) {
        Type(form, "txt_Sm", "-3");
        ExpectRefused(form, form.txt_Sm, "Measured settlement:");
        Click(form, "chkMs");
        EXPECT_FALSE(form.txt_Sm.Enabled);
        EXPECT_TRUE(form.txt_Sm.Visible);
        for (const char* hidden : {"lblUnit", "cmbDesignCode(0)", "lblSm", "lblMt", "lbl_sm", "lblcm_2"})
            EXPECT_FALSE(form.Find(hidden)->Visible) << hidden;
        GetResult(form);
        EXPECT_FALSE(Session.Ms);
    });
}

// Sm before Pt before Sc before the time period, whatever the order in the window.
TEST_F(TimeDialog, TheFieldsAreCheckedInTheirOrder) {
    On<frmTimeSettlement1>(6, [this](frmTimeSettlement1& form) {
        Type(form, "txtTimePeriod", "71");
        ExpectRefused(form, form.txtTimePeriod, "Time period:");
        Type(form, "txt_Sc", "-1");
        ExpectRefused(form, form.txt_Sc, "Calculated final settlement:");
        Type(form, "txt_Pt", "-1");
        ExpectRefused(form, form.txt_Pt, "Total load (own weight included):");
        Type(form, "txt_Sm", "-1");
        ExpectRefused(form, form.txt_Sm, "Measured settlement:");
    });
}

TEST_F(TimeDialog, ATimePeriodOf70PassesTheDialogAndFailsInTheReport) {
    On<frmTimeSettlement1>(6, [](frmTimeSettlement1& form) {
        Type(form, "txtTimePeriod", "70");
        Click(form, "cmdResult");
        EXPECT_EQ(Session.TimePeriod, 70);
        EXPECT_TRUE(Session.CalcAborted);
    });
    host.Messages.clear();
}

TEST_F(TimeDialog, AnOpenedFileShowsOnlyWhenTheDialogOpensAgain) {
    On<frmTimeSettlement1>(6, [this](frmTimeSettlement1& form) {
        Type(form, "txt_Sc", "20");
        Click(form, "cmdSave");
        Type(form, "txt_Sc", "30");
        host.AnswerFileToOpen(DataFile("P1.TST"));
        Click(form, "cmdOpen");
        EXPECT_EQ(form.txt_Sc.Text, "30");
        EXPECT_EQ(Session.Sc, 20);
    });
    On<frmTimeSettlement1>(6, [](frmTimeSettlement1& form) { EXPECT_EQ(form.txt_Sc.Text, "20.00"); });
}

TEST_F(TimeDialog, ADamagedFileThatIsOpenedLeavesTheTablesAsTheyWere) {
    On<frmTimeSettlement1>(6, [this](frmTimeSettlement1& form) {
        Click(form, "cmdSave");
        // The tables of this file can be read, what follows them cannot.
        std::string other = ReadBytes(DataFile("P1.TST"));
        other.resize(other.rfind("\r\n", other.size() - 3) + 2);
        WriteBytes(DataFile("Other.TST"), ReplaceAll(other, "\r\n83\r\n", "\r\n38\r\n"));
        host.AnswerFileToOpen(DataFile("Other.TST"));
        Click(form, "cmdOpen");
        EXPECT_THAT(host.LastMessage().Text, ::testing::HasSubstr("Other.TST"));
        EXPECT_EQ(Session.LoadValue(3), 83);
        EXPECT_FALSE(form.Modified());
        Click(form, "cmdSave");
    });
    EXPECT_THAT(ReadBytes(DataFile("P1.TST")), ::testing::HasSubstr("\r\n83\r\n"));
}

TEST_F(TimeDialog, AnUntouchedDateStaysAndATypedOneIsWrittenAsALongDate) {
    On<frmTimeSettlement1>(6, [](frmTimeSettlement1& form) { Click(form, "cmdSave"); });
    Session.StartDate.clear();
    Session.Datum = "Montag, 4. Mai 2026";  // from a project that was made in German
    SetProblemSaved(6, false);
    On<frmTimeSettlement1>(6, [this](frmTimeSettlement1& form) {
        GetResult(form);
        EXPECT_EQ(Session.StartDate, "Montag, 4. Mai 2026");
    });
    On<frmTimeSettlement1>(6, [this](frmTimeSettlement1& form) {
        Type(form, "txt_Date", "2026-05-04");
        GetResult(form);
        EXPECT_EQ(Session.StartDate, "Monday, May 4, 2026");
        Type(form, "DTPicker1", "Tuesday, May 5, 2026");
        EXPECT_EQ(form.txt_Date.Text, "Tuesday, May 5, 2026");
        Type(form, "txt_Date", "after Easter");
        GetResult(form);
        EXPECT_EQ(Session.StartDate, "after Easter");
    });
}

TEST_F(TimeDialog, AClickOnTheTimeUnitIsInForceAtOnce) {
    On<frmTimeSettlement1>(6, [](frmTimeSettlement1& form) {
        Click(form, "optTimeUnit(2)");
        EXPECT_EQ(Session.TimeUnit, "months");
        EXPECT_EQ(form.lblUnit.Caption, "months");
        EXPECT_EQ(form.lblTimePeriodUnit.Caption, "months");
    });
}

TEST_F(TimeDialog, TheLoadTableHasItsHeadsKindsAndRanges) {
    On<frmTimeSettlement1>(6, [this](frmTimeSettlement1& form) {
        host.OnTable([](TableEdit&) { return false; });
        Click(form, "cmdTimeLoad");
        const TableEdit& table = host.TablesShown.back();
        EXPECT_EQ(table.Columns.at(0).Head, "Time\nN\ndays");
        EXPECT_EQ(table.Columns.at(0).Accepts, TableEdit::Kind::Whole);
        EXPECT_EQ(table.Columns.at(0).Lower, 1);
        EXPECT_EQ(table.Columns.at(0).Upper, 32000);
        EXPECT_EQ(table.Columns.at(1).Head, "Load\nP\n[kN]");
        EXPECT_EQ(table.Columns.at(1).Accepts, TableEdit::Kind::Real);
        EXPECT_THAT(table.Rows.at(2), ElementsAre("4", "83.0"));
        // Cancelled: nothing changed.
        EXPECT_EQ(Session.NLoad, 5);
        EXPECT_EQ(Session.LoadValue(3), 83);
    });
}

TEST_F(TimeDialog, RowsThatAreTakenAreRoundedAsTheyShow) {
    On<frmTimeSettlement1>(6, [this](frmTimeSettlement1& form) {
        host.OnTable([](TableEdit& table) {
            table.Rows = {{"3", "12.34"}, {"5", "100"}};
            return true;
        });
        Click(form, "cmdTimeLoad");
        EXPECT_EQ(Session.NLoad, 2);
        EXPECT_EQ(Session.LoadTime(1), 3);
        EXPECT_EQ(Session.LoadValue(1), Single(12.3));
        EXPECT_TRUE(form.Modified());
        host.OnTable([](TableEdit& table) {
            table.Rows = {{"1", "49.6"}};
            return true;
        });
        Click(form, "CmdTimeSettlementPoints");
        EXPECT_EQ(Session.NSts, 1);
        EXPECT_EQ(Session.StsValue(1), 50);
    });
}

TEST_F(TimeDialog, TheEditorSeesTheDigitsBehindTheCells) {
    Session.Datum = TextTools().LongDateOfToday();
    On<frmTimeSettlement1>(6, [this](frmTimeSettlement1& form) {
        Session.LoadValue(2) = 42.125;
        host.OnTable([](TableEdit&) { return false; });
        Click(form, "cmdTimeLoad");
        EXPECT_EQ(host.TablesShown.back().Rows.at(1).at(1), "42.1");
        EXPECT_EQ(host.TablesShown.back().Digits.at(1).at(1), "42.125");
        EXPECT_EQ(Session.LoadValue(2), 42.125);
    });
}

TEST_F(TimeDialog, OedometerReadingsAreShownByTheirUnit) {
    On<frmTimeSettlement2>(7, [this](frmTimeSettlement2& form) {
        EXPECT_TRUE(form.optOdomterUnit[1].Value);
        EXPECT_EQ(form.optOdomterUnit[0].Caption, "Settlement in [%]");
        host.OnTable([](TableEdit&) { return false; });
        Click(form, "CmdOdomterSettlement");
        EXPECT_THAT(host.TablesShown.back().Rows.at(0), ElementsAre("0.25", "0.1400"));
        EXPECT_EQ(host.TablesShown.back().Columns.at(0).Head, "Time\nTm\n[min]");
        EXPECT_EQ(host.TablesShown.back().Columns.at(1).Head, "Settlement\nSm\n[mm]");
        EXPECT_EQ(host.TablesShown.back().Columns.at(1).Accepts, TableEdit::Kind::Positive);
        Click(form, "optOdomterUnit(0)");
        EXPECT_EQ(Session.OedUnit, "[%]");
        host.OnTable([](TableEdit&) { return false; });
        Click(form, "CmdOdomterSettlement");
        EXPECT_THAT(host.TablesShown.back().Rows.at(0), ElementsAre("0.25", "0.14"));
    });
}

TEST_F(TimeDialog, TheGivenCoefficientShutsTheSoilBoxes) {
    On<frmTimeSettlement3>(8, [this](frmTimeSettlement3& form) {
        EXPECT_FALSE(form.txt_Cv.Enabled);
        EXPECT_FALSE(form.lblCv.Visible);
        EXPECT_TRUE(form.txt_kf.Enabled);
        Click(form, "chk_Cv");
        EXPECT_TRUE(form.txt_Cv.Enabled);
        EXPECT_TRUE(form.lblm2s1.Visible);
        for (const char* shut : {"txt_kf", "txt_Es", "txt_Ws", "txt_qv", "txt_qe"}) {
            EXPECT_FALSE(form.Find(shut)->Enabled) << shut;
            EXPECT_TRUE(form.Find(shut)->Visible) << shut;
        }
        EXPECT_FALSE(form.lblQe.Visible);
        GetResult(form);
        EXPECT_EQ(Session.CvChoice, CvFrom::Input);
        EXPECT_EQ(Session.DrainageFaces, Faces::Both);
    });
}

TEST_F(TimeDialog, EnterFollowsTheFieldsAndEndsInTheResults) {
    On<frmTimeSettlement3>(8, [this](frmTimeSettlement3& form) {
        EXPECT_THAT(EnterWay(form, "txt_kf", 9), ElementsAre("txt_Es", "txt_Ws", "txt_qv", "txt_qe", "txt_Hb", "txt_Sc",
                                                             "txt_Pt", "txt_Date", "txt_Sm"));
        host.OnForm<frmResultTools>([](frmResultTools& viewer) { Click(viewer, "cmdok"); });
        PressEnter(form, "txt_Sm");
        EXPECT_TRUE(Session.DataValid);
        Click(form, "chkMs");
        host.OnForm<frmResultTools>([](frmResultTools& viewer) { Click(viewer, "cmdok"); });
        PressEnter(form, "txt_Date");
    });
    EXPECT_THAT(host.Messages, IsEmpty());
}

}  // namespace
}  // namespace lithmark::tests
