// Each problem from its menu entry to its report, curves and contours, on the real windows by keys and clicks: a new
// project with the defaults, the same report as the command line's, saved, opened on another day, and the same again.
#include <QClipboard>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QPrintPreviewWidget>
#include <QProcess>
#include <map>

#include "ScreenRun.h"
#include "core/Catalogue.h"
#include "support/Matchers.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

struct Story {
    int Problem, Row;  // its row in the list of the project's problem
    const char* Form;
    const char* Close;
    const char* Extension;
    const char* Says;  // a part of the report
    int Method = -1;   // of the time-settlement curve
    bool Chart = false, Contour = false;
};
void PrintTo(const Story& story, std::ostream* out) {
    *out << "problem " << story.Problem;
}

class ProblemStory : public ::testing::TestWithParam<Story> {
  protected:
    ProblemStory() {
        std::filesystem::create_directory(folder_ / "settings");
        std::filesystem::create_directory(folder_ / "data");
        WriteBytes(folder_ / "settings/STEU", folder_ / "data/" + "\r\n0\r\n");
    }
    std::string Settings() const { return folder_ / "settings/"; }
    std::string Data(const std::string& name) const { return folder_ / ("data/" + name); }

    // What the command line says of the project.
    std::string CommandLine(const QStringList& command) const {
        QProcess process;
        process.start(
            QString::fromStdString(CommandLineTool().string()),
            command + QStringList{QStringLiteral("--lang"), QStringLiteral("en"), QStringLiteral("--settings"),
                                  QString::fromStdString(Settings()), QString::fromStdString(Data("Site.PO3"))});
        EXPECT_TRUE(process.waitForFinished(60000));
        EXPECT_EQ(process.exitCode(), 0);
        return process.readAllStandardOutput().toStdString();
    }

    // Goes through the method, if the problem has one, to the dialog; computes there, and looks at the results.
    void Compute(ScreenRun& run, const std::function<void(QWidget& dialog)>& first, std::string& report) {
        const Story& story = GetParam();
        if (story.Method >= 0)
            run.In("frmMethodtype", [&](QWidget& form) {
                ClickOn(form, ("OptMethodType(" + std::to_string(story.Method) + ")").c_str());
                ClickOn(form, "cmdok");
            });
        run.In(story.Form, [&](QWidget& dialog) {
            first(dialog);
            QTest::keyClick(&dialog, Qt::Key_Return, Qt::ControlModifier);
            ClickOn(dialog, story.Close);
        });
        run.In("frmResultTools", [&](QWidget& viewer) {
            ClickOn(viewer, "cmdClipboard");
            report = QApplication::clipboard()->text().toStdString();
            if (story.Chart) LookAtCurves(run, viewer);
            QTest::keyClick(&viewer, Qt::Key_Escape);
        });
        run.Menu("mnuProblem(" + std::to_string(ProblemInForce().MenuEntry) + ")");
    }

    // Saves what a window shows; the ending of the name chooses the kind.
    void Save(ScreenRun& run, QWidget& window, const char* button, const std::string& name, const char* ending) {
        const std::string path = Data(name + "." + ending);
        run.In("QFileDialog", [path](QWidget& dialog) {
            auto& box = Child<QLineEdit>(dialog, "fileNameEdit");
            box.setText(QString::fromStdString(path));
            QTest::keyClick(&box, Qt::Key_Return);
        });
        BackTo(window);
        ClickOn(window, button);
        saved_[name + "." + ending] = std::filesystem::exists(path) ? ReadBytes(path) : std::string();
    }
    // What would be printed: one page, with something on it.
    static void Print(ScreenRun& run, QWidget& window) {
        run.In("printPreview", [](QWidget& preview) {
            auto* pages = preview.findChild<QPrintPreviewWidget*>();
            ASSERT_NE(pages, nullptr);
            EXPECT_EQ(pages->pageCount(), 1);
            const QImage page = pages->grab().toImage();
            int coloured = 0;  // of a curve or a plot; the paper and its frame are grey
            for (int y = 0; y < page.height(); ++y)
                for (int x = 0; x < page.width(); ++x) coloured += page.pixelColor(x, y).hsvSaturation() > 100 ? 1 : 0;
            EXPECT_GT(coloured, 100);
            QTest::keyClick(&preview, Qt::Key_Escape);
        });
        BackTo(window);
        QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
    }

    void LookAtCurves(ScreenRun& run, QWidget& viewer) {
        const Story& story = GetParam();
        if (story.Method >= 0 || story.Contour) run.In("frmOptionDraw", [](QWidget& form) { ClickOn(form, "cmdok"); });
        run.In("chartWindow", [&](QWidget& chart) {
            const QImage picture = chart.grab().toImage();
            EXPECT_GT(picture.width(), 300);
            const bool first = saved_.empty();
            if (first) {
                for (const char* ending : {"pdf", "png", "svg", "csv", "xlsx"})
                    Save(run, chart, "cmdExport", "curves", ending);
                Print(run, chart);
            }
            if (story.Contour) {
                run.In("frmContour", [&, first](QWidget& contour) {
                    if (first) {
                        for (const char* ending : {"pdf", "png", "svg"})
                            Save(run, contour, "cmdSaveAs", "plot", ending);
                        Print(run, contour);
                    }
                    BackTo(contour);
                    ClickOn(contour, "cmdULeft");
                    EXPECT_TRUE(Child<QPushButton>(contour, "cmdOriginal").isEnabled());
                    ClickOn(contour, "cmdOriginal");
                    QTest::keyClick(&contour, Qt::Key_Escape);
                });
                BackTo(chart);
                ClickOn(chart, "cmdContours");
            }
            QTest::keyClick(&chart, Qt::Key_Escape);
        });
        ClickOn(viewer, "CmdExcel");
    }

