#include "HostTestMain.h"
#include "PickerFixture.h"

#include <QHeaderView>
#include <stdexcept>

namespace {

/// An engine whose server has gone.
class TDeadEngine : public IEngine
{
public:
    std::unique_ptr<IEngineRows> Execute(const QString&, const QVariantList&) override
    {
        throw EADOError(TAdoErrorKind::ConnectionLost, QStringLiteral("ارتباط با سرور قطع شد."));
    }
    void Begin() override {}
    void Commit() override {}
    void Rollback() override {}
    bool InTransaction() const override { return false; }
    void Cancel() override {}
    bool IsDead() const override { return true; }
    void RegisterFunction(const QString&, int, TDatabaseFunction) override {}
};

/// The errors that the user is told.
class TReports
{
public:
    TReports()
    {
        Application().SetErrorDisplay([this](const TErrorReport& report) { List.append(report); });
    }
    TReports(const TReports&) = delete;
    TReports& operator=(const TReports&) = delete;
    ~TReports() { Application().SetErrorDisplay({}); }

    QVector<TErrorReport> List;

private:
    static THostApplication& Application() { return *static_cast<THostApplication*>(qApp); }
};

} // namespace

class EntityPickerStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { shop_ = std::make_unique<TPickerFixture>(); }
    void cleanupTestCase() { shop_.reset(); }

    void sizeWidthsAndOrderAreKept()
    {
        shop_->Select(TSoftwarePart::spGoods, {}, [](TEntityPicker& picker) {
            picker.resize(picker.width() - 10, picker.height() + 30);
            picker.Grid().horizontalHeader()->resizeSection(1, 222);
            picker.DataSet().SetOrder(QStringLiteral("Name"), Qt::DescendingOrder);
            shop_->WaitForRows(picker);
            size_ = picker.size();
        });
        const int picked =
            shop_->Select(TSoftwarePart::spGoods, QStringLiteral("40#LC#"), [](TEntityPicker& picker) {
                QCOMPARE(picker.size(), size_);
                QCOMPARE(picker.Grid().horizontalHeader()->sectionSize(1), 222);
                QCOMPARE(picker.DataSet().OrderField(), QStringLiteral("Name"));
                QCOMPARE(picker.DataSet().Order(), Qt::DescendingOrder);
                shop_->PressEnter(picker);
            });
        QCOMPARE(picked, 40);
        shop_->Select(TSoftwarePart::spPersonals, {}, [](TEntityPicker& picker) {
            QCOMPARE(picker.DataSet().OrderField(), QStringLiteral("Code"));
            QVERIFY(picker.Grid().horizontalHeader()->sectionSize(1) != 222);
        });
    }

    void spoiltSettingsAreNotTaken()
    {
        shop_->Settings.SetValue(QStringLiteral("Pickers/106/Order"),
                                 QStringLiteral("Name; DROP TABLE dbo.kala"));
        shop_->Settings.SetValue(QStringLiteral("Pickers/106/Layout"), QStringLiteral("{{{"));
        shop_->Settings.SetValue(QStringLiteral("Pickers/106/Size"), QSize(-5, 100'000));
        shop_->Select(TSoftwarePart::spStores, {}, [](TEntityPicker& picker) {
            QCOMPARE(picker.DataSet().OrderField(), QStringLiteral("Code"));
            QVERIFY(picker.height() <= picker.screen()->size().height());
            QVERIFY(picker.width() >= picker.minimumSizeHint().width());
        });
        QCOMPARE(shop_->Played, 1);
    }

    void anEmptyListSaysWhy_data()
    {
        QTest::addColumn<int>("part");
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QString>("said");
        QTest::newRow("empty table") << 128 << "" << QStringLiteral("هنوز ردیفی تعریف نشده");
        QTest::newRow("none is switched on") << 110 << "" << QStringLiteral("هیچ ردیف فعالی نیست");
        QTest::newRow("restricted") << 105 << "GroupCode=4711" << QStringLiteral("تنها برخی");
    }

    void anEmptyListSaysWhy()
    {
        QFETCH(int, part);
        QFETCH(QString, argument);
        QFETCH(QString, said);
        shop_->Connection.Execute(QStringLiteral("DELETE FROM dbo.Countries"));
        shop_->Connection.Execute(QStringLiteral("UPDATE dbo.Costs SET Active = 0"));
        const int picked =
            shop_->Select(static_cast<TSoftwarePart>(part), argument, [&](TEntityPicker& picker) {
                QCOMPARE(picker.DataSet().RecordCount(), 0);
                QVERIFY2(picker.Grid().EmptyText().contains(said), qPrintable(picker.Grid().EmptyText()));
                shop_->Press(picker, Qt::Key_Down);
                shop_->Press(picker, Qt::Key_Return);
                QTest::qWait(20);
                QVERIFY(picker.isVisible());
            });
        QCOMPARE(picked, 0);
        QCOMPARE(shop_->Played, 1);
        shop_->Connection.Execute(QStringLiteral("UPDATE dbo.Costs SET Active = 1"));
    }

    void oneThatIsSwitchedOffIsOfferedOnlyWhereAllAreWanted()
    {
        shop_->Connection.Execute(QStringLiteral("UPDATE dbo.Persons SET Active = 0 WHERE Code = 7"));
        const auto pick = [](TEntityPicker& picker) { shop_->PressEnter(picker); };
        const QString argument = QStringLiteral("7#LC#Code=6,7");
        QCOMPARE(shop_->Select(TSoftwarePart::spPersonals, argument, pick, false), 6);
        QCOMPARE(shop_->Select(TSoftwarePart::spPersonals, argument, pick, true), 7);
        shop_->Connection.Execute(QStringLiteral("UPDATE dbo.Persons SET Active = 1 WHERE Code = 7"));
    }

    void whatIsNotUnderstoodOpensNothing()
    {
        const auto never = [](TEntityPicker&) {};
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument,
                                 shop_->Select(TSoftwarePart::spGoods, QStringLiteral("1=1"), never));
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument,
                                 shop_->Select(TSoftwarePart::spGoods, QStringLiteral("Bogus=1"), never));
        QVERIFY_THROWS_EXCEPTION(std::logic_error, shop_->Select(TSoftwarePart::spNone, QString(), never));
        QCOMPARE(shop_->Played, 0);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void itStandsOverTheActiveWindowAndFindsTheFocusAgain()
    {
        QWidget form;
        QLineEdit edit(&form);
        form.resize(300, 100);
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        edit.setFocus();
        const int picked = shop_->Select(TSoftwarePart::spStores, {}, [&form](TEntityPicker& picker) {
            QCOMPARE(picker.parentWidget(), &form);
            shop_->PressEnter(picker);
        });
        QVERIFY(picked > 0);
        form.activateWindow();
        QTRY_VERIFY(edit.hasFocus());
    }

    void aWindowThatGoesAwayTakesThePickerWithIt()
    {
        auto form = std::make_unique<QWidget>();
        form->show();
        form->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(form.get()));
        QPointer<TEntityPicker> open;
        const int picked = shop_->Select(TSoftwarePart::spGoods, {}, [&](TEntityPicker& picker) {
            open = &picker;
            shop_->Type(picker, QStringLiteral("شیر"));
            shop_->Press(picker, Qt::Key_Return);
            form.reset();
        });
        QCOMPARE(picked, 0);
        QVERIFY(open == nullptr);
        QTest::qWait(500);
    }

    void aLostConnectionIsToldAndAnswersZero()
    {
        TReports reports;
        TADOConnection connection;
        connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        connection.SetEngineFactory(
            [](const QString&, const TEngineOptions&) { return std::make_unique<TDeadEngine>(); });
        connection.Open();
        TEntityPickers pickers(connection, shop_->Settings);
        QCOMPARE(pickers.Select_Entity(TSoftwarePart::spGoods, {}, false), 0);
        QTRY_COMPARE(reports.List.size(), 1);
        QVERIFY(reports.List.constFirst().ConnectionLost);
        QVERIFY(reports.List.constFirst().Text.contains(QStringLiteral("ارتباط")));
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void anErrorWhileTheListIsOpenIsToldAndReadingAgainHelps()
    {
        TReports reports;
        shop_->Select(TSoftwarePart::spPettyCash, {}, [&](TEntityPicker& picker) {
            const int rows = picker.DataSet().RecordCount();
            shop_->Connection.Execute(QStringLiteral("DROP TABLE dbo.PettyCash"));
            shop_->Type(picker, QStringLiteral("ا"));
            QTRY_COMPARE(reports.List.size(), 1);
            QVERIFY(!reports.List.constFirst().Text.isEmpty());
            QCOMPARE(picker.DataSet().RecordCount(), rows);
            QVERIFY(picker.isVisible());
            shop_->Connection.Execute(
                QStringLiteral("CREATE TABLE dbo.PettyCash (Code int NOT NULL PRIMARY KEY, "
                               "Name nvarchar(100) NOT NULL, Active bit NOT NULL)"));
            reports.List.constFirst().Retry();
            shop_->WaitForRows(picker);
            QCOMPARE(reports.List.size(), 1);
            QCOMPARE(picker.DataSet().RecordCount(), 0);
        });
        QCOMPARE(shop_->Played, 1);
    }

private:
    static inline std::unique_ptr<TPickerFixture> shop_;
    static inline QSize size_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<EntityPickerStateTest>(argc, argv);
}
#include "EntityPickerStateTest.moc"
