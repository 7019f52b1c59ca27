#include "desktop/layouts/ProblemWindow.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QShortcut>

#include "desktop/FormView.h"
#include "desktop/ScreenRoom.h"
#include "desktop/ScrollColumn.h"
#include "desktop/Sizes.h"
#include "desktop/SpokenAlert.h"
#include "desktop/WidgetInk.h"
#include "desktop/answer/AnswerView.h"
#include "desktop/answer/SidePanes.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/study/ShowStudy.h"
#include "desktop/study/StudyButtons.h"
#include "render/QtText.h"

namespace lithmark {

namespace {

using namespace sizes;

QWidget* Fields(FormView& view, const PictureForm& form, std::initializer_list<GroupOf> groups) {
    auto* fields = new QWidget;
    auto* column = new QVBoxLayout(fields);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGroupGap);
    for (const GroupOf& group : groups) {
        if (group.Frame == nullptr) {
            auto* lines = new QWidget(fields);
            AddLines(view, &form, *FieldGrid(lines), group.Holds);
            column->addWidget(lines);
            continue;
        }
        // Held by another group, it has its place already.
        if (view.TimesPlaced(*group.Frame) == 0) column->addWidget(view.Place(*group.Frame));
        FillGroup(view, form, *group.Frame, group.Holds);
    }
    column->addStretch(1);
    return fields;
}

// The first thing that is wrong, or what is wrong with the box that has the focus. Its place is always there.
QLabel* ReasonLine(FormView& view) {
    auto* line = new QLabel(&view);
    MakeAlert(*line);
    view.Alert = line;
    line->setObjectName(QStringLiteral("reason"));
    line->setTextFormat(Qt::PlainText);
    line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    line->setMinimumHeight(line->fontMetrics().lineSpacing());
    SetInk(*line, Ink::Error);
    return line;
}

void ShowReason(const FormView& view, Form& form, QLabel& line) {
    std::string reason;
    for (const Control* control : form.Controls()) {
        if (control->Kind != ControlKind::TextBox) continue;
        const std::string mark = view.ShownMark(*control);
        if (!mark.empty() && (reason.empty() || form.Focus == control)) reason = mark;
    }
    line.setText(line.fontMetrics().elidedText(Q(reason), Qt::ElideRight, line.width()));
    line.setToolTip(Q(reason));
    line.setAccessibleName(Q(reason));
}

// The answer as a part of the window.
void BindAnswer(FormView& view, PictureForm& form, AnswerView& answer, SidePanes& panes, QWidget& study) {
    const auto show = [&view, &form, &answer, &panes, &study](bool shown) {
        study.setVisible(!shown);
        form.ShowAnswer(shown);
        panes.ShowAnswer(shown);
        answer.SetShown(shown);
        view.FitWidth();
    };
    answer.SetShown(form.AnswerShown());
    panes.ShowAnswer(form.AnswerShown());
    study.setVisible(!form.AnswerShown());
    answer.OnStudy = [&view, &form] { ShowStudy(form, &view); };
    answer.OnHide = [show] { show(false); };
    panes.OnShowAnswer = [show] { show(true); };
    answer.OnBox = [&view](const Control& box) { view.FocusOn(box); };
    view.AfterEvent = [&answer](const Control* typed) { answer.Acted(typed); };
    view.AfterBox = [&answer] { answer.Left(); };
    const auto bind = [&view](int key, auto action) {
        QObject::connect(new QShortcut(QKeySequence(key), &view), &QShortcut::activated, &view, action);
    };
    bind(Qt::Key_F8, [show, &form] { show(!form.AnswerShown()); });
    bind(Qt::Key_F5, [show, &form, &answer, &panes] {
        if (!form.AnswerShown()) show(true);
        panes.Raise();
        answer.Ask();
    });
}

}  // namespace

void LayoutProblem(FormView& view, PictureForm& form, std::initializer_list<GroupOf> groups) {
    QVBoxLayout* window = WindowColumn(view);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(kGroupGap);
    auto* fields = new ScrollColumn(Fields(view, form, groups), &view);
    columns->addWidget(fields);
    const auto room = [&view, fields] {
        return ScreenRoom(view).width() - fields->minimumSizeHint().width() - kGroupGap - 2 * kEdge;
    };
    auto* panes = new SidePanes(room, &view);
    auto* answer = new AnswerView(form, panes);
    panes->Hold(view.Place(form.PctInvertedT), answer);
    // Room to spare is theirs.
    columns->addWidget(panes, 1);
    window->addLayout(columns, 1);
    QLabel* reason = ReasonLine(view);
    window->addWidget(reason);
    QBoxLayout* buttons = ButtonRow(view, {form.cmdSave, form.cmdSaveAs, form.cmdOpen, form.CmdMoreLess, form.cmdHelp},
                                    {form.cmdResult, form.cmdok});
    QWidget* study = AddStudyButtons(view, form, *buttons);
    window->addLayout(buttons);
    BindAnswer(view, form, *answer, *panes, *study);
    view.AfterRefresh = [&view, &form, reason] { ShowReason(view, form, *reason); };
}

}  // namespace lithmark
