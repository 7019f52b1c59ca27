// The window that compares two projects, for the pictures.
#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTabWidget>
#include <QTest>
#include <functional>
#include <string>

#include "desktop/compare/CompareWindow.h"
#include "render/QtText.h"
#include "services/storage/WrittenFile.h"

namespace lithmark {

// Two projects of a problem beside each other: its tabs, and more charts than one. False where that failed.
inline bool TakeComparison(const std::string& folder,
                           const std::function<void(QWidget& window, const QString& name)>& take) {
    struct Changed {
        const char *Example, *Ending, *From, *To;
    };
    for (const auto& [example, ending, from, to] : {Changed{"OfficeBuilding", ".TST", "12.1", "15"},
                                                    Changed{"RectangularFooting", ".SSD", "\r\n4\r\n", "\r\n6\r\n"},
                                                    Changed{"TwoClayLayers", ".RAT", "\r\n2\r\n", "\r\n1\r\n"}}) {
        const QDir examples(QCoreApplication::applicationDirPath() + QStringLiteral("/examples/") +
                            Q(std::string(example)));
        for (const QFileInfo& file : examples.entryInfoList(QDir::Files)) {
            QFile read(file.filePath());
            if (!read.open(QFile::ReadOnly)) continue;
            std::string data = read.readAll().toStdString();
            const std::string end = "." + file.suffix().toStdString();
            WriteWholeFile(folder + example + end, data);
            if (const auto at = data.find(from); end == ending && at != std::string::npos)
                data.replace(at, std::string(from).size(), to);
            WriteWholeFile(folder + "Variant" + end, data);
        }
        const PairReading reading = ReadPair(folder + example + ".PO3", folder + "Variant.PO3");
        if (!reading.Pair) return false;
        CompareWindow window(*reading.Pair, nullptr);
        window.show();
        if (!QTest::qWaitFor([&] { return window.Worked(); }, 60000)) return false;
        auto& tabs = *window.findChild<QTabWidget*>();
        for (int tab = 0; tab < tabs.count(); ++tab) {
            tabs.setCurrentIndex(tab);
            take(window, QStringLiteral("compare-%1-%2").arg(Q(std::string(example))).arg(tab));
        }
    }
    return true;
}

}  // namespace lithmark
