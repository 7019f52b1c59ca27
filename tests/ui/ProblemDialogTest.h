// ProblemDialogTest: a dialog of a problem with an open project, and what a user does in every such dialog.
#pragma once

#include <string>

#include "FormTest.h"
#include "ui/frmResultTools.h"

namespace lithmark::tests {

class ProblemDialogTest : public FormTest {
  protected:
    template <typename F>
    void On(int problem, std::function<void(F&)> script) {
        Session.ProblemType = problem;
        OnShown<F>(std::move(script));
    }
    // Presses cmdResult where it must be refused: the message names the field, which gets the focus; nothing is stored.
    void ExpectRefused(Form& form, Control& box, const std::string& messageStart) {
        const std::size_t messages = host.Messages.size();
        const SessionRecord before = Session;
        Click(form, "cmdResult");
        ASSERT_EQ(host.Messages.size(), messages + 1) << box.Name;
        EXPECT_THAT(host.LastMessage().Text, ::testing::StartsWith(messageStart));
        EXPECT_EQ(form.Focus, &box);
        EXPECT_FALSE(Session.DataValid);
        EXPECT_EQ(Session.z, before.z);
        EXPECT_EQ(Session.h, before.h);
        EXPECT_EQ(Session.A, before.A);
    }
    // Types into a box, expects the refusal, and puts back what stood there.
    void ExpectRefusedText(Form& form, Control& box, const std::string& text, const std::string& messageStart) {
        const std::string before = box.Text;
        Type(form, box.Name, text);
        ExpectRefused(form, box, messageStart);
        Type(form, box.Name, before);
    }
    // Presses cmdResult and closes the viewer.
    void GetResult(Form& form) {
        host.OnForm<frmResultTools>([](frmResultTools& viewer) { Click(viewer, "cmdok"); });
        Click(form, "cmdResult");
    }
    // Follows Enter from box to box; the names of the controls that it leads to, the first box left out.
    std::vector<std::string> EnterWay(Form& form, const std::string& first, int steps) {
        std::vector<std::string> way;
        std::string name = first;
        for (int step = 0; step < steps; ++step) {
            PressEnter(form, name);
            name = form.Focus->Name;
            way.push_back(name);
        }
        return way;
    }
};

}  // namespace lithmark::tests
