// mime_type FILE...: prints the type of each file by its name and content, then by its content alone.
#include <QFile>
#include <QMimeDatabase>
#include <cstdio>

int main(int argc, char** argv) {
    const QMimeDatabase database;
    for (int i = 1; i < argc; ++i) {
        const QString path = QString::fromLocal8Bit(argv[i]);
        QFile file(path);
        const QString named = database.mimeTypeForFile(path).name();
        const QString content =
            file.open(QIODevice::ReadOnly) ? database.mimeTypeForData(&file).name() : QStringLiteral("unreadable");
        std::printf("%s %s\n", named.toUtf8().constData(), content.toUtf8().constData());
    }
}
