#include "services/host/Form.h"

namespace lithmark {

Control::Control(Form& owner, ControlKind kind, std::string name) : Kind(kind), Name(std::move(name)) {
    owner.controls_.push_back(this);
}

Form::Form(std::string name) : Name(std::move(name)) {}

void Form::Unload() {
    if (unloaded_) return;
    unloaded_ = true;  // first, so that an event that unloads again does nothing
    Unloading();
}

void Form::SelectOption(Control& option) {
    const auto arrayName = [](const Control& control) { return control.Name.substr(0, control.Name.find('(')); };
    for (Control* control : controls_)
        if (control->Kind == ControlKind::Option && arrayName(*control) == arrayName(option)) control->Value = false;
    option.Value = true;
}

Control* Form::Find(std::string_view controlName) const {
    for (Control* control : controls_)
        if (control->Name == controlName) return control;
    return nullptr;
}

}  // namespace lithmark
