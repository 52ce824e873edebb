#include "RecordCategories.h"

#include "ADOConnection.h"
#include "AdoError.h"

#include <memory>
#include <QTest>

/// Categories of records given and taken away, of few and of very many at once.
class RecordCategoriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { connection_.reset(); }
    void aChoiceOfOrdinarySizeIsOneStatementEach();
    void anyCategoryBeforeIsReplaced();
    void recordsThatAreGoneGetNone();
    void manyRecordsAreOneTransactionOfSeveralStatements();
    void aFailureInALaterStatementWritesNothing_data();
    void aFailureInALaterStatementWritesNothing();
    void noRecordsAreNoStatement();

private:
    static constexpr int goods = 2500;

    TRecordCategories Categories()
    {
        return {*connection_,
                {QStringLiteral("dbo.kala"), QStringLiteral("dbo.kala_category"), QStringLiteral("kala_code"),
                 TCategoryStore::TListKind::Goods},
                QStringLiteral("Code")};
    }
    static QStringList Keys(int count)
    {
        QStringList keys;
        for (int key = 1; key <= count; ++key)
            keys.append(QString::number(key));
        return keys;
    }
    int Number(const QString& statement)
    {
        const auto rows = connection_->Run(statement);
        return rows->Next() ? static_cast<int>(rows->Int64(0)) : -1;
    }
    int CountIn(int category)
    {
        return Number(
            QStringLiteral("SELECT COUNT(*) FROM dbo.kala_category WHERE category_code = %1").arg(category));
    }

    std::unique_ptr<TADOConnection> connection_;
    QStringList sent_;
};

void RecordCategoriesTest::init()
{
    connection_ = std::make_unique<TADOConnection>();
    connection_->SetConnectionString(QStringLiteral("sqlite::memory:"));
    connection_->Open();
    connection_->Execute(QStringLiteral("CREATE TABLE dbo.kala (Code int NOT NULL PRIMARY KEY)"));
    connection_->Execute(QStringLiteral(
        "CREATE TABLE dbo.kala_category (kala_code int NOT NULL PRIMARY KEY, category_code int "
        "NOT NULL)"));
    for (int key = 1; key <= goods; ++key)
        connection_->Execute(QStringLiteral("INSERT INTO dbo.kala (Code) VALUES (?)"), {key});
    connection_->Execute(
        QStringLiteral("INSERT INTO dbo.kala_category (kala_code, category_code) VALUES (2, 4)"));
    sent_.clear();
    connection_->OnWillExecute = [this](TADOConnection*, const QString& text) { sent_.append(text); };
}

void RecordCategoriesTest::aChoiceOfOrdinarySizeIsOneStatementEach()
{
    Categories().Assign({QStringLiteral("2"), QStringLiteral("3")}, 5);
    QCOMPARE(sent_, QStringList({QStringLiteral("UPDATE dbo.kala_category SET category_code = 5 WHERE "
                                                "kala_code IN (2,3)"),
                                 QStringLiteral("INSERT INTO dbo.kala_category (kala_code, category_code) "
                                                "SELECT Code, 5 FROM dbo.kala WHERE Code IN (2,3) AND Code "
                                                "NOT IN (SELECT kala_code FROM dbo.kala_category)")}));
    sent_.clear();
    Categories().TakeAway({QStringLiteral("2"), QStringLiteral("3")});
    QCOMPARE(sent_, QStringList(QStringLiteral("DELETE FROM dbo.kala_category WHERE kala_code IN (2,3)")));
}

void RecordCategoriesTest::anyCategoryBeforeIsReplaced()
{
    Categories().Assign(Keys(3), 5);
    QCOMPARE(CountIn(5), 3);
    QCOMPARE(CountIn(4), 0);
    Categories().Assign({QStringLiteral("1")}, 6);
    QCOMPARE(CountIn(5), 2);
    QCOMPARE(CountIn(6), 1);
}

void RecordCategoriesTest::recordsThatAreGoneGetNone()
{
    connection_->Execute(QStringLiteral("DELETE FROM dbo.kala WHERE Code = 3"));
    Categories().Assign(Keys(3), 5);
    QCOMPARE(CountIn(5), 2);
}

void RecordCategoriesTest::manyRecordsAreOneTransactionOfSeveralStatements()
{
    connection_->OnWillExecute = [this](TADOConnection* connection, const QString& text) {
        sent_.append(connection->InTransaction() ? text : QStringLiteral("outside"));
    };
    Categories().Assign(Keys(goods), 5);
    QCOMPARE(sent_.size(), 6);
    QVERIFY(!sent_.contains(QStringLiteral("outside")));
    QVERIFY(sent_.at(4).endsWith(QStringLiteral(",2500)")));
    QVERIFY(!connection_->InTransaction());
    QCOMPARE(CountIn(5), goods);
    sent_.clear();
    Categories().TakeAway(Keys(goods));
    QCOMPARE(sent_.size(), 3);
    QVERIFY(!sent_.contains(QStringLiteral("outside")));
    QCOMPARE(CountIn(5), 0);
}

void RecordCategoriesTest::aFailureInALaterStatementWritesNothing_data()
{
    QTest::addColumn<bool>("assigns");
    QTest::addColumn<QString>("failing");
    QTest::newRow("given") << true << QStringLiteral(",2500)");
    QTest::newRow("given to those that have none") << true << QStringLiteral("INSERT");
    QTest::newRow("taken away") << false << QStringLiteral(",2500)");
}

void RecordCategoriesTest::aFailureInALaterStatementWritesNothing()
{
    QFETCH(bool, assigns);
    QFETCH(QString, failing);
    if (!assigns)
        Categories().Assign(Keys(goods), 5);
    const QVector<int> before{CountIn(4), CountIn(5)};
    connection_->OnWillExecute = [&failing](TADOConnection*, const QString& text) {
        if (text.contains(failing))
            throw EADOError(TAdoErrorKind::Other, QStringLiteral("خطا"));
    };
    if (assigns)
        QVERIFY_THROWS_EXCEPTION(EADOError, Categories().Assign(Keys(goods), 5));
    else
        QVERIFY_THROWS_EXCEPTION(EADOError, Categories().TakeAway(Keys(goods)));
    connection_->OnWillExecute = nullptr;
    QVERIFY(!connection_->InTransaction());
    QCOMPARE((QVector<int>{CountIn(4), CountIn(5)}), before);
}

void RecordCategoriesTest::noRecordsAreNoStatement()
{
    Categories().Assign({}, 5);
    Categories().TakeAway({});
    QCOMPARE(sent_, QStringList());
    QCOMPARE(CountIn(4), 1);
}

QTEST_GUILESS_MAIN(RecordCategoriesTest)
#include "RecordCategoriesTest.moc"
