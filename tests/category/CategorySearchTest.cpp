#include "Category_SearchWithManager_UNT.h"
#include "CategoryForm.h"
#include "SmartButton_TRV.h"
#include "SmartLabel_TRV.h"
#include "TestCase.h"

#include <QtTest>
#include <stdexcept>

using namespace CategoryTexts;

namespace {

QString Default(int user, const QString& column)
{
    return QStringLiteral("select Code_category from category left join DefaultUserCategory on category.id = "
                          "DefaultUserCategory.Code_category where user_code=%1 and %2=1")
        .arg(user)
        .arg(column);
}

} // namespace

/// The filter frame as its owner uses it: its parts, defaults, records, and what it publishes.
class CategorySearchTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFrameHasItsParts();
    void openingShowsTheUsersDefault_data();
    void openingShowsTheUsersDefault();
    void openingWithoutADefaultPublishesNothing_data();
    void openingWithoutADefaultPublishesNothing();
    void openingEmptiesThePath();
    void openingForAnUnknownKindIsRefused();
    void aUserWithoutADefaultEmptiesThePath();
    void aRecordShowsItsCategory_data();
    void aRecordShowsItsCategory();
    void aRecordWithoutACategoryEmptiesThePath();
    void aRecordOfACategoryThatIsGoneLeavesNothing();
    void aCodeThatIsNoneIsRefused_data();
    void aCodeThatIsNoneIsRefused();
    void aCircleLeavesPathAndValue();
    void theNameSoughtIsOneOfTheMenu();
    void anOwnerMayDestroyTheFrameWhileItPublishes();

private:
    using TForm = TCategoryForm<TCategorysearchframe>;

    void Prepare() override { form_ = std::make_unique<TForm>(); }
    void Finish() override { form_.reset(); }
    TCategorysearchframe& Frame() { return *form_->Frame; }
    TTarvaSearch& Criterion() { return *form_->Frame->TarvaSearch1; }
    QStringList Sent() const { return form_->Tables.Statements; }

    std::unique_ptr<TForm> form_;
};

void CategorySearchTest::theFrameHasItsParts()
{
    QCOMPARE(TCategorysearchframe(nullptr).size(), QSize(500, 34));
    QCOMPARE(Frame().CategorySearch_LBL->Caption(), QStringLiteral("&دسته :"));
    QCOMPARE(Frame().Editor->Separator(), QChar(u';'));
    QCOMPARE(Frame().Editor->Color(), 0xFFFFFFU);
    QCOMPARE(Frame().Editor->PopupMenu(), static_cast<QMenu*>(Frame().PopupMenu1));
    QCOMPARE(Frame().tmpds->DataSet(), static_cast<TDataSet*>(Frame().tmpqry));
    QVERIFY(!Criterion().Active());
    QVERIFY(!Criterion().Reverst());
    QCOMPARE(Criterion().SearchTypes(), TSearchType::stGeneral);
    QCOMPARE(Criterion().SearchItems.Count(), 0);
    QCOMPARE(Criterion().ItemIndex(), 0);
    QVERIFY(form_->Start());
    QCOMPARE(Frame().select_BTN->width(), 30);
    QVERIFY(Frame().Editor->x() > Frame().select_BTN->geometry().right());
    QCOMPARE(Sent(), QStringList());
}

void CategorySearchTest::openingShowsTheUsersDefault_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<QStringList>("bubbles");
    QTest::addColumn<QString>("value");
    const QStringList lists{CategoryTexts::All(), CategoryTexts::All()};
    QTest::newRow("persons") << 1
                             << Menu(0, "(1,4)") + QStringList(Default(1, "Person")) + Path({7, 2, 1}) +
                                    Menu(7, "(12)") + lists
                             << QStringList({"کالا|1|0", "ابزار|2|1", "چکش|7|2"}) << "7";
    QTest::newRow("goods") << 2
                           << Menu(0, "(1,4)") + QStringList(Default(1, "Good")) + Path({3, 1}) +
                                  Menu(3, "(9)") + lists
                           << QStringList({"کالا|1|0", "رنگ|3|1"}) << "3";
}

void CategorySearchTest::openingShowsTheUsersDefault()
{
    QFETCH(int, kind);
    QFETCH(QStringList, sent);
    QFETCH(QStringList, bubbles);
    QFETCH(QString, value);
    Frame().open(static_cast<quint8>(kind));
    QCOMPARE(Sent(), sent);
    QCOMPARE(form_->Bubbles(), bubbles);
    QCOMPARE(Criterion().Value1(), QVariant(value));
    QVERIFY(Criterion().Active());
    QCOMPARE(Frame().Editor->Lookup().Count(), 7);
}

void CategorySearchTest::openingWithoutADefaultPublishesNothing_data()
{
    QTest::addColumn<int>("user");
    QTest::newRow("another user") << 9;
    QTest::newRow("nobody") << 0;
}

void CategorySearchTest::openingWithoutADefaultPublishesNothing()
{
    QFETCH(int, user);
    form_->Host.Settings.User.Code = user;
    Frame().open(1);
    QCOMPARE(Sent(), Menu(0, "(1,4)") +
                         QStringList({Default(user, "Person"), CategoryTexts::All(), CategoryTexts::All()}));
    QCOMPARE(form_->Bubbles(), QStringList());
    QCOMPARE(Criterion().Value1(), QVariant(QString()));
    QVERIFY(Criterion().Active());
}

