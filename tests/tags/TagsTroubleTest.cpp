#include "TagColumn.h"
#include "TagsForm.h"
#include "TestCase.h"
#include "ToolkitLeaks.h"

#include <numeric>
#include <QClipboard>
#include <QGuiApplication>

namespace {

constexpr int Wholesale = 5; // on all of the selected goods
constexpr int Cash = 7;      // on some
constexpr int Special = 3;   // on none

void FillShop(TTagsForm& form)
{
    form.Tables.AddTag(Wholesale, QStringLiteral("عمده"), 1);
    form.Tables.AddTag(Cash, QStringLiteral("نقدی"), 2);
    form.Tables.AddTag(Special, QStringLiteral("ویژه"), 3);
    form.Tables.AddGoods(1, QStringLiteral(",5,7,"));
    form.Tables.AddGoods(2, QStringLiteral(",5,"));
    form.Tables.AddGoods(3, QStringLiteral(",7,5,"));
    form.Tables.AddGoods(4, QVariant());
    form.Select({1, 2, 3});
}

void Forget(TTagTables& tables, int tag)
{
    tables.Connection.Execute(QStringLiteral("DELETE FROM TagS WHERE Code = ?"), {tag});
}

/// Fails one of the statements to come, as a connection does that is lost just then.
class TLostConnection
{
public:
    TLostConnection(TADOConnection& connection, int statement)
        : connection_(connection), kept_(connection.OnWillExecute), left_(statement)
    {
        connection_.OnWillExecute = [this](TADOConnection*, const QString& text) {
            if (left_-- == 0)
                throw EADOError(TAdoErrorKind::ConnectionLost, QStringLiteral("ارتباط قطع شد."), text);
        };
    }
    TLostConnection(const TLostConnection&) = delete;
    TLostConnection& operator=(const TLostConnection&) = delete;
    ~TLostConnection() { connection_.OnWillExecute = kept_; }

    bool HasFailed() const { return left_ < 0; }

private:
    TADOConnection& connection_;
    TWillExecuteEvent kept_;
    int left_;
};

} // namespace

