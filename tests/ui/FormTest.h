// FormTest: what the tests of dialogs stand on. A fresh session in English with an open project "P1" in a folder of its
// own, a settings directory of its own, no saved data, and the scripted host.
#pragma once

#include <gmock/gmock.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "core/Session.h"
#include "core/StartSession.h"
#include "services/ProjectStore.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"
#include "support/Files.h"
#include "support/ScriptedHost.h"
#include "ui/model/ProblemForm.h"
#include "ui/model/ProjectFlags.h"

namespace lithmark::tests {

class FormTest : public ::testing::Test {
  protected:
    FormTest();
    ~FormTest() override;

    void StartIn(Language language);
    std::string DataDir() const { return folder_ / "data/"; }
    std::string DataFile(const std::string& name) const { return DataDir() + name; }
    std::string SettingsFile(const std::string& name) const { return Session.ProgramDir + name; }
    // Names of the files in the project's folder, without the lock of the open project.
    std::vector<std::string> DataFiles() const;

    // Shows a form of type F and plays a script on it.
    template <typename F>
    void OnShown(std::function<void(F&)> script) {
        F form;
        host.OnForm<F>(std::move(script));
        CurrentHost().ShowForm(form);
    }

    // Plays a script on the dialog of each of the ten problems, shown in a session of its problem that `prepare` made.
    void OnEachProblem(const std::function<void(ProblemForm&)>& script, const std::function<void(int)>& prepare = {});

    ScriptedHost host;

  private:
    TestFolder folder_;
};

// A data file's text: one value a line.
std::string Lines(std::initializer_list<const char*> values);

}  // namespace lithmark::tests
