#include "Ink.h"
#include "Look.h"

#include <QApplication>
#include <QLabel>
#include <QPalette>
#include <QTest>

/// An application that starts on a dark desktop.
class LookOfSystemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheDarkSystemAndBack();
};

void LookOfSystemTest::followsTheDarkSystemAndBack()
{
    QPalette desktop;
    desktop.setColor(QPalette::Window, QColor(40, 40, 40));
    QGuiApplication::setPalette(desktop);
    Look::Install(*qApp);
    QVERIFY(Look::IsDark());
    QLabel label(QStringLiteral("متن"));
    QCOMPARE(Ink::Ground(label.grab().toImage()), Look::ColorOf(Look::TRole::Window, true));

    Look::SetScheme(Look::TScheme::Light);
    QVERIFY(!Look::IsDark());
    Look::SetScheme(Look::TScheme::FollowSystem);
    QVERIFY2(Look::IsDark(), "the own light palette is not taken for the system's");
}

QTEST_MAIN(LookOfSystemTest)
#include "LookOfSystemTest.moc"
