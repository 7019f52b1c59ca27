#include "desktop/answer/AnswerView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QShowEvent>
#include <QToolButton>
#include <QVBoxLayout>
#include <cmath>

#include "base/NumberText.h"
#include "desktop/PageTools.h"
#include "desktop/PaneKeys.h"
#include "desktop/Sizes.h"
#include "desktop/SpokenAlert.h"
#include "desktop/WidgetInk.h"
#include "desktop/answer/AnswerCurveView.h"
#include "desktop/answer/AnswerList.h"
#include "desktop/answer/StateMark.h"
#include "files/CommonStep.h"
#include "render/QtText.h"
#include "render/drawings/Inks.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

using namespace sizes;

constexpr int kStateLines = 2, kProgressHeight = 4;

QPushButton* LinkButton(QWidget* parent, const char* name) {
    auto* button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    button->setFlat(true);
    button->setCursor(Qt::PointingHandCursor);
    SetInk(*button, Ink::Link, QPalette::ButtonText);
    QSizePolicy policy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    button->setSizePolicy(policy);
    return button;
}

QLabel* StateLabel(QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QStringLiteral("answerState"));
    label->setWordWrap(true);
    label->setTextFormat(Qt::RichText);
    label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    // Its place does not depend on what it says.
    label->setFixedHeight(kStateLines * label->fontMetrics().lineSpacing());
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    label->setAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    return label;
}

}  // namespace

AnswerView::AnswerView(const ProblemForm& form, QWidget* parent)
    : QWidget(parent), live_(form, worker_, [this] { return clock_.elapsed(); }) {
    setObjectName(QStringLiteral("answer"));
    setAccessibleName(Q(Text(913000_text)));
    PaneKeys::MakePane(*this);
    clock_.start();
    Build();
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, [this] {
        live_.Due();
        Wait();
    });
    live_.OnChange = [this] { Follow(); };
    live_.OnSpeak = [this] { Speak(); };
    Follow();
}

void AnswerView::Build() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kRowGap);

    auto* head = new QHBoxLayout;
    head->setSpacing(kColumnGap);
    auto* title = PageLabel(this, Q(Text(913000_text)), 1.2, true);
    title->setObjectName(QStringLiteral("answerTitle"));
    keep_ = new QPushButton(Q(Text(913005_text)), this);
    keep_->setObjectName(QStringLiteral("answerKeep"));
    keep_->setAutoDefault(false);
    keep_->setCheckable(true);
    keep_->setToolTip(Q(Text(913006_text)));
    connect(keep_, &QPushButton::clicked, this, [this](bool on) { live_.Keep(on); });
    study_ = new QPushButton(Q(Text(913250_text, Styles::Button)), this);
    study_->setObjectName(QStringLiteral("answerStudy"));
    study_->setAutoDefault(false);
    study_->setToolTip(Q(Text(913252_text)));
    connect(study_, &QPushButton::clicked, this, [this] {
        if (OnStudy) OnStudy();
    });
    hide_ = new QToolButton(this);
    hide_->setObjectName(QStringLiteral("answerHide"));
    hide_->setArrowType(layoutDirection() == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow);
    hide_->setAutoRaise(true);
    hide_->setMinimumSize(kClicked, kClicked);
    hide_->setToolTip(Q(Text(913007_text)));
    hide_->setAccessibleName(hide_->toolTip());
    connect(hide_, &QToolButton::clicked, this, [this] {
        if (OnHide) OnHide();
    });
    head->addWidget(title);
    head->addStretch(1);
    head->addWidget(keep_);
    head->addWidget(study_);
    head->addWidget(hide_);
    column->addLayout(head);

    auto* state = new QHBoxLayout;
    state->setSpacing(kRowGap);
    mark_ = new QLabel(this);
    mark_->setObjectName(QStringLiteral("answerMark"));
    MakeAlert(*mark_);
    mark_->setFixedSize(kMarkSize, kMarkSize);
    state_ = StateLabel(this);
    connect(state_, &QLabel::linkActivated, this, [this] {
        if (live_.Box() != nullptr && OnBox) OnBox(*live_.Box());
    });
    ask_ = new QPushButton(this);
    ask_->setObjectName(QStringLiteral("answerAsk"));
    ask_->setAutoDefault(false);
    connect(ask_, &QPushButton::clicked, this, [this] { Ask(); });
    state->addWidget(mark_);
    state->addWidget(state_, 1);
    state->addWidget(ask_);
    state->addStrut(state_->height());
    column->addLayout(state);

    progress_ = new QProgressBar(this);
    progress_->setObjectName(QStringLiteral("answerProgress"));
    progress_->setRange(0, 0);
    progress_->setTextVisible(false);
    progress_->setFixedHeight(kProgressHeight);
    progress_->setAccessibleName(Q(Text(913012_text)));
    QSizePolicy keepsPlace = progress_->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    progress_->setSizePolicy(keepsPlace);
    column->addWidget(progress_);

    list_ = new AnswerList(this);
    column->addWidget(list_);

    auto* links = new QHBoxLayout;
    notices_ = LinkButton(this, "answerNotices");
    connect(notices_, &QPushButton::clicked, this, [this] { ShowNotice(-1); });
    more_ = LinkButton(this, "answerMore");
    connect(more_, &QPushButton::clicked, this, [this] {
        all_ = !all_;
        Follow();
    });
    links->addWidget(notices_);
    links->addStretch(1);
    links->addWidget(more_);
    column->addLayout(links);

    curves_ = new AnswerCurveView(this);
    column->addWidget(curves_, 1);
}

