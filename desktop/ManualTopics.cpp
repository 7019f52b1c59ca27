#include "desktop/ManualTopics.h"

#include <QDir>
#include <QShortcut>
#include <QWidget>
#include <array>
#include <string_view>

#include "core/Session.h"
#include "services/SharedServices.h"
#include "services/host/Form.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

struct Key {
    std::string_view Name, Page;
};
// Keys of the help menu and of help buttons.
constexpr std::array kKeys = {Key{"Titel", "index"}, Key{"2", "which-problem"}, Key{"7_7", "settings-files"},
                              Key{"7_2", "project-files"}};
// Forms of no problem.
constexpr std::array kForms = {Key{"frmUnits", "settings-files"},      Key{"frmPreferences", "settings-files"},
                               Key{"frmDataDir", "project-files"},     Key{"frmProblemType", "which-problem"},
                               Key{"frmMethodtype", "which-problem"},  Key{"frmAbout", "index"},
                               Key{"frmProjectCheck", "project-files"}};
constexpr std::string_view kProblemPage = "problem-";

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
    const int problem = Session.ProblemType;
    return problem >= 1 && problem <= 10 ? std::string(kProblemPage) + std::to_string(problem) : "index";
}

std::string TopicOfForm(const Form& form) {
    const std::string_view page = Find(kForms, form.Name);
    return page.empty() ? TopicOfProblem() : std::string(page);
}

std::string PageOfLink(const std::string& page, const std::string& link) {
    const std::size_t mark = link.find('#');
    const std::string section = mark == std::string::npos ? std::string() : link.substr(mark);
    const QString target = QString::fromStdString(link.substr(0, mark));
    if (target.isEmpty()) return page + section;
    const QString folder = QString::fromStdString(page.substr(0, page.rfind('/') + 1));
    QString name = QDir::cleanPath(QLatin1Char('/') + folder + target).mid(1);
    if (name.endsWith(QLatin1String(".md"))) name.chop(3);
    return ManualPage(name.toStdString()).empty() ? std::string() : name.toStdString() + section;
}

void BindHelpKey(QWidget& window, std::function<std::string()> topic) {
    const auto* shortcut = new QShortcut(QKeySequence::HelpContents, &window);
    QObject::connect(shortcut, &QShortcut::activated, &window,
                     [topic = std::move(topic)] { SharedServices().ShowHelpTopic(topic()); });
}

}  // namespace lithmark
