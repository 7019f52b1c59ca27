#include "desktop/SaveDialog.h"

#include <QFileDialog>
#include <QGridLayout>

#include "core/Session.h"
#include "desktop/ChosenPath.h"
#include "files/CommonStep.h"
#include "render/QtText.h"
#include "services/SharedServices.h"
#include "services/storage/WrittenFile.h"
#include "ui/model/ExportFolder.h"

namespace lithmark {

namespace {

QString FilterOf(const FileKind& kind) {
    return kind.Name + QStringLiteral(" (*.") + kind.Ending + QLatin1Char(')');
}

void ShowUnderFiles(QFileDialog& dialog, QWidget& choices) {
    if (auto* rows = qobject_cast<QGridLayout*>(dialog.layout()))
        rows->addWidget(&choices, rows->rowCount(), 0, 1, rows->columnCount());
}

}  // namespace

std::optional<ChosenFile> AskForFile(QWidget* parent, const QString& title, const std::vector<FileKind>& kinds,
                                     QWidget* choices) {
    QFileDialog dialog(parent, title, Q(ExportFolder()));
    // Only the toolkit's own dialog has room for more.
    if (choices != nullptr) dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    QStringList filters;
    for (const FileKind& kind : kinds) filters.append(FilterOf(kind));
    dialog.setNameFilters(filters);
    const auto chosen = [&]() -> const FileKind& {
        for (const FileKind& kind : kinds)
            if (FilterOf(kind) == dialog.selectedNameFilter()) return kind;
        return kinds.front();
    };
    const auto follow = [&] { dialog.setDefaultSuffix(chosen().Ending); };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
    follow();
    dialog.selectFile(Q(Session.WorkName));
    if (choices != nullptr) ShowUnderFiles(dialog, *choices);
    const QString file = ChosenPath(dialog);
    if (choices != nullptr) choices->setParent(nullptr);
    if (file.isEmpty()) return std::nullopt;
    const QFileInfo folder(QFileInfo(file).path());
    if (folder.isDir() && folder.isWritable()) RememberExportFolder(folder.filePath().toStdString());
    QString ending = chosen().Ending;
    for (const FileKind& kind : kinds)
        if (QFileInfo(file).suffix().compare(kind.Ending, Qt::CaseInsensitive) == 0) ending = kind.Ending;
    return ChosenFile{file.toStdString(), ending};
}

void SaveAs(QWidget& window, const std::vector<FileKind>& kinds,
            const std::function<std::string(const QString& ending)>& bytes) {
    const auto file = AskForFile(&window, window.windowTitle(), kinds);
    if (!file) return;
    UnderCommonStep([&] {
        SharedServices().SetCurrentFile(file->Path);
        WriteWholeFile(file->Path, bytes(file->Ending));
    });
}

}  // namespace lithmark
