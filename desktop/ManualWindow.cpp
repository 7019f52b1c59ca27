#include "desktop/ManualWindow.h"

#include <QAbstractTextDocumentLayout>
#include <QDialogButtonBox>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSvgRenderer>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextFrame>
#include <QTextTable>
#include <QVBoxLayout>

#include "desktop/KeptSize.h"
#include "desktop/ManualTopics.h"
#include "render/QtText.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// Shows the pictures that the program brings along.
class ManualBrowser : public QTextBrowser {
  public:
    using QTextBrowser::QTextBrowser;
    std::string Page;

    QVariant loadResource(int type, const QUrl& name) override {
        const std::string picture = PageOfLink(Page, name.toString().toStdString());
        if (type != QTextDocument::ImageResource || picture.empty()) return QTextBrowser::loadResource(type, name);
        QSvgRenderer drawing(QByteArray::fromStdString(ManualPage(picture)));
        QImage image(drawing.defaultSize() * devicePixelRatio(), QImage::Format_RGB32);
        image.setDevicePixelRatio(devicePixelRatio());
        // Black lines stand on paper, whatever the window's colours are.
        image.fill(Qt::white);
        QPainter painter(&image);
        drawing.render(&painter, QRectF(QPointF(), QSizeF(drawing.defaultSize())));
        return image;
    }
};

void FormatTable(QTextTable& table, const QPalette& palette, Qt::LayoutDirection direction) {
    QTextTableFormat format = table.format();
    format.setBorder(1);
    format.setBorderCollapse(true);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(palette.brush(QPalette::Mid));
    format.setCellPadding(4);
    format.setCellSpacing(0);
    format.setLayoutDirection(direction);
    format.setTopMargin(4);
    format.setBottomMargin(8);
    table.setFormat(format);
    // A block that follows a quotation keeps its margins into the first cell; a cell has none.
    for (int row = 0; row < table.rows(); ++row)
        for (int column = 0; column < table.columns(); ++column) {
            QTextCursor cursor = table.cellAt(row, column).firstCursorPosition();
            QTextBlockFormat plain;
            plain.setAlignment(cursor.blockFormat().alignment());
            cursor.setBlockFormat(plain);
            if (row > 0) continue;
            QTextCharFormat head;
            head.setFontWeight(QFont::DemiBold);
            cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
            cursor.mergeCharFormat(head);
        }
}

void FormatTables(QTextFrame& frame, const QPalette& palette, Qt::LayoutDirection direction) {
    for (QTextFrame* child : frame.childFrames()) {
        if (auto* table = qobject_cast<QTextTable*>(child)) FormatTable(*table, palette, direction);
        FormatTables(*child, palette, direction);
    }
}

// Headings keep a distance from what stands above them, and begin where the page's lines do, whatever their letters.
void PlaceHeadings(QTextDocument& document, Qt::LayoutDirection direction) {
    for (QTextBlock block = document.begin().next(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0) continue;
        QTextBlockFormat space;
        space.setTopMargin(18);
        space.setBottomMargin(4);
        space.setLayoutDirection(direction);
        QTextCursor(block).mergeBlockFormat(space);
    }
}

// A heading by its own text, by its number ("4: ..."), or as links name it: small letters, blanks as "-", no signs.
bool IsSection(const QString& heading, const QString& section) {
    QString link;
    for (const QChar c : heading.toLower())
        if (c.isLetterOrNumber() || c == QLatin1Char('-') || c == QLatin1Char('_'))
            link += c;
        else if (c == QLatin1Char(' '))
            link += QLatin1Char('-');
    return heading == section || link == section || heading.startsWith(section + QLatin1Char(':'));
}

}  // namespace

ManualWindow::ManualWindow(QWidget* parent, const std::string& page, bool opensExamples)
    : QDialog(parent), browser_(new ManualBrowser(this)), opensExamples_(opensExamples) {
    setObjectName(QStringLiteral("manualWindow"));
    setWindowTitle(Q(Text(160030_text)));
    browser_->setObjectName(QStringLiteral("manualPage"));
    browser_->setAccessibleName(windowTitle());
    browser_->setOpenLinks(false);
    connect(browser_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { Follow(link.toString().toStdString()); });
    auto* buttons = new QDialogButtonBox(this);
    back_ = buttons->addButton(Q(Text(913654_text, Styles::Button)), QDialogButtonBox::ActionRole);
    back_->setObjectName(QStringLiteral("cmdBack"));
    back_->setAutoDefault(false);
    back_->setEnabled(false);
    back_->setToolTip(QKeySequence(QKeySequence::Back).toString(QKeySequence::NativeText));
    connect(back_, &QPushButton::clicked, this, [this] { GoBack(); });
    for (const QKeySequence& keys : {QKeySequence(QKeySequence::Back), QKeySequence(Qt::Key_Backspace)})
        connect(new QShortcut(keys, this), &QShortcut::activated, back_, &QPushButton::click);
    QPushButton* ok = buttons->addButton(Q(Text(6_text, Styles::Button)), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdok"));
    ok->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->addWidget(browser_, 1);
    column->addWidget(buttons);
    resize(860, 640);
    KeepSize(*this);
    Open(page);
}

void ManualWindow::Follow(const std::string& link) {
    if (const std::string page = PageOfLink(page_, link); !page.empty()) {
        former_.push_back({page_, browser_->verticalScrollBar()->value()});
        back_->setEnabled(true);
        return Open(page);
    }
    const std::string example = ExampleOfLink(page_, link);
    if (example.empty()) return;
    if (!opensExamples_)
        return SharedServices().ShowMessageBox(Text(160030_text), Text(911302_text, {{"|1", example}}),
                                               MessageIcon::Information);
    example_ = example;
    accept();
}

void ManualWindow::Open(const std::string& page) {
    const std::size_t mark = page.find('#');
    const std::string name = page.substr(0, mark);
    section_ = mark == std::string::npos ? std::string() : page.substr(mark + 1);
    if (name != page_) {
        page_ = name;
        // Arabic pages run the other way.
        const auto direction = name.starts_with("manual/ar/") ? Qt::RightToLeft : Qt::LeftToRight;
        browser_->setLayoutDirection(direction);
        static_cast<ManualBrowser*>(browser_)->Page = name;
        browser_->setMarkdown(Q(ShownPage(name)));
        browser_->document()->setDocumentMargin(12);
        FormatTables(*browser_->document()->rootFrame(), palette(), direction);
        PlaceHeadings(*browser_->document(), direction);
    }
    ScrollToSection();
}

void ManualWindow::GoBack() {
    if (former_.empty()) return;
    const Former to = former_.back();
    former_.pop_back();
    Open(to.Page);
    browser_->verticalScrollBar()->setValue(to.Scrolled);
    back_->setEnabled(!former_.empty());
    // A button that goes off takes the focus with it.
    if (former_.empty()) browser_->setFocus();
}

void ManualWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    // Only a shown page knows where its lines are.
    ScrollToSection();
}

void ManualWindow::ScrollToSection() {
    const QTextDocument& document = *browser_->document();
    for (QTextBlock block = document.begin(); block.isValid() && !section_.empty(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0 || !IsSection(block.text(), Q(section_))) continue;
        browser_->setTextCursor(QTextCursor(block));
        browser_->verticalScrollBar()->setValue(
            static_cast<int>(document.documentLayout()->blockBoundingRect(block).top()));
        return;
    }
    browser_->verticalScrollBar()->setValue(0);
}

}  // namespace lithmark
