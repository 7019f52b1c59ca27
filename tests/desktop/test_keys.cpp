// Keys that mean the same in every window, those that belong to no form too: Escape closes, Enter presses the button
// that has the focus, Ctrl+S saves the data of every problem.
#include <QMainWindow>
#include <QPushButton>
#include <QTest>

#include "EveryWindow.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class KeysTest : public EveryWindow {};

TEST_F(KeysTest, EscapeClosesEveryWindowButTheProgram) {
    std::vector<std::string> staying;
    int closed = 0;
    ForAllWindows([&](QWidget& window, const std::string& name) {
        // The second look at one window.
        if (qobject_cast<QMainWindow*>(&window) != nullptr || name.starts_with("field")) return;
        QTest::keyClick(&window, Qt::Key_Escape);
        QCoreApplication::processEvents();
        if (window.isVisible()) staying.push_back(name);
        ++closed;
    });
    EXPECT_THAT(staying, IsEmpty());
    EXPECT_GT(closed, 3 * 30);
    EXPECT_THAT(DataFiles(), IsEmpty());
}

TEST_F(KeysTest, EnterPressesTheButtonThatHasTheFocus) {
    std::vector<std::string> failing;
    int buttons = 0;
    ForAllWindows([&](QWidget& window, const std::string& name) {
        for (QPushButton* button : window.findChildren<QPushButton*>()) {
            if (!button->isVisibleTo(&window) || !button->isEnabled() || button->focusPolicy() == Qt::NoFocus) continue;
            if (button->menu() != nullptr) continue;
            // What the button does is another matter.
            QObject::disconnect(button, &QPushButton::clicked, nullptr, nullptr);
            int presses = 0;
            QObject::connect(button, &QPushButton::clicked, button, [&presses] { ++presses; });
            button->setFocus();
            for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
                QTest::keyClick(button, static_cast<Qt::Key>(key));
            if (presses != 3)
                failing.push_back(name + ": " + button->objectName().toStdString() + " " + std::to_string(presses));
            QObject::disconnect(button, &QPushButton::clicked, nullptr, nullptr);
            ++buttons;
        }
    });
    EXPECT_THAT(failing, IsEmpty());
    EXPECT_GT(buttons, 3 * 150);
}

TEST_F(KeysTest, CtrlSSavesInTheDialogOfEveryProblem) {
    int problems = 0;
    ForAllForms([&](Form& form, FormView& view, const std::string& name) {
        auto* problem = dynamic_cast<ProblemForm*>(&form);
        if (problem == nullptr) return;
        int saved = 0;
        problem->cmdSave.OnClick = [&saved] { ++saved; };
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view)) << name;
        for (QWidget* w = view.nextInFocusChain(); w != &view; w = w->nextInFocusChain())
            if (w->isVisibleTo(&view) && w->isEnabled() && (w->focusPolicy() & Qt::TabFocus) == Qt::TabFocus &&
                w->focusProxy() == nullptr) {
                saved = 0;
                w->setFocus();
                QTest::keyClick(w, Qt::Key_S, Qt::ControlModifier);
                EXPECT_EQ(saved, 1) << name << ": " << w->objectName().toStdString();
            }
        ++problems;
    });
    EXPECT_EQ(problems, 3 * 10);
}

}  // namespace
}  // namespace lithmark::tests
