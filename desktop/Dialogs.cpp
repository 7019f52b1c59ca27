#include "desktop/Dialogs.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <algorithm>

#include "core/Session.h"
#include "desktop/CellWords.h"
#include "desktop/ChosenPath.h"
#include "desktop/FindBar.h"
#include "desktop/Icons.h"
#include "desktop/KeptSize.h"
#include "desktop/ManualTopics.h"
#include "desktop/ManualWindow.h"
#include "desktop/PaneKeys.h"
#include "desktop/ReportView.h"
#include "files/CommonStep.h"
#include "files/ProjectGlance.h"
#include "render/QtText.h"
#include "render/ReportPaper.h"
#include "services/SharedServices.h"
#include "services/storage/ReadFile.h"
#include "services/storage/UserFolders.h"
#include "services/storage/WrittenFile.h"
#include "services/texts/LanguageTexts.h"
#include "ui/frame/StartPage.h"

namespace lithmark {

namespace {

// A dialog with a column for its content and buttons under it.
class PlainDialog : public QDialog {
  public:
    PlainDialog(QWidget* parent, const QString& title, bool cancel, TextId ok = 6_text)
        : QDialog(parent), Content(new QVBoxLayout), cancel_(cancel), ok_(ok) {
        setWindowTitle(title);
        setLayoutDirection(LanguageTexts().RightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        auto* column = new QVBoxLayout(this);
        column->addLayout(Content, 1);
        BindHelpKey(*this, TopicOfProblem);
        new PaneKeys(*this);
    }
    QVBoxLayout* const Content;

    // The buttons are made behind the content, as the Tab key goes.
    bool Run() {
        auto* buttons = new QDialogButtonBox(this);
        QPushButton* ok = buttons->addButton(Q(Text(ok_, Styles::Button)), QDialogButtonBox::AcceptRole);
        ok->setDefault(true);
        ok->setObjectName(QStringLiteral("cmdok"));
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        if (cancel_) {
            buttons->addButton(Q(Text(7_text, Styles::Button)), QDialogButtonBox::RejectRole);
            connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        }
        layout()->addWidget(buttons);
        return exec() == QDialog::Accepted;
    }

  private:
    const bool cancel_;
    const TextId ok_;
};

// The line of the company's logo: the file that is in force or chosen, and buttons to choose and to remove it.
class LogoRow : public QWidget {
  public:
    explicit LogoRow(QWidget* parent) : QWidget(parent), file_(Q(LogoFileIn(Session.ProgramDir))) {
        auto* row = new QHBoxLayout(this);
        row->setContentsMargins(0, 0, 0, 0);
        shown_ = new QLineEdit(this);
        shown_->setObjectName(QStringLiteral("txtLogo"));
        shown_->setReadOnly(true);
        shown_->setAccessibleName(Q(Text(911005_text)));
        row->addWidget(shown_, 1);
        const auto add = [&](TextId caption, const char* name, auto&& slot) {
            auto* button = new QPushButton(Q(Text(caption)), this);
            button->setObjectName(QString::fromLatin1(name));
            button->setAutoDefault(false);
            connect(button, &QPushButton::clicked, this, slot);
            row->addWidget(button);
        };
        add(911006_text, "cmdChooseLogo", [this] {
            QFileDialog files(this, Q(Text(911005_text)), {},
                              QStringLiteral("PNG, JPEG, SVG (*.png *.jpg *.jpeg *.svg)"));
            files.setFileMode(QFileDialog::ExistingFile);
            const QString chosen = ChosenPath(files);
            if (chosen.isEmpty()) return;
            if (LogoSize(chosen.toStdString()).isEmpty())
                SharedServices().ShowMessageBox(Text(160030_text), Text(911301_text, {{"|1", chosen.toStdString()}}),
                                                MessageIcon::Exclamation);
            else
                Choose(chosen);
        });
        add(911007_text, "cmdRemoveLogo", [this] { Choose({}); });
        Choose(file_);
    }

    // The chosen picture takes the place of the one in the settings' folder.
    void Store() const {
        const QString old = Q(LogoFileIn(Session.ProgramDir));
        if (file_ == old) return;
        UnderCommonStep([&] {
            constexpr std::uint64_t kMostBytes = 4u << 20;
            const std::string picture =
                file_.isEmpty() ? std::string() : ReadWholeFile(file_.toStdString(), kMostBytes);
            const std::string path = Session.ProgramDir + "Logo." + QFileInfo(file_).suffix().toLower().toStdString();
            MakeSettingsDir(Session.ProgramDir);
            if (!file_.isEmpty()) WriteWholeFile(path, picture);
            // The old one goes once the new one stands.
            if (!old.isEmpty() && (file_.isEmpty() || old != Q(path))) QFile::remove(old);
        });
    }

  private:
    void Choose(const QString& file) {
        file_ = file;
        shown_->setText(QFileInfo(file).fileName());
    }

