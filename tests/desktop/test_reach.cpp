// By keyboard and in words: the names and roles of what a window shows, the way of the Tab key, keys that press
// buttons, and what has the focus at first.
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTest>
#include <map>

#include "EveryWindow.h"
#include "desktop/ManualTopics.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class ReachTest : public EveryWindow {};

// What stands in a window for people who hear it, and its children.
void ForAllHeard(QAccessibleInterface& heard, const std::function<void(QAccessibleInterface&)>& look) {
    look(heard);
    for (int i = 0; i < heard.childCount(); ++i)
        if (QAccessibleInterface* child = heard.child(i)) ForAllHeard(*child, look);
}

// The names of what labels a thing.
QStringList LabelsOf(const QAccessibleInterface& heard) {
    QStringList names;
    for (const auto& [other, relation] : heard.relations(QAccessible::Label))
        if (relation.testFlag(QAccessible::Label)) names.append(other->text(QAccessible::Name));
    return names;
}

std::string Place(const std::string& window, const QAccessibleInterface& heard) {
    const QObject* object = heard.object();
    return window + ": " + (object != nullptr ? object->objectName().toStdString() : "?");
}

// Everything that a hand can reach has a name and says what it is.
TEST_F(ReachTest, EverythingThatCanBeReachedIsNamed) {
    std::vector<std::string> failing;
    ForAllWindows([&](QWidget& window, const std::string& name) {
        ForAllHeard(*QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface& heard) {
            const QAccessible::State state = heard.state();
            if (!state.focusable || state.invisible) return;
            const auto* widget = qobject_cast<QWidget*>(heard.object());
            if (widget == nullptr || widget == &window || !widget->isVisibleTo(&window)) return;
            const QString said = heard.text(QAccessible::Name);
            switch (heard.role()) {
                case QAccessible::ComboBox:
                    // The toolkit says the chosen row in the place of its name; the label tells the name.
                    if (LabelsOf(heard).join(QString()).isEmpty()) failing.push_back(Place(name, heard) + " no label");
                    break;
                case QAccessible::RadioButton:
                case QAccessible::CheckBox:
                case QAccessible::PushButton:
                case QAccessible::EditableText:
                case QAccessible::Table:
                case QAccessible::List:
                case QAccessible::PageTabList:
                case QAccessible::SpinBox:
                case QAccessible::Graphic:
                    if (said.isEmpty()) failing.push_back(Place(name, heard) + " no name");
                    if (said.contains(QLatin1Char('&'))) failing.push_back(Place(name, heard) + " a mark in its name");
                    break;
                default:
                    break;
            }
        });
    });
    EXPECT_THAT(failing, IsEmpty());
}

TEST_F(ReachTest, OptionsAreRadioButtonsAndTheSetOneIsChecked) {
    ForAllForms([&](Form& form, FormView& view, const std::string& name) {
        for (const Control* control : form.Controls()) {
            if (control->Kind != ControlKind::Option) continue;
            QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(view.WidgetOf(*control));
            EXPECT_EQ(heard->role(), QAccessible::RadioButton) << name << ": " << control->Name;
            EXPECT_EQ(bool(heard->state().checked), control->Value) << name << ": " << control->Name;
        }
    });
}

TEST_F(ReachTest, ABoxIsDescribedByItsSymbolItsUnitAndItsRange) {
    frmstress form;
    Session.ProblemType = Problem::SoilStrain;
    form.Load();
    FormView view(form, nullptr);
    const auto described = [&](const char* box) {
        return QAccessible::queryAccessibleInterface(view.findChild<QWidget*>(QString::fromLatin1(box)))
            ->text(QAccessible::Description)
            .toStdString();
    };
    EXPECT_EQ(described("txt_Nue"), "nu s, no unit, 0 to 0.5");
    EXPECT_EQ(described("txt_A"), "a, m, 0 or more");
    EXPECT_EQ(described("txt_x"), "m");
    form.txt_Nue.Text = "0.6";
    view.Refresh();
    EXPECT_THAT(described("txt_Nue"), ::testing::StartsWith("nu s, no unit, 0 to 0.5; error: "));
}

// --- the Tab key ---

// Where the Tab key stops, in its order.
std::vector<QWidget*> StopsOf(QWidget& window) {
    std::vector<QWidget*> stops;
    for (QWidget* w = window.nextInFocusChain(); w != &window; w = w->nextInFocusChain())
        if (w->isVisibleTo(&window) && w->isEnabled() && (w->focusPolicy() & Qt::TabFocus) == Qt::TabFocus &&
            w->focusProxy() == nullptr)
            stops.push_back(w);
    return stops;
}

// The area that a widget scrolls in; null when it stands still.
QScrollArea* ScrollsIn(QWidget* widget) {
    for (QWidget* w = widget->parentWidget(); w != nullptr; w = w->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(w)) return area;
    return nullptr;
}

