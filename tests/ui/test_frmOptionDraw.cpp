// The choice of a curve: what it offers for a problem, and what it stores.
#include <set>
#include <string>

#include "FormTest.h"
#include "support/Matchers.h"
#include "ui/frmOptionDraw.h"

namespace lithmark::tests {
namespace {

class CurveChoice : public FormTest {
  protected:
    void OnChoice(int problem, std::function<void(frmOptionDraw&)> script) {
        Session.ProblemType = problem;
        OnShown<frmOptionDraw>(std::move(script));
    }
};

std::set<int> Offered(const frmOptionDraw& form) {
    std::set<int> offered;
    for (int i = 0; i <= 6; ++i)
        if (form.optDraw[i].Visible) offered.insert(i);
    return offered;
}

TEST_F(CurveChoice, TimeSettlementOffersTheCorrectedCurveOnlyWithAMeasurement) {
    for (const int problem : {6, 7, 8, 11})
        for (const bool measured : {false, true}) {
            Session.Ms = measured;
            OnChoice(problem, [&](frmOptionDraw& form) {
                EXPECT_EQ(Offered(form), (measured ? std::set<int>{0, 1, 2, 3} : std::set<int>{0, 1, 2}));
                EXPECT_EQ(form.optDraw.Selected(), 0);
                EXPECT_TRUE(form.fraLoadUnit.Visible && form.fraSettlementUnit.Visible);
            });
        }
}

TEST_F(CurveChoice, ARaftOffersPressuresAndSettlementsAndNoUnits) {
    Session.Ms = true;
    for (const int problem : {9, 10})
        OnChoice(problem, [&](frmOptionDraw& form) {
            EXPECT_EQ(Offered(form), (std::set<int>{4, 5}));
            EXPECT_EQ(form.optDraw.Selected(), 4);
            EXPECT_EQ(form.optDraw[5].Caption, Text(problem == 9 ? 140189_text : 140190_text));
            for (const char* name : {"fraLoadUnit", "optLoadUnit(0)", "optLoadUnit(1)", "fraSettlementUnit",
                                     "optSettlementUnit(0)", "optSettlementUnit(1)"})
                EXPECT_FALSE(form.Find(name)->Visible) << name;
        });
}

TEST_F(CurveChoice, ConfirmingAtOnceTakesTheFirstCurveInTheUnitsInForce) {
    Session.Force1Label = "[MN]";
    Session.Len2Label = "[mm]";
    OnChoice(6, [](frmOptionDraw& form) {
        EXPECT_FALSE(Session.DialogOk);
        EXPECT_EQ(form.optLoadUnit[1].Caption, "[MN]");
        EXPECT_EQ(form.optSettlementUnit[1].Caption, "[mm]");
        Click(form, "cmdok");
        EXPECT_TRUE(form.Unloaded());
    });
    EXPECT_TRUE(Session.DialogOk);
    EXPECT_EQ(Session.CurveChoice, "Tab1");
    EXPECT_EQ(Session.CurveLoadUnit, "[MN]");
    EXPECT_EQ(Session.CurveSettlementUnit, "[mm]");

    OnChoice(9, [](frmOptionDraw& form) { Click(form, "cmdok"); });
    EXPECT_EQ(Session.CurveChoice, "Tab5");
}

TEST_F(CurveChoice, EachOptionHasItsCurve) {
    Session.Ms = true;
    for (int option = 0; option <= 5; ++option) {
        OnChoice(option < 4 ? 7 : 10, [&](frmOptionDraw& form) {
            Click(form, "optDraw(" + std::to_string(option) + ")");
            Click(form, "cmdok");
        });
        EXPECT_EQ(Session.CurveChoice, "Tab" + std::to_string(option + 1));
    }
}

TEST_F(CurveChoice, UnitsCanBePerCent) {
    OnChoice(8, [](frmOptionDraw& form) {
        Click(form, "optLoadUnit(0)");
        Click(form, "optSettlementUnit(0)");
        Click(form, "cmdok");
    });
    EXPECT_EQ(Session.CurveLoadUnit, "[%]");
    EXPECT_EQ(Session.CurveSettlementUnit, "[%]");
}

TEST_F(CurveChoice, EveryOpeningStartsFromTheSameChoice) {
    OnChoice(8, [](frmOptionDraw& form) {
        Click(form, "optDraw(2)");
        Click(form, "optLoadUnit(0)");
        Click(form, "cmdok");
    });
    OnChoice(8, [](frmOptionDraw& form) {
        EXPECT_EQ(form.optDraw.Selected(), 0);
        EXPECT_EQ(form.optLoadUnit.Selected(), 1);
        EXPECT_EQ(Session.CurveChoice, "Tab1");
    });
}

TEST_F(CurveChoice, CancelLeavesNoConfirmation) {
    Session.DialogOk = true;
    OnChoice(8, [](frmOptionDraw& form) {
        Click(form, "optDraw(2)");
        Click(form, "CmdCancel");
        EXPECT_TRUE(form.Unloaded());
    });
    EXPECT_FALSE(Session.DialogOk);
    EXPECT_EQ(Session.CurveChoice, "Tab1");
}

TEST_F(CurveChoice, HelpInThreeLanguages) {
    const auto helpOf = [this](Language language) {
        LanguageTexts().SetCurrent(language);
        OnChoice(8, [](frmOptionDraw& form) { Click(form, "cmdHelp"); });
        EXPECT_EQ(host.HelpTexts.back().Title, Text(400002_text));
        return host.HelpTexts.back().Text;
    };
    EXPECT_EQ(helpOf(Language::German),
              "Dieses Menü zeigt die verfügbaren Kurven der Ergebnisse an.\r"
              "Wählen Sie eine der Kurven der Ergebnisse aus,\r"
              "die Sie darstellen wollen. Dann, klicken Sie auf Schaltfläche „OK“.");
    EXPECT_EQ(helpOf(Language::English),
              "This menu shows the available curves of results.\rSelect a curve of results to draw,\r"
              "then click on the button 'OK'.");
    EXPECT_EQ(helpOf(Language::Arabic),
              "هذه القائمة تعرض المنحنيات المتاحة من النتائج.\rاختار منحنى من النتائج للعرض،\rثم انقر زر «موافق».");
}

}  // namespace
}  // namespace lithmark::tests
