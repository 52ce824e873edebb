#include "GridCellText.h"

#include <QTest>

class GridCellTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesRead_data();
    void valuesRead();
    void solarDatesMatchTheCalendar_data();
    void solarDatesMatchTheCalendar();
};

void GridCellTextTest::valuesRead_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("copied");
    const int text = TGridColumn::ckText;
    const int code = TGridColumn::ckCode;
    const int number = TGridColumn::ckNumber;
    const int money = TGridColumn::ckMoney;
    const int date = TGridColumn::ckDate;
    QTest::newRow("null text") << QVariant() << text << ""
                               << "";
    QTest::newRow("null money") << QVariant() << money << ""
                                << "";
    QTest::newRow("empty text") << QVariant(QString()) << text << ""
                                << "";
    QTest::newRow("zero money") << QVariant(QStringLiteral("0")) << money << "0"
                                << "0";
    QTest::newRow("money") << QVariant(QStringLiteral("1234500.0000")) << money << "1,234,500"
                           << "1234500";
    QTest::newRow("negative money") << QVariant(QStringLiteral("-1000")) << money << "-1,000"
                                    << "-1000";
    QTest::newRow("beyond a double") << QVariant(QStringLiteral("922337203685477.5807")) << money
                                     << "922,337,203,685,477.5807"
                                     << "922337203685477.5807";
    QTest::newRow("quantity") << QVariant(QStringLiteral("12.500")) << number << "12.5"
                              << "12.5";
    QTest::newRow("float") << QVariant(0.1) << number << "0.1"
                           << "0.1";
    QTest::newRow("whole number") << QVariant(qint64(1234567)) << number << "1,234,567"
                                  << "1234567";
    QTest::newRow("code is not grouped") << QVariant(1234567) << code << "1234567"
                                         << "1234567";
    QTest::newRow("code keeps its zeros") << QVariant(QStringLiteral("0012")) << code << "0012"
                                          << "0012";
    QTest::newRow("no number in a money column") << QVariant(QStringLiteral("نامعلوم")) << money << "نامعلوم"
                                                 << "نامعلوم";
    QTest::newRow("yes") << QVariant(true) << text << "بله"
                         << "بله";
    QTest::newRow("no") << QVariant(false) << code << "خیر"
                        << "خیر";
    QTest::newRow("lines become one") << QVariant(QStringLiteral("یک\r\nدو")) << text << "یک دو"
                                      << "یک دو";
    QTest::newRow("solar text stays") << QVariant(QStringLiteral("1403/05/01")) << date << "1403/05/01"
                                      << "1403/05/01";
    QTest::newRow("date and time") << QVariant(QStringLiteral("2024-03-20T14:30:59.123")) << date
                                   << "1403/01/01 14:30"
                                   << "1403/01/01 14:30";
}

void GridCellTextTest::valuesRead()
{
    QFETCH(QVariant, value);
    QFETCH(int, kind);
    QFETCH(QString, shown);
    QFETCH(QString, copied);
    QCOMPARE(GridCellText::Shown(value, static_cast<TGridColumn::TKind>(kind)), shown);
    QCOMPARE(GridCellText::Copied(value, static_cast<TGridColumn::TKind>(kind)), copied);
}

void GridCellTextTest::solarDatesMatchTheCalendar_data()
{
    QTest::addColumn<QString>("iso");
    QTest::addColumn<QString>("solar");
    QTest::newRow("first day of a year") << "2024-03-20"
                                         << "1403/01/01";
    QTest::newRow("last day of a leap year") << "2025-03-20"
                                             << "1403/12/30";
    QTest::newRow("the day after it") << "2025-03-21"
                                      << "1404/01/01";
    QTest::newRow("last day of a common year") << "2024-03-19"
                                               << "1402/12/29";
    QTest::newRow("last day of a long month") << "2024-09-21"
                                              << "1403/06/31";
    QTest::newRow("first day of a short month") << "2024-09-22"
                                                << "1403/07/01";
    QTest::newRow("1979") << "1979-02-11"
                          << "1357/11/22";
    QTest::newRow("epoch") << "1970-01-01"
                           << "1348/10/11";
    QTest::newRow("2000") << "2000-01-01"
                          << "1378/10/11";
    QTest::newRow("no date") << "2024-13-45"
                             << "2024-13-45";
    QTest::newRow("empty") << ""
                           << "";
}

void GridCellTextTest::solarDatesMatchTheCalendar()
{
    QFETCH(QString, iso);
    QFETCH(QString, solar);
    QCOMPARE(GridCellText::SolarDate(iso), solar);
}

QTEST_APPLESS_MAIN(GridCellTextTest)
#include "GridCellTextTest.moc"