    QString file_;
    QLineEdit* shown_;
};

}  // namespace

void ShowTextWindow(QWidget* parent, const QString& title, const QString& text) {
    PlainDialog dialog(parent, title, false);
    dialog.setObjectName(QStringLiteral("helpWindow"));
    auto* label = new QLabel(text.trimmed(), &dialog);
    // The lines are as their author broke them; only a very long one is broken again.
    const bool wide = label->sizeHint().width() > 700;
    label->setWordWrap(wide);
    label->setMinimumWidth(wide ? 560 : std::max(320, label->sizeHint().width()));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    dialog.Content->addWidget(label);
    dialog.Run();
}

std::string ShowManual(QWidget* parent, const QString& topic, bool opensExamples) {
    const std::string page = PageOfTopic(topic.toStdString());
    ManualWindow window(parent, page.empty() ? PageOfTopic("Titel") : page, opensExamples);
    window.exec();
    return window.Example();
}

std::optional<CompanyLines> AskCompanyLines(QWidget* parent, const CompanyLines& lines) {
    PlainDialog dialog(parent, Q(Text(140116_text)), true);
    dialog.setObjectName(QStringLiteral("companyLines"));
    auto* form = new QFormLayout;
    auto* line1 = new QLineEdit(Q(lines.Line1), &dialog);
    auto* line2 = new QLineEdit(Q(lines.Line2), &dialog);
    line1->setObjectName(QStringLiteral("txtFirma1"));
    line2->setObjectName(QStringLiteral("txtFirma2"));
    line1->setMinimumWidth(360);
    form->addRow(Q(Text(903007_text)), line1);
    form->addRow(Q(Text(903008_text)), line2);
    line1->setFocus();
    line1->selectAll();
    auto* logo = new LogoRow(&dialog);
    form->addRow(Q(Text(911005_text)), logo);
    dialog.Content->addLayout(form);
    if (!dialog.Run()) return std::nullopt;
    logo->Store();
    return CompanyLines{line1->text().toStdString(), line2->text().toStdString()};
}

std::optional<Language> AskLanguage(QWidget* parent, Language current) {
    PlainDialog dialog(parent, Q(Text(83_text)), true);
    dialog.setObjectName(QStringLiteral("languageDialog"));
    // Each language calls itself by its own name.
    const std::pair<Language, QString> languages[] = {{Language::German, QStringLiteral("Deutsch")},
                                                      {Language::English, QStringLiteral("English")},
                                                      {Language::Arabic, QStringLiteral("العربية")}};
    std::vector<QRadioButton*> options;
    for (const auto& [language, name] : languages) {
        auto* option = new QRadioButton(name, &dialog);
        option->setChecked(language == current);
        options.push_back(option);
        dialog.Content->addWidget(option);
        if (language == current) option->setFocus();
    }
    auto* note = new QLabel(Q(Text(903009_text)), &dialog);
    note->setWordWrap(true);
    note->setMinimumWidth(360);
    dialog.Content->addSpacing(8);
    dialog.Content->addWidget(note);
    if (!dialog.Run()) return std::nullopt;
    for (std::size_t i = 0; i < options.size(); ++i)
        if (options[i]->isChecked()) return languages[i].first;
    return std::nullopt;
}

QString ShowFilesOfFolder(QWidget* parent, const QString& folder, const QString& extension) {
    PlainDialog dialog(parent, folder, true, 913507_text);
    dialog.setObjectName(QStringLiteral("fileListWindow"));
    const QFileInfoList files =
        QDir(folder).entryInfoList({QStringLiteral("*.") + extension}, QDir::Files, QDir::Name | QDir::IgnoreCase);
    auto* table = new QTableWidget(static_cast<int>(files.size()), 4, &dialog);
    table->setObjectName(QStringLiteral("fileList"));
    table->setAccessibleName(folder);
    table->setHorizontalHeaderLabels(
        {Q(Text(903010_text)), Q(Text(913506_text)), Q(Text(11_text)), Q(Text(903012_text))});
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    for (int row = 0; row < table->rowCount(); ++row) {
        const QFileInfo& file = files[row];
        const ProjectGlance glance = GlanceAt(file.filePath().toStdString());
        auto* name = new QTableWidgetItem(IconOfProblem(glance.ProblemType), file.fileName());
        name->setToolTip(QString::number(file.size()) + QLatin1Char(' ') + Q(Text(903011_text)));
        table->setItem(row, 0, name);
        table->setItem(row, 1, new QTableWidgetItem(Q(ProblemInShort(glance.ProblemType))));
        table->setItem(row, 2, new QTableWidgetItem(Q(glance.Order)));
        table->setItem(row, 3, new QTableWidgetItem(Q(glance.Changed)));
    }
    SayCells(*table);
    table->resizeColumnsToContents();
    table->horizontalHeader()->setStretchLastSection(true);
    table->setMinimumSize(640, 320);
    dialog.Content->addWidget(table);
    QObject::connect(table, &QTableWidget::cellDoubleClicked, &dialog, &QDialog::accept);
    table->setCurrentCell(0, 0);
    table->setFocus();
    KeepSize(dialog);
    if (!dialog.Run() || table->currentRow() < 0) return {};
    return files[table->currentRow()].filePath();
}

void ShowReportWindow(QWidget* parent, const std::string& report) {
    PlainDialog dialog(parent, Q(Text(160030_text)), false);
    auto* find = new FindBar(&dialog);
    auto* view = new ReportView(&dialog);
    find->LookIn(*view);
    view->setAccessibleName(dialog.windowTitle());
    view->ShowReport(report, Text(160017_text), LanguageTexts().RightToLeft());
    dialog.Content->addWidget(find);
    dialog.Content->addWidget(view, 1);
    dialog.resize(760, 700);
    dialog.setObjectName(QStringLiteral("reportWindow"));
    KeepSize(dialog);
    dialog.Run();
}

}  // namespace lithmark
