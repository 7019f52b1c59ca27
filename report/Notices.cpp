#include "report/Notices.h"

#include <algorithm>
#include <utility>

#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// In the order of NoticeId.
constexpr std::string_view kNames[] = {
    "raft-ill-conditioned",  "raft-equilibrium",      "raft-tension",   "raft-layer-unused",    "raft-limiting-depth",
    "raft-thin-layer",       "raft-closed-form-tilt", "march-unstable", "march-range",          "march-few-steps",
    "march-circle-pressure", "history-shift",         "history-curve",  "history-oedometer-mm", "history-end",
    "circle-near-nodes",     "circle-mean-stress",    "shear-in-line",  "q-impossible",         "iteration-end",
    "solver-fallback",
};
static_assert(std::size(kNames) == static_cast<std::size_t>(kNoticeIds));

}  // namespace

std::string_view NoticeName(NoticeId id) {
    return kNames[static_cast<std::size_t>(id)];
}

void NoticeBoard::Raise(NoticeId id, TextId text, std::vector<std::string> values) {
    const auto place = std::lower_bound(all_.begin(), all_.end(), id,
                                        [](const Notice& notice, NoticeId wanted) { return notice.Id < wanted; });
    const auto notice = place != all_.end() && place->Id == id ? place : all_.insert(place, {id, {}});
    notice->Sentences.push_back({text, std::move(values)});
}

bool NoticeBoard::Holds(NoticeId id) const {
    return std::any_of(all_.begin(), all_.end(), [id](const Notice& notice) { return notice.Id == id; });
}

NoticeBoard& Notices() {
    static NoticeBoard board;
    return board;
}

std::string NoticeText(const Notice& notice) {
    std::string text;
    for (const Notice::Sentence& sentence : notice.Sentences) {
        Replacements replacements;
        for (std::size_t i = 0; i < sentence.Values.size(); ++i)
            replacements.emplace_back("|" + std::to_string(i + 1), sentence.Values[i]);
        if (!text.empty()) text += ' ';
        text += Text(sentence.Text, replacements);
    }
    return text;
}

std::string NoticeIds() {
    std::string ids;
    for (const Notice& notice : Notices().All()) {
        if (!ids.empty()) ids += ' ';
        ids += NoticeName(notice.Id);
    }
    return ids;
}

}  // namespace lithmark
