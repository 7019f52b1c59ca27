#include "desktop/ManualTopics.h"

#include <QDir>
#include <QShortcut>
#include <QWidget>
#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "core/Catalogue.h"
#include "core/Session.h"
#include "services/SharedServices.h"
#include "services/host/Form.h"
#include "services/texts/LanguageTexts.h"
#include "ui/frame/StartPage.h"

namespace lithmark {

namespace {

struct Key {
    std::string_view Name, Page;
};
// Keys of the help menu and of help buttons.
constexpr std::array kKeys = {Key{"Titel", "index"}, Key{"2", "which-problem"}, Key{"7_7", "settings-files"},
                              Key{"7_2", "project-files"}, Key{"verda_new", "changes"}};
// Forms of no problem.
constexpr std::array kForms = {Key{"frmUnits", "settings-files"},
                               Key{"frmNumberFormats", "settings-files"},
                               Key{"frmPreferences", "settings-files"},
                               Key{"frmDataDir", "project-files"},
                               Key{"frmProblemType", "which-problem"},
                               Key{"frmMethodtype", "which-problem"},
                               Key{"frmAbout", "index"},
                               Key{"frmProjectCheck", "project-files"}};
constexpr std::string_view kProblemPage = "problem-";

// What lies beside the folder of the pages.
constexpr std::string_view kExamples = "examples/";

// Where a link of a page leads: a place under docs/, or, for one that leads out of it, a place beside it.
std::string PlaceOf(const std::string& page, const std::string& link) {
    const std::string folder = page.substr(0, page.rfind('/') + 1);
    const std::string place =
        QDir::cleanPath(QLatin1String("/beside/docs/") + QString::fromStdString(folder + link)).toStdString();
    for (const std::string_view root : {"/beside/docs/", "/beside/"})
        if (place.starts_with(root)) return place.substr(root.size());
    return {};
}

template <std::size_t n>
std::string_view Find(const std::array<Key, n>& keys, std::string_view name) {
    for (const Key& key : keys)
        if (key.Name == name) return key.Page;
    return {};
}

}  // namespace

std::string PageOfTopic(const std::string& topic) {
    const std::size_t mark = topic.find('#');
    std::string name = topic.substr(0, mark);
    const std::string section = mark == std::string::npos ? std::string() : topic.substr(mark);
    if (const std::string_view page = Find(kKeys, name); !page.empty()) name = page;
    const Language language = LanguageTexts().Current();
    // Arabic has the program's own words by problem on one page.
    if (language == Language::Arabic && name.starts_with(kProblemPage))
        return "manual/ar/words#" + name.substr(kProblemPage.size());
    // In English where the language has no page of its own.
    const std::string_view own = language == Language::German   ? "manual/de/"
                                 : language == Language::Arabic ? "manual/ar/"
                                                                : "manual/en/";
    for (const std::string_view folder : {own, std::string_view("manual/en/"), std::string_view()})
        if (const std::string page = std::string(folder) + name; !ManualPage(page).empty()) return page + section;
    return {};
}

std::string TopicOfProblem() {
    const ProblemRow* problem = FindProblem(Session.ProblemType);
    return problem != nullptr && problem->Calculated ? std::string(kProblemPage) + std::to_string(problem->ProblemType)
                                                     : "index";
}

std::string TopicOfForm(const Form& form) {
    const std::string_view page = Find(kForms, form.Name);
    return page.empty() ? TopicOfProblem() : std::string(page);
}

std::string PageOfLink(const std::string& page, const std::string& link) {
    const std::size_t mark = link.find('#');
    const std::string section = mark == std::string::npos ? std::string() : link.substr(mark);
    if (mark == 0) return page + section;
    std::string name = PlaceOf(page, link.substr(0, mark));
    if (name.ends_with(".md")) name.resize(name.size() - 3);
    return ManualPage(name).empty() ? std::string() : name + section;
}

std::string ExampleOfLink(const std::string& page, const std::string& link) {
    const std::string place = PlaceOf(page, link);
    if (!place.starts_with(kExamples)) return {};
    const std::string name = place.substr(kExamples.size());
    return FindExample(name) ? name : std::string();
}

std::string ShownPage(const std::string& name) {
    const std::string text = ManualPage(name);
    const std::size_t end = text.starts_with("<!--") ? text.find("-->\n") : std::string::npos;
    std::size_t at = end == std::string::npos ? 0 : end + 4;
    std::string shown;
    for (std::size_t middle = text.find("](", at); middle != std::string::npos; middle = text.find("](", at)) {
        const std::size_t open = text.rfind('[', middle), close = text.find(')', middle);
        if (open == std::string::npos || open < at || close == std::string::npos) break;
        const std::string link = text.substr(middle + 2, close - middle - 2);
        const bool picture = open > 0 && text[open - 1] == '!';
        if (picture || !PageOfLink(name, link).empty() || !ExampleOfLink(name, link).empty())
            shown += text.substr(at, close + 1 - at);
        else
            shown += text.substr(at, open - at) + text.substr(open + 1, middle - open - 1);
        at = close + 1;
    }
    return shown + text.substr(at);
}

void BindHelpKey(QWidget& window, std::function<std::string()> topic) {
    const auto* shortcut = new QShortcut(QKeySequence::HelpContents, &window);
    QObject::connect(shortcut, &QShortcut::activated, &window,
                     [topic = std::move(topic)] { SharedServices().ShowHelpTopic(topic()); });
}

}  // namespace lithmark
