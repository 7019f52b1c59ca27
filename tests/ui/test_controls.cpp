// Controls by kind, control arrays, the flags of saved problems, and the help box.
#include <gmock/gmock.h>

#include "support/Files.h"
#include "support/ScriptedHost.h"
#include "ui/model/Controls.h"
#include "ui/model/HelpText.h"
#include "ui/model/ProjectFlags.h"

using namespace lithmark;
using namespace lithmark::tests;

namespace {

struct TwoOptions : Form {
    TwoOptions() : Form("frmTwoOptions") {}
    TextBox txt{*this, "txt"};
    ControlArray<OptionButton, 2, 1> opt{*this, "opt"};
};

TEST(Controls, AControlArrayCarriesItsIndicesInItsNames) {
    TwoOptions form;
    EXPECT_EQ(form.opt[1].Name, "opt(1)");
    EXPECT_EQ(form.opt[2].Name, "opt(2)");
    EXPECT_EQ(form.Find("opt(2)"), &form.opt[2]);
    EXPECT_EQ(form.opt[1].Kind, ControlKind::Option);
    EXPECT_EQ(form.txt.Kind, ControlKind::TextBox);
    EXPECT_EQ(KindOf([&] { form.opt[0].Value = true; }), FailureKind::SubscriptRange);
    EXPECT_EQ(KindOf([&] { form.opt[3].Value = true; }), FailureKind::SubscriptRange);
}

TEST(Controls, AControlArrayTellsWhichOptionIsSet) {
    TwoOptions form;
    EXPECT_EQ(form.opt.Selected(), 0);
    Click(form, "opt(2)");
    EXPECT_EQ(form.opt.Selected(), 2);
    Click(form, "opt(1)");
    EXPECT_EQ(form.opt.Selected(), 1);
}

TEST(ProjectFlags, EachEntryHasItsOwn) {
    SetProblemSaved(3, true);
    EXPECT_TRUE(ProblemSaved(3));
    EXPECT_FALSE(ProblemSaved(4));
    SetProblemSaved(3, false);
    EXPECT_FALSE(ProblemSaved(3));
    EXPECT_EQ(KindOf([] { ProblemSaved(16); }), FailureKind::SubscriptRange);
}

TEST(HelpText, LinesOfTheLanguageInForceAreEndedByReturnsTheLastOneAsTold) {
    const HelpLines lines{{"eins", "zwei"}, {"one", "two"}, {"واحد", "اثنان"}};
    ScriptedHost host;
    LanguageTexts().SetCurrent(Language::German);
    ShowHelp("Titel", lines);
    LanguageTexts().SetCurrent(Language::Arabic);
    ShowHelp("عنوان", lines);
    LanguageTexts().SetCurrent(Language::English);
    ShowHelp("Title", lines, LastHelpLine::EndsInReturn);
    ASSERT_EQ(host.HelpTexts.size(), 3u);
    EXPECT_EQ(host.HelpTexts[0].Title, "Titel");
    EXPECT_EQ(host.HelpTexts[0].Text, "eins\rzwei");
    EXPECT_EQ(host.HelpTexts[1].Text, "واحد\rاثنان");
    EXPECT_EQ(host.HelpTexts[2].Text, "one\rtwo\r");
}

}  // namespace
