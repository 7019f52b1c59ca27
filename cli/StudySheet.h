// A study's rows as a spreadsheet.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "study/RowWriter.h"

namespace lithmark {

// A table with its head as a spreadsheet. CommandFailure in a program that writes none.
std::string SheetOf(const std::vector<std::vector<std::string>>& table);

// Holds the rows until Finish. CommandFailure where a sheet cannot hold so many, and in a program that writes none.
std::unique_ptr<RowWriter> SheetWriter(const std::string& path, const StudyHead& head, std::uint64_t rows);

}  // namespace lithmark
