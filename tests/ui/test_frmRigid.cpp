// The dialogs of the rigid rafts.
#include "ProblemDialogTest.h"
#include "support/Matchers.h"
#include "ui/frmRigidConsolidation.h"
#include "ui/frmRigidDisplacement.h"

namespace lithmark::tests {
namespace {

class RaftDialog : public ProblemDialogTest {};

TEST_F(RaftDialog, AnAnalyticalRaftAsksForNoLayer) {
    On<frmRigidDisplacement>(9, [](frmRigidDisplacement& form) {
        EXPECT_TRUE(form.optLoadType[1].Value);
        EXPECT_TRUE(form.optAnalysisType[0].Value);
        EXPECT_FALSE(form.fraPointCoordinates.Visible);
        EXPECT_FALSE(form.lbl_h.Visible);
        EXPECT_FALSE(form.txt_h.Enabled);
        EXPECT_TRUE(form.fraSettlementAt.Visible);
        EXPECT_TRUE(form.optSettlementAt[1].Visible);
        Click(form, "optAnalysisType(1)");
        EXPECT_TRUE(form.fraPointCoordinates.Visible);
        EXPECT_TRUE(form.txt_h.Enabled);
        EXPECT_TRUE(form.lblm6.Visible);
        EXPECT_FALSE(form.fraSettlementAt.Visible);
        EXPECT_FALSE(form.optSettlementAt[0].Visible);
    });
}

TEST_F(RaftDialog, TheShapeSaysWhatTheLengthIsAndWhichBoxesCount) {
    On<frmRigidDisplacement>(9, [](frmRigidDisplacement& form) {
        EXPECT_EQ(form.lblLength_Radius.Caption, Text(400001_text));
        EXPECT_TRUE(form.txt_B.Enabled);
        EXPECT_FALSE(form.txt_Exz_x.Enabled);
        EXPECT_FALSE(form.txt_Exz_y.Enabled);
        EXPECT_FALSE(form.LblEccentricity_x.Visible);
        Click(form, "optLoadType(2)");
        EXPECT_EQ(form.lblLength_Radius.Caption, Text(400120_text));
        EXPECT_FALSE(form.txt_B.Enabled);
        EXPECT_FALSE(form.lblWidth.Visible);
        EXPECT_TRUE(form.txt_Exz_x.Enabled);
        EXPECT_TRUE(form.LblEccentricity_x.Visible);
        EXPECT_FALSE(form.txt_Exz_y.Enabled);
    });
}

TEST_F(RaftDialog, OnClayTheEccentricityOfARectangleCountsInANumericalAnalysis) {
    On<frmRigidConsolidation>(10, [](frmRigidConsolidation& form) {
        EXPECT_FALSE(form.txt_Exz_x.Enabled);
        Click(form, "optAnalysisType(1)");
        EXPECT_TRUE(form.txt_Exz_x.Enabled);
        EXPECT_TRUE(form.txt_Exz_y.Enabled);
        EXPECT_TRUE(form.txt_z.Enabled);
        Click(form, "optLoadType(2)");
        EXPECT_TRUE(form.txt_Exz_x.Enabled);
        EXPECT_FALSE(form.txt_Exz_y.Enabled);
        Click(form, "optAnalysisType(0)");
        EXPECT_TRUE(form.txt_Exz_x.Enabled);
        EXPECT_FALSE(form.txt_z.Enabled);
        Click(form, "optLoadType(1)");
        EXPECT_FALSE(form.txt_Exz_x.Enabled);
    });
}

// A third of 5 m is 1.667 m.
TEST_F(RaftDialog, AnEccentricityBeyondAThirdOfTheLengthIsRefused) {
    On<frmRigidDisplacement>(9, [this](frmRigidDisplacement& form) {
        Click(form, "optLoadType(2)");
        ExpectRefusedText(form, form.txt_Exz_x, "1.67", "Eccentricity:");
        Type(form, "txt_Exz_x", "1.66");
        GetResult(form);
        EXPECT_EQ(Session.Exz_x, Single(1.66));
        EXPECT_EQ(Session.LoadType, LoadShape::Circle);
    });
}

TEST_F(RaftDialog, AHiddenLayerThicknessIsCheckedToo) {
    On<frmRigidDisplacement>(9, [this](frmRigidDisplacement& form) {
        Click(form, "optAnalysisType(1)");
        ExpectRefusedText(form, form.txt_h, "0.24", "Layer thickness:");
        Type(form, "txt_h", "0.24");
        Click(form, "optAnalysisType(0)");
        ExpectRefused(form, form.txt_h, "Layer thickness:");
    });
}

TEST_F(RaftDialog, PoissonsRatioRunsFrom0To05) {
    On<frmRigidDisplacement>(9, [this](frmRigidDisplacement& form) {
        ExpectRefusedText(form, form.txt_Nue, "0.51", "Poisson's ratio:");
        ExpectRefusedText(form, form.txt_Nue, "-0.01", "Poisson's ratio:");
        Type(form, "txt_Nue", "0.5");
        GetResult(form);
        EXPECT_EQ(Session.Nue, 0.5);
    });
}

TEST_F(RaftDialog, OnClayTheLimitsAreThoseOfItsOwnFields) {
    On<frmRigidConsolidation>(10, [this](frmRigidConsolidation& form) {
        ExpectRefusedText(form, form.txt_B, "0", "Width:");
        Click(form, "optAnalysisType(1)");
        ExpectRefusedText(form, form.txt_z, "-1", "z-coordinate:");
        Click(form, "optSoilPeropertyType(1)");
        EXPECT_FALSE(form.txt_Es.Enabled);
        Type(form, "txt_z", "2");
        Type(form, "txt_Po", "20");
        Type(form, "txt_Cc", "0.2");
        Type(form, "txt_eo", "0.8");
        ExpectRefusedText(form, form.txt_Gamma, "0", "Unit weight of the clay:");
    });
}

TEST_F(RaftDialog, TheOverburdenGoesWhenTheLayerBeginsAtTheSurface) {
    On<frmRigidConsolidation>(10, [](frmRigidConsolidation& form) {
        Click(form, "optSoilPeropertyType(1)");
        Click(form, "optAnalysisType(1)");
        Type(form, "txt_z", "2");
        EXPECT_TRUE(form.txt_Po.Visible && form.txt_Po.Enabled && form.lblPo.Visible);
        Type(form, "txt_z", "0");
        EXPECT_FALSE(form.txt_Po.Visible || form.txt_Po.Enabled || form.lblPo.Visible);
        Type(form, "txt_z", "1.5");
        EXPECT_TRUE(form.txt_Po.Enabled);
        Click(form, "optSoilPeropertyType(0)");
        EXPECT_FALSE(form.txt_Po.Enabled);
    });
}

// One that the user's choice has switched off; one that never counted stays as the file has it.
TEST_F(RaftDialog, AnEccentricityThatNoLongerCountsBecomes0) {
    On<frmRigidConsolidation>(10, [](frmRigidConsolidation& form) {
        Click(form, "optLoadType(2)");
        Click(form, "optAnalysisType(1)");
        Type(form, "txt_Exz_x", "0.5");
        Click(form, "cmdSave");
        EXPECT_EQ(Session.Exz_x, 0.5);
    });
    On<frmRigidConsolidation>(10, [](frmRigidConsolidation& form) {
        EXPECT_EQ(form.txt_Exz_x.Text, "0.50");
        Click(form, "optAnalysisType(0)");
        Click(form, "optLoadType(1)");
        Click(form, "cmdSave");
        EXPECT_EQ(Session.Exz_x, 0);
        EXPECT_EQ(form.txt_Exz_x.Text, "0.00");
    });
    Session.Exz_x = 0.75;
    On<frmRigidConsolidation>(10, [](frmRigidConsolidation& form) {
        EXPECT_FALSE(form.txt_Exz_x.Enabled);
        Click(form, "cmdSave");
        EXPECT_EQ(Session.Exz_x, 0);
    });
}

TEST_F(RaftDialog, EnterFollowsTheBoxesThatCanBeUsed) {
    On<frmRigidDisplacement>(9, [this](frmRigidDisplacement& form) {
        EXPECT_THAT(EnterWay(form, "txt_Q", 5), ElementsAre("txt_A", "txt_B", "txt_Es", "txt_Nue", "cmdResult"));
        Click(form, "optLoadType(2)");
        EXPECT_THAT(EnterWay(form, "txt_Q", 3), ElementsAre("txt_Exz_x", "txt_A", "txt_Es"));
    });
    On<frmRigidConsolidation>(10, [this](frmRigidConsolidation& form) {
        Click(form, "optAnalysisType(1)");
        Click(form, "optSoilPeropertyType(1)");
        Type(form, "txt_z", "1");
        EXPECT_THAT(EnterWay(form, "txt_z", 11),
                    ElementsAre("txt_h", "txt_Q", "txt_Exz_x", "txt_Exz_y", "txt_A", "txt_B", "txt_Po", "txt_Cc",
                                "txt_eo", "txt_Gamma", "cmdResult"));
    });
}

// Deliberate: both dialogs keep the state of the picture under one name.
TEST_F(RaftDialog, BothShareTheStateOfThePicture) {
    On<frmRigidDisplacement>(9, [](frmRigidDisplacement& form) {
        EXPECT_TRUE(form.More());
        Click(form, "CmdMoreLess");
    });
    On<frmRigidConsolidation>(10, [](frmRigidConsolidation& form) { EXPECT_FALSE(form.More()); });
    EXPECT_FALSE(SharedServices().GetSetting(kApplicationTitle, "Consolidation Form", "More State", true));
}

}  // namespace
}  // namespace lithmark::tests
