#include "desktop/PictureButton.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

#include "desktop/Sizes.h"
#include "render/drawings/Inks.h"

namespace lithmark {

namespace {

constexpr int kButtonPad = sizes::kGroupPad, kGap = sizes::kColumnGap;
constexpr double kRound = 4, kUsualLine = 1, kFocusLine = 2;

}  // namespace

PictureButton::PictureButton(QWidget* parent, Kind kind, int width, QSize pictureSize)
    : QPushButton(parent), kind_(kind), width_(width), pictureSize_(pictureSize) {
    setFixedWidth(width);
    // The buttons of a row of a grid are as high as the highest.
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    setAttribute(Qt::WA_Hover);
}

void PictureButton::Say(const QString& caption, const QString& detail) {
    caption_ = caption;
    detail_ = detail;
    setAccessibleName(caption);
    setAccessibleDescription(detail);
    updateGeometry();
    update();
}

void PictureButton::SetPicture(const QPixmap& picture) {
    picture_ = picture;
    update();
}

QFont PictureButton::CaptionFont() const {
    QFont bold = font();
    bold.setBold(kind_ == Kind::Row);
    return bold;
}

QRect PictureButton::WordsIn(const QRect& button) const {
    const QRect inside = button.adjusted(kButtonPad, kButtonPad, -kButtonPad, -kButtonPad);
    if (kind_ == Kind::Card) return inside.adjusted(0, pictureSize_.height() + kGap, 0, 0);
    const int beside = pictureSize_.width() + kGap;
    return layoutDirection() == Qt::RightToLeft ? inside.adjusted(0, 0, -beside, 0) : inside.adjusted(beside, 0, 0, 0);
}

int PictureButton::HeightOf(const QFont& font, const QString& words) const {
    if (words.isEmpty()) return 0;
    const int width = WordsIn(QRect(0, 0, width_, 1000)).width();
    return QFontMetrics(font).boundingRect(QRect(0, 0, width, 1000), Qt::TextWordWrap, words).height();
}

QSize PictureButton::sizeHint() const {
    const int words = HeightOf(CaptionFont(), caption_) + HeightOf(font(), detail_);
    const int inside =
        kind_ == Kind::Card ? pictureSize_.height() + kGap + words : std::max(pictureSize_.height(), words);
    return {width_, inside + 2 * kButtonPad};
}

void PictureButton::paintEvent(QPaintEvent*) {
    QStyleOptionButton option;
    initStyleOption(&option);
    const Theme theme = ThemeOf(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool hot = hasFocus() || (option.state & QStyle::State_MouseOver);
    const double line = hasFocus() ? kFocusLine : kUsualLine;
    painter.setPen(QPen(ColourOf(hot ? Ink::Selection : Ink::Grid, theme), line));
    painter.setBrush(ColourOf(isDown() ? Ink::Window : Ink::Base, theme));
    painter.drawRoundedRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2), kRound, kRound);

    const QRect inside = rect().adjusted(kButtonPad, kButtonPad, -kButtonPad, -kButtonPad);
    QRect picture(QPoint(), pictureSize_);
    if (kind_ == Kind::Card)
        picture.moveTopLeft({inside.center().x() - pictureSize_.width() / 2, inside.top()});
    else
        picture.moveTopLeft(
            {layoutDirection() == Qt::RightToLeft ? inside.right() - pictureSize_.width() + 1 : inside.left(),
             inside.center().y() - pictureSize_.height() / 2});
    if (!picture_.isNull()) painter.drawPixmap(picture, picture_);

    QRect words = WordsIn(rect());
    const int align = kind_ == Kind::Card ? Qt::AlignHCenter : Qt::AlignLeft;
    painter.setPen(ColourOf(Ink::Text, theme));
    painter.setFont(CaptionFont());
    painter.drawText(words, align | Qt::AlignTop | Qt::TextWordWrap, caption_);
    words.setTop(words.top() + HeightOf(CaptionFont(), caption_));
    painter.setPen(ColourOf(Ink::Quiet, theme));
    painter.setFont(font());
    painter.drawText(words, align | Qt::AlignTop | Qt::TextWordWrap, detail_);
}

}  // namespace lithmark
