// What holds for the windows of all forms, and how keys and clicks reach the model.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <set>

#include "EveryWindow.h"
#include "desktop/Sizes.h"
#include "render/drawings/Drawings.h"
#include "support/Matchers.h"
#include "ui/model/FieldForm.h"

namespace lithmark::tests {
namespace {

bool Holds(QLayout* layout, QWidget* widget) {
    if (layout == nullptr) return false;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* item = layout->itemAt(i);
        if (item->widget() == widget || Holds(item->layout(), widget)) return true;
    }
    return false;
}

class FormViewTest : public EveryWindow {};

TEST_F(FormViewTest, EveryControlHasAWidgetOfItsNameThatIsPlacedOnce) {
    std::vector<std::string> failing;
    ForAllForms([&](Form& form, FormView& view, const std::string& name) {
        for (const Control* control : form.Controls()) {
            auto* widget = view.findChild<QWidget*>(QString::fromStdString(control->Name));
            if (widget == nullptr || view.TimesPlaced(*control) != 1 ||
                !Holds(widget->parentWidget()->layout(), widget))
                failing.push_back(name + ": " + control->Name);
        }
    });
    EXPECT_THAT(failing, IsEmpty());
}

TEST_F(FormViewTest, EveryDrawingThatAFormNamesExists) {
    std::vector<std::string> failing;
    ForAllForms([&](Form& form, FormView&, const std::string& name) {
        for (const Control* control : form.Controls())
            if (!control->Drawing.empty() && FindDrawing(control->Drawing) == nullptr)
                failing.push_back(name + ": " + control->Drawing);
    });
    EXPECT_THAT(failing, IsEmpty());
}

// One width for all boxes and units: they stand under each other from group to group.
TEST_F(FormViewTest, BoxesOfNumbersStandUnderEachOther) {
    ForAllForms([&](Form& form, FormView& view, const std::string& name) {
        const auto* problem = dynamic_cast<const PictureForm*>(&form);
        if (problem == nullptr) return;
        std::set<int> places;
        for (const FieldRow& row : problem->Fields()) {
            const auto* box = view.findChild<QWidget*>(QString::fromStdString(row.Box.Name));
            if (!row.Field.Exists() || !box->isVisible()) continue;
            places.insert(box->mapTo(&view, QPoint()).x());
            EXPECT_EQ(box->width(), sizes::kBoxWidth) << name << ": " << row.Box.Name;
        }
        EXPECT_EQ(places.size(), 1u) << name << ": " << ::testing::PrintToString(places);
    });
}

TEST_F(FormViewTest, WidgetsShowWhatTheModelSays) {
    std::vector<std::string> failing;
    ForAllForms([&](Form& form, FormView& view, const std::string& name) {
        EXPECT_EQ(view.layoutDirection(), form.RightToLeft ? Qt::RightToLeft : Qt::LeftToRight) << name;
        for (const Control* control : form.Controls()) {
            const auto* widget = view.findChild<QWidget*>(QString::fromStdString(control->Name));
            if (widget->isHidden() == control->Visible || widget->isEnabledTo(&view) != control->Enabled)
                failing.push_back(name + ": " + control->Name);
        }
    });
    EXPECT_THAT(failing, IsEmpty());
}

TEST_F(FormViewTest, TabFollowsTheWayOfTheEnterKey) {
    ForAllForms([&](Form& form, FormView& view, const std::string& name) {
        const auto* fields = dynamic_cast<const FieldForm*>(&form);
        if (fields == nullptr) return;
        // The place of each widget on the way of the Tab key.
        std::vector<QWidget*> chain;
        for (QWidget* w = view.nextInFocusChain(); w != &view && chain.size() < 1000; w = w->nextInFocusChain())
            chain.push_back(w);
        const auto placeOf = [&](const Control& control) {
            auto* widget = view.findChild<QWidget*>(QString::fromStdString(control.Name));
            return std::find(chain.begin(), chain.end(), widget) - chain.begin();
        };
        for (const FieldRow& row : fields->Fields())
            for (const EnterStep& step : row.Enter)
                EXPECT_GT(placeOf(*step.To), placeOf(row.Box)) << name << ": " << row.Box.Name;
    });
}

// A form without a layout of its own: fields with their labels and units in a line, buttons after them.
class UnplacedForm : public Form {
  public:
    UnplacedForm() : Form("unplaced") {
        ok.Caption = "OK";
        frame.Caption = "Load:";
        name.Caption = "Width";
        symbol.Caption = "b";
        unit.Caption = "[m]";
        second.Caption = "Depth";
        check.Caption = "Deep";
    }
    Button ok{*this, "ok"};
    FrameBox frame{*this, "frame"};
    TextLabel name{*this, "name"}, symbol{*this, "symbol"};
    TextBox box{*this, "box"};
    TextLabel unit{*this, "unit"}, second{*this, "second"};
    TextBox depth{*this, "depth"};
    CheckBox check{*this, "check"};
};

TEST_F(FormViewTest, AFormWithoutALayoutOfItsOwnIsReadableToo) {
    UnplacedForm form;
    FormView view(form, nullptr);
    view.show();
    QCoreApplication::processEvents();
    const auto at = [&](const char* name) {
        auto* widget = view.findChild<QWidget*>(QString::fromLatin1(name));
        return QRect(widget->mapTo(&view, QPoint()), widget->size());
    };
    EXPECT_LT(at("name").right(), at("symbol").left());
    EXPECT_LT(at("symbol").right(), at("box").left());
    EXPECT_LT(at("box").right(), at("unit").left());
    EXPECT_EQ(at("name").center().y(), at("box").center().y());
    EXPECT_GT(at("second").top(), at("box").bottom());
    EXPECT_EQ(at("depth").left(), at("box").left());
    EXPECT_GT(at("ok").top(), at("check").bottom());
}

// --- one form, by hand ---

class StressViewTest : public FormTest {
  protected:
    void Open() {
        form_.Reopen();
        form_.Load();
        view_ = std::make_unique<FormView>(form_, nullptr);
        view_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(view_.get()));
    }
    QLineEdit& Box(const char* name) { return *view_->findChild<QLineEdit*>(QString::fromLatin1(name)); }
    void Click(const char* name) {
        auto* button = view_->findChild<QAbstractButton*>(QString::fromLatin1(name));
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
    }
    void Type(const char* name, const char* text) {
        Box(name).setFocus();
        Box(name).selectAll();
        QTest::keyClicks(&Box(name), QString::fromLatin1(text));
    }

