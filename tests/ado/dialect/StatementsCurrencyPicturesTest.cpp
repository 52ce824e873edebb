#include "StatementFixture.h"

#include <QtTest>

/// The texts that the currency frame and the picture frames send.
class StatementsCurrencyPicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextDeliversItsRows_data();
    void aTextDeliversItsRows();
    void theCurrencyListHasTheNamesThatTheFrameReads();

private:
    TStatementDatabase database_;
};

void StatementsCurrencyPicturesTest::aTextDeliversItsRows_data()
{
    StatementColumns();
    StatementRow("base currency", QStringLiteral("Select * from  AccCurrency where CurCode = 1"),
                 {"1|ریال|ایران"});
    StatementRow(
        "list of currencies; without a country there is no title",
        QStringLiteral(
            " Select *, a.CurTitle + '-' + a.CurCountry as CurTitleCountry    from     AccCurrency  a  "),
        {"1|ریال|ایران|ریال-ایران", "2|دلار|آمریکا|دلار-آمریکا", "3|بی‌نام|NULL|NULL"});
    const QString rate =
        QStringLiteral("SELECT TOP 1 * FROM AccCrConvRate WHERE AccCurrencyID = %1 AND CrRateDate <= "
                       "'%2' ORDER BY CrRateDate DESC, CrRateCode DESC");
    StatementRow("rate between two dates", rate.arg(2).arg(QLatin1String("1403/01/31")),
                 {"1|2|1403/01/05|500000"});
    StatementRow("last entered rate of a date", rate.arg(2).arg(QLatin1String("1403/02/01")),
                 {"3|2|1403/02/01|511000.5"});
    StatementRow("no rate before the first", rate.arg(2).arg(QLatin1String("1402/12/29")), {});
    const QString pictures =
        QStringLiteral("Select *,Cast(Id_Pic As Varchar)As Id_PicName from PhotoGallery");
    StatementRow("one picture", pictures + QLatin1String("\r\n Where Id_Pic=25\r\n"),
                 {"25|0|الف.jpg||ffd8|25", "25|3|ب.png|NULL|NULL|25"});
    StatementRow("pictures of a group",
                 pictures + QLatin1String("\r\n Where GRPCode=3\r\n And Id_Pic=26\r\n"),
                 {"26|3|پ.jpg|NULL|ffd9|26"});
}

void StatementsCurrencyPicturesTest::aTextDeliversItsRows()
{
    QFETCH(QString, statement);
    QFETCH(QStringList, rows);
    QCOMPARE(database_.ComparableRows(statement), rows);
}

void StatementsCurrencyPicturesTest::theCurrencyListHasTheNamesThatTheFrameReads()
{
    const QString list = QStringLiteral(
        " Select *, a.CurTitle + '-' + a.CurCountry as CurTitleCountry    from     AccCurrency  a  ");
    QCOMPARE(database_.ColumnNames(list),
             QStringList({"CurCode", "CurTitle", "CurCountry", "CurTitleCountry"}));
    QCOMPARE(database_.ColumnTypes(list),
             QStringList({"INT", "NVARCHAR(50)", "NVARCHAR(50)", "NVARCHAR(101)"}));
}

QTEST_APPLESS_MAIN(StatementsCurrencyPicturesTest)
#include "StatementsCurrencyPicturesTest.moc"
