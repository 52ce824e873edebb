#include "EntityTables.h"
#include "HostTestMain.h"
#include "PickerFixture.h"

class EntityPickerKindsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { shop_ = std::make_unique<TPickerFixture>(); }
    void cleanupTestCase() { shop_.reset(); }
    void cleanup() { QCOMPARE(shop_->Played, 1); }

    void everyKindOpensAndIsPicked_data()
    {
        QTest::addColumn<int>("part");
        QTest::addColumn<QString>("table");
        QTest::addColumn<bool>("all");
        for (const TEntityTable& table : EntityTables::All())
            QTest::addRow("kind %d", table.EntityType)
                << table.SoftwarePart << table.Table
                << (table.EntityType == static_cast<int>(TEntityType::etAllPersonals));
    }

    void everyKindOpensAndIsPicked()
    {
        QFETCH(int, part);
        QFETCH(QString, table);
        QFETCH(bool, all);
        const int last = shop_->LastCode(part, table);
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

private:
    static inline std::unique_ptr<TPickerFixture> shop_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<EntityPickerKindsTest>(argc, argv);
}
#include "EntityPickerKindsTest.moc"
