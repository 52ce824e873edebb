#include "HostTestMain.h"
#include "PickerFixture.h"

#include <QScrollBar>

class EntityPickerLargeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TSampleSize size = TSampleSize::Small();
        size.Goods = count;
        shop_ = std::make_unique<TPickerFixture>(size);
    }
    void cleanupTestCase() { shop_.reset(); }
    void cleanup() { QCOMPARE(shop_->Played, 1); }

    void aHundredThousandRowsScrollAndFilter()
    {
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

    void itOpensOnACodeFarBehind()
    {
        const int picked = shop_->Select(
            TSoftwarePart::spGoods, QStringLiteral("87654#LC#"),
            [](TEntityPicker& picker) {
                QCOMPARE(picker.DataSet().RecNo(), 87654);
                shop_->Press(picker, Qt::Key_Down);
                shop_->PressEnter(picker);
            },
            true);
        QCOMPARE(picked, 87655);
    }

private:
    static constexpr int count = 100'000;
    static inline std::unique_ptr<TPickerFixture> shop_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<EntityPickerLargeTest>(argc, argv);
}
#include "EntityPickerLargeTest.moc"