void CategorySearchTest::openingEmptiesThePath()
{
    Frame().Editor->SetRightToLeft(false);
    Frame().open(1);
    QCOMPARE(Frame().Editor->layoutDirection(), Qt::RightToLeft);
    form_->Host.Settings.User.Code = 9;
    Frame().open(1);
    QCOMPARE(form_->Bubbles(), QStringList());
    QCOMPARE(form_->Offered(), QStringList({"کالا|1|0", "خدمات|4|0"}));
    QCOMPARE(Criterion().Value1(), QVariant(QString()));
}

void CategorySearchTest::openingForAnUnknownKindIsRefused()
{
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, Frame().DrawDefaultItems(0));
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, Frame().DrawDefaultItems(3));
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, Frame().active_checker(QStringLiteral("15"), 0));
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, Frame().active_checker(QStringLiteral("15"), 3));
    QCOMPARE(Sent(), QStringList());
    QVERIFY(!Criterion().Active());
}

void CategorySearchTest::aUserWithoutADefaultEmptiesThePath()
{
    Frame().create_bubble(4, 1);
    form_->Host.Settings.User.Code = 9;
    Frame().DrawDefaultItems(2);
    QCOMPARE(form_->Bubbles(), QStringList());
    QCOMPARE(form_->Offered(), QStringList({"کالا|1|0", "خدمات|4|0"}));
    QCOMPARE(Criterion().Value1(), QVariant(QString()));
}

void CategorySearchTest::aRecordShowsItsCategory_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<QString>("value");
    QTest::newRow("goods") << 1
                           << QStringList("select * from kala_category where kala_code=15") +
                                  Path({8, 2, 1}) + Menu(8, "(-1)")
                           << ",8,";
    QTest::newRow("person") << 2
                            << QStringList("select * from Person_category where person_code=15") + Path({4}) +
                                   Menu(4, "(-1)")
                            << ",4,";
}

void CategorySearchTest::aRecordShowsItsCategory()
{
    QFETCH(int, kind);
    QFETCH(QStringList, sent);
    QFETCH(QString, value);
    Frame().active_checker(QStringLiteral("15"), static_cast<quint8>(kind));
    QCOMPARE(Sent(), sent);
    QCOMPARE(Criterion().Value1(), QVariant(value));
    QVERIFY(Criterion().Active());
}

void CategorySearchTest::aRecordWithoutACategoryEmptiesThePath()
{
    Frame().active_checker(QStringLiteral("16"), 1);
    QCOMPARE(Sent(), QStringList("select * from kala_category where kala_code=16"));
    QCOMPARE(form_->Bubbles(), QStringList());
    QCOMPARE(Criterion().Value1(), QVariant(QString()));
    QVERIFY(Criterion().Active());
    Frame().active_checker(QStringLiteral("15"), 1);
    Frame().active_checker(QStringLiteral("16"), 1);
    QCOMPARE(form_->Bubbles(), QStringList());
    QCOMPARE(form_->Offered(), QStringList({"کالا|1|0", "خدمات|4|0"}));
    QCOMPARE(Criterion().Value1(), QVariant(QString()));
}

void CategorySearchTest::aRecordOfACategoryThatIsGoneLeavesNothing()
{
    Frame().create_bubble(7, 1);
    form_->Tables.Execute(QStringLiteral("DELETE FROM category WHERE id = 8"));
    Frame().active_checker(QStringLiteral("15"), 1);
    QCOMPARE(form_->Bubbles(), QStringList());
    QCOMPARE(Criterion().Value1(), QVariant(QString()));
}

void CategorySearchTest::aCodeThatIsNoneIsRefused_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("empty") << "";
    QTest::newRow("sign") << "-15";
    QTest::newRow("blank") << "15 ";
    QTest::newRow("statement") << "15; DROP TABLE category";
    QTest::newRow("condition") << "15 or 1=1";
    QTest::newRow("digits of another script") << "۱۵";
}

void CategorySearchTest::aCodeThatIsNoneIsRefused()
{
    QFETCH(QString, code);
    Frame().create_bubble(4, 1);
    form_->Forget();
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, Frame().active_checker(code, 1));
    QCOMPARE(Sent(), QStringList());
    QCOMPARE(form_->Bubbles(), QStringList("خدمات|4|0"));
    QVERIFY(!Criterion().Active());
}

void CategorySearchTest::aCircleLeavesPathAndValue()
{
    Frame().active_checker(QStringLiteral("15"), 2);
    form_->Tables.Execute(QStringLiteral("UPDATE category SET parent_code = 8 WHERE id = 1"));
    QVERIFY_THROWS_EXCEPTION(EADOError, Frame().active_checker(QStringLiteral("15"), 1));
    QCOMPARE(form_->Bubbles(), QStringList("خدمات|4|0"));
    QCOMPARE(Criterion().Value1(), QVariant(QStringLiteral(",4,")));
}

void CategorySearchTest::theNameSoughtIsOneOfTheMenu()
{
    Frame().create_bubble(2, 1);
    QVERIFY(Frame().Existinmenu(QStringLiteral("چکش")));
    QVERIFY(!Frame().Existinmenu(QStringLiteral("رنگ")));
    QVERIFY(!Frame().Existinmenu(QString()));
}

void CategorySearchTest::anOwnerMayDestroyTheFrameWhileItPublishes()
{
    auto frame = std::make_unique<TCategorysearchframe>();
    frame->TarvaSearch1->OnChange = [&frame](QObject*) { frame.reset(); };
    frame->open(1);
    QVERIFY(frame == nullptr);
    frame = std::make_unique<TCategorysearchframe>();
    frame->TarvaSearch1->OnChange = [&frame](QObject*) { frame.reset(); };
    frame->active_checker(QStringLiteral("15"), 1);
    QVERIFY(frame == nullptr);
}

QTEST_MAIN(CategorySearchTest)
#include "CategorySearchTest.moc"
