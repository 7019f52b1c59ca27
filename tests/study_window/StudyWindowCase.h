// What the tests of the windows of studies share: a dialog, what it offers to a study, and a study's table by hand.
#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "FormTest.h"
#include "study/window/StudyQuestion.h"
#include "study/window/StudyTable.h"
#include "support/Matchers.h"
#include "ui/ProblemForms.h"

namespace lithmark::tests {

class StudyWindowCase : public FormTest {
  protected:
    // The dialog of a problem with its defaults, a rectangle of 4 m x 3 m under 120 kN/m2 for problems 1 to 4.
    ProblemForm& Dialog(int problem) {
        Session.ProblemType = problem;
        form_ = MakeProblemForm(problem);
        form_->Reopen();
        form_->Load();
        return *form_;
    }
    // A study of the dialog as it stands, over the field of a name.
    StudyQuestion Question(const std::string& first) {
        const FormDraft draft = form_->Draft();
        EXPECT_TRUE(draft.Valid());
        const std::vector<FieldChoice> fields = FieldChoicesOf(*form_, draft.Record);
        return {fields, ResultChoicesOf(draft.Record), Place(fields, first)};
    }
    static int Place(const std::vector<FieldChoice>& fields, const std::string& name) {
        for (std::size_t i = 0; i < fields.size(); ++i)
            if (fields[i].Name == name) return static_cast<int>(i);
        ADD_FAILURE() << "no field " << name;
        return kNoField;
    }
    static int PlaceOfResult(const StudyQuestion& question, const std::string& take) {
        for (std::size_t i = 0; i < question.Results().size(); ++i)
            if (question.Results()[i].Take == take) return static_cast<int>(i);
        ADD_FAILURE() << "no result " << take;
        return 0;
    }
    // The table of a question whose rows stand in lines without status, notices and study: "1,2,8.5"; "1,2,!": aborted.
    static StudyTable TableOf(const StudyQuestion& question, const std::vector<std::string>& lines) {
        StudyTable table(question.Rows());
        std::string head;
        for (const std::string& column : table.Head().Columns()) head += (head.empty() ? "" : ",") + column;
        table.Append(head + "\r\n");
        for (const std::string& line : lines) {
            const bool aborted = line.ends_with('!');
            table.Append((aborted ? line.substr(0, line.size() - 1) + ",It failed." : line + ",ok") + ",,0123abcd\r\n");
        }
        return table;
    }

  private:
    std::unique_ptr<ProblemForm> form_;
};

}  // namespace lithmark::tests
