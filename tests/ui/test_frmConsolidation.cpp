// The dialogs of the problems 4 and 5: what they show, take and refuse, and where Enter leads.
#include "ProblemDialogTest.h"
#include "support/Matchers.h"
#include "ui/frmConsolidation.h"
#include "ui/frmConsolidationRate.h"

namespace lithmark::tests {
namespace {

class ConsolidationDialog : public ProblemDialogTest {};

// By hand: the problem's defaults in the formats of lengths "0.00", forces and stresses "0.0", ratios "0.00", unit
// weights "0.0" and moduli "0".
TEST_F(ConsolidationDialog, AProblemWithoutDataShowsTheDefaults) {
    On<frmConsolidation>(4, [](frmConsolidation& form) {
        EXPECT_EQ(form.Caption, "Consolidation settlement");
        EXPECT_EQ(form.txt_x.Text, "0.00");
        EXPECT_EQ(form.txt_z.Text, "1.00");
        EXPECT_EQ(form.txt_h.Text, "5.00");
        EXPECT_EQ(form.txt_P.Text, "150.0");
        EXPECT_EQ(form.txt_A.Text, "2.00");
        EXPECT_EQ(form.txt_Cc.Text, "0.16");
        EXPECT_EQ(form.txt_eo.Text, "0.85");
        EXPECT_EQ(form.txt_Po.Text, "51.8");
        EXPECT_EQ(form.txt_Gamma.Text, "8.7");
        EXPECT_TRUE(form.optLoadType[1].Value);
        EXPECT_TRUE(form.optSoilPeropertyType[1].Value);
        EXPECT_EQ(Session.A0, 2);
    });
}

TEST_F(ConsolidationDialog, TheChoiceOfTheSoilShowsItsBoxesAlone) {
    On<frmConsolidation>(4, [](frmConsolidation& form) {
        Click(form, "optSoilPeropertyType(0)");
        for (Control* shown :
             {(Control*)&form.txt_Es, (Control*)&form.lblE_Modulus, (Control*)&form.lbl_Es, (Control*)&form.lblknm1})
            EXPECT_TRUE(shown->Visible) << shown->Name;
        for (const char* hidden :
             {"txt_Cc", "lblCc", "lbl_cc", "lblUnit1", "txt_eo", "lbl_eo", "Lbl_s_eo", "lblUnit2", "txt_Po", "lblPo",
              "lbl_s_Po", "lblknm3", "txt_Gamma", "lblGamma_Na", "lblGamma_Sy", "lblGammaUnit"})
            EXPECT_FALSE(form.Find(hidden)->Visible) << hidden;
        Click(form, "optSoilPeropertyType(1)");
        EXPECT_FALSE(form.txt_Es.Visible);
        EXPECT_TRUE(form.lblGammaUnit.Visible);
    });
}

TEST_F(ConsolidationDialog, ValuesOutsideTheirRangeAreRefusedInTheOrderOfTheFields) {
    On<frmConsolidation>(4, [this](frmConsolidation& form) {
        ExpectRefusedText(form, form.txt_z, "-0.01", "z-coordinate:");
        ExpectRefusedText(form, form.txt_h, "0.24", "Layer thickness:");
        ExpectRefusedText(form, form.txt_P, "-1", "Rectangular uniform load:");
        ExpectRefusedText(form, form.txt_Po, "0.09", "Overburden pressure:");
        ExpectRefusedText(form, form.txt_Gamma, "0", "Unit weight of the clay:");
        // Two of them: the one that comes first is told.
        Type(form, "txt_Gamma", "0");
        Type(form, "txt_h", "0");
        ExpectRefused(form, form.txt_h, "Layer thickness:");
    });
}

TEST_F(ConsolidationDialog, ALayerThinnerThanTheSublayersPassesTheDialog) {
    Session.PrefDz = 2;
    On<frmConsolidation>(4, [](frmConsolidation& form) {
        Type(form, "txt_h", "0.25");
        Click(form, "cmdResult");
        EXPECT_TRUE(Session.DataValid);
        EXPECT_EQ(Session.h, 0.25);
        EXPECT_TRUE(Session.CalcAborted);
    });
    host.Messages.clear();
}

TEST_F(ConsolidationDialog, BoxesOfTheOtherSoilAreNotCheckedAndYetStored) {
    On<frmConsolidation>(4, [this](frmConsolidation& form) {
        Type(form, "txt_Cc", "0.5");
        Type(form, "txt_eo", "what");
        Click(form, "optSoilPeropertyType(0)");
        GetResult(form);
        EXPECT_EQ(Session.SoilPropertyType, SoilDefinition::ByModulus);
        EXPECT_EQ(Session.Cc, 0.5);
        EXPECT_EQ(Session.eo, Single(0.85));
    });
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(ConsolidationDialog, EnterFollowsTheShownBoxes) {
    On<frmConsolidation>(4, [this](frmConsolidation& form) {
        EXPECT_THAT(EnterWay(form, "txt_x", 11), ElementsAre("txt_y", "txt_z", "txt_h", "txt_Cc", "txt_eo", "txt_Po",
                                                             "txt_Gamma", "txt_P", "txt_A", "txt_B", "cmdResult"));
        Click(form, "optSoilPeropertyType(0)");
        Click(form, "optLoadType(0)");
        EXPECT_THAT(EnterWay(form, "txt_h", 3), ElementsAre("txt_Es", "txt_Q", "cmdResult"));
        Click(form, "optLoadType(2)");
        EXPECT_THAT(EnterWay(form, "txt_Es", 3), ElementsAre("txt_P", "txt_A", "cmdResult"));
    });
}

class RateDialog : public ProblemDialogTest {};

TEST_F(RateDialog, AProblemWithoutDataShowsTheDefaults) {
    On<frmConsolidationRate>(5, [](frmConsolidationRate& form) {
        EXPECT_TRUE(form.chkPressure.Value);
        EXPECT_FALSE(form.chkLayers.Value);
        EXPECT_EQ(form.txt_h1.Text, "4.00");
        EXPECT_EQ(form.txt_h2.Text, "5.00");
        EXPECT_EQ(form.txt_U.Text, "100.0");
        EXPECT_EQ(form.cmbDrainageConditions.ListIndex, 0);
        EXPECT_THAT(form.cmbDrainageConditions.Items, ElementsAre("Double drainage", "Single drainage"));
        EXPECT_THAT(form.cmbTimeUnit.Items, ElementsAre("days", "weeks", "months", "years"));
        EXPECT_EQ(form.cmbTimeUnit.ListIndex, 3);
        EXPECT_EQ(form.lbl_Unit_Tc.Caption, "years");
    });
}

TEST_F(RateDialog, AConstantPressureHidesTheLoadWithItsPoint) {
    On<frmConsolidationRate>(5, [](frmConsolidationRate& form) {
        for (const char* hidden :
             {"optLoadType(0)", "optLoadType(1)", "optLoadType(2)", "txt_Q", "txt_P", "txt_A", "txt_B", "lblWidth",
              "lbl_x_Coord", "lbl_y_Coord", "lblm1", "lblm2", "txt_x", "txt_y", "lblknm1"})
            EXPECT_FALSE(form.Find(hidden)->Visible) << hidden;
        EXPECT_TRUE(form.lblEPWP.Visible);
        EXPECT_TRUE(form.txt_U.Visible);
        EXPECT_TRUE(form.txt_z.Visible);
        Click(form, "chkPressure");
        EXPECT_FALSE(form.txt_U.Visible);
        EXPECT_TRUE(form.txt_x.Visible);
        EXPECT_TRUE(form.txt_P.Visible);
        EXPECT_TRUE(form.lblLoadUnit.Visible);
        EXPECT_FALSE(form.txt_Q.Visible);
        Click(form, "optLoadType(0)");
        EXPECT_TRUE(form.txt_Q.Visible);
        EXPECT_FALSE(form.txt_B.Visible);
        Click(form, "chkPressure");
        EXPECT_FALSE(form.txt_Q.Visible);
    });
}

TEST_F(RateDialog, TheSecondLayerComesWithItsCheckBox) {
    On<frmConsolidationRate>(5, [](frmConsolidationRate& form) {
        const char* second[] = {"txt_h2",  "lbl_h2", "lblm7", "txt_Cv2", "lblCv2", "lbl_Cv2",
                                "lblm2s2", "txt_K2", "lblk2", "lbl_k2",  "lblms2", "lblh2"};
        for (const char* name : second) EXPECT_FALSE(form.Find(name)->Visible) << name;
        Click(form, "chkLayers");
        for (const char* name : second) EXPECT_TRUE(form.Find(name)->Visible) << name;
    });
}

TEST_F(RateDialog, TheFirstLayerHasALeastThicknessAndTheSecondNone) {
    On<frmConsolidationRate>(5, [this](frmConsolidationRate& form) {
        ExpectRefusedText(form, form.txt_h1, "0.24", "Layer thickness:");
        Click(form, "chkLayers");
        ExpectRefusedText(form, form.txt_h2, "-1", "Layer thickness:");
        ExpectRefusedText(form, form.txt_K2, "-1", "Coefficient of permeability:");
        Click(form, "chkLayers");
        Type(form, "txt_T", "-1");
        ExpectRefused(form, form.txt_T, "Time of consolidation:");
    });
}

// Nothing has drained at the first moment, and the kernel tells 100 for it all the same.
TEST_F(RateDialog, TimeZeroPassesAndGivesTheFullDegree) {
    On<frmConsolidationRate>(5, [this](frmConsolidationRate& form) {
        Type(form, "txt_T", "0");
        GetResult(form);
        EXPECT_EQ(Session.Uc, 100);
    });
}

TEST_F(RateDialog, NoConsolidationInBothLayersPassesTheDialogAndFailsInTheKernel) {
    On<frmConsolidationRate>(5, [](frmConsolidationRate& form) {
        Click(form, "chkLayers");
        Type(form, "txt_Cv1", "0");
        Type(form, "txt_Cv2", "0");
        Click(form, "cmdResult");
        EXPECT_TRUE(Session.DataValid);
        EXPECT_TRUE(Session.CalcAborted);
    });
    EXPECT_EQ(host.Messages.size(), 1u);
    host.Messages.clear();
}

TEST_F(RateDialog, TheChoicesAreStored) {
    On<frmConsolidationRate>(5, [this](frmConsolidationRate& form) {
        Click(form, "chkLayers");
        Click(form, "chkPressure");
        Click(form, "optLoadType(2)");
        Select(form, "cmbDrainageConditions", 1);
        Select(form, "cmbTimeUnit", 0);
        EXPECT_EQ(form.lbl_Unit_Tc.Caption, "days");
        EXPECT_EQ(Session.TimeUnit, "years");
        Type(form, "txt_T", "2000");
        GetResult(form);
        EXPECT_EQ(Session.NumLayers, 2);
        EXPECT_FALSE(Session.Pressure);
        EXPECT_EQ(Session.LoadType, LoadShape::Circle);
        EXPECT_EQ(Session.DrainageCondition, Drainage::BottomImpermeable);
        EXPECT_EQ(Session.TimeUnit, "days");
        EXPECT_EQ(Session.A0, Session.A);
    });
}

TEST_F(RateDialog, EnterFollowsTheShownBoxes) {
    On<frmConsolidationRate>(5, [this](frmConsolidationRate& form) {
        EXPECT_THAT(EnterWay(form, "txt_U", 6),
                    ElementsAre("txt_z", "txt_h1", "txt_T", "txt_Cv1", "txt_K1", "cmdResult"));
        Click(form, "chkLayers");
        Click(form, "chkPressure");
        EXPECT_THAT(EnterWay(form, "txt_x", 13),
                    ElementsAre("txt_y", "txt_z", "txt_h1", "txt_h2", "txt_P", "txt_A", "txt_B", "txt_T", "txt_Cv1",
                                "txt_K1", "txt_Cv2", "txt_K2", "cmdResult"));
        Click(form, "optLoadType(0)");
        EXPECT_THAT(EnterWay(form, "txt_h2", 2), ElementsAre("txt_Q", "txt_T"));
    });
}

}  // namespace
}  // namespace lithmark::tests
