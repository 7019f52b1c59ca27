// The controls of the forms by their kinds, control arrays, and what forms do to many controls at once.
#pragma once

#include <array>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "base/Failure.h"
#include "services/host/Form.h"
#include "ui/model/Words.h"

namespace lithmark {

// A control whose kind is its type: `TextBox txt_Q{*this, "txt_Q"};`
template <ControlKind kind>
struct KindControl : Control {
    KindControl(Form& owner, std::string name) : Control(owner, kind, std::move(name)) {}
};

using TextLabel = KindControl<ControlKind::TextLabel>;
using TextBox = KindControl<ControlKind::TextBox>;
using OptionButton = KindControl<ControlKind::Option>;
using CheckBox = KindControl<ControlKind::CheckBox>;
using ComboBox = KindControl<ControlKind::ComboBox>;
using Button = KindControl<ControlKind::Button>;
using FrameBox = KindControl<ControlKind::Frame>;
using PictureBox = KindControl<ControlKind::Picture>;
using TextArea = KindControl<ControlKind::TextArea>;
using DatePicker = KindControl<ControlKind::DatePicker>;
using TabStrip = KindControl<ControlKind::Tab>;
using ListBox = KindControl<ControlKind::List>;

// A control array: `ControlArray<OptionButton, 3> optLoadType{*this, "optLoadType"};` holds optLoadType(0) to (2). An
// array whose first control has another index says so: `ControlArray<OptionButton, 2, 1>` holds (1) and (2).
template <typename C, int count, int first = 0>
class ControlArray {
  public:
    ControlArray(Form& owner, const std::string& name)
        : ControlArray(owner, name, std::make_integer_sequence<int, count>()) {}

    static constexpr int kFirst = first, kLast = first + count - 1;

    // The control of an index; SubscriptRange outside the array.
    C& operator[](int index) { return items_[Offset(index)]; }
    const C& operator[](int index) const { return items_[Offset(index)]; }
    auto begin() noexcept { return items_.begin(); }
    auto end() noexcept { return items_.end(); }
    auto begin() const noexcept { return items_.begin(); }
    auto end() const noexcept { return items_.end(); }

    // The index of the option or check box that is set; kFirst - 1 when none is.
    int Selected() const {
        for (int index = kFirst; index <= kLast; ++index)
            if ((*this)[index].Value) return index;
        return kFirst - 1;
    }

  private:
    template <int... offsets>
    ControlArray(Form& owner, const std::string& name, std::integer_sequence<int, offsets...>)
        : items_{C(owner, name + "(" + std::to_string(first + offsets) + ")")...} {}

    static std::size_t Offset(int index) {
        if (index < kFirst || index > kLast) Fail(FailureKind::SubscriptRange);
        return static_cast<std::size_t>(index - first);
    }

    std::array<C, static_cast<std::size_t>(count)> items_;
};

// Controls one after another, single ones and whole arrays: `{txt_Q, optLoadType, txt_A}`.
class ControlList {
  public:
    ControlList(Control& one) : controls_{&one} {}
    template <typename C, int count, int first>
    ControlList(ControlArray<C, count, first>& all) {
        for (C& control : all) controls_.push_back(&control);
    }
    ControlList(std::initializer_list<ControlList> parts) {
        for (const ControlList& part : parts)
            for (Control* control : part.controls_) controls_.push_back(control);
    }

    std::size_t Count() const noexcept { return controls_.size(); }
    Control& operator[](std::size_t place) const { return *controls_.at(place); }
    auto begin() const noexcept { return controls_.begin(); }
    auto end() const noexcept { return controls_.end(); }

  private:
    std::vector<Control*> controls_;
};

// What a control's caption says.
struct CaptionRow {
    CaptionRow(Control& on, Words says) : On(&on), Says(std::move(says)) {}
    CaptionRow(Control& on, TextId id, Style style) : On(&on), Says(id, style) {}
    Control* On;
    Words Says;
};
void SetCaptions(const std::vector<CaptionRow>& rows);

// Selects a row of a list or tab strip; SubscriptRange for a row that it does not have.
void SelectRow(Control& list, int row);

// A picture file of the program's own, looked for in the program directory first, so that one put there by hand is
// seen. Without the file the control shows none.
void ShowProgramPicture(Control& picture, const std::string& file);

// Shows or hides.
void Show(const ControlList& controls, bool visible = true);

}  // namespace lithmark
