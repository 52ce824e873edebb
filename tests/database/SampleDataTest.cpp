#include "DatabaseCheck.h"
#include "NationalCode.h"
#include "TestDatabase.h"

#include "AdoError.h"

#include <QImage>
#include <QTest>

/// What the generator makes. Nothing here writes, so the tests share one small database.
class SampleDataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theSameSizeGivesTheSameContent();
    void theFirstRecordsAreTheSameInEverySize();
    void everyRuleHolds_data();
    void everyRuleHolds();
    void aBrokenVoucherIsFound();
    void theNumberOfRecordsIsTheOneAskedFor();
    void everyTableHasRowsExceptWhatUsersWrite();
    void theCategoryTreeHasFourLevels();
    void someCategoriesShareAName();
    void vouchersStandInTheirFiscalYear();
    void theYearsOpenWithBalancedBalances();
    void theChartHasTheDetailKindsThatMatter();
    void someDetailAccountsAreUsedByTheirUniqueCode();
    void nationalCodesAndBarcodesCheck();
    void spellingsAreMixedSoThatFoldingMatters();
    void aPersonsBalanceIsWhatTheVouchersLeave();
    void someTradesLackTheirVoucher();
    void ratesOfTwoEntriesOnOneDateExist();
    void picturesAreReadable();
    void progressRisesToTheEnd();
    void workCanBeAbandoned();

private:
    int Count(const QString& rest)
    {
        return sample_->Value(QStringLiteral("SELECT COUNT(*) FROM ") + rest).toInt();
    }

    std::unique_ptr<TTestDatabase> sample_;
};

namespace {

TSampleSize Tiny()
{
    TSampleSize size = TSampleSize::Small();
    size.Goods = 120;
    size.Persons = 40;
    size.VouchersPerYear = 20;
    size.FiscalYears = 1;
    return size;
}

bool BarcodeChecks(const QString& barcode)
{
    int sum = 0;
    for (int index = 0; index < barcode.size(); ++index)
        sum += barcode.at(index).digitValue() * (index % 2 == 0 ? 1 : 3);
    return barcode.size() == 13 && sum % 10 == 0;
}

} // namespace

void SampleDataTest::initTestCase()
{
    sample_ = TTestDatabase::Filled();
}

void SampleDataTest::theSameSizeGivesTheSameContent()
{
    QCOMPARE(TTestDatabase::Filled()->Content(), sample_->Content());
    QVERIFY(TTestDatabase::Filled(Tiny())->Content() != sample_->Content());
}

void SampleDataTest::theFirstRecordsAreTheSameInEverySize()
{
    const std::unique_ptr<TTestDatabase> tiny = TTestDatabase::Filled(Tiny());
    const QString goods = QStringLiteral("SELECT * FROM dbo.kala WHERE Code <= 120 ORDER BY Code");
    QCOMPARE(tiny->Rows(goods).size(), 120);
    QCOMPARE(tiny->Rows(goods), sample_->Rows(goods));
    const QString persons = QStringLiteral("SELECT Name, FullName, NationalCode, Phone, City, Address, tags "
                                           "FROM dbo.Persons WHERE Code <= 40 ORDER BY Code");
    QCOMPARE(tiny->Rows(persons), sample_->Rows(persons));
}

void SampleDataTest::everyRuleHolds_data()
{
    QTest::addColumn<QString>("statement");
    for (const DatabaseCheck::TRule& rule : DatabaseCheck::Rules())
        QTest::newRow(qPrintable(rule.Title)) << rule.Statement;
}

void SampleDataTest::everyRuleHolds()
{
    QFETCH(const QString, statement);
    QCOMPARE(sample_->Value(statement).toInt(), 0);
}

void SampleDataTest::aBrokenVoucherIsFound()
{
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Filled(Tiny());
    QCOMPARE(DatabaseCheck::FindDamage(database->Connection()), QStringList());
    database->Execute(QStringLiteral("UPDATE dbo.Sanad_Detail SET Bed = Bed + 1 WHERE Id = 1"));
    database->Execute(QStringLiteral("UPDATE dbo.kala SET tags = ',3,,5,' WHERE Code IN (1, 2)"));
    const QStringList damage = DatabaseCheck::FindDamage(database->Connection());
    QCOMPARE(damage.size(), 2);
    QVERIFY(damage.first().contains(QStringLiteral("سند")));
    QVERIFY(damage.last().contains(u'2'));
}