    // Each kind is what it says, and the table is the command line's.
    void CheckSaved() const {
        const Story& story = GetParam();
        if (!story.Chart) return;
        for (const auto& [name, bytes] : saved_) {
            EXPECT_GT(bytes.size(), 100u) << name;
            if (name.ends_with(".pdf")) {
                EXPECT_THAT(bytes, StartsWith("%PDF-")) << name;
            }
            if (name.ends_with(".svg")) {
                EXPECT_THAT(bytes, HasSubstr("</svg>")) << name;
            }
            if (name.ends_with(".xlsx")) {
                EXPECT_THAT(bytes, HasSubstr("xl/charts/chart1.xml")) << name;
            }
            if (!name.ends_with(".png")) continue;
            const QImage picture = QImage::fromData(QByteArray::fromStdString(bytes), "PNG");
            EXPECT_GE(picture.width(), 800) << name;
        }
        EXPECT_EQ(saved_.size(), story.Contour ? 8u : 5u);
        EXPECT_EQ(saved_.at("curves.csv"),
                  CommandLine({QStringLiteral("chart"), QStringLiteral("--format"), QStringLiteral("csv")}));
    }

    TestFolder folder_;
    std::map<std::string, std::string> saved_;
};

TEST_P(ProblemStory, FromTheMenuToTheReportAndTheSameAgain) {
    const Story& story = GetParam();
    std::string report, again;
    {
        ScreenRun run(Settings());
        run.Start();
        run.In("frmProblemType", [&](QWidget& form) {
            TypeInto(form, "txtAuftr", "GT-7");
            TypeInto(form, "txtDatum", "2026-03-02");
            TypeInto(form, "txtProj", "Works on site");
            auto& list = Child<QComboBox>(form, "cmbItem");
            for (int row = 0; row < story.Row; ++row) QTest::keyClick(&list, Qt::Key_Down);
            QTest::keyClick(&form, Qt::Key_S, Qt::ControlModifier);
        });
        run.In("QFileDialog", [&](QWidget& dialog) {
            auto& name = Child<QLineEdit>(dialog, "fileNameEdit");
            name.setText(QString::fromStdString(Data("Site")));
            QTest::keyClick(&name, Qt::Key_Return);
        });
        run.Menu("mnuNewProject");
        ASSERT_EQ(run.Window().windowTitle(), "Lithmark - [Site]");
        Compute(
            run,
            [](QWidget& dialog) {
                QTest::keyClick(&dialog, Qt::Key_S, Qt::ControlModifier);
                EXPECT_FALSE(dialog.isWindowModified());
            },
            report);
        EXPECT_EQ(int(Session.ProblemType), story.Problem);
        EXPECT_TRUE(std::filesystem::exists(Data(std::string("Site.") + story.Extension)));
        EXPECT_THAT(report, HasSubstr(story.Says));
        EXPECT_THAT(report, HasSubstr("Works on site"));
        run.In("questionBox", [](QWidget& box) { ClickOn(box, "cmdYes"); });
        run.Menu("mnuFileExit");
    }
    EXPECT_EQ(CommandLine({QStringLiteral("report")}), report);
    CheckSaved();
    ScreenRun run(Settings(), Data("Site.PO3"));
    run.Start();
    ASSERT_TRUE(run.Frame().ProjectOpen());
    const std::string stored = ReadBytes(Data(std::string("Site.") + story.Extension));
    Compute(
        run,
        [&](QWidget& dialog) {
            EXPECT_FALSE(dialog.isWindowModified());
            QTest::keyClick(&dialog, Qt::Key_S, Qt::ControlModifier);
        },
        again);
    EXPECT_EQ(again, report);
    EXPECT_EQ(ReadBytes(Data(std::string("Site.") + story.Extension)), stored);
}

INSTANTIATE_TEST_SUITE_P(
    All, ProblemStory,
    ::testing::Values(Story{1, 0, "frmstress", "cmdok", "SSD", "Sigma_z"},
                      Story{2, 1, "frmstress", "cmdok", "SSD", "Varepsilon_z"},
                      Story{3, 2, "frmstress", "cmdok", "SSD", "Settlement"},
                      Story{4, 3, "frmConsolidation", "cmdok", "CON", "Consolidation settlement"},
                      Story{5, 4, "frmConsolidationRate", "cmdok", "RAT", "Degree of consolidation", -1, true},
                      Story{6, 5, "frmTimeSettlement1", "cmdok", "TST", "Direct input", 0, true},
                      Story{7, 5, "frmTimeSettlement2", "cmdok", "TST", "oedometer load stage", 1, true},
                      Story{8, 5, "frmTimeSettlement3", "cmdok", "TST", "by Terzaghi", 2, true},
                      Story{9, 6, "frmRigidDisplacement", "CmdOK", "RDE", "Contact pressure", -1, true, true},
                      Story{10, 7, "frmRigidConsolidation", "CmdOK", "RCO", "Contact pressure", -1, true, true}),
    [](const auto& story) { return "Problem" + std::to_string(story.param.Problem); });

}  // namespace
}  // namespace lithmark::tests
