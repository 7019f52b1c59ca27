#include "cli/HelpFormatter.h"

#include <utility>

#include "base/Utf8.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr std::size_t kWidth = 80, kColumn = 30, kIndent = 2;

// A name, and behind it from the column on a text broken between words.
std::string Entry(const std::string& name, const std::string& text, std::size_t column) {
    std::string entry(kIndent, ' ');
    entry += name;
    std::size_t at = kIndent + CharacterCount(name);
    const auto toColumn = [&] {
        entry += "\n" + std::string(column, ' ');
        at = column;
    };
    if (at + 2 > column) {
        if (!text.empty()) toColumn();
    } else {
        entry.append(column - at, ' ');
        at = column;
    }
    bool first = true;
    for (const std::string& word : Split(text, ' ')) {
        const std::size_t length = CharacterCount(word);
        if (!first && at + 1 + length > kWidth) {
            toColumn();
            first = true;
        }
        if (!first) entry += " ";
        entry += word;
        at += length + (first ? 0 : 1);
        first = false;
    }
    return entry + "\n";
}

std::string Headed(const std::string& heading, const std::string& lines) {
    return lines.empty() ? std::string() : "\n" + heading + "\n" + lines;
}

TextId StatusText(int status) {
    switch (status) {
        case 1:
            return 911251_text;
        case 2:
            return 911252_text;
        case 3:
            return 911253_text;
        case 4:
            return 911254_text;
        case 130:
            return 911255_text;
        default:
            return 911250_text;
    }
}

}  // namespace

std::string HelpFormatter::make_usage(const CLI::App* app, std::string name) const {
    std::string usage = Text(911240_text, Styles::Heading) + " " + name;
    for (const CLI::Option* option : app->get_options([](const CLI::Option* o) { return o->get_positional(); }))
        usage += " " + option->get_name(true, false);
    for (const CLI::Option* option :
         app->get_options([](const CLI::Option* o) { return o->nonpositional() && o->get_required(); }))
        usage += " " + option->get_name() + " " + option->get_type_name();
    if (!app->get_parent()) usage += " " + Text(911248_text);
    return usage + " [" + Text(911249_text) + "]\n";
}

std::string HelpFormatter::make_description(const CLI::App* app) const {
    return Entry(app->get_description(), {}, kColumn).substr(kIndent) + "\n";
}

std::string HelpFormatter::make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const {
    std::string help = make_description(app) + make_usage(app, std::move(name)) + make_positionals(app);
    help += make_groups(app, mode);
    if (app->get_parent()) help += make_groups(app->get_parent(), mode);
    return help + make_subcommands(app, mode) + "\n" + make_footer(app);
}

std::string HelpFormatter::make_option(const CLI::Option* option, bool positional) const {
    std::string name = make_option_name(option, positional);
    if (!positional && option->get_type_size() != 0) name += " " + option->get_type_name();
    return Entry(name, option->get_description(), kColumn);
}

std::string HelpFormatter::make_subcommand(const CLI::App* command) const {
    return Entry(command->get_name(), command->get_description(), 12);
}

std::string HelpFormatter::make_footer(const CLI::App* app) const {
    return app->get_footer();
}

std::string HelpFooter(const std::vector<std::string>& examples, const std::vector<int>& statuses) {
    std::string lines, ends;
    for (const std::string& example : examples) lines += std::string(kIndent, ' ') + example + "\n";
    for (const int status : statuses) ends += Entry(std::to_string(status), Text(StatusText(status)), 8);
    std::string footer = Headed(Text(911243_text, Styles::Heading), lines);
    footer += Headed(Text(911244_text, Styles::Heading), ends);
    return footer.empty() ? footer : footer.substr(1);
}

std::string ShortHelp(const CLI::App& app) {
    const HelpFormatter formatter;
    std::string help = formatter.make_usage(&app, app.get_name());
    help += formatter.make_subcommands(&app, CLI::AppFormatMode::Normal);
    return help + "\n" + Text(911245_text, {{"|1", app.get_name() + " help"}}) + "\n";
}

}  // namespace lithmark