void SampleDataTest::theNumberOfRecordsIsTheOneAskedFor()
{
    const TSampleSize size = TSampleSize::Small();
    QCOMPARE(Count(QStringLiteral("dbo.kala")), size.Goods);
    QCOMPARE(Count(QStringLiteral("dbo.kala_category")), size.Goods);
    QCOMPARE(Count(QStringLiteral("dbo.Persons")), size.Persons);
    QCOMPARE(Count(QStringLiteral("dbo.AccDetails WHERE [Type] = 1")), size.Persons);
    QCOMPARE(Count(QStringLiteral("dbo.FiscalYears")), size.FiscalYears);
    const int withoutVoucher = Count(QStringLiteral("dbo.Trades WHERE SanadId IS NULL"));
    // The opening voucher comes on top.
    QCOMPARE(Count(QStringLiteral("dbo.Sanad")) + withoutVoucher,
             size.VouchersPerYear * size.FiscalYears + 1);
}

void SampleDataTest::everyTableHasRowsExceptWhatUsersWrite()
{
    const QStringList emptyOnes{QStringLiteral("dbo.CodeLocks"), QStringLiteral("dbo.Settings"),
                                QStringLiteral("dbo.StockCorrections")};
    for (const QString& table : TTestDatabase::Tables())
        QVERIFY2((Count(table) == 0) == emptyOnes.contains(table), qPrintable(table));
}

void SampleDataTest::theCategoryTreeHasFourLevels()
{
    QMap<int, int> levels{{0, 0}};
    int deepest = 0;
    for (const QVariantList& row :
         sample_->Rows(QStringLiteral("SELECT id, parent_code, path FROM category ORDER BY id"))) {
        const int parent = row.at(1).toInt();
        QVERIFY(levels.contains(parent));
        levels.insert(row.at(0).toInt(), levels.value(parent) + 1);
        deepest = qMax(deepest, levels.value(parent) + 1);
        QCOMPARE(row.at(2).toString().count(u','), levels.value(parent) + 2);
        QVERIFY(row.at(2).toString().endsWith(QStringLiteral(",%1,").arg(row.at(0).toInt())));
    }
    QCOMPARE(deepest, 4);
}

void SampleDataTest::someCategoriesShareAName()
{
    QVERIFY(Count(QStringLiteral("category WHERE name = N'سایر'")) > 1);
}

void SampleDataTest::vouchersStandInTheirFiscalYear()
{
    QCOMPARE(Count(QStringLiteral("dbo.Sanad AS s INNER JOIN dbo.FiscalYears AS y ON y.Code = s.FiscalYear "
                                  "WHERE s.VoucherDate < y.FromDate OR s.VoucherDate > y.ToDate")),
             0);
    const QVariantList dates =
        sample_->Column(QStringLiteral("SELECT VoucherDate FROM dbo.Sanad ORDER BY Id"));
    for (int index = 1; index < dates.size(); ++index)
        QVERIFY(dates.at(index - 1).toString() <= dates.at(index).toString());
    QCOMPARE(sample_->Value(QStringLiteral("SELECT MAX(ToDate) FROM dbo.FiscalYears")).toString(),
             QStringLiteral("1403/12/30"));
    QCOMPARE(sample_->Value(QStringLiteral("SELECT MIN(ToDate) FROM dbo.FiscalYears")).toString(),
             QStringLiteral("1402/12/29"));
}

void SampleDataTest::theYearsOpenWithBalancedBalances()
{
    QVERIFY(Count(QStringLiteral("dbo.fiscal")) > 10);
    QCOMPARE(Count(QStringLiteral("(SELECT FiscalYear FROM dbo.fiscal GROUP BY FiscalYear "
                                  "HAVING SUM(Bed) <> SUM(Bes)) AS t")),
             0);
    QCOMPARE(Count(QStringLiteral("dbo.fiscal WHERE Kol BETWEEN 600 AND 899")), 0);
}

