#include "StatementFixture.h"

#include <sqlite3.h>

#include <QtTest>

namespace {

QStringList Accounts()
{
    return {
        QStringLiteral("CREATE TABLE dbo.AccGroups (Code int NOT NULL PRIMARY KEY, [Type] tinyint NOT NULL)"),
        QStringLiteral("CREATE TABLE dbo.AccTotals (Code int NOT NULL PRIMARY KEY, GroupCode int NOT NULL, "
                       "DetailType int NOT NULL, Nature int NOT NULL, Properties int NOT NULL)"),
        QStringLiteral(
            "CREATE TABLE dbo.AccDetails ([Type] int NOT NULL, Code int NOT NULL, CurrCode int NULL, "
            "UniqueCode int NULL, PRIMARY KEY ([Type], Code))"),
        QStringLiteral(
            "CREATE TABLE dbo.Sanad_Detail (Id bigint IDENTITY(1,1) PRIMARY KEY, Kol int, Tafzili int)"),
        QStringLiteral("CREATE TABLE dbo.FinancialReport (Kol int, Tafsili int)"),
        QStringLiteral("CREATE TABLE dbo.FinancialReportDetail (Kol int, Tafsili int)"),
        QStringLiteral("CREATE TABLE dbo.AutoVoucherSetting (Total int, Detail int)"),
        QStringLiteral("CREATE TABLE dbo.Recruitment (Per_Kol int, Per_Tafsili int)"),
        QStringLiteral("CREATE TABLE dbo.Deduction (Kol int, Tafzili int)"),
        QStringLiteral("CREATE TABLE dbo.fiscal (Kol int, Tafzili int)"),
        QStringLiteral("INSERT INTO AccGroups (Code, [Type]) VALUES (1, 1), (5, 2)"),
        QStringLiteral("INSERT INTO AccTotals VALUES (101, 1, 3, 1, 7), (205, 5, 10, 2, 0)"),
        QStringLiteral(
            "INSERT INTO AccDetails VALUES (3, 12, NULL, 1012), (3, 13, 2, 1013), (4, 12, 4, 1014)"),
        QStringLiteral("INSERT INTO Sanad_Detail VALUES (205, 1012), (101, 1013), (205, 1012)"),
        QStringLiteral("INSERT INTO FinancialReport VALUES (205, 1012)"),
        QStringLiteral("INSERT INTO AutoVoucherSetting VALUES (101, 1012)"),
        QStringLiteral("INSERT INTO fiscal VALUES (205, 1012)"),
    };
}

QStringList Labels()
{
    return {
        QStringLiteral(
            "CREATE TABLE dbo.colors (code int IDENTITY(1,1) NOT NULL PRIMARY KEY, cl_code nvarchar(50) NOT "
            "NULL, [h-img] varbinary(max) NULL, [l-img] varbinary(max) NULL)"),
        QStringLiteral(
            "CREATE TABLE dbo.TagS (Code int IDENTITY(1,1) NOT NULL PRIMARY KEY, Name nvarchar(50) NOT NULL, "
            "color_code int NOT NULL REFERENCES dbo.colors (code))"),
        QStringLiteral(
            "CREATE TABLE dbo.kala (Code int NOT NULL PRIMARY KEY, Name nvarchar(200) NOT NULL, tags "
            "nvarchar(max) NULL)"),
        QStringLiteral("CREATE TABLE tmp (TAGS nvarchar(max) NULL)"),
        QStringLiteral(
            "INSERT INTO colors (cl_code, [h-img], [l-img]) VALUES ('$0000FF', 0xAA01, 0xBB01), ('$00FF00', "
            "0xAA02, NULL)"),
        QStringLiteral(
            "INSERT INTO TagS (Name, color_code) VALUES (N'فوری', 1), (N'O''Neil', 2), (N'Urgent', 1), "
            "(N'فروش ویژه', 2), (N'مهم', 2)"),
        QStringLiteral(
            "INSERT INTO kala VALUES (1, N'پیچ', NULL), (2, N'مهره', N',3,'), (3, N'واشر', N',5,'), (4, "
            "N'میخ', N',15,51,')"),
        QStringLiteral("INSERT INTO tmp VALUES (N',3,5,'), (NULL)"),
    };
}

QStringList Categories()
{
    return {
        QStringLiteral("CREATE TABLE dbo.category (id int NOT NULL PRIMARY KEY, name nvarchar(100) NOT NULL, "
                       "parent_code "
                       "int NOT NULL)"),
        QStringLiteral(
            "CREATE TABLE dbo.DefaultUserCategory (user_code int, Code_category int, Person bit, Good bit)"),
        QStringLiteral(
            "CREATE TABLE dbo.kala_category (kala_code int NOT NULL PRIMARY KEY, category_code int)"),
        QStringLiteral(
            "CREATE TABLE dbo.Person_category (person_code int NOT NULL PRIMARY KEY, category_code int)"),
        QStringLiteral("INSERT INTO category VALUES (1, N'کالا', 0), (2, N'ابزار', 1), (3, N'Paint', 1), (7, "
                       "N'paint', 2), "
                       "(8, N'استاد''کار', 2)"),
        QStringLiteral("INSERT INTO DefaultUserCategory VALUES (4, 2, 1, 0), (4, 3, 0, 1), (5, 1, 1, 1)"),
        QStringLiteral("INSERT INTO kala_category VALUES (25, 7)"),
        QStringLiteral("INSERT INTO Person_category VALUES (12, 2)"),
    };
}

QStringList CurrenciesAndPictures()
{
    return {
        QStringLiteral(
            "CREATE TABLE dbo.AccCurrency (CurCode int NOT NULL PRIMARY KEY, CurTitle nvarchar(50) NULL, "
            "CurCountry nvarchar(50) NULL)"),
        QStringLiteral(
            "CREATE TABLE dbo.AccCrConvRate (CrRateCode int IDENTITY(1,1) PRIMARY KEY, AccCurrencyID int NOT "
            "NULL, CrRateDate nvarchar(10) NOT NULL, CrRateConvRate decimal(18,4) NOT NULL)"),
        QStringLiteral(
            "CREATE TABLE dbo.PhotoGallery (Id_Pic int NOT NULL, GRPCode int NOT NULL, name nvarchar(100), "
            "address nvarchar(300), picture varbinary(max), PRIMARY KEY (GRPCode, Id_Pic))"),
        QStringLiteral("INSERT INTO AccCurrency VALUES (1, N'ریال', N'ایران'), (2, N'دلار', N'آمریکا'), (3, "
                       "N'بی‌نام', "
                       "NULL)"),
        QStringLiteral(
            "INSERT INTO AccCrConvRate (AccCurrencyID, CrRateDate, CrRateConvRate) VALUES (2, '1403/01/05', "
            "500000), (2, '1403/02/01', 510000.25), (2, '1403/02/01', 511000.5), (2, '1403/12/29', 600000), "
            "(3, '1403/01/01', 7)"),
        QStringLiteral("INSERT INTO PhotoGallery VALUES (25, 0, N'الف.jpg', N'', 0xFFD8), (25, 3, N'ب.png', "
                       "NULL, NULL), "
                       "(26, 3, N'پ.jpg', NULL, 0xFFD9)"),
    };
}

void ExpenseCenterName(sqlite3_context* context, int, sqlite3_value** values)
{
    const QString name = QStringLiteral("مرکز %1").arg(sqlite3_value_int(values[0]));
    const QByteArray text = name.toUtf8();
    sqlite3_result_text(context, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

void UniqueCode(sqlite3_context* context, int, sqlite3_value** values)
{
    sqlite3_result_int(context, 1000 + sqlite3_value_int(values[0]));
}

/// The fixture's tree: 1 has 2 and 3, 2 has 7 and 8.
void SubNodes(sqlite3_context* context, int, sqlite3_value** values)
{
    const int id = sqlite3_value_int(values[0]);
    const char* nodes = id == 0 ? "(1)" : id == 1 ? "(2,3)" : id == 2 ? "(7,8)" : "()";
    sqlite3_result_text(context, nodes, -1, SQLITE_STATIC);
}

} // namespace

TStatementDatabase::TStatementDatabase()
{
    RegisterFunctions();
    Prepare(Accounts());
    Prepare(Labels());
    Prepare(Categories());
    Prepare(CurrenciesAndPictures());
}

void TStatementDatabase::RegisterFunctions()
{
    const auto add = [this](const char* name, int count,
                            void (*function)(sqlite3_context*, int, sqlite3_value**)) {
        sqlite3_create_function(Connection(), name, count, SQLITE_UTF8, nullptr, function, nullptr, nullptr);
    };
    add("dbo_getexpcentername", 1, ExpenseCenterName);
    add("dbo_getuinquecode_fnc", 1, UniqueCode);
    add("dbo_category_subnodes", 3, SubNodes);
}

QStringList TStatementDatabase::ComparableRows(const QString& tsql)
{
    QStringList rows = Rows(tsql);
    if (!tsql.contains(QLatin1String("ORDER BY"), Qt::CaseInsensitive))
        rows.sort();
    return rows;
}

QString TStatementDatabase::Tags()
{
    return Rows(QStringLiteral("SELECT tags FROM kala ORDER BY Code")).join(u' ');
}

QString Q(const QString& text)
{
    return u'\'' + QString(text).replace(u'\'', QLatin1String("''")) + u'\'';
}

void StatementColumns()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QStringList>("rows");
}

void StatementRow(const char* name, const QString& statement, const QStringList& rows)
{
    QTest::newRow(name) << statement << rows;
}
