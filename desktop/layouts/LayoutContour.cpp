#include <qcustomplot.h>

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QClipboard>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

#include "contour/FieldSection.h"
#include "core/Session.h"
#include "core/Units.h"
#include "desktop/ContourView.h"
#include "desktop/FormView.h"
#include "desktop/GraphicWords.h"
#include "desktop/PictureView.h"
#include "desktop/Printing.h"
#include "desktop/SaveDialog.h"
#include "desktop/ScreenRoom.h"
#include "desktop/Sizes.h"
#include "desktop/Toast.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"
#include "files/CommonStep.h"
#include "files/GloableVariable.h"
#include "render/ChartDocument.h"
#include "render/ContourDocument.h"
#include "render/FieldDocument.h"
#include "render/QtText.h"
#include "services/SharedServices.h"
#include "services/storage/WrittenFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kCurveHeight = 170, kSmallCurveHeight = 120;  // the height of the section's curve

// Puts a drawing into the place of a picture.
ContourView* PutInto(FormView& view, frmContour& form, PictureBox& picture, ContourView::Shows shows) {
    auto* place = view.WidgetOf(picture);
    auto* room = new QVBoxLayout(place);
    room->setContentsMargins(0, 0, 0, 0);
    auto* drawing = new ContourView(form, shows, place);
    place->setMinimumSize(drawing->minimumSize());
    room->addWidget(drawing);
    return drawing;
}

// "x = 2.40 m, y = 1.10 m: 71.3 kN/m²", the value alone where the raft is.
QString Under(const frmContour& form, double x, double y) {
    const auto length = [](double value) {
        return FormatValue(value * Session.Len1Factor, Session.FmtLength) + " " + Session.Len1Label;
    };
    std::string text = "x = " + length(x) + ", y = " + length(y);
    if (const auto value = form.ValueShown(x, y)) {
        const bool pressure = Session.ContourResult == "Tab5";
        text += (pressure ? ": q = " : ": s = ") +
                FormatValue(*value, pressure ? Session.FmtStress : Session.FmtSettlement) + " " +
                frmContour::UnitShown();
    }
    return QChar(0x2066) + Q(text) + QChar(0x2069);
}

// What the window shows, for paper and files.
FieldPicture FieldOf(const frmContour& form) {
    return {form.Plot, form.Field(), form.Drawn(), form.Section()};
}

void SavePlotAs(FormView& view, frmContour& form) {
    if (!form.Ready()) return;
    const auto file = AskForFile(&view, view.windowTitle(),
                                 {{QStringLiteral("PDF"), QStringLiteral("pdf")},
                                  {QStringLiteral("PNG"), QStringLiteral("png")},
                                  {QStringLiteral("SVG"), QStringLiteral("svg")}});
    if (!file) return;
    UnderCommonStep([&] {
        SharedServices().SetCurrentFile(file->Path);
        const bool field = form.ShowsField();
        const bool svg = file->Ending == QStringLiteral("svg"), png = file->Ending == QStringLiteral("png");
        const std::string bytes = svg     ? field ? FieldSvg(FieldOf(form), 0) : ContourSvg(form.Plot, 0)
                                      : png ? field ? FieldPng(FieldOf(form), 0) : ContourPng(form.Plot, 0)
                                      : field ? FieldPdf(FieldOf(form), 0)
                                          : ContourPdf(form.Plot, 0);
        WriteWholeFile(file->Path, bytes);
    });
}

void Print(FormView& view, frmContour& form) {
    if (!form.Ready()) return;
    if (form.ShowsField())
        PrintPicture(&view, FieldPageSize(FieldOf(form), 0),
                     [&form](QCPPainter& painter) { DrawFieldPage(painter, FieldOf(form), 0); });
    else
        PrintPicture(&view, ContourPageSize(0),
                     [&form](QCPPainter& painter) { DrawContourPage(painter, form.Plot, 0); });
}

// The whole page as a picture, with title and legend.
void Copy(FormView& view, frmContour& form) {
    if (!form.Ready()) return;
    UnderCommonStep([&] {
        const std::string png = form.ShowsField() ? FieldPng(FieldOf(form), 0) : ContourPng(form.Plot, 0);
        QApplication::clipboard()->setImage(QImage::fromData(QByteArray::fromStdString(png), "PNG"));
        ShowToast(view, Q(Text(910214_text)));
    });
}

// The values along the section, as far as there is one.
void ShowCurve(QCustomPlot& curve, const frmContour& form) {
    const auto section = form.Section();
    curve.setVisible(section.has_value());
    if (!section) return;
    ChartLook look;
    look.Legend = false;
    curve.legend->setVisible(false);
    const ChartArguments chart = SectionChart(form.Field(), *section);
    FillPlot(curve, chart, look);
    FitUprightTitle(*curve.yAxis, chart.YTitle);
    TellGraphic(curve, Q(ChartReading(chart).Summary()));
    curve.replot(QCustomPlot::rpQueuedReplot);
}

// Zoom to the corners, back, and out again. Left is left in the plot, so it is beside it too.
QWidget* Zooms(FormView& view, frmContour& form, bool redraw) {
    auto* corners = new QWidget(&view);
    corners->setLayoutDirection(Qt::LeftToRight);
    auto* zooms = new QGridLayout(corners);
    zooms->setContentsMargins(0, 0, 0, 0);
    zooms->setSpacing(sizes::kRowGap);
    zooms->addWidget(view.Place(form.cmdULeft), 0, 0);
    zooms->addWidget(view.Place(form.cmdURight), 0, 1);
    zooms->addWidget(view.Place(form.cmdLLeft), 1, 0);
    zooms->addWidget(view.Place(form.cmdLRight), 1, 1);
    zooms->addWidget(view.Place(form.cmdPrevious), 2, 0);
    zooms->addWidget(view.Place(form.cmdOriginal), 2, 1);
    if (redraw) zooms->addWidget(view.Place(form.cmdRedraw), 3, 0, 1, 2);
    return corners;
}

