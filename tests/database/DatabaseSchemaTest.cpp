#include "DatabaseSchema.h"

#include "AdoError.h"
#include "EntityTables.h"
#include "PersianText.h"
#include "TestDatabase.h"

#include <QTest>

/// The tables of the accounting database.
class DatabaseSchemaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aScriptIsCutAtItsGoLines();
    void everyStatementOfTheSchemaIsUnderstood();
    void aTableHasTheColumnsThatFramesName_data();
    void aTableHasTheColumnsThatFramesName();
    void everyKindOfEntityHasItsTable();
    void aLookupOfEachKindAnswersARow();
    void searchNamesAreFoldedAsAReaderCompares_data();
    void searchNamesAreFoldedAsAReaderCompares();
    void serverAssignedCodesCountFromOne();
    void aCodeIsLockedOnceOnly();
    void aSecondTagOfTheSameNameIsRefused();
    void aRowCannotReferToWhatIsNotThere();
};

void DatabaseSchemaTest::aScriptIsCutAtItsGoLines()
{
    const QString script = QStringLiteral("-- what it is\nCREATE TABLE a (\n  -- why\n  b int\n)\nGO\n\ngo\n"
                                          "INSERT INTO a VALUES ('GO')\r\n GO \r\nSELECT 1");
    QCOMPARE(DatabaseSchema::Batches(script),
             QStringList({QStringLiteral("CREATE TABLE a (\n  b int\n)"),
                          QStringLiteral("INSERT INTO a VALUES ('GO')"), QStringLiteral("SELECT 1")}));
}

void DatabaseSchemaTest::everyStatementOfTheSchemaIsUnderstood()
{
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Empty();
    QCOMPARE(database->Value(QStringLiteral("SELECT Version FROM dbo.SchemaInfo")).toInt(),
             DatabaseSchema::Version);
}

void DatabaseSchemaTest::aTableHasTheColumnsThatFramesName_data()
{
    QTest::addColumn<QString>("columns");
    const auto add = [](const char* table, const char* columns) {
        QTest::newRow(table) << QString::fromLatin1(columns);
    };
    add("AccTotals", "Code, GroupCode, DetailType, Nature, Properties");
    add("AccGroups", "Code, [Type]");
    add("AccAssistants", "TotalCode, Code, Name");
    add("AccDetails", "Code, [Type], CurrCode, UniqueCode");
    add("Sanad_Detail", "Kol, Moin, Tafzili, Tafsili2");
    add("FinancialReport", "Kol, Tafsili");
    add("FinancialReportDetail", "Kol, Tafsili");
    add("AutoVoucherSetting", "Total, Detail");
    add("Recruitment", "Per_Kol, Per_Tafsili");
    add("Deduction", "Kol, Tafzili");
    add("fiscal", "Kol, Tafzili");
    add("AccCurrency", "CurCode, CurTitle, CurCountry");
    add("AccCrConvRate", "AccCurrencyID, CrRateDate, CrRateCode, CrRateConvRate");
    add("TagS", "Code, Name, color_code");
    add("colors", "code, cl_code, [h-img], [l-img]");
    add("category", "id, parent_code, name");
    add("DefaultUserCategory", "user_code, Code_category, Person, Good");
    add("kala_category", "kala_code, category_code");
    add("Person_category", "person_code, category_code");
    add("PhotoGallery", "GRPCode, Id_Pic, address, name, picture");
    add("kala", "Code, Name, SearchName, Barcode, UnitName, GroupCode, Price, Stock, tags, Active");
    add("Persons",
        "Code, Name, FullName, SearchName, NationalCode, Phone, City, Address, Balance, tags, Active");
    add("users", "Code, Name");
    add("Sanad", "Id, FiscalYear, Number, VoucherDate");
    add("Trades", "Id, Kind, SanadId, NeedsRefresh");
    add("CodeLocks",
        "SoftwarePart, Code, UserCode, UserName, Machine, ProcessId, OwnerId, TakenAt, ExpiresAt");
    add("Settings", "UserCode, Name, Value");
    add("VoucherRows", "kol, Moin, Tafsili, Tafzili, Tafsili2, VoucherDate, Bed, Bes");
    add("KalaList", "Code, Name, SearchName, GroupName, tags, Categories");
    add("PersonList", "Code, Name, SearchName, GroupName, tags, Categories");
}

