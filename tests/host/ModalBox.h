#pragma once

#include "MessageDialog.h"

#include <functional>
#include <QApplication>
#include <QTest>
#include <QTimer>

/// Answers the message box that the code under test is about to open.
namespace ModalBox {

inline TMessageDialog* Current()
{
    return qobject_cast<TMessageDialog*>(QApplication::activeModalWidget());
}

/// When a box is open and active, notes its text and hands it to `answer`, which closes it.
class TAnswer : public QObject
{
public:
    explicit TAnswer(std::function<void(TMessageDialog&)> answer) : answer_(std::move(answer))
    {
        timer_.callOnTimeout(this, [this] { Look(); });
        timer_.start(10);
    }
    QStringList Texts;
    int Boxes() const { return static_cast<int>(Texts.size()); }

private:
    void Look()
    {
        TMessageDialog* box = Current();
        if (box == nullptr || box == seen_)
            return;
        // Nobody activates a new window on an X server without a window manager.
        box->activateWindow();
        if (!box->isActiveWindow())
            return;
        seen_ = box;
        Texts.append(box->Text());
        answer_(*box);
        seen_ = nullptr;
    }

    std::function<void(TMessageDialog&)> answer_;
    QTimer timer_;
    TMessageDialog* seen_ = nullptr;
};

inline std::function<void(TMessageDialog&)> Key(Qt::Key key)
{
    return [key](TMessageDialog& box) { QTest::keyClick(box.focusWidget(), key); };
}

} // namespace ModalBox
