#pragma once

#include "DatabaseFile.h"
#include "General_Search_UNT.h"
#include "HostApplication.h"
#include "ListForm.h"
#include "Look.h"
#include "RecordCard.h"
#include "ReferenceHost.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"

#include <QTemporaryDir>
#include <QTest>

/// A sample database in a file, a host over it, and a list that a user has before him.
class TListFormFixture
{
public:
    explicit TListFormFixture(const TSampleSize& size = TSampleSize::Small())
    {
        TDatabaseOptions options;
        options.Size = size;
        OpenDatabase(Connection, QStringLiteral("sqlite:") + Folder.filePath(QStringLiteral("shop.db")),
                     options);
    }

    /// Opens the list afresh in an active window, its first rows and their number there.
    TListForm& OpenList(const TListDescription& description)
    {
        List = std::make_unique<TListForm>(description, Host);
        List->resize(1100, 600);
        List->show();
        Activate(List.get());
        List->Refresh();
        List->FocusSearchEdit();
        WaitForRows();
        return *List;
    }

    /// Makes the window the active one and waits until it stays so: with no window manager the focus of the
    /// window before may still arrive behind that of this one.
    static void Activate(QWidget* window)
    {
        QVERIFY(QTest::qWaitForWindowExposed(window));
        constexpr int Attempts = 20;
        constexpr int SettlingTime = 50;
        for (int attempt = 0; attempt < Attempts; ++attempt) {
            window->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(window));
            QTest::qWait(SettlingTime);
            if (QApplication::activeWindow() == window)
                return;
        }
        QFAIL("the window does not stay active");
    }

    /// Until what was typed is in force and answered.
    void WaitForRows()
    {
        QTRY_VERIFY(List->SearchFrame().Filter_is_done());
        List->SearchFrame().Refrenc_SearchManager->Flush();
        QVERIFY(List->DataSet().WaitForFirstPage());
        QTRY_VERIFY(List->DataSet().CountIsExact());
    }

    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    static void Type(const QString& text)
    {
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown,
                                QString(character), Qt::NoModifier);
    }

    QString Text(int row, const QString& field) const
    {
        return List->DataSet().ValueAt(row, List->DataSet().FieldByName(field)->Index()).toString();
    }

    TRecordCard* WaitForCard() const
    {
        [this] { QTRY_VERIFY(List->Card() != nullptr); }();
        if (List->Card() != nullptr)
            Activate(List->Card());
        return List->Card();
    }

    QTemporaryDir Folder;
    TADOConnection Connection;
    THostSettings Settings{Folder.filePath(QStringLiteral("settings.ini"))};
    TReferenceHost Host{Connection, Settings};
    std::unique_ptr<TListForm> List;
};

/// Runs a test under the application object of the host.
template <typename TTest> int RunListTest(int argumentCount, char** arguments)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    THostApplication application(argumentCount, arguments);
    Look::Install(application, Look::TScheme::Light);
    TTest test;
    return QTest::qExec(&test, argumentCount, arguments);
}
