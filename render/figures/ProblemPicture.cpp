#include "render/figures/ProblemPicture.h"

#include <QPainter>

#include "render/drawings/Drawings.h"
#include "render/drawings/Sketch.h"
#include "ui/ProblemForms.h"

namespace lithmark {

struct ProblemPicture::Drawn {
    explicit Drawn(std::unique_ptr<ProblemForm> form) : Form(std::move(form)) {
        Form->ShowInForce();
        for (const Control* control : Form->Controls())
            if (control->Kind == ControlKind::Picture && control->Shows != nullptr) Picture = control;
        if (Picture == nullptr) return;
        Function = FindDrawing(Picture->Drawing);
        Follows = std::make_unique<DrawnForm>(*Picture);
    }

    std::unique_ptr<ProblemForm> Form;
    const Control* Picture = nullptr;
    DrawingFunction Function = nullptr;
    std::unique_ptr<DrawnForm> Follows;
};

ProblemPicture::ProblemPicture() {
    if (auto form = MakeProblemForm(Session.ProblemType)) drawn_ = std::make_unique<Drawn>(std::move(form));
}

ProblemPicture::~ProblemPicture() = default;

bool ProblemPicture::Exists() const {
    return drawn_ != nullptr && drawn_->Function != nullptr;
}

void ProblemPicture::Paint(QPainter& painter, const QSize& size, Theme theme) const {
    painter.setLayoutDirection(Qt::LeftToRight);
    double scale = 0;
    Sketch sketch(painter, QRectF(QPointF(0, 0), QSizeF(size)), *drawn_->Follows, theme, scale);
    drawn_->Function(sketch);
    sketch.Finish();
}

}  // namespace lithmark
