// DrawingCase: the drawings of all problems with every choice, on sheets of their own.
#pragma once

#include <QImage>
#include <QPainter>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "../ui/AllForms.h"
#include "../ui/FormTest.h"
#include "render/drawings/Drawings.h"
#include "render/drawings/Inks.h"
#include "render/drawings/Sketch.h"
#include "ui/model/PictureForm.h"

namespace lithmark::tests {

inline constexpr QSize kSize(380, 480);

// A drawing on a sheet of its own.
struct Sheet {
    QImage Image{kSize, QImage::Format_ARGB32_Premultiplied};
    std::vector<DrawnNumber> Numbers;
    int Colours = 0;
};

inline Sheet Drawn(const PictureForm& form, const std::string& name, Theme theme = Theme::Light, QSize size = kSize) {
    Sheet sheet;
    sheet.Image = QImage(size, QImage::Format_ARGB32_Premultiplied);
    sheet.Image.fill(ColourOf(Ink::Window, theme));
    QPainter painter(&sheet.Image);
    const DrawnForm drawn(form.PctInvertedT);
    double scale = 0;
    Sketch sketch(painter, QRectF(QPointF(), size), drawn, theme, scale);
    FindDrawing(name)(sketch);
    sheet.Numbers = sketch.Finish();
    std::set<QRgb> colours;
    for (int y = 0; y < size.height(); y += 2)
        for (int x = 0; x < size.width(); x += 2) colours.insert(sheet.Image.pixel(x, y));
    sheet.Colours = static_cast<int>(colours.size());
    return sheet;
}

class DrawingTest : public FormTest {
  protected:
    void ForAllProblems(const std::function<void(PictureForm&, const std::string&)>& look) {
        for (const FormRow& row : AllForms()) {
            Session.ProblemType = row.ProblemType;
            const std::unique_ptr<Form> form = row.Make();
            auto* problem = dynamic_cast<PictureForm*>(form.get());
            if (problem == nullptr) continue;
            problem->Reopen();
            problem->Load();
            look(*problem, form->Name + " of problem " + std::to_string(row.ProblemType));
        }
    }
    // Each position of each choice, one after another.
    void ForAllChoices(PictureForm& form, const std::function<void(const std::string&)>& look) {
        look("");
        for (const ChoiceRow& choice : form.Choices()) {
            const int before = choice.Position();
            const Control& first = choice.Of[0];
            const int positions = first.Kind == ControlKind::ComboBox   ? static_cast<int>(first.Items.size())
                                  : first.Kind == ControlKind::CheckBox ? 2
                                                                        : static_cast<int>(choice.Of.Count());
            for (int position = 0; position < positions; ++position) {
                choice.SetPosition(position);
                if (choice.OnClick) choice.OnClick();
                look(", " + first.Name + " at " + std::to_string(position));
            }
            if (before >= 0) choice.SetPosition(before);
            if (choice.OnClick) choice.OnClick();
        }
    }
};

}  // namespace lithmark::tests
