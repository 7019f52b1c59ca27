// Controls by kind, control arrays and lists, captions, the flags of saved problems.
#include <gmock/gmock.h>

#include "support/Files.h"
#include "support/ScriptedHost.h"
#include "ui/model/Controls.h"
#include "ui/model/ProjectFlags.h"

namespace lithmark::tests {
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

TEST(ControlList, TakesSingleControlsAndWholeArraysInTheirOrder) {
    TwoOptions form;
    const ControlList all{form.opt, form.txt};
    ASSERT_EQ(all.Count(), 3u);
    EXPECT_EQ(&all[0], &form.opt[1]);
    EXPECT_EQ(&all[1], &form.opt[2]);
    EXPECT_EQ(&all[2], &form.txt);
}

TEST(Words, AreWorkedOutInTheLanguageInForceEachTime) {
    TwoOptions form;
    std::string chosen = "one";
    const std::vector<CaptionRow> rows = {
        {form.txt, 140096_text, Style{4}}, {form.opt[1], [&] { return chosen; }}, {form.opt[2], Axis::X}};
    SetCaptions(rows);
    EXPECT_EQ(form.txt.Caption, "Results:");
    EXPECT_EQ(form.opt[2].Caption, "x-coordinate");
    chosen = "two";
    LanguageTexts().SetCurrent(Language::German);
    SetCaptions(rows);
    EXPECT_EQ(form.txt.Caption, "Ergebnisse:");
    EXPECT_EQ(form.opt[1].Caption, "two");
    LanguageTexts().SetCurrent(Language::English);
    EXPECT_EQ(Words("Nue_s").Text(), "Nue_s");
    EXPECT_TRUE(Words().Empty());
}

}  // namespace
}  // namespace lithmark::tests
