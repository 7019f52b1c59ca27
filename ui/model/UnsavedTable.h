// Rows that were typed into the table editor and not confirmed: kept as unsaved input is, and offered when the table
// opens again. A table belongs to the open project and is known by its title and its heads.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "services/host/TableEditor.h"

namespace lithmark {

using TableTexts = std::vector<std::vector<std::string>>;

struct KeptTable {
    TableTexts Rows;   // empty where they are none of such a table
    std::string When;  // as the user reads a day
};
// What is kept for a table, in the units and the language of its heads; nothing where nothing is.
std::optional<KeptTable> KeptRows(const TableEdit& table);
// Before a table is edited: takes the kept rows into it if there are any and the user wants them.
void OfferUnsavedRows(TableEdit& table);
// While it is edited and when it is cancelled. What cannot be written is told by no message.
void KeepRows(const TableEdit& table, const TableTexts& rows);
// When its rows were taken.
void DropUnsavedRows(const TableEdit& table);

}  // namespace lithmark
