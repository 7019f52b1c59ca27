#include "desktop/study/PointsFill.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <cmath>

#include "desktop/ManualTopics.h"
#include "desktop/PaneKeys.h"
#include "desktop/Sizes.h"
#include "desktop/SpokenAlert.h"
#include "desktop/WidgetInk.h"
#include "desktop/study/AskTools.h"
#include "render/QtText.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"
#include "study/window/ShortNumber.h"
#include "ui/model/BoxMarks.h"

namespace lithmark {

namespace {

constexpr int kWhole = 1, kReal = 2, kUsualCount = 11;

TextId TitleOf(PointsFill::Kind kind) {
    switch (kind) {
        case PointsFill::Kind::Grid:
            return 913271_text;
        case PointsFill::Kind::Line:
            return 913272_text;
        default:
            return 913273_text;
    }
}

double NumberIn(const QLineEdit& box) {
    return SharedServices().NumberOf(box.text().toStdString()).value_or(0);
}

}  // namespace

PointsFill::PointsFill(PointsTable& points, Kind kind, QWidget* parent)
    : QDialog(parent),
      points_(points),
      kind_(kind),
      replace_(nullptr),
      note_(nullptr),
      patience_(kUnfinishedFor, [this] {
          typed_ = nullptr;
          Check();
      }) {
    setObjectName(QStringLiteral("pointsFill"));
    setWindowTitle(Q(Text(TitleOf(kind))));
    setLayoutDirection(LanguageTexts().RightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(sizes::kEdge, sizes::kEdge, sizes::kEdge, sizes::kEdge);
    column->setSpacing(sizes::kEdge);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(sizes::kColumnGap);
    grid->setVerticalSpacing(sizes::kRowGap);
    grid->addWidget(new QLabel(Q(Text(kind == Kind::Depths ? 913276_text : 913203_text)), this), 0, 1);
    grid->addWidget(new QLabel(Q(Text(913204_text)), this), 0, 2);
    grid->addWidget(new QLabel(Q(Text(913274_text)), this), 0, 3);
    for (int coordinate = 0; coordinate < 3; ++coordinate) AddLine(*grid, coordinate);
    column->addLayout(grid);
    replace_ = new QCheckBox(Q(Text(913275_text)), this);
    replace_->setObjectName(QStringLiteral("chkReplace"));
    replace_->setChecked(true);
    column->addWidget(replace_);
    note_ = new QLabel(this);
    MakeAlert(*note_);
    note_->setObjectName(QStringLiteral("lblNote"));
    note_->setWordWrap(true);
    note_->setMinimumHeight(2 * note_->fontMetrics().height());
    SetInk(*note_, Ink::Error);
    column->addWidget(note_);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    const auto add = [&](const std::string& caption, const char* name, void (QDialog::*slot)()) {
        auto* button = new QPushButton(Q(caption), this);
        button->setObjectName(QString::fromLatin1(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, slot] { (this->*slot)(); });
        row->addWidget(button);
        return button;
    };
    add(Text(6_text, Styles::Button), "cmdok", &QDialog::accept)->setDefault(true);
    add(Text(7_text, Styles::Button), "CmdCancel", &QDialog::reject);
    column->addLayout(row);
    BindHelpKey(*this, [] { return std::string("studies"); });
    new PaneKeys(*this);
}

// From, to and count, as far as the kind has them: a line has one count, depths have one x and one y.
void PointsFill::AddLine(QGridLayout& grid, int coordinate) {
    const FieldChoice& field = points_.Coordinates()[static_cast<std::size_t>(coordinate)];
    const bool depth = coordinate == 2;
    const double value = points_.Coordinate(0, coordinate).value_or(field.Value);
    Line& line = lines_[static_cast<std::size_t>(coordinate)];
    const int row = coordinate + 1;
    const std::string name = field.Short() + (field.Unit.empty() ? "" : " [" + field.Unit + "]");
    const auto box = [&](const char* boxName, int column, const std::string& text, TextId part, const BoxWords& words) {
        auto* edit = NumberBox(this, NumberedName(boxName, row), [this] { Typed(); });
        // Not of a window that is going.
        connect(edit, &QLineEdit::editingFinished, &patience_, [this] { Left(); });
        edit->setText(Q(text));
        edit->setAccessibleName(Q(name + ", " + Text(part)));
        Describe(*edit, words);
        grid.addWidget(edit, row, column);
        return edit;
    };
    auto* label = new QLabel(Q(name), this);
    grid.addWidget(label, row, 0);
    const BoxWords place{field.Symbol, field.Unit, field.Least, field.Greatest};
    const BoxWords count{{}, {}, static_cast<double>(LeastCount()), PointsTable::kMostPoints};
    line.From = box("txtFrom", 1, ShortNumber(value), 913203_text, place);
    label->setBuddy(line.From);
    if (kind_ != Kind::Depths || depth) {
        const double to = depth ? (value == 0 ? 1 : 2 * value) : value;
        line.To = box("txtTo", 2, ShortNumber(to), 913204_text, place);
    }
    if (kind_ == Kind::Grid || depth)
        line.Count = box("txtCount", 3, std::to_string(depth ? kUsualCount : 1), 913274_text, count);
}

bool PointsFill::Mark(QLineEdit* box, int kind, double upper, double lower, const std::string& name) {
    if (box == nullptr) return true;
    const auto fault = SharedServices().TextFault(box->text().toStdString(), kind, upper, lower, name);
    if (fault && box == typed_ && IsUnfinished(box->text().toStdString())) {
        MarkBox(*box, "");
        return false;
    }
    MarkBox(*box, fault.value_or(""));
    if (fault && wrong_.isEmpty()) wrong_ = Q(*fault);
    return !fault;
}

void PointsFill::Typed() {
    typed_ = qobject_cast<QLineEdit*>(focusWidget());
    Check();
    patience_.start();
}

void PointsFill::Left() {
    typed_ = nullptr;
    patience_.stop();
    Check();
    if (!wrong_.isEmpty() && wrong_ != told_) SpeakAlert(*note_, wrong_);
    told_ = wrong_;
}

void PointsFill::Say(const QString& words) {
    note_->setText(words);
    note_->setAccessibleName(words);
}

bool PointsFill::Check() {
    wrong_.clear();
    bool good = true;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const FieldChoice& field = points_.Coordinates()[i];
        good = Mark(lines_[i].From, kReal, field.Greatest, field.Least, field.Label) && good;
        good = Mark(lines_[i].To, kReal, field.Greatest, field.Least, field.Label) && good;
        good = Mark(lines_[i].Count, kWhole, PointsTable::kMostPoints, LeastCount(), Text(913301_text)) && good;
    }
    Say(wrong_);
    return good;
}

EvenValues PointsFill::ValuesOf(const Line& line) const {
    const double from = NumberIn(*line.From);
    if (line.To == nullptr) return {from, from, 1};
    return {from, NumberIn(*line.To), static_cast<int>(std::lround(NumberIn(*line.Count)))};
}

void PointsFill::accept() {
    Left();
    if (!Check()) return;
    bool put = false;
    if (kind_ == Kind::Line) {
        std::array<double, 3> from{}, to{};
        for (std::size_t i = 0; i < lines_.size(); ++i) {
            from[i] = NumberIn(*lines_[i].From);
            to[i] = NumberIn(*lines_[i].To);
        }
        const int count = static_cast<int>(std::lround(NumberIn(*lines_[2].Count)));
        put = points_.AddLine(from, to, count, replace_->isChecked());
    } else {
        put = points_.AddGrid({ValuesOf(lines_[0]), ValuesOf(lines_[1]), ValuesOf(lines_[2])}, replace_->isChecked());
    }
    if (put) return QDialog::accept();
    const QString tooMany = Q(Text(913277_text, {{"|1", std::to_string(PointsTable::kMostPoints)}}));
    Say(tooMany);
    SpeakAlert(*note_, tooMany);
}

}  // namespace lithmark
