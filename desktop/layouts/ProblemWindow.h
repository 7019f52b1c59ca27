// The window of a problem: groups of fields in a column that scrolls where the screen is small, the picture beside it,
// the buttons below.
#pragma once

#include <initializer_list>

#include "desktop/layouts/Layouts.h"
#include "ui/model/PictureForm.h"

namespace lithmark {

// A frame and what it holds, in the order of the Enter key: boxes stand for the whole lines of their fields. A frame
// that another group holds stands inside that one. Without a frame the lines stand in the column itself.
struct GroupOf {
    GroupOf(FrameBox& frame, ControlList holds) : Frame(&frame), Holds(std::move(holds)) {}
    explicit GroupOf(ControlList holds) : Holds(std::move(holds)) {}
    FrameBox* Frame = nullptr;
    ControlList Holds;
};

void LayoutProblem(FormView& view, PictureForm& form, std::initializer_list<GroupOf> groups);

}  // namespace lithmark
