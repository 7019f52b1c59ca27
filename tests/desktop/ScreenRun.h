// ScreenRun: the whole program with its real windows and without a display, and a user who works on it.
//
// A modal window blocks whoever shows it. So the user's steps are queued before the command that shows the window: each
// step waits for the window of its name and then runs inside that window's own event loop. A step whose window never
// comes ends the test's windows and fails it.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "core/Session.h"
#include "desktop/MainWindow.h"
#include "desktop/QtHost.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"
#include "support/Files.h"
#include "ui/frame/MDITools.h"
#include "ui/model/ProjectFlags.h"

namespace lithmark::tests {

// How long a test waits for what another process works out, in milliseconds.
inline constexpr int kWorkPatience = 60000;

class ScreenRun {
  public:
    // Starts the program on a settings folder; the clock makes the splash's wait short.
    explicit ScreenRun(const std::string& settingsDir, const std::string& commandLine = {},
                       Language language = Language::English) {
        SharedServices().UseSettingsDirectory(settingsDir);
        SharedServices().DecimalSign = '.';
        SetCurrentHost(&host_);
        frame_.SetWindow(&window_);
        host_.SetFrame(&window_);
        host_.StatusNotice = [this](const QString& notice) { window_.ShowNotice(notice); };
        host_.OpenExample = [this](const std::string& name) { frame_.OpenExample(name); };
        frame_.SetClock([now = 0LL]() mutable { return now += 1000; });
        QObject::connect(&timer_, &QTimer::timeout, [this] { Play(); });
        timer_.start(10);
        commandLine_ = commandLine;
        language_ = language;
    }
    ~ScreenRun() {
        timer_.stop();
        EXPECT_TRUE(steps_.empty()) << "The window \"" << steps_.front().Window << "\" never came";
        frame_.SetWindow(nullptr);
        SetCurrentHost(nullptr);
        SharedServices().UseSettingsDirectory("");
        for (int entry = 0; entry < kProblemEntries; ++entry) SetProblemSaved(entry, false);
        LanguageTexts().SetCurrent(Language::English);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        ResetSession();
    }
    ScreenRun(const ScreenRun&) = delete;
    ScreenRun& operator=(const ScreenRun&) = delete;

    void Start() { frame_.Start(commandLine_, language_); }

    // What the user does in the next modal window of a name.
    void In(const std::string& window, std::function<void(QWidget&)> step) {
        steps_.push_back({window, std::move(step)});
    }

    // A click on a menu entry.
    void Menu(const std::string& key) {
        QAction* action = window_.MenuAction(key);
        ASSERT_NE(action, nullptr) << key;
        ASSERT_TRUE(action->isEnabled()) << key;
        ASSERT_TRUE(action->isVisible()) << key;
        action->trigger();
        QCoreApplication::processEvents();
    }

    // All steps were taken, and their windows are gone.
    bool Done() const { return steps_.empty() && QApplication::activeModalWidget() == nullptr; }

    MainWindow& Window() { return window_; }
    MDITools& Frame() { return frame_; }

  private:
    struct Step {
        std::string Window;
        std::function<void(QWidget&)> Do;
    };

    void Play() {
        QWidget* modal = QApplication::activeModalWidget();
        // A long run ends by itself, or by who looks after it.
        if (modal != nullptr && modal->objectName() == QLatin1String("progress")) return idle_.invalidate();
        if (steps_.empty()) {
            // A window that no step is about would block the test for ever.
            if (modal == nullptr)
                idle_.invalidate();
            else if (!idle_.isValid())
                idle_.start();
            else if (idle_.elapsed() > kPatience) {
                ADD_FAILURE() << "Nobody is told to answer the window \"" << modal->objectName().toStdString() << "\"";
                modal->close();
                idle_.invalidate();
            }
            return;
        }
        if (modal == nullptr || modal->objectName().toStdString() != steps_.front().Window) {
            if (modal == nullptr) return;
            if (!idle_.isValid()) idle_.start();
            if (idle_.elapsed() < kPatience) return;
            ADD_FAILURE() << "Instead of \"" << steps_.front().Window << "\" the window \""
                          << modal->objectName().toStdString() << "\" is shown";
            steps_.clear();
            modal->close();
            return;
        }
        idle_.invalidate();
        // By a timer of its own: this one rests until the step is over, and a step may show further windows.
        QTimer::singleShot(0, modal, [step = std::move(steps_.front()), modal] {
            try {
                step.Do(*modal);
            } catch (const std::exception& error) {
                ADD_FAILURE() << "In \"" << step.Window << "\": " << error.what();
                modal->close();
            }
        });
        steps_.pop_front();
    }

    static constexpr int kPatience = 30000;  // a machine that does much else is slow

    QtHost host_;
    MDITools frame_;
    MainWindow window_{frame_};
    QTimer timer_;
    QElapsedTimer idle_;
    std::deque<Step> steps_;
    std::string commandLine_;
    Language language_ = Language::English;
};

// The widget of a name; a missing one fails the test and ends the step.
template <typename W>
W& Child(QWidget& window, const char* name) {
    W* widget = window.findChild<W*>(QString::fromLatin1(name));
    if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *widget;
}

// Replaces what a box holds, key by key.
inline void TypeInto(QWidget& window, const char* name, const std::string& text) {
    auto& box = Child<QLineEdit>(window, name);
    EXPECT_TRUE(box.isVisible() && box.isEnabled()) << name;
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, QString::fromStdString(text));
    EXPECT_EQ(box.text().toStdString(), text) << name;
}

// Goes back to a window from another one that was shown over it: without a window manager nobody gives it the focus.
inline void BackTo(QWidget& window) {
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window, kWorkPatience)) << window.objectName().toStdString();
}

inline void ClickOn(QWidget& window, const char* name) {
    auto& button = Child<QAbstractButton>(window, name);
    EXPECT_TRUE(button.isVisible() && button.isEnabled()) << name;
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
}

}  // namespace lithmark::tests
