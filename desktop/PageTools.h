// Pieces that the pages of the frame are made of.
#pragma once

#include <QIcon>
#include <QPushButton>
#include <QString>
#include <string>

class QLabel;
class QWidget;

namespace lithmark {

// A label whose font is so many times the usual one.
QLabel* PageLabel(QWidget* parent, const QString& text, double size, bool bold);
// A large button with an icon and words, in the order of the language. The centred one is a command; the other one is a
// row of a list with a second line.
class PageButton : public QPushButton {
  public:
    PageButton(QWidget* parent, int height, bool centred);
    void Show(const QIcon& icon, const QString& caption, const QString& detail = {});
    void SetIcon(const QIcon& icon);
    QSize sizeHint() const override;

  private:
    QLabel *picture_, *caption_, *detail_;
    const int size_;
};
// Writes a label in a softer colour.
void MakeQuiet(QLabel& label);
// A caption without its mnemonic mark.
QString PlainCaption(const std::string& caption);

// A number as short as six digits allow, with the decimal sign in force.
QString PlainNumber(double value);

}  // namespace lithmark
