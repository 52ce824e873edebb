#include "EntityTables.h"
#include "HostTestMain.h"
#include "PickerFixture.h"
#include "Select_Entity_UNT.h"
#include "SmartButtonEdit_TRV.h"
#include "SmartLabel_TRV.h"

#include <QVBoxLayout>

/// The entity selector on this host: its lists, its lookups and the library of expense centers.
class EntityLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { shop_ = std::make_unique<TPickerFixture>(); }
    void cleanupTestCase() { shop_.reset(); }

    void everyKindIsPickedFromItsListAndShowsItsName_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("part");
        QTest::addColumn<QString>("table");
        for (const TEntityTable& table : EntityTables::All())
            QTest::addRow("kind %d", table.EntityType)
                << table.EntityType << table.SoftwarePart << table.Table;
    }

    void everyKindIsPickedFromItsListAndShowsItsName()
    {
        QFETCH(int, kind);
        QFETCH(int, part);
        QFETCH(QString, table);
        TForm form(static_cast<TEntityType>(kind));
        QString shown;
        const int picked = form.Pick([&](TEntityPicker& picker) {
            QVERIFY(picker.windowTitle().contains(EntityLists::Of(static_cast<TSoftwarePart>(part)).Title));
            shop_->Press(picker, Qt::Key_End, Qt::ControlModifier);
            QVERIFY(picker.DataSet().WaitForCurrentRow());
            shown = picker.DataSet().FieldValue(1).toString();
            shop_->PressEnter(picker);
        });
        QCOMPARE(shop_->Played, 1);
        QCOMPARE(picked, shop_->LastCode(part, table));
        QVERIFY2(!form.Frame.Name_LBL->Caption().isEmpty(), qPrintable(shown));
        // Persons are listed by their full name, and the kind with the ones switched off shows the short one.
        if (kind != static_cast<int>(TEntityType::etAllPersonals))
            QVERIFY(form.Frame.Name_LBL->Caption().startsWith(shown));
        form.Window.activateWindow();
        QTRY_VERIFY(form.Next.hasFocus());
    }

    void theListOpensOnTheTypedCodeAndCancellingChangesNothing()
    {
        TForm form(TEntityType::etBankAccounts);
        QTest::keyClicks(form.Frame.Code_EDT, QStringLiteral("4"));
        const int code = form.Pick([](TEntityPicker& picker) {
            QCOMPARE(picker.DataSet().CurrentKey().toInt(), 4);
            shop_->Press(picker, Qt::Key_Down);
            shop_->Press(picker, Qt::Key_Escape);
        });
        QCOMPARE(code, 4);
        QVERIFY(form.Frame.Code_EDT->hasFocus() || !form.Window.isActiveWindow());
    }

    void theParametersOfBoxAndFrameBothRestrict()
    {
        TForm form(TEntityType::etGoods);
        form.Frame.OtherParams = QStringLiteral("GroupCode=1,2");
        form.Frame.Code_EDT->SetSelectParams(QStringLiteral("GroupCode=2,3"));
        const int expected =
            shop_->Number(QStringLiteral("SELECT COUNT(*) FROM dbo.kala WHERE GroupCode = 2 AND Active = 1"));
        form.Pick([expected](TEntityPicker& picker) {
            QVERIFY(expected > 0);
            QCOMPARE(picker.DataSet().RecordCount(), expected);
        });
        QCOMPARE(shop_->Played, 1);
    }

private:
    struct TForm
    {
        explicit TForm(TEntityType kind) : Frame(&Window), Next(&Window)
        {
            auto* column = new QVBoxLayout(&Window);
            column->addWidget(&Frame);
            column->addWidget(&Next);
            Frame.Code_EDT->SetEntityType(kind);
            Window.show();
            Window.activateWindow();
            if (!QTest::qWaitForWindowActive(&Window))
                QTest::qFail("the window is not active", __FILE__, __LINE__);
            Frame.Code_EDT->setFocus();
        }

        /// The code in the box after the list has been opened by its key.
        int Pick(const TPickerFixture::TScript& script)
        {
            return shop_->Play(script, [this] {
                QTest::keyClick(Frame.Code_EDT, Qt::Key_F4);
                return Frame.CodeAsInt();
            });
        }

        QWidget Window;
        TSelect_Entity_Frame Frame;
        QLineEdit Next;
    };

    static inline std::unique_ptr<TPickerFixture> shop_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<EntityLineTest>(argc, argv);
}
#include "EntityLineTest.moc"
