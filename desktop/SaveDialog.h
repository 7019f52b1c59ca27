// The dialog that asks for the file of a document, a picture or a table, in one of several kinds.
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace lithmark {

struct FileKind {
    QString Name, Ending;  // "PDF", "pdf"
};

struct ChosenFile {
    std::string Path;
    QString Ending;  // of the kind that is to be written
};

// A name without an ending takes the one of the chosen kind; one with the ending of another kind is of that one. The
// first kind is proposed, with the open project's name in the folder of its last export. What else is to be chosen
// stands under the files; it stays the caller's. Nothing when cancelled.
std::optional<ChosenFile> AskForFile(QWidget* parent, const QString& title, const std::vector<FileKind>& kinds,
                                     QWidget* choices = nullptr);

// Asks for the file under the window's title and writes what `bytes` gives for the ending. What goes wrong is told.
void SaveAs(QWidget& window, const std::vector<FileKind>& kinds,
            const std::function<std::string(const QString& ending)>& bytes);

}  // namespace lithmark
