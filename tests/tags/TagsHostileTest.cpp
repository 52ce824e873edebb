#include "TagsForm.h"
#include "TestCase.h"

class TagsHostileTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anyNameIsCreatedShownPutAndTakenOff_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("quotes") << QStringLiteral("O'Neil \"x\" ''");
        QTest::newRow("statement") << QStringLiteral("'; drop table tags; --");
        QTest::newRow("commas") << QStringLiteral(",5,7,");
        QTest::newRow("percent") << QStringLiteral("50% تخفیف");
        QTest::newRow("only a percent") << QStringLiteral("%");
        QTest::newRow("underscore") << QStringLiteral("_");
        QTest::newRow("bracket") << QStringLiteral("a]b");
        QTest::newRow("brackets") << QStringLiteral("[h-img]");
        QTest::newRow("opening bracket") << QStringLiteral("[");
        QTest::newRow("separator") << QStringLiteral("نقد;نسیه");
        QTest::newRow("mnemonic") << QStringLiteral("A&B");
        QTest::newRow("markup") << QStringLiteral("<b>x</b>");
        QTest::newRow("emoji") << QStringLiteral("ویژه 🎁🎁");
        QTest::newRow("bidirectional marks")
            << QString(QStringLiteral("الف") + QChar(0x200F) + QStringLiteral(" x") + QChar(0x200E) +
                       QChar(0x202E) + QStringLiteral("y"));
        QTest::newRow("zero-width non-joiner") << QStringLiteral("می‌خواهم");
        QTest::newRow("fifty characters") << QString(50, u'ش');
        QTest::newRow("twenty-five emoji") << QStringLiteral("🎁").repeated(25);
        QTest::newRow("only a quote") << QStringLiteral("'");
    }

    void anyNameIsCreatedShownPutAndTakenOff()
    {
        QFETCH(const QString, name);
        TTagsForm form;
        form.Tables.AddTag(5, QStringLiteral("عمده"), 1);
        form.Tables.AddGoods(1, QStringLiteral(",5,"));
        form.Tables.AddGoods(2, QVariant());
        form.Host.Messages.Answer = TMessageResult::mrYes;
        form.Host.Pickers.CreatedTag = 21;
        form.Host.Pickers.WhilePicking = [&] { form.Tables.AddTag(21, name, 2); };

        form.Select({1});
        QVERIFY(form.Show());
        form.Enter(name);
        QCOMPARE(form.Host.Log.CountOf(QStringLiteral("Call_insert_tags")), 1);
        QCOMPARE(form.Host.Log.Lines().constLast(), QStringLiteral("Call_insert_tags(%1, 1)").arg(name));
        QVERIFY(form.Items().contains(name + QStringLiteral("=21:blue")));
        QCOMPARE(form.Tables.TagsOf(1), QStringLiteral(",5,21,"));

        // On a second record it is found by its name.
        form.Select({2});
        QVERIFY(form.Suggested().contains(name));
        form.Enter(name);
        QCOMPARE(form.Host.Log.CountOf(QStringLiteral("Confirm")), 1);
        QCOMPARE(form.Items(), QStringList{name + QStringLiteral("=21:blue")});
        QCOMPARE(form.Tables.TagsOf(2), QStringLiteral(",21,"));

        form.Press(Qt::Key_Backspace);
        QCOMPARE(form.Tables.TagsOf(2), QStringLiteral("NULL"));
        QCOMPARE(form.Tables.TagsOf(1), QStringLiteral(",5,21,"));
        QVERIFY(form.Items().isEmpty());
    }

    void aTypedBeginningOffersTheName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("typed");
        QTest::newRow("quote") << QStringLiteral("O'Neil") << QStringLiteral("O'");
        QTest::newRow("comma") << QStringLiteral(",5,7,") << QStringLiteral(",5");
        QTest::newRow("closing bracket") << QStringLiteral("]a") << QStringLiteral("]");
        QTest::newRow("emoji") << QStringLiteral("🎁 ویژه") << QStringLiteral("🎁");
        // The wildcards of LIKE count, as the statement is.
        QTest::newRow("percent") << QStringLiteral("عمده") << QStringLiteral("%");
        QTest::newRow("character class") << QStringLiteral("عمده") << QStringLiteral("[ع-غ]");
    }

    void aTypedBeginningOffersTheName()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, typed);
        TTagsForm form;
        form.Tables.AddTag(5, name, 1);
        form.Tables.AddTag(6, QStringLiteral("ببب"), 1);
        form.Tables.AddGoods(1, QVariant());
        form.Select({1});
        QVERIFY(form.Show());
        form.Type(typed);
        QVERIFY(form.Suggested().contains(name));
    }

    void aNameIsNoLongerThanItsColumn()
    {
        TTagsForm form;
        form.Tables.AddGoods(1, QVariant());
        form.Select({1});
        QVERIFY(form.Show());
        form.Type(QString(60, u'ب'));
        QCOMPARE(form.Editor()->EditText().size(), 50);
    }
};

QTEST_MAIN(TagsHostileTest)
#include "TagsHostileTest.moc"