    frmstress form_;
    std::unique_ptr<FormView> view_;
};

TEST_F(StressViewTest, EnterMovesOnAndSelects) {
    Open();
    Box("txt_x").setFocus();
    QTest::keyClick(&Box("txt_x"), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), &Box("txt_y"));
    EXPECT_EQ(Box("txt_y").selectedText(), Box("txt_y").text());
    QTest::keyClick(&Box("txt_y"), Qt::Key_Enter);
    EXPECT_EQ(QApplication::focusWidget(), &Box("txt_z"));
    EXPECT_TRUE(view_->isVisible());
}

TEST_F(StressViewTest, AnOptionShowsItsFieldsAndGivesTheRoomOfTheOthersBack) {
    Open();
    Click("optLoadType(0)");
    EXPECT_TRUE(form_.optLoadType[0].Value);
    EXPECT_FALSE(form_.optLoadType[1].Value);
    EXPECT_TRUE(Box("txt_Q").isVisible());
    EXPECT_FALSE(Box("txt_A").isVisible());
    QCoreApplication::processEvents();
    const int oneRow = view_->findChild<QGroupBox*>("fraData")->sizeHint().height();
    Click("optLoadType(1)");
    QCoreApplication::processEvents();
    EXPECT_TRUE(Box("txt_B").isVisible());
    EXPECT_GT(view_->findChild<QGroupBox*>("fraData")->sizeHint().height(), oneRow);
}

TEST_F(StressViewTest, EscapeClosesAndStoresNothing) {
    Open();
    const double before = Session.z;
    Type("txt_z", "7");
    EXPECT_EQ(form_.txt_z.Text, "7");
    EXPECT_TRUE(view_->isWindowModified());
    QTest::keyClick(view_.get(), Qt::Key_Escape);
    EXPECT_TRUE(form_.Unloaded());
    EXPECT_FALSE(view_->isVisible());
    EXPECT_EQ(Session.z, before);
    EXPECT_THAT(DataFiles(), IsEmpty());
}

TEST_F(StressViewTest, TheButtonOfTheWindowClosesAsEscapeDoes) {
    Open();
    Type("txt_z", "7");
    view_->close();
    EXPECT_TRUE(form_.Unloaded());
    EXPECT_THAT(DataFiles(), IsEmpty());
}

TEST_F(StressViewTest, ABadValueIsToldAndTakesTheFocus) {
    Open();
    Type("txt_Nue", "0.6");
    // As the desktop does when a service asks for the focus.
    Click("cmdResult");
    ASSERT_FALSE(host.Messages.empty());
    EXPECT_EQ(form_.Focus, &form_.txt_Nue);
    view_->FocusOn(*form_.Focus);
    EXPECT_EQ(QApplication::focusWidget(), &Box("txt_Nue"));
    // Marked until it is right, in words too.
    const auto marks = [&] { return Box("txt_Nue").findChildren<QAction*>(QStringLiteral("mark")).size(); };
    EXPECT_EQ(marks(), 1);
    EXPECT_TRUE(Box("txt_Nue").toolTip().contains(QStringLiteral("0.5")));
    EXPECT_TRUE(Box("txt_Nue").accessibleDescription().contains(QStringLiteral("error")))
        << Box("txt_Nue").accessibleDescription().toStdString();
    Type("txt_Nue", "0.3");
    EXPECT_EQ(marks(), 0);
    EXPECT_TRUE(Box("txt_Nue").toolTip().isEmpty());
}

