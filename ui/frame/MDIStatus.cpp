// What the frame's status bar tells.
#include "core/Session.h"
#include "services/SharedServices.h"
#include "ui/ProblemForms.h"
#include "ui/frame/MDITools.h"
#include "ui/model/UnsavedInput.h"

namespace lithmark {

namespace {

// Input of the open project that its dialog would offer to restore.
bool HasUnsavedInput() {
    const auto form = MakeProblemForm(Session.ProblemType);
    return form != nullptr && ReadDraft(DraftFolder(), Session.DataDir + Session.ProjectName, form->Name);
}

std::string UnitsInShort() {
    std::string units;
    for (const std::string& label : {Session.Len1Label, Session.Len2Label, Session.Force1Label, Session.Force2Label})
        if (label.size() > 2) units += (units.empty() ? "" : ", ") + label.substr(1, label.size() - 2);
    return "\u2066" + units + "\u2069";
}

}  // namespace

StatusLine MDITools::Status() {
    StatusLine line;
    line.Units = UnitsInShort();
    line.DecimalSign = Text(913503_text, {{"|1", std::string(1, SharedServices().DecimalSign)}});
    if (!ProjectOpen()) return line;
    line.Problem = ProblemInShort(Session.ProblemType);
    if (!MissingData().empty())
        line.Saved = Text(913501_text);
    else
        line.Saved = HasUnsavedInput() ? Text(913502_text) : Text(913500_text);
    return line;
}

}  // namespace lithmark
