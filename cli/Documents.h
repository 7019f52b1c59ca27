// Documents and pictures of a run. Only lithmark-render, the same program with the toolkit that draws, writes them;
// lithmark-cli starts without that toolkit, and hands a command line that asks for one over to it as it stands.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "contour/BasContour.h"
#include "contour/FieldPlot.h"
#include "report/StepTables.h"
#include "services/host/Charting.h"

namespace lithmark {

struct Tornado;

// Each function gives the bytes of a file.
class DocumentWriter {
  public:
    virtual ~DocumentWriter() = default;

    // A report's text as "html", "pdf" or "rtf", with the drawing of the problem and, on request, the curves and
    // contour lines of the results.
    virtual std::string Report(const std::string& format, const std::string& text, bool figures) const = 0;
    // "svg", "png", "pdf" or "xlsx".
    virtual std::string Chart(const std::string& format, const ChartArguments& chart) const = 0;
    // "svg", "png" or "pdf"; `size` 0 takes the usual one.
    virtual std::string Contour(const std::string& format, BasContour& plot, int size) const = 0;
    // The field of a raft's values, with the curve along a section where there is one; the same formats.
    virtual std::string Field(const std::string& format, const BasContour& plot, const FieldPlot& field,
                              const std::optional<FieldLine>& section, int size) const = 0;
    // The influence of fields on a result; the same formats.
    virtual std::string TornadoOf(const std::string& format, const Tornado& tornado) const = 0;
    // Spreadsheets: the tables for a check by hand, and a table with its head in the first row.
    virtual std::string StepTables(const std::vector<StepTable>& tables) const = 0;
    virtual std::string Table(const std::string& sheetName,
                              const std::vector<std::vector<std::string>>& table) const = 0;
};

// The writer of this program; null in lithmark-cli.
const DocumentWriter* Documents();
void UseDocuments(const DocumentWriter& writer);

// Keeps the words of the command line for HandOver.
void KeepCommandLine(char** argv);

// Becomes lithmark-render with the same command line, where `format` is a document or picture and this program writes
// none. CommandFailure where lithmark-render is not beside this program or does not start.
void HandOver(const std::string& format);

}  // namespace lithmark
