// OptionGroups: the options of a form as radio buttons. Of a control array one is set, or none; for the Tab key it is
// one stop, inside which the arrow keys move.
#pragma once

#include <map>
#include <string>

class QButtonGroup;
class QObject;
class QRadioButton;

namespace lithmark {

class Control;

class OptionGroups {
  public:
    explicit OptionGroups(QObject& owner) : owner_(owner) {}

    // The button joins those of its control array.
    void Add(const Control& option, QRadioButton& button);
    static void Set(QRadioButton& button, bool on);
    // Of each array the button that is set is the stop of the Tab key, else the first that can be reached.
    void SettleStops();

  private:
    QObject& owner_;
    std::map<std::string, QButtonGroup*> groups_;
};

}  // namespace lithmark
