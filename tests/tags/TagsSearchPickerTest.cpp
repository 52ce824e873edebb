#include "TagsSearchForm.h"
#include "TestCase.h"

/// The frame with searching switched off: it picks tags and creates those that are not there.
class TagsSearchPickerTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anUnknownNameIsCreatedWhenTheUserWantsIt()
    {
        Answer(TMessageResult::mrYes, 12);
        form_->Host.Pickers.WhilePicking = [this] { form_->Tables.AddTag(12, QStringLiteral("تازه"), 3); };
        QVERIFY(form_->Show(false));
        form_->Type(QStringLiteral("تازه"));
        form_->Tables.Sent();
        form_->Press(Qt::Key_Return);
        QStringList sent = form_->Tables.Sent();
        sent.removeAll(QStringLiteral("INSERT INTO TagS (Code, Name, color_code) VALUES (?, ?, ?)"));
        QCOMPARE(sent, (QStringList{SentText::Tag(QStringLiteral("'تازه'")), SentText::Count(),
                                    SentText::NewTag(12), SentText::Pictures()}));
        QCOMPARE(form_->Host.Log.Lines(), (QStringList{QStringLiteral("Confirm(20150, 2, 0)"),
                                                       QStringLiteral("Call_insert_tags(تازه, 1)")}));
        QCOMPARE(form_->Items(), QStringList{QStringLiteral("تازه:12:3")});
        QCOMPARE(form_->Editor().Images().size(), 4);
        QCOMPARE(form_->Editor().EditText(), QString());
        QCOMPARE(form_->Editor().KeyList, QStringLiteral(",12,"));
        QVERIFY(!form_->Criterion().Active());
    }

    void aNoCreatesNothing()
    {
        Answer(TMessageResult::mrNo, 12);
        QVERIFY(form_->Show(false));
        form_->Enter(QStringLiteral("تازه"));
        QCOMPARE(form_->Host.Log.CountOf(QStringLiteral("Call_insert_tags")), 0);
        QVERIFY(form_->Items().isEmpty());
        QCOMPARE(form_->Editor().EditText(), QString());
    }

    void aCancelledDialogAddsNothing()
    {
        Answer(TMessageResult::mrYes, 0);
        QVERIFY(form_->Show(false));
        form_->Type(QStringLiteral("تازه"));
        form_->Tables.Sent();
        form_->Press(Qt::Key_Return);
        QCOMPARE(form_->Tables.Sent(),
                 (QStringList{SentText::Tag(QStringLiteral("'تازه'")), SentText::Count()}));
        QVERIFY(form_->Items().isEmpty());
    }

    void onlyTheLowByteOfTheCodeCounts_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QStringList>("items");
        QTest::newRow("261 is 5") << 261 << QStringList{QStringLiteral("پنج:5:1")};
        QTest::newRow("256 is nothing") << 256 << QStringList();
        QTest::newRow("the limit is 255, which is not there") << -1 << QStringList();
    }

    void onlyTheLowByteOfTheCodeCounts()
    {
        QFETCH(int, answer);
        QFETCH(QStringList, items);
        Answer(TMessageResult::mrYes, answer);
        QVERIFY(form_->Show(false));
        form_->Enter(QStringLiteral("تازه"));
        QCOMPARE(form_->Items(), items);
    }

    void onlyTheLowByteOfTheColourCounts()
    {
        form_->Tables.AddColor(258, QStringLiteral("clMaroon"), QColor(128, 0, 0));
        form_->Tables.AddTag(12, QStringLiteral("دور"), 258);
        Answer(TMessageResult::mrYes, 12);
        QVERIFY(form_->Show(false));
        form_->Enter(QStringLiteral("تازه"));
        // 258 is 2, whose first picture is that of «سه».
        QCOMPARE(form_->Items(), QStringList{QStringLiteral("دور:12:0")});
    }

    void withTenTagsNothingIsCreated_data()
    {
        QTest::addColumn<int>("tags");
        QTest::addColumn<bool>("asks");
        QTest::newRow("nine") << 9 << true;
        QTest::newRow("ten") << 10 << false;
        QTest::newRow("eleven") << 11 << false;
    }

    void withTenTagsNothingIsCreated()
    {
        QFETCH(int, tags);
        QFETCH(bool, asks);
        for (int code = 11; code < 11 + tags - 3; ++code)
            form_->Tables.AddTag(code, QStringLiteral("برچسب%1").arg(code), 1);
        QVERIFY(form_->Show(false));
        QCOMPARE(form_->Frame->AllowinsertTag(), asks);
        form_->Enter(QStringLiteral("تازه"));
        QCOMPARE(form_->Host.Log.CountOf(QStringLiteral("Confirm")), asks ? 1 : 0);
        QVERIFY(form_->Items().isEmpty());
        QCOMPARE(form_->Editor().EditText(), QString());
    }

    void knownNamesArePickedWithoutFiltering()
    {
        QVERIFY(form_->Show(false));
        form_->Enter(QStringLiteral("پنج"));
        form_->Enter(QStringLiteral("سه"));
        QCOMPARE(form_->Items(), (QStringList{QStringLiteral("پنج:5:1"), QStringLiteral("سه:3:0")}));
        form_->Press(Qt::Key_Backspace);
        QCOMPARE(form_->Items(), QStringList{QStringLiteral("پنج:5:1")});
        QCOMPARE(form_->Editor().KeyList, QStringLiteral(",5,"));
        QVERIFY(!form_->Criterion().Active());
        QVERIFY(!form_->Criterion().Value1().isValid());
        QVERIFY(form_->Frame->ChosenCodes().isEmpty());
    }

    void aCompletedEntryIsPickedWithoutFiltering()
    {
        QVERIFY(form_->Show(false));
        form_->Editor().Lookup().AddPair(QStringLiteral("پنج"), QStringLiteral("5"), 1);
        form_->Type(QStringLiteral("پنج;"));
        QCOMPARE(form_->Items(), QStringList{QStringLiteral("پنج:5:1")});
        QVERIFY(!form_->Criterion().Active());
        QVERIFY(!form_->Criterion().Value1().isValid());
    }

    void aFrameThatIsClosedWhileTheHostAsksIsLeftAlone()
    {
        Answer(TMessageResult::mrYes, 5);
        form_->Host.Pickers.WhilePicking = [this] { form_->Form.reset(); };
        QVERIFY(form_->Show(false));
        form_->Enter(QStringLiteral("تازه"));
        QVERIFY(form_->Form == nullptr);
    }

protected:
    void Prepare() override { form_ = std::make_unique<TTagsSearchForm>(); }
    void Finish() override { form_.reset(); }

private:
    void Answer(TMessageResult answer, int code)
    {
        form_->Host.Messages.Answer = answer;
        form_->Host.Pickers.CreatedTag = code;
    }

    std::unique_ptr<TTagsSearchForm> form_;
};

QTEST_MAIN(TagsSearchPickerTest)
#include "TagsSearchPickerTest.moc"
