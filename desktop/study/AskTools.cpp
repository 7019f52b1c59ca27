#include "desktop/study/AskTools.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

#include "desktop/BoxMark.h"
#include "desktop/NumberSteps.h"
#include "desktop/Sizes.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kNumberWidth = 84;
constexpr const char* kAbout = "about";

// The number in a box is stepped by the keys that step one in a dialog.
class StepKeys : public QObject {
  public:
    explicit StepKeys(QLineEdit& box) : QObject(&box), box_(box) { box.installEventFilter(this); }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || !StepByKey(box_, static_cast<const QKeyEvent&>(*event))) return false;
        emit box_.textEdited(box_.text());
        return true;
    }

  private:
    QLineEdit& box_;
};

}  // namespace

QString NumberedName(const char* name, int number) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(number);
}

QLabel* AskLabel(QWidget* parent, const std::string& words, QWidget* box) {
    auto* label = new QLabel(Q(words), parent);
    label->setBuddy(box);
    box->setAccessibleName(Q(words));
    return label;
}

QLineEdit* NumberBox(QWidget* parent, const QString& name, std::function<void()> changed) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setAlignment(Qt::AlignRight | Qt::AlignAbsolute);
    box->setLayoutDirection(Qt::LeftToRight);
    box->setMinimumWidth(kNumberWidth);
    box->setMinimumHeight(sizes::kClicked);
    new StepKeys(*box);
    QObject::connect(box, &QLineEdit::textEdited, box, [changed = std::move(changed)] { changed(); });
    return box;
}

void Describe(QLineEdit& box, const BoxWords& words) {
    box.setProperty(kAbout, Description(words, ""));
    MarkBox(box, box.toolTip().toStdString());
}

void MarkBox(QLineEdit& box, const std::string& fault) {
    ShowMark(box, fault);
    QString words = box.property(kAbout).toString();
    if (!fault.empty()) words += (words.isEmpty() ? QString() : QStringLiteral("; ")) + FaultInWords(fault);
    if (box.accessibleDescription() != words) box.setAccessibleDescription(words);
}

QComboBox* AskList(QWidget* parent, const QString& name, const std::vector<QString>& items,
                   std::function<void()> changed) {
    auto* list = new QComboBox(parent);
    list->setObjectName(name);
    list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    list->setMinimumHeight(sizes::kClicked);
    for (const QString& item : items) list->addItem(item);
    QObject::connect(list, &QComboBox::activated, list, [changed = std::move(changed)] { changed(); });
    return list;
}

QPushButton* AskButton(QWidget* parent, QLayout& row, const QString& caption, const char* name,
                       std::function<void()> pressed) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    button->setMinimumHeight(sizes::kClicked);
    QObject::connect(button, &QPushButton::clicked, parent, [pressed = std::move(pressed)] { pressed(); });
    row.addWidget(button);
    return button;
}

void BindSaveKey(QWidget& window, QPushButton& table, QPushButton& drawn, std::function<bool()> seesTable) {
    const QKeySequence keys(QKeySequence::Save);
    for (QPushButton* button : {&table, &drawn}) button->setToolTip(keys.toString(QKeySequence::NativeText));
    QObject::connect(new QShortcut(keys, &window), &QShortcut::activated, &window,
                     [&table, &drawn, seesTable = std::move(seesTable)] { (seesTable() ? table : drawn).click(); });
}

QString SymbolAndWords(const std::string& symbol, const std::string& label) {
    if (symbol.empty() || symbol == label) return Q(label);
    // A symbol of Latin letters keeps together where words run from right to left.
    const QString plain = Q(symbol);
    return (LanguageTexts().RightToLeft() ? QChar(0x2066) + plain + QChar(0x2069) : plain) + QStringLiteral("  ") +
           Q(label);
}

}  // namespace lithmark
