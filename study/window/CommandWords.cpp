#include "study/window/CommandWords.h"

#include <algorithm>
#include <string_view>

#include "base/Utf8.h"

namespace lithmark {

namespace {

bool IsPlain(char c) {
    constexpr std::string_view kSigns = "_-+=:,./%@";
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
           static_cast<unsigned char>(c) >= 0x80 || kSigns.find(c) != std::string_view::npos;
}

}  // namespace

std::vector<std::string> OptionsOf(const StudyRequest& request) {
    const StudyRequest usual;
    std::vector<std::string> words;
    const auto add = [&](const char* option, const std::string& value) {
        words.emplace_back(option);
        words.push_back(value);
    };
    const auto addAll = [&](const char* option, const std::vector<std::string>& values) {
        for (const std::string& value : values) add(option, value);
    };
    addAll("--vary", request.Vary);
    if (!request.Rows.empty()) add("--rows", request.Rows);
    addAll("--case", request.Cases);
    addAll("--random", request.Random);
    addAll("--correlate", request.Correlate);
    if (request.Samples != usual.Samples) add("--samples", std::to_string(request.Samples));
    if (request.Seed != usual.Seed) add("--seed", std::to_string(request.Seed));
    if (request.Sobol) add("--design", "sobol");
    addAll("--take", request.Take);
    addAll("--limit", request.Limit);
    return words;
}

std::vector<std::string> StudyWords(const std::string& project, const StudyRequest& request,
                                    const std::vector<std::string>& more) {
    std::vector<std::string> words = {"study", project};
    for (const auto& part : {OptionsOf(request), more}) words.insert(words.end(), part.begin(), part.end());
    return words;
}

std::string CommandText(const std::vector<std::string>& words) {
    std::string text = "lithmark-cli";
    for (const std::string& word : words) {
        const bool plain = !word.empty() && std::ranges::all_of(word, IsPlain);
        text += " " + (plain ? word : "'" + ReplaceAll(word, "'", "'\\''") + "'");
    }
    return text;
}

}  // namespace lithmark
