#include "TagsForm.h"
#include "TestCase.h"

#include <QAccessible>
#include <QSignalSpy>

namespace {

constexpr auto confirmation = "Confirm(20150, 2, 0)";

const TTaggedRecords three{QStringLiteral("Goods"), QStringLiteral("Id"), QStringLiteral("1,2,3")};
const QString records = TTagsForm::Records(QStringLiteral("1,2,3"));

QString Suggestions(const QString& typed, const QStringList& excluded = {})
{
    return TagStatements::Suggestions(excluded, typed);
}

/// What a reload sends: codes of the common and of the partial tags as they are looked up.
QStringList Reload(const QStringList& common, const QStringList& partial)
{
    QStringList sent{TagStatements::StrongPictures(), TagStatements::LightPictures(),
                     TagStatements::AllTags(), records};
    for (const QString& code : common)
        sent.append(TagStatements::TagByCode(code));
    sent.append(records);
    for (const QString& code : partial)
        sent.append(TagStatements::TagByCode(code));
    if (!common.isEmpty() || !partial.isEmpty())
        sent.append(records);
    sent.append(Suggestions(QString(), common));
    return sent;
}

} // namespace

class TagsFrameKeysTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void eachKeyOffersWhatBeginsWithTheTypedText()
    {
        TTagsForm form;
        Fill(form);
        form.Select({4});
        QVERIFY(form.Show());
        form.Tables.Sent();
        form.Type(QStringLiteral("عم"));
        const QStringList sent{Suggestions(QStringLiteral("ع")), Suggestions(QStringLiteral("عم"))};
        QCOMPARE(form.Tables.Sent(), sent);
        const QStringList suggested{QStringLiteral("عمده"), QStringLiteral("عمومی")};
        QCOMPARE(form.Suggested(), suggested);
        form.Press(Qt::Key_Backspace);
        form.Press(Qt::Key_Backspace);
        QCOMPARE(form.Suggested().size(), 4);
        QCOMPARE(form.Tables.TagsOf(4), QStringLiteral("NULL"));
    }

    void withItemsTheRecordsAreReadForEachKey()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1, 2, 3});
        QVERIFY(form.Show());
        form.Tables.Sent();
        form.Type(QStringLiteral("ن"));
        const QStringList sent{records, Suggestions(QStringLiteral("ن"), {QStringLiteral("5")})};
        QCOMPARE(form.Tables.Sent(), sent);
    }

    void enterPutsAPartialTagOnTheOtherRecords()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1, 2, 3});
        QVERIFY(form.Show());
        QVERIFY(form.Items().contains(QStringLiteral("نقدی=7:(blue)")));
        const QStringList sent = form.Enter(QStringLiteral("نقدی"));
        const QStringList common{QStringLiteral("5"), QStringLiteral("7")};
        const QStringList expected = QStringList{records,
                                                 Suggestions(QStringLiteral("نقدی"), {QStringLiteral("5")}),
                                                 TagStatements::TagByName(QStringLiteral("نقدی")),
                                                 TagStatements::AddShown(three, QStringLiteral("7")),
                                                 records,
                                                 Suggestions(QString(), common)} +
                                     Reload(common, {QStringLiteral("15")});
        QCOMPARE(sent, expected);
        QCOMPARE(form.Tables.TagsOf(1), QStringLiteral(",5,7,"));
        QCOMPARE(form.Tables.TagsOf(2), QStringLiteral(",15,5,7,"));
        QCOMPARE(form.Tables.TagsOf(3), QStringLiteral(",7,5,"));
        QVERIFY(form.Items().contains(QStringLiteral("نقدی=7:blue")));
        QCOMPARE(form.Editor()->EditText(), QString());
        QVERIFY(form.Editor()->hasFocus());
    }

    void enterPutsATagThatNoRecordCarriesOnAll()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1, 2, 3});
        QVERIFY(form.Show());
        const QStringList sent = form.Enter(QStringLiteral("ویژه"));
        const QStringList common{QStringLiteral("3"), QStringLiteral("5")};
        const QStringList partial{QStringLiteral("15"), QStringLiteral("7")};
        const QStringList expected = QStringList{records,
                                                 Suggestions(QStringLiteral("ویژه"), {QStringLiteral("5")}),
                                                 TagStatements::TagByName(QStringLiteral("ویژه")),
                                                 TagStatements::AddUnshown(three, QStringLiteral("3")),
                                                 records,
                                                 Suggestions(QString(), common)} +
                                     Reload(common, partial);
        QCOMPARE(sent, expected);
        QCOMPARE(form.Tables.TagsOf(2), QStringLiteral(",15,5,3,"));
        QVERIFY(form.Items().contains(QStringLiteral("ویژه=3:red")));
        QCOMPARE(form.Tables.TagsOf(4), QStringLiteral("NULL"));
    }

    void enterOnATagThatAllRecordsCarryChangesNothing()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1, 2, 3});
        QVERIFY(form.Show());
        const QStringList before = form.Tables.AllTags();
        const QStringList items = form.Items();
        form.Enter(QStringLiteral("عمده"));
        QCOMPARE(form.Tables.AllTags(), before);
        QCOMPARE(form.Items(), items);
    }

    void enterWithoutATextOnlyReads()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1, 2, 3});
        QVERIFY(form.Show());
        const QStringList sent = form.Enter(QString());
        const QStringList expected =
            QStringList{records, Suggestions(QString(), {QStringLiteral("5")}),
                        TagStatements::TagByName(QString()), records,
                        Suggestions(QString(), {QStringLiteral("5")})} +
            Reload({QStringLiteral("5")}, {QStringLiteral("15"), QStringLiteral("7")});
        QCOMPARE(sent, expected);
        QCOMPARE(form.Host.Log.Lines(), QStringList());
    }

    void theCurrentSuggestionDecidesWhichPartialTagIsPut()
    {
        TTagsForm form;
        Fill(form);
        form.Tables.AddTag(4, QStringLiteral("نقدی فوری"), 3);
        form.Tables.AddGoods(5, QStringLiteral(",4,"));
        form.Tables.AddGoods(6, QVariant());
        form.Select({5, 6});
        QVERIFY(form.Show());
        form.Enter(QStringLiteral("نقدی"));
        // Both begin with the typed name; the first of the list is the one that is partly present.
        QCOMPARE(form.Tables.TagsOf(6), QStringLiteral(",4,"));
        QCOMPARE(form.Tables.TagsOf(5), QStringLiteral(",4,"));
    }

    void aNewNameIsCreatedWhenTheUserAgrees()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1, 2, 3});
        form.Host.Messages.Answer = TMessageResult::mrYes;
        form.Host.Pickers.CreatedTag = 21;
        form.Host.Pickers.WhilePicking = [&form] { form.Tables.AddTag(21, QStringLiteral("تازه"), 2); };
        QVERIFY(form.Show());
        QStringList sent = form.Enter(QStringLiteral("تازه"));
        sent.removeIf([](const QString& text) { return text.startsWith(QStringLiteral("INSERT")); });
        const QStringList calls{QLatin1String(confirmation), QStringLiteral("Call_insert_tags(تازه, 1)")};
        QCOMPARE(form.Host.Log.Lines(), calls);
        const QStringList common{QStringLiteral("21"), QStringLiteral("5")};
        const QStringList expected = QStringList{records,
                                                 Suggestions(QStringLiteral("تازه"), {QStringLiteral("5")}),
                                                 TagStatements::TagByName(QStringLiteral("تازه")),
                                                 TagStatements::NewTag(QStringLiteral("21")),
                                                 TagStatements::AddUnshown(three, QStringLiteral("21")),
                                                 records,
                                                 Suggestions(QString(), common)} +
                                     Reload(common, {QStringLiteral("15"), QStringLiteral("7")});
        QCOMPARE(sent, expected);
        QCOMPARE(form.Tables.TagsOf(1), QStringLiteral(",5,7,21,"));
        QVERIFY(form.Items().contains(QStringLiteral("تازه=21:blue")));
    }

    void aNewNameIsNotCreatedOtherwise_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("created");
        QTest::addColumn<QStringList>("calls");
        const QString asked = QLatin1String(confirmation);
        const QString called = QStringLiteral("Call_insert_tags(تازه, 1)");
        QTest::newRow("declined") << int(TMessageResult::mrNo) << 21 << QStringList{asked};
        QTest::newRow("cancelled") << int(TMessageResult::mrYes) << 0 << QStringList{asked, called};
        QTest::newRow("limit")
            << int(TMessageResult::mrYes) << -1
            << QStringList{asked, called,
                           QStringLiteral("Notify(10026, محدودیت در تعداد تگ ها, Tags_editor, form)")};
        QTest::newRow("another value") << int(TMessageResult::mrYes) << -7 << QStringList{asked, called};
    }

    void aNewNameIsNotCreatedOtherwise()
    {
        QFETCH(const int, answer);
        QFETCH(const int, created);
        QFETCH(const QStringList, calls);
        TTagsForm form;
        Fill(form);
        form.Form->setObjectName(QStringLiteral("form"));
        form.Select({1, 2, 3});
        form.Host.Messages.Answer = static_cast<TMessageResult>(answer);
        form.Host.Pickers.CreatedTag = created;
        QVERIFY(form.Show());
        const QStringList before = form.Tables.AllTags();
        const QStringList items = form.Items();
        form.Enter(QStringLiteral("تازه"));
        QCOMPARE(form.Host.Log.Lines(), calls);
        QCOMPARE(form.Tables.AllTags(), before);
        QCOMPARE(form.Items(), items);
        QCOMPARE(form.Editor()->EditText(), QString());
    }

    void backspaceTakesATagOffAllRecordsAtOnce()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1, 2, 3});
        QVERIFY(form.Show());
        form.Tables.Sent();
        form.Press(Qt::Key_Backspace); // the last item, the partial 7
        const QStringList common{QStringLiteral("5")};
        const QStringList expected = QStringList{records,
                                                 Suggestions(QString(), common),
                                                 TagStatements::Remove(three, QStringLiteral("7")),
                                                 TagStatements::ClearEmptied(three),
                                                 records,
                                                 Suggestions(QString(), common)} +
                                     Reload(common, {QStringLiteral("15")});
        QCOMPARE(form.Tables.Sent(), expected);
        QCOMPARE(form.Tables.TagsOf(1), QStringLiteral(",5,"));
        QCOMPARE(form.Tables.TagsOf(3), QStringLiteral(",5,"));
        const QStringList items{QStringLiteral("عمده=5:red"), QStringLiteral("عمومی=15:(green)")};
        QCOMPARE(form.Items(), items);
    }

    void aCloseMarkTakesItsTagOff()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1, 3}); // 5 and 7 are common
        QVERIFY(form.Show());
        const QRect bubble = QAccessible::queryAccessibleInterface(form.Editor())->child(0)->rect();
        constexpr int FromEdge = 11;
        QTest::mouseClick(
            form.Editor(), Qt::LeftButton, {},
            form.Editor()->mapFromGlobal(QPoint(bubble.left() + FromEdge, bubble.center().y())));
        QCOMPARE(form.Items(), QStringList{QStringLiteral("نقدی=7:blue")});
        QCOMPARE(form.Tables.TagsOf(1), QStringLiteral(",7,"));
        QCOMPARE(form.Tables.TagsOf(3), QStringLiteral(",7,"));
    }

    void deleteTakesTheTagBehindTheCaretOff()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1, 2, 3});
        QVERIFY(form.Show());
        for (int item = 0; item < 3; ++item)
            form.Press(Qt::Key_Right);
        form.Press(Qt::Key_Delete); // the first item, the common 5
        QCOMPARE(form.Tables.TagsOf(1), QStringLiteral(",7,"));
        QCOMPARE(form.Tables.TagsOf(2), QStringLiteral(",15,"));
        QCOMPARE(form.Tables.TagsOf(3), QStringLiteral(",7,"));
    }

    void theLastTagOfARecordLeavesNull()
    {
        TTagsForm form;
        Fill(form);
        form.Tables.AddGoods(5, QStringLiteral(",7,"));
        form.Select({5});
        QVERIFY(form.Show());
        form.Press(Qt::Key_Backspace);
        QCOMPARE(form.Tables.TagsOf(5), QStringLiteral("NULL"));
        QVERIFY(form.Editor()->Values().IsEmpty());
    }

    void aTagThatTheLastRecordDoesNotCarryStays()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1, 2}); // the last one carries 5 and 15
        QVERIFY(form.Show());
        QCOMPARE(form.Items().constLast(), QStringLiteral("نقدی=7:(blue)"));
        form.Press(Qt::Key_Backspace);
        QCOMPARE(form.Tables.TagsOf(1), QStringLiteral(",5,7,"));
        // The reload brings its item back.
        QCOMPARE(form.Items().constLast(), QStringLiteral("نقدی=7:(blue)"));
    }

    void backspaceInTheTypedTextTakesNothingOff()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1, 2, 3});
        QVERIFY(form.Show());
        const QStringList before = form.Tables.AllTags();
        form.Type(QStringLiteral("ن"));
        form.Press(Qt::Key_Backspace);
        QCOMPARE(form.Tables.AllTags(), before);
        QCOMPARE(form.Items().size(), 3);
    }

    void otherKeysNeverRemove()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1, 2, 3});
        QVERIFY(form.Show());
        // The host has taken an item away meanwhile.
        form.Editor()->Values().Delete(0);
        const QStringList before = form.Tables.AllTags();
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_End, Qt::Key_Down, Qt::Key_Escape})
            form.Press(key);
        QCOMPARE(form.Tables.AllTags(), before);
    }

    void theEditorIsYellowWhileItHasTheFocus()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1});
        QVERIFY(form.Show());
        QCOMPARE(form.Editor()->Color(), 65535U);
        form.Press(Qt::Key_Tab);
        QCOMPARE(form.Editor()->Color(), 0xFFFFFFU);
        form.Other->setFocus();
        form.Editor()->setFocus();
        QCOMPARE(form.Editor()->Color(), 65535U);
    }

    void upGoesToTheSuggestions()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1});
        QVERIFY(form.Show());
        form.Press(Qt::Key_Up);
        QVERIFY(form.Grid()->hasFocus());
        QVERIFY(form.Grid()->isEnabled());
        form.Editor()->setFocus();
        form.Type(QStringLiteral("هیچ"));
        form.Press(Qt::Key_Up);
        QVERIFY(form.Editor()->hasFocus());
        QVERIFY(form.Form->focusWidget() != form.Grid());
    }

    void downBehindTheLastSuggestionComesBackToTheEditor()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1});
        QVERIFY(form.Show());
        const auto releaseDown = [&form] {
            form.Other->setFocus();
            quint16 key = VirtualKey::Down;
            form.Editor()->OnKeyUp(form.Editor(), key, Qt::NoModifier);
        };
        releaseDown();
        QVERIFY(form.Other->hasFocus());
        form.Editor()->SetEditText(QStringLiteral("هیچ"));
        releaseDown();
        QVERIFY(form.Editor()->hasFocus());
    }

    void comingInPutsTheCaretBehindTheItems()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1, 3});
        QVERIFY(form.Show());
        form.Press(Qt::Key_Home);
        form.Other->setFocus();
        form.Editor()->setFocus();
        form.Press(Qt::Key_Backspace);
        QCOMPARE(form.Items(), QStringList{QStringLiteral("عمده=5:red")});
    }

    void aNameInOtherLettersIsThatOfTheTag()
    {
        TTagsForm form;
        Fill(form);
        form.Tables.AddTag(8, QStringLiteral("VIP"), 2);
        form.Tables.AddTag(9, QStringLiteral("VIP gold"), 1);
        form.Select({4});
        QVERIFY(form.Show());
        form.Enter(QStringLiteral("vip"));
        QCOMPARE(form.Tables.TagsOf(4), QStringLiteral(",8,"));
        QCOMPARE(form.Items(), QStringList{QStringLiteral("VIP=8:blue")});
        QCOMPARE(form.Host.Log.Lines(), QStringList());
    }

    void theGridIsEnabledAsTheEditorSays()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1});
        QVERIFY(form.Show());
        form.Editor()->SetReadOnly(true);
        form.Press(Qt::Key_Left);
        QVERIFY(!form.Editor()->StateFlag());
        QVERIFY(!form.Grid()->isEnabled());
        form.Editor()->SetReadOnly(false);
        form.Press(Qt::Key_Left);
        QVERIFY(form.Grid()->isEnabled());
    }

    void theOwnerHearsOfEveryWriting()
    {
        TTagsForm form;
        Fill(form);
        form.Select({1, 2, 3});
        QVERIFY(form.Show());
        QSignalSpy spy(form.Frame, &TTags::tagsChanged);
        form.Enter(QStringLiteral("نقدی"));
        QCOMPARE(spy.size(), 1);
        form.Press(Qt::Key_Backspace);
        QCOMPARE(spy.size(), 1); // 15 is not the last record's
        for (int item = 0; item < 3; ++item)
            form.Press(Qt::Key_Right);
        form.Press(Qt::Key_Delete);
        QCOMPARE(spy.size(), 2);
        form.Enter(QString());
        QCOMPARE(spy.size(), 2);
    }

private:
    /// Goods 1 to 3 all carry 5, two of them 7, one 15; the last one 7 and 5.
    static void Fill(TTagsForm& form)
    {
        TTagTables& tables = form.Tables;
        tables.AddTag(5, QStringLiteral("عمده"), 1);
        tables.AddTag(7, QStringLiteral("نقدی"), 2);
        tables.AddTag(15, QStringLiteral("عمومی"), 3);
        tables.AddTag(3, QStringLiteral("ویژه"), 1);
        tables.AddGoods(1, QStringLiteral(",5,7,"));
        tables.AddGoods(2, QStringLiteral(",15,5,"));
        tables.AddGoods(3, QStringLiteral(",7,5,"));
        tables.AddGoods(4, QVariant());
        tables.Sent();
    }
};

QTEST_MAIN(TagsFrameKeysTest)
#include "TagsFrameKeysTest.moc"
