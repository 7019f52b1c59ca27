// Rows of two numbers that a form hands to the table editor and takes back from it.
#pragma once

#include <string>

#include "base/Array.h"
#include "base/Integer.h"
#include "base/Single.h"
#include "services/host/TableEditor.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

// A column of the editor and the format that its cells are shown and read in.
struct EditedColumn {
    EditedColumn(const std::string& head, const std::string& format, TableEdit::Kind accepts, double lower = 0,
                 double upper = 1e38);
    TableEdit::Column Head;
    std::string Format;
};

// The three lines of a column's head: title, symbol, unit.
std::string TableHead(TextId title, const std::string& symbol, const std::string& unit);

// Shows the rows in the table editor. When they are taken, `count` is their number and the arrays hold what the cells
// show, rounded by their formats; a cancelled editor changes nothing. True when they were taken.
bool EditRows(TextId title, TextId help, const std::string& rowHead, const EditedColumn& first,
              const EditedColumn& second, Integer& count, Array<Integer>& times, Array<Single>& values);
bool EditRows(TextId title, TextId help, const std::string& rowHead, const EditedColumn& first,
              const EditedColumn& second, Integer& count, Array<Single>& times, Array<Single>& values);

}  // namespace lithmark
