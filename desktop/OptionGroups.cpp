#include "desktop/OptionGroups.h"

#include <QButtonGroup>
#include <QRadioButton>

#include "services/host/Form.h"

namespace lithmark {

void OptionGroups::Add(const Control& option, QRadioButton& button) {
    QButtonGroup*& group = groups_[option.Name.substr(0, option.Name.find('('))];
    if (group == nullptr) group = new QButtonGroup(&owner_);
    group->addButton(&button);
}

void OptionGroups::Set(QRadioButton& button, bool on) {
    QButtonGroup& group = *button.group();
    // An exclusive group keeps the button that is set; a form may have none.
    group.setExclusive(false);
    button.setChecked(on);
    group.setExclusive(true);
}

void OptionGroups::SettleStops() {
    for (const auto& [name, group] : groups_) {
        QAbstractButton* stop = nullptr;
        for (QAbstractButton* button : group->buttons()) {
            if (!button->isEnabled() || button->isHidden()) continue;
            if (stop == nullptr || button->isChecked()) stop = button;
        }
        for (QAbstractButton* button : group->buttons())
            if (button != stop) button->setFocusPolicy(Qt::ClickFocus);
        if (stop != nullptr) stop->setFocusPolicy(Qt::StrongFocus);
    }
}

}  // namespace lithmark
