#include "ui/model/Controls.h"

#include "core/Session.h"
#include "services/SharedServices.h"
#include "services/TextTools.h"

namespace lithmark {

void SetCaptions(std::initializer_list<CaptionRow> rows) {
    for (const CaptionRow& row : rows) row.On.Caption = Text(row.Id, row.As);
}

void SetCaptions(std::initializer_list<std::pair<Control&, std::string>> captions) {
    for (const auto& [control, caption] : captions) control.Caption = caption;
}

void SelectRow(Control& list, int row) {
    if (row < 0 || row >= static_cast<int>(list.Items.size())) Fail(FailureKind::SubscriptRange);
    list.ListIndex = row;
    if (list.Kind == ControlKind::ComboBox) list.Text = list.Items[static_cast<std::size_t>(row)];
}

void ShowProgramPicture(Control& picture, const std::string& file) {
    if (!TextTools().LoadPictureFile(picture, Session.ProgramDir + file))
        TextTools().LoadPictureFile(picture, SharedServices().ResourceDir() + file);
}

void Show(std::initializer_list<Control*> controls, bool visible) {
    for (Control* control : controls) control->Visible = visible;
}

void Hide(std::initializer_list<Control*> controls) {
    Show(controls, false);
}

}  // namespace lithmark
