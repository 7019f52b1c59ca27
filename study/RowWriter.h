// Where the rows of a study go, one after the other.
#pragma once

#include <string>

#include "study/GrowingFile.h"
#include "study/StudyLine.h"

namespace lithmark {

class RowWriter {
  public:
    virtual ~RowWriter() = default;
    virtual void Write(const StudyLine& line) = 0;
    // The rows so far can be seen.
    virtual void Flush() {}
    // The rows so far may take the place of what stood there before.
    virtual void Settle() {}
    // No more rows follow; all are on the disk.
    virtual void Finish() = 0;
};

enum class RowFormat { Csv, JsonList, JsonLines };

// Rows as text: a comma-separated table, a list of objects, or an object a line. Each row is one line.
class TextRowWriter : public RowWriter {
  public:
    TextRowWriter(const std::string& path, RowFormat format, StudyHead head);

    void Write(const StudyLine& line) override;
    void Flush() override { file_.Flush(); }
    void Settle() override { file_.Settle(); }
    void Finish() override;

  private:
    RowFormat format_;
    StudyHead head_;
    GrowingFile file_;
    bool first_ = true;
};

}  // namespace lithmark
