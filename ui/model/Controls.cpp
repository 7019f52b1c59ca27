#include "ui/model/Controls.h"

#include "core/Session.h"
#include "services/SharedServices.h"
#include "services/TextTools.h"

namespace lithmark {

void SetCaptions(const std::vector<CaptionRow>& rows) {
    for (const CaptionRow& row : rows) row.On->Caption = row.Says.Text();
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

void Show(const ControlList& controls, bool visible) {
    for (Control* control : controls) control->Visible = visible;
}

}  // namespace lithmark
