#include "DataSource.h"
#include "ADOQuery.h"

#include <QSignalSpy>
#include <QTest>

class DataSourceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDataSetsChangesPassThrough();
    void exchangingTheDataSetIsAnnouncedOnce();
    void theFormerDataSetIsHeardNoMore();
    void aDestroyedDataSetIsTakenAway();
};

void DataSourceTest::aDataSetsChangesPassThrough()
{
    TADOConnection connection;
    connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
    connection.Open();
    connection.Execute(QStringLiteral("CREATE TABLE Things (Code int)"));
    connection.Execute(QStringLiteral("INSERT INTO Things (Code) VALUES (1), (2)"));
    TADOQuery query;
    query.SetConnection(&connection);
    query.SQL.SetText(QStringLiteral("SELECT Code FROM Things"));
    TDataSource source;
    source.SetDataSet(&query);
    QSignalSpy data(&source, &TDataSource::dataChanged);
    QSignalSpy scrolled(&source, &TDataSource::scrolled);
    query.Open();
    QCOMPARE(data.size(), 1);
    query.Next();
    QCOMPARE(scrolled.size(), 1);
}

void DataSourceTest::exchangingTheDataSetIsAnnouncedOnce()
{
    TADOQuery first;
    TADOQuery second;
    TDataSource source;
    QSignalSpy exchanged(&source, &TDataSource::dataSetChanged);
    source.SetDataSet(&first);
    source.SetDataSet(&first);
    QCOMPARE(exchanged.size(), 1);
    source.SetDataSet(&second);
    QCOMPARE(source.DataSet(), &second);
    source.SetDataSet(nullptr);
    QCOMPARE(source.DataSet(), nullptr);
    QCOMPARE(exchanged.size(), 3);
}

void DataSourceTest::theFormerDataSetIsHeardNoMore()
{
    TADOQuery first;
    TADOQuery second;
    TDataSource source;
    source.SetDataSet(&first);
    source.SetDataSet(&second);
    QSignalSpy data(&source, &TDataSource::dataChanged);
    Q_EMIT first.dataChanged();
    QCOMPARE(data.size(), 0);
    Q_EMIT second.dataChanged();
    QCOMPARE(data.size(), 1);
}

void DataSourceTest::aDestroyedDataSetIsTakenAway()
{
    TDataSource source;
    auto query = std::make_unique<TADOQuery>();
    source.SetDataSet(query.get());
    bool wasNull = false;
    connect(&source, &TDataSource::dataSetChanged, this, [&] { wasNull = source.DataSet() == nullptr; });
    query.reset();
    QVERIFY(wasNull);
    QCOMPARE(source.DataSet(), nullptr);
}

QTEST_GUILESS_MAIN(DataSourceTest)
#include "DataSourceTest.moc"
