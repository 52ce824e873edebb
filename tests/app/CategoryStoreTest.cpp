#include "CategoryStore.h"
#include "FormFixture.h"

class CategoryStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        shop_ = std::make_unique<TShopFixture>(TSampleSize::Small());
        store_ = std::make_unique<TCategoryStore>(shop_->Connection);
    }
    void cleanupTestCase()
    {
        store_.reset();
        shop_.reset();
    }
    void cleanup()
    {
        shop_->Connection.OnWillExecute = nullptr;
        QVERIFY(!shop_->Connection.InTransaction());
        QCOMPARE(WrongPaths(), QStringList());
    }

    void categoriesAreReadByNameAndThenById()
    {
        const QVector<TCategoryRow> rows = store_->All();
        QCOMPARE(rows.size(), Number(QStringLiteral("SELECT COUNT(*) FROM dbo.category")));
        for (qsizetype i = 1; i < rows.size(); ++i) {
            if (rows.at(i).Name == rows.at(i - 1).Name)
                QVERIFY(rows.at(i).Id > rows.at(i - 1).Id);
        }
    }

    void aCategoryIsAddedAtTheTopAndUnderAnother()
    {
        const int top = store_->Add(0, QStringLiteral("  لوازم باغبانی "));
        QCOMPARE(Text(QStringLiteral("name"), top), QStringLiteral("لوازم باغبانی"));
        QCOMPARE(Text(QStringLiteral("path"), top), QStringLiteral(",%1,").arg(top));
        const int child = store_->Add(top, QStringLiteral("بیل"));
        QCOMPARE(Text(QStringLiteral("parent_code"), child).toInt(), top);
        QCOMPARE(Text(QStringLiteral("path"), child), QStringLiteral(",%1,%2,").arg(top).arg(child));
    }

    void namesAreChecked_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("kept"); // empty where it is refused
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("blanks") << QStringLiteral(" \t\u200c ") << QString();
        QTest::newRow("line break") << QStringLiteral(" یک\nدو ") << QStringLiteral("یک دو");
        QTest::newRow("comma") << QStringLiteral("چای, قهوه") << QStringLiteral("چای، قهوه");
        QTest::newRow("longest") << QString(100, u'د') << QString(100, u'د');
        QTest::newRow("too long") << QString(101, u'د') << QString();
        QTest::newRow("hostile") << QStringLiteral("'; DROP TABLE dbo.category; -- %_[ك]?")
                                 << QStringLiteral("'; DROP TABLE dbo.category; -- %_[ك]?");
        QTest::newRow("emoji") << QStringLiteral("گل 🌷") << QStringLiteral("گل 🌷");
        QTest::newRow("marks") << QStringLiteral("\u200fA4\u200e کاغذ")
                               << QStringLiteral("\u200fA4\u200e کاغذ");
    }
    void namesAreChecked()
    {
        QFETCH(QString, typed);
        QFETCH(QString, kept);
        const int before = Count();
        if (kept.isEmpty()) {
            QVERIFY_THROWS_EXCEPTION(ECategoryRefused, store_->Add(0, typed));
            QCOMPARE(Count(), before);
            return;
        }
        const int id = store_->Add(0, typed);
        QCOMPARE(Text(QStringLiteral("name"), id), kept);
        store_->Delete(id);
        QCOMPARE(Count(), before);
    }

    void repeatedNamesAreAllowed()
    {
        const int first = store_->Add(0, QStringLiteral("همنام"));
        const int second = store_->Add(0, QStringLiteral("همنام"));
        QVERIFY(second > first);
        QCOMPARE(Text(QStringLiteral("path"), first), QStringLiteral(",%1,").arg(first));
        QCOMPARE(Text(QStringLiteral("path"), second), QStringLiteral(",%1,").arg(second));
    }

    void aCategoryIsRenamedUnlessAnotherUserHasDoneSo()
    {
        const int id = store_->Add(0, QStringLiteral("پیش"));
        store_->Rename(id, QStringLiteral("پس"), QStringLiteral("پیش"));
        QCOMPARE(Text(QStringLiteral("name"), id), QStringLiteral("پس"));
        QVERIFY_THROWS_EXCEPTION(ECategoryRefused,
                                 store_->Rename(id, QStringLiteral("دیگر"), QStringLiteral("پیش")));
        QCOMPARE(Text(QStringLiteral("name"), id), QStringLiteral("پس"));
        QVERIFY_THROWS_EXCEPTION(ECategoryRefused, store_->Rename(id, QString(), QStringLiteral("پس")));
        QVERIFY_THROWS_EXCEPTION(ECategoryRefused,
                                 store_->Rename(999999, QStringLiteral("نو"), QStringLiteral("پس")));
    }

    void aMovedSubtreeTakesItsPathsAlong()
    {
        const int from = store_->Add(0, QStringLiteral("مبدأ"));
        const int to = store_->Add(0, QStringLiteral("مقصد"));
        const int root = store_->Add(from, QStringLiteral("شاخه"));
        const int leaf = store_->Add(store_->Add(root, QStringLiteral("میانی")), QStringLiteral("برگ"));
        store_->Move(root, to);
        QVERIFY(Text(QStringLiteral("path"), leaf).startsWith(QStringLiteral(",%1,%2,").arg(to).arg(root)));
        store_->Move(root, 0);
        QVERIFY(Text(QStringLiteral("path"), leaf).startsWith(QStringLiteral(",%1,").arg(root)));
    }

    void wrongPathsUnderAMovedCategoryAreMended()
    {
        const int root = store_->Add(0, QStringLiteral("شاخه"));
        const int middle = store_->Add(root, QStringLiteral("میانی"));
        store_->Add(middle, QStringLiteral("برگ"));
        shop_->Connection.Execute(
            QStringLiteral("UPDATE dbo.category SET path = NULL WHERE id = %1").arg(middle));
        store_->Move(root, store_->Add(0, QStringLiteral("مقصد")));
    }

    void aMoveUnderItselfIsRefused()
    {
        const int root = store_->Add(0, QStringLiteral("شاخه"));
        const int leaf = store_->Add(store_->Add(root, QStringLiteral("میانی")), QStringLiteral("برگ"));
        QVERIFY_THROWS_EXCEPTION(ECategoryRefused, store_->Move(root, root));
        QVERIFY_THROWS_EXCEPTION(ECategoryRefused, store_->Move(root, leaf));
        QVERIFY_THROWS_EXCEPTION(ECategoryRefused, store_->Move(root, 999999));
        QVERIFY_THROWS_EXCEPTION(ECategoryRefused, store_->Move(999999, root));
    }

    void aTreeThatGrowsTooDeepIsRefused()
    {
        int deepest = 0;
        try {
            for (;;)
                deepest = store_->Add(deepest, QStringLiteral("ته"));
        } catch (const ECategoryRefused&) {
            const qsizetype length = Text(QStringLiteral("path"), deepest).size();
            QVERIFY(length <= TCategoryStore::LongestPath && length > TCategoryStore::LongestPath - 20);
        }
        const int branch = store_->Add(0, QStringLiteral("شاخه"));
        int under = branch;
        for (int level = 0; level < 5; ++level)
            under = store_->Add(under, QStringLiteral("زیر"));
        QVERIFY_THROWS_EXCEPTION(ECategoryRefused, store_->Move(branch, deepest));
    }

    void whatIsUsedIsNotDeleted()
    {
        const int id = store_->Add(0, QStringLiteral("به کار رفته"));
        const auto isRefused = [&](const QString& word) {
            try {
                store_->Delete(id);
            } catch (const ECategoryRefused& refusal) {
                return refusal.Message().contains(word);
            }
            return false;
        };
        const int child = store_->Add(id, QStringLiteral("زیر"));
        QVERIFY(isRefused(QStringLiteral("1 زیردسته")));
        store_->Delete(child);
        shop_->Connection.Execute(
            QStringLiteral("UPDATE dbo.kala_category SET category_code = %1 WHERE kala_code = 1").arg(id));
        QVERIFY(isRefused(QStringLiteral("1 کالا")));
        shop_->Connection.Execute(
            QStringLiteral("UPDATE dbo.kala_category SET category_code = 2 WHERE kala_code = 1"));
        store_->SetDefault(1, TCategoryStore::TListKind::Persons, id);
        QVERIFY(isRefused(QStringLiteral("1 کاربر")));
        store_->SetDefault(1, TCategoryStore::TListKind::Persons, 0);
        store_->Delete(id);
        QVERIFY_THROWS_EXCEPTION(ECategoryRefused, store_->Delete(id));
    }

    void aUserHasOneDefaultOfEachKind()
    {
        const int first = store_->Add(0, QStringLiteral("یکم"));
        const int second = store_->Add(0, QStringLiteral("دوم"));
        using enum TCategoryStore::TListKind;
        store_->SetDefault(1, Goods, first);
        store_->SetDefault(1, Persons, first);
        QCOMPARE(store_->DefaultsOf(1).Goods, first);
        QCOMPARE(store_->DefaultsOf(1).Persons, first);
        store_->SetDefault(1, Goods, second);
        QCOMPARE(store_->DefaultsOf(1).Goods, second);
        QCOMPARE(store_->DefaultsOf(1).Persons, first);
        store_->SetDefault(1, Persons, 0);
        store_->SetDefault(1, Goods, 0);
        QCOMPARE(Number(QStringLiteral("SELECT COUNT(*) FROM dbo.DefaultUserCategory WHERE user_code = 1")),
                 0);
        QVERIFY(store_->DefaultsOf(2).Goods > 0 && store_->DefaultsOf(2).Persons > 0);
        QVERIFY_THROWS_EXCEPTION(ECategoryRefused, store_->SetDefault(0, Goods, first));
        QVERIFY_THROWS_EXCEPTION(ECategoryRefused, store_->SetDefault(1, Goods, 999999));
    }

    void aFailureLeavesEverythingAsItWas()
    {
        const int from = store_->Add(0, QStringLiteral("مبدأ"));
        const int branch = store_->Add(from, QStringLiteral("شاخه"));
        store_->Add(branch, QStringLiteral("برگ"));
        const int before = Count();
        shop_->Connection.OnWillExecute = [](TADOConnection*, const QString& text) {
            if (text.startsWith(u"UPDATE dbo.category SET path"))
                throw EADOError(TAdoErrorKind::Other, QStringLiteral("خطا"));
        };
        QVERIFY_THROWS_EXCEPTION(EADOError, store_->Move(branch, 0));
        QVERIFY_THROWS_EXCEPTION(EADOError, store_->Add(0, QStringLiteral("نو")));
        QCOMPARE(Count(), before);
        QCOMPARE(Text(QStringLiteral("parent_code"), branch).toInt(), from);
    }

