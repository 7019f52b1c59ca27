#include "render/PdfOutline.h"

#include <QString>
#include <charconv>
#include <map>
#include <optional>

#include "base/NumberText.h"
#include "base/Utf8.h"

namespace lithmark {

namespace {

// A text as the hexadecimal UTF-16 string of the format.
std::string PdfText(const std::string& text) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string hex = "<FEFF";
    const auto put = [&](unsigned unit) {
        for (const int shift : {12, 8, 4, 0}) hex += kHex[(unit >> shift) & 0xF];
    };
    for (const char32_t c : CodePoints(text)) {
        if (c >= 0x10000) {
            put(0xD800 + ((c - 0x10000) >> 10));
            put(0xDC00 + ((c - 0x10000) & 0x3FF));
        } else {
            put(c);
        }
    }
    return hex + ">";
}

// The whole number behind a key.
std::optional<std::size_t> NumberBehind(std::string_view text, std::string_view key) {
    const std::size_t at = text.find(key);
    if (at == std::string_view::npos) return std::nullopt;
    const std::size_t digits = text.find_first_of("0123456789", at + key.size());
    if (digits == std::string_view::npos) return std::nullopt;
    std::size_t number = 0;
    std::from_chars(text.data() + digits, text.data() + text.size(), number);
    return number;
}

// A file as far as an update has to know it.
class PdfFile {
  public:
    explicit PdfFile(const std::string& bytes) : bytes_(bytes) {
        const std::size_t end = bytes.rfind("startxref");
        if (end == std::string::npos) return;
        const auto table = NumberBehind(std::string_view(bytes).substr(end), "startxref");
        if (!table || *table >= bytes.size() || bytes.compare(*table, 4, "xref") != 0) return;
        table_ = *table;
        const std::string_view tail = std::string_view(bytes).substr(table_);
        const std::size_t trailer = tail.find("trailer");
        if (trailer == std::string_view::npos) return;
        size_ = NumberBehind(tail.substr(trailer), "/Size").value_or(0);
        root_ = NumberBehind(tail.substr(trailer), "/Root").value_or(0);
        info_ = NumberBehind(tail.substr(trailer), "/Info").value_or(0);
        // Lines of 20 bytes behind "xref" and the line with the numbers of the objects.
        std::size_t line = tail.find('\n', tail.find('\n') + 1);
        if (line != std::string_view::npos) entries_ = table_ + line + 1;
        if (const std::string_view catalogue = Body(root_); !catalogue.empty())
            if (const auto pages = NumberBehind(catalogue, "/Pages")) ReadPages(Body(*pages));
    }

    bool Understood() const { return size_ > 0 && !pages_.empty() && !Body(info_).empty(); }
    std::size_t Size() const { return size_; }
    std::size_t Root() const { return root_; }
    std::size_t Info() const { return info_; }
    std::size_t Table() const { return table_; }
    const std::vector<std::size_t>& Pages() const { return pages_; }

    // An object's dictionary, "<<" to ">>"; empty when it has none.
    std::string_view Body(std::size_t object) const {
        const std::string_view whole = Whole(object);
        const std::size_t begin = whole.find("<<"), end = whole.rfind(">>");
        return begin == std::string_view::npos || end == std::string_view::npos || end < begin
                   ? std::string_view()
                   : whole.substr(begin, end + 2 - begin);
    }

    // All of an object between "obj" and "endobj".
    std::string_view Whole(std::size_t object) const {
        constexpr std::size_t kEntry = 20, kDigits = 10;
        if (object == 0 || object >= size_ || entries_ + (object + 1) * kEntry > bytes_.size()) return {};
        std::size_t offset = 0;
        const char* entry = bytes_.data() + entries_ + object * kEntry;
        std::from_chars(entry, entry + kDigits, offset);
        if (offset >= bytes_.size()) return {};
        const std::string_view rest = std::string_view(bytes_).substr(offset);
        const std::size_t begin = rest.find("obj"), last = rest.find("endobj");
        if (begin == std::string_view::npos || last == std::string_view::npos || begin >= last) return {};
        return rest.substr(begin + 3, last - begin - 3);
    }

  private:
    // The pages of the file in their order, which the toolkit lists in one object.
    void ReadPages(std::string_view body) {
        const std::size_t begin = body.find("/Kids"), end = body.find(']', begin);
        if (begin == std::string_view::npos || end == std::string_view::npos) return;
        for (const std::string& part : Split(ReplaceAll(body.substr(begin, end - begin), "\n", " "), 'R'))
            if (const auto page = NumberBehind(part, "")) pages_.push_back(*page);
    }