void AnswerView::Acted(const Control* typed) {
    if (!shown_) return;
    if (typed != nullptr)
        live_.Typed(*typed);
    else
        live_.Chosen();
    Wait();
}

void AnswerView::Left() {
    if (!shown_) return;
    live_.Left();
    Wait();
}

void AnswerView::Ask() {
    live_.Ask();
    Wait();
}

void AnswerView::SetShown(bool shown) {
    if (shown == shown_) return;
    shown_ = shown;
    if (shown)
        live_.Chosen();
    else
        live_.Rest();
    Wait();
}

void AnswerView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (event->spontaneous() || !shown_ || live_.State() != AnswerState::None) return;
    live_.Chosen();
    Wait();
}

// The state, its mark and the values are in inks of light or dark windows.
void AnswerView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && curves_ != nullptr) Follow();
}

void AnswerView::Wait() {
    if (const auto due = live_.NextDue())
        timer_.start(static_cast<int>(*due));
    else
        timer_.stop();
}

void AnswerView::Follow() {
    // What was said is of a former state.
    mark_->setAccessibleName({});
    const Answer* answer = live_.Shown();
    const bool present = live_.State() == AnswerState::Now;
    list_->ShowAnswer(answer, live_.Kept(), present, all_);
    static const std::vector<AnswerCurve> none;
    curves_->Show(answer ? answer->Curves : none, live_.Kept() ? live_.Kept()->Curves : none, present);
    keep_->setChecked(live_.Kept() != nullptr);
    keep_->setEnabled(present || live_.Kept() != nullptr);
    bool further = false;
    if (answer != nullptr)
        for (const AnswerValue& value : answer->Values) further = further || !value.Main;
    more_->setVisible(further);
    more_->setText(Q(Text(all_ ? 913016_text : 913015_text)));
    progress_->setVisible(live_.InProgress());
    FollowState();
    FollowNotices();
}

