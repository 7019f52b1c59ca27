// The layout of forms that have none of their own, from the order of their controls: a frame holds what follows it up
// to the next frame; a label in brackets behind a box is its unit, one behind another label a symbol; pictures stand at
// the side, buttons at the bottom.
#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "desktop/FormView.h"
#include "desktop/layouts/Layouts.h"

namespace lithmark {

namespace {

class PlainLayout {
  public:
    explicit PlainLayout(FormView& view) : view_(view), column_(new QVBoxLayout) {}

    void Build() {
        auto* side = new QVBoxLayout;
        auto* buttons = new QHBoxLayout;
        buttons->addStretch(1);
        for (Control* control : view_.Model().Controls()) {
            if (control->Kind == ControlKind::Button) continue;
            QWidget* widget = view_.Place(*control);
            switch (control->Kind) {
                case ControlKind::Frame:
                    StartGroup(static_cast<QGroupBox*>(widget));
                    break;
                case ControlKind::Picture:
                    side->addWidget(widget);
                    break;
                case ControlKind::TextLabel:
                    AddLabel(*control, static_cast<QLabel*>(widget));
                    break;
                case ControlKind::TextBox:
                case ControlKind::ComboBox:
                case ControlKind::DatePicker:
                    AddBox(widget);
                    break;
                default:
                    AddLine(widget);
            }
        }
        // After the fields, as the Tab key goes.
        for (Control* control : view_.Model().Controls())
            if (control->Kind == ControlKind::Button) buttons->addWidget(view_.Place(*control));
        column_->addStretch(1);
        auto* columns = new QHBoxLayout;
        columns->addLayout(column_, 3);
        columns->addLayout(side, 2);
        auto* window = new QVBoxLayout(&view_);
        window->addLayout(columns, 1);
        window->addLayout(buttons);
    }

  private:
    void StartGroup(QGroupBox* group) {
        column_->addWidget(group);
        grid_ = new QGridLayout(group);
        grid_->setColumnStretch(0, 1);
        StartRow();
    }
    QGridLayout& Grid() {
        if (grid_ == nullptr) {
            grid_ = new QGridLayout;
            grid_->setColumnStretch(0, 1);
            column_->addLayout(grid_);
        }
        return *grid_;
    }
    void StartRow() {
        ++row_;
        label_ = nullptr;
        symbol_ = box_ = false;
    }
    void AddLabel(const Control& control, QLabel* label) {
        if (box_ && control.Caption.starts_with('[')) {
            Grid().addWidget(label, row_, 3);
            StartRow();
            return;
        }
        if (box_ || symbol_) StartRow();
        if (label_ != nullptr) {
            Grid().addWidget(label, row_, 1);
            symbol_ = true;
            return;
        }
        Grid().addWidget(label, row_, 0);
        label_ = label;
    }
    void AddBox(QWidget* box) {
        if (box_) StartRow();
        Grid().addWidget(box, row_, 2);
        if (label_ != nullptr) label_->setBuddy(box);
        box_ = true;
    }
    void AddLine(QWidget* widget) {
        StartRow();
        Grid().addWidget(widget, row_, 0, 1, 4);
        StartRow();
    }

    FormView& view_;
    QVBoxLayout* column_;
    QGridLayout* grid_ = nullptr;
    int row_ = 0;
    QLabel* label_ = nullptr;
    bool symbol_ = false, box_ = false;
};

}  // namespace

void LayoutPlain(FormView& view) {
    PlainLayout(view).Build();
}

}  // namespace lithmark
