// The splash and the about window.
#include <string>

#include "FormTest.h"
#include "ui/frmAbout.h"
#include "ui/frmSplash.h"

namespace lithmark::tests {
namespace {

class SplashForm : public FormTest {
  protected:
    SplashForm() {
        host.OnEvents = [this] { now += step; };
    }
    long long now = 5000, step = 100;
    frmSplash splash{[this] { return now; }};
};

TEST_F(SplashForm, ShowsNameAuthorsAndVersion) {
    splash.Load();
    EXPECT_EQ(splash.lblPlatform.Caption, "Calculations for foundation engineering and soil mechanics");
    EXPECT_EQ(splash.Label1.Caption, "Lithmark");
    EXPECT_EQ(splash.Label3.Caption, "Authors: " + LanguageTexts().AuthorsText());
    EXPECT_FALSE(splash.Label4.Caption.empty());
    EXPECT_FALSE(splash.Label5.Caption.empty());
    EXPECT_EQ(splash.lblVersion.Caption, "Version " + LanguageTexts().VersionText());
}

TEST_F(SplashForm, WaitsUntilMoreThanThreeSecondsHavePassed) {
    splash.Load();
    splash.Tag = "Start Prog";
    splash.Unload();
    EXPECT_EQ(now, 8100);  // 3000 ms are not more than 3000 ms
    EXPECT_TRUE(splash.Unloaded());
    EXPECT_EQ(splash.Tag, "");
}

TEST_F(SplashForm, DoesNotWaitAfterASlowStart) {
    splash.Load();
    now += 3001;
    splash.Tag = "Start Prog";
    splash.Unload();
    EXPECT_EQ(now, 8001);
}

TEST_F(SplashForm, AKeyOrAClickEndsItAtOnce) {
    for (const char* name : {"imgLogo", "lblPlatform", "Label1", "Label3", "Label4", "Label5", "lblVersion"}) {
        splash.Reopen();
        splash.Load();
        Click(splash, name);
        EXPECT_TRUE(splash.Unloaded()) << name;
    }
    splash.Reopen();
    splash.Load();
    splash.Dismiss();
    EXPECT_TRUE(splash.Unloaded());
    splash.Tag = "Start Prog";
    splash.Unload();
    EXPECT_EQ(now, 5000);
}

TEST_F(SplashForm, AClickDuringTheWaitEndsIt) {
    splash.Load();
    host.OnEvents = [this] {
        now += 1000;
        splash.Dismiss();
    };
    splash.Tag = "Start Prog";
    splash.Unload();
    EXPECT_EQ(now, 6000);  // 5000 at the load, one round of events
    EXPECT_TRUE(splash.Unloaded());
}

TEST_F(FormTest, AboutTellsNameAndVersion) {
    LanguageTexts().SetCurrent(Language::Ids);
    OnShown<frmAbout>([](frmAbout& form) {
        EXPECT_EQ(form.Caption, "T<140119>");
        EXPECT_EQ(form.lblTitle.Caption, "T<160030>");
        EXPECT_EQ(form.lblDescription.Caption, "T<140123>");
        EXPECT_EQ(form.lblVersion.Caption, "T<91>(" + LanguageTexts().VersionText() + ")");
        EXPECT_FALSE(form.lblDisclaimer.Caption.empty());
        EXPECT_EQ(form.cmdok.Caption, "T<6>");
        Click(form, "cmdok");
        EXPECT_TRUE(form.Unloaded());
    });
}

}  // namespace
}  // namespace lithmark::tests
