#include "RenderCase.h"

namespace lithmark::tests {

void RenderTest::RunExample(const std::string& name, Language language) {
    namespace fs = std::filesystem;
    for (const auto& entry : fs::directory_iterator(SourceDir() / "examples" / name))
        if (entry.is_regular_file())
            fs::copy_file(entry.path(), folder / entry.path().filename().string(),
                          fs::copy_options::overwrite_existing);
    ReadAndRun(name, language);
}

void RenderTest::ReadAndRun(const std::string& name, Language language) {
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

ChartArguments RenderTest::Chart(const std::string& choice) {
    Session.CurveChoice = choice;
    return BuildChart();
}

BasContour RenderTest::Contour(const std::string& result) {
    Session.ContourResult = result;
    BasContour plot;
    plot.Prepare();
    return plot;
}

}  // namespace lithmark::tests
