#include "cli/Choices.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "core/FieldNames.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

std::string Joined(const std::vector<std::string>& words, const std::string& between) {
    std::string joined;
    for (const std::string& word : words) joined += (joined.empty() ? "" : between) + word;
    return joined;
}

// The option names of a command and of the program.
std::vector<std::string> OptionNames(const CLI::App& app) {
    std::vector<std::string> names;
    for (const CLI::App* part : {static_cast<const CLI::App*>(&app), app.get_parent()}) {
        if (!part) continue;
        for (const CLI::Option* option : part->get_options()) {
            for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
            for (const std::string& name : option->get_snames()) names.push_back("-" + name);
        }
    }
    return names;
}

std::string Nearest(const std::string& word, const std::vector<std::string>& known) {
    return std::string(NearestWord(word, {known.begin(), known.end()}));
}

// What is said of the words that belong to nothing: an option goes first, since a word behind it may be its value.
std::string LeftOverText(const CLI::App& app, const std::vector<std::string>& words) {
    const auto chosen = app.get_subcommands();
    const CLI::App& command = chosen.empty() ? app : *chosen.front();
    const auto option = std::ranges::find_if(words, [](const std::string& w) { return w.size() > 1 && w[0] == '-'; });
    if (option != words.end()) {
        const std::string name = option->substr(0, option->find('='));
        return Text(911206_text, {{"|1", name}, {"|2", Nearest(name, OptionNames(command))}});
    }
    if (!chosen.empty()) return Text(911207_text, {{"|1", words.front()}});
    return UnknownCommandText(app, words.front());
}

}  // namespace

std::string UnknownCommandText(const CLI::App& app, const std::string& word) {
    std::vector<std::string> names;
    for (const CLI::App* each : app.get_subcommands({})) names.push_back(each->get_name());
    return Text(911208_text, {{"|1", word}, {"|2", Nearest(word, names)}});
}

void OneOf(CLI::Option& option, const std::vector<std::string>& words) {
    option.type_name(Joined(words, "|"));
    option.check(CLI::Validator(
        [words](std::string& value) {
            if (std::ranges::find(words, value) != words.end()) return std::string();
            return Text(911209_text, {{"|1", value}, {"|2", Joined(words, ", ")}});
        },
        ""));
}

void WholeNumber(CLI::Option& option, std::uint64_t least, std::uint64_t most) {
    option.check(CLI::Validator(
        [least, most](std::string& value) {
            std::uint64_t number = 0;
            const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
            if (error == std::errc() && end == value.data() + value.size() && number >= least && number <= most)
                return std::string();
            return Text(911210_text, {{"|1", value}, {"|2", std::to_string(least)}, {"|3", std::to_string(most)}});
        },
        ""));
}

std::string TroubleText(const CLI::App& app, const CLI::ParseError& error) {
    const std::vector<std::string> rest = app.remaining(true);
    if (!rest.empty()) return LeftOverText(app, rest);
    std::string found = error.what();
    const std::string kind = error.get_name();
    // The parser's own words are not for users; the option that they name is.
    const auto dash = found.find('-');
    const std::string named = dash == std::string::npos ? found : found.substr(dash);
    const std::string name = named.substr(0, named.find_first_of(": "));
    if (kind == "ValidationError") return found;
    if (kind == "RequiredError") return Text(911211_text, {{"|1", name}});
    if (kind == "ArgumentMismatch" && found.find("required but received") != std::string::npos)
        return Text(911213_text, {{"|1", name}});
    if (kind == "ArgumentMismatch" && found.find("override") == std::string::npos)
        return Text(911212_text, {{"|1", name}});
    return Text(911214_text, {{"|1", name}});
}

}  // namespace lithmark
