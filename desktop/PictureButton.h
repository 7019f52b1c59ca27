// PictureButton: a picture with words that is clicked: a row of a list, with the picture beside two lines, or a card,
// with the picture above its name. Its width is fixed; its height follows the words, none of which is cut.
#pragma once

#include <QPixmap>
#include <QPushButton>

namespace lithmark {

class PictureButton : public QPushButton {
  public:
    enum class Kind { Row, Card };
    PictureButton(QWidget* parent, Kind kind, int width, QSize pictureSize);

    void Say(const QString& caption, const QString& detail = {});
    void SetPicture(const QPixmap& picture);
    QSize PictureSize() const { return pictureSize_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    // The place of the words in the button, mirrored where the language is.
    QRect WordsIn(const QRect& button) const;
    QFont CaptionFont() const;
    int HeightOf(const QFont& font, const QString& words) const;

    const Kind kind_;
    const int width_;
    const QSize pictureSize_;
    QPixmap picture_;
    QString caption_, detail_;
};

}  // namespace lithmark
