#include "DatabaseFunctions.h"
#include "DatabaseSchema.h"
#include "TestDatabase.h"

#include <QDateTime>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

/// The database functions on the embedded engine.
class DatabaseFunctionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theScriptDefinesTheRegisteredFunctions();
    void anExpenseCenterIsNamedByItsCode_data();
    void anExpenseCenterIsNamedByItsCode();
    void theNextUniqueCodeIsFreeOfItsKind_data();
    void theNextUniqueCodeIsFreeOfItsKind();
    void aLiveLockKeepsANumberFromBeingProposed_data();
    void aLiveLockKeepsANumberFromBeingProposed();
    void theNodesBeneathACategoryAreListed_data();
    void theNodesBeneathACategoryAreListed();
    void aCycleOfCategoriesComesToAnEnd();
    void theListOfNodesServesAsAnInList();

private:
    static QVariant Call(TTestDatabase& database, const QString& call)
    {
        return database.Value(QStringLiteral("SELECT dbo.%1 AS value").arg(call));
    }
};

void DatabaseFunctionsTest::theScriptDefinesTheRegisteredFunctions()
{
    QFile script(QStringLiteral(":/database/functions.sql"));
    QVERIFY(script.open(QIODevice::ReadOnly));
    static const QRegularExpression definition(
        QStringLiteral("^CREATE OR ALTER FUNCTION dbo\\.(\\w+) \\(([^)]*)\\)"));
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Empty();
    const QStringList batches = DatabaseSchema::Batches(QString::fromUtf8(script.readAll()));
    QCOMPARE(batches.size(), 3);
    for (const QString& batch : batches) {
        const QRegularExpressionMatch match = definition.match(batch);
        QVERIFY2(match.hasMatch(), qPrintable(batch));
        const QStringList nulls(match.captured(2).count(u'@'), QStringLiteral("NULL"));
        // Throws where the embedded engine does not know the function with as many arguments.
        Call(*database, match.captured(1) + u'(' + nulls.join(u',') + u')');
    }
}

void DatabaseFunctionsTest::anExpenseCenterIsNamedByItsCode_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QVariant>("title");
    QTest::newRow("as it is") << QStringLiteral("7") << QVariant(QStringLiteral("فروش"));
    QTest::newRow("completed with zeros") << QStringLiteral("0007") << QVariant(QStringLiteral("فروش"));
    QTest::newRow("unknown") << QStringLiteral("9999") << QVariant();
    QTest::newRow("zero") << QStringLiteral("0000") << QVariant();
    QTest::newRow("nothing") << QStringLiteral("NULL") << QVariant();
}

void DatabaseFunctionsTest::anExpenseCenterIsNamedByItsCode()
{
    QFETCH(const QString, argument);
    QFETCH(const QVariant, title);
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Empty();
    database->Execute(QStringLiteral("INSERT INTO dbo.ExpenseCenters (Code, Title) VALUES (7, N'فروش')"));
    const QVariant answer = Call(*database, QStringLiteral("GetExpCenterName(%1)").arg(argument));
    QCOMPARE(answer.isValid(), title.isValid());
    QCOMPARE(answer.toString(), title.toString());
}

void DatabaseFunctionsTest::theNextUniqueCodeIsFreeOfItsKind_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QVector<int>>("used");
    QTest::addColumn<int>("next");
    QTest::newRow("first of its kind") << QStringLiteral("3") << QVector<int>() << 3000001;
    QTest::newRow("behind the highest") << QStringLiteral("3") << QVector<int>{3000001, 3000007} << 3000008;
    QTest::newRow("other kinds do not count")
        << QStringLiteral("3") << QVector<int>{2000005, 4000009} << 3000001;
    QTest::newRow("kind 0") << QStringLiteral("0") << QVector<int>{1, 2} << 3;
    QTest::newRow("a gap when the end is reached")
        << QStringLiteral("1") << QVector<int>{1000001, 1000002, 1999999} << 1000003;
    QTest::newRow("the first when only the last is used")
        << QStringLiteral("1") << QVector<int>{1999999} << 1000001;
    QTest::newRow("no such kind") << QStringLiteral("100") << QVector<int>() << 0;
    QTest::newRow("below zero") << QStringLiteral("-1") << QVector<int>() << 0;
    QTest::newRow("nothing") << QStringLiteral("NULL") << QVector<int>() << 0;
}

void DatabaseFunctionsTest::theNextUniqueCodeIsFreeOfItsKind()
{
    QFETCH(const QString, kind);
    QFETCH(const QVector<int>, used);
    QFETCH(const int, next);
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Empty();
    database->Execute(QStringLiteral("INSERT INTO dbo.AccDetailTypes (Code, Name) VALUES (1, N'اشخاص')"));
    for (const int code : used) {
        database->Connection().Execute(
            QStringLiteral(
                "INSERT INTO dbo.AccDetails ([Type], Code, Name, UniqueCode) VALUES (1, ?, N'-', ?)"),
            {code, code});
    }
    QCOMPARE(Call(*database, QStringLiteral("GetUinqueCode_FNC(%1)").arg(kind)).toInt(), next);
}

