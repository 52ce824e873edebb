#pragma once

#include "RandomTexts.h"

#include <functional>
#include <QEventLoop>
#include <QObject>

class QWidget;

/// Works a window as a monkey would: keys, mouse, paste, resizing, focus and window events at random, the
/// same ones for the same seed. Dialogs and menus that open are worked too, and closed at the end; the
/// toolkit's file dialog is only cancelled, because it can delete files.
class TMonkey : public QObject
{
    Q_OBJECT

public:
    TMonkey(QWidget& window, quint32 seed);
    ~TMonkey() override;

    /// Returns when so many events have been sent and nothing is open any more.
    void Run(int events);
    /// Called before each event with its number, beginning with 0.
    std::function<void(int number)> BeforeEvent;
    /// What is worked mostly while no dialog is open; null for nothing in particular.
    std::function<QWidget*()> Favourite;
    /// The longest time between two turns of the event loop, in milliseconds of this thread's processor, and
    /// what was done then.
    double LongestGap() const { return longestGap_; }
    QString Slowest() const { return slowest_; }

private:
    void Step();
    void NoteGap();
    bool CloseWhatIsOpen();
    void Act();
    QWidget* Target() const;
    QWidget* Focus() const;
    QWidget* AnyChild(bool focusable);

    void TypeText();
    void PressKey();
    void Click();
    void DragMouse();
    void Wheel();
    void Paste();
    void Resize();
    void MoveFocus();
    void ChangeWindow();

    QWidget* window_;
    TRandomTexts random_;
    QEventLoop loop_;
    int events_ = 0;
    int sent_ = 0;
    double lastTurn_ = 0;
    double longestGap_ = 0;
    QString doing_;
    QString slowest_;
};
