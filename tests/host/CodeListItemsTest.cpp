#include "CodeListItems.h"

#include "SharedDatabase.h"

#include "ADOQuery.h"
#include "TarvaSearchManager.h"

#include <QHash>
#include <QTest>

/// Lists of goods and persons filtered by a tag or a category.
class CodeListItemsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTagFindsTheRecordsThatCarryIt_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("tag");
        QTest::newRow("goods") << QStringLiteral("dbo.KalaList") << QVariant(QStringLiteral("2")) << 2;
        QTest::newRow("persons") << QStringLiteral("dbo.PersonList") << QVariant(QStringLiteral("6")) << 6;
        QTest::newRow("a number") << QStringLiteral("dbo.KalaList") << QVariant(3) << 3;
    }

    void aTagFindsTheRecordsThatCarryIt()
    {
        QFETCH(QString, list);
        QFETCH(QVariant, value);
        QFETCH(int, tag);
        Use(CodeListItems::Tags(*connection_), value);
        const QString piece = QStringLiteral(",%1,").arg(tag);
        QStringList expected;
        for (const auto& [code, tags] : Pairs(list, QStringLiteral("tags"))) {
            if (tags.contains(piece))
                expected.append(code);
        }
        QVERIFY(!expected.isEmpty());
        QCOMPARE(manager_.Condition(),
                 QStringLiteral("[tags] LIKE '%,%1,%'").replace(QStringLiteral("%1"), QString::number(tag)));
        QCOMPARE(Filtered(list), expected);
        QCOMPARE(FilteredRows(list), expected);
    }

    void aReversedTagKeepsTheRecordsWithoutTags()
    {
        Use(CodeListItems::Tags(*connection_), QStringLiteral("2"));
        criterion_.SetReverst(true);
        QStringList expected;
        for (const auto& [code, tags] : Pairs(QStringLiteral("dbo.KalaList"), QStringLiteral("tags"))) {
            if (!tags.contains(QStringLiteral(",2,")))
                expected.append(code);
        }
        QCOMPARE(Filtered(QStringLiteral("dbo.KalaList")), expected);
        QCOMPARE(FilteredRows(QStringLiteral("dbo.KalaList")), expected);
        QCOMPARE(manager_.ConditionInWords(), QStringLiteral("برچسب دارای «\u2068پرفروش\u2069» نباشد"));
    }

    void aCategoryFindsWhatIsUnderItInBothForms_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("bare") << QStringLiteral("%1");
        QTest::newRow("between commas") << QStringLiteral(",%1,");
    }

    void aCategoryFindsWhatIsUnderItInBothForms()
    {
        QFETCH(QString, value);
        for (const int category : Ancestors(CategoryOfFirstGoods())) {
            Use(CodeListItems::Categories(*connection_), value.arg(category));
            QStringList expected;
            for (const auto& [code, own] :
                 Pairs(QStringLiteral("dbo.KalaList"), QStringLiteral("CategoryCode"))) {
                if (Ancestors(own.toInt()).contains(category))
                    expected.append(code);
            }
            QVERIFY(!expected.isEmpty());
            QCOMPARE(Filtered(QStringLiteral("dbo.KalaList")), expected);
            QCOMPARE(FilteredRows(QStringLiteral("dbo.KalaList")), expected);
        }
    }

    void theConditionNamesTagAndCategory()
    {
        Use(CodeListItems::Tags(*connection_), QStringLiteral("1"));
        QCOMPARE(manager_.ConditionInWords(), QStringLiteral("برچسب دارای «\u2068ویژه\u2069» باشد"));
        const QString name =
            TSharedDatabase::Value(*connection_, QStringLiteral("SELECT name FROM dbo.category WHERE id = 1"))
                .toString();
        Use(CodeListItems::Categories(*connection_), QStringLiteral(",1,"));
        QCOMPARE(manager_.ConditionInWords(), QStringLiteral("دسته دارای «\u2068%1\u2069» باشد").arg(name));
    }

    void aCodeWithoutANameIsSaidAsACode()
    {
        Use(CodeListItems::Tags(*connection_), QStringLiteral("9999"));
        QCOMPARE(manager_.ConditionInWords(), QStringLiteral("برچسب دارای کد ۹۹۹۹ باشد"));
        connection_->Close();
        QCOMPARE(manager_.ConditionInWords(), QStringLiteral("برچسب دارای کد ۹۹۹۹ باشد"));
        connection_ = database_.Connect();
    }

    void anEmptyValueFiltersNothing()
    {
        Use(CodeListItems::Tags(*connection_), QString(QLatin1String("")));
        QCOMPARE(manager_.Condition(), QString());
        QCOMPARE(manager_.ConditionInWords(), QString());
    }

    void whatIsNoCodeFindsNothing()
    {
        Use(CodeListItems::Tags(*connection_), QStringLiteral("1' OR '1'='1"));
        QCOMPARE(manager_.Condition(), QStringLiteral("1 = 0"));
        QVERIFY(Filtered(QStringLiteral("dbo.KalaList")).isEmpty());
    }

    void init() { manager_.Add(&criterion_); }
    void cleanup()
    {
        manager_.Remove(&criterion_);
        criterion_.SetReverst(false);
    }

