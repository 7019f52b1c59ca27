#include "desktop/study/TornadoTab.h"

#include <qcustomplot.h>

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "core/Session.h"
#include "desktop/ChartView.h"
#include "desktop/GraphicWords.h"
#include "desktop/Sizes.h"
#include "desktop/study/AskTools.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"
#include "study/window/ShortNumber.h"

namespace lithmark {

TornadoTab::TornadoTab(StudyQuestion& question, QWidget* parent)
    : QWidget(parent),
      question_(question),
      all_(new QRadioButton(Q(Text(913231_text)), this)),
      own_(new QRadioButton(Q(Text(913232_text)), this)),
      swing_(NumberBox(this, QStringLiteral("txtSwing"), [this] { Read(); })),
      plot_(new QCustomPlot(this)),
      note_(new QLabel(this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad);
    column->setSpacing(sizes::kRowGap);
    auto* row = new QHBoxLayout;
    row->setSpacing(sizes::kColumnGap);
    all_->setObjectName(QStringLiteral("optTornado(1)"));
    own_->setObjectName(QStringLiteral("optTornado(2)"));
    (question.TornadoOfAll ? all_ : own_)->setChecked(true);
    connect(all_, &QRadioButton::toggled, this, [this] { Read(); });
    swing_->setText(Q(question.TornadoSwing));
    swing_->setAccessibleName(Q(Text(913311_text)));
    Describe(*swing_, {{}, "%", 0, StudyQuestion::kMostSwing});
    swing_->setFixedWidth(sizes::kBoxWidth / 2);
    row->addWidget(all_);
    row->addWidget(swing_);
    row->addWidget(new QLabel(QStringLiteral("%"), this));
    row->addWidget(own_);
    row->addStretch(1);
    column->addLayout(row);
    note_->setWordWrap(true);
    note_->setObjectName(QStringLiteral("lblTornado"));
    column->addWidget(note_);
    plot_->setObjectName(QStringLiteral("tornado"));
    plot_->setLayoutDirection(Qt::LeftToRight);
    plot_->setMinimumHeight(160);
    MakeGraphic(*plot_, Q(Text(913230_text)));
    column->addWidget(plot_, 1);
    setTabOrder(all_, swing_);
    setTabOrder(swing_, own_);
}

void TornadoTab::Read() {
    question_.TornadoOfAll = all_->isChecked();
    question_.TornadoSwing = swing_->text().toStdString();
    swing_->setEnabled(question_.TornadoOfAll);
    if (OnChange) OnChange();
}

void TornadoTab::ShowBars(const TornadoPicture& picture, const QString& note) {
    picture_ = picture;
    note_->setText(note);
    note_->setVisible(!note.isEmpty());
    plot_->setVisible(!picture.Bars.empty());
    QString words;
    for (const TornadoPicture::Bar& bar : picture.Bars)
        words += Q(bar.Name + ": " + PictureNumber(bar.AtLow, 4) + " ... " + PictureNumber(bar.AtHigh, 4)) +
                 QStringLiteral("\n");
    TellGraphic(*plot_, words);
    Draw();
}

void TornadoTab::Draw() {
    if (picture_.Bars.empty()) return;
    FillTornado(*plot_, picture_, WindowInks(palette()));
    plot_->replot(QCustomPlot::rpQueuedReplot);
}

void TornadoTab::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) Draw();
}

void TornadoTab::Mark(const std::vector<AskFault>& faults) {
    const bool wrong = !faults.empty() && faults.front().Box == swing_->objectName().toStdString();
    MarkBox(*swing_, wrong ? faults.front().Reason : std::string());
}

TornadoPicture TornadoPictureOf(const StudyQuestion& question, const std::vector<TornadoBar>& bars, double middle) {
    TornadoPicture picture;
    const ResultChoice& drawn = question.Drawn();
    picture.Title = Text(908303_text, {{"|1", drawn.Short()}}) + "   " + Session.ProjectName;
    picture.Axis = drawn.Label + " " + drawn.Short() + " [" + (drawn.Unit.empty() ? "-" : drawn.Unit) + "]";
    picture.LowLegend = Text(908304_text);
    picture.HighLegend = Text(908305_text);
    picture.Middle = middle;
    for (const TornadoBar& bar : bars) picture.Bars.push_back({bar.Name, bar.AtLow, bar.AtHigh});
    return picture;
}

}  // namespace lithmark