void AnswerView::FollowState() {
    StateMark mark = StateMark::None;
    Ink ink = Ink::Text;
    QString words;
    switch (live_.State()) {
        case AnswerState::None:
            break;
        case AnswerState::Now:
            mark = StateMark::Tick;
            ink = Ink::Good;
            words = Q(Text(913001_text));
            break;
        case AnswerState::Stale:
            mark = StateMark::Clock;
            ink = Ink::Quiet;
            words = Q(Text(913002_text));
            break;
        case AnswerState::Stopped:
        case AnswerState::Failed:
            mark = StateMark::Exclamation;
            ink = Ink::Error;
            words = Q(live_.Reason());
            break;
        case AnswerState::OnRequest:
            mark = StateMark::Clock;
            ink = Ink::Quiet;
            words = Q(Text(913010_text));
            break;
    }
    const Theme theme = ThemeOf(palette());
    mark_->setPixmap(PixmapOf(mark, ColourOf(ink, theme), kMarkSize, devicePixelRatioF()));
    const QString colour = ColourOf(live_.State() == AnswerState::Stopped ? Ink::Link : ink, theme).name();
    const QString plain = words.toHtmlEscaped();
    const bool link = live_.Box() != nullptr;
    state_->setText(link ? QStringLiteral("<a href=\"box\" style=\"color:%1\">%2</a>").arg(colour, plain)
                         : QStringLiteral("<span style=\"color:%1\">%2</span>").arg(colour, plain));
    state_->setToolTip(words);
    state_->setAccessibleName(words);
    state_->setFocusPolicy(link ? Qt::StrongFocus : Qt::NoFocus);
    // The button says it all.
    ask_->setVisible(live_.State() == AnswerState::OnRequest);
    state_->setVisible(ask_->isHidden());
    const bool stopped = live_.State() == AnswerState::Stopped && live_.Shown() == nullptr;
    MakeRoomForReason(stopped || live_.State() == AnswerState::Failed);
    if (ask_->isHidden()) return;
    const int seconds = std::max(1, static_cast<int>(std::ceil(live_.Size().Seconds)));
    ask_->setText(Q(Text(913011_text, {{"|1", NumberToText(live_.Size().Nodes)}, {"|2", NumberToText(seconds)}})));
    ask_->setToolTip(QStringLiteral("F5"));
}

// A reason of many words has the room of the values where there are none, or former ones; what stands below does not
// move.
void AnswerView::MakeRoomForReason(bool alone) {
    const int usual = kStateLines * state_->fontMetrics().lineSpacing();
    const bool wide = alone && state_->heightForWidth(state_->width()) > usual;
    const int room = list_->isHidden() ? state_->height() : usual + kRowGap + list_->height();
    list_->setVisible(!wide);
    state_->setFixedHeight(wide ? room : usual);
    state_->setAlignment(Qt::AlignLeading | (wide ? Qt::AlignTop : Qt::AlignVCenter));
}

void AnswerView::FollowNotices() {
    static const std::vector<AnswerNotice> none;
    const auto& notices = live_.Shown() ? live_.Shown()->Notices : none;
    notices_->setVisible(!notices.empty());
    if (notices.empty()) return;
    const int count = static_cast<int>(notices.size());
    notices_->setText(Q(count == 1 ? Text(913009_text) : Text(913014_text, {{"|1", NumberToText(count)}})));
    QStringList texts;
    for (const AnswerNotice& notice : notices) texts.append(Q(notice.Text));
    // Those of a former answer are as quiet as its values.
    const bool present = live_.State() == AnswerState::Now;
    SetInk(*notices_, present ? Ink::Link : Ink::Quiet, QPalette::ButtonText);
    if (!present) texts.append(Q(Text(913002_text)));
    notices_->setToolTip(
        QStringLiteral("<p>") +
        texts.join(QStringLiteral("\n")).toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("</p><p>")) +
        QStringLiteral("</p>"));
    notices_->setAccessibleDescription(texts.join(QLatin1Char(' ')));
}

// One notice leads to its section at once; of several the user chooses.
void AnswerView::ShowNotice(int index) {
    if (live_.Shown() == nullptr) return;
    const auto& notices = live_.Shown()->Notices;
    if (index < 0 && notices.size() > 1) {
        QMenu menu(this);
        menu.setObjectName(QStringLiteral("answerNoticeMenu"));
        constexpr int kWidth = 480;
        for (int i = 0; i < static_cast<int>(notices.size()); ++i)
            menu.addAction(
                fontMetrics().elidedText(Q(notices[static_cast<std::size_t>(i)].Text), Qt::ElideRight, kWidth),
                [this, i] { ShowNotice(i); });
        menu.exec(notices_->mapToGlobal(QPoint(0, notices_->height())));
        return;
    }
    const std::size_t chosen = index < 0 ? 0 : static_cast<std::size_t>(index);
    if (chosen < notices.size())
        UnderCommonStep([&] { SharedServices().ShowHelpTopic("notices#" + notices[chosen].Id); });
}

// Only when it was asked for.
void AnswerView::Speak() {
    const bool values = live_.State() == AnswerState::Now;
    SpeakAlert(*mark_, values ? list_->Words() : state_->accessibleName());
}

QSize AnswerView::sizeHint() const {
    return {kAnswerGoodWidth, kAnswerGoodHeight};
}

}  // namespace lithmark