TEST_F(StressViewTest, HidingThePictureMakesTheWindowNarrower) {
    Open();
    const bool shown = form_.PctInvertedT.Visible;
    const int width = view_->width();
    Click("CmdMoreLess");
    EXPECT_NE(form_.PctInvertedT.Visible, shown);
    QCoreApplication::processEvents();
    if (shown)
        EXPECT_LT(view_->width(), width);
    else
        EXPECT_GT(view_->width(), width);
}

// 1366 x 768 at 125 % leave less than this, with the widest words.
TEST_F(StressViewTest, OnASmallScreenTheFieldsScrollAndTheButtonsStay) {
    StartIn(Language::German);
    Session.ProblemType = Problem::SoilStrain;
    Open();
    view_->resize(view_->width(), 320);
    QCoreApplication::processEvents();
    ASSERT_EQ(view_->height(), 320);
    auto* column = view_->findChild<QScrollArea*>();
    ASSERT_NE(column, nullptr);
    EXPECT_TRUE(column->verticalScrollBar()->isVisible());
    EXPECT_FALSE(column->horizontalScrollBar()->isVisible());
    for (const char* name : {"cmdSave", "cmdSaveAs", "cmdOpen", "CmdMoreLess", "cmdHelp", "cmdResult", "cmdok"}) {
        const auto* button = view_->findChild<QPushButton*>(QString::fromLatin1(name));
        EXPECT_EQ(button->visibleRegion().boundingRect().size(), button->size()) << name;
    }
    EXPECT_TRUE(Box("txt_Nue").visibleRegion().isEmpty());
    // The way of the Enter key brings each box into sight.
    Box("txt_P").setFocus();
    for (const char* name : {"txt_P", "txt_A", "txt_B", "txt_x", "txt_y", "txt_z", "txt_Es"})
        QTest::keyClick(&Box(name), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), &Box("txt_Nue"));
    EXPECT_EQ(Box("txt_Nue").visibleRegion().boundingRect().size(), Box("txt_Nue").size());
}

TEST_F(StressViewTest, FieldsThatComeIntoSightFindTheirRoom) {
    Session.ProblemType = Problem::SoilStrain;
    Open();
    Click("optLoadType(0)");
    QCoreApplication::processEvents();
    view_->resize(view_->sizeHint());
    QCoreApplication::processEvents();
    const int before = view_->height();
    Click("optLoadType(1)");
    QCoreApplication::processEvents();
    EXPECT_GT(view_->height(), before);
    EXPECT_FALSE(view_->findChild<QScrollArea*>()->verticalScrollBar()->isVisible());
    // Fewer fields leave the window as large as it is.
    const int grown = view_->height();
    Click("optLoadType(0)");
    QCoreApplication::processEvents();
    EXPECT_EQ(view_->height(), grown);
}

TEST_F(FormViewTest, ABadValueOnTheOtherTabBringsThatTab) {
    frmPreferences form;
    form.Load();
    FormView view(form, nullptr);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    auto* tabs = view.findChild<QTabBar*>("sstMainData");
    auto* dx = view.findChild<QLineEdit*>("txtDx");
    auto* tol = view.findChild<QLineEdit*>("txtTol");
    dx->setFocus();
    dx->selectAll();
    QTest::keyClicks(dx, "0.1");
    tabs->setCurrentIndex(1);
    EXPECT_TRUE(tol->isVisible());
    EXPECT_FALSE(dx->isVisible());
    QTest::mouseClick(view.findChild<QPushButton*>("cmdSave"), Qt::LeftButton);
    ASSERT_FALSE(host.Messages.empty());
    EXPECT_FALSE(form.Unloaded());
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_TRUE(dx->isVisible());
}

TEST_F(FormViewTest, AListAndACheckBoxReachTheModel) {
    frmUnits units;
    units.Load();
    FormView view(units, nullptr);
    view.show();
    auto* list = view.findChild<QComboBox*>("CboLength(0)");
    const int last = list->count() - 1;
    ASSERT_GT(last, 0);
    list->setCurrentIndex(last);
    emit list->activated(last);
    EXPECT_EQ(units.CboLength[0].ListIndex, last);

    frmDataDir dir;
    dir.Load();
    FormView dirView(dir, nullptr);
    dirView.show();
    auto* box = dirView.findChild<QCheckBox*>("chkCompressFlag(0)");
    const bool before = dir.chkCompressFlag[0].Value;
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    EXPECT_NE(dir.chkCompressFlag[0].Value, before);
}

}  // namespace
}  // namespace lithmark::tests
