#include "study/RowWriter.h"

#include <utility>

namespace lithmark {

TextRowWriter::TextRowWriter(const std::string& path, RowFormat format, StudyHead head)
    : format_(format), head_(std::move(head)), file_(path) {
    if (format_ == RowFormat::Csv) file_.Append(CsvRecord(head_.Columns()));
    if (format_ == RowFormat::JsonList) file_.Append("[");
}

void TextRowWriter::Write(const StudyLine& line) {
    switch (format_) {
        case RowFormat::Csv:
            file_.Append(CsvRecord(CellsOf(head_, line)));
            break;
        case RowFormat::JsonList:
            file_.Append((first_ ? "\n" : ",\n") + JsonRecord(head_, line));
            break;
        case RowFormat::JsonLines:
            file_.Append(JsonRecord(head_, line) + "\n");
            break;
    }
    first_ = false;
}

void TextRowWriter::Finish() {
    if (format_ == RowFormat::JsonList) file_.Append("\n]\n");
    file_.Finish();
}

}  // namespace lithmark
