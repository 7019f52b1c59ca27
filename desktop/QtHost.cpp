#include "desktop/QtHost.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QProcess>
#include <QProgressDialog>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <QUrl>
#include <limits>

#include "desktop/ChartWindow.h"
#include "desktop/ChosenPath.h"
#include "desktop/Dialogs.h"
#include "desktop/DocumentChoices.h"
#include "desktop/FormView.h"
#include "desktop/Printing.h"
#include "desktop/SaveReport.h"
#include "desktop/SplashView.h"
#include "desktop/TableEditorDialog.h"
#include "desktop/Toast.h"
#include "render/QtText.h"
#include "render/ReportDocument.h"
#include "services/storage/WrittenFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// Runs a dialog and gives back the pointer that a long run may have set.
class PlainPointer {
  public:
    PlainPointer() : hourglass_(QApplication::overrideCursor() != nullptr) {
        if (hourglass_) QApplication::restoreOverrideCursor();
    }
    ~PlainPointer() {
        if (hourglass_) QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    PlainPointer(const PlainPointer&) = delete;
    PlainPointer& operator=(const PlainPointer&) = delete;

  private:
    bool hourglass_;
};

// The path of a new file for another program, in a folder of its own that no other user can look into.
std::string HandOverFile(const std::string& name) {
    QTemporaryDir folder(QDir::temp().filePath(QStringLiteral("lithmark-XXXXXX")));
    if (!folder.isValid()) FailInFile(FailureKind::WriteError, folder.path().toStdString());
    folder.setAutoRemove(false);
    return folder.filePath(Q(name)).toStdString();
}

// Whether the desktop has a program for the document. One that cannot be asked is taken to have one.
bool HasWordProcessor() {
    constexpr int kPatience = 3000;  // milliseconds
    const QString asks = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (asks.isEmpty()) return true;
    for (const char* type : {"application/rtf", "text/rtf"}) {
        QProcess question;
        question.start(asks, {QStringLiteral("query"), QStringLiteral("default"), QString::fromLatin1(type)});
        if (!question.waitForFinished(kPatience)) return true;
        if (!question.readAllStandardOutput().trimmed().isEmpty()) return true;
    }
    return false;
}

std::optional<std::string> Chosen(QFileDialog& dialog) {
    const QString path = ChosenPath(dialog);
    if (path.isEmpty()) return std::nullopt;
    return path.toStdString();
}

}  // namespace

QtHost::QtHost() = default;
QtHost::~QtHost() = default;

QWidget* QtHost::Parent() const {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    return frame_;
}

