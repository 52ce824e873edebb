#include "Category_Search_UNT.h"
#include "Category_SearchWithManager_UNT.h"
#include "CategoryForm.h"
#include "TestCase.h"

#include <QtTest>

using namespace CategoryTexts;

/// Names that a user may well give, and very many of them.
class CategoryNamesTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anyNameIsShownChosenFilteredAndRemoved_data();
    void anyNameIsShownChosenFilteredAndRemoved();
    void anyNameIsChosenByTypingIt_data() { anyNameIsShownChosenFilteredAndRemoved_data(); }
    void anyNameIsChosenByTypingIt();
    void aNameWithACommaIsShiftedAndHarmsNothing();
    void aTopLevelNameWithACommaStaysWhole();
    void aNumberBehindACommaIsTakenForTheId();
    void anIdThatAnOwnersBubbleLacksIsNotSent();
    void aThousandChildrenAreFoundByTyping();
    void theLastOfAThousandIsReachedByTheArrows();

private:
    static void AddThousand(TCategoryTables& tables)
    {
        for (int id = 1000; id < 2000; ++id)
            tables.Add(id, 4, QStringLiteral("خدمت شمارهٔ %1").arg(id));
    }
};

void CategoryNamesTest::anyNameIsShownChosenFilteredAndRemoved_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("quote") << "استاد'کار'";
    QTest::newRow("double quote") << "پیچ \"نمرهٔ ۸\"";
    QTest::newRow("per cent") << "۱۰۰% نخ";
    QTest::newRow("brackets") << "a]b[c";
    QTest::newRow("ampersand") << "R&D && ق";
    QTest::newRow("separator") << "پیچ;مهره";
    QTest::newRow("emoji") << "🔨🧰 ابزار 👷🏽";
    QTest::newRow("50 letters") << QString(50, u'م');
    QTest::newRow("50 narrow and wide")
        << QStringLiteral("یک دستهٔ بسیار بسیار بلند برای آزمودنِ جای تنگ، ۵۰").left(50);
    QTest::newRow("marks of direction") << "\u200Fچپ\u2067abc\u2069\u200E!";
    QTest::newRow("half space") << "می‌شود";
    QTest::newRow("Arabic letters") << "كيك";
    QTest::newRow("comment") << "--/*";
    QTest::newRow("like a number") << "0012";
}

void CategoryNamesTest::anyNameIsShownChosenFilteredAndRemoved()
{
    QFETCH(QString, name);
    TCategoryForm<TCategorysearchframe> form;
    form.Tables.Add(70, 4, name);
    form.Host.Settings.User.Code = 9;
    form.Frame->open(2);
    QVERIFY(form.Start());
    QVERIFY(form.Choose(QStringLiteral("خدمات")));
    QCOMPARE(form.Offered(), QStringList(name + QStringLiteral("|70|4")));
    QVERIFY(form.Choose(name));
    QCOMPARE(form.Bubbles(), QStringList({QStringLiteral("خدمات|4|0"), name + QStringLiteral("|70|4")}));
    QCOMPARE(form.Frame->TarvaSearch1->Value1(), QVariant(QStringLiteral(",70,")));
    QVERIFY(form.Frame->exist(name));
    form.Frame->DrawItem(name);
    QCOMPARE(form.Bubbles().size(), 2);
    form.Forget();
    form.Editor().setFocus();
    form.Press(Qt::Key_Backspace);
    QCOMPARE(form.Tables.Statements, QStringList("select * from category where id = 70") + Menu(70, "(-1)"));
    QCOMPARE(form.Frame->TarvaSearch1->Value1(), QVariant(QStringLiteral(",4,")));
}

void CategoryNamesTest::anyNameIsChosenByTypingIt()
{
    QFETCH(QString, name);
    TCategoryForm<TCategory_frame> form;
    form.Tables.Add(70, 4, name);
    form.Frame->open(true);
    QVERIFY(form.Start());
    form.Type(name);
    QCOMPARE(form.Editor().EditText(), name);
    form.Press(Qt::Key_Return);
    QCOMPARE(form.Bubbles(), QStringList({QStringLiteral("خدمات|4|0"), name + QStringLiteral("|70|4")}));
    QCOMPARE(form.Editor().EditText(), QString());
}

