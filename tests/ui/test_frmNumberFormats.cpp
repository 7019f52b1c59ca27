// The dialog of the number formats, and what a format must do.
#include <string>
#include <vector>

#include "FormTest.h"
#include "core/Units.h"
#include "files/SettingsFiles.h"
#include "support/Matchers.h"
#include "ui/frmNumberFormats.h"
#include "ui/model/FormatCheck.h"

namespace lithmark::tests {
namespace {

class NumberFormatsDialog : public FormTest {};

TEST_F(NumberFormatsDialog, AFormatMustPrintTheNumber) {
    for (const char* good : {"", "0", "0.0", "0.00", "0.0000000", "#0.0", "000.0", "0.0##", "0.00E+00"})
        EXPECT_EQ(FormatFault(good), std::nullopt) << good;
    // The digit 1 is copied, per cent multiplies, thousands are no number to a box, "#" prints nothing for 0.
    for (const char* bad : {"1.00", "0%", "#,##0.0", "#", "#.##", "x0.0", "0.0 m", "no digits", "Long Date"})
        EXPECT_NE(FormatFault(bad), std::nullopt) << bad;
    EXPECT_EQ(FormatFault("1.00"), "\"1.00\" prints 5 as \"15.00\".");
}

TEST_F(NumberFormatsDialog, AnEndlessFormatIsQuotedInPart) {
    const std::string nines(40, '9');
    EXPECT_EQ(FormatFault(std::string(100000, '9')), "\"" + nines + "...\" prints 5 as \"" + nines + "...\".");
}

TEST_F(NumberFormatsDialog, TheDefaultsAreGood) {
    for (const NumberFormatRow& row : NumberFormats()) EXPECT_EQ(FormatFault(row.Default), std::nullopt) << row.Default;
}

TEST_F(NumberFormatsDialog, TheDecimalSignOfTheUserIsRead) {
    SharedServices().DecimalSign = ',';
    EXPECT_EQ(FormatFault("0.00"), std::nullopt);
    EXPECT_NE(FormatFault("1.00"), std::nullopt);
}

TEST_F(NumberFormatsDialog, ThePreviewFollowsTheFormatAndTheUnits) {
    OnShown<frmNumberFormats>([](frmNumberFormats& form) {
        EXPECT_EQ(form.txtFormat[5].Text, "0.00");
        EXPECT_EQ(form.lblPreview[5].Caption, "5.00 m");
        Type(form, "txtFormat(5)", "0.0");
        EXPECT_EQ(form.lblPreview[5].Caption, "5.0 m");
        EXPECT_EQ(form.lblFault.Caption, " ");
        Type(form, "txtFormat(5)", "1.00");
        EXPECT_EQ(form.lblPreview[5].Caption, "no number");
        EXPECT_THAT(form.lblFault.Caption, HasSubstr("1.00"));
        EXPECT_EQ(form.MarkOf(form.txtFormat[5]), form.lblFault.Caption);
        EXPECT_EQ(form.MarkOf(form.txtFormat[4]), "");
    });
    Session.Len1Label = "[ft]";
    Session.Len1Factor = 3.28083989501312;
    OnShown<frmNumberFormats>(
        [](frmNumberFormats& form) { EXPECT_EQ(form.lblPreview[5].Caption, "16.40 ft"); });  // 5 m by hand
}

TEST_F(NumberFormatsDialog, SavingWritesTheFileAndPutsTheFormatsInForce) {
    Session.FmtReserve5 = "0.000000";  // not shown, and kept
    OnShown<frmNumberFormats>([](frmNumberFormats& form) {
        Type(form, "txtFormat(0)", "0.000");
        Type(form, "txtFormat(4)", "0.0");
        Click(form, "cmdSave");
        EXPECT_TRUE(form.Unloaded());
    });
    EXPECT_EQ(Session.FmtForce, "0.000");
    EXPECT_EQ(Session.FmtForceFine, "0.000000");
    EXPECT_EQ(Session.FmtDialogModulus, "0.0");
    EXPECT_EQ(ReadBytes(SettingsFile("NOFORMAT")),
              Lines({"0.000", "0.00", "0.0", "0.0", "0.0", "0.0", "0.0", "0.00", "0.00", "0.0000", "0.0000000",
                     "0.0000", "0.00", "0.00", "0.00", "0.0", "0.000000", "0.0"}));
    SetDefaultNumberFormats();
    LoadNumberFormats();
    EXPECT_EQ(Session.FmtForce, "0.000");
}

TEST_F(NumberFormatsDialog, AFormatThatPrintsNonsenseIsRefusedAndNothingIsStored) {
    OnShown<frmNumberFormats>([&](frmNumberFormats& form) {
        Type(form, "txtFormat(0)", "0.000");
        Type(form, "txtFormat(5)", "1.00");
        Click(form, "cmdSave");
        EXPECT_FALSE(form.Unloaded());
        EXPECT_EQ(form.Focus, &form.txtFormat[5]);
    });
    EXPECT_THAT(host.LastMessage().Text, HasSubstr("15.00"));
    EXPECT_EQ(Session.FmtForce, "0.0");
    EXPECT_FALSE(std::filesystem::exists(SettingsFile("NOFORMAT")));
}

TEST_F(NumberFormatsDialog, ADisturbedFileIsMendedByTheStandardFormats) {
    Session.FmtLength = "1.00";
    OnShown<frmNumberFormats>([](frmNumberFormats& form) {
        EXPECT_NE(form.MarkOf(form.txtFormat[5]), "");
        Click(form, "cmdDefault");
        EXPECT_EQ(form.txtFormat[5].Text, "0.00");
        EXPECT_EQ(form.lblFault.Caption, " ");
        EXPECT_EQ(Session.FmtLength, "1.00");  // nothing is stored before the save
        Click(form, "cmdSave");
    });
    EXPECT_EQ(Session.FmtLength, "0.00");
}

TEST_F(NumberFormatsDialog, AFileThatCannotBeWrittenLeavesTheFormatsInForce) {
    std::filesystem::create_directory(SettingsFile("NOFORMAT"));
    OnShown<frmNumberFormats>([](frmNumberFormats& form) {
        Type(form, "txtFormat(0)", "0.000");
        Click(form, "cmdSave");
        EXPECT_FALSE(form.Unloaded());
        Click(form, "CmdCancel");
    });
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_EQ(Session.FmtForce, "0.0");
}

TEST_F(NumberFormatsDialog, EnterGoesDownTheBoxesAndSaves) {
    OnShown<frmNumberFormats>([](frmNumberFormats& form) {
        PressEnter(form, "txtFormat(0)");
        EXPECT_EQ(form.Focus, &form.txtFormat[1]);
        PressEnter(form, "txtFormat(12)");
        EXPECT_TRUE(form.Unloaded());
    });
}

}  // namespace
}  // namespace lithmark::tests