private:
    void Use(const TSearchItem& item, const QVariant& value)
    {
        criterion_.SearchItems.Clear();
        criterion_.SearchItems.Add(item);
        criterion_.SetItemIndex(-1);
        criterion_.SetItemIndex(0);
        criterion_.SetValue1(value);
        criterion_.SetActive(true);
    }

    int CategoryOfFirstGoods()
    {
        return Number(QStringLiteral("SELECT category_code FROM dbo.kala_category WHERE kala_code = 1"));
    }

    /// The category itself and those above it, by climbing.
    QList<int> Ancestors(int category)
    {
        QList<int> result;
        for (int id = category; id > 0; id = parents_.value(id)) {
            result.append(id);
            if (!parents_.contains(id))
                parents_.insert(
                    id, Number(QStringLiteral("SELECT parent_code FROM dbo.category WHERE id = %1").arg(id)));
        }
        return result;
    }

    int Number(const QString& statement) { return TSharedDatabase::Value(*connection_, statement).toInt(); }

    QVector<std::pair<QString, QString>> Pairs(const QString& list, const QString& column)
    {
        QVector<std::pair<QString, QString>> pairs;
        const auto rows =
            connection_->Run(QStringLiteral("SELECT Code, %1 FROM %2 ORDER BY Code").arg(column, list));
        while (rows->Next())
            pairs.append({rows->Value(0).toString(), rows->Value(1).toString()});
        return pairs;
    }

    /// What the statement with the condition finds.
    QStringList Filtered(const QString& list)
    {
        QStringList codes;
        for (const auto& [code, ignored] :
             Pairs(list + QStringLiteral(" WHERE ") + manager_.Condition(), QStringLiteral("Code")))
            codes.append(code);
        return codes;
    }

    /// What the same condition leaves of the rows of a query.
    QStringList FilteredRows(const QString& list)
    {
        TADOQuery query;
        query.SetConnection(connection_.get());
        query.SQL.SetText(QStringLiteral("SELECT Code, tags, Categories FROM %1 ORDER BY Code").arg(list));
        query.Open();
        manager_.SetDataSet(&query);
        manager_.Flush();
        QStringList codes;
        for (int row = 0; row < query.RecordCount(); ++row)
            codes.append(query.ValueAt(row, 0).toString());
        manager_.SetDataSet(static_cast<TADOQuery*>(nullptr));
        return codes;
    }

    TSharedDatabase database_;
    std::unique_ptr<TADOConnection> connection_ = database_.Connect();
    QHash<int, int> parents_;
    TTarvaSearch criterion_;
    TTarvaSearchManager manager_;
};

QTEST_GUILESS_MAIN(CodeListItemsTest)
#include "CodeListItemsTest.moc"
