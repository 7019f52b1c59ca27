#include "desktop/study/VaryBoxes.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "desktop/Sizes.h"
#include "desktop/study/AskTools.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

enum VaryColumn { kVaryLabel, kVaryFirst, kVaryBetween, kVarySecond, kVaryUnit };

std::vector<QString> FieldItems(const StudyQuestion& question) {
    std::vector<QString> items = {Q(Text(913210_text))};
    for (const FieldChoice& field : question.Fields()) items.push_back(SymbolAndWords(field.Short(), field.Label));
    return items;
}

}  // namespace

VaryBoxes::VaryBoxes(StudyQuestion& question, int line, std::function<void()> changed, QWidget* parent)
    : QWidget(parent), question_(question), line_(line), changed_(std::move(changed)) {
    const int number = line + 1;
    const auto read = [this] { Read(); };
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(sizes::kColumnGap);
    grid->setVerticalSpacing(sizes::kRowGap);
    field_ = AskList(this, NumberedName("cboField", number), FieldItems(question), [this] { Choose(); });
    grid->addWidget(AskLabel(this, Text(line == 0 ? 913201_text : 913202_text), field_), 0, kVaryLabel);
    grid->addWidget(field_, 0, kVaryFirst, 1, kVaryUnit);
    from_ = NumberBox(this, NumberedName("txtFrom", number), read);
    to_ = NumberBox(this, NumberedName("txtTo", number), read);
    fromLabel_ = AskLabel(this, Text(913203_text), from_);
    toLabel_ = AskLabel(this, Text(913204_text), to_);
    list_ = NumberBox(this, NumberedName("txtList", number), read);
    listLabel_ = AskLabel(this, Text(913205_text), list_);
    unit_ = new QLabel(this);
    grid->addWidget(fromLabel_, 1, kVaryLabel);
    grid->addWidget(from_, 1, kVaryFirst);
    grid->addWidget(toLabel_, 1, kVaryBetween);
    grid->addWidget(to_, 1, kVarySecond);
    grid->addWidget(unit_, 1, kVaryUnit);
    grid->addWidget(listLabel_, 1, kVaryLabel);
    grid->addWidget(list_, 1, kVaryFirst, 1, 3);
    count_ = NumberBox(this, NumberedName("txtCount", number), read);
    countLabel_ = AskLabel(this, Text(913205_text), count_);
    steps_ = AskList(this, NumberedName("cboSteps", number),
                     {Q(Text(913207_text)), Q(Text(913208_text)), Q(Text(913209_text))}, read);
    stepsLabel_ = AskLabel(this, Text(913206_text), steps_);
    grid->addWidget(countLabel_, 2, kVaryLabel);
    grid->addWidget(count_, 2, kVaryFirst);
    grid->addWidget(stepsLabel_, 2, kVaryBetween);
    grid->addWidget(steps_, 2, kVarySecond, 1, 2);
    grid->setColumnStretch(kVaryFirst, 1);
    grid->setColumnStretch(kVarySecond, 1);
    Show();
}

void VaryBoxes::Show() {
    const VaryLine& line = Line();
    field_->setCurrentIndex(line.Field + 1);
    steps_->setCurrentIndex(static_cast<int>(line.Steps));
    for (const auto& [box, text] :
         {std::pair(from_, &line.From), {to_, &line.To}, {count_, &line.Count}, {list_, &line.List}})
        if (box->text() != Q(*text)) box->setText(Q(*text));
    const FieldChoice* field = question_.Varied(line_);
    unit_->setText(field == nullptr ? QString() : Q(field->Unit));
    if (field != nullptr)
        for (QLineEdit* box : {from_, to_, list_})
            Describe(*box, {field->Symbol, field->Unit, field->Least, field->Greatest});
    Describe(*count_, {{}, {}, 2, static_cast<double>(question_.MostValues(line_))});
    ShowLines();
}

void VaryBoxes::ShowLines() {
    const bool on = question_.Varied(line_) != nullptr, list = Line().Steps == StepKind::List;
    for (QWidget* widget : std::initializer_list<QWidget*>{fromLabel_, from_, toLabel_, to_, countLabel_, count_})
        widget->setVisible(on && !list);
    for (QWidget* widget : std::initializer_list<QWidget*>{listLabel_, list_}) widget->setVisible(on && list);
    for (QWidget* widget : std::initializer_list<QWidget*>{unit_, stepsLabel_, steps_}) widget->setVisible(on);
}

void VaryBoxes::Choose() {
    question_.ChooseVaried(line_, field_->currentIndex() - 1);
    Show();
    changed_();
}

void VaryBoxes::Read() {
    VaryLine& line = Line();
    line.Steps = static_cast<StepKind>(steps_->currentIndex());
    line.From = from_->text().toStdString();
    line.To = to_->text().toStdString();
    line.Count = count_->text().toStdString();
    line.List = list_->text().toStdString();
    ShowLines();
    changed_();
}

}  // namespace lithmark
