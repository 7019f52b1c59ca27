// StartView: the page of the frame while no project is open: recent and pinned projects, a card for each problem,
// examples. They stand beside each other where there is room, else under each other; new and open stay in sight.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "ui/frame/MDITools.h"

class QGridLayout;
class QLabel;
class QScrollArea;

namespace lithmark {

class PageButton;
class PictureButton;
struct PictureWish;

class StartView : public QWidget {
  public:
    StartView(MDITools& frame, QWidget* parent);
    void Show(const StartPage& page);
    // All drawings are there.
    bool Painted() const { return waiting_.empty(); }

    using Command = std::function<void(MDITools& frame)>;
    // The user asks for something of the frame.
    std::function<void(Command command)> OnCommand;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    // A heading and things of one width under it.
    struct Panel {
        QWidget* Box;
        QGridLayout* Grid;
        int Width;
        std::vector<QWidget*> Things;
        std::vector<QWidget*> Stops;  // of the Tab key, in order
    };
    Panel MakePanel(int width);
    QLabel* AddHead(Panel& panel, const QString& words);
    QWidget* Head(MDITools& frame);
    void AddProjects(const QString& head, const char* name, const std::vector<ListedProject>& projects);
    void AddProject(const QString& name, const ListedProject& project);
    void FillCards();
    void FillExamples();
    // Panels and their things by the room there is.
    void Arrange();
    static void Place(Panel& panel, int columns);
    void SetTabOrder();

    // The drawings come one after another once the page is seen, so that it does not wait for them.
    void WishPictures();
    void PaintNext();

    QScrollArea* scroll_ = nullptr;
    QWidget* content_;
    Panel projects_, cards_, examples_;
    std::vector<std::pair<PageButton*, std::string>> commands_;  // of the head, by their keys
    StartPage shown_;
    struct Wish {
        PictureButton* For;
        std::function<QPixmap(const PictureWish&)> Paint;
    };
    std::vector<Wish> pictures_;
    std::deque<std::size_t> waiting_;
    bool painting_ = false;
};

}  // namespace lithmark
