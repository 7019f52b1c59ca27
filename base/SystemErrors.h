// Error numbers that only one operating system has, and their short names.
#pragma once

#include <string>

namespace lithmark {

// No room for the user although the disk has some. False where the system knows no such error.
bool IsQuotaError(int error);

// "EIO" of an `errno` number; empty for one without a name.
std::string NameOfError(int error);

}  // namespace lithmark
