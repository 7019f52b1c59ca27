#include "desktop/StartPictures.h"

#include <QGuiApplication>
#include <QPainter>

#include "core/Catalogue.h"
#include "files/ProblemData.h"
#include "render/figures/ProblemPicture.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

constexpr int kFontPixels = 10;

QPixmap PaintProblemInForce(const PictureWish& wish) {
    const ProblemPicture problem;
    if (!problem.Exists()) return {};
    QPixmap picture(wish.Size * wish.Ratio);
    picture.setDevicePixelRatio(wish.Ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font = QGuiApplication::font();
    font.setPixelSize(kFontPixels);
    painter.setFont(font);
    problem.Paint(painter, wish.Size, wish.In);
    return picture;
}

}  // namespace

QPixmap CardPicture(int problemType, const PictureWish& wish) {
    const KeptSession kept;
    Session.ProblemType = problemType;
    SetProblemDefaults();
    return PaintProblemInForce(wish);
}

QPixmap ExamplePicture(const ExampleProject& example, const PictureWish& wish) {
    const KeptSession kept;
    Session.ProblemType = example.ProblemType;
    SetProblemDefaults();
    Session.WorkDir = example.Folder;
    Session.WorkName = example.Name;
    ReadProblemData();
    SharedServices().SetPointer(PointerShape::Default);
    return PaintProblemInForce(wish);
}

}  // namespace lithmark
