// Small windows of the desktop's own: help, company lines, language, files of a folder, a report in a window.
#pragma once

#include <QString>
#include <optional>
#include <string>

#include "services/host/Host.h"

class QWidget;

namespace lithmark {

void ShowTextWindow(QWidget* parent, const QString& title, const QString& text);
// The manual at a topic, at its first page for a topic without one. Gives the example that the user has asked for
// there, where one can be opened; else an empty name.
std::string ShowManual(QWidget* parent, const QString& topic, bool opensExamples);
std::optional<CompanyLines> AskCompanyLines(QWidget* parent, const CompanyLines& lines);
std::optional<Language> AskLanguage(QWidget* parent, Language current);
// The projects of a folder with what they are about; the path of the one that the user opens, by a double click or the
// button, and an empty one when the list is only looked at.
QString ShowFilesOfFolder(QWidget* parent, const QString& folder, const QString& extension);
// A report in a window of its own, with find.
void ShowReportWindow(QWidget* parent, const std::string& report);

}  // namespace lithmark
