#include "desktop/study/StudyAsk.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "desktop/PageTools.h"
#include "desktop/Sizes.h"
#include "desktop/study/AskTools.h"
#include "desktop/study/RandomBoxes.h"
#include "desktop/study/VaryBoxes.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

QVBoxLayout* GroupColumn(QGroupBox* group) {
    auto* column = new QVBoxLayout(group);
    column->setContentsMargins(sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad);
    column->setSpacing(sizes::kEdge);
    return column;
}

}  // namespace

StudyAsk::StudyAsk(StudyQuestion& question, QWidget* parent) : QWidget(parent), question_(question) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(sizes::kGroupGap);
    column->addWidget(VaryGroup());
    column->addWidget(RandomGroup());
    column->addWidget(ResultGroup());
    column->addStretch(1);
    ShowLines();
    ShowLimit();
}

QGroupBox* StudyAsk::VaryGroup() {
    auto* group = new QGroupBox(Q(Text(913200_text)), this);
    QVBoxLayout* column = GroupColumn(group);
    for (std::size_t line = 0; line < vary_.size(); ++line) {
        vary_[line] = new VaryBoxes(
            question_, static_cast<int>(line), [this] { Changed(); }, group);
        column->addWidget(vary_[line]);
    }
    family_ = new QRadioButton(Q(Text(913255_text)), group);
    family_->setObjectName(NumberedName("optDraw", 1));
    contour_ = new QRadioButton(Q(Text(913256_text)), group);
    contour_->setObjectName(NumberedName("optDraw", 2));
    (question_.ContourAsked() ? contour_ : family_)->setChecked(true);
    connect(contour_, &QRadioButton::toggled, this, [this](bool on) {
        question_.DrawContour(on);
        vary_[1]->Show();
        Changed();
    });
    auto* row = new QHBoxLayout;
    row->setSpacing(sizes::kColumnGap);
    row->addWidget(family_);
    row->addWidget(contour_);
    row->addStretch(1);
    column->addLayout(row);
    return group;
}

QGroupBox* StudyAsk::RandomGroup() {
    auto* group = new QGroupBox(Q(Text(913211_text)), this);
    QVBoxLayout* column = GroupColumn(group);
    for (std::size_t line = 0; line < random_.size(); ++line) {
        random_[line] = new RandomBoxes(
            question_, static_cast<int>(line), [this] { Changed(); }, group);
        column->addWidget(random_[line]);
    }
    auto* row = new QHBoxLayout;
    samples_ = NumberBox(group, QStringLiteral("txtSamples"), [this] {
        question_.Samples = samples_->text().toStdString();
        Changed();
    });
    samples_->setText(Q(question_.Samples));
    Describe(*samples_, {{}, {}, StudyQuestion::kLeastSamples, StudyQuestion::kMostSamples});
    samplesLabel_ = AskLabel(group, Text(913221_text), samples_);
    row->addWidget(samplesLabel_);
    row->addWidget(samples_);
    row->addStretch(1);
    column->addLayout(row);
    return group;
}

