#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QClipboard>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "core/Session.h"
#include "core/Units.h"
#include "desktop/ContourView.h"
#include "desktop/FormView.h"
#include "desktop/PictureView.h"
#include "desktop/Sizes.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"
#include "files/CommonStep.h"
#include "files/GloableVariable.h"
#include "render/ContourDocument.h"
#include "render/QtText.h"
#include "services/SharedServices.h"
#include "services/storage/WrittenFile.h"

namespace lithmark {

namespace {

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

void SaveAs(FormView& view, frmContour& form) {
    const QString file =
        QFileDialog::getSaveFileName(&view, view.windowTitle(), Q(Session.WorkDir + Session.WorkName + ".pdf"),
                                     QStringLiteral("PDF (*.pdf);;SVG (*.svg);;PNG (*.png)"));
    if (file.isEmpty()) return;
    UnderCommonStep([&] {
        const QString ending = QFileInfo(file).suffix().toLower();
        SharedServices().SetCurrentFile(file.toStdString());
        WriteWholeFile(file.toStdString(), ending == QStringLiteral("svg")   ? ContourSvg(form.Plot, 0)
                                           : ending == QStringLiteral("png") ? ContourPng(form.Plot, 0)
                                                                             : ContourPdf(form.Plot, 0));
    });
}

QPushButton* OwnButton(FormView& view, const std::string& caption, const char* name) {
    auto* button = new QPushButton(Q(caption), &view);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}

const LayoutOf<frmContour> kLayout([](FormView& view, frmContour& form) {
    auto* plot = PutInto(view, form, form.picBox, ContourView::Shows::Plot);
    auto* legend = PutInto(view, form, form.picBox2, ContourView::Shows::Legend);
    auto* under = new QLabel(&view);
    under->setObjectName(QStringLiteral("lblUnder"));
    under->setMinimumHeight(under->sizeHint().height());
    plot->Over = [&form, under](double x, double y) { under->setText(Under(form, x, y)); };
    plot->Left = [under] { under->clear(); };

    auto* drawn = new QVBoxLayout(view.Place(form.fraResult));
    drawn->addWidget(view.Place(form.picBox), 1);
    drawn->addWidget(under);

    auto* zooms = new QGridLayout;
    zooms->setSpacing(sizes::kRowGap);
    zooms->addWidget(view.Place(form.cmdULeft), 0, 0);
    zooms->addWidget(view.Place(form.cmdURight), 0, 1);
    zooms->addWidget(view.Place(form.cmdLLeft), 1, 0);
    zooms->addWidget(view.Place(form.cmdLRight), 1, 1);
    zooms->addWidget(view.Place(form.cmdPrevious), 2, 0);
    zooms->addWidget(view.Place(form.cmdOriginal), 2, 1);

    auto* side = new QVBoxLayout;
    side->setSpacing(sizes::kRowGap);
    side->addWidget(view.Place(form.picBox2), 1);
    for (Control* box : ControlList{form.chkColorContours, form.chkDisplaylines, form.chkDrawGrid,
                                    form.chkchkDisplayValues, form.chkFineLabels})
        side->addWidget(view.Place(*box));
    side->addWidget(view.Place(form.cmdRedraw));
    side->addSpacing(sizes::kGroupGap);
    side->addLayout(zooms);

    auto* columns = new QHBoxLayout;
    columns->setSpacing(sizes::kEdge);
    columns->addWidget(view.Place(form.fraResult), 1);
    columns->addLayout(side);
    QVBoxLayout* window = WindowColumn(view);
    window->addLayout(columns, 1);

    auto* copy = OwnButton(view, Text(906521_text), "cmdCopy");
    QObject::connect(copy, &QPushButton::clicked, plot, [plot] { QApplication::clipboard()->setPixmap(plot->grab()); });
    auto* save = OwnButton(view, Text(9_text, Styles::DialogButton), "cmdSaveAs");
    QObject::connect(save, &QPushButton::clicked, &view, [&view, &form] { SaveAs(view, form); });
    QBoxLayout* buttons = ButtonRow(view, form.cmdHelp, form.cmdok);
    buttons->insertWidget(0, copy);
    buttons->insertWidget(1, save);
    window->addLayout(buttons);

    // A plot that differs from what its boxes ask for says so at the button that draws it.
    auto& redraw = dynamic_cast<QPushButton&>(*view.WidgetOf(form.cmdRedraw));
    view.AfterRefresh = [&form, &redraw, plot, legend] {
        QFont font = redraw.font();
        font.setBold(form.WantsAnother());
        redraw.setFont(font);
        redraw.setText(Q(form.cmdRedraw.Caption + (form.WantsAnother() ? " *" : "")));
        plot->update();
        legend->update();
    };
});

}  // namespace

}  // namespace lithmark
