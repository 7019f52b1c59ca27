#include "desktop/ChosenPath.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>

namespace lithmark {

QString ChosenPath(QFileDialog& dialog) {
    if (auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
        name->setLayoutDirection(Qt::LeftToRight);
    if (auto* folders = dialog.findChild<QComboBox*>(QStringLiteral("lookInCombo"))) {
        folders->setLayoutDirection(Qt::LeftToRight);
        folders->view()->setLayoutDirection(Qt::LeftToRight);
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().front();
}

}  // namespace lithmark