void DatabaseFunctionsTest::aLiveLockKeepsANumberFromBeingProposed_data()
{
    QTest::addColumn<int>("part");
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("secondsLeft");
    QTest::addColumn<int>("next");
    QTest::newRow("held") << 1270001 << QStringLiteral("1000001") << 600 << 1000002;
    QTest::newRow("held with zeros in front") << 1270001 << QStringLiteral("01000001") << 600 << 1000002;
    QTest::newRow("held for another kind") << 1270006 << QStringLiteral("1000001") << 600 << 1000002;
    QTest::newRow("expired") << 1270001 << QStringLiteral("1000001") << -5 << 1000001;
    QTest::newRow("another number") << 1270001 << QStringLiteral("1000009") << 600 << 1000001;
    QTest::newRow("a lock of another part") << 101 << QStringLiteral("1000001") << 600 << 1000001;
    QTest::newRow("no number") << 1270001 << QStringLiteral("abc") << 600 << 1000001;
}

void DatabaseFunctionsTest::aLiveLockKeepsANumberFromBeingProposed()
{
    QFETCH(const int, part);
    QFETCH(const QString, code);
    QFETCH(const int, secondsLeft);
    QFETCH(const int, next);
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Empty();
    const QString format = QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz");
    const QDateTime now = QDateTime::currentDateTimeUtc();
    database->Connection().Execute(
        QStringLiteral(
            "INSERT INTO dbo.CodeLocks (SoftwarePart, Code, UserCode, UserName, Machine, ProcessId, OwnerId, "
            "TakenAt, ExpiresAt) VALUES (?, ?, 1, N'حسابدار', N'PC1', 7, N'a', ?, ?)"),
        {part, code, now.addSecs(-60).toString(format), now.addSecs(secondsLeft).toString(format)});
    QCOMPARE(Call(*database, QStringLiteral("GetUinqueCode_FNC(1)")).toInt(), next);
}

void DatabaseFunctionsTest::theNodesBeneathACategoryAreListed_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("list");
    const auto add = [](const char* tag, const char* call, const char* list) {
        QTest::newRow(tag) << QString::fromLatin1(call) << QString::fromLatin1(list);
    };
    add("top level", "Category_SubNodes(0,0,1)", "(1,2,7)");
    add("children in ascending order", "Category_SubNodes(1,0,1)", "(3,4)");
    add("no children", "Category_SubNodes(6,0,1)", "()");
    add("unknown category", "Category_SubNodes(99,0,1)", "()");
    add("below zero", "Category_SubNodes(-1,0,1)", "()");
    add("nothing", "Category_SubNodes(NULL,0,1)", "()");
    add("without parentheses", "Category_SubNodes(1,0,0)", "3,4");
    add("all levels", "Category_SubNodes(1,1,1)", "(3,4,5,6)");
    add("all levels from the root", "Category_SubNodes(0,1,1)", "(1,2,3,4,5,6,7)");
    add("all levels, no children", "Category_SubNodes(6,1,1)", "()");
}

void DatabaseFunctionsTest::theNodesBeneathACategoryAreListed()
{
    QFETCH(const QString, call);
    QFETCH(const QString, list);
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Empty();
    // The last one has a parent below zero, which is the top level too.
    database->Execute(
        QStringLiteral("INSERT INTO category (parent_code, name) VALUES (0, N'کالا'), (0, N'اشخاص'), "
                       "(1, N'خوراک'), (1, N'پوشاک'), (3, N'برنج'), (5, N'ایرانی'), (-1, N'سایر')"));
    QCOMPARE(Call(*database, call).toString(), list);
}

void DatabaseFunctionsTest::aCycleOfCategoriesComesToAnEnd()
{
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Empty();
    database->Execute(
        QStringLiteral("INSERT INTO category (parent_code, name) VALUES (2, N'یک'), (1, N'دو')"));
    QCOMPARE(Call(*database, QStringLiteral("Category_SubNodes(1,1,1)")).toString(), QStringLiteral("(1,2)"));
}

void DatabaseFunctionsTest::theListOfNodesServesAsAnInList()
{
    const std::unique_ptr<TTestDatabase> database = TTestDatabase::Filled();
    const QString list = Call(*database, QStringLiteral("Category_SubNodes(0,0,1)")).toString();
    const QVector<QVariantList> rows = database->Rows(
        QStringLiteral(
            "SELECT *,(SELECT parent_code FROM category WHERE id=ID1) AS parent_id FROM( SELECT NAME, "
            "MIN(ID) AS ID1 FROM category group BY NAME) AS t1 where ID1 in %1 ORDER BY ID1")
            .arg(list));
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.first().first().toString(), QStringLiteral("کالاها"));
    QCOMPARE(rows.last().first().toString(), QStringLiteral("اشخاص"));
}

QTEST_GUILESS_MAIN(DatabaseFunctionsTest)

#include "DatabaseFunctionsTest.moc"
