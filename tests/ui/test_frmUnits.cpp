// The units dialog.
#include <string>
#include <vector>

#include "FormTest.h"
#include "files/SettingsFiles.h"
#include "support/Matchers.h"
#include "ui/frmUnits.h"

namespace lithmark::tests {
namespace {

class UnitsDialog : public FormTest {
  protected:
    // Picks a row of each list and saves.
    void Save(int length1, int length2, int force1, int force2, int temperature) {
        OnShown<frmUnits>([=](frmUnits& form) {
            Select(form, "CboLength(0)", length1);
            Select(form, "CboLength(1)", length2);
            Select(form, "CboForce(0)", force1);
            Select(form, "CboForce(1)", force2);
            Select(form, "CboTemperature", temperature);
            Click(form, "cmdSave");
            EXPECT_TRUE(form.Unloaded());
        });
    }
};

TEST_F(UnitsDialog, CaptionsComeByTheirNumbers) {
    LanguageTexts().SetCurrent(Language::Ids);
    OnShown<frmUnits>([](frmUnits& form) {
        EXPECT_EQ(form.Caption, "T<17>");
        EXPECT_EQ(form.lblLength[0].Caption, "T<10141>");
        EXPECT_EQ(form.lblLength[1].Caption, "T<10142>");
        EXPECT_EQ(form.LblForce[0].Caption, "T<10143>");
        EXPECT_EQ(form.LblForce[1].Caption, "T<10144>");
        EXPECT_EQ(form.Lbltemperature.Caption, "T<62>");
        EXPECT_EQ(form.cmdSave.Caption, "T<111>");
        EXPECT_EQ(form.CmdCancel.Caption, "T<7>");
        EXPECT_EQ(form.cmdHelp.Caption, "T<8>");
    });
}

TEST_F(UnitsDialog, TheListsHoldNamesAndLabelsAndShowTheUnitsInForce) {
    OnShown<frmUnits>([](frmUnits& form) {
        EXPECT_THAT(form.CboLength[0].Items, ElementsAre("Meter, [m]", "Foot, [ft]", "Inch, [in]", "Centimeter, [cm]",
                                                         "Millimeter, [mm]", "Yard, [yd]"));
        EXPECT_EQ(form.CboLength[1].Items, form.CboLength[0].Items);
        EXPECT_THAT(form.CboForce[0].Items, ElementsAre("Kilonewton, [kN]", "Newton, [N]", "Kilogram-force, [kgf]",
                                                        "Kip, [kip]", "Pound-force, [lbf]", "Ton-force (US), [tonf]",
                                                        "Kilogram, [kg]", "Ton, [ton]", "Meganewton, [MN]"));
        EXPECT_EQ(form.CboForce[1].Items, form.CboForce[0].Items);
        EXPECT_THAT(form.CboTemperature.Items, ElementsAre("Degree Celsius, [°C]", "Kelvin, [°K]",
                                                           "Degree Fahrenheit, [°F]", "Degree Rankine, [°R]"));
        EXPECT_EQ(form.CboLength[0].Text, "Meter, [m]");
        EXPECT_EQ(form.CboLength[1].Text, "Centimeter, [cm]");
        EXPECT_EQ(form.CboForce[0].Text, "Kilonewton, [kN]");
        EXPECT_EQ(form.CboForce[1].Text, "Meganewton, [MN]");
        EXPECT_EQ(form.CboTemperature.Text, "Degree Celsius, [°C]");
    });
}

TEST_F(UnitsDialog, ALabelThatIsNotInTheTableLeavesTheList) {
    Session.Len1Label = "[mile]";
    OnShown<frmUnits>([](frmUnits& form) {
        EXPECT_EQ(form.CboLength[0].ListIndex, -1);
        EXPECT_EQ(form.CboLength[0].Text, "");
        Click(form, "cmdSave");
    });
    EXPECT_EQ(Session.Len1Label, "[m]");  // nothing chosen is the base unit
    EXPECT_EQ(Session.Len1Factor, 1);
}

TEST_F(UnitsDialog, SavingTheStandardUnitsWritesFactorsOfOne) {
    OnShown<frmUnits>([](frmUnits& form) { Click(form, "cmdSave"); });
    EXPECT_EQ(ReadBytes(SettingsFile("Units")), "\"[m]\",1\r\n\"[cm]\",1\r\n\"[kN]\",1\r\n\"[MN]\",1\r\n\"[°C]\"\r\n");
    EXPECT_TRUE(Session.DialogOk);
}

// Length 2 counts from the centimetre and Force 2 from the meganewton: mm 1000/100, kN 1 * 1000.
TEST_F(UnitsDialog, TheSecondGroupsHaveBaseUnitsOfTheirOwn) {
    Save(4, 4, 1, 0, 2);
    EXPECT_EQ(Session.Len1Label, "[mm]");
    EXPECT_EQ(Session.Len1Factor, 1000);
    EXPECT_EQ(Session.Len2Label, "[mm]");
    EXPECT_EQ(Session.Len2Factor, 10);
    EXPECT_EQ(Session.Force1Label, "[N]");
    EXPECT_EQ(Session.Force1Factor, 1000);
    EXPECT_EQ(Session.Force2Label, "[kN]");
    EXPECT_EQ(Session.Force2Factor, 1000);
    EXPECT_EQ(Session.TempLabel, "[°F]");
    EXPECT_EQ(ReadBytes(SettingsFile("Units")),
              "\"[mm]\",1000\r\n\"[mm]\",10\r\n\"[N]\",1000\r\n\"[kN]\",1000\r\n\"[°F]\"\r\n");
}

TEST_F(UnitsDialog, FeetAndMetresHaveTheirFactors) {
    Save(1, 0, 2, 8, 1);
    EXPECT_EQ(Session.Len1Factor, 3.28083989501312);
    EXPECT_EQ(Session.Len2Factor, 0.01);
    EXPECT_EQ(Session.Force1Factor, 101.971621297793);
    EXPECT_EQ(Session.Force2Factor, 1);
    EXPECT_EQ(ReadBytes(SettingsFile("Units")),
              "\"[ft]\",3.28083989501312\r\n\"[m]\",.01\r\n\"[kgf]\",101.971621297793\r\n\"[MN]\",1\r\n\"[°K]\"\r\n");
}

TEST_F(UnitsDialog, EveryRowIsFoundAgain) {
    const std::vector<std::pair<const char*, double>> lengths = {
        {"[m]", 1},     {"[ft]", 3.28083989501312}, {"[in]", 39.3700787401575}, {"[cm]", 100},
        {"[mm]", 1000}, {"[yd]", 1.09361329833771}};
    for (std::size_t row = 0; row < lengths.size(); ++row) {
        Save(static_cast<int>(row), 3, 0, 8, 0);
        EXPECT_EQ(Session.Len1Label, lengths[row].first);
        EXPECT_EQ(Session.Len1Factor, lengths[row].second);
    }
    // Deliberate: kilogram and ton count 10 m/s2.
    const std::vector<std::pair<const char*, double>> forces = {{"[kN]", 1},
                                                                {"[N]", 1000},
                                                                {"[kgf]", 101.971621297793},
                                                                {"[kip]", 0.224808923655339},
                                                                {"[lbf]", 224.808923655339},
                                                                {"[tonf]", 0.112404474462434},
                                                                {"[kg]", 100},
                                                                {"[ton]", 0.1},
                                                                {"[MN]", 0.001}};
    for (std::size_t row = 0; row < forces.size(); ++row) {
        Save(0, 3, static_cast<int>(row), 8, 0);
        EXPECT_EQ(Session.Force1Label, forces[row].first);
        EXPECT_EQ(Session.Force1Factor, forces[row].second);
    }
    const std::vector<const char*> temperatures = {"[°C]", "[°K]", "[°F]", "[°R]"};
    for (std::size_t row = 0; row < temperatures.size(); ++row) {
        Save(0, 3, 0, 8, static_cast<int>(row));
        EXPECT_EQ(Session.TempLabel, temperatures[row]);
    }
}

TEST_F(UnitsDialog, WhatIsSavedIsReadAgainInEveryLanguage) {
    LanguageTexts().SetCurrent(Language::Arabic);
    Save(5, 2, 3, 4, 3);
    const double length2 = Session.Len2Factor, force2 = Session.Force2Factor;
    EXPECT_EQ(length2, 39.3700787401575 / 100);
    EXPECT_EQ(force2, 224.808923655339 * 1000);
    StartIn(Language::German);
    LoadUnits();
    EXPECT_EQ(Session.Len1Label, "[yd]");
    EXPECT_EQ(Session.Len2Label, "[in]");
    EXPECT_EQ(Session.Len2Factor, length2);
    EXPECT_EQ(Session.Force1Label, "[kip]");
    EXPECT_EQ(Session.Force2Factor, force2);
    EXPECT_EQ(Session.TempLabel, "[°R]");
}

TEST_F(UnitsDialog, AFileThatCannotBeWrittenIsToldAndTheDialogStays) {
    std::filesystem::create_directory(SettingsFile("Units"));
    Session.DialogOk = false;
    OnShown<frmUnits>([this](frmUnits& form) {
        Click(form, "cmdSave");
        EXPECT_FALSE(form.Unloaded());
        EXPECT_EQ(host.Messages.size(), 1u);
    });
    EXPECT_FALSE(Session.DialogOk);
}

TEST_F(UnitsDialog, ADialogLeftWithoutASaveIsNotConfirmed) {
    Session.DialogOk = true;  // from another dialog
    OnShown<frmUnits>([](frmUnits& form) { Click(form, "CmdCancel"); });
    EXPECT_FALSE(Session.DialogOk);
}

TEST_F(UnitsDialog, CancelChangesNothingAndHelpIsAPage) {
    OnShown<frmUnits>([](frmUnits& form) {
        Click(form, "cmdHelp");
        Select(form, "CboLength(0)", 4);
        Click(form, "CmdCancel");
        EXPECT_TRUE(form.Unloaded());
    });
    EXPECT_EQ(Session.Len1Label, "[m]");
    EXPECT_FALSE(std::filesystem::exists(SettingsFile("Units")));
    EXPECT_THAT(host.HelpTopics, ElementsAre("7_7"));
}

// --- sets of units ---

TEST_F(UnitsDialog, ASetPicksTheUnitsAndASaveTakesThem) {
    OnShown<frmUnits>([](frmUnits& form) {
        EXPECT_EQ(form.CboPreset.ListIndex, 1);  // m, cm, kN, MN
        Select(form, "CboPreset", 2);
        EXPECT_EQ(form.CboLength[0].Text, "Foot, [ft]");
        EXPECT_EQ(form.CboLength[1].Text, "Inch, [in]");
        EXPECT_EQ(form.CboForce[0].Text, "Kip, [kip]");
        EXPECT_EQ(form.CboForce[1].Text, "Kip, [kip]");
        EXPECT_EQ(form.CboTemperature.Text, "Degree Fahrenheit, [°F]");
        EXPECT_EQ(Session.Len1Label, "[m]");  // nothing is stored before the save
        Click(form, "cmdSave");
    });
    EXPECT_EQ(Session.Len1Label, "[ft]");
    EXPECT_EQ(Session.Force2Label, "[kip]");
    OnShown<frmUnits>([](frmUnits& form) { EXPECT_EQ(form.CboPreset.ListIndex, 2); });
}

TEST_F(UnitsDialog, AnotherUnitOfASetIsAnOwnChoice) {
    OnShown<frmUnits>([](frmUnits& form) {
        Select(form, "CboLength(1)", 4);
        EXPECT_EQ(form.CboPreset.ListIndex, 0);
        Select(form, "CboPreset", 0);  // leaves the choice as it is
        EXPECT_EQ(form.CboLength[1].ListIndex, 4);
        Select(form, "CboPreset", 3);
        EXPECT_EQ(form.CboForce[0].Text, "Kilogram-force, [kgf]");
    });
}

// By hand: 2 m are 6.56 ft, 1.5 cm 0.59 in, 1000 kN 224.8 kip, 150 kN/m2 3.13 kip/ft2 and 18 kN/m3 0.11 kip/ft3.
TEST_F(UnitsDialog, TheLineBelowTellsHowQuantitiesRead) {
    OnShown<frmUnits>([](frmUnits& form) {
        EXPECT_EQ(form.lblPreview.Caption,
                  "The same values read: depth \u20662.00 m\u2069, settlement \u20661.50 cm\u2069, load \u20661000.0 "
                  "kN\u2069, "
                  "pressure \u2066150.0 kN/m²\u2069, unit weight \u206618.0 kN/m³\u2069");
        Select(form, "CboPreset", 2);
        EXPECT_EQ(form.lblPreview.Caption,
                  "The same values read: depth \u20666.56 ft\u2069, settlement \u20660.59 in\u2069, load \u2066224.8 "
                  "kip\u2069, "
                  "pressure \u20663.1 kip/ft²\u2069, unit weight \u20660.1 kip/ft³\u2069");
        EXPECT_EQ(Session.Len1Label, "[m]");
    });
}

}  // namespace
}  // namespace lithmark::tests
