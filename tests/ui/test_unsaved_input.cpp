// What was typed and not saved is offered when the dialog opens again, after an end of the program too.
#include <filesystem>

#include "AllForms.h"
#include "FormTest.h"
#include "core/Catalogue.h"
#include "services/storage/DraftStore.h"
#include "ui/model/UnsavedInput.h"

namespace lithmark::tests {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class UnsavedInput : public FormTest {
  protected:
    // A program that starts anew on the same project, nothing of its data saved.
    void StartAnew(int problem) {
        StartIn(Language::English);
        Session.ProblemType = problem;
    }
    std::vector<std::string> Drafts() const {
        std::vector<std::string> names;
        if (std::filesystem::exists(DraftFolder()))
            for (const auto& entry : std::filesystem::directory_iterator(DraftFolder()))
                names.push_back(entry.path().filename());
        return names;
    }
    // Types into the stress dialog and ends it without saving.
    void TypeAndLeave(const std::string& text) {
        StartAnew(1);
        OnShown<frmstress>([&](frmstress& form) {
            Type(form, "txt_z", text);
            form.KeepInput();
            Click(form, "cmdok");
        });
    }
};

TEST_F(UnsavedInput, ComesBackInTheDialogOfEveryProblem) {
    int dialogs = 0;
    for (const FormRow& row : AllForms()) {
        const auto first = row.Make();
        if (dynamic_cast<ProblemForm*>(first.get()) == nullptr) continue;
        SCOPED_TRACE(first->Name + " of problem " + std::to_string(row.ProblemType));
        ++dialogs;
        StartAnew(row.ProblemType);
        std::vector<std::string> typed;
        int boxes = 0;
        host.OnForm([&](Form& shown) {
            auto& form = dynamic_cast<ProblemForm&>(shown);
            for (Control* control : form.Controls()) {
                if (control->Kind == ControlKind::CheckBox && control->Visible && control->Enabled)
                    Click(form, control->Name);
                if (control->Kind == ControlKind::TextBox && control->Visible && control->Enabled && !control->ReadOnly)
                    Type(form, control->Name, boxes++ % 2 == 0 ? "1.23456" : "ab");
            }
            typed = form.Inputs();
            form.KeepInput();
            Click(form, row.CloseButton);
        });
        CurrentHost().ShowForm(*first);
        EXPECT_GE(boxes, 3);
        StartAnew(row.ProblemType);
        const auto second = row.Make();
        host.AnswerYesNo(true);
        host.OnForm([&](Form& shown) {
            const auto& form = dynamic_cast<const ProblemForm&>(shown);
            EXPECT_EQ(form.Inputs(), typed);
            EXPECT_TRUE(form.Modified());
        });
        CurrentHost().ShowForm(*second);
        RemoveDraft(DraftFolder(), Session.DataDir + Session.ProjectName, first->Name);
    }
    EXPECT_EQ(dialogs, 10);
}

TEST_F(UnsavedInput, IsOfferedOnceAndDeclinedForGood) {
    TypeAndLeave("4.5");
    EXPECT_THAT(Drafts(), SizeIs(1));
    StartAnew(1);
    host.AnswerYesNo(false);
    OnShown<frmstress>([](frmstress& form) {
        EXPECT_NE(form.txt_z.Text, "4.5");
        EXPECT_FALSE(form.Modified());
    });
    ASSERT_THAT(host.Questions, SizeIs(1));
    EXPECT_THAT(host.Questions[0].Text, HasSubstr("not saved"));
    EXPECT_THAT(Drafts(), IsEmpty());
    StartAnew(1);
    OnShown<frmstress>([](frmstress&) {});
    EXPECT_THAT(host.Questions, SizeIs(1));
}

TEST_F(UnsavedInput, GoesWithTheSave) {
    TypeAndLeave("4.5");
    StartAnew(1);
    host.AnswerYesNo(true);
    OnShown<frmstress>([](frmstress& form) {
        EXPECT_EQ(form.txt_z.Text, "4.5");
        Click(form, "cmdSave");
        EXPECT_FALSE(form.Modified());
    });
    EXPECT_EQ(Session.z, 4.5);
    EXPECT_THAT(Drafts(), IsEmpty());
}

TEST_F(UnsavedInput, TakenBackByTheUserIsNone) {
    StartAnew(1);
    OnShown<frmstress>([&](frmstress& form) {
        const std::string before = form.txt_z.Text;
        Type(form, "txt_z", "4.5");
        form.KeepInput();
        EXPECT_THAT(Drafts(), SizeIs(1));
        Type(form, "txt_z", before);
        form.KeepInput();
    });
    EXPECT_THAT(Drafts(), IsEmpty());
}

TEST_F(UnsavedInput, IsThereBeforeAResultIsWorkedOut) {
    StartAnew(1);
    OnShown<frmstress>([&](frmstress& form) {
        host.OnForm([&](Form&) { EXPECT_THAT(Drafts(), SizeIs(1)); });  // the result window
        Type(form, "txt_z", "4.5");
        Click(form, "cmdResult");
    });
}

TEST_F(UnsavedInput, OfTablesComesBackToo) {
    StartAnew(6);
    OnShown<frmTimeSettlement1>([&](frmTimeSettlement1& form) {
        Session.NLoad = 3;
        Session.LoadTime.Redim(1, 3);
        Session.LoadValue.Redim(1, 3);
        for (int row = 1; row <= 3; ++row) {
            Session.LoadTime(row) = 4 * row;
            Session.LoadValue(row) = 33.333333 * row;
        }
        EXPECT_TRUE(form.Modified());
        form.KeepInput();
    });
    const Single last = Session.LoadValue(3);
    StartAnew(6);
    host.AnswerYesNo(true);
    OnShown<frmTimeSettlement1>([&](frmTimeSettlement1&) {
        EXPECT_EQ(Session.NLoad, 3);
        EXPECT_EQ(Session.LoadTime(3), 12);
        EXPECT_EQ(Session.LoadValue(3), last);  // to the last bit
    });
}

// A text of another unit would be another length.
TEST_F(UnsavedInput, StaysOutOfBoxesInOtherUnits) {
    TypeAndLeave("4.5");
    StartAnew(1);
    Session.Len1Label = "[ft]";
    Session.Len1Factor = 3.28083989501312;
    host.AnswerYesNo(true);
    OnShown<frmstress>([](frmstress& form) { EXPECT_NE(form.txt_z.Text, "4.5"); });
}

TEST_F(UnsavedInput, AnotherProjectIsNotAsked) {
    TypeAndLeave("4.5");
    StartAnew(1);
    Session.ProjectName = "P2";
    OnShown<frmstress>([](frmstress& form) { EXPECT_NE(form.txt_z.Text, "4.5"); });
    EXPECT_THAT(host.Questions, IsEmpty());
}

// The state folder cannot be made where a file stands in its way.
TEST_F(UnsavedInput, AStateFolderThatCannotBeWrittenStopsNobody) {
    WriteBytes(SharedServices().StateDir().substr(0, SharedServices().StateDir().size() - 1), "");
    TypeAndLeave("4.5");
    EXPECT_THAT(host.Messages, IsEmpty());
    EXPECT_THAT(Drafts(), IsEmpty());
}

}  // namespace
}  // namespace lithmark::tests
