// Numbered files as the program's data files need them: text files of one value a line, comma lists, and record files.
//
// One file is open at a time under file number 1. An output file is written beside its target and takes its place when
// it is closed, so that after a crash or on a full disk the old file is still there. Every function throws a Failure
// with the line number where one applies; who calls them goes through OpenDataFile and CloseDataFile (files/).
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <variant>

#include "base/Integer.h"
#include "base/Single.h"

namespace lithmark {

enum class FileMode { Input = 1, Output = 2, RandomInput = 3, RandomOutput = 4 };

// The number of the file that is open.
inline constexpr int kDataFile = 1;

constexpr int kRecordLength = 128;

// Opening and closing. Closing an output file puts it in place; dropping one throws away what was written.
void OpenNumberedFile(int fileNumber, const std::string& path, FileMode mode);
void CloseNumberedFile(int fileNumber);
void DropNumberedFile(int fileNumber);
bool IsNumberedFileOpen(int fileNumber);

// Output files that belong together. While one stands, a file that is closed is held back; Commit brings all of them to
// the disk and then puts them in place, in the order in which they were closed. Files that no Commit put in place are
// dropped. One set stands at a time.
class NumberedFileSet {
  public:
    NumberedFileSet();
    ~NumberedFileSet();
    NumberedFileSet(const NumberedFileSet&) = delete;
    NumberedFileSet& operator=(const NumberedFileSet&) = delete;
    // `at` is told the path of the file that is worked on next, so that a failure can be told for it.
    void Commit(const std::function<void(const std::string& path)>& at);
};

// Reading text files. A value ends at a comma or a line end; CR LF, LF and CR all end a line. Files that are not UTF-8
// are taken as Windows-1252, or Windows-1256 while the language is Arabic.
Single ReadSingle(int fileNumber);
Integer ReadInteger(int fileNumber);
long ReadLong(int fileNumber);
double ReadDouble(int fileNumber);
bool ReadFlag(int fileNumber);            // #TRUE# or #FALSE#
std::string ReadRawLine(int fileNumber);  // the rest of the line as it stands
// To the next comma or line end, without surrounding double quotes; between a pair of quotes a comma is text.
std::string ReadListItem(int fileNumber);
// The line, from 1, that the next value is read from.
long LineToRead(int fileNumber);

// Writing text files; each call is one line, ended by CR LF.
void WriteNumber(int fileNumber, Single value);
void WriteNumber(int fileNumber, Integer value);
void WriteNumber(int fileNumber, long value);
void WriteNumber(int fileNumber, double value);
void WriteRawLine(int fileNumber, const std::string& text);
std::string FlagText(bool value);  // #TRUE# or #FALSE#

// A comma list on one line: bare numbers, #TRUE# or #FALSE#, texts in double quotes, an empty value as nothing.
using ListItem = std::variant<std::monostate, Single, Integer, long, double, bool, std::string>;
void WriteList(int fileNumber, std::initializer_list<ListItem> items);
std::string ListLine(std::initializer_list<ListItem> items);

// Record files: a value at the start of record n (from 1), little endian. A string is a 16-bit length and its bytes.
void PutRecord(int fileNumber, int record, Single value);
void PutRecord(int fileNumber, int record, Integer value);
void PutRecord(int fileNumber, int record, const std::string& value);

}  // namespace lithmark
