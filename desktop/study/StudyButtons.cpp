#include "desktop/study/StudyButtons.h"

#include <QBoxLayout>
#include <QPushButton>
#include <functional>
#include <vector>

#include "core/Session.h"
#include "desktop/FormView.h"
#include "desktop/study/ShowStudy.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"
#include "ui/model/ProblemForm.h"

namespace lithmark {

namespace {

QPushButton* AddButton(FormView& view, const char* name, TextId caption, TextId tip, std::function<void()> slot) {
    auto* button = new QPushButton(Q(Text(caption, Styles::Button)), &view);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(Q(Text(tip)));
    button->setAutoDefault(false);
    button->installEventFilter(&view);  // Enter clicks
    QObject::connect(button, &QPushButton::clicked, &view, [slot = std::move(slot)] { slot(); });
    return button;
}

}  // namespace

QWidget* AddStudyButtons(FormView& view, ProblemForm& form, QBoxLayout& row) {
    QWidget* results = view.WidgetOf(form.cmdResult);
    QWidget* before = nullptr;
    for (int i = 0; i < row.indexOf(results); ++i)
        if (QWidget* button = row.itemAt(i)->widget()) before = button;
    std::vector<QPushButton*> buttons = {
        AddButton(view, "cmdStudy", 913250_text, 913252_text, [&view, &form] { ShowStudy(form, &view); })};
    if (IsSoilStress(Session.ProblemType))
        buttons.push_back(
            AddButton(view, "cmdPoints", 913251_text, 913253_text, [&view, &form] { ShowPoints(form, &view); }));
    for (QPushButton* button : buttons) {
        row.insertWidget(row.indexOf(results), button);
        QWidget::setTabOrder(before, button);
        before = button;
    }
    QWidget::setTabOrder(before, results);
    return buttons.front();
}

}  // namespace lithmark