// The place of a widget in its window; of one that is scrolled out of sight, the end of what it scrolls in.
QRect PlaceOf(QWidget* widget, QWidget& window, bool scrolled) {
    QRect place(widget->mapTo(&window, QPoint()), widget->size());
    const QScrollArea* area = scrolled ? ScrollsIn(widget) : nullptr;
    if (area == nullptr) return place;
    const int end = area->viewport()->mapTo(&window, QPoint(0, area->viewport()->height())).y();
    if (place.bottom() > end) place.moveBottom(end);
    return place;
}

// What stands later is further down, or beside in the direction of reading.
TEST_F(ReachTest, TheTabKeyGoesAsTheEyeDoes) {
    std::vector<std::string> failing;
    ForAllWindows([&](QWidget& window, const std::string& name) {
        const std::vector<QWidget*> stops = StopsOf(window);
        for (std::size_t i = 1; i < stops.size(); ++i) {
            const bool scrolled = ScrollsIn(stops[i - 1]) != ScrollsIn(stops[i]);
            const QRect from = PlaceOf(stops[i - 1], window, scrolled);
            const QRect to = PlaceOf(stops[i], window, scrolled);
            // What is no text keeps its direction in a mirrored window: a plot with the buttons of its corners.
            const bool together = stops[i - 1]->parentWidget() == stops[i]->parentWidget();
            const QWidget& read = together ? *stops[i]->parentWidget() : window;
            const bool mirrored = read.layoutDirection() == Qt::RightToLeft;
            const bool below = to.top() >= from.bottom() - 2;
            const bool beside = mirrored ? to.right() <= from.left() + 2 : to.left() >= from.right() - 2;
            if (!below && !beside)
                failing.push_back(name + ": " + stops[i - 1]->objectName().toStdString() + " to " +
                                  stops[i]->objectName().toStdString());
        }
    });
    EXPECT_THAT(failing, IsEmpty());
}

TEST_F(ReachTest, AGroupOfOptionsIsOneStopAndTheArrowsMoveInIt) {
    ForAllForms([&](Form&, FormView& view, const std::string& name) {
        std::map<QString, int> stops;
        for (QWidget* stop : StopsOf(view))
            if (qobject_cast<QRadioButton*>(stop) != nullptr)
                ++stops[stop->objectName().section(QLatin1Char('('), 0, 0)];
        for (const auto& [array, count] : stops) EXPECT_EQ(count, 1) << name << ": " << array.toStdString();
    });
    StartIn(Language::English);
    Session.ProblemType = Problem::SoilStress;
    frmstress form;
    form.Load();
    FormView view(form, nullptr);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    auto* set = view.findChild<QRadioButton*>("optLoadType(1)");
    ASSERT_TRUE(set->isChecked());
    set->setFocus();
    QTest::keyClick(set, Qt::Key_Up);
    EXPECT_TRUE(form.optLoadType[0].Value);
    EXPECT_FALSE(form.optLoadType[1].Value);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "optLoadType(0)");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "txt_Q");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "optLoadType(0)");
}

// A stored value that is no position sets nothing; the group is still reached.
TEST_F(ReachTest, AGroupWithoutASetOptionStaysSo) {
    frmstress form;
    form.Load();
    FormView view(form, nullptr);
    for (auto& option : form.optLoadType) option.Value = false;
    view.Refresh();
    for (const char* option : {"optLoadType(0)", "optLoadType(1)", "optLoadType(2)"})
        EXPECT_FALSE(view.findChild<QRadioButton*>(QString::fromLatin1(option))->isChecked()) << option;
    EXPECT_EQ(view.findChild<QRadioButton*>("optLoadType(0)")->focusPolicy(), Qt::StrongFocus);
}

// --- keys ---

TEST_F(ReachTest, TheFirstNumberHasTheFocusAndIsSelected) {
    ForAllForms([&](Form& form, FormView& view, const std::string& name) {
        const auto* problem = dynamic_cast<const PictureForm*>(&form);
        if (problem == nullptr) return;
        const std::vector<QWidget*> stops = StopsOf(view);
        const auto first = std::find_if(stops.begin(), stops.end(), [&](const QWidget* stop) {
            const Control* control = form.Find(stop->objectName().toStdString());
            const FieldRow* row = control != nullptr ? problem->RowOf(*control) : nullptr;
            return row != nullptr && row->Field.Exists();
        });
        ASSERT_NE(first, stops.end()) << name;
        EXPECT_EQ(view.focusWidget(), *first) << name;
        EXPECT_TRUE(dynamic_cast<QLineEdit&>(**first).hasSelectedText()) << name;
    });
}

