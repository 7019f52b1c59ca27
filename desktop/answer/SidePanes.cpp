#include "desktop/answer/SidePanes.h"

#include <QEvent>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/Sizes.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

using namespace sizes;

constexpr int kBothWide = kPictureWidth + kGroupGap + kAnswerWidth;
constexpr int kPanesLeast = 200;  // high; a drawing shows its symbols alone there

}  // namespace

SidePanes::SidePanes(std::function<int()> room, QWidget* parent)
    : QWidget(parent),
      drawingPane_(new QWidget(this)),
      tabs_(new QTabBar(this)),
      back_(new QToolButton(this)),
      room_(std::move(room)) {
    tabs_->setObjectName(QStringLiteral("answerTabs"));
    tabs_->addTab(Q(Text(913050_text)));
    tabs_->addTab(Q(Text(913051_text)));
    tabs_->setAccessibleName(Q(Text(913050_text)) + QStringLiteral(", ") + Q(Text(913051_text)));
    tabs_->setExpanding(false);
    connect(tabs_, &QTabBar::currentChanged, this, [this] {
        if (answer_ != nullptr) Arrange();
    });
    back_->setObjectName(QStringLiteral("answerBack"));
    back_->setArrowType(layoutDirection() == Qt::RightToLeft ? Qt::RightArrow : Qt::LeftArrow);
    back_->setAutoRaise(true);
    back_->setToolTip(Q(Text(913008_text)));
    back_->setAccessibleName(back_->toolTip());
    connect(back_, &QToolButton::clicked, this, [this] {
        if (OnShowAnswer) OnShowAnswer();
    });
}

void SidePanes::Hold(QWidget* drawing, QWidget* answer) {
    drawing_ = drawing;
    answer_ = answer;
    auto* pane = new QVBoxLayout(drawingPane_);
    pane->setContentsMargins(0, 0, 0, 0);
    pane->addWidget(drawing);
    drawing->setMinimumHeight(0);
    drawing->installEventFilter(this);
    Arrange();
}

bool SidePanes::DrawingShown() const {
    return !drawing_->isHidden();
}

SidePanes::Way SidePanes::WayIn(const QSize& size) {
    if (size.width() >= kBothWide) return Way::Beside;
    return size.height() >= kTabsBelow ? Way::Below : Way::Tabs;
}

void SidePanes::ShowAnswer(bool shown) {
    if (answerShown_ == shown) return;
    answerShown_ = shown;
    updateGeometry();
    Arrange();
}

void SidePanes::Raise() {
    tabs_->setCurrentIndex(1);
}

void SidePanes::Place(QWidget& pane, const QRect& place) {
    pane.setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
    pane.setVisible(!place.isEmpty());
}

void SidePanes::Arrange() {
    const QRect all = rect();
    const bool both = DrawingShown() && answerShown_;
    const Way way = Stand();
    QRect drawing = all, answer = all, tabs, back;
    if (!both) {
        if (!DrawingShown()) drawing = {};
        if (!answerShown_) {
            answer = {};
            back = QRect(all.right() + 1 - kClicked, all.top(), kClicked, kClicked);
            drawing.setRight(drawing.right() - kClicked);
        }
    } else if (way == Way::Beside) {
        const int wide =
            std::max(kAnswerWidth, std::min(kAnswerGoodWidth, all.width() - kGroupGap - kPictureGoodWidth));
        // Room to spare is the drawing's, up to a half.
        const int answerWide = std::max(wide, (all.width() - kGroupGap) * 2 / 5);
        answer.setLeft(all.right() + 1 - answerWide);
        drawing.setWidth(all.width() - kGroupGap - answerWide);
    } else if (way == Way::Below) {
        drawing.setHeight((all.height() - kGroupGap) * 2 / 5);
        answer.setTop(drawing.bottom() + 1 + kGroupGap);
    } else {
        tabs = QRect(all.left(), all.top(), all.width(), tabs_->sizeHint().height());
        drawing.setTop(tabs.bottom() + 1);
        answer.setTop(tabs.bottom() + 1);
        (tabs_->currentIndex() == 0 ? answer : drawing) = {};
    }
    Place(*tabs_, tabs);
    Place(*back_, back);
    Place(*drawingPane_, DrawingShown() ? drawing : QRect());
    Place(*answer_, answer);
}

bool SidePanes::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
        updateGeometry();
        Arrange();
    }
    return QWidget::eventFilter(watched, event);
}

void SidePanes::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (answer_ != nullptr) Arrange();
}

QSize SidePanes::sizeHint() const {
    const QSize drawing(kPictureGoodWidth, kPictureGoodHeight), answer(kAnswerGoodWidth, kAnswerGoodHeight);
    if (!answerShown_) return DrawingShown() ? drawing + QSize(kClicked, 0) : QSize(kClicked, kClicked);
    if (!DrawingShown()) return answer;
    const int room = room_();
    const int beside = drawing.width() + kGroupGap + answer.width();
    if (room >= kBothWide) return {std::min(room, beside), std::max(drawing.height(), answer.height())};
    return {drawing.width(), kPictureHeight + kGroupGap + answer.height()};
}

QSize SidePanes::minimumSizeHint() const {
    if (!answerShown_ && !DrawingShown()) return {kClicked, kClicked};
    return {kPictureWidth, kPanesLeast};
}

}  // namespace lithmark
