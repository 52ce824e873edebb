#include "TagsForm.h"
#include "TestCase.h"

#include <QSignalSpy>

namespace {

const TTaggedRecords selected{QStringLiteral("Goods"), QStringLiteral("Id"), QStringLiteral("1,2")};
const QString selection = TTagsForm::Records(QStringLiteral("1,2"));

} // namespace

class TagsFrameGridTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void enterInTheGridPutsAPartialTagOnAll()
    {
        TTagsForm form;
        THostGrid list(form);
        Fill(form);
        GoTo(form, QStringLiteral("نقدی"));
        form.Tables.Sent();
        QTest::keyPress(form.Grid(), Qt::Key_Return);
        const QStringList expected{
            TagStatements::AddShown(selected, QStringLiteral("7")), selection,
            TagStatements::Suggestions({QStringLiteral("5"), QStringLiteral("7")}, QString())};
        QCOMPARE(form.Tables.Sent(), expected);
        QCOMPARE(form.Tables.TagsOf(2), QStringLiteral(",5,7,"));
        // No reload: the item stays where it is and turns strong.
        const QStringList items{QStringLiteral("عمده=5:red"), QStringLiteral("نقدی=7:blue")};
        QCOMPARE(form.Items(), items);
        QVERIFY(form.Editor()->hasFocus());
        QCOMPARE(form.Editor()->EditText(), QString());
        QCOMPARE(form.Host.Log.Lines().size(), 1);
        QVERIFY(form.Host.Log.Lines().constFirst().startsWith(QStringLiteral("ResetDataset(")));
        QVERIFY(!form.Suggested().contains(QStringLiteral("نقدی")));
    }

    void enterInTheGridPutsANewTagOnAll()
    {
        TTagsForm form;
        THostGrid list(form);
        Fill(form);
        GoTo(form, QStringLiteral("ویژه"));
        form.Tables.Sent();
        QTest::keyPress(form.Grid(), Qt::Key_Return);
        const QStringList expected{
            TagStatements::AddUnshown(selected, QStringLiteral("3")), selection,
            TagStatements::Suggestions({QStringLiteral("3"), QStringLiteral("5")}, QString())};
        QCOMPARE(form.Tables.Sent(), expected);
        QCOMPARE(form.Tables.TagsOf(1), QStringLiteral(",5,7,3,"));
        QCOMPARE(form.Tables.TagsOf(2), QStringLiteral(",5,3,"));
        // The new item carries its colour's code until the next reload.
        QCOMPARE(form.Items().constLast(), QStringLiteral("ویژه=2:blue"));
        QCOMPARE(form.Host.Log.Lines(), QStringList());
        form.Frame->frame_load();
        QVERIFY(form.Items().contains(QStringLiteral("ویژه=3:blue")));
    }

    void theGridComparesLowerCasedNames()
    {
        TTagsForm form;
        THostGrid list(form);
        Fill(form);
        form.Tables.AddTag(8, QStringLiteral("VIP"), 1);
        form.Tables.AddTag(9, QStringLiteral("new"), 1);
        form.Tables.Connection.Execute(QStringLiteral("UPDATE Goods SET tags = ',5,8,9,' WHERE Id = 1"));
        form.Select({1, 2});
        GoTo(form, QStringLiteral("VIP"));
        QTest::keyPress(form.Grid(), Qt::Key_Return);
        // Capital letters are not found among the items: one more item and the second form.
        QCOMPARE(form.Items().filter(QStringLiteral("VIP")).size(), 2);
        QCOMPARE(form.Tables.TagsOf(2), QStringLiteral(",5,8,"));
        QCOMPARE(form.Host.Log.CountOf(QStringLiteral("ResetDataset")), 0);
        GoTo(form, QStringLiteral("new"));
        QTest::keyPress(form.Grid(), Qt::Key_Return);
        QCOMPARE(form.Items().filter(QStringLiteral("new")).size(), 1);
        QCOMPARE(form.Tables.TagsOf(2), QStringLiteral(",5,8,9,"));
        QCOMPARE(form.Host.Log.CountOf(QStringLiteral("ResetDataset")), 1);
    }

    void theEditorsEnterComparesNamesAsTheyAre()
    {
        TTagsForm form;
        Fill(form);
        form.Tables.AddTag(8, QStringLiteral("VIP"), 1);
        form.Tables.Connection.Execute(QStringLiteral("UPDATE Goods SET tags = ',5,8,' WHERE Id = 1"));
        form.Select({1, 2});
        QVERIFY(form.Show());
        const QStringList sent = form.Enter(QStringLiteral("VIP"));
        QVERIFY(sent.contains(TagStatements::AddShown(selected, QStringLiteral("8"))));
        QCOMPARE(form.Tables.TagsOf(2), QStringLiteral(",5,8,"));
    }

    void theReleaseOfEnterReachesTheEditor()
    {
        TTagsForm form;
        Fill(form);
        GoTo(form, QStringLiteral("ویژه"));
        QTest::keyPress(form.Grid(), Qt::Key_Return);
        QTest::keyRelease(TTagsForm::Typed(), Qt::Key_Return);
        // The editor's Enter without a text reads everything anew.
        QVERIFY(form.Items().contains(QStringLiteral("ویژه=3:blue")));
        QCOMPARE(form.Host.Log.Lines(), QStringList());
    }

    void otherKeysAndADoubleClickInTheGridWriteNothing()
    {
        TTagsForm form;
        Fill(form);
        GoTo(form, QStringLiteral("ویژه"));
        form.Tables.Sent();
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Space, Qt::Key_Delete, Qt::Key_Escape})
            QTest::keyClick(form.Grid(), key);
        const QPoint cell = form.Grid()->visualRect(form.Grid()->currentIndex()).center();
        QTest::mouseDClick(form.Grid()->viewport(), Qt::LeftButton, {}, cell);
        QCOMPARE(form.Tables.Sent(), QStringList());
    }

    void aHostsOwnGridOfSuggestionsActsLikeIt_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("Enter") << true;
        QTest::newRow("double click") << false;
    }

    void aHostsOwnGridOfSuggestionsActsLikeIt()
    {
        QFETCH(const bool, byKey);
        TTagsForm form;
        Fill(form);
        auto* const own = new TSmartDBGrid_TRV(form.Form.get());
        form.Form->layout()->addWidget(own);
        own->SetDataSource(form.Frame->DataSource1);
        own->OnDblClick = [&form](QObject* sender) { form.Frame->Tags_GRDDblClick(sender); };
        own->OnKeyDown = [&form](QObject* sender, quint16& key, Qt::KeyboardModifiers shift) {
            form.Frame->Tags_GRDKeyDown(sender, key, shift);
        };
        QVERIFY(form.Show());
        QVERIFY(form.Frame->Tags_qry->Locate(QStringLiteral("Name"), {QStringLiteral("ویژه")}));
        QSignalSpy spy(form.Frame, &TTags::tagsChanged);
        if (byKey) {
            own->setFocus();
            QTest::keyClick(own, Qt::Key_Return);
        } else {
            const QModelIndex cell = own->model()->index(own->currentIndex().row(), 1);
            QTest::mouseDClick(own->viewport(), Qt::LeftButton, {}, own->visualRect(cell).center());
        }
        QCOMPARE(form.Tables.TagsOf(1), QStringLiteral(",5,7,3,"));
        QCOMPARE(spy.size(), 1);
    }

    void withoutSuggestionsAHostsGridDoesNothing()
    {
        TTagsForm form;
        Fill(form);
        QVERIFY(form.Show());
        form.Type(QStringLiteral("هیچ"));
        form.Tables.Sent();
        form.Frame->Tags_GRDDblClick(form.Frame);
        QCOMPARE(form.Tables.Sent(), QStringList());
        QCOMPARE(form.Items().size(), 2);
    }

    void theLastSuggestionLeavesTheFocusInTheEditor()
    {
        TTagsForm form;
        Fill(form);
        for (const int tag : {3, 7}) {
            QVERIFY(form.Show());
            form.Press(Qt::Key_Up);
            QVERIFY(form.Grid()->hasFocus());
            QVERIFY(form.Frame->Tags_qry->Locate(QStringLiteral("ID"), {tag}));
            TFocusCounter counter;
            form.Other->installEventFilter(&counter);
            QTest::keyPress(form.Grid(), Qt::Key_Return);
            QCOMPARE(counter.Count, 0);
            QVERIFY(form.Editor()->hasFocus());
        }
        QVERIFY(!form.Grid()->isVisible());
    }

    void aGridThatIsGoneIsNotReset()
    {
        TTagsForm form;
        {
            const THostGrid list(form);
            QCOMPARE(form.Frame->grid(), &*list.Grid);
            QCOMPARE(form.Frame->property("grid").value<TSmartDBGrid_TRV*>(), &*list.Grid);
        }
        QCOMPARE(form.Frame->grid(), nullptr);
        Fill(form);
        GoTo(form, QStringLiteral("نقدی"));
        QTest::keyPress(form.Grid(), Qt::Key_Return);
        QCOMPARE(form.Host.Log.Lines(), QStringList());
        QCOMPARE(form.Tables.TagsOf(2), QStringLiteral(",5,7,"));
    }

