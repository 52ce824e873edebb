#include "Look.h"
#include "SmartLabel_TRV.h"
#include "SmartPanel_TRV.h"
#include "TagsForm.h"
#include "TestCase.h"

namespace {

const QString strongPictures = QStringLiteral("select code,[h-img] from colors");
const QString lightPictures = QStringLiteral("select code,[l-img] from colors");
const QString allTags =
    QStringLiteral("SELECT TagS.Code AS ID,TagS.Name,cl_code,Colors.code,[h-img] as image FROM "
                   "TagS inner join colors on TagS.color_code = colors.code");

/// Four tags; goods 1 to 3 of which all carry 5, two 7, one 15.
void FillShop(TTagTables& tables)
{
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

} // namespace

class TagsFrameTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theControlsAreThoseOfTheForm()
    {
        TTagsForm form;
        const TTags& frame = *form.Frame;
        QCOMPARE(frame.layoutDirection(), Qt::RightToLeft);
        QCOMPARE(frame.SmartPanel_TRV1->minimumHeight(), 38);
        QCOMPARE(frame.SmartPanel_TRV1->maximumHeight(), 38);
        QCOMPARE(frame.Tags_editor->Separator(), QChar(u';'));
        QCOMPARE(frame.Tags_grid->EmptyText(), QStringLiteral("<اطلاعاتی برای نمایش وجود ندارد>"));
        QCOMPARE(frame.Tags_grid->selectionBehavior(), QAbstractItemView::SelectRows);
        QCOMPARE(frame.ADOQuery2->SQL.Text(), QStringLiteral("select * from tmp"));
        QCOMPARE(frame.Colors_qry->SQL.Text(), QStringLiteral("select  * FROM colors"));
        QCOMPARE(
            frame.Tags_qry->SQL.Text(),
            QStringLiteral("SELECT TagS.Code AS ID,TagS.Name,Colors.code,[h-img] as image FROM TagS inner "
                           "join colors on TagS.color_code = colors.code"));
        for (TADOQuery* query : {frame.Tags_qry, frame.ADOQuery2, frame.tmp_qry, frame.Colors_qry})
            QCOMPARE(query->Connection(), &form.Tables.Connection);
        QCOMPARE(frame.cmd->Connection(), &form.Tables.Connection);
        const QObjectList parts{frame.SmartPanel_TRV1, frame.Tags_editor, frame.Tags_grid,
                                frame.Tags_qry,        frame.ADOQuery2,   frame.tmp_qry,
                                frame.Colors_qry,      frame.cmd,         frame.DataSource1};
        const QStringList names{"SmartPanel_TRV1", "Tags_editor", "Tags_grid", "Tags_qry",   "ADOQuery2",
                                "tmp_qry",         "Colors_qry",  "cmd",       "DataSource1"};
        for (qsizetype part = 0; part < parts.size(); ++part)
            QCOMPARE(parts.at(part)->objectName(), names.at(part));
        QVERIFY(form.Show());
        QVERIFY(!frame.Tags_panel->isVisible());
        QCOMPARE(form.Tables.Sent(), QStringList());
    }

    void loadingShowsCommonTagsStrongAndPartialOnesLight()
    {
        TTagsForm form;
        FillShop(form.Tables);
        form.Select({1, 2, 3});
        const QStringList items{QStringLiteral("عمده=5:red"), QStringLiteral("عمومی=15:(green)"),
                                QStringLiteral("نقدی=7:(blue)")};
        QCOMPARE(form.Items(), items);
        const QStringList snapshot{QStringLiteral("5"), QStringLiteral("7")};
        QCOMPARE(form.Editor()->SnapshotCodes, snapshot);
        // What is on all of them is not suggested, what is on some is.
        const QStringList suggested{QStringLiteral("ویژه"), QStringLiteral("نقدی"), QStringLiteral("عمومی")};
        QCOMPARE(Sorted(form.Suggested()), Sorted(suggested));
        // Loading again does not pile up.
        form.Frame->frame_load();
        QCOMPARE(form.Items(), items);
    }

    void loadingSendsItsStatementsInOrder()
    {
        TTagsForm form;
        FillShop(form.Tables);
        form.Select({1, 2});
        form.Frame->frame_load();
        const QString records = TTagsForm::Records(QStringLiteral("1,2"));
        const QStringList expected{strongPictures,
                                   lightPictures,
                                   allTags,
                                   records,
                                   TagStatements::TagByCode(QStringLiteral("5")),
                                   records,
                                   TagStatements::TagByCode(QStringLiteral("15")),
                                   TagStatements::TagByCode(QStringLiteral("7")),
                                   records,
                                   TagStatements::Suggestions({QStringLiteral("5")}, QString())};
        QCOMPARE(form.Tables.Sent(), expected);
    }