void QtHost::ShowMessage(const std::string& title, const std::string& text, MessageIcon icon) {
    EndProgress();
    FormView::RefreshAll();
    // A failed run leaves the hourglass; nobody can work under it once its message is read.
    SetPointer(PointerShape::Default);
    QMessageBox box(Parent());
    box.setObjectName(QStringLiteral("messageBox"));
    box.setWindowTitle(Q(title.empty() ? Text(160030_text) : title));
    box.setTextFormat(Qt::PlainText);  // what users typed and called their files is no markup
    box.setText(Q(text));
    box.setLayoutDirection(LanguageTexts().RightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    box.setIcon(icon == MessageIcon::Information   ? QMessageBox::Information
                : icon == MessageIcon::Exclamation ? QMessageBox::Warning
                : icon == MessageIcon::Critical    ? QMessageBox::Critical
                                                   : QMessageBox::NoIcon);
    box.addButton(Q(Text(6_text, Styles::Button)), QMessageBox::AcceptRole);
    box.exec();
}

bool QtHost::AskYesNo(const std::string& title, const std::string& text) {
    const PlainPointer plain;
    QMessageBox box(Parent());
    box.setObjectName(QStringLiteral("questionBox"));
    box.setWindowTitle(Q(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(Q(text));
    box.setLayoutDirection(LanguageTexts().RightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    box.setIcon(QMessageBox::Question);
    QAbstractButton* yes = box.addButton(Q(Text(903001_text, Styles::Button)), QMessageBox::YesRole);
    yes->setObjectName(QStringLiteral("cmdYes"));
    box.addButton(Q(Text(903002_text, Styles::Button)), QMessageBox::NoRole)->setObjectName(QStringLiteral("cmdNo"));
    box.setDefaultButton(qobject_cast<QPushButton*>(yes));
    box.exec();
    return box.clickedButton() == yes;
}

void QtHost::SetPointer(PointerShape shape) {
    const bool hourglass = shape == PointerShape::Hourglass;
    if (!hourglass) EndProgress();
    if (hourglass == hourglass_) return;
    hourglass_ = hourglass;
    if (hourglass)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void QtHost::ShowFileStatus(FileStatus status) {
    if (!StatusNotice) return;
    StatusNotice(status == FileStatus::Reading   ? Q(Text(903003_text))
                 : status == FileStatus::Writing ? Q(Text(903004_text))
                                                 : QString());
}

// The bar comes only for runs that take long enough to be waited for. The windows are painted all the while, but until
// the bar is there no key and no click may begin anything else.
bool QtHost::Progress(double fraction) {
    constexpr int kWhole = 1000;
    constexpr qint64 kPatience = 700;  // milliseconds
    if (!progress_) {
        progress_ = std::make_unique<QProgressDialog>(Q(Text(903005_text)), Q(Text(7_text)), 0, kWhole, Parent());
        progress_->setObjectName(QStringLiteral("progress"));
        progress_->setLayoutDirection(LanguageTexts().RightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        progress_->setWindowModality(Qt::ApplicationModal);
        progress_->setWindowTitle(Q(Text(160030_text)));
        progress_->setMinimumDuration(std::numeric_limits<int>::max());
        progress_->setAutoClose(false);
        progress_->setAutoReset(false);
        progressSince_.start();
    }
    progress_->setValue(static_cast<int>(fraction * kWhole));
    if (!progress_->isVisible() && !progress_->wasCanceled() && progressSince_.elapsed() >= kPatience)
        progress_->show();
    QApplication::processEvents(progress_->isVisible() ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
    return !progress_->wasCanceled();
}

void QtHost::EndProgress() {
    progress_.reset();
}

void QtHost::ShowForm(Form& form) {
    const PlainPointer plain;
    form.Reopen();
    form.Load();
    if (form.Unloaded()) return;
    FormView::RefreshAll();
    FormView view(form, Parent());
    view.RunModal();
    if (!form.Unloaded()) form.Unload();
}

void QtHost::ShowSplash(Form& form) {
    splash_ = std::make_unique<SplashView>(form);
    splash_->show();
    RunEvents();
}

void QtHost::CloseSplash(Form&) {
    splash_.reset();
}

void QtHost::RunEvents() {
    QApplication::processEvents(QEventLoop::AllEvents, 20);
    QThread::msleep(2);
}

void QtHost::SetFocus(Form& form, Control& control) {
    form.Focus = &control;
    if (FormView* view = FormView::Of(form)) view->FocusOn(control);
}

void QtHost::ShowHelpText(const std::string& title, const std::string& text) {
    ShowTextWindow(Parent(), Q(title), Q(text).replace(QLatin1Char('\r'), QLatin1Char('\n')));
}

void QtHost::ShowHelpTopic(const std::string& topic) {
    // An example takes the place of the open project, which a dialog still works on.
    const bool opensExamples = OpenExample && QApplication::activeModalWidget() == nullptr;
    const std::string example = ShowManual(Parent(), Q(topic), opensExamples);
    if (!example.empty()) OpenExample(example);
}

std::optional<std::string> QtHost::ChooseFileToOpen(const std::string& title, const std::string& startDir,
                                                    const std::string& pattern) {
    const PlainPointer plain;
    // Letter case does not tell files apart: "*.po3" is found as well.
    const QString filter = Q(pattern) + QLatin1Char(' ') + Q(pattern).toLower();
    QFileDialog dialog(Parent(), Q(title), Q(startDir), filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Chosen(dialog);
}

std::optional<std::string> QtHost::ChooseFileToSave(const std::string& title, const std::string& startDir,
                                                    const std::string& name, const std::string& extension) {
    const PlainPointer plain;
    QFileDialog dialog(Parent(), Q(title), Q(startDir), QStringLiteral("*.") + Q(extension));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    // A name without its ending is the file with it: the question before an old file is replaced must name that one.
    dialog.setDefaultSuffix(Q(extension));
    if (!name.empty()) dialog.selectFile(Q(name));
    return Chosen(dialog);
}

std::optional<std::string> QtHost::BrowseFolder(const std::string& start) {
    QFileDialog dialog(Parent(), Q(Text(140161_text)), Q(start));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return Chosen(dialog);
}

std::optional<CompanyLines> QtHost::EditCompanyLines(const CompanyLines& lines) {
    return AskCompanyLines(Parent(), lines);
}

std::optional<Language> QtHost::ChooseLanguage(Language current) {
    return AskLanguage(Parent(), current);
}

bool QtHost::EditTable(TableEdit& table) {
    return TableEditorDialog(table, Parent()).Run();
}

void QtHost::ShowFileList(const std::string& dir, const std::string& extension) {
    const QString picked = ShowFilesOfFolder(Parent(), Q(dir), Q(extension));
    if (!picked.isEmpty() && OpenProject) OpenProject(picked.toStdString());
}

void QtHost::ShowTextEditor(const std::string& text) {
    ShowReportWindow(Parent(), text);
}

void QtHost::ShowChart(const ChartArguments& chart) {
    const PlainPointer plain;
    ChartWindow(chart, Parent()).exec();
}

void QtHost::PrintText(const std::string& text, const std::string& fontName, int fontSize, bool rightToLeft) {
    const PlainPointer plain;
    PrintReport(Parent(), text, fontName, fontSize, rightToLeft);
}

// The document is the word processor's from then on: what the user writes into it must not go with this program.
void QtHost::OpenWordProcessor(const std::string& text, const std::string&, int, bool) {
    if (HasWordProcessor()) {
        const std::string path = HandOverFile(Text(160030_text) + ".rtf");
        WriteWholeFile(path, ReportRtf(text, PaperChosen()));
        const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
        const bool opened = opener.isEmpty() ? QDesktopServices::openUrl(QUrl::fromLocalFile(Q(path)))
                                             : QProcess::startDetached(opener, {Q(path)});
        if (opened) return;
    }
    const PlainPointer plain;
    if (QWidget* window = Parent()) ShowToast(*window, Q(Text(913505_text)));
    SaveReport(Parent());
}

void QtHost::SetClipboardText(const std::string& text) {
    QApplication::clipboard()->setText(Q(text));
    if (QWidget* window = Parent()) ShowToast(*window, Q(Text(910214_text)));
}

void QtHost::StartProcess(const std::string& program, const std::vector<std::string>& arguments) {
    QStringList words;
    for (const std::string& argument : arguments) words.append(Q(argument));
    if (!QProcess::startDetached(Q(program), words)) FailInFile(FailureKind::FileMissing, program);
}

}  // namespace lithmark
