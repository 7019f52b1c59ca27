// A number in a box stepped by its digits.
#pragma once

#include <QString>
#include <optional>

class QKeyEvent;
class QLineEdit;

namespace lithmark {

struct SteppedNumber {
    QString Text;
    int Cursor;  // behind the same digit as before
};

// The number with the digit left of the cursor (the first one, where none is) stepped so often, and what follows from
// that for the digits before it. It keeps its decimals. Nothing for what is no plain number of at most 15 digits.
std::optional<SteppedNumber> StepNumber(const QString& text, int cursor, int steps, QChar decimalSign);

// Up and Down step the number in a box by one, the page keys by ten. False, and nothing is changed, for other keys and
// what is no plain number.
bool StepByKey(QLineEdit& box, const QKeyEvent& key);

}  // namespace lithmark
