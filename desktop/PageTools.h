// Pieces that the pages of the frame are made of.
#pragma once

#include <QString>
#include <string>

class QLabel;
class QPushButton;
class QWidget;

namespace lithmark {

// A label whose font is so many times the usual one.
QLabel* PageLabel(QWidget* parent, const QString& text, double size, bool bold);
// A large button for an icon and words.
QPushButton* PageButton(QWidget* parent, const QString& text, int height);
// Writes a label in a softer colour.
void MakeQuiet(QLabel& label);
// A menu caption without its mnemonic mark.
QString PlainCaption(const std::string& caption);

}  // namespace lithmark
