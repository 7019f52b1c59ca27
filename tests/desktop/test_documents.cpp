// What documents have besides the report is chosen once, in the viewer, in the preview or where a document is saved;
// the company's logo.
#include <qcustomplot.h>

#include <QCheckBox>
#include <QFileDialog>
#include <QImage>
#include <QMessageBox>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QToolBar>

#include "ScreenRun.h"
#include "core/Catalogue.h"
#include "render/ReportDocument.h"
#include "render/ReportPaper.h"
#include "report/Notices.h"
#include "services/texts/LanguageTexts.h"
#include "support/Matchers.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

void ChooseFile(QWidget& dialog, const std::string& path) {
    auto& name = Child<QLineEdit>(dialog, "fileNameEdit");
    name.setText(QString::fromStdString(path));
    QTest::keyClick(&name, Qt::Key_Return);
}

int Count(const std::string& text, const std::string& part) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) ++count;
    return count;
}

// Pictures of an RTF document.
int FiguresIn(const std::string& file) {
    return Count(ReadBytes(file), "\\pngblip");
}

class DocumentsOfARaft : public ::testing::Test {
  protected:
    DocumentsOfARaft() {
        std::filesystem::create_directory(folder_ / "settings");
        std::filesystem::copy(SourceDir() / "examples/SquareRaft", folder_ / "data");
    }
    // The result window of the example, after its calculation.
    void InViewer(const std::function<void(ScreenRun&, QWidget&)>& step) {
        ScreenRun run(folder_ / "settings/", folder_ / "data/SquareRaft.PO3");
        run.Start();
        run.In("frmRigidDisplacement", [](QWidget& form) {
            ClickOn(form, "cmdResult");
            ClickOn(form, "CmdOK");
        });
        run.In("frmResultTools", [&](QWidget& viewer) {
            // A notice, so that there is something to choose about them.
            Notices().Raise(NoticeId::RaftTension, 907003_text, {"-121 kN/m²", "12.5 %", "314 kN/m²"});
            step(run, viewer);
            ClickOn(viewer, "cmdok");
        });
        run.Menu("mnuProblem(" + std::to_string(ProblemInForce().MenuEntry) + ")");
        Notices().Clear();
    }
    // The drawing stands in every document; two curves and two contour plots come by choice.
    static constexpr int kDrawing = 1, kAll = 5;

    TestFolder folder_;
};

TEST_F(DocumentsOfARaft, ThePreviewShowsWhatIsChosenAndSavesIt) {
    InViewer([&](ScreenRun& run, QWidget& viewer) {
        run.In("printPreview", [&](QWidget& preview) {
            auto& pages = *preview.findChild<QPrintPreviewWidget*>();
            const int before = pages.pageCount();
            EXPECT_GE(before, 2);
            EXPECT_FALSE(Child<QCheckBox>(preview, "chkFigures").isChecked());
            ClickOn(preview, "chkFigures");
            EXPECT_GT(pages.pageCount(), before);
            const auto save = [&](const std::string& name, const std::function<void(QWidget&)>& choose) {
                run.In("QFileDialog", [=, this](QWidget& dialog) {
                    choose(dialog);
                    ChooseFile(dialog, folder_ / name);
                });
                BackTo(preview);
                QAction* action = preview.findChild<QAction*>(QStringLiteral("cmdSaveReport"));
                ASSERT_NE(action, nullptr);
                EXPECT_TRUE(action->isVisible());
                QWidget* button = preview.findChild<QToolBar*>()->widgetForAction(action);
                ASSERT_NE(button, nullptr);
                EXPECT_TRUE(button->isVisible());
                QTest::mouseClick(button, Qt::LeftButton);
            };
            save("all.rtf", [](QWidget& dialog) {
                EXPECT_TRUE(Child<QCheckBox>(dialog, "chkFigures").isChecked());
                EXPECT_TRUE(Child<QCheckBox>(dialog, "chkNotices").isChecked());
            });
            save("less.rtf", [](QWidget& dialog) {
                ClickOn(dialog, "chkFigures");
                ClickOn(dialog, "chkNotices");
            });
            // The preview follows what was chosen for the last document.
            EXPECT_FALSE(Child<QCheckBox>(preview, "chkFigures").isChecked());
            EXPECT_FALSE(Child<QCheckBox>(preview, "chkNotices").isChecked());
            EXPECT_LE(pages.pageCount(), before);
            BackTo(preview);
            ClickOn(preview, "chkFigures");
            preview.close();
        });
        ClickOn(viewer, "cmdPrinter");
        EXPECT_TRUE(Child<QCheckBox>(viewer, "chkFigures").isChecked()) << "and so does the viewer";
        EXPECT_FALSE(Child<QCheckBox>(viewer, "chkNotices").isChecked());
    });
    EXPECT_EQ(FiguresIn(folder_ / "all.rtf"), kAll);
    EXPECT_THAT(ReadBytes(folder_ / "all.rtf"), HasSubstr("raft-tension"));
    EXPECT_EQ(FiguresIn(folder_ / "less.rtf"), kDrawing);
    EXPECT_THAT(ReadBytes(folder_ / "less.rtf"), Not(HasSubstr("raft-tension")));
}

