// ChoiceRow: one choice of a form, told once as a row: a group of options, a check box or a list, what its positions
// say and store, and what happens on a click.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/Session.h"
#include "ui/model/Controls.h"

namespace lithmark {

// Where a choice lies in the record, and what each of its positions stores there: numbers, or words of the language in
// force. A flag takes 1 for true and 0 for false. Without a place the form itself shows and stores the choice.
class StoredChoice {
  public:
    StoredChoice() = default;
    StoredChoice(Integer SessionRecord::*number, std::vector<int> values)
        : place_(number), values_(std::move(values)) {}
    StoredChoice(bool SessionRecord::*flag, std::vector<int> values) : place_(flag), values_(std::move(values)) {}
    StoredChoice(std::string SessionRecord::*word, std::vector<TextId> words)
        : place_(word), words_(std::move(words)) {}

    bool Exists() const noexcept { return !std::holds_alternative<std::monostate>(place_); }
    // The field's name in the record; empty where the form itself stores the choice.
    std::string_view FieldName() const;
    // The position of what the record holds; -1 when it is none of them.
    int PositionIn(const SessionRecord& record) const;
    // Leaves the record as it is for a position that the choice does not have.
    void Store(SessionRecord& record, int position) const;

  private:
    std::variant<std::monostate, Integer SessionRecord::*, bool SessionRecord::*, std::string SessionRecord::*> place_;
    std::vector<int> values_;
    std::vector<TextId> words_;
};

struct ChoiceRow {
    ChoiceRow(ControlList of, std::vector<Words> captions, StoredChoice field = {}, std::function<void()> onClick = {})
        : Of(std::move(of)), Captions(std::move(captions)), Field(std::move(field)), OnClick(std::move(onClick)) {}

    // Options in the order of their positions, or one check box (unticked 0, ticked 1), or one list.
    ControlList Of;
    // Of the options or the check box, or the items of the list.
    std::vector<Words> Captions;
    StoredChoice Field;
    // After a click, and after the choices were shown.
    std::function<void()> OnClick;

    void ShowCaptions() const;
    // -1 when nothing is chosen.
    int Position() const;
    void SetPosition(int position) const;
};

}  // namespace lithmark
