// A dialog without a toolkit: controls as plain members of a form, found by their names.
//
// A form's events are member functions; whoever shows the form calls them and afterwards looks at the controls again.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lithmark {

class Form;
struct Figure;

enum class ControlKind {
    TextLabel,
    TextBox,
    Option,
    CheckBox,
    ComboBox,
    Button,
    Frame,
    Picture,
    TextArea,
    DatePicker,
    Tab,
    List
};

// One control. `Value` is the state of options and check boxes; `Items` and `ListIndex` (-1: nothing selected) belong
// to combo boxes, tabs and lists, whose items lead somewhere. A control's name carries its index where it stands in a
// control array: "optLoadType(1)".
class Control {
  public:
    Control(Form& owner, ControlKind kind, std::string name);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const ControlKind Kind;
    const std::string Name;
    std::string Caption;
    std::string Text;
    std::string FontName;  // empty: the window's own
    // Of a picture: the drawing that stands for it, by its name, and which of its forms; without a drawing the picture
    // is the file in Text.
    std::string Drawing, Variant;
    const Figure* Shows = nullptr;  // what the drawing draws; null when it always draws the same
    bool Symbol = false;            // of a label: its caption is a symbol, which stands in print
    bool Value = false;
    bool Visible = true;
    bool Enabled = true;
    bool ReadOnly = false;
    std::vector<std::string> Items;
    int ListIndex = -1;

    // What happens on a click (buttons, options, check boxes), on a change of the text or selection, and on Enter. Who
    // shows the form changes Text, Value or ListIndex first: a click turns a check box and selects an option.
    std::function<void()> OnClick, OnChange, OnEnter;
};

class Form {
  public:
    explicit Form(std::string name);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string Name;
    std::string Caption;
    // The reading direction of the language in which the form was loaded; PrepareForm sets it.
    bool RightToLeft = false;

    // Runs before the form is shown, as it becomes active, and as it is unloaded.
    virtual void Load() {}
    virtual void Activate() {}
    virtual void Unloading() {}

    // The controls differ from what the form loaded or last saved; the title of its window tells that.
    virtual bool Modified() const { return false; }
    // Keeps what the user has not saved, so that an end of the program does not lose it. Whoever shows the form calls
    // it a moment after the user's last change and before the form is taken away.
    virtual void KeepInput() {}

    // Ends the form: its modal showing returns.
    void Unload();
    bool Unloaded() const noexcept { return unloaded_; }
    // Whoever shows the form makes it fresh again before Load.
    void Reopen() noexcept { unloaded_ = false; }

    const std::vector<Control*>& Controls() const noexcept { return controls_; }
    // Sets an option and clears the others of its control array.
    void SelectOption(Control& option);
    // The control of a name, or null.
    Control* Find(std::string_view controlName) const;
    // The control that has, or last asked for, the focus; null when none did.
    Control* Focus = nullptr;

  private:
    friend class Control;
    std::vector<Control*> controls_;
    bool unloaded_ = false;
};

}  // namespace lithmark
