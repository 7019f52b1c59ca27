#include "RenderCase.h"

#include <QXmlStreamReader>

#include "support/RunProject.h"

namespace lithmark::tests {

void ExpectXml(const std::string& bytes) {
    QXmlStreamReader reader(QByteArray::fromStdString(bytes));
    while (!reader.atEnd()) reader.readNext();
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
}

void RenderTest::RunExample(const std::string& name, Language language) {
    namespace fs = std::filesystem;
    for (const auto& entry : fs::directory_iterator(SourceDir() / "examples" / name))
        if (entry.is_regular_file())
            fs::copy_file(entry.path(), folder / entry.path().filename().string(),
                          fs::copy_options::overwrite_existing);
    ReadAndRun(name, language);
}

void RenderTest::ReadAndRun(const std::string& name, Language language) {
    ASSERT_NO_FATAL_FAILURE(ReadAndRunProject(folder.Dir(), name, language));
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
