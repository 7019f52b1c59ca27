#include "desktop/FormView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDateEdit>
#include <QEventLoop>
#include <QFocusEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QTabBar>
#include <utility>

#include "desktop/BoxMark.h"
#include "desktop/FieldNames.h"
#include "desktop/FormKeys.h"
#include "desktop/KeptSize.h"
#include "desktop/LinkList.h"
#include "desktop/ManualTopics.h"
#include "desktop/NumberSteps.h"
#include "desktop/PictureView.h"
#include "desktop/ReportView.h"
#include "desktop/ScreenRoom.h"
#include "desktop/Sizes.h"
#include "desktop/SpokenAlert.h"
#include "desktop/layouts/Layouts.h"
#include "render/QtText.h"
#include "render/drawings/Symbols.h"
#include "services/TextTools.h"
#include "ui/model/BoxMarks.h"
#include "ui/model/FindField.h"
#include "ui/model/UnsavedInput.h"

namespace lithmark {

namespace {

std::unordered_map<const Form*, FormView*>& OpenViews() {
    static std::unordered_map<const Form*, FormView*> views;
    return views;
}

// Day 25569 of the text service is 1 January 1970.
constexpr int kEpochDay = 25569;

QDate DateOf(const std::string& text) {
    const auto day = TextTools().ReadDate(text);
    return day ? QDate(1970, 1, 1).addDays(*day - kEpochDay) : QDate();
}

}  // namespace

FormView::FormView(Form& form, QWidget* parent)
    : QDialog(parent), form_(form), keep_(kKeepAfter, [this] {
          form_.KeepInput();
          EndTyping();
      }) {
    OpenViews()[&form] = this;
    setObjectName(Q(form.Name));
    setModal(true);
    setLayoutDirection(form.RightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    BuildLayout(*this);
    for (Control* control : form.Controls()) WidgetOf(*control);
    BindKeys(*this);
    Refresh();
    BindHelpKey(*this, [&form] { return TopicOfForm(form); });
    // All words in full, as far as the screen goes; a layout may have chosen a size of its own.
    if (!testAttribute(Qt::WA_Resized)) resize(sizeHint().boundedTo(ScreenRoom(*this)));
    KeepSize(*this);
}

FormView::~FormView() {
    OpenViews().erase(&form_);
}

FormView* FormView::Of(const Form& form) {
    const auto found = OpenViews().find(&form);
    return found == OpenViews().end() ? nullptr : found->second;
}

void FormView::RunModal() {
    if (form_.Unloaded()) return;
    QEventLoop loop;
    connect(this, &QDialog::finished, &loop, &QEventLoop::quit);
    // A window destroyed from outside ends the loop too.
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    const Control* const wanted = form_.Focus;
    open();
    form_.Activate();
    Refresh();
    if (wanted) FocusOn(*wanted);
    if (isVisible()) loop.exec();
}

void FormView::reject() {
    for (const char* name : {"CmdCancel", "cmdCancel", "cmdok", "CmdOK", "cmdOK"})
        if (Control* button = form_.Find(name); button && button->Visible && button->Enabled && button->OnClick) {
            Act(button->OnClick);
            return;
        }
    Act([this] { form_.Unload(); });
}

QWidget* FormView::WidgetOf(const Control& control) {
    QWidget*& widget = widgets_[&control];
    // The model's own controls may be changed; a layout only reads them.
    if (!widget) widget = Make(const_cast<Control&>(control));
    return widget;
}

QWidget* FormView::Place(const Control& control) {
    ++placed_[&control];
    return WidgetOf(control);
}

int FormView::TimesPlaced(const Control& control) const {
    const auto found = placed_.find(&control);
    return found == placed_.end() ? 0 : found->second;
}

QWidget* FormView::Make(Control& control) {
    QWidget* widget = nullptr;
    switch (control.Kind) {
        case ControlKind::TextLabel: {
            auto* label = new QLabel(this);
            label->setTextInteractionFlags(Qt::NoTextInteraction);
            // A name or a unit of Latin letters stands at the side where the language begins, too.
            label->setAlignment((form_.RightToLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute |
                                Qt::AlignVCenter);
            widget = label;
            break;
        }
        case ControlKind::TextBox: {
            auto* box = new QLineEdit(this);
            connect(box, &QLineEdit::textEdited, this,
                    [this, &control](const QString& text) { Edited(control, text); });
            box->installEventFilter(this);
            widget = box;
            break;
        }
        case ControlKind::Option: {
            auto* option = new QRadioButton(this);
            options_.Add(control, *option);
            connect(option, &QRadioButton::clicked, this, [this, &control] {
                form_.SelectOption(control);
                Act(control.OnClick);
            });
            widget = option;
            break;
        }
        case ControlKind::CheckBox: {
            auto* box = new QCheckBox(this);
            connect(box, &QCheckBox::clicked, this, [this, &control](bool checked) {
                control.Value = checked;
                Act(control.OnClick);
            });
            widget = box;
            break;
        }
        case ControlKind::ComboBox: {
            auto* box = new QComboBox(this);
            box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
            connect(box, &QComboBox::activated, this, [this, &control, box](int index) {
                control.ListIndex = index;
                control.Text = box->itemText(index).toStdString();
                Act(control.OnClick ? control.OnClick : control.OnChange);
            });
            widget = box;
            break;
        }
        case ControlKind::Button: {
            auto* button = new QPushButton(this);
            button->setAutoDefault(false);
            connect(button, &QPushButton::clicked, this, [this, &control] { Act(control.OnClick); });
            button->installEventFilter(this);
            widget = button;
            break;
        }
        case ControlKind::Frame:
            widget = new QGroupBox(this);
            break;
        case ControlKind::Picture: {
            auto* picture = new PictureView(control, this);
            picture->OnPick = [this](const Control& box) { FocusOn(box); };
            widget = picture;
            break;
        }
        case ControlKind::TextArea:
            widget = new ReportView(this);
            break;
        case ControlKind::DatePicker: {
            auto* picker = new QDateEdit(this);
            picker->setCalendarPopup(true);
            // Before the format, which a mirrored picker turns round.
            picker->setLayoutDirection(Qt::LeftToRight);
            picker->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
            connect(picker, &QDateEdit::dateChanged, this, [this, &control](QDate date) {
                if (refreshing_) return;
                control.Text = TextTools().LongDate(kEpochDay + static_cast<int>(QDate(1970, 1, 1).daysTo(date)));
                Act(control.OnChange);
            });
            widget = picker;
            break;
        }
        case ControlKind::Tab: {
            auto* tabs = new QTabBar(this);
            connect(tabs, &QTabBar::currentChanged, this, [this, &control](int index) {
                if (refreshing_) return;
                control.ListIndex = index;
                Act(control.OnClick ? control.OnClick : control.OnChange);
            });
            widget = tabs;
            break;
        }
        case ControlKind::List: {
            auto* list = new LinkList(this);
            list->OnLink = [this, &control](int row) {
                control.ListIndex = row;
                Act(control.OnClick);
            };
            widget = list;
            break;
        }
    }
    widget->setObjectName(Q(control.Name));
    return widget;
}

void FormView::Edited(Control& control, const QString& text) {
    control.Text = text.toStdString();
    Act(control.OnChange, &control);
}

void FormView::EndTyping() {
    if (std::exchange(typed_, nullptr) != nullptr && !form_.Unloaded()) Refresh();
}

std::string FormView::ShownMark(const Control& box) const {
    const auto* marks = dynamic_cast<const BoxMarks*>(&form_);
    if (marks == nullptr || (typed_ == &box && !marks->Refused(box) && IsUnfinished(box.Text))) return {};
    return marks->MarkOf(box);
}

void FormView::Left(const Control& box) {
    if (form_.Unloaded() || box.Kind != ControlKind::TextBox) return;
    const std::string mark = ShownMark(box);
    if (!mark.empty()) SpeakAlert(Alert != nullptr ? *Alert : *WidgetOf(box), Q(mark));
}

bool FormView::StepsNumber(Control& control, QLineEdit& box, const QKeyEvent& key) {
    const FieldRow* row = FindField(form_, control);
    if (row == nullptr || !row->Field.Exists() || !StepByKey(box, key)) return false;
    Edited(control, box.text());
    return true;
}

void FormView::Act(const std::function<void()>& event, const Control* typed) {
    typed_ = typed;
    if (event) event();
    keep_.start();
    Refresh();
    if (AfterEvent && !form_.Unloaded()) AfterEvent(typed);
}

void FormView::Refresh() {
    if (form_.Unloaded()) {
        if (keep_.isActive()) form_.KeepInput();
        keep_.stop();
        done(QDialog::Accepted);
        return;
    }
    const QScopedValueRollback<bool> guard(refreshing_, true);
    setWindowTitle(Q(form_.Caption) + QStringLiteral("[*]"));
    setWindowModified(form_.Modified());
    for (Control* control : form_.Controls()) Show(*control, *WidgetOf(*control));
    options_.SettleStops();
    NameFields(*this);
    if (AfterRefresh) AfterRefresh();
    FitContent();
}

void FormView::RefreshAll() {
    for (const auto& [form, view] : OpenViews())
        if (!form->Unloaded()) {
            view->Refresh();
            if (view->AfterEvent) view->AfterEvent(nullptr);
        }
}

void FormView::FitContent() {
    int shown = 0;
    for (const Control* control : form_.Controls())
        if (control->Kind == ControlKind::Picture && control->Visible) ++shown;
    const bool first = picturesShown_ < 0, pictures = shown != picturesShown_;
    picturesShown_ = shown;
    // What stands deep inside tells its new size from group to group up to the window.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    layout()->activate();
    const QSize wanted = sizeHint().boundedTo(ScreenRoom(*this));
    const bool grown = wanted.height() > heightWanted_;
    heightWanted_ = wanted.height();
    if (first) return;
    if (pictures) FitWidth();
    if (grown && wanted.height() > height()) ResizeForContent(*this, QSize(width(), wanted.height()));
}

void FormView::FitWidth() {
    ResizeForContent(*this, QSize(sizeHint().boundedTo(ScreenRoom(*this)).width(), height()));
}

void FormView::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (event->spontaneous() || form_.Focus != nullptr) return;
    if (QWidget* first = FirstStop(*this)) FocusOn(*form_.Find(first->objectName().toStdString()));
}

void FormView::Show(Control& control, QWidget& widget) {
    widget.setVisible(control.Visible);
    widget.setEnabled(control.Enabled);
    const QString caption = Q(control.Caption);
    switch (control.Kind) {
        case ControlKind::TextLabel:
            static_cast<QLabel&>(widget).setText(control.Symbol ? SymbolMarkup(control.Caption) : caption);
            break;
        case ControlKind::TextBox: {
            auto& box = static_cast<QLineEdit&>(widget);
            if (box.text() != Q(control.Text)) box.setText(Q(control.Text));
            box.setReadOnly(control.ReadOnly);
            ShowMark(box, ShownMark(control));
            break;
        }
        case ControlKind::Option:
            static_cast<QRadioButton&>(widget).setText(caption);
            OptionGroups::Set(static_cast<QRadioButton&>(widget), control.Value);
            break;
        case ControlKind::CheckBox:
            static_cast<QCheckBox&>(widget).setText(caption);
            static_cast<QCheckBox&>(widget).setChecked(control.Value);
            break;
        case ControlKind::ComboBox: {
            auto& box = static_cast<QComboBox&>(widget);
            QStringList items;
            for (const std::string& item : control.Items) items.append(Q(item));
            QStringList shown;
            for (int i = 0; i < box.count(); ++i) shown.append(box.itemText(i));
            if (items != shown) {
                box.clear();
                box.addItems(items);
                box.setMinimumWidth(box.sizeHint().width());
            }
            box.setCurrentIndex(control.ListIndex);
            break;
        }
        case ControlKind::Button:
            static_cast<QPushButton&>(widget).setText(caption);
            break;
        case ControlKind::Frame:
            static_cast<QGroupBox&>(widget).setTitle(caption);
            break;
        case ControlKind::Picture:
            static_cast<PictureView&>(widget).Follow();
            break;
        case ControlKind::TextArea:
            static_cast<ReportView&>(widget).ShowReport(control.Text, control.FontName, form_.RightToLeft);
            break;
        case ControlKind::DatePicker: {
            const QDate date = DateOf(control.Text);
            if (date.isValid()) static_cast<QDateEdit&>(widget).setDate(date);
            break;
        }
        case ControlKind::Tab: {
            auto& tabs = static_cast<QTabBar&>(widget);
            while (tabs.count() > static_cast<int>(control.Items.size())) tabs.removeTab(tabs.count() - 1);
            for (int i = 0; i < static_cast<int>(control.Items.size()); ++i) {
                const QString item = Q(control.Items[static_cast<std::size_t>(i)]);
                if (i < tabs.count())
                    tabs.setTabText(i, item);
                else
                    tabs.addTab(item);
            }
            tabs.setCurrentIndex(control.ListIndex);
            break;
        }
        case ControlKind::List:
            static_cast<LinkList&>(widget).ShowItems(control.Items);
            break;
    }
}

void FormView::FocusOn(const Control& control) {
    // What leads to the control, a tab for one, may have changed with the same event.
    if (!refreshing_) Refresh();
    QWidget* widget = WidgetOf(control);
    widget->setFocus(Qt::OtherFocusReason);
    for (QWidget* parent = widget->parentWidget(); parent != nullptr; parent = parent->parentWidget())
        if (auto* scrolled = qobject_cast<QScrollArea*>(parent)) scrolled->ensureWidgetVisible(widget);
    if (auto* box = qobject_cast<QLineEdit*>(widget)) box->selectAll();
}

// Enter in a text box belongs to the model: it moves on or presses a button.
bool FormView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        if (Control* control = form_.Find(watched->objectName().toStdString())) form_.Focus = control;
    } else if (event->type() == QEvent::FocusOut) {
        EndTyping();
        if (AfterBox && !form_.Unloaded()) AfterBox();
        const Qt::FocusReason why = static_cast<QFocusEvent*>(event)->reason();
        if (why != Qt::ActiveWindowFocusReason && why != Qt::PopupFocusReason && why != Qt::MenuBarFocusReason)
            if (const Control* box = form_.Find(watched->objectName().toStdString())) Left(*box);
    } else if (event->type() == QEvent::KeyPress) {
        const auto& pressed = static_cast<const QKeyEvent&>(*event);
        const int key = pressed.key();
        if (auto* box = qobject_cast<QLineEdit*>(watched))
            if (Control* control = form_.Find(box->objectName().toStdString()))
                if (StepsNumber(*control, *box, pressed)) return true;
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            Control* const from = form_.Find(watched->objectName().toStdString());
            if (from && from->OnEnter) {
                Act(from->OnEnter);
                if (!form_.Unloaded() && form_.Focus && form_.Focus != from) FocusOn(*form_.Focus);
                return true;
            }
        }
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace lithmark
