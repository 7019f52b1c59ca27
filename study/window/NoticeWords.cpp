#include "study/window/NoticeWords.h"

#include "base/Utf8.h"
#include "report/Notices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// In the order of NoticeId.
constexpr TextId kInShort[] = {
    913550_text, 913551_text, 913552_text, 913553_text, 913554_text, 913555_text, 913556_text,
    913557_text, 913558_text, 913559_text, 913560_text, 913561_text, 913562_text, 913563_text,
    913564_text, 913565_text, 913566_text, 913567_text, 913568_text, 913569_text, 913570_text,
};
static_assert(std::size(kInShort) == static_cast<std::size_t>(kNoticeIds));

std::string InShort(const std::string& id) {
    for (int i = 0; i < kNoticeIds; ++i)
        if (id == NoticeName(static_cast<NoticeId>(i))) return Text(kInShort[i]);
    return id;
}

}  // namespace

std::string NoticeWords(const std::string& ids) {
    std::string words;
    for (const std::string& id : Split(ids, ' '))
        if (!id.empty()) words += (words.empty() ? "" : Text(913314_text) + " ") + InShort(id);
    return words;
}

}  // namespace lithmark
