#include "CategoryStore.h"
#include "FormFixture.h"

#include <atomic>
#include <random>
#include <thread>

/// The category store against a tree that the test keeps itself.
class CategoryRandomTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { shop_ = std::make_unique<TShopFixture>(TSampleSize::Small()); }
    void cleanupTestCase() { shop_.reset(); }

    void aThousandChangesLeaveTheTreeThatTheyMake()
    {
        TCategoryStore store(shop_->Connection);
        QMap<int, TCategoryRow> expected = Read();
        int done = 0;
        for (int step = 0; step < 1000; ++step) {
            try {
                ChangeOne(store, expected);
                ++done;
            } catch (const ECategoryRefused&) {
                // Nothing has changed then, which the comparison below finds out.
            }
            if (step % 50 == 0)
                Compare(expected);
        }
        Compare(expected);
        QVERIFY2(done > 500, qPrintable(QString::number(done)));
    }

    void twoUsersWhoMoveAtOnceMakeNoCircle()
    {
        QVector<int> ids;
        TCategoryStore store(shop_->Connection);
        for (int i = 0; i < 6; ++i)
            ids.append(store.Add(0, QStringLiteral("شاخه %1").arg(i)));
        std::atomic<int> moves = 0;
        const auto work = [&](unsigned seed) {
            const std::unique_ptr<TADOConnection> connection = shop_->Connection.Clone();
            connection->Open();
            TCategoryStore own(*connection);
            std::mt19937 random(seed);
            for (int i = 0; i < 150; ++i) {
                try {
                    own.Move(ids.at(random() % 6), random() % 4 == 0 ? 0 : ids.at(random() % 6));
                    ++moves;
                } catch (const ECategoryRefused&) {
                }
            }
        };
        std::thread first(work, 1);
        std::thread second(work, 2);
        first.join();
        second.join();
        QVERIFY(moves > 60);
        Compare(Read());
    }

private:
    QMap<int, TCategoryRow> Read()
    {
        QMap<int, TCategoryRow> rows;
        for (const TCategoryRow& row : TCategoryStore(shop_->Connection).All())
            rows.insert(row.Id, row);
        return rows;
    }

    int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    int AnyOf(const QMap<int, TCategoryRow>& rows)
    {
        return std::next(rows.constBegin(), Below(static_cast<int>(rows.size()))).key();
    }

    static bool IsUnder(const QMap<int, TCategoryRow>& rows, int id, int ancestor)
    {
        while (id > 0 && id != ancestor)
            id = rows.value(id).ParentId;
        return id == ancestor;
    }

    void ChangeOne(TCategoryStore& store, QMap<int, TCategoryRow>& expected)
    {
        const int id = AnyOf(expected);
        const int target = Below(5) == 0 ? 0 : AnyOf(expected);
        const QString name = QStringLiteral("نام %1").arg(Below(40));
        switch (Below(5)) {
        case 0:
        case 1: {
            const int added = store.Add(target, name);
            expected.insert(added, {added, target, name});
            return;
        }
        case 2:
            store.Rename(id, name, expected.value(id).Name);
            expected[id].Name = name;
            return;
        case 3:
            store.Move(id, target);
            QVERIFY(target == 0 || !IsUnder(expected, target, id));
            expected[id].ParentId = target;
            return;
        default:
            store.Delete(id);
            for (const TCategoryRow& row : qAsConst(expected))
                QVERIFY(row.ParentId != id);
            expected.remove(id);
        }
    }

    /// Names, parents and paths of the table are those of the tree.
    void Compare(const QMap<int, TCategoryRow>& expected)
    {
        TADOQuery query;
        query.SetConnection(&shop_->Connection);
        query.SQL.SetText(QStringLiteral("SELECT id, parent_code, name, path FROM dbo.category"));
        query.Open();
        QCOMPARE(query.RecordCount(), expected.size());
        for (int row = 0; row < query.RecordCount(); ++row) {
            const int id = query.ValueAt(row, 0).toInt();
            QCOMPARE(query.ValueAt(row, 1).toInt(), expected.value(id).ParentId);
            QCOMPARE(query.ValueAt(row, 2).toString(), expected.value(id).Name);
            QString path = QStringLiteral(",");
            int levels = 0;
            for (int above = id; above > 0; above = expected.value(above).ParentId, ++levels) {
                QVERIFY(levels <= expected.size());
                path.prepend(u',' + QString::number(above));
            }
            QCOMPARE(query.ValueAt(row, 3).toString(), path);
        }
    }

    std::unique_ptr<TShopFixture> shop_;
    std::mt19937 random_{20261121};
};

int main(int argc, char** argv)
{
    return RunFormTest<CategoryRandomTest>(argc, argv);
}
#include "CategoryRandomTest.moc"