void CategoryNamesTest::aNameWithACommaIsShiftedAndHarmsNothing()
{
    TCategoryForm<TCategorysearchframe> form;
    form.Tables.Add(70, 4, QStringLiteral("پیچ,مهره"));
    form.Tables.Add(71, 70, QStringLiteral("پیچ ریز"));
    form.Host.Settings.User.Code = 9;
    form.Frame->open(2);
    QVERIFY(form.Start());
    QVERIFY(form.Choose(QStringLiteral("خدمات")));
    QVERIFY(form.Choose(QStringLiteral("پیچ,مهره")));
    QCOMPARE(form.Bubbles(), QStringList({"خدمات|4|0", "پیچ|مهره|4"}));
    QCOMPARE(form.Offered(), QStringList("پیچ ریز|71|70"));
    QCOMPARE(form.Frame->TarvaSearch1->Value1(), QVariant(QStringLiteral(",70,")));
    QCOMPARE(form.Frame->ChosenCategory(), 70);
    // The value is no number; the menu is that of the category shown.
    form.Frame->createmenuItemByCode(0);
    form.Forget();
    QString unknown = QStringLiteral("میخ");
    form.Editor().OnValueEditDone(&form.Editor(), 1, unknown);
    QCOMPARE(form.Tables.Statements, QStringList(CategoryTexts::Named("'میخ'")) + Menu(70, "(71)"));
    form.Forget();
    form.Editor().setFocus();
    form.Press(Qt::Key_Backspace);
    QCOMPARE(form.Tables.Statements, QStringList("select * from category where id = 70") + Menu(70, "(71)"));
    QCOMPARE(form.Bubbles(), QStringList("خدمات|4|0"));
}

void CategoryNamesTest::aTopLevelNameWithACommaStaysWhole()
{
    TCategoryForm<TCategory_frame> form;
    form.Tables.Add(70, 0, QStringLiteral("پیچ,مهره"));
    form.Frame->open(true);
    QVERIFY(form.Start());
    form.Type(QStringLiteral("پیچ,مهره"));
    form.Press(Qt::Key_Return);
    QCOMPARE(form.Bubbles(), QStringList("پیچ,مهره|70|0"));
    form.Forget();
    form.Press(Qt::Key_Backspace);
    QCOMPARE(form.Tables.Statements, QStringList("select * from category where id=70") + Menu(0, "(1,4,70)"));
}

void CategoryNamesTest::aNumberBehindACommaIsTakenForTheId()
{
    TCategoryForm<TCategory_frame> form;
    form.Tables.Add(70, 4, QStringLiteral("پیچ,2"));
    form.Frame->create_bubble(70, 1);
    QCOMPARE(form.Bubbles(), QStringList({"خدمات|4|0", "پیچ|2|4"}));
    QCOMPARE(form.Offered(), QStringList({"چکش|7|2", "استاد'کار|8|2"}));
    QCOMPARE(form.Frame->ChosenCategory(), 70);
}

void CategoryNamesTest::anIdThatAnOwnersBubbleLacksIsNotSent()
{
    TCategoryForm<TCategory_frame> form;
    form.Editor().Values().AddPair(QStringLiteral("کالا"), QStringLiteral("1) DROP TABLE category --"), 0);
    form.Editor().Values().AddPair(QStringLiteral("ابزار"), QStringLiteral(" "), 0);
    form.Frame->open(false);
    QVERIFY(form.Start());
    form.Press(Qt::Key_Backspace);
    QCOMPARE(form.Tables.Statements, QStringList("select * from category where id=0") + Menu(0, "(1,4)"));
    form.Forget();
    form.Press(Qt::Key_Backspace);
    QCOMPARE(form.Tables.Statements, QStringList("select * from category where id=0") + Menu(0, "(1,4)"));
}

void CategoryNamesTest::aThousandChildrenAreFoundByTyping()
{
    TCategoryForm<TCategorysearchframe> form;
    AddThousand(form.Tables);
    form.Host.Settings.User.Code = 9;
    form.Frame->open(2);
    QVERIFY(form.Start());
    QVERIFY(form.Choose(QStringLiteral("خدمات")));
    QCOMPARE(form.Menu().Count(), 1000);
    form.Editor().setFocus();
    form.Type(QStringLiteral("+"));
    QVERIFY(form.Menu().isVisible());
    QVERIFY(form.Menu().height() <= form.Menu().screen()->geometry().height());
    Typing::Type(&form.Menu(), QStringLiteral("۱۷۳۴"));
    Typing::Press(&form.Menu(), Qt::Key_Return);
    QCOMPARE(form.Bubbles(), QStringList({"خدمات|4|0", "خدمت شمارهٔ 1734|1734|4"}));
    QCOMPARE(form.Frame->TarvaSearch1->Value1(), QVariant(QStringLiteral(",1734,")));
    QTRY_VERIFY(form.HasFocus());
}

void CategoryNamesTest::theLastOfAThousandIsReachedByTheArrows()
{
    TCategoryForm<TCategory_frame> form;
    AddThousand(form.Tables);
    form.Frame->create_bubble(4, 1);
    QVERIFY(form.Start());
    form.Menu().Popup(form.Form->pos());
    Typing::Press(&form.Menu(), Qt::Key_Up);
    Typing::Press(&form.Menu(), Qt::Key_Return);
    QCOMPARE(form.Bubbles().last(), QStringLiteral("خدمت شمارهٔ 1999|1999|4"));
}

QTEST_MAIN(CategoryNamesTest)
#include "CategoryNamesTest.moc"