    const std::string& bytes_;
    std::size_t table_ = 0, entries_ = 0, size_ = 0, root_ = 0, info_ = 0;
    std::vector<std::size_t> pages_;
};

// A unit of UTF-16 as a reader of texts knows it: the letters that a form of an Arabic letter or a ligature stands for.
std::string PlainUnits(const std::string& hex) {
    const auto unit = static_cast<char16_t>(std::stoul(hex, nullptr, 16));
    if (unit == 0x0009 || unit == 0x00A0) return "0020";
    const bool form = (unit >= 0xFB00 && unit <= 0xFDFF) || (unit >= 0xFE70 && unit <= 0xFEFC);
    // A pair lam-alef stays one sign: readers turn a text from right to left round sign by sign, and would have its two
    // letters in the wrong order.
    const bool pair = unit >= 0xFEF5 && unit <= 0xFEFC;
    if (!form || pair) return hex;
    const std::string marked = PdfText(QString(QChar(unit)).normalized(QString::NormalizationForm_KC).toStdString());
    return marked.substr(5, marked.size() - 6);
}

// The table of a font from its glyphs to texts, with plain letters; nothing when the object is no such table or has
// them already.
std::optional<std::string> PlainTextTable(std::string_view object) {
    const std::size_t begin = object.find("stream\n"), end = object.rfind("endstream");
    if (begin == std::string_view::npos || end == std::string_view::npos || begin > end) return std::nullopt;
    const std::string table(object.substr(begin + 7, end - begin - 7));
    if (table.find("begincmap") == std::string::npos) return std::nullopt;
    std::string plain;
    bool list = false;  // the texts of a range stand in brackets
    for (std::size_t i = 0; i < table.size(); ++i) {
        list = table[i] == '[' || (list && table[i] != ']');
        if (list && table[i] == '<' && i + 5 < table.size() && table[i + 5] == '>') {
            plain += "<" + PlainUnits(table.substr(i + 1, 4)) + ">";
            i += 5;
        } else {
            plain += table[i];
        }
    }
    if (plain == table) return std::nullopt;
    return "<< /Length " + std::to_string(plain.size()) + " >>\nstream\n" + plain + "endstream";
}

// The links of a bookmark to its neighbours; -1: none.
struct Links {
    int Parent = -1, Before = -1, Next = -1, First = -1, Last = -1, Children = 0;
};

std::vector<Links> LinksOf(const std::vector<PdfBookmark>& bookmarks) {
    std::vector<Links> links(bookmarks.size());
    std::vector<int> open;  // the last bookmark of each level
    for (std::size_t k = 0; k < bookmarks.size(); ++k) {
        const int i = static_cast<int>(k);
        const auto level = std::min(static_cast<std::size_t>(std::max(0, bookmarks[k].Level)), open.size());
        if (level > 0) {
            links[k].Parent = open[level - 1];
            Links& parent = links[static_cast<std::size_t>(open[level - 1])];
            if (parent.First < 0) parent.First = i;
            parent.Last = i;
            ++parent.Children;
        }
        if (level < open.size()) {
            links[k].Before = open[level];
            links[static_cast<std::size_t>(open[level])].Next = i;
        }
        open.resize(level);
        open.push_back(i);
    }
    return links;
}

// A dictionary with more entries at its end.
std::string Extended(std::string_view dictionary, const std::string& entries) {
    return std::string(dictionary.substr(0, dictionary.size() - 2)) + entries + "\n>>";
}

}  // namespace

std::string WithDetails(const std::string& pdf, const PdfDetails& details) {
    const PdfFile file(pdf);
    if (!file.Understood()) return pdf;
    std::map<std::size_t, std::string> objects;
    for (std::size_t object = 1; object < file.Size(); ++object)
        if (auto table = PlainTextTable(file.Whole(object))) objects[object] = *std::move(table);
    const std::size_t outlines = file.Size(), first = outlines + 1;
    const auto reference = [](std::size_t object) { return std::to_string(object) + " 0 R"; };
    const std::vector<Links> links = LinksOf(details.Bookmarks);
    int lastTop = -1, tops = 0;
    for (std::size_t i = 0; i < links.size(); ++i) {
        const PdfBookmark& bookmark = details.Bookmarks[i];
        const Links& link = links[i];
        const auto entry = [&](const char* name, int other) {
            return other < 0 ? std::string()
                             : " " + std::string(name) + " " + reference(first + static_cast<std::size_t>(other));
        };
        if (link.Parent < 0) {
            lastTop = static_cast<int>(i);
            ++tops;
        }
        const auto page = std::min(static_cast<std::size_t>(std::max(0, bookmark.Page)), file.Pages().size() - 1);
        objects[first + i] = "<< /Title " + PdfText(bookmark.Text) + " /Parent " +
                             reference(link.Parent < 0 ? outlines : first + static_cast<std::size_t>(link.Parent)) +
                             entry("/Prev", link.Before) + entry("/Next", link.Next) + entry("/First", link.First) +
                             entry("/Last", link.Last) +
                             (link.Children > 0 ? " /Count " + std::to_string(link.Children) : "") + " /Dest [" +
                             reference(file.Pages()[page]) + " /XYZ null " + NumberToText(bookmark.Top) + " null] >>";
    }
    std::string catalogue = "/Lang (" + details.Language + ")\n/ViewerPreferences << /DisplayDocTitle true" +
                            (details.RightToLeft ? " /Direction /R2L" : "") + " >>";
    if (!links.empty()) {
        objects[outlines] = "<< /Type /Outlines /First " + reference(first) + " /Last " +
                            reference(first + static_cast<std::size_t>(lastTop)) + " /Count " + std::to_string(tops) +
                            " >>";
        catalogue += "\n/Outlines " + reference(outlines) + "\n/PageMode /UseOutlines";
    }
    objects[file.Root()] = Extended(file.Body(file.Root()), catalogue);
    objects[file.Info()] = Extended(file.Body(file.Info()), "/Author " + PdfText(details.Author));

    std::string result = pdf;
    if (!result.ends_with('\n')) result += '\n';
    std::string table = "xref\n";
    for (const auto& [number, body] : objects) {
        std::string offset = std::to_string(result.size());
        offset.insert(0, 10 - offset.size(), '0');
        table += std::to_string(number) + " 1\n" + offset + " 00000 n \n";
        result += std::to_string(number) + " 0 obj\n" + body + "\nendobj\n";
    }
    const std::size_t start = result.size();
    return result + table + "trailer\n<< /Size " + std::to_string(first + links.size()) + " /Info " +
           reference(file.Info()) + " /Root " + reference(file.Root()) + " /Prev " + std::to_string(file.Table()) +
           " >>\nstartxref\n" + std::to_string(start) + "\n%%EOF\n";
}

}  // namespace lithmark