void SampleDataTest::theChartHasTheDetailKindsThatMatter()
{
    for (const int kind : {0, 5, 10})
        QVERIFY(Count(QStringLiteral("AccTotals WHERE DetailType = %1").arg(kind)) > 0);
    // A detail account that must be given.
    QVERIFY(Count(QStringLiteral("AccTotals WHERE DetailType > 128")) > 0);
    for (const int nature : {0, 1, 2})
        QVERIFY(Count(QStringLiteral("AccTotals WHERE Nature = %1").arg(nature)) > 0);
    QVERIFY(Count(QStringLiteral("AccDetails WHERE CurrCode > 1")) > 0);
    QCOMPARE(Count(QStringLiteral("AccTotals AS t WHERE NOT EXISTS "
                                  "(SELECT a.Code FROM AccAssistants AS a WHERE a.TotalCode = t.Code)")),
             0);
}

void SampleDataTest::someDetailAccountsAreUsedByTheirUniqueCode()
{
    const QString uniqueTotals = QStringLiteral("Kol IN (SELECT Code FROM AccTotals WHERE DetailType = 10)");
    QVERIFY(Count(QStringLiteral("Sanad_Detail WHERE ") + uniqueTotals) > 0);
    QCOMPARE(
        Count(QStringLiteral("Sanad_Detail WHERE %1 AND Tafzili NOT IN (SELECT UniqueCode FROM AccDetails)")
                  .arg(uniqueTotals)),
        0);
    QCOMPARE(Count(QStringLiteral("AccDetails WHERE UniqueCode <> [Type] * 1000000 + Code")), 0);
}

void SampleDataTest::nationalCodesAndBarcodesCheck()
{
    for (const QVariant& code : sample_->Column(QStringLiteral("SELECT NationalCode FROM dbo.Persons")))
        QVERIFY2(NationalCode::IsValid(code.toString()), qPrintable(code.toString()));
    for (const QVariant& code : sample_->Column(QStringLiteral("SELECT NationalCode FROM dbo.Employees")))
        QVERIFY2(NationalCode::IsValid(code.toString()), qPrintable(code.toString()));
    for (const QVariant& barcode : sample_->Column(QStringLiteral("SELECT Barcode FROM dbo.kala")))
        QVERIFY2(BarcodeChecks(barcode.toString()), qPrintable(barcode.toString()));
    QVERIFY(!NationalCode::IsValid(QStringLiteral("0071234562")));
    QVERIFY(!NationalCode::IsValid(QString()));
    QVERIFY(!NationalCode::IsValid(QStringLiteral("۰۰۷۱۲۳۴۵۶۱")));
}

void SampleDataTest::spellingsAreMixedSoThatFoldingMatters()
{
    QString names;
    for (const QVariant& name : sample_->Column(QStringLiteral("SELECT Name FROM dbo.kala")))
        names += name.toString() + u'\n';
    for (const char16_t character : {u'ي', u'ك', u'ی', u'ک', u'\u200C', u'٥', u'۵', u'5', u'\u0640'})
        QVERIFY2(names.contains(QChar(character)), qPrintable(QString(QChar(character))));
}

void SampleDataTest::aPersonsBalanceIsWhatTheVouchersLeave()
{
    const int person =
        sample_->Value(QStringLiteral("SELECT TOP 1 Tafzili FROM Sanad_Detail WHERE Kol = 104")).toInt();
    const QVariant moved =
        sample_->Value(QStringLiteral("SELECT SUM(Bed) - SUM(Bes) FROM Sanad_Detail "
                                      "WHERE Kol IN (104, 105, 107, 301, 302, 305) AND Tafzili = %1")
                           .arg(person));
    QCOMPARE(sample_->Value(QStringLiteral("SELECT Balance FROM Persons WHERE Code = %1").arg(person))
                 .toLongLong(),
             moved.toLongLong());
    QVERIFY(Count(QStringLiteral("Persons WHERE Balance < 0")) > 0);
    QVERIFY(Count(QStringLiteral("Persons WHERE Balance > 0")) > 0);
}