    void loadingSettlesTheEditor()
    {
        TTagsForm form;
        FillShop(form.Tables);
        form.Select({1});
        form.Editor()->SetEditText(QStringLiteral("نیمه"));
        form.Editor()->SetReadOnly(true);
        form.Editor()->SetRightToLeft(false);
        form.Frame->frame_load();
        QVERIFY(!form.Editor()->StateFlag());
        QCOMPARE(form.Editor()->EditText(), QString());
        QCOMPARE(form.Editor()->layoutDirection(), Qt::RightToLeft);
        QCOMPARE(form.Frame->Colors_qry->RecordCount(), 1); // the last tag's; its pictures are all there
        QCOMPARE(form.Editor()->Images().size(), 2 * TTagsForm::Colors);
        QVERIFY(!form.Frame->Tags_panel->isHidden());
    }

    void withoutTagsNothingIsLeftOutOfTheSuggestions()
    {
        TTagsForm form;
        FillShop(form.Tables);
        form.Select({4});
        QVERIFY(form.Editor()->Values().IsEmpty());
        form.Frame->frame_load();
        const QString records = TTagsForm::Records(QStringLiteral("4"));
        const QStringList expected{strongPictures, lightPictures, allTags,
                                   records,        records,       TagStatements::Suggestions({}, QString())};
        QCOMPARE(form.Tables.Sent(), expected);
        QVERIFY(expected.constLast().contains(QStringLiteral(" not in (-1) ")));
    }

    void withoutRecordsTheEditorIsEmptyAndEveryTagIsSuggested()
    {
        TTagsForm form;
        FillShop(form.Tables);
        form.Select({});
        QVERIFY(form.Editor()->Values().IsEmpty());
        QCOMPARE(form.Suggested().size(), 4);
        QVERIFY(form.Editor()->SnapshotCodes.isEmpty());
    }

    void withoutRecordsNothingIsWritten()
    {
        TTagsForm form;
        FillShop(form.Tables);
        form.Select({});
        QVERIFY(form.Show());
        for (const QString& statement : form.Enter(QStringLiteral("عمده")))
            QVERIFY2(!statement.startsWith(QStringLiteral("update")), qUtf8Printable(statement));
        QVERIFY(form.Editor()->Values().IsEmpty());
        form.Press(Qt::Key_Up);
        form.Tables.Sent();
        form.Press(Qt::Key_Return);
        QVERIFY(form.Editor()->Values().IsEmpty());
    }

    void aTagWithoutColorIsNotShown()
    {
        TTagsForm form;
        FillShop(form.Tables);
        form.Tables.AddTag(99, QStringLiteral("بی‌رنگ"), 77);
        form.Tables.AddGoods(9, QStringLiteral(",99,100,7,"));
        form.Select({9});
        QCOMPARE(form.Items(), QStringList{QStringLiteral("نقدی=7:blue")});
    }

    void codesThatAreNoneDoNotStopTheFrame()
    {
        TTagsForm form;
        FillShop(form.Tables);
        form.Tables.AddGoods(9, QStringLiteral(",x,7,';--,,"));
        form.Select({9});
        QCOMPARE(form.Items(), QStringList{QStringLiteral("نقدی=7:blue")});
        QCOMPARE(form.Editor()->SnapshotCodes, QStringList{QStringLiteral("7")});
    }

    void theSuggestionsAreLaidOut()
    {
        TTagsForm form;
        FillShop(form.Tables);
        form.Select({1});
        const QVector<TGridColumn> columns = form.Grid()->Columns();
        QStringList shown;
        for (const TGridColumn& column : columns)
            shown.append(column.FieldName +
                         (column.Visible ? QStringLiteral(" %1").arg(column.Width) : QString()));
        const QStringList expected{QStringLiteral("ID"), QStringLiteral("Name 150"), QStringLiteral("code"),
                                   QStringLiteral("image"), QStringLiteral("cl_code 16")};
        QCOMPARE(shown, expected);
        QCOMPARE(columns.constLast().Title, QStringLiteral(" "));
        QCOMPARE(form.Grid()->columnWidth(4), 16);
        QCOMPARE(form.Grid()->columnWidth(1), 150);
        QVERIFY(form.Grid()->font().bold());
        QCOMPARE(form.Grid()->font().pixelSize(), 15);
        QCOMPARE(form.Grid()->font().family(), form.Frame->font().family());
        // A width that the user has changed lasts until the next reload.
        form.Grid()->setColumnWidth(1, 90);
        form.Frame->Rearrang();
        QCOMPARE(form.Grid()->columnWidth(1), 150);
    }

