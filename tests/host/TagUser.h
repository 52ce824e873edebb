#pragma once

#include "ReferenceHost.h"
#include "SharedDatabase.h"
#include "TagDialog.h"

#include <functional>
#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>

/// A host over a sample database, and a user who works in the dialog that defines a tag.
class TTagUser
{
public:
    using TScript = std::function<void(TTagDialog& dialog)>;

    /// Asks the host for a tag and plays the script in its dialog; where the script has not closed the dialog
    /// it is cancelled.
    int Define(const QString& name, const TScript& script)
    {
        int answer = 0;
        Play([&] { answer = ::Host().Pickers.Call_insert_tags(name, 1); }, script);
        return answer;
    }

    /// The same for whatever else opens the dialog.
    void Play(const std::function<void()>& opening, const TScript& script)
    {
        Played = 0;
        QTimer timer;
        timer.callOnTimeout([&] { PlayWhenOpen(timer, script); });
        timer.start(10);
        opening();
    }

    QVariant Value(const QString& statement) { return TSharedDatabase::Value(*Connection, statement); }
    QString NameOf(int code)
    {
        return Value(QStringLiteral("SELECT Name FROM dbo.TagS WHERE Code = %1").arg(code)).toString();
    }

    TSharedDatabase Database;
    std::unique_ptr<TADOConnection> Connection = Database.Connect();
    THostSettings Settings{Database.File(QStringLiteral("settings.ini"))};
    TReferenceHost Host{*Connection, Settings};
    int Played = 0; ///< scripts since the last call

private:
    void PlayWhenOpen(QTimer& timer, const TScript& script)
    {
        const QPointer<TTagDialog> dialog = qobject_cast<TTagDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        // Nobody activates a new window on an X server without a window manager.
        dialog->activateWindow();
        if (!dialog->isActiveWindow() || !QTest::qWaitForWindowExposed(dialog))
            return;
        timer.stop();
        const auto cancel = qScopeGuard([&dialog] {
            if (dialog != nullptr)
                dialog->reject();
        });
        ++Played;
        script(*dialog);
    }
};
