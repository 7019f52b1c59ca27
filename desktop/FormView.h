// FormView: a form model as a window. Every control of the model is a widget of the same name; user events go to the
// model, and after each of them all widgets show what the model says.
#pragma once

#include <QDialog>
#include <functional>
#include <unordered_map>

#include "desktop/OptionGroups.h"
#include "desktop/Pause.h"
#include "services/host/Form.h"

class QKeyEvent;
class QLineEdit;
class QWidget;

namespace lithmark {

class FormView : public QDialog {
  public:
    // Builds the widgets in the layout of the form's name (layouts/Layouts.h). The form has been loaded.
    FormView(Form& form, QWidget* parent);
    ~FormView() override;

    // Shows the window and returns when the form is unloaded.
    void RunModal();

    // The widget of a control, made at the first call.
    QWidget* WidgetOf(const Control& control);
    // The same for a layout that puts it into its place, which happens once for each control.
    QWidget* Place(const Control& control);
    template <typename W>
    W& Place(const Control& control) {
        return dynamic_cast<W&>(*Place(control));
    }
    int TimesPlaced(const Control& control) const;
    // All widgets as the model says; closes the window when the form is unloaded.
    void Refresh();
    void FocusOn(const Control& control);
    Form& Model() noexcept { return form_; }

    // What a layout does with its widgets after each refresh; may be empty.
    std::function<void()> AfterRefresh;
    // What a layout does after an event of the user, or a refresh from outside: a key in a box, or with null anything
    // else. And as the focus leaves a box. May be empty.
    std::function<void(const Control* typed)> AfterEvent;
    std::function<void()> AfterBox;

    // What says that a box which is left is wrong (SpokenAlert.h); without one the box itself does.
    QWidget* Alert = nullptr;

    // Why a box is shown as wrong; empty for one that is not, and for one in which the user has not ended a number.
    std::string ShownMark(const Control& box) const;
    // As wide as what it shows wants, as far as the screen goes.
    void FitWidth();

    // The view of a form that is shown, or null.
    static FormView* Of(const Form& form);
    // All shown forms as their models say, before something is shown over them.
    static void RefreshAll();

    // Escape and the window's own button: as the form's cancel button, or its OK button where it has no other.
    void reject() override;

  protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* Make(Control& control);
    void Edited(Control& control, const QString& text);
    bool StepsNumber(Control& control, QLineEdit& box, const QKeyEvent& key);
    void Show(Control& control, QWidget& widget);
    // The window grows and shrinks with its pictures, and grows with the fields that an event brings into sight, as far
    // as the screen goes.
    void FitContent();
    // What was typed counts as ended.
    void EndTyping();
    // A box is left for another thing of this window.
    void Left(const Control& box);
    // Runs an event of the model, then refreshes. `typed`: the box of a key.
    void Act(const std::function<void()>& event, const Control* typed = nullptr);

    Form& form_;
    std::unordered_map<const Control*, QWidget*> widgets_;
    std::unordered_map<const Control*, int> placed_;
    OptionGroups options_{*this};
    bool refreshing_ = false;
    Pause keep_;                      // runs from an event of the user until the form keeps its input
    const Control* typed_ = nullptr;  // the box of the last key, as long as the number in it may be unfinished
    int picturesShown_ = -1, heightWanted_ = 0;
};

}  // namespace lithmark