    void theSwatchIsTheColorOfTheTag()
    {
        TTagsForm form;
        FillShop(form.Tables);
        form.Select({4});
        QVERIFY(form.Show());
        const QImage image = form.Grid()->viewport()->grab().toImage();
        for (int row = 0; row < 4; ++row) {
            const QModelIndex cell = form.Grid()->model()->index(row, 4);
            const QRect area = form.Grid()->visualRect(cell);
            const QColor color = Look::StringToColor(cell.data().toString());
            QVERIFY(color.isValid());
            QCOMPARE(image.pixelColor(area.center()), color);
            QCOMPARE(image.pixelColor(area.center().x(), area.top() + 6), color);
            QVERIFY(image.pixelColor(area.center().x(), area.top() + 5) != color);
            QCOMPARE(image.pixelColor(area.center().x(), area.bottom() - 6), color);
            QVERIFY(image.pixelColor(area.center().x(), area.bottom() - 5) != color);
        }
    }

    void theHeightFollowsTheNumberOfSuggestions_data()
    {
        QTest::addColumn<int>("tags");
        QTest::addColumn<int>("height");
        QTest::newRow("one") << 1 << 140;
        QTest::newRow("nine") << 9 << 300;
        QTest::newRow("ten") << 10 << 200;
        QTest::newRow("thirty") << 30 << 200;
    }

    void theHeightFollowsTheNumberOfSuggestions()
    {
        QFETCH(const int, tags);
        QFETCH(const int, height);
        TTagsForm form;
        for (int tag = 1; tag <= tags; ++tag)
            form.Tables.AddTag(tag, QStringLiteral("برچسب %1").arg(tag), 1 + tag % TTagsForm::Colors);
        form.Tables.AddGoods(1, QVariant());
        form.Select({1});
        QVERIFY(form.Show());
        QCOMPARE(form.Frame->height(), height);
    }

    void withoutSuggestionsTheirGridGivesWayToASentence()
    {
        TTagsForm form;
        FillShop(form.Tables);
        form.Select({4});
        QVERIFY(form.Show());
        auto* const sentence = form.Frame->findChild<TSmartLabel_TRV*>(QStringLiteral("Nothing_LBL"));
        QVERIFY(form.Grid()->isVisible());
        QVERIFY(!sentence->isVisible());
        const int height = form.Frame->height();
        form.Type(QStringLiteral("هیچ"));
        QVERIFY(!form.Grid()->isVisible());
        QVERIFY(sentence->isVisible());
        QCOMPARE(sentence->Caption(), QStringLiteral("هیچ تگی برای نمایش وجود ندارد"));
        // Only drawn cells give a height.
        QCOMPARE(form.Frame->height(), height);
    }

    void theOwnOperationsAnswerAsNamed()
    {
        TTagsForm form;
        FillShop(form.Tables);
        form.Select({1, 2, 3});
        QString list;
        form.Frame->Fill_x(1, list);
        QCOMPARE(list, QStringLiteral("5"));
        form.Frame->Fill_x(2, list);
        QCOMPARE(list, QStringLiteral("7,15"));
        QVERIFY(form.Frame->finder(QStringLiteral("15")));
        QVERIFY(!form.Frame->finder(QStringLiteral("1")));
        const QStringList codes{QStringLiteral("12"), QStringLiteral("3"), QStringLiteral("5")};
        QCOMPARE(TTags::splitter(QStringLiteral(",5,12,3,")), codes);
    }

    void anErrorOfTheDatabaseReachesTheHost()
    {
        TTagsForm form;
        FillShop(form.Tables);
        form.Editor()->TableName = QStringLiteral("Goods");
        // Without the owner's statement: there is no table "tmp".
        QVERIFY_THROWS_EXCEPTION(EADOError, form.Frame->frame_load());
    }

    void aFrameThatGoesWithTheFocusRaisesNothing()
    {
        auto form = std::make_unique<TTagsForm>();
        FillShop(form->Tables);
        form->Select({1});
        QVERIFY(form->Show());
        QVERIFY(form->Editor()->hasFocus());
        delete form->Frame;
        form->Frame = nullptr;
    }

private:
    static QStringList Sorted(QStringList texts)
    {
        texts.sort();
        return texts;
    }
};

QTEST_MAIN(TagsFrameTest)
#include "TagsFrameTest.moc"
