// One row of a study: what goes into its calculation and what comes out.
#pragma once

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace lithmark {

// A field of Session by its name, an element as "hLayer(2)", and the value as text, as for SetSessionField.
struct FieldChange {
    std::string Name, Value;
};

// The fields that the row sets, in this order: a table's count goes ahead of its elements.
using RowInput = std::vector<FieldChange>;

// A number that a row does not have.
inline constexpr float kMissing = std::numeric_limits<float>::quiet_NaN();
inline bool IsMissing(float value) {
    return std::isnan(value);
}

struct RowOutcome {
    bool Aborted = true;
    std::vector<float> Numbers;             // one for each number taken; kMissing where the run has none
    std::vector<std::vector<float>> Lists;  // one for each list taken
    std::vector<std::string> Messages;      // every message of the run, each one line, in order
    std::string Notices;                    // ids, parted by blanks

    // The message that tells how the run ended; empty where it had nothing to say.
    std::string Message() const { return Messages.empty() ? std::string() : Messages.back(); }
};

}  // namespace lithmark
