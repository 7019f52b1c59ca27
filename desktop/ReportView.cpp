#include "desktop/ReportView.h"

#include <QFontDatabase>
#include <QTextBlock>
#include <QTextOption>

#include "render/DisplayLines.h"
#include "render/ReportLines.h"

namespace lithmark {

namespace {

constexpr int kLeastWidth = 420, kLeastHeight = 120;  // on a small screen

}  // namespace

ReportView::ReportView(QWidget* parent) : QPlainTextEdit(parent) {
    setReadOnly(true);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setMinimumSize(kLeastWidth, kLeastHeight);
}

void ReportView::ShowReport(const std::string& text, const std::string& fontName, bool rightToLeft) {
    if (text == shown_ && !document()->isEmpty()) return;
    shown_ = text;
    if (!fontName.empty()) {
        QFont font(QString::fromStdString(fontName));
        font.setStyleHint(QFont::Monospace);
        font.setPointSizeF(10);
        setFont(font);
    }
    std::string shown;
    for (const std::string& line : DisplayTexts(ReportLinesOf(text), rightToLeft)) shown += line + "\n";
    QTextOption option(rightToLeft ? Qt::AlignRight | Qt::AlignAbsolute : Qt::AlignLeft);
    option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    document()->setDefaultTextOption(option);
    setPlainText(QString::fromStdString(shown));
}

QSize ReportView::sizeHint() const {
    constexpr int kColumns = 66, kLines = 26;
    return {fontMetrics().averageCharWidth() * kColumns + 2 * frameWidth(), fontMetrics().lineSpacing() * kLines};
}

std::pair<int, int> ReportView::PlaceOf(const QString& text) const {
    int place = 0, all = 0;
    for (QTextCursor at = document()->find(text); !at.isNull(); at = document()->find(text, at)) {
        ++all;
        if (at.selectionStart() == textCursor().selectionStart() && textCursor().hasSelection()) place = all;
    }
    return {place, all};
}

bool ReportView::FindNext(const QString& text, bool backwards) {
    const QTextDocument::FindFlags flags = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (find(text, flags)) return true;
    QTextCursor start = textCursor();
    const QTextCursor before = start;
    start.movePosition(backwards ? QTextCursor::End : QTextCursor::Start);
    setTextCursor(start);
    if (find(text, flags)) return true;
    setTextCursor(before);
    return false;
}

bool ReportView::FindHere(const QString& text) {
    QTextCursor here = textCursor();
    here.setPosition(here.selectionStart());
    setTextCursor(here);
    return !text.isEmpty() && FindNext(text);
}

}  // namespace lithmark
