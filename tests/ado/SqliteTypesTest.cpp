#include "SqliteTypes.h"

#include <QTest>

class SqliteTypesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aServerTypeIsDeclaredAndReadBack_data();
    void aServerTypeIsDeclaredAndReadBack();
    void anUnknownTypeHasNoDeclaration();
    void aResultColumnWithoutADeclarationIsUnknown();
    void aTextWithoutALengthIsAMemo();
};

void SqliteTypesTest::aServerTypeIsDeclaredAndReadBack_data()
{
    QTest::addColumn<QString>("serverType");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("scale");
    QTest::addColumn<QString>("declared");
    QTest::addColumn<TFieldType>("type");
    QTest::addColumn<int>("size");

    const auto row = [](const char* server, int length, int scale, const char* declared, TFieldType type,
                        int size) {
        QTest::newRow(qPrintable(QStringLiteral("%1(%2)").arg(QLatin1String(server)).arg(length)))
            << QString::fromLatin1(server) << length << scale << QString::fromLatin1(declared) << type
            << size;
    };
    row("bit", 0, 0, "BIT", TFieldType::ftBoolean, 0);
    row("Int", 0, 0, "INT", TFieldType::ftInteger, 0);
    row("SMALLINT", 0, 0, "SMALLINT", TFieldType::ftInteger, 0);
    row("tinyint", 0, 0, "TINYINT", TFieldType::ftInteger, 0);
    row("bigint", 0, 0, "BIGINT", TFieldType::ftLargeint, 0);
    row("float", 53, 0, "FLOAT", TFieldType::ftFloat, 0);
    row("real", 0, 0, "REAL", TFieldType::ftFloat, 0);
    row("decimal", 18, 3, "DECIMAL_TEXT(18,3)", TFieldType::ftBCD, 0);
    row("numeric", 0, 0, "DECIMAL_TEXT(18,0)", TFieldType::ftBCD, 0);
    row("money", 0, 0, "MONEY_TEXT", TFieldType::ftBCD, 0);
    row("smallmoney", 0, 0, "MONEY_TEXT", TFieldType::ftBCD, 0);
    row("date", 0, 0, "DATE_TEXT", TFieldType::ftDate, 0);
    row("datetime", 0, 0, "DATETIME_TEXT", TFieldType::ftDateTime, 0);
    row("datetime2", 7, 0, "DATETIME_TEXT", TFieldType::ftDateTime, 0);
    row("char", 0, 0, "CHAR(1)", TFieldType::ftWideString, 1);
    row("varchar", 30, 0, "VARCHAR(30)", TFieldType::ftWideString, 30);
    row("nchar", 10, 0, "NCHAR(10)", TFieldType::ftWideString, 10);
    row("nvarchar", 200, 0, "NVARCHAR(200)", TFieldType::ftWideString, 200);
    row("nvarchar", UnboundedLength, 0, "TEXT", TFieldType::ftWideMemo, 0);
    row("ntext", 0, 0, "TEXT", TFieldType::ftWideMemo, 0);
    row("varbinary", UnboundedLength, 0, "BLOB", TFieldType::ftBlob, 0);
    row("image", 0, 0, "BLOB", TFieldType::ftBlob, 0);
}

void SqliteTypesTest::aServerTypeIsDeclaredAndReadBack()
{
    QFETCH(QString, serverType);
    QFETCH(int, length);
    QFETCH(int, scale);
    QFETCH(QString, declared);
    QFETCH(TFieldType, type);
    QFETCH(int, size);

    QCOMPARE(SqliteDeclaredType(serverType, length, scale), declared);
    const TColumnInfo column = SqliteColumnInfo(declared.toLatin1().constData());
    QCOMPARE(column.Type, type);
    QCOMPARE(column.Size, size);
}

void SqliteTypesTest::anUnknownTypeHasNoDeclaration()
{
    QCOMPARE(SqliteDeclaredType(u"geography"), QString());
    QCOMPARE(SqliteDeclaredType(u""), QString());
    QCOMPARE(SqliteDeclaredType(u"in"), QString());
}

void SqliteTypesTest::aResultColumnWithoutADeclarationIsUnknown()
{
    QCOMPARE(SqliteColumnInfo(nullptr).Type, TFieldType::ftUnknown);
    QCOMPARE(SqliteColumnInfo("").Type, TFieldType::ftUnknown);
    QCOMPARE(SqliteColumnInfo("POINT").Type, TFieldType::ftUnknown);
    QCOMPARE(SqliteColumnInfo("integer").Type, TFieldType::ftInteger);
}

void SqliteTypesTest::aTextWithoutALengthIsAMemo()
{
    QCOMPARE(SqliteColumnInfo("NVARCHAR(MAX)").Type, TFieldType::ftWideMemo);
    QCOMPARE(SqliteColumnInfo("varchar").Type, TFieldType::ftWideMemo);
    QCOMPARE(SqliteColumnInfo("NVARCHAR (50)").Size, 50);
}

QTEST_APPLESS_MAIN(SqliteTypesTest)
#include "SqliteTypesTest.moc"
