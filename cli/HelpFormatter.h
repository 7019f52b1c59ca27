// How the help of a command is laid out.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace lithmark {

// The usage line with the command's words, options with their descriptions on lines of 80 characters, the common
// options behind a command's own, and what the command's footer has.
class HelpFormatter : public CLI::Formatter {
  public:
    std::string make_usage(const CLI::App* app, std::string name) const override;
    std::string make_description(const CLI::App* app) const override;
    std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const override;
    std::string make_option(const CLI::Option* option, bool positional) const override;
    std::string make_subcommand(const CLI::App* command) const override;
    std::string make_footer(const CLI::App* app) const override;
};

// The footer of a command: examples, a line each, and the exit statuses that it can end with.
std::string HelpFooter(const std::vector<std::string>& examples, const std::vector<int>& statuses);

// What is printed where no command is given: usage and the commands.
std::string ShortHelp(const CLI::App& app);

}  // namespace lithmark
