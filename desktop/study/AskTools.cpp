#include "desktop/study/AskTools.h"

#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/Sizes.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kNumberWidth = 84;

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
    QObject::connect(box, &QLineEdit::textEdited, box, [changed = std::move(changed)] { changed(); });
    return box;
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

QString SymbolAndWords(const std::string& symbol, const std::string& label) {
    if (symbol.empty() || symbol == label) return Q(label);
    // A symbol of Latin letters keeps together where words run from right to left.
    const QString plain = Q(symbol);
    return (LanguageTexts().RightToLeft() ? QChar(0x2066) + plain + QChar(0x2069) : plain) + QStringLiteral("  ") +
           Q(label);
}

}  // namespace lithmark
