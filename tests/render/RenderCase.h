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

// Fails the test on bytes that are no well-formed XML.
void ExpectXml(const std::string& bytes);

class RenderTest : public testing::Test {
  protected:
    // Runs a copy of an example in a language.
    void RunExample(const std::string& name, Language language = Language::English);
    // Runs a project of the test's folder in a language.
    void ReadAndRun(const std::string& name, Language language);
    static ChartArguments Chart(const std::string& choice);
    static BasContour Contour(const std::string& result);
    void TearDown() override { LanguageTexts().SetCurrent(Language::English); }

    TestFolder folder;
    ScriptedHost host;
};

}  // namespace lithmark::tests