TEST_F(DocumentsOfARaft, TheViewersSaveDialogHasTheSameChoices) {
    InViewer([&](ScreenRun& run, QWidget& viewer) {
        run.In("QFileDialog", [&](QWidget& dialog) {
            EXPECT_FALSE(Child<QCheckBox>(dialog, "chkFigures").isChecked());
            ClickOn(dialog, "chkFigures");
            ChooseFile(dialog, folder_ / "saved.rtf");
        });
        ClickOn(viewer, "cmdSaveAs");
        EXPECT_TRUE(Child<QCheckBox>(viewer, "chkFigures").isChecked());
    });
    EXPECT_EQ(FiguresIn(folder_ / "saved.rtf"), kAll);
}

// In the place of the desktop's opener stands one that keeps the document.
TEST_F(DocumentsOfARaft, TheWordProcessorGetsTheFiguresOfTheViewer) {
    const std::string kept = folder_ / "kept.rtf";
    std::filesystem::create_directory(folder_ / "bin");
    WriteBytes(folder_ / "bin/xdg-open",
               "#!/bin/sh\ncp \"$1\" '" + kept + ".part' && mv '" + kept + ".part' '" + kept + "'\n");
    WriteBytes(folder_ / "bin/xdg-mime", "#!/bin/sh\necho writer.desktop\n");
    for (const char* program : {"bin/xdg-open", "bin/xdg-mime"})
        std::filesystem::permissions(folder_ / program, std::filesystem::perms::owner_all);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(folder_ / "bin:") + path);
    InViewer([&](ScreenRun&, QWidget& viewer) {
        ClickOn(viewer, "chkFigures");
        ClickOn(viewer, "cmdWord");
    });
    qputenv("PATH", path);
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(kept); }, 20000));
    EXPECT_EQ(FiguresIn(kept), kAll);
}

// What the preview shows of a report, as pixels.
QImage PreviewOf(const std::string& report, const ReportPaper& paper) {
    QPrinter printer(QPrinter::HighResolution);
    SetReportPage(printer);
    QPrintPreviewWidget preview(&printer);
    QObject::connect(&preview, &QPrintPreviewWidget::paintRequested, &preview, [&](QPrinter* target) {
        PaintReport(*target, report, paper, "DejaVu Sans Mono", kReportPoints, true);
    });
    preview.resize(1000, 1400);
    preview.show();
    preview.updatePreview();
    preview.fitToWidth();
    QApplication::processEvents();
    return preview.grab().toImage();
}

// The columns in which two pictures differ: the first and the last one.
std::pair<int, int> ColumnsThatDiffer(const QImage& a, const QImage& b) {
    std::pair<int, int> columns(a.width(), -1);
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (a.pixel(x, y) != b.pixel(x, y)) columns = {std::min(columns.first, x), std::max(columns.second, x)};
    return columns;
}

// A colon behind an Arabic word stands at its left, on the recorded pages of the preview too.
TEST(PreviewOfArabic, HasTheSignsOfATextInTheirPlaces) {
    const std::string word = "المشروع", sign = ":";
    ReportPaper paper;
    const QImage empty = PreviewOf("\r\n", paper);
    const auto [left, right] = ColumnsThatDiffer(empty, PreviewOf(word + "\r\n", paper));
    ASSERT_GT(right - left, 20);
    const auto [begin, end] =
        ColumnsThatDiffer(PreviewOf(word + "\r\n", paper), PreviewOf(word + sign + "\r\n", paper));
    ASSERT_GE(end, begin);
    EXPECT_LE(end, left + 2) << "the word itself stays where it is";

    // A figure's texts too.
    LanguageTexts().SetCurrent(Language::Arabic);
    const auto figure = [&](const std::string& text) {
        ReportPaper drawn;
        drawn.Figures.push_back({"", QSize(400, 60), [text](QCPPainter& painter) {
                                     QFont font = painter.font();
                                     font.setPixelSize(20);
                                     painter.setFont(font);
                                     painter.setLayoutDirection(Qt::RightToLeft);
                                     painter.drawText(QRect(0, 0, 400, 60), Qt::AlignRight | Qt::AlignAbsolute,
                                                      QString::fromStdString(text));
                                 }});
        return PreviewOf("\r\n", drawn);
    };
    const auto [wordLeft, wordRight] = ColumnsThatDiffer(figure(""), figure(word));
    ASSERT_GT(wordRight - wordLeft, 20);
    const auto [signLeft, signRight] = ColumnsThatDiffer(figure(word), figure(word + sign));
    ASSERT_GE(signRight, signLeft);
    EXPECT_LE(signRight, wordLeft + 4);
    LanguageTexts().SetCurrent(Language::English);
}

