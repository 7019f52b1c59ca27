// What a PDF file of the toolkit lacks: bookmarks, the author, the language, that its title is shown, and a text in
// plain letters where it has the forms that Arabic letters take inside a word, and ligatures, so that it is found and
// copied.
#pragma once

#include <string>
#include <vector>

namespace lithmark {

struct PdfBookmark {
    std::string Text;
    int Level;   // 0 for the outermost; one deeper than the bookmark before it at most
    int Page;    // from 0 on
    double Top;  // in points from the page's lower edge
};

struct PdfDetails {
    std::string Author, Language;  // a code such as "de"
    bool RightToLeft = false;
    std::vector<PdfBookmark> Bookmarks;
};

// The file with the details appended as an update, as the format has it for changes: what was there stays as it is.
// A file that is not built as the toolkit builds it comes back unchanged.
std::string WithDetails(const std::string& pdf, const PdfDetails& details);

}  // namespace lithmark
