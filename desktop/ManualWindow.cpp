#include "desktop/ManualWindow.h"

#include <QAbstractTextDocumentLayout>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

ManualWindow::ManualWindow(QWidget* parent, const std::string& topic)
    : QDialog(parent), browser_(new QTextBrowser(this)) {
    setObjectName(QStringLiteral("manualWindow"));
    setWindowTitle(Q(Text(160030_text)));
    // The manual is written in English.
    setLayoutDirection(Qt::LeftToRight);
    browser_->setObjectName(QStringLiteral("manualPage"));
    browser_->setOpenLinks(false);
    connect(browser_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        if (link.isRelative())
            Open(link.toString().replace(QStringLiteral(".md"), QString()).toStdString());
        else
            QDesktopServices::openUrl(link);
    });
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* ok = buttons->addButton(Q(Text(6_text, Style{1})), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdok"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->addWidget(browser_, 1);
    column->addWidget(buttons);
    resize(760, 560);
    Open(topic);
}

void ManualWindow::Open(const std::string& topic) {
    const std::size_t mark = topic.find('#');
    const std::string page = topic.substr(0, mark);
    section_ = mark == std::string::npos ? std::string() : topic.substr(mark + 1);
    if (!page.empty() && page != page_) {
        const std::string text = ManualPage(page);
        if (text.empty()) return;
        page_ = page;
        browser_->setMarkdown(Q(text));
    }
    ScrollToSection();
}

void ManualWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    // Only a shown page knows where its lines are.
    ScrollToSection();
}

void ManualWindow::ScrollToSection() {
    const QTextDocument& document = *browser_->document();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0 || block.text() != Q(section_)) continue;
        browser_->setTextCursor(QTextCursor(block));
        browser_->verticalScrollBar()->setValue(
            static_cast<int>(document.documentLayout()->blockBoundingRect(block).top()));
        return;
    }
    browser_->verticalScrollBar()->setValue(0);
}

}  // namespace lithmark
