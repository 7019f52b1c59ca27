// A project of a test's folder, read and run in this process as the command line does.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "core/Catalogue.h"
#include "files/ProblemData.h"
#include "files/ProjectFiles.h"
#include "kernels/RunKernel.h"
#include "support/TestSession.h"

namespace lithmark::tests {

// `dir` ends with a separator. Fails the test when a file cannot be read or the run is aborted.
inline void ReadAndRunProject(const std::string& dir, const std::string& name, Language language = Language::English) {
    FreshSession(language);
    Session.DataDir = Session.WorkDir = dir;
    Session.ProjectName = Session.WorkName = name;
    ASSERT_EQ(ReadProjectFile(), ReadOutcome::Read);
    ASSERT_EQ(ReadOrderFile(), ReadOutcome::Read);
    SetProblemDefaults();
    ASSERT_EQ(ReadProblemData(), ReadOutcome::Read);
    Session.A0 = Session.A;
    RunProblemKernel();
    ASSERT_FALSE(Session.CalcAborted);
}

}  // namespace lithmark::tests
