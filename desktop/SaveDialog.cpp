#include "desktop/SaveDialog.h"

#include <QFileDialog>

#include "core/Session.h"
#include "render/QtText.h"

namespace lithmark {

namespace {

QString FilterOf(const FileKind& kind) {
    return kind.Name + QStringLiteral(" (*.") + kind.Ending + QLatin1Char(')');
}

}  // namespace

std::optional<ChosenFile> AskForFile(QWidget* parent, const QString& title, const std::vector<FileKind>& kinds) {
    QFileDialog dialog(parent, title, Q(Session.WorkDir));
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
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    const QString file = dialog.selectedFiles().front();
    QString ending = chosen().Ending;
    for (const FileKind& kind : kinds)
        if (QFileInfo(file).suffix().compare(kind.Ending, Qt::CaseInsensitive) == 0) ending = kind.Ending;
    return ChosenFile{file.toStdString(), ending};
}

}  // namespace lithmark