void DatabaseSchemaTest::aTableHasTheColumnsThatFramesName()
{
    QFETCH(const QString, columns);
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Empty();
    const QString statement =
        QStringLiteral("SELECT %1 FROM dbo.%2").arg(columns, QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(database->Rows(statement).isEmpty());
}

void DatabaseSchemaTest::everyKindOfEntityHasItsTable()
{
    QList<int> kinds;
    for (const TEntityTable& table : EntityTables::All()) {
        kinds.append(table.EntityType);
        // Finds this row and no other: each kind has an option of its own.
        QCOMPARE(EntityTables::ByLookupOption(table.LookupOption), &table);
    }
    QList<int> expected;
    for (int kind = 1; kind <= 28; ++kind) {
        if (kind != 17)
            expected.append(kind);
    }
    QCOMPARE(kinds, expected);
    QCOMPARE(EntityTables::ByLookupOption(7), nullptr);
}

void DatabaseSchemaTest::aLookupOfEachKindAnswersARow()
{
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Filled();
    for (const TEntityTable& table : EntityTables::All()) {
        QString columns = table.Fields;
        columns.replace(u';', u',');
        const QVector<QVariantList> rows =
            database->Rows(QStringLiteral("SELECT %1 FROM %2 WHERE Code = 1").arg(columns, table.Table));
        QCOMPARE(rows.size(), 1);
        for (const QVariant& value : rows.first())
            QVERIFY2(!value.toString().trimmed().isEmpty(), qPrintable(table.Table));
    }
}

void DatabaseSchemaTest::searchNamesAreFoldedAsAReaderCompares_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("folded");
    const auto add = [](const char* tag, const QString& name, const QString& folded) {
        QTest::newRow(tag) << name << folded;
    };
    add("Arabic yeh", QStringLiteral("چاي"), QStringLiteral("چای"));
    add("alef maksura", QStringLiteral("موسى"), QStringLiteral("موسی"));
    add("Arabic kaf", QStringLiteral("شكر"), QStringLiteral("شکر"));
    add("Persian digits", QStringLiteral("۰۱۲۳۴۵۶۷۸۹"), QStringLiteral("0123456789"));
    add("Arabic-Indic digits", QStringLiteral("٠١٢٣٤٥٦٧٨٩"), QStringLiteral("0123456789"));
    add("half-space", QStringLiteral("گوجه\u200Cفرنگی"), QStringLiteral("گوجهفرنگی"));
    add("kashida", QStringLiteral("بـــرنج"), QStringLiteral("برنج"));
    add("upper case", QStringLiteral("کابل HDMI"), QStringLiteral("کابل hdmi"));
    add("letters beyond ASCII", QStringLiteral("ÄÉ Ω Ж"), QStringLiteral("äé ω ж"));
    add("hamza and madda stay", QStringLiteral("آرامش مؤمن تأمین"), QStringLiteral("آرامش مؤمن تأمین"));
    add("blanks stay", QStringLiteral("  دو  تا "), QStringLiteral("  دو  تا "));
    add("quotes and wildcards", QStringLiteral("'%_[]"), QStringLiteral("'%_[]"));
}

void DatabaseSchemaTest::searchNamesAreFoldedAsAReaderCompares()
{
    QFETCH(const QString, name);
    QFETCH(const QString, folded);
    QCOMPARE(PersianText::Fold(name), folded);
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Empty();
    database->Connection().Execute(
        QStringLiteral("INSERT INTO dbo.kala (Code, Name, UnitName) VALUES (1, ?, N'عدد')"), {name});
    QCOMPARE(database->Value(QStringLiteral("SELECT SearchName FROM dbo.kala")).toString(), folded);
    database->Connection().Execute(
        QStringLiteral("INSERT INTO dbo.Persons (Code, Name, FullName) VALUES (1, N'-', ?)"), {name});
    QCOMPARE(database->Value(QStringLiteral("SELECT SearchName FROM dbo.Persons")).toString(), folded);
}

void DatabaseSchemaTest::serverAssignedCodesCountFromOne()
{
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Empty();
    database->Execute(QStringLiteral("INSERT INTO colors (cl_code) VALUES ('clRed'), ('clBlue')"));
    database->Execute(QStringLiteral("INSERT INTO TagS (Name, color_code) VALUES (N'ویژه', 2)"));
    QCOMPARE(database->Value(QStringLiteral("SELECT Code FROM tags WHERE name='ویژه'")).toInt(), 1);
    QCOMPARE(database->Value(QStringLiteral("SELECT MAX(code) FROM colors")).toInt(), 2);
}

void DatabaseSchemaTest::aCodeIsLockedOnceOnly()
{
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Empty();
    const QString lock = QStringLiteral("INSERT INTO dbo.CodeLocks (SoftwarePart, Code, UserCode, UserName, "
                                        "Machine, ProcessId, OwnerId, TakenAt, "
                                        "ExpiresAt) VALUES (%1, N'12', 1, N'حسابدار', N'PC1', 7, N'a', "
                                        "'2026-01-01T08:00:00', '2026-01-01T09:00:00')");
    database->Execute(lock.arg(1270001));
    database->Execute(lock.arg(1270002));
    QVERIFY_THROWS_EXCEPTION(EADOError, database->Execute(lock.arg(1270001)));
}

void DatabaseSchemaTest::aSecondTagOfTheSameNameIsRefused()
{
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Empty();
    database->Execute(QStringLiteral("INSERT INTO colors (cl_code) VALUES ('clRed')"));
    database->Execute(QStringLiteral("INSERT INTO TagS (Name, color_code) VALUES (N'VIP', 1)"));
    QVERIFY_THROWS_EXCEPTION(EADOError, database->Execute(QStringLiteral(
                                            "INSERT INTO TagS (Name, color_code) VALUES (N'vip', 1)")));
}

void DatabaseSchemaTest::aRowCannotReferToWhatIsNotThere()
{
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Empty();
    QVERIFY_THROWS_EXCEPTION(EADOError, database->Execute(QStringLiteral(
                                            "INSERT INTO TagS (Name, color_code) VALUES (N'ویژه', 5)")));
    QVERIFY_THROWS_EXCEPTION(
        EADOError, database->Execute(QStringLiteral(
                       "INSERT INTO dbo.AccTotals (Code, Name, GroupCode) VALUES (101, N'صندوق', 1)")));
}

QTEST_GUILESS_MAIN(DatabaseSchemaTest)

#include "DatabaseSchemaTest.moc"
