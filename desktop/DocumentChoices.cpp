#include "desktop/DocumentChoices.h"

#include <QBoxLayout>
#include <QCheckBox>

#include "desktop/PageTools.h"
#include "desktop/Sizes.h"
#include "render/QtText.h"
#include "render/figures/ReportFigures.h"
#include "report/Notices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

DocumentChoices::DocumentChoices(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("documentChoices"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(sizes::kEdge, 0, sizes::kEdge, 0);
    row->setSpacing(sizes::kEdge);
    // Problems without results to be drawn, and runs without notices, have nothing to choose.
    if (ProblemHasFigures()) Add(*row, 911300_text, "chkFigures", &DocumentParts::Figures);
    if (!Notices().All().empty()) Add(*row, 907262_text, "chkNotices", &DocumentParts::Notices);
    row->addStretch(1);
}

void DocumentChoices::Add(QBoxLayout& row, TextId caption, const char* name, bool DocumentParts::*part) {
    auto* box = new QCheckBox(PlainCaption(Text(caption)), this);
    box->setObjectName(QString::fromLatin1(name));
    box->setChecked(PartsChosen().*part);
    connect(box, &QCheckBox::toggled, this, [this, part](bool chosen) {
        PartsChosen().*part = chosen;
        if (OnChange) OnChange();
    });
    row.addWidget(box);
    boxes_.emplace_back(box, part);
}

void DocumentChoices::Follow() {
    for (const auto& [box, part] : boxes_) box->setChecked(PartsChosen().*part);
}

ReportPaper PaperChosen() {
    return PaperWithFigures(PartsChosen().Figures ? Figures::All : Figures::Drawing);
}

}  // namespace lithmark
