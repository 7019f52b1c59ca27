#include "desktop/study/RandomBoxes.h"

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

std::vector<QString> RandomFieldItems(const StudyQuestion& question) {
    std::vector<QString> items = {Q(Text(913210_text))};
    for (const FieldChoice& field : question.Fields())
        if (!field.Whole) items.push_back(SymbolAndWords(field.Short(), field.Label));
    return items;
}

// The place among the choices of an item of the list, which has no counts.
int FieldOfItem(const StudyQuestion& question, int item) {
    int at = 0;
    for (int field = 0; field < static_cast<int>(question.Fields().size()); ++field)
        if (!question.Fields()[static_cast<std::size_t>(field)].Whole && ++at == item) return field;
    return kNoField;
}
int ItemOfField(const StudyQuestion& question, int field) {
    int item = 0;
    for (int i = 0; i <= field; ++i) item += question.Fields()[static_cast<std::size_t>(i)].Whole ? 0 : 1;
    return item;
}

std::array<std::string, 3> Captions(DistributionKind kind) {
    if (kind == DistributionKind::Normal || kind == DistributionKind::LogNormal)
        return {Text(913218_text), Text(913219_text), ""};
    if (kind == DistributionKind::Uniform) return {Text(913203_text), Text(913204_text), ""};
    return {Text(913203_text), Text(913220_text), Text(913204_text)};
}

}  // namespace

RandomBoxes::RandomBoxes(StudyQuestion& question, int line, std::function<void()> changed, QWidget* parent)
    : QWidget(parent), question_(question), line_(line), changed_(std::move(changed)) {
    const int number = line + 1;
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(sizes::kColumnGap);
    grid->setVerticalSpacing(sizes::kRowGap);
    field_ = AskList(this, NumberedName("cboRandom", number), RandomFieldItems(question), [this] { Choose(); });
    grid->addWidget(AskLabel(this, Text(line == 0 ? 913212_text : 913202_text), field_), 0, 0);
    grid->addWidget(field_, 0, 1, 1, 3);
    kind_ = AskList(this, NumberedName("cboKind", number),
                    {Q(Text(913214_text)), Q(Text(913215_text)), Q(Text(913216_text)), Q(Text(913217_text))},
                    [this] { ChooseKind(); });
    kindLabel_ = AskLabel(this, Text(913213_text), kind_);
    grid->addWidget(kindLabel_, 1, 0);
    grid->addWidget(kind_, 1, 1, 1, 3);
    constexpr std::array kNames = {"txtRandom1", "txtRandom2", "txtRandom3"};
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        boxes_[i] = NumberBox(this, NumberedName(kNames[i], number), [this] { Read(); });
        labels_[i] = AskLabel(this, "", boxes_[i]);
        grid->addWidget(labels_[i], 2, static_cast<int>(i));
        grid->addWidget(boxes_[i], 3, static_cast<int>(i));
        grid->setColumnStretch(static_cast<int>(i), 1);
    }
    unit_ = new QLabel(this);
    grid->addWidget(unit_, 3, 3);
    Show();
}

void RandomBoxes::Show() {
    const RandomLine& line = Line();
    const bool on = line.Field != kNoField;
    field_->setCurrentIndex(on ? ItemOfField(question_, line.Field) : 0);
    kind_->setCurrentIndex(static_cast<int>(line.Kind));
    const auto captions = Captions(line.Kind);
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const bool used = on && static_cast<int>(i) < TextsOf(line.Kind);
        if (boxes_[i]->text() != Q(line.Texts[i])) boxes_[i]->setText(Q(line.Texts[i]));
        labels_[i]->setText(Q(captions[i]));
        boxes_[i]->setAccessibleName(Q(captions[i]));
        labels_[i]->setVisible(used);
        boxes_[i]->setVisible(used);
    }
    if (on) {
        const FieldChoice& field = question_.Fields()[static_cast<std::size_t>(line.Field)];
        for (QLineEdit* box : boxes_) Describe(*box, {field.Symbol, field.Unit, -kNoLimit, kNoLimit});
    }
    unit_->setText(on ? Q(question_.Fields()[static_cast<std::size_t>(line.Field)].Unit) : QString());
    for (QWidget* widget : std::initializer_list<QWidget*>{kindLabel_, kind_, unit_}) widget->setVisible(on);
}

void RandomBoxes::Choose() {
    question_.ChooseRandom(line_, FieldOfItem(question_, field_->currentIndex()));
    Show();
    changed_();
}

void RandomBoxes::ChooseKind() {
    Line().Kind = static_cast<DistributionKind>(kind_->currentIndex());
    question_.ProposeTexts(line_);
    Show();
    changed_();
}

void RandomBoxes::Read() {
    for (std::size_t i = 0; i < boxes_.size(); ++i) Line().Texts[i] = boxes_[i]->text().toStdString();
    changed_();
}

}  // namespace lithmark
