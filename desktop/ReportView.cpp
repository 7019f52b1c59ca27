#include "desktop/ReportView.h"

#include <QFontDatabase>
#include <QTextBlock>
#include <QTextOption>

#include "render/DisplayLines.h"
#include "render/ReportLines.h"

namespace lithmark {

ReportView::ReportView(QWidget* parent) : QPlainTextEdit(parent) {
    setReadOnly(true);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setMinimumSize(560, 420);
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

}  // namespace lithmark
