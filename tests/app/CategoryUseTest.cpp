#include "Category_SearchWithManager_UNT.h"
#include "CategoryStore.h"
#include "CodeListItems.h"
#include "FormFixture.h"
#include "PopupMenu.h"
#include "RecordCategories.h"
#include "TarvaSearchManager.h"

/// The way of a category of any name: made, given to goods, picked in the filter, refused to be deleted while
/// it is used, taken away, deleted.
class CategoryUseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { shop_ = std::make_unique<TFormFixture>(); }
    void cleanupTestCase() { shop_.reset(); }
    void aCategoryOfAnyNameFiltersTheGoods_data();
    void aCategoryOfAnyNameFiltersTheGoods();

private:
    static bool Choose(const TCategorysearchframe& frame, const QString& caption)
    {
        for (int index = 0; index < frame.PopupMenu1->Count(); ++index) {
            if (frame.PopupMenu1->Item(index)->Caption() != caption)
                continue;
            frame.PopupMenu1->Item(index)->Click();
            return true;
        }
        return false;
    }
    QString CodesWhere(const QString& condition)
    {
        QStringList codes;
        const auto rows = shop_->Connection.Run(
            QStringLiteral("SELECT Code FROM dbo.KalaList WHERE %1 ORDER BY Code").arg(condition));
        while (rows->Next())
            codes.append(rows->Text(0));
        return codes.join(u',');
    }

    std::unique_ptr<TFormFixture> shop_;
};

void CategoryUseTest::aCategoryOfAnyNameFiltersTheGoods_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("quotes") << QStringLiteral("او گفت 'نه' \"آری\"");
    QTest::newRow("a statement") << QStringLiteral("'; DELETE FROM category; --");
    QTest::newRow("Persian comma") << QStringLiteral("چای، قهوه");
    QTest::newRow("ASCII comma") << QStringLiteral("چای, 1, 0");
    QTest::newRow("wildcards") << QStringLiteral("100%]_[a-z]");
    QTest::newRow("emoji") << QStringLiteral("گل 🌷👨‍👩‍👧");
    QTest::newRow("fifty characters") << QString(50, u'م');
    QTest::newRow("direction marks") << QStringLiteral("\u200Fالف\u202Eabc\u2066ب");
    QTest::newRow("mnemonic") << QStringLiteral("R&D");
}

void CategoryUseTest::aCategoryOfAnyNameFiltersTheGoods()
{
    QFETCH(QString, name);
    TADOConnection& connection = shop_->Connection;
    TCategoryStore store(connection);
    const int parent = store.Add(0, QStringLiteral("آزمون"));
    const int id = store.Add(parent, name);
    const QString kept = TCategoryStore::WithoutCommas(name);
    TRecordCategories records(connection, *GoodsList().Labels, QStringLiteral("Code"));
    records.Assign({QStringLiteral("2"), QStringLiteral("3")}, id);

    TCategorysearchframe frame;
    frame.TarvaSearch1->SearchItems.Add(CodeListItems::Categories(connection));
    TTarvaSearchManager manager;
    manager.Add(frame.TarvaSearch1);
    frame.open(TCategorysearchframe::GoodsLists);
    for (const QString& caption : {QStringLiteral("آزمون"), kept}) {
        QVERIFY(Choose(frame, caption));
        QVERIFY(frame.exist(caption));
        QCOMPARE(CodesWhere(manager.Condition()), QStringLiteral("2,3"));
        QVERIFY(manager.ConditionInWords().contains(caption));
    }
    QCOMPARE(frame.ChosenCategory(), id);

    QVERIFY_THROWS_EXCEPTION(ECategoryRefused, store.Delete(id));
    records.TakeAway({QStringLiteral("2"), QStringLiteral("3")});
    QCOMPARE(CodesWhere(manager.Condition()), QString());
    store.Delete(id);
    frame.createmenuItemByCode(parent);
    QCOMPARE(frame.PopupMenu1->Count(), 0);
    store.Delete(parent);
}

int main(int argc, char** argv)
{
    return RunFormTest<CategoryUseTest>(argc, argv);
}
#include "CategoryUseTest.moc"
