// Where help leads: the page of the manual for a form, for a key of the help menu, for a link of another page.
#pragma once

#include <functional>
#include <string>

class QWidget;

namespace lithmark {

class Form;

// A page, or a picture of a page, by its place under docs/ ("notices", "manual/de/problem-4",
// "manual/pictures/raft.svg"); empty for one that the program does not bring along.
std::string ManualPage(const std::string& name);

// The page of a topic in the language in force, with its section if it has one ("manual/en/problem-4",
// "notices#raft-tension"). A topic is a key of the help menu, a page's name without its folder, or page#section. Empty
// for a topic without a page.
std::string PageOfTopic(const std::string& topic);

// The topic of a form: its problem's page, or the page on what the form sets.
std::string TopicOfForm(const Form& form);

// The page of the problem in force.
std::string TopicOfProblem();

// Where a link of a page leads, as a page with its section. Empty for one that leads out of the manual.
std::string PageOfLink(const std::string& page, const std::string& link);

// The example that a link of a page names; empty for one that leads elsewhere.
std::string ExampleOfLink(const std::string& page, const std::string& link);

// A page as it is shown: without the remark that says where it comes from, and without links that lead to what the
// program does not bring along; their words stay.
std::string ShownPage(const std::string& name);

// F1 in this window shows the page of a topic.
void BindHelpKey(QWidget& window, std::function<std::string()> topic);

}  // namespace lithmark
