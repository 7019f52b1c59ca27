#include "ui/model/ChoiceRow.h"

#include <algorithm>

#include "core/SessionFields.h"

namespace lithmark {

namespace {

int PlaceOf(const auto& value, const auto& values) {
    const auto found = std::find(values.begin(), values.end(), value);
    return found == values.end() ? -1 : static_cast<int>(found - values.begin());
}

}  // namespace

std::string_view StoredChoice::FieldName() const {
    return std::visit(
        [](const auto place) -> std::string_view {
            if constexpr (std::is_same_v<decltype(place), const std::monostate>)
                return {};
            else
                return NameOf(FieldRef(&(Session.*place)));
        },
        place_);
}

int StoredChoice::PositionIn(const SessionRecord& record) const {
    if (const auto* number = std::get_if<Integer SessionRecord::*>(&place_))
        return PlaceOf(static_cast<int>(record.**number), values_);
    if (const auto* flag = std::get_if<bool SessionRecord::*>(&place_))
        return PlaceOf(static_cast<int>(record.**flag), values_);
    if (const auto* word = std::get_if<std::string SessionRecord::*>(&place_)) {
        std::vector<std::string> words;
        for (const TextId id : words_) words.push_back(Text(id));
        return PlaceOf(record.**word, words);
    }
    return -1;
}

void StoredChoice::Store(SessionRecord& record, int position) const {
    const auto place = static_cast<std::size_t>(position);
    if (position < 0 || place >= std::max(values_.size(), words_.size())) return;
    if (const auto* number = std::get_if<Integer SessionRecord::*>(&place_)) record.** number = values_[place];
    if (const auto* flag = std::get_if<bool SessionRecord::*>(&place_)) record.** flag = values_[place] != 0;
    if (const auto* word = std::get_if<std::string SessionRecord::*>(&place_)) record.** word = Text(words_[place]);
}

void ChoiceRow::ShowCaptions() const {
    if (Of[0].Kind == ControlKind::ComboBox) {
        Of[0].Items.clear();
        for (const Words& item : Captions) Of[0].Items.push_back(item.Text());
        return;
    }
    for (std::size_t i = 0; i < std::min(Of.Count(), Captions.size()); ++i) Of[i].Caption = Captions[i].Text();
}

int ChoiceRow::Position() const {
    if (Of[0].Kind == ControlKind::ComboBox) return Of[0].ListIndex;
    if (Of[0].Kind == ControlKind::CheckBox) return Of[0].Value ? 1 : 0;
    for (std::size_t i = 0; i < Of.Count(); ++i)
        if (Of[i].Value) return static_cast<int>(i);
    return -1;
}

void ChoiceRow::SetPosition(int position) const {
    if (Of[0].Kind == ControlKind::ComboBox) {
        Of[0].ListIndex = -1;
        Of[0].Text.clear();
        if (position >= 0) SelectRow(Of[0], position);
    } else if (Of[0].Kind == ControlKind::CheckBox) {
        Of[0].Value = position == 1;
    } else {
        for (std::size_t i = 0; i < Of.Count(); ++i) Of[i].Value = static_cast<int>(i) == position;
    }
}

}  // namespace lithmark
