// QtHost: the desktop's answer to everything that the program asks of a screen.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <functional>
#include <memory>

#include "services/host/Host.h"

class QProgressDialog;
class QWidget;

namespace lithmark {

class SplashView;

class QtHost : public Host {
  public:
    QtHost();
    ~QtHost() override;

    // The frame's window, parent of all dialogs that have no other.
    void SetFrame(QWidget* frame) { frame_ = frame; }
    // What the status bar shows while a file is read or written.
    std::function<void(const QString&)> StatusNotice;
    // Opens a copy of an example, which the user has asked for in the manual.
    std::function<void(const std::string&)> OpenExample;

    // The user picked a project in the list of files; the list is gone by then.
    std::function<void(const std::string& path)> OpenProject;

    void ShowMessage(const std::string& title, const std::string& text, MessageIcon icon) override;
    void SetPointer(PointerShape shape) override;
    void ShowFileStatus(FileStatus status) override;
    bool Progress(double fraction) override;
    bool AskYesNo(const std::string& title, const std::string& text) override;
    void ShowForm(Form& form) override;
    void ShowSplash(Form& form) override;
    void CloseSplash(Form& form) override;
    void RunEvents() override;
    void SetFocus(Form& form, Control& control) override;
    void ShowHelpText(const std::string& title, const std::string& text) override;
    void ShowHelpTopic(const std::string& topic) override;
    std::optional<std::string> ChooseFileToOpen(const std::string& title, const std::string& startDir,
                                                const std::string& pattern) override;
    std::optional<std::string> ChooseFileToSave(const std::string& title, const std::string& startDir,
                                                const std::string& name, const std::string& extension) override;
    std::optional<std::string> BrowseFolder(const std::string& start) override;
    std::optional<CompanyLines> EditCompanyLines(const CompanyLines& lines) override;
    std::optional<Language> ChooseLanguage(Language current) override;
    bool EditTable(TableEdit& table) override;
    void ShowFileList(const std::string& dir, const std::string& extension) override;
    void ShowTextEditor(const std::string& text) override;
    void ShowChart(const ChartArguments& chart) override;
    void PrintText(const std::string& text, const std::string& fontName, int fontSize, bool rightToLeft) override;
    void OpenWordProcessor(const std::string& text, const std::string& fontName, int fontSize,
                           bool rightToLeft) override;
    void SetClipboardText(const std::string& text) override;
    void StartProcess(const std::string& program, const std::vector<std::string>& arguments) override;

  private:
    // The window that a dialog belongs to.
    QWidget* Parent() const;
    void EndProgress();

    QPointer<QWidget> frame_;
    std::unique_ptr<SplashView> splash_;
    std::unique_ptr<QProgressDialog> progress_;
    QElapsedTimer progressSince_;
    bool hourglass_ = false;
};

}  // namespace lithmark