TEST_F(ReachTest, KeysPressTheButtonsOfAProblem) {
    Session.ProblemType = Problem::SoilStress;
    frmstress form;
    form.Load();
    FormView view(form, nullptr);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    std::vector<std::string> pressed;
    const std::pair<Button&, Qt::KeyboardModifiers> buttons[] = {
        {form.cmdSave, Qt::ControlModifier}, {form.cmdSaveAs, Qt::ControlModifier | Qt::ShiftModifier}};
    for (Control* button : {&form.cmdSave, &form.cmdSaveAs, &form.cmdOpen, &form.cmdResult})
        button->OnClick = [&pressed, button] { pressed.push_back(button->Name); };
    auto* box = view.findChild<QLineEdit*>("txt_P");
    for (const auto& [button, modifiers] : buttons) QTest::keyClick(box, Qt::Key_S, modifiers);
    QTest::keyClick(box, Qt::Key_O, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_THAT(pressed, ElementsAre("cmdSave", "cmdSaveAs", "cmdOpen", "cmdResult", "cmdResult"));
    EXPECT_EQ(view.findChild<QPushButton*>("cmdSave")->toolTip(), "Ctrl+S");
}

TEST_F(ReachTest, TheViewerPrintsByItsKey) {
    frmResultTools form;
    form.Load();
    FormView view(form, nullptr);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    int printed = 0;
    form.cmdPrinter.OnClick = [&printed] { ++printed; };
    QTest::keyClick(view.findChild<QPlainTextEdit*>("txtResult"), Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(printed, 1);
}

TEST_F(ReachTest, TheViewersReportIsSavedByItsKeys) {
    frmResultTools form;
    form.Load();
    FormView view(form, nullptr);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    auto* save = view.findChild<QPushButton*>("cmdSaveAs");
    QObject::disconnect(save, &QPushButton::clicked, nullptr, nullptr);
    int saved = 0;
    QObject::connect(save, &QPushButton::clicked, [&saved] { ++saved; });
    auto* report = view.findChild<QPlainTextEdit*>("txtResult");
    QTest::keyClick(report, Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(report, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(saved, 2);
    EXPECT_EQ(save->toolTip(), "Ctrl+S");
}

TEST_F(ReachTest, F1OpensTheManualWhereItSpeaksOfTheWindow) {
    ForAllForms([&](Form& form, FormView& view, const std::string& name) {
        host.HelpTopics.clear();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
        QTest::keyClick(&view, Qt::Key_F1);
        ASSERT_EQ(host.HelpTopics.size(), 1u) << name;
        EXPECT_EQ(host.HelpTopics.front(), TopicOfForm(form)) << name;
        EXPECT_NE(PageOfTopic(host.HelpTopics.front()), "") << name;
    });
}

// In windows that belong to no form, too; a question is answered first, and the manual is there already.
TEST_F(ReachTest, F1OpensTheManualInEveryWindow) {
    std::vector<std::string> failing;
    ForAllWindows([&](QWidget& window, const std::string& name) {
        if (qobject_cast<QMessageBox*>(&window) != nullptr || name.starts_with("manual")) return;
        host.HelpTopics.clear();
        if (!QTest::qWaitForWindowActive(&window)) failing.push_back(name + " is not active");
        QTest::keyClick(&window, Qt::Key_F1);
        if (host.HelpTopics.size() != 1 || PageOfTopic(host.HelpTopics.front()).empty()) failing.push_back(name);
    });
    EXPECT_THAT(failing, IsEmpty());
}

TEST_F(ReachTest, EscapeClosesEveryWindowAndStoresNothing) {
    ForAllForms([&](Form& form, FormView& view, const std::string& name) {
        QTest::keyClick(&view, Qt::Key_Escape);
        EXPECT_TRUE(form.Unloaded()) << name;
        EXPECT_FALSE(view.isVisible()) << name;
    });
    EXPECT_THAT(DataFiles(), IsEmpty());
}

// On a button Enter clicks it, and nothing else happens.
TEST_F(ReachTest, EnterPressesTheButtonThatHasTheFocus) {
    ForAllForms([&](Form& form, FormView& view, const std::string& name) {
        for (Control* control : form.Controls()) {
            if (control->Kind != ControlKind::Button || !control->Visible || !control->Enabled) continue;
            int presses = 0;
            control->OnClick = [&presses] { ++presses; };
            QWidget& button = *view.WidgetOf(*control);
            button.setFocus();
            QTest::keyClick(&button, Qt::Key_Return);
            QTest::keyClick(&button, Qt::Key_Enter);
            EXPECT_EQ(presses, 2) << name << ": " << control->Name;
        }
    });
}

// --- Alt and a letter ---

QStringList CaptionsOf(const QWidget& window) {
    QStringList captions;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window)) continue;
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) captions.append(button->text());
        if (const auto* label = qobject_cast<const QLabel*>(widget); label != nullptr && label->buddy() != nullptr)
            captions.append(label->text());
    }
    return captions;
}

TEST_F(ReachTest, AltLettersAreUniqueInAWindowAndArabicHasNone) {
    ForAllWindows([&](QWidget& window, const std::string& name) {
        std::map<QChar, QString> letters;
        for (QString caption : CaptionsOf(window)) {
            caption.remove(QLatin1String("&&"));
            const auto mark = caption.indexOf(QLatin1Char('&'));
            if (mark < 0 || mark + 1 >= caption.size()) continue;
            const QChar letter = caption.at(mark + 1).toLower();
            EXPECT_NE(window.layoutDirection(), Qt::RightToLeft) << name << ": " << caption.toStdString();
            EXPECT_FALSE(letters.contains(letter))
                << name << ": " << caption.toStdString() << " and " << letters[letter].toStdString();
            letters[letter] = caption;
        }
    });
}

}  // namespace
}  // namespace lithmark::tests
