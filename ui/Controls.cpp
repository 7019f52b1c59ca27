#include "ui/Controls.h"

namespace lithmark {

void SetCaptions(std::initializer_list<CaptionRow> rows) {
    for (const CaptionRow& row : rows) row.On.Caption = Text(row.Id, row.As);
}

void SetCaptions(std::initializer_list<std::pair<Control&, std::string>> captions) {
    for (const auto& [control, caption] : captions) control.Caption = caption;
}

void Show(std::initializer_list<Control*> controls, bool visible) {
    for (Control* control : controls) control->Visible = visible;
}

void Hide(std::initializer_list<Control*> controls) {
    Show(controls, false);
}

}  // namespace lithmark
