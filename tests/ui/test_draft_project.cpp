// A dialog's unsaved input as a project of its own: what Save would write, for as long as it is needed.
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "FormTest.h"
#include "core/Catalogue.h"
#include "core/Units.h"
#include "services/storage/ProjectLock.h"
#include "support/Matchers.h"
#include "support/OtherProcess.h"
#include "support/Places.h"
#include "support/Variable.h"
#include "ui/model/DraftProject.h"
#include "ui/model/ProblemForm.h"

namespace lithmark::tests {
namespace {

namespace fs = std::filesystem;

class DraftProjectTest : public FormTest {
  protected:
    // Plays a script in the dialog of every problem, with a box of it changed.
    void InEveryDialog(const std::function<void(ProblemForm&)>& script) {
        const auto forget = [](int) { fs::remove_all(SharedServices().StateDir()); };
        OnEachProblem(
            [&](ProblemForm& dialog) {
                for (const char* box : {"txt_Q", "txt_P", "txt_Pt", "txt_T"}) {
                    const Control* control = dialog.Find(box);
                    if (control == nullptr || !control->Visible || !control->Enabled) continue;
                    Type(dialog, box, "7.123456");
                    break;
                }
                EXPECT_TRUE(dialog.Modified());
                script(dialog);
            },
            forget);
    }
    // The report of the command line for a draft.
    std::string ReportOf(const DraftProject& draft) const {
        const std::string out = DataFile("out");
        std::string line = CommandLineTool().string() + " report '" + draft.ProjectFile() + "'";
        for (const std::string& word : draft.Options()) line += " '" + word + "'";
        EXPECT_EQ(std::system((line + " > '" + out + "' 2> /dev/null").c_str()), 0);
        std::string text = ReadBytes(out);
        fs::remove(out);
        return text;
    }
};

TEST_F(DraftProjectTest, HoldsWhatSaveWouldWrite) {
    InEveryDialog([&](ProblemForm& form) {
        const auto before = DataFiles();
        const DraftProject draft(form.Draft().Record);
        EXPECT_EQ(DataFiles(), before);
        Click(form, "cmdSave");
        for (const std::string& name : DataFiles()) {
            if (!name.ends_with(ProblemInForce().Extension)) continue;
            EXPECT_EQ(ReadBytes(draft.Folder() + name), ReadBytes(DataFile(name))) << name;
            fs::remove(DataFile(name));
        }
        EXPECT_EQ(ReadBytes(draft.ProjectFile()), "Version 9\r\n" + std::to_string(Session.ProblemType) + "\r\n0\r\n");
    });
}

// In units, formats and preferences of its own, in each language.
TEST_F(DraftProjectTest, GivesTheReportOfTheDialog) {
    for (const Language language : {Language::German, Language::English, Language::Arabic}) {
        StartIn(language);
        Session.Auftr = "GT-7";
        Session.Len1Label = Text(40_text);  // [cm]
        Session.Len1Factor = 100;
        Session.FmtStress = "0.000";
        DeriveNumberFormats();
        Session.PrefND = 8;
        InEveryDialog([&](ProblemForm& form) {
            const DraftProject draft(form.Draft().Record);
            const std::string told = ReportOf(draft);
            host.OnForm([](Form& viewer) { Click(viewer, "cmdok"); });
            Click(form, "cmdResult");
            EXPECT_EQ(told, Session.ResultText);
        });
    }
}

TEST_F(DraftProjectTest, IsTheUsersOwnAndGoesWithItsOwner) {
    std::string folder;
    InEveryDialog([&](ProblemForm& form) {
        const DraftProject draft(form.Draft().Record);
        folder = draft.Folder();
        EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);
        WriteBytes(folder + "left by a command", "");
    });
    EXPECT_FALSE(fs::exists(folder));
}

TEST_F(DraftProjectTest, GoesWithAProgramThatIsAskedToEnd) {
    Session.ProblemType = Problem::SoilStress;
    const std::string told = DataFile("told");
    OtherProcess program([&] {
        EndCleanlyOnSignals();
        WriteBytes(told, (new DraftProject(Session))->Folder());
    });
    const std::string folder = ReadBytes(told);
    EXPECT_TRUE(fs::exists(folder));
    program.AskToEnd();
    EXPECT_FALSE(fs::exists(folder));
}

TEST_F(DraftProjectTest, AFolderThatCannotBeMadeIsAFailure) {
    Session.ProblemType = Problem::SoilStress;
    const Variable folder("TMPDIR");
    folder.Set(DataFile("missing"));
    EXPECT_TRUE(FailureOf([] { DraftProject draft(Session); }));
}

}  // namespace
}  // namespace lithmark::tests