private:
    /// Counts how often a control gets the focus.
    struct TFocusCounter : QObject
    {
        bool eventFilter(QObject* /*object*/, QEvent* event) override
        {
            Count += event->type() == QEvent::FocusIn ? 1 : 0;
            return false;
        }
        int Count = 0;
    };

    /// The host's list of goods, known to the frame.
    struct THostGrid
    {
        explicit THostGrid(TTagsForm& form)
        {
            Query.SetConnection(&form.Tables.Connection);
            Query.SQL.SetText(QStringLiteral("SELECT Id, tags FROM Goods"));
            Query.Open();
            Source.SetDataSet(&Query);
            Grid->SetDataSource(&Source);
            form.Frame->SetGrid(Grid.get());
        }
        TADOQuery Query;
        TDataSource Source;
        std::unique_ptr<TSmartDBGrid_TRV> Grid = std::make_unique<TSmartDBGrid_TRV>();
    };

    /// Goods 1 and 2 both carry 5, the first one 7.
    static void Fill(TTagsForm& form)
    {
        form.Tables.AddTag(5, QStringLiteral("عمده"), 1);
        form.Tables.AddTag(7, QStringLiteral("نقدی"), 2);
        form.Tables.AddTag(3, QStringLiteral("ویژه"), 2);
        form.Tables.AddGoods(1, QStringLiteral(",5,7,"));
        form.Tables.AddGoods(2, QStringLiteral(",5,"));
        form.Select({1, 2});
    }
    /// Puts the focus on a suggestion, by keys.
    static void GoTo(TTagsForm& form, const QString& name)
    {
        QVERIFY(form.Show());
        form.Press(Qt::Key_Up);
        QVERIFY(form.Grid()->hasFocus());
        QTest::keyClick(form.Grid(), Qt::Key_Home);
        const auto current = [&form] {
            return form.Frame->Tags_qry->FieldByName(QStringLiteral("Name"))->AsString();
        };
        for (int steps = 0; steps < 10 && current() != name; ++steps)
            QTest::keyClick(form.Grid(), Qt::Key_Down);
        QCOMPARE(current(), name);
    }
};

QTEST_MAIN(TagsFrameGridTest)
#include "TagsFrameGridTest.moc"