/// What other users, the network and very large selections do to the frame.
class TagsTroubleTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tagsThatAreAllGoneLeaveAnEmptyEditor()
    {
        TTagsForm form;
        FillShop(form);
        QVERIFY(form.Show());
        const QStringList before = form.Tables.AllTags();
        form.Tables.Connection.Execute(QStringLiteral("DELETE FROM TagS"));
        form.Host.Messages.Answer = TMessageResult::mrNo;
        form.Enter(QStringLiteral("ویژه"));
        QCOMPARE(form.Host.Log.CountOf(QStringLiteral("Confirm")), 1);
        QCOMPARE(form.Items(), QStringList());
        QCOMPARE(form.Suggested(), QStringList());
        QVERIFY(!form.Grid()->isVisible());
        QCOMPARE(form.Tables.AllTags(), before);
    }

    void aTypedTagThatAnotherUserHasDeletedIsAskedAbout()
    {
        TTagsForm form;
        FillShop(form);
        QVERIFY(form.Show());
        form.Type(QStringLiteral("ویژه"));
        QCOMPARE(form.Suggested(), QStringList{QStringLiteral("ویژه")});
        Forget(form.Tables, Special);
        form.Press(Qt::Key_Return);
        QCOMPARE(form.Host.Log.CountOf(QStringLiteral("Confirm")), 1);
        QCOMPARE(form.Tables.TagsOf(1), QStringLiteral(",5,7,"));
    }

    void aShownTagThatIsGoneIsNotCreatedAgain()
    {
        TTagsForm form;
        FillShop(form);
        QVERIFY(form.Show());
        Forget(form.Tables, Wholesale);
        form.Enter(QStringLiteral("عمده"));
        QCOMPARE(form.Host.Log.Lines(), QStringList());
        QCOMPARE(form.Items(), QStringList{QStringLiteral("نقدی=7:(blue)")});
        QCOMPARE(form.Tables.TagsOf(2), QStringLiteral(",5,"));
    }

    void aShownTagThatAnotherUserHasTakenOffIsPutAgain()
    {
        TTagsForm form;
        FillShop(form);
        form.Select({1, 3}); // both carry 5 and 7
        QVERIFY(form.Show());
        form.Tables.Connection.Execute(QStringLiteral("UPDATE Goods SET tags = ',5,' WHERE Id = 3"));
        form.Type(QStringLiteral("نقدی"));
        form.Press(Qt::Key_Up);
        QTest::keyPress(form.Grid(), Qt::Key_Return);
        QCOMPARE(form.Tables.TagsOf(3), QStringLiteral(",5,7,"));
        QCOMPARE(form.Items().constLast(), QStringLiteral("نقدی=7:blue"));
    }

    void aSuggestionThatAnotherUserHasDeletedIsNotShownAnew()
    {
        TTagsForm form;
        FillShop(form);
        QVERIFY(form.Show());
        form.Type(QStringLiteral("ویژه"));
        form.Press(Qt::Key_Up);
        QVERIFY(form.Grid()->hasFocus());
        Forget(form.Tables, Special);
        QTest::keyClick(form.Grid(), Qt::Key_Return);
        form.Frame->frame_load();
        QVERIFY(form.Items().filter(QStringLiteral("ویژه")).isEmpty());
        QVERIFY(TagColumn::IsWellFormed(form.Tables.TagsOf(1)));
        QVERIFY(TagColumn::Codes(form.Tables.TagsOf(2)).contains(QStringLiteral("5")));
    }

    void aNewTagThatIsGoneAgainIsNotShown()
    {
        TTagsForm form;
        FillShop(form);
        form.Host.Messages.Answer = TMessageResult::mrYes;
        form.Host.Pickers.CreatedTag = 21;
        QVERIFY(form.Show());
        form.Enter(QStringLiteral("تازه"));
        QCOMPARE(form.Items().size(), 2);
        for (int key = 1; key <= 3; ++key)
            QVERIFY(TagColumn::IsWellFormed(form.Tables.TagsOf(key)));
    }

    void aRecordMayCarryThreeHundredTags()
    {
        constexpr int Tags = 300;
        TTagsForm form;
        QString column(QStringLiteral(","));
        for (int tag = 1; tag <= Tags; ++tag) {
            form.Tables.AddTag(tag, QStringLiteral("برچسب %1").arg(tag, 3, 10, QLatin1Char('0')), 1);
            column += QStringLiteral("%1,").arg(tag);
        }
        form.Tables.AddTag(400, QStringLiteral("یکی دیگر"), 2);
        form.Tables.AddGoods(1, column);
        form.Select({1});
        QVERIFY(form.Show());
        QCOMPARE(form.Items().size(), Tags);
        form.Enter(QStringLiteral("یکی دیگر"));
        QCOMPARE(form.Tables.TagsOf(1), column + QStringLiteral("400,"));
        QCOMPARE(form.Items().size(), Tags + 1);
        form.Press(Qt::Key_Backspace); // the last one as texts
        QVERIFY(!TagColumn::Codes(form.Tables.TagsOf(1)).contains(QStringLiteral("99")));
        QCOMPARE(form.Items().size(), Tags);
        QVERIFY(TagColumn::IsWellFormed(form.Tables.TagsOf(1)));
    }

    void aLostConnectionLeavesNoRecordHalfWritten_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("key");
        QTest::newRow("a tag on some") << QStringLiteral("نقدی") << int(Qt::Key_Return);
        QTest::newRow("a tag on none") << QStringLiteral("ویژه") << int(Qt::Key_Return);
        QTest::newRow("taken off") << QString() << int(Qt::Key_Backspace);
    }

    void aLostConnectionLeavesNoRecordHalfWritten()
    {
        QFETCH(const QString, typed);
        QFETCH(const int, key);
        const auto stroke = static_cast<Qt::Key>(key);
        QStringList after;
        {
            TTagsForm form;
            Begin(form, typed);
            form.Press(stroke);
            after = form.Tables.AllTags();
        }
        int failed = 0;
        for (bool isDone = false; !isDone; ++failed) {
            TTagsForm form;
            Begin(form, typed);
            const QStringList before = form.Tables.AllTags();
            QVERIFY(before != after);
            {
                const TLostConnection lost(form.Tables.Connection, failed);
                Lose(form, stroke);
                isDone = !lost.HasFailed();
            }
            const QStringList written = form.Tables.AllTags();
            QVERIFY2(written == before || written == after, qUtf8Printable(written.join(u' ')));
            CheckTheFrameGoesOn(form);
        }
        // Each statement of the stroke was the one that failed.
        QVERIFY2(failed > 8, qUtf8Printable(QString::number(failed)));
    }

    void betweenTheStatementsOfARemovalALoneCommaMeansNoTag()
    {
        TTagsForm form;
        form.Tables.AddTag(Wholesale, QStringLiteral("عمده"), 1);
        form.Tables.AddGoods(1, QStringLiteral(",5,"));
        form.Select({1});
        QVERIFY(form.Show());
        {
            // Before it the records, the suggestions and the first statement of the pair.
            const TLostConnection lost(form.Tables.Connection, 2);
            Lose(form, Qt::Key_Backspace);
            QVERIFY(lost.HasFailed());
        }
        QCOMPARE(form.Tables.TagsOf(1), QStringLiteral(","));
        form.Frame->frame_load();
        QCOMPARE(form.Items(), QStringList());
        form.Enter(QStringLiteral("عمده"));
        QCOMPARE(form.Tables.TagsOf(1), QStringLiteral(",5,"));
    }

    void aHundredThousandRecordsAreTaggedAtOnce()
    {
        constexpr int Selected = 100000;
        TTagsForm form;
        form.Tables.AddTag(Wholesale, QStringLiteral("عمده"), 1);
        form.Tables.AddTag(Cash, QStringLiteral("نقدی"), 2);
        form.Tables.AddGoods(1, QStringLiteral(",5,"));
        for (int goods = 1; goods <= Selected; goods *= 2)
            form.Tables.Connection.Execute(
                QStringLiteral("INSERT INTO Goods (Id, tags) SELECT Id + ?, tags FROM Goods"), {goods});
        QList<int> keys(Selected);
        std::iota(keys.begin(), keys.end(), 1);
        form.Select(keys);
        QVERIFY(form.Show());
        QCOMPARE(form.Items(), QStringList{QStringLiteral("عمده=5:red")});
        form.Editor()->SetEditText(QStringLiteral("نقدی"));
        form.Press(Qt::Key_Return);
        QCOMPARE(CountOf(form.Tables, QStringLiteral(",5,7,")), Selected);
        form.Press(Qt::Key_Home);
        form.Press(Qt::Key_Delete);
        QCOMPARE(form.Items(), QStringList{QStringLiteral("نقدی=7:blue")});
        QCOMPARE(CountOf(form.Tables, QStringLiteral(",7,")), Selected);
        QCOMPARE(form.Tables.TagsOf(Selected + 1), QStringLiteral(",5,"));
    }

    void theOwnerMayDestroyTheFrameWhenItHearsOfAWriting_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("inGrid");
        QTest::addColumn<int>("key");
        QTest::newRow("Enter") << QStringLiteral("ویژه") << false << int(Qt::Key_Return);
        QTest::newRow("Backspace") << QString() << false << int(Qt::Key_Backspace);
        QTest::newRow("Enter in the grid") << QStringLiteral("ویژه") << true << int(Qt::Key_Return);
    }

    void theOwnerMayDestroyTheFrameWhenItHearsOfAWriting()
    {
        QFETCH(const QString, typed);
        QFETCH(const bool, inGrid);
        QFETCH(const int, key);
        TTagsForm form;
        Begin(form, typed);
        if (inGrid)
            form.Press(Qt::Key_Up);
        QCOMPARE(form.Grid()->hasFocus(), inGrid);
        connect(form.Frame, &TTags::tagsChanged, form.Form.get(),
                [&form] { delete std::exchange(form.Frame, nullptr); });
        form.Press(static_cast<Qt::Key>(key));
        QVERIFY(form.Frame == nullptr);
    }

    void theFrameMayGoWhileTheUserIsAsked()
    {
        TTagsForm form;
        FillShop(form);
        form.Select({1});
        QVERIFY(form.Show());
        form.Host.Messages.Answer = TMessageResult::mrYes;
        form.Host.Messages.WhileAsked = [&form] { delete std::exchange(form.Frame, nullptr); };
        form.Type(QStringLiteral("تازه"));
        form.Press(Qt::Key_Return);
        QVERIFY(form.Frame == nullptr);
        QCOMPARE(form.Host.Log.CountOf(QStringLiteral("Call_insert_tags")), 0);
    }

    void theFrameMayGoWhileTheLimitIsTold()
    {
        TTagsForm form;
        FillShop(form);
        form.Select({1});
        QVERIFY(form.Show());
        form.Host.Messages.Answer = TMessageResult::mrYes;
        form.Host.Pickers.CreatedTag = -1;
        form.Host.Messages.WhileShown = [&form](QWidget*) { delete std::exchange(form.Frame, nullptr); };
        form.Type(QStringLiteral("تازه"));
        form.Press(Qt::Key_Return);
        QVERIFY(form.Frame == nullptr);
    }

    void theFrameMayGoWhileATagIsDefined()
    {
        TTagsForm form;
        FillShop(form);
        form.Select({1});
        QVERIFY(form.Show());
        form.Host.Messages.Answer = TMessageResult::mrYes;
        form.Host.Pickers.CreatedTag = 21;
        form.Host.Pickers.WhilePicking = [&form] { delete std::exchange(form.Frame, nullptr); };
        form.Type(QStringLiteral("تازه"));
        form.Press(Qt::Key_Return);
        QVERIFY(form.Frame == nullptr);
        QCOMPARE(form.Tables.TagsOf(1), QStringLiteral(",5,7,"));
    }

    void aPastedLetterIsCutToANameAndWritesNothing()
    {
        TTagsForm form;
        FillShop(form);
        QVERIFY(form.Show());
        const QStringList before = form.Tables.AllTags();
        QGuiApplication::clipboard()->setText(QStringLiteral("سلام; دنیا،\r\n").repeated(1000));
        QTest::keyClick(TTagsForm::Typed(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(form.Editor()->EditText(),
                 QStringLiteral("سلام; دنیا، ").repeated(10).left(form.Editor()->MaxLength()));
        QCOMPARE(form.Items().size(), 2);
        QCOMPARE(form.Tables.AllTags(), before);
    }

private:
    /// Everything up to the key that counts.
    static void Begin(TTagsForm& form, const QString& typed)
    {
        FillShop(form);
        QVERIFY(form.Show());
        form.Type(typed);
    }
    /// The key whose statement fails; the error comes as far as the host's handler would.
    static void Lose(const TTagsForm& form, Qt::Key key)
    {
        const TToolkitLeaks leaks;
        try {
            form.Press(key);
        } catch (const EADOError& error) {
            QCOMPARE(error.Kind(), TAdoErrorKind::ConnectionLost);
        }
    }
    /// When the connection is there again the next Enter shows what the records carry.
    static void CheckTheFrameGoesOn(TTagsForm& form)
    {
        form.Editor()->clear();
        form.Editor()->setFocus();
        form.Press(Qt::Key_Return);
        const QStringList items = form.Items();
        form.Select({1, 2, 3});
        QCOMPARE(items, form.Items());
        QVERIFY(!items.isEmpty());
    }
    static int CountOf(TTagTables& tables, const QString& column)
    {
        const auto rows =
            tables.Connection.Run(QStringLiteral("SELECT COUNT(*) FROM Goods WHERE tags = ?"), {column});
        return rows->Next() ? static_cast<int>(rows->Int64(0)) : -1;
    }
};

QTEST_MAIN(TagsTroubleTest)
#include "TagsTroubleTest.moc"
