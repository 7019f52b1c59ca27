#include "cli/StudySheet.h"

#include "cli/Documents.h"
#include "cli/Failures.h"
#include "cli/Output.h"
#include "core/Session.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

std::string SheetOf(const std::vector<std::vector<std::string>>& table) {
    if (!Documents()) FailFormat("xlsx");
    return Documents()->Table(Session.ProjectName, table);
}

namespace {

class SheetRows : public RowWriter {
  public:
    SheetRows(const std::string& path, const StudyHead& head) : path_(path), head_(head), table_{head.Columns()} {}

    void Write(const StudyLine& line) override { table_.push_back(CellsOf(head_, line)); }
    void Finish() override { WriteOutput(path_, SheetOf(table_)); }

  private:
    std::string path_;
    StudyHead head_;
    std::vector<std::vector<std::string>> table_;
};

}  // namespace

std::unique_ptr<RowWriter> SheetWriter(const std::string& path, const StudyHead& head, std::uint64_t rows) {
    if (!Documents()) FailFormat("xlsx");
    constexpr std::uint64_t kMostRows = 1048575;  // with its head
    if (rows > kMostRows)
        throw CommandFailure(ExitStatus::BadCommandLine, Text(908067_text, {{"|1", std::to_string(kMostRows)}}));
    return std::make_unique<SheetRows>(path, head);
}

}  // namespace lithmark
