// DraftStore: what was typed and not saved, a file for each project and dialog in a folder of its own.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lithmark {

struct StoredDraft {
    std::string Project, Form;  // whose it is: the project's path without its ending, the dialog's name
    std::string Shown;          // the units, formats and language that the texts stand in
    std::string When;           // as the user reads a date and a time
    using Pairs = std::vector<std::pair<std::string, std::string>>;
    Pairs Texts;  // of the controls, by their names
    Pairs Data;   // the values behind them, by the names of their fields

    bool operator==(const StoredDraft&) const = default;
};

// The draft of a project's dialog. Nothing where there is none, where it is another's, or where its file is damaged or
// cannot be read: a draft is a help, and its loss never keeps a dialog from opening.
std::optional<StoredDraft> ReadDraft(const std::string& dir, const std::string& project, const std::string& form);

// Written whole or not at all, for the user's own eyes; makes the folder. Throws the Failure of the write.
void WriteDraft(const std::string& dir, const StoredDraft& draft);

// Quiet when there is none.
void RemoveDraft(const std::string& dir, const std::string& project, const std::string& form) noexcept;

}  // namespace lithmark
