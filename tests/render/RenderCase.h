// What the tests of documents and pictures share: results of real runs.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "contour/BasContour.h"
#include "contour/CurveSets.h"
#include "core/Catalogue.h"
#include "files/ProblemData.h"
#include "files/ProjectFiles.h"
#include "kernels/RunKernel.h"
#include "services/SharedServices.h"
#include "support/Files.h"
#include "support/Places.h"
#include "support/ScriptedHost.h"
#include "support/TestSession.h"

namespace lithmark::tests {

class RenderTest : public testing::Test {
  protected:
    // Runs a copy of an example in a language.
    void RunExample(const std::string& name, Language language = Language::English) {
        namespace fs = std::filesystem;
        for (const auto& entry : fs::directory_iterator(SourceDir() / "examples" / name))
            if (entry.is_regular_file())
                fs::copy_file(entry.path(), folder / entry.path().filename().string(),
                              fs::copy_options::overwrite_existing);
        FreshSession(language);
        Session.DataDir = Session.WorkDir = folder.Dir();
        Session.ProjectName = Session.WorkName = name;
        ASSERT_EQ(ReadProjectFile(), ReadOutcome::Read);
        ASSERT_EQ(ReadOrderFile(), ReadOutcome::Read);
        SetProblemDefaults();
        ASSERT_EQ(ReadProblemData(), ReadOutcome::Read);
        Session.A0 = Session.A;
        RunProblemKernel();
        ASSERT_FALSE(Session.CalcAborted);
        Session.CurveLoadUnit = Session.Force1Label;
        Session.CurveSettlementUnit = Session.Len2Label;
    }
    static ChartArguments Chart(const std::string& choice) {
        Session.CurveChoice = choice;
        return BuildChart();
    }
    static BasContour Contour(const std::string& result) {
        Session.ContourResult = result;
        BasContour plot;
        plot.Prepare();
        return plot;
    }
    void TearDown() override { LanguageTexts().SetCurrent(Language::English); }

    TestFolder folder;
    ScriptedHost host;
};

}  // namespace lithmark::tests
