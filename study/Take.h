// What is taken of a run's results: a number, an element of a list, a list's greatest or least value, or a whole list.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kernels/RunResults.h"

namespace lithmark {

struct Take {
    enum class Kind { Number, Element, Greatest, Least, List };

    std::string Name;  // as it heads its column
    Kind What = Kind::Number;
    std::string Result;  // the result's own name
    int Index = 0;       // of an element
};

// "name", "name(index)", "max(name)" or "min(name)" of a problem's results, by name or report symbol. Nothing when the
// problem has no such result, or no such element in any run.
std::optional<Take> ParseTake(int problemType, const std::string& text);

// Every result of a problem that is a single number.
std::vector<Take> SingleNumbers(int problemType);

// The number of the run that Session holds; nothing where the run has none.
std::optional<double> TakenNumber(const Take& take);
// The whole list, empty where the run has none.
std::vector<float> TakenList(const Take& take);

}  // namespace lithmark
