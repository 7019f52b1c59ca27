#include "desktop/answer/AnswerList.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "desktop/Sizes.h"
#include "desktop/answer/StateMark.h"
#include "desktop/answer/SymbolPainter.h"
#include "render/QtText.h"
#include "render/drawings/Inks.h"
#include "render/drawings/Symbols.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

enum Role { kSymbolRole = Qt::UserRole, kNow, kKept, kChange, kUnitRole, kQuiet };
constexpr int kCellPad = 4, kLinesShown = 6;

QString Plain(QString unit) {
    return unit.remove(QLatin1Char('[')).remove(QLatin1Char(']'));
}

// "σ z, 63.5 kN/m²"
QString InWords(const AnswerValue& value) {
    const QString unit = Plain(Q(value.Unit));
    QString words =
        SymbolWords(value.Symbol).replace(QLatin1Char('_'), QLatin1Char(' ')) + QStringLiteral(", ") + Q(value.Text);
    if (unit != QLatin1String("-")) words += QLatin1Char(' ') + unit;
    return words;
}

// A line and the head, in the same columns.
void PaintCells(QPainter& painter, const QRect& line, const AnswerColumns& columns, Qt::LayoutDirection direction,
                const std::function<void(Role, const QRect&)>& cell) {
    int at = line.left() + kCellPad;
    for (const auto& [role, width] :
         {std::pair(kSymbolRole, columns.Symbol), std::pair(kNow, columns.Now), std::pair(kKept, columns.Kept),
          std::pair(kChange, columns.Change), std::pair(kUnitRole, columns.Unit)}) {
        if (width == 0) continue;
        const QRect place(at, line.top(), width, line.height());
        cell(role, QStyle::visualRect(direction, line, place).adjusted(kCellPad, 0, -kCellPad, 0));
        at += width;
    }
    painter.setPen(Qt::NoPen);
}

class LinePainter : public QStyledItemDelegate {
  public:
    explicit LinePainter(AnswerList* list) : QStyledItemDelegate(list), list_(*list) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const bool chosen = option.state.testFlag(QStyle::State_Selected);
        const Theme theme = ThemeOf(option.palette);
        if (chosen) painter->fillRect(option.rect, ColourOf(Ink::Selection, theme));
        const QColor ink = ColourOf(chosen                        ? Ink::OnSelection
                                    : index.data(kQuiet).toBool() ? Ink::Quiet
                                                                  : Ink::Text,
                                    theme);
        const QColor quiet = chosen ? ink : ColourOf(Ink::Quiet, theme);
        painter->setFont(option.font);
        PaintCells(*painter, option.rect, list_.Columns(), option.direction, [&](Role role, const QRect& place) {
            painter->setPen(role == kKept || role == kUnitRole ? quiet : ink);
            // A number runs from left to right in every language: its sign stands before it.
            painter->setLayoutDirection(role == kUnitRole ? option.direction : Qt::LeftToRight);
            const QString text = index.data(role).toString();
            if (role == kSymbolRole)
                PaintSymbol(*painter, place, text.toStdString(),
                            option.direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft);
            else if (role == kUnitRole)
                painter->drawText(place, Qt::AlignVCenter | Qt::AlignLeading, text);
            else
                painter->drawText(place, Qt::AlignVCenter | Qt::AlignRight | Qt::AlignAbsolute, text);
        });
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {0, std::max(option.fontMetrics.height() + kCellPad, sizes::kClicked - kCellPad)};
    }

  private:
    const AnswerList& list_;
};

// The words above the columns, which stay while the lines scroll. Values that are not of the present input are called
// former ones, whatever is told of the present one.
class AnswerHead : public QWidget {
  public:
    explicit AnswerHead(AnswerList* list) : QWidget(list), list_(*list) { setObjectName(QStringLiteral("answerHead")); }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QColor quiet = ColourOf(Ink::Quiet, ThemeOf(palette()));
        PaintCells(painter, rect(), list_.Columns(), layoutDirection(), [&](Role role, const QRect& place) {
            painter.setPen(quiet);
            if (role == kSymbolRole && !list_.Present()) PaintClock(painter, place, quiet);
            const QString text = role == kKept              ? Q(Text(913003_text))
                                 : role != kNow             ? QString()
                                 : !list_.Present()         ? Q(Text(913650_text))
                                 : list_.Columns().Kept > 0 ? Q(Text(913001_text))
                                                            : QString();
            painter.drawText(place, Qt::AlignVCenter | Qt::AlignRight | Qt::AlignAbsolute, text);
        });
    }

  private:
    void PaintClock(QPainter& painter, const QRect& place, const QColor& ink) const {
        const QPixmap clock = PixmapOf(StateMark::Clock, ink, kMarkSize, devicePixelRatioF());
        QRect sign(0, 0, kMarkSize, kMarkSize);
        sign.moveCenter(place.center());
        if (layoutDirection() == Qt::RightToLeft)
            sign.moveRight(place.right());
        else
            sign.moveLeft(place.left());
        painter.drawPixmap(sign, clock);
    }

    const AnswerList& list_;
};

}  // namespace

