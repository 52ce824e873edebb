#pragma once

#include "EntityLists.h"
#include "EntityPicker.h"
#include "General_Search_UNT.h"
#include "HostApplication.h"
#include "SampleShop.h"
#include "SmartEdit_TRV.h"

#include <functional>
#include <QPointer>
#include <QTest>
#include <QTimer>

/// A shop and a user who works in the pickers that it opens.
class TPickerFixture : public THostedShop
{
public:
    using THostedShop::THostedShop;

    /// What a user does in a picker that is open and active, its rows and their number there.
    using TScript = std::function<void(TEntityPicker& picker)>;

    /// Opens a picker by `select` and plays the script in it; where the script has not closed the picker it
    /// is cancelled.
    int Play(const TScript& script, const std::function<int()>& select)
    {
        Played = 0;
        QTimer timer;
        timer.callOnTimeout([&] { PlayWhenOpen(timer, script); });
        timer.start(10);
        return select();
    }

    int Select(TSoftwarePart part, const QString& argument, const TScript& script, bool all = false)
    {
        return Play(script, [&] { return ::Host().Pickers.Select_Entity(part, argument, all); });
    }

    /// Until what was typed is in force and answered.
    static void WaitForRows(TEntityPicker& picker)
    {
        QTRY_VERIFY(picker.SearchFrame().Filter_is_done());
        picker.SearchFrame().Refrenc_SearchManager->Flush();
        QVERIFY(picker.DataSet().WaitForFirstPage());
        QTRY_VERIFY(picker.DataSet().CountIsExact());
    }

    static void Press(TEntityPicker& picker, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(picker.focusWidget(), key, modifiers);
    }

    /// Enter, until the picker has taken the row.
    static void PressEnter(TEntityPicker& picker)
    {
        Press(picker, Qt::Key_Return);
        QTRY_VERIFY(picker.Code() != 0);
    }

    static void Type(TEntityPicker& picker, const QString& text)
    {
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, picker.focusWidget(), Qt::Key_unknown, QString(character),
                                Qt::NoModifier);
    }

    static void Find(TEntityPicker& picker, const QString& text)
    {
        Type(picker, text);
        WaitForRows(picker);
    }

    static QString Text(TEntityPicker& picker, int row, const QString& field)
    {
        return picker.DataSet().ValueAt(row, picker.DataSet().FieldByName(field)->Index()).toString();
    }

    static QVariantList Codes(TEntityPicker& picker)
    {
        QVariantList codes;
        for (int row = 0; row < picker.DataSet().RecordCount(); ++row)
            codes.append(picker.DataSet().ValueAt(row, 0));
        return codes;
    }

    /// The greatest code that a picker of the part lists.
    int LastCode(int part, const QString& table)
    {
        const bool active = EntityLists::Of(static_cast<TSoftwarePart>(part)).HasActive();
        return Number(QStringLiteral("SELECT MAX(Code) FROM ") + table +
                      (active ? QStringLiteral(" WHERE Active = 1") : QString()));
    }

    int Played = 0; ///< scripts since the last call of Select

private:
    void PlayWhenOpen(QTimer& timer, const TScript& script)
    {
        const QPointer<TEntityPicker> picker =
            qobject_cast<TEntityPicker*>(QApplication::activeModalWidget());
        if (picker == nullptr)
            return;
        // Nobody activates a new window on an X server without a window manager.
        picker->activateWindow();
        if (!picker->isActiveWindow() || !QTest::qWaitForWindowExposed(picker))
            return;
        timer.stop();
        const auto cancel = qScopeGuard([&picker] {
            if (picker != nullptr)
                picker->reject();
        });
        if (picker != nullptr)
            WaitForRows(*picker);
        ++Played;
        if (picker != nullptr)
            script(*picker);
    }
};