void SampleDataTest::someTradesLackTheirVoucher()
{
    TSampleSize size = Tiny();
    size.VouchersPerYear = 400;
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Filled(size);
    const QVariant lacking =
        database->Value(QStringLiteral("SELECT COUNT(*) FROM Trades WHERE SanadId IS NULL"));
    QVERIFY(lacking.toInt() > 0 && lacking.toInt() < 40);
    QCOMPARE(database
                 ->Value(QStringLiteral("SELECT COUNT(*) FROM Trades AS t WHERE t.Amount <> "
                                        "(SELECT SUM(r.Amount) FROM TradeRows AS r WHERE r.TradeId = t.Id)"))
                 .toInt(),
             0);
}

void SampleDataTest::ratesOfTwoEntriesOnOneDateExist()
{
    QVERIFY(Count(QStringLiteral("(SELECT AccCurrencyID, CrRateDate FROM AccCrConvRate "
                                 "GROUP BY AccCurrencyID, CrRateDate HAVING COUNT(*) > 1) AS t")) > 0);
    QCOMPARE(Count(QStringLiteral(
                 "AccCurrency AS c WHERE c.CurCode > 1 AND NOT EXISTS "
                 "(SELECT r.CrRateCode FROM AccCrConvRate AS r WHERE r.AccCurrencyID = c.CurCode)")),
             0);
    QCOMPARE(Count(QStringLiteral("AccCrConvRate WHERE CrRateConvRate <= 0")), 0);
}

void SampleDataTest::picturesAreReadable()
{
    QVector<QVariantList> pictures = sample_->Rows(QStringLiteral("SELECT N'a.png', [h-img] FROM colors"));
    pictures += sample_->Rows(QStringLiteral("SELECT N'a.png', [l-img] FROM colors"));
    pictures += sample_->Rows(QStringLiteral("SELECT name, picture FROM PhotoGallery"));
    QVERIFY(pictures.size() > 25);
    int photographs = 0;
    for (const QVariantList& picture : pictures) {
        const bool photograph = picture.first().toString().endsWith(QStringLiteral(".jpg"));
        photographs += photograph ? 1 : 0;
        QImage image;
        QVERIFY(image.loadFromData(picture.last().toByteArray(), photograph ? "JPG" : "PNG"));
        QVERIFY(image.width() >= 16 && image.height() >= 16);
        QVERIFY(qAlpha(image.pixel(image.width() / 2, image.height() / 2)) == 255);
    }
    QVERIFY(photographs > 0);
}

void SampleDataTest::progressRisesToTheEnd()
{
    TADOConnection connection;
    connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
    connection.Open();
    QVector<int> told;
    QStringList stages;
    CreateSampleDatabase(connection, Tiny(), [&](int percent, const QString& stage) {
        told.append(percent);
        stages.append(stage);
        return true;
    });
    QVERIFY(std::is_sorted(told.cbegin(), told.cend()));
    QVERIFY(told.first() >= 0 && told.last() <= 100);
    QVERIFY(stages.contains(QStringLiteral("کالاها")) && stages.contains(QStringLiteral("سندها")));
}

void SampleDataTest::workCanBeAbandoned()
{
    TADOConnection connection;
    connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
    connection.Open();
    try {
        CreateSampleDatabase(connection, Tiny(),
                             [](int, const QString& stage) { return stage != QStringLiteral("سندها"); });
        QFAIL("The work went on");
    } catch (const EADOError& error) {
        QCOMPARE(error.Kind(), TAdoErrorKind::Cancelled);
    }
    QVERIFY(!connection.InTransaction());
    QVERIFY_THROWS_EXCEPTION(EADOError, connection.Execute(QStringLiteral("SELECT Code FROM dbo.kala")));
}

QTEST_GUILESS_MAIN(SampleDataTest)

#include "SampleDataTest.moc"
