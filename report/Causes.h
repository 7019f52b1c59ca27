// Why a run failed: the input that no run can work with, told in the words of the report.
//
// A kernel's causes are asked only after its run has failed, and change nothing about when it does. Each of the
// functions gives its part of a sentence ("modulus of elasticity is 0"), or nothing where the value is none that a run
// fails by.
#pragma once

#include <initializer_list>
#include <string>
#include <utility>

#include "base/TextId.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

// The name of a quantity as its report has it, for the middle of a sentence.
std::string QuantityName(TextId label);
std::string QuantityName(TextId label, int number);  // "layer thickness 2"
std::string QuantityName(Axis axis);                 // "z-coordinate"

std::string IfZero(const std::string& name, double value);
std::string IfNegative(const std::string& name, double value);
inline std::string IfNotPositive(const std::string& name, double value) {
    return value == 0 ? IfZero(name, value) : IfNegative(name, value);
}
// A value so large that no soil or building has it, or so near to 0, and that overflows in formulas.
std::string IfExtreme(const std::string& name, double value);
// The same of lengths in metres, which are known better. It belongs behind all other causes.
std::string IfNoLength(const std::string& name, double value);
// Of coordinates in metres: 0 and its neighbours are places as others are.
std::string IfFar(const std::string& name, double value);
// A whole number that should be even.
std::string IfOdd(const std::string& name, int value);
std::string IfOutside(const std::string& name, double value, double lower, double upper);
// A value that is not above the smallest that the formulas can divide.
std::string IfBelow(const std::string& name, double value, const std::string& otherName, double other);

// A value that makes more nodes than 16 bits count.
std::string IfUncountable(const std::string& name, double nodes);

// The first of several causes that is one.
std::string FirstCause(std::initializer_list<std::string> causes);
// A cause that only counts where its input is used.
inline std::string When(bool used, std::string cause) {
    return used ? std::move(cause) : std::string();
}

}  // namespace lithmark
