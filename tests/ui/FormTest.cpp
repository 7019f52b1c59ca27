#include "FormTest.h"

#include <algorithm>
#include <filesystem>

#include "core/Catalogue.h"
#include "core/StartSession.h"
#include "report/Notices.h"
#include "services/ProjectStore.h"
#include "services/SharedServices.h"
#include "ui/ProblemForms.h"
#include "ui/frmResultTools.h"
#include "ui/model/ResultViewer.h"

namespace lithmark::tests {

FormTest::FormTest() {
    std::filesystem::create_directory(folder_ / "settings");
    std::filesystem::create_directory(folder_ / "data");
    SharedServices().UseSettingsDirectory(folder_ / "settings/");
    SharedServices().DecimalSign = '.';
    SetResultViewer(ShowResultTools);
    Notices().Clear();
    StartIn(Language::English);
}

FormTest::~FormTest() {
    ProjectStore().LeaveProject();
    SharedServices().UseSettingsDirectory("");
    LanguageTexts().SetCurrent(Language::English);
    ResetSession();
    for (int entry = 0; entry < kProblemEntries; ++entry) SetProblemSaved(entry, false);
}

void FormTest::StartIn(Language language) {
    LanguageTexts().SetCurrent(language);
    StartSession();
    Session.ProgramDir = folder_ / "settings/";
    Session.DataDir = DataDir();
    Session.ProjectName = "P1";
}

std::vector<std::string> FormTest::DataFiles() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(DataDir()))
        if (entry.path().extension() != ".lock") names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

void FormTest::OnEachProblem(const std::function<void(ProblemForm&)>& script, const std::function<void(int)>& prepare) {
    int shown = 0;
    for (const ProblemRow& row : ProblemCatalogue()) {
        const int problem = row.ProblemType;
        if (!HasProblemForm(problem)) continue;
        if (prepare) prepare(problem);
        Session.ProblemType = problem;
        const auto form = MakeProblemForm(problem);
        SCOPED_TRACE(form->Name + " of problem " + std::to_string(problem));
        host.OnForm([&](Form& dialog) {
            ++shown;
            script(dynamic_cast<ProblemForm&>(dialog));
        });
        CurrentHost().ShowForm(*form);
    }
    EXPECT_EQ(shown, 10);
}

std::string Lines(std::initializer_list<const char*> values) {
    std::string text;
    for (const char* value : values) text += std::string(value) + "\r\n";
    return text;
}

}  // namespace lithmark::tests
