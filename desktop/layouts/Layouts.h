// Where the controls of each form stand. A layout places the view's widgets and holds no behaviour. It stands in a file
// of its own and makes itself known there: `const LayoutOf<frmstress> kLayoutStress(Layout);`.
#pragma once

#include <functional>
#include <typeindex>

#include "services/host/Form.h"

namespace lithmark {

class FormView;

using LayoutFunction = std::function<void(FormView&, Form&)>;
void MakeLayoutKnown(std::type_index form, LayoutFunction layout);

// The layout of the forms of one class.
template <typename F>
struct LayoutOf {
    explicit LayoutOf(void (*layout)(FormView&, F&)) {
        MakeLayoutKnown(typeid(F), [layout](FormView& view, Form& form) { layout(view, static_cast<F&>(form)); });
    }
};

// Lays the view's form out; a form without a layout gets LayoutPlain.
void BuildLayout(FormView& view);
void LayoutPlain(FormView& view);

}  // namespace lithmark
