#pragma once

#include "AccountChartPane.h"
#include "AccountDetailPane.h"
#include "AccountPickerDialog.h"
#include "MirroredTreeView.h"
#include "SmartDBGrid_TRV.h"
#include "SmartEdit_TRV.h"

#include <functional>
#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>

/// Who sits before the account picker that the code under test is about to open: does what it was told as
/// soon as the dialog is open and active, and cancels it afterwards where it is still open.
class TAccountPickerUser : public QObject
{
public:
    explicit TAccountPickerUser(std::function<void(TAccountPickerDialog&)> act) : act_(std::move(act))
    {
        timer_.callOnTimeout(this, [this] { Look(); });
        timer_.start(10);
    }
    ~TAccountPickerUser() override
    {
        if (!seen_)
            QTest::qFail("no account picker has opened", __FILE__, __LINE__);
    }

    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        awaitsAnswer_ = key == Qt::Key_Return || key == Qt::Key_Enter;
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    static void Type(const QString& text)
    {
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown,
                                QString(character), Qt::NoModifier);
    }

    /// Until what was typed last is in force and counted.
    static void WaitForDetails(TAccountPickerDialog& dialog)
    {
        TAccountDetailPane& details = dialog.Details();
        QTest::qWait(details.SearchEdit().DelayTimeCount() + settlingTime);
        QVERIFY(details.DataSet().WaitForFirstPage());
        QTRY_VERIFY(details.DataSet().CountIsExact());
        QTest::qWait(settlingTime);
    }

private:
    static constexpr int settlingTime = 50;

    void Look()
    {
        auto* dialog = qobject_cast<TAccountPickerDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || seen_)
            return;
        // Nobody activates a new window on an X server without a window manager, and the focus of the window
        // before may still arrive behind that of this one.
        dialog->activateWindow();
        if (!dialog->isActiveWindow() || QApplication::focusWidget() == nullptr || ++settled_ < enoughLooks)
            return;
        seen_ = true;
        timer_.stop();
        const QPointer<TAccountPickerDialog> open(dialog);
        awaitsAnswer_ = false;
        act_(*dialog);
        // What Enter picks may still have to be read.
        const auto isClosed = [&open] { return open == nullptr || !open->isVisible(); };
        if (awaitsAnswer_)
            static_cast<void>(QTest::qWaitFor(isClosed, longestAnswer));
        if (open != nullptr && open->isVisible())
            open->reject();
    }

    static constexpr int enoughLooks = 8;
    static constexpr int longestAnswer = 3000; // milliseconds
    static inline bool awaitsAnswer_ = false;

    std::function<void(TAccountPickerDialog&)> act_;
    QTimer timer_;
    int settled_ = 0;
    bool seen_ = false;
};
