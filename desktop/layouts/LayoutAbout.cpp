#include <QBoxLayout>
#include <QLabel>

#include "desktop/FormView.h"
#include "desktop/Sizes.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"
#include "ui/frmAbout.h"

namespace lithmark {

static const LayoutOf<frmAbout> kLayoutAbout([](FormView& view, frmAbout& form) {
    constexpr int kWordsWidth = 380, kLogoSize = 96;
    QVBoxLayout* window = WindowColumn(view);
    auto* words = new QVBoxLayout;
    for (Control* control : ControlList{form.lblTitle, form.lblVersion, form.lblDescription, form.lblDisclaimer}) {
        auto& label = view.Place<QLabel>(*control);
        label.setWordWrap(true);
        label.setMinimumWidth(kWordsWidth);
        words->addWidget(&label);
    }
    QWidget* title = view.WidgetOf(form.lblTitle);
    constexpr double kPageTitle = 1.6;
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * kPageTitle);
    font.setBold(true);
    title->setFont(font);
    words->addStretch(1);

    QWidget* logo = view.Place(form.imgLogo);
    logo->setFixedSize(kLogoSize, kLogoSize);
    auto* top = new QHBoxLayout;
    top->setSpacing(sizes::kGroupGap);
    top->addWidget(logo, 0, Qt::AlignTop);
    top->addLayout(words, 1);
    window->addLayout(top, 1);
    window->addLayout(ButtonRow(view, {}, form.cmdok));
});

}  // namespace lithmark