QGroupBox* StudyAsk::ResultGroup() {
    constexpr int kColumns = 4;
    auto* group = new QGroupBox(PlainCaption(Text(140096_text)), this);
    QVBoxLayout* column = GroupColumn(group);
    auto* row = new QHBoxLayout;
    std::vector<QString> items;
    for (const ResultChoice& result : question_.Results())
        items.push_back(SymbolAndWords(result.Short(), result.Label));
    result_ = AskList(group, QStringLiteral("cboResult"), items, [this] {
        question_.Result = result_->currentIndex();
        ShowLimit();
        Changed();
    });
    result_->setCurrentIndex(question_.Result);
    row->addWidget(AskLabel(group, Text(913223_text), result_));
    row->addWidget(result_, 1);
    column->addLayout(row);

    auto* takes = new QGridLayout;
    takes->setHorizontalSpacing(sizes::kColumnGap);
    takes->setVerticalSpacing(sizes::kRowGap);
    takes->addWidget(new QLabel(Q(Text(913222_text)), group), 0, 0, 1, kColumns);
    for (std::size_t i = 0; i < question_.Results().size(); ++i) {
        const ResultChoice& result = question_.Results()[i];
        auto* box = new QCheckBox(Q(result.Short()), group);
        box->setObjectName(NumberedName("chkTake", static_cast<int>(i) + 1));
        box->setToolTip(Q(result.Label));
        // "σ z, vertical stress"
        box->setAccessibleName(Q(result.Short()).replace(QLatin1Char('_'), QLatin1Char(' ')) + QStringLiteral(", ") +
                               Q(result.Label));
        box->setChecked(question_.Taken[i]);
        connect(box, &QCheckBox::toggled, this, [this, i](bool on) {
            question_.Taken[i] = on;
            Changed();
        });
        takes->addWidget(box, 1 + static_cast<int>(i) / kColumns, static_cast<int>(i) % kColumns);
        takes_.push_back(box);
    }
    column->addLayout(takes);

    auto* limit = new QGridLayout;
    limit->setHorizontalSpacing(sizes::kColumnGap);
    limit->setVerticalSpacing(sizes::kRowGap);
    limit_ = NumberBox(group, QStringLiteral("txtLimit"), [this] {
        question_.Limit = limit_->text().toStdString();
        Changed();
    });
    limit_->setText(Q(question_.Limit));
    limitUnit_ = new QLabel(group);
    find_ = new QPushButton(Q(Text(913225_text, Styles::Button)), group);
    find_->setObjectName(QStringLiteral("cmdFind"));
    find_->setAutoDefault(false);
    find_->setToolTip(Q(Text(913245_text)));
    connect(find_, &QPushButton::clicked, this, [this] {
        if (OnFind) OnFind();
    });
    limit->addWidget(AskLabel(group, Text(913224_text), limit_), 0, 0);
    limit->addWidget(limit_, 0, 1);
    limit->addWidget(limitUnit_, 0, 2);
    limit->addWidget(find_, 0, 3);
    share_ = NumberBox(group, QStringLiteral("txtShare"), [this] {
        question_.Share = share_->text().toStdString();
        Changed();
    });
    share_->setText(Q(question_.Share));
    Describe(*share_, {{}, "%", 0, 100});
    shareLabel_ = AskLabel(group, Text(913226_text), share_);
    limit->addWidget(shareLabel_, 1, 0);
    limit->addWidget(share_, 1, 1);
    limit->setColumnStretch(1, 1);
    column->addLayout(limit);
    return group;
}

void StudyAsk::Changed() {
    ShowLines();
    if (OnChange) OnChange();
}

// A further random line as soon as the one before has a field.
void StudyAsk::ShowLines() {
    bool former = true;
    for (std::size_t line = 0; line < random_.size(); ++line) {
        const bool set = question_.Random[line].Field != kNoField;
        random_[line]->setVisible(former || set);
        former = set;
    }
    for (QRadioButton* option : {family_, contour_}) option->setVisible(question_.SecondVaried() != nullptr);
    const bool random = question_.IsRandom();
    for (QWidget* widget : std::initializer_list<QWidget*>{samplesLabel_, samples_, shareLabel_, share_})
        if (widget != nullptr) widget->setVisible(random);
}

void StudyAsk::ShowLimit() {
    const ResultChoice& drawn = question_.Drawn();
    limitUnit_->setText(Q(drawn.Unit));
    Describe(*limit_, {drawn.Symbol, drawn.Unit, -kNoLimit, kNoLimit});
}

void StudyAsk::Mark(const std::vector<AskFault>& faults) {
    for (QLineEdit* box : findChildren<QLineEdit*>()) {
        const auto fault = std::ranges::find(faults, box->objectName().toStdString(), &AskFault::Box);
        MarkBox(*box, fault == faults.end() ? std::string() : fault->Reason);
    }
}

}  // namespace lithmark
