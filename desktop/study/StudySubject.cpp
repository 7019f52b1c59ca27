#include "desktop/study/StudySubject.h"

#include <QLabel>

#include "core/Session.h"
#include "desktop/WidgetInk.h"
#include "render/QtText.h"
#include "render/drawings/Symbols.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

template <typename Choice>
std::vector<Choice> InPrint(std::vector<Choice> choices) {
    for (Choice& choice : choices)
        if (!choice.Symbol.empty()) choice.InPrint = SymbolWords(choice.Symbol).toStdString();
    return choices;
}

}  // namespace

StudySubject SubjectOf(const ProblemForm& form, const SessionRecord& draft) {
    StudySubject subject;
    subject.Title = form.Caption;
    subject.Draft = draft;
    subject.Modified = form.Modified();
    subject.Fields = InPrint(FieldChoicesOf(form, draft));
    subject.Results = InPrint(ResultChoicesOf(draft));
    return subject;
}

std::string SavedProject() {
    return Session.DataDir + Session.ProjectName + ".PO3";
}

QLabel* WordsLabel(QWidget* parent, const char* name, int lines) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setMinimumHeight(lines * label->fontMetrics().lineSpacing());
    label->setAlignment((LanguageTexts().RightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute |
                        Qt::AlignVCenter);
    return label;
}

QLabel* InputLabel(QWidget* parent, const StudySubject& subject) {
    QLabel* label = WordsLabel(parent, "lblInput", 1);
    label->setText(Q(Text(subject.Modified ? 913235_text : 913236_text)));
    if (subject.Modified) SetInk(*label, Ink::Warning);
    return label;
}

}  // namespace lithmark
