#include "render/figures/ChartSymbols.h"

#include "contour/ChartReading.h"
#include "render/drawings/Symbols.h"

namespace lithmark {

namespace {

std::string InPrint(const std::string& title) {
    const AxisWords words = WordsOf(title);
    if (words.Symbol.empty()) return title;
    const std::size_t at = words.Title.size() + 1;
    return words.Title + " " + SymbolWords(words.Symbol).toStdString() + title.substr(at + words.Symbol.size());
}

}  // namespace

ChartArguments WithSymbolsInPrint(ChartArguments chart) {
    chart.XTitle = InPrint(chart.XTitle);
    chart.YTitle = InPrint(chart.YTitle);
    return chart;
}

}  // namespace lithmark
