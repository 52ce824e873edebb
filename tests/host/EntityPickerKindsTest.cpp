#include "EntityTables.h"
#include "HostTestMain.h"
#include "PickerFixture.h"

#include <QScrollBar>

/// Every kind, and a list of a hundred thousand rows.
class EntityPickerKindsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TSampleSize size = TSampleSize::Small();
        size.Goods = 100'000;
        shop_ = std::make_unique<TPickerFixture>(size);
    }
    void cleanupTestCase() { shop_.reset(); }
    void cleanup() { QCOMPARE(shop_->Played, 1); }

    void everyKindOpensAndIsPicked_data()
    {
        QTest::addColumn<int>("part");
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("all");
        for (const TEntityTable& table : EntityTables::All())
            QTest::addRow("kind %d", table.EntityType)
                << table.SoftwarePart << table.Table << table.Fields.section(u';', 0, 0)
                << (table.EntityType == static_cast<int>(TEntityType::etAllPersonals));
    }

    void everyKindOpensAndIsPicked()
    {
        QFETCH(int, part);
        QFETCH(QString, table);
        QFETCH(QString, name);
        QFETCH(bool, all);
        const int last = LastCode(part, table);
        const QString argument = QStringLiteral("%1#LC#").arg(last);
        const int picked = shop_->Select(
            static_cast<TSoftwarePart>(part), argument,
            [&](TEntityPicker& picker) {
                QCOMPARE(picker.DataSet().CurrentKey().toInt(), last);
                const QString word =
                    shop_->Text(picker, picker.DataSet().RecNo() - 1, picker.DataSet().Source().Fields.at(1));
                QVERIFY(!word.isEmpty());
                shop_->Find(picker, word);
                QVERIFY(shop_->Codes(picker).contains(last));
                picker.SearchFrame().Search_EDT->selectAll();
                shop_->Find(picker, QString::number(last));
                QVERIFY(shop_->Codes(picker).contains(last));
                while (picker.DataSet().CurrentKey().toInt() != last && !picker.DataSet().Eof())
                    picker.DataSet().Next();
                shop_->PressEnter(picker);
            },
            all);
        QCOMPARE(picked, last);
    }

    void aHundredThousandRowsScrollAndFilter()
    {
        const int count = 100'000;
        QString lastName;
        const int picked = shop_->Select(
            TSoftwarePart::spGoods, {},
            [&](TEntityPicker& picker) {
                QCOMPARE(picker.DataSet().RecordCount(), count);
                QVERIFY2(picker.CountText().contains(QStringLiteral("100")), qPrintable(picker.CountText()));
                shop_->Press(picker, Qt::Key_End, Qt::ControlModifier);
                QCOMPARE(picker.DataSet().RecNo(), count);
                QVERIFY(picker.DataSet().WaitForCurrentRow());
                lastName = picker.DataSet().FieldByName(QStringLiteral("Name"))->AsString();
                QVERIFY(!lastName.isEmpty());
                for (int i = 0; i < 200; ++i)
                    shop_->Press(picker, Qt::Key_PageUp);
                QVERIFY(picker.DataSet().RecNo() < count - 1000);
                shop_->Press(picker, Qt::Key_Home, Qt::ControlModifier);
                for (int i = 0; i < 300; ++i)
                    shop_->Press(picker, Qt::Key_Down);
                QCOMPARE(picker.DataSet().RecNo(), 301);
                picker.Grid().verticalScrollBar()->setValue(picker.Grid().verticalScrollBar()->maximum() / 2);
                shop_->Find(picker, lastName);
                QVERIFY(picker.DataSet().RecordCount() >= 1);
                QVERIFY(picker.DataSet().RecordCount() < count);
                picker.SearchFrame().Search_EDT->selectAll();
                shop_->Find(picker, QStringLiteral("99999"));
                QCOMPARE(shop_->Codes(picker), QVariantList{99999});
                shop_->PressEnter(picker);
            },
            true);
        QCOMPARE(picked, 99999);
    }

    void aSearchThatIsTypedOnIsNotAnsweredByTheOneBefore()
    {
        const int picked = shop_->Select(
            TSoftwarePart::spGoods, {},
            [](TEntityPicker& picker) {
                for (const char16_t* typed : {u"ا", u"س", u"ر", u"م"}) {
                    picker.SearchFrame().Search_EDT->selectAll();
                    shop_->Type(picker, QString::fromUtf16(typed));
                    QTRY_VERIFY(picker.SearchFrame().Filter_is_done());
                }
                picker.SearchFrame().Search_EDT->selectAll();
                shop_->Type(picker, QStringLiteral("54321"));
                shop_->PressEnter(picker);
            },
            true);
        QCOMPARE(picked, 54321);
    }

private:
    static int LastCode(int part, const QString& table)
    {
        const bool active = EntityLists::Of(static_cast<TSoftwarePart>(part)).HasActive();
        const auto row = shop_->Connection.Run(QStringLiteral("SELECT MAX(Code) FROM ") + table +
                                               (active ? QStringLiteral(" WHERE Active = 1") : QString()));
        return row->Next() ? static_cast<int>(row->Int64(0)) : -1;
    }

    static inline std::unique_ptr<TPickerFixture> shop_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<EntityPickerKindsTest>(argc, argv);
}
#include "EntityPickerKindsTest.moc"