private:
    QString One(const QString& statement)
    {
        TADOQuery query;
        query.SetConnection(&shop_->Connection);
        query.SQL.SetText(statement);
        query.Open();
        return query.IsEmpty() ? QString() : query.Field(0)->AsString();
    }
    int Number(const QString& statement) { return One(statement).toInt(); }
    int Count() { return Number(QStringLiteral("SELECT COUNT(*) FROM dbo.category")); }
    QString Text(const QString& column, int id)
    {
        return One(QStringLiteral("SELECT %1 FROM dbo.category WHERE id = %2").arg(column).arg(id));
    }
    /// The ids whose path is not that of the parent with the id behind it.
    QStringList WrongPaths()
    {
        TADOQuery query;
        query.SetConnection(&shop_->Connection);
        query.SQL.SetText(QStringLiteral("SELECT id, parent_code, path FROM dbo.category ORDER BY id"));
        query.Open();
        QHash<int, QString> paths{{0, QStringLiteral(",")}};
        for (int row = 0; row < query.RecordCount(); ++row)
            paths.insert(query.ValueAt(row, 0).toInt(), query.ValueAt(row, 2).toString());
        QStringList wrong;
        for (int row = 0; row < query.RecordCount(); ++row) {
            const QString id = query.ValueAt(row, 0).toString();
            if (paths.value(id.toInt()) != paths.value(query.ValueAt(row, 1).toInt()) + id + u',')
                wrong.append(id);
        }
        return wrong;
    }

    std::unique_ptr<TShopFixture> shop_;
    std::unique_ptr<TCategoryStore> store_;
};

int main(int argc, char** argv)
{
    return RunFormTest<CategoryStoreTest>(argc, argv);
}
#include "CategoryStoreTest.moc"
