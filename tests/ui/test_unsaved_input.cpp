// What was typed and not saved is offered when the dialog opens again, after an end of the program too.
#include <filesystem>

#include "AllForms.h"
#include "FormTest.h"
#include "core/Catalogue.h"
#include "services/storage/DraftStore.h"
#include "support/Matchers.h"
#include "ui/model/UnsavedInput.h"
#include "ui/model/UnsavedTable.h"

namespace lithmark::tests {
namespace {

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

// A date picker that stands at another day than it did must not take the typed date along.
TEST_F(UnsavedInput, OfADateIsTheTextThatWasTyped) {
    StartAnew(6);
    OnShown<frmTimeSettlement1>([&](frmTimeSettlement1& form) {
        Type(form, "DTPicker1", "Tuesday, May 5, 2026");
        Type(form, "txt_Date", "after Easter");
        form.KeepInput();
    });
    StartAnew(6);
    host.AnswerYesNo(true);
    OnShown<frmTimeSettlement1>([&](frmTimeSettlement1& form) { EXPECT_EQ(form.txt_Date.Text, "after Easter"); });
}

// --- dialogs that are no problem's ---

TEST_F(UnsavedInput, OfTheProjectsDataComesBack) {
    const auto type = [&](frmProblemType& form) {
        Type(form, "txtAuftr", "GT-7");
        Type(form, "txtDatum", "in spring");
        Type(form, "txtProj", "Crane runway");
        Select(form, "cmbItem", 3);
        form.KeepInput();
    };
    for (const char* project : {"P1", ""}) {  // a new project has no name yet
        SCOPED_TRACE(project);
        StartAnew(1);
        Session.ProjectName = project;
        OnShown<frmProblemType>([&](frmProblemType& form) {
            type(form);
            Click(form, "CmdCancel");
        });
        StartAnew(1);
        Session.ProjectName = project;
        host.AnswerYesNo(true);
        OnShown<frmProblemType>([&](frmProblemType& form) {
            EXPECT_EQ(form.txtAuftr.Text, "GT-7");
            EXPECT_EQ(form.txtDatum.Text, "in spring");
            EXPECT_EQ(form.txtProj.Text, "Crane runway");
            EXPECT_EQ(form.cmbItem.ListIndex, 3);
            if (Session.ProjectName.empty()) host.AnswerFileToSave(DataFile("New"));
            Click(form, "cmdSave");
        });
        EXPECT_EQ(Session.Proj, "Crane runway");
        EXPECT_THAT(Drafts(), IsEmpty());
        ProjectStore().LeaveProject();
    }
}

TEST_F(UnsavedInput, OfPreferencesAndOfTheDataDirectoryComesBack) {
    OnShown<frmPreferences>([&](frmPreferences& form) {
        Type(form, "txtDx", "0.75");
        form.KeepInput();
        Click(form, "CmdCancel");
    });
    EXPECT_EQ(Session.PrefDx, 0.5);
    OnShown<frmDataDir>([&](frmDataDir& form) {
        Type(form, "txtDataDir", DataDir());
        form.KeepInput();
    });
    EXPECT_THAT(Drafts(), SizeIs(2));
    Session.ProjectName = "P2";  // they belong to no project
    host.AnswerYesNo(true);
    OnShown<frmPreferences>([](frmPreferences& form) {
        EXPECT_EQ(form.txtDx.Text, "0.75");
        Click(form, "cmdSave");
    });
    EXPECT_EQ(Session.PrefDx, 0.75);
    host.AnswerYesNo(false);
    OnShown<frmDataDir>([&](frmDataDir& form) { EXPECT_NE(form.txtDataDir.Text, DataDir()); });
    EXPECT_THAT(Drafts(), IsEmpty());
}

// --- tables ---

class UnsavedRows : public UnsavedInput {
  protected:
    // Edits the table of loads: `edit` is what the user does in the editor.
    void EditLoads(std::function<bool(TableEdit&)> edit) {
        StartAnew(6);
        OnShown<frmTimeSettlement1>([&](frmTimeSettlement1& form) {
            host.OnTable(std::move(edit));
            Click(form, "cmdTimeLoad");
        });
    }
    static bool TypeAndCancel(TableEdit& table) {
        TableTexts rows = table.Rows;
        rows.push_back({"9", "12.25"});
        rows.at(0).at(1) = "x";
        KeepRows(table, rows);
        return false;
    }
};

TEST_F(UnsavedRows, AreOfferedWhenTheTableOpensAgainAndGoWithOK) {
    EditLoads(TypeAndCancel);
    EXPECT_EQ(Session.NLoad, 5);
    host.AnswerYesNo(true);
    EditLoads([](TableEdit& table) {
        EXPECT_THAT(table.Rows, SizeIs(6));
        EXPECT_EQ(table.Rows.at(0).at(1), "x");
        EXPECT_EQ(table.Rows.at(5).at(1), "12.25");
        // The digits behind a cell that was typed are gone, those of the others are there.
        EXPECT_EQ(table.Digits.at(0).at(1), "");
        EXPECT_EQ(table.Digits.at(2).at(1), "83");
        table.Rows.at(0).at(1) = "20";
        return true;
    });
    EXPECT_EQ(Session.NLoad, 6);
    EXPECT_THAT(Drafts(), IsEmpty());
}

TEST_F(UnsavedRows, AreDeclinedForGood) {
    EditLoads(TypeAndCancel);
    host.AnswerYesNo(false);
    EditLoads([](TableEdit& table) {
        EXPECT_THAT(table.Rows, SizeIs(5));
        return false;
    });
    EXPECT_THAT(Drafts(), IsEmpty());
    EditLoads([](TableEdit&) { return false; });
    EXPECT_THAT(host.Questions, SizeIs(1));
}

TEST_F(UnsavedRows, ThatEqualTheTableOrStandInAnotherUnitAreNotOffered) {
    EditLoads([](TableEdit& table) {
        KeepRows(table, table.Rows);
        return false;
    });
    EditLoads([](TableEdit&) { return false; });
    EditLoads(TypeAndCancel);
    StartAnew(6);
    Session.Force1Label = "[MN]";
    OnShown<frmTimeSettlement1>([&](frmTimeSettlement1& form) {
        host.OnTable([](TableEdit& table) {
            EXPECT_THAT(table.Rows, SizeIs(5));
            return false;
        });
        Click(form, "cmdTimeLoad");
    });
    EXPECT_THAT(host.Questions, IsEmpty());
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
