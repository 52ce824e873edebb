#pragma once

#include <QPointer>
#include <QTest>
#include <QWidget>

/// What every test program's class derives from. Programs run off-screen where QT_QPA_PLATFORM says nothing
/// else; a warning that was not expected by QTest::ignoreMessage fails the test, and so does a window that is
/// left behind.
class TTestCase : public QObject
{
    Q_OBJECT

protected:
    virtual void Prepare() {} ///< runs before each test
    virtual void Finish() {}  ///< runs after each test

private Q_SLOTS:
    void init();
    void cleanup();

private:
    static QWidgetList Windows();

    QList<QPointer<QWidget>> known_;
};
