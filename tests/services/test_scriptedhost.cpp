// The tests' own host: its promises hold, so that a story in a test can be trusted.
#include <gtest/gtest-spi.h>

#include "support/Matchers.h"
#include "support/ScriptedHost.h"

namespace lithmark::tests {
namespace {

struct DemoForm : Form {
    DemoForm() : Form("frmDemo") {
        txt.OnChange = [this] { log += "change " + txt.Text + ";"; };
        txt.OnEnter = [this] { log += "enter;"; };
        cmd.OnClick = [this] { log += "click;"; };
        chk.OnClick = [this] { log += chk.Value ? "on;" : "off;"; };
        cmb.Items = {"one", "two"};
        cmb.OnChange = [this] { log += "row " + cmb.Text + ";"; };
        first.Value = true;
        other.Value = true;
    }
    void Load() override { log += "load;"; }
    void Activate() override { log += "activate;"; }
    void Unloading() override { log += "unload;"; }

    Control txt{*this, ControlKind::TextBox, "txt"};
    Control cmd{*this, ControlKind::Button, "cmd"};
    Control chk{*this, ControlKind::CheckBox, "chk"};
    Control cmb{*this, ControlKind::ComboBox, "cmb"};
    Control first{*this, ControlKind::Option, "opt(1)"};
    Control second{*this, ControlKind::Option, "opt(2)"};
    Control other{*this, ControlKind::Option, "optOther(1)"};
    std::string log;
};

TEST(ScriptedHost, ShowsAFormAsAHostDoesAndRunsTheScriptOnIt) {
    ScriptedHost host;
    DemoForm form;
    host.OnForm<DemoForm>([](DemoForm& shown) {
        Type(shown, "txt", "5");
        PressEnter(shown, "txt");
        EXPECT_EQ(shown.Focus, &shown.txt);
        Select(shown, "cmb", 1);
        Click(shown, "chk");
        Click(shown, "chk");
        Click(shown, "cmd");
    });
    CurrentHost().ShowForm(form);
    EXPECT_EQ(form.log, "load;activate;change 5;enter;row two;on;off;click;unload;");
    EXPECT_TRUE(form.Unloaded());
    EXPECT_THAT(host.FormsShown, ElementsAre("frmDemo"));
}

TEST(ScriptedHost, AFormThatUnloadsItselfIsNotUnloadedTwiceAndCanBeShownAgain) {
    ScriptedHost host;
    DemoForm form;
    for (int i = 0; i < 2; ++i) {
        host.OnForm([](Form& shown) { shown.Unload(); });
        CurrentHost().ShowForm(form);
    }
    EXPECT_EQ(form.log, "load;activate;unload;load;activate;unload;");
}

TEST(ScriptedHost, AClickOnAnOptionClearsTheOthersOfItsArrayOnly) {
    DemoForm form;
    Click(form, "opt(2)");
    EXPECT_FALSE(form.first.Value);
    EXPECT_TRUE(form.second.Value);
    EXPECT_TRUE(form.other.Value);
}

TEST(ScriptedHost, AnswersComeInOrder) {
    ScriptedHost host;
    host.AnswerYesNo(true);
    host.AnswerYesNo(false);
    host.AnswerFileToOpen("a.PO3");
    host.AnswerFileToOpen(std::nullopt);
    EXPECT_TRUE(CurrentHost().AskYesNo("t", "first?"));
    EXPECT_FALSE(CurrentHost().AskYesNo("t", "second?"));
    EXPECT_EQ(CurrentHost().ChooseFileToOpen("t", "dir", "*.PO3"), "a.PO3");
    EXPECT_EQ(CurrentHost().ChooseFileToOpen("t", "dir", "*.PO3"), std::nullopt);
    EXPECT_EQ(host.Questions[1].Text, "second?");
    EXPECT_EQ(host.OpenQuestions[0].Pattern, "*.PO3");
}

TEST(ScriptedHost, AMissingAnswerFailsTheTest) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedHost host;
            CurrentHost().AskYesNo("t", "why?");
        },
        "no answer in the script for: yes or no question: why?");
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedHost host;
            DemoForm form;
            CurrentHost().ShowForm(form);
            EXPECT_TRUE(form.Unloaded());
        },
        "no answer in the script for: form frmDemo");
}

TEST(ScriptedHost, AnAnswerLeftOverFailsTheTest) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedHost host;
            host.AnswerFolder("somewhere");
        },
        "1 answer(s) left over: folder");
}

TEST(ScriptedHost, WhatAUserCouldNotDoFailsTheTest) {
    static DemoForm form;
    form.cmd.Enabled = false;
    form.txt.Visible = false;
    EXPECT_NONFATAL_FAILURE(Click(form, "cmd"), "cmd is not enabled");
    EXPECT_NONFATAL_FAILURE(Type(form, "txt", "1"), "txt is not visible");
    EXPECT_NONFATAL_FAILURE(PressEnter(form, "txtNone"), "has no control txtNone");
    EXPECT_EQ(form.log, "");
}

TEST(ScriptedHost, TheHostInForceIsSilentAgainAfterIt) {
    { ScriptedHost host; }
    CurrentHost().ShowMessage("nobody", "sees this", MessageIcon::None);
    EXPECT_THROW(CurrentHost().AskYesNo("t", "anybody?"), Failure);
}

// Each operation that the silent host does not offer is a failure of who calls it.
TEST(Host, AHostOffersNothingButSilentMessagesUnlessItSaysSo) {
    Host& host = CurrentHost();
    DemoForm form;
    TableEdit table;
    EXPECT_TRUE(host.Progress(0.5));
    host.SetPointer(PointerShape::Hourglass);
    host.ShowFileStatus(FileStatus::Reading);
    EXPECT_THROW(host.ShowForm(form), Failure);
    EXPECT_THROW(host.SetFocus(form, form.txt), Failure);
    EXPECT_THROW(host.ShowHelpText("", ""), Failure);
    EXPECT_THROW(host.ShowHelpTopic(""), Failure);
    EXPECT_THROW(host.ChooseFileToOpen("", "", ""), Failure);
    EXPECT_THROW(host.ChooseFileToSave("", "", "", ""), Failure);
    EXPECT_THROW(host.BrowseFolder(""), Failure);
    EXPECT_THROW(host.EditCompanyLines({}), Failure);
    EXPECT_THROW(host.ChooseLanguage(Language::German), Failure);
    EXPECT_THROW(host.EditTable(table), Failure);
    EXPECT_THROW(host.ShowFileList("", ""), Failure);
    EXPECT_THROW(host.ShowTextEditor(""), Failure);
    EXPECT_THROW(host.ShowChart({}), Failure);
    EXPECT_THROW(host.PrintText("", "", 8, false), Failure);
    EXPECT_THROW(host.OpenWordProcessor("", "", 8, false), Failure);
    EXPECT_THROW(host.SetClipboardText(""), Failure);
    EXPECT_THROW(host.StartProcess("", {}), Failure);
}

}  // namespace
}  // namespace lithmark::tests