class CompanyLogo : public ::testing::Test {
  protected:
    CompanyLogo() {
        std::filesystem::create_directory(folder_ / "settings");
        QImage picture(40, 20, QImage::Format_RGB32);
        picture.fill(Qt::red);
        for (const char* name : {"first.png", "second.jpg"}) picture.save(QString::fromStdString(folder_ / name));
        WriteBytes(folder_ / "letter.png", "no picture");
    }
    std::string Stored() const { return std::filesystem::path(LogoFileIn(folder_ / "settings")).filename().string(); }

    // The dialog of the company's lines, and what the user does in it.
    void InDialog(ScreenRun& run, const std::function<void(QWidget&)>& step) {
        run.In("companyLines", step);
        run.Menu("mnuFirmaData");
    }
    void Choose(ScreenRun& run, QWidget& dialog, const std::string& name) {
        run.In("QFileDialog", [=, this](QWidget& files) { ChooseFile(files, folder_ / name); });
        BackTo(dialog);
        ClickOn(dialog, "cmdChooseLogo");
    }
    static QString Shown(QWidget& dialog) { return Child<QLineEdit>(dialog, "txtLogo").text(); }

    TestFolder folder_;
};

TEST_F(CompanyLogo, IsChosenReplacedAndRemoved) {
    ScreenRun run(folder_ / "settings/");
    run.Start();
    InDialog(run, [&](QWidget& dialog) {
        EXPECT_EQ(Shown(dialog), "");
        TypeInto(dialog, "txtFirma1", "Gruber");
        Choose(run, dialog, "first.png");
        EXPECT_EQ(Shown(dialog), "first.png");
        ClickOn(dialog, "cmdok");
    });
    EXPECT_EQ(Stored(), "Logo.png");
    EXPECT_EQ(ReadBytes(folder_ / "settings/Logo.png"), ReadBytes(folder_ / "first.png"));
    EXPECT_EQ(PaperInForce().Company, std::vector<std::string>{"Gruber"});
    EXPECT_EQ(LogoSize(PaperInForce().Logo), QSize(40, 20));

    InDialog(run, [&](QWidget& dialog) {
        EXPECT_EQ(Shown(dialog), "Logo.png");
        Choose(run, dialog, "second.jpg");
        ClickOn(dialog, "cmdok");
    });
    EXPECT_EQ(Stored(), "Logo.jpg");
    EXPECT_FALSE(std::filesystem::exists(folder_ / "settings/Logo.png")) << "one logo, not two";

    InDialog(run, [&](QWidget& dialog) {
        ClickOn(dialog, "cmdRemoveLogo");
        EXPECT_EQ(Shown(dialog), "");
        dialog.close();
    });
    EXPECT_EQ(Stored(), "Logo.jpg") << "cancelled";
    InDialog(run, [&](QWidget& dialog) {
        ClickOn(dialog, "cmdRemoveLogo");
        ClickOn(dialog, "cmdok");
    });
    EXPECT_THAT(Stored(), IsEmpty());
}

TEST_F(CompanyLogo, AFileThatIsNoPictureIsNotTaken) {
    ScreenRun run(folder_ / "settings/");
    run.Start();
    InDialog(run, [&](QWidget& dialog) {
        run.In("QFileDialog", [this](QWidget& files) { ChooseFile(files, folder_ / "letter.png"); });
        run.In("messageBox", [](QWidget& box) {
            EXPECT_TRUE(
                dynamic_cast<QMessageBox&>(box).text().endsWith(QStringLiteral("is no picture that can be drawn.")));
            box.close();
        });
        ClickOn(dialog, "cmdChooseLogo");
        EXPECT_EQ(Shown(dialog), "");
        ClickOn(dialog, "cmdok");
    });
    EXPECT_THAT(Stored(), IsEmpty());
}

}  // namespace
}  // namespace lithmark::tests