// The views and the boxes, with the button that makes them count where `redraw` says so.
QBoxLayout* Choices(FormView& view, frmContour& form, bool redraw) {
    auto* choices = new QVBoxLayout;
    choices->setSpacing(sizes::kRowGap);
    auto* views = new QHBoxLayout;
    views->setSpacing(sizes::kGroupGap);
    for (OptionButton& option : form.optView) views->addWidget(view.Place(option));
    views->addStretch(1);
    choices->addLayout(views);
    for (Control* box : ControlList{form.chkColorContours, form.chkDisplaylines, form.chkDrawGrid,
                                    form.chkchkDisplayValues, form.chkFineLabels, form.chkSection})
        choices->addWidget(view.Place(*box));
    if (redraw) choices->addWidget(view.Place(form.cmdRedraw));
    return choices;
}

QPushButton* OwnButton(FormView& view, const std::string& caption, const char* name) {
    auto* button = new QPushButton(Q(caption), &view);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}

const LayoutOf<frmContour> kLayoutContour([](FormView& view, frmContour& form) {
    auto* plot = PutInto(view, form, form.picBox, ContourView::Shows::Plot);
    auto* legend = PutInto(view, form, form.picBox2, ContourView::Shows::Legend);
    auto* under = new QLabel(&view);
    under->setObjectName(QStringLiteral("lblUnder"));
    under->setMinimumHeight(under->sizeHint().height());
    plot->Over = [&form, under, plot](double x, double y) {
        under->setText(Under(form, x, y));
        if (plot->Walks()) TellGraphic(*plot, under->text());
    };
    plot->Left = [under] { under->clear(); };

    auto* curve = new QCustomPlot(&view);
    curve->setObjectName(QStringLiteral("sectionCurve"));
    curve->setLayoutDirection(Qt::LeftToRight);
    curve->setFixedHeight(kCurveHeight);
    MakeGraphic(*curve, Q(Text(910022_text)));
    curve->setToolTip(Q(Text(910027_text)));
    plot->setToolTip(Q(Text(913652_text)));
    plot->SectionLaid = [&form, curve] { ShowCurve(*curve, form); };
    auto* drawn = new QVBoxLayout(view.Place(form.fraResult));
    drawn->addWidget(view.Place(form.picBox), 1);
    drawn->addWidget(under);
    drawn->addWidget(curve);

    auto* columns = new QHBoxLayout;
    columns->setSpacing(sizes::kEdge);
    columns->addWidget(view.Place(form.fraResult), 1);
    auto* side = new QVBoxLayout;
    side->setSpacing(sizes::kGroupGap);
    if (OnSmallScreen(view)) {
        // Legend and buttons beside each other: all of the height is the plot's.
        columns->addWidget(view.Place(form.picBox2), 0, Qt::AlignTop);
        side->addLayout(Choices(view, form, true));
        side->addWidget(Zooms(view, form, false));
        side->addStretch(1);
        curve->setFixedHeight(kSmallCurveHeight);
    } else {
        auto* top = new QHBoxLayout;
        top->setSpacing(sizes::kEdge);
        top->addWidget(view.Place(form.picBox2));
        top->addWidget(Zooms(view, form, true), 0, Qt::AlignTop);
        top->addStretch(1);
        side->addLayout(top, 1);
        side->addLayout(Choices(view, form, false));
    }
    columns->addLayout(side);
    QVBoxLayout* window = WindowColumn(view);
    window->addLayout(columns, 1);

    auto* copy = OwnButton(view, Text(906521_text, Styles::Button), "cmdCopy");
    QObject::connect(copy, &QPushButton::clicked, &view, [&view, &form] { Copy(view, form); });
    auto* print = OwnButton(view, Text(910003_text, Styles::Button), "cmdPrint");
    QObject::connect(print, &QPushButton::clicked, &view, [&view, &form] { Print(view, form); });
    auto* save = OwnButton(view, Text(9_text, Styles::DialogButton), "cmdSaveAs");
    QObject::connect(save, &QPushButton::clicked, &view, [&view, &form] { SavePlotAs(view, form); });
    QBoxLayout* buttons = ButtonRow(view, form.cmdHelp, form.cmdok);
    buttons->insertWidget(0, copy);
    buttons->insertWidget(1, print);
    buttons->insertWidget(2, save);
    window->addLayout(buttons);
    // Backspace and Home, as the buttons.
    for (const auto& [key, button] :
         {std::pair<int, Control*>(Qt::Key_Backspace, &form.cmdPrevious), {Qt::Key_Home, &form.cmdOriginal}}) {
        auto& widget = dynamic_cast<QPushButton&>(*view.WidgetOf(*button));
        QObject::connect(new QShortcut(key, &view), &QShortcut::activated, &widget, &QPushButton::click);
    }

    // A plot that differs from what its boxes ask for says so at the button that draws it.
    auto& redraw = dynamic_cast<QPushButton&>(*view.WidgetOf(form.cmdRedraw));
    view.AfterRefresh = [&form, &redraw, plot, legend, curve] {
        QFont font = redraw.font();
        font.setBold(form.WantsAnother());
        redraw.setFont(font);
        redraw.setText(Q(form.cmdRedraw.Caption + (form.WantsAnother() ? " *" : "")));
        legend->FitLegend();
        ShowCurve(*curve, form);
        for (ContourView* drawing : {plot, legend}) {
            drawing->Tell();
            drawing->update();
        }
    };
    view.resize(960, 640);
});

}  // namespace

}  // namespace lithmark