AnswerList::AnswerList(QWidget* parent) : QListWidget(parent), head_(new AnswerHead(this)) {
    setObjectName(QStringLiteral("answerValues"));
    setItemDelegate(new LinePainter(this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
    setFrameShape(QFrame::NoFrame);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setAccessibleName(Q(Text(913000_text)));
}

void AnswerList::ShowAnswer(const Answer* answer, const Answer* kept, bool present, bool all) {
    present_ = present;
    std::vector<const AnswerValue*> lines;
    if (answer != nullptr)
        for (const AnswerValue& value : answer->Values)
            if (value.Main || all) lines.push_back(&value);
    while (count() > static_cast<int>(lines.size())) delete takeItem(count() - 1);
    while (count() < static_cast<int>(lines.size())) addItem(new QListWidgetItem);
    for (int i = 0; i < count(); ++i) {
        const AnswerValue& value = *lines[static_cast<std::size_t>(i)];
        const AnswerValue* before = kept != nullptr ? kept->Find(value.Symbol) : nullptr;
        QListWidgetItem& line = *item(i);
        line.setData(kSymbolRole, Q(value.Symbol));
        line.setData(kNow, Q(value.Text));
        line.setData(kUnitRole, value.Unit == "[-]" ? QString() : Q(value.Unit));
        line.setData(kQuiet, !present);
        line.setData(kKept, before != nullptr ? Q(before->Text) : QString());
        line.setData(kChange, before != nullptr ? Q(DifferenceText(value, *before)) : QString());
        const std::string fine = FineText(value);
        line.setToolTip(Q(value.Label) + (fine.empty() ? QString() : QStringLiteral(": ") + Q(fine)));
        QString words = InWords(value);
        if (before != nullptr)
            words +=
                Q(Text(913032_text, {{"|1", before->Text}})) + QStringLiteral(", ") + Q(DifferenceText(value, *before));
        if (!present) words += QStringLiteral(", ") + Q(Text(913002_text));
        line.setData(Qt::AccessibleTextRole, words);
        line.setData(Qt::AccessibleDescriptionRole, line.toolTip());
    }
    head_->setAccessibleName(Present() ? QString() : Q(Text(913002_text)));
    FitColumns();
    updateGeometry();
    viewport()->update();
    head_->update();
}

QString AnswerList::Words() const {
    QStringList words;
    for (int i = 0; i < count(); ++i) words.append(item(i)->data(Qt::AccessibleTextRole).toString());
    return words.join(QStringLiteral("; "));
}

void AnswerList::FitColumns() {
    const QFontMetrics metrics(font());
    const auto widest = [&](Role role, int least) {
        int width = least;
        for (int i = 0; i < count(); ++i) {
            const QString text = item(i)->data(role).toString();
            const int wide =
                role == kSymbolRole ? SymbolWidth(font(), text.toStdString()) : metrics.horizontalAdvance(text);
            width = std::max(width, wide + 2 * kCellPad);
        }
        return width;
    };
    bool kept = false;
    for (int i = 0; i < count(); ++i) kept = kept || !item(i)->data(kKept).toString().isEmpty();
    const auto headed = [&](TextId head) { return metrics.horizontalAdvance(Q(Text(head))) + 2 * kCellPad; };
    columns_.Symbol = widest(kSymbolRole, sizes::kSymbolWidth);
    columns_.Now = widest(kNow, std::max({metrics.horizontalAdvance(QStringLiteral("-0000.00")), headed(913001_text),
                                          headed(913650_text)}));
    columns_.Kept = kept ? widest(kKept, headed(913003_text)) : 0;
    columns_.Change = kept ? widest(kChange, metrics.horizontalAdvance(QStringLiteral("+10.0 %")) + 2 * kCellPad) : 0;
    columns_.Unit = widest(kUnitRole, 0);
    PlaceHead();
}

void AnswerList::PlaceHead() {
    const int height = QFontMetrics(font()).height() + kCellPad;
    setViewportMargins(0, height, 0, 0);
    head_->setGeometry(QRect(viewport()->x(), viewport()->y() - height, viewport()->width(), height));
}

void AnswerList::changeEvent(QEvent* event) {
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) FitColumns();
}

void AnswerList::resizeEvent(QResizeEvent* event) {
    QListWidget::resizeEvent(event);
    PlaceHead();
}

// The main lines of any problem; more of them scroll where there is no room.
QSize AnswerList::sizeHint() const {
    const int line = count() > 0 ? sizeHintForRow(0) : sizes::kClicked;
    const int lines = std::max(count(), kLinesShown);
    return {sizes::kAnswerWidth, (lines + 1) * line + 2 * kCellPad};
}

QSize AnswerList::minimumSizeHint() const {
    const int line = count() > 0 ? sizeHintForRow(0) : sizes::kClicked;
    return {sizes::kAnswerWidth - 2 * sizes::kGroupPad, 3 * line};
}

}  // namespace lithmark
