// The drawings of the start page, small: a problem with its usual values, an example with its own.
#pragma once

#include <QPixmap>

#include "render/drawings/Inks.h"
#include "ui/frame/StartPage.h"

namespace lithmark {

struct PictureWish {
    QSize Size;
    qreal Ratio = 1;  // pixels of the screen in one
    Theme In = Theme::Light;
};

// Session is as before when they return; nobody else may be at work on it. Null for a problem without a drawing.
QPixmap CardPicture(int problemType, const PictureWish& wish);
QPixmap ExamplePicture(const ExampleProject& example, const PictureWish& wish);

}  // namespace lithmark
