// Prints the text that the clipboard holds.
#include <QApplication>
#include <QClipboard>
#include <cstdio>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const std::string text = QApplication::clipboard()->text().toStdString();
    std::fwrite(text.data(), 1, text.size(), stdout);
    return text.empty() ? 1 : 0;
}
