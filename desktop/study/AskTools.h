// Boxes of the windows of studies: a line's label, box and unit, each with its name.
#pragma once

#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "desktop/BoxWords.h"

class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QWidget;

namespace lithmark {

// "cboField(1)"
QString NumberedName(const char* name, int number);

// A label that names the box behind it.
QLabel* AskLabel(QWidget* parent, const std::string& words, QWidget* box);
// A box for a number, which runs from left to right; `changed` is called after each change by the user.
QLineEdit* NumberBox(QWidget* parent, const QString& name, std::function<void()> changed);
// What the box is for, for those who hear it; it may change.
void Describe(QLineEdit& box, const BoxWords& words);
// The mark of what is wrong with the box, in its description too; none without a fault.
void MarkBox(QLineEdit& box, const std::string& fault);
// A list of which one item is chosen.
QComboBox* AskList(QWidget* parent, const QString& name, const std::vector<QString>& items,
                   std::function<void()> changed);

// A button at the end of a row.
QPushButton* AskButton(QWidget* parent, QLayout& row, const QString& caption, const char* name,
                       std::function<void()> pressed);

// Ctrl+S presses that of the two buttons which saves what is seen: a table, or what is drawn.
void BindSaveKey(QWidget& window, QPushButton& table, QPushButton& drawn, std::function<bool()> seesTable);

// A symbol with its words: "a  Length".
QString SymbolAndWords(const std::string& symbol, const std::string& label);

}  // namespace lithmark
