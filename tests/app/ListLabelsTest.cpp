#include "FormFixture.h"

#include "AdvListEditorPer.h"
#include "Category_Search_UNT.h"
#include "Category_SearchWithManager_UNT.h"
#include "General_Search_UNT.h"
#include "ListFooter.h"
#include "ListForm.h"
#include "ListLabels.h"
#include "RecordCard.h"
#include "SmartCheckBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "tags_frame.h"
#include "Tags_search_UNT.h"
#include "TarvaSearchManager.h"

/// Tags and categories on the lists of goods and persons: the choice of rows, the panel, the filters.
class ListLabelsTest : public TFormTest
{
    Q_OBJECT

private Q_SLOTS:
    void spaceMarksARowAndIsNotTyped()
    {
        FocusGrid();
        shop_->Press(Qt::Key_Space);
        shop_->Press(Qt::Key_Down);
        shop_->Press(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(Keys(), QStringLiteral("1,2,3"));
        QVERIFY(list_->SearchFrame().Search_EDT->Text().isEmpty());
        QVERIFY(list_->Footer().MarkedText().contains(u'3'));
        shop_->Press(Qt::Key_Escape);
        QCOMPARE(list_->Grid().MarkedKeys(), QStringList());
        QVERIFY(list_->Footer().MarkedText().isEmpty());
    }

    void withoutMarksTheCurrentRowIsChosen()
    {
        FocusGrid();
        shop_->Press(Qt::Key_Down);
        QCOMPARE(Keys(), QStringLiteral("2"));
    }

    void controlAMarksTheWholeResultOfTheSearch()
    {
        shop_->Type(QStringLiteral("برنج"));
        WaitForRows();
        const int found = list_->DataSet().RecordCount();
        QVERIFY(found > 3 && found < Number(QStringLiteral("SELECT COUNT(*) FROM dbo.kala")));
        FocusGrid();
        shop_->Press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(list_->Labels()->Selection().Keys().size(), found);
        QCOMPARE(Number(QStringLiteral("SELECT COUNT(*) FROM dbo.KalaList WHERE Code IN (%1) AND Name LIKE "
                                       "N'%برنج%'")
                            .arg(Keys())),
                 found);
    }

    void anotherSearchTakesTheMarksOff()
    {
        FocusGrid();
        shop_->Press(Qt::Key_Space);
        list_->FocusSearchEdit();
        shop_->Type(QStringLiteral("برنج"));
        WaitForRows();
        QVERIFY(list_->Grid().MarkedKeys().isEmpty());
    }

    void orderingKeepsTheMarks()
    {
        FocusGrid();
        shop_->Press(Qt::Key_Space);
        list_->DataSet().SetOrder(QStringLiteral("Name"), Qt::DescendingOrder);
        WaitForRows();
        QCOMPARE(Keys(), QStringLiteral("1"));
    }

    void aFarRangeIsThatOfTheListsOrder()
    {
        list_->DataSet().SetOrder(QStringLiteral("Barcode"), Qt::DescendingOrder);
        WaitForRows();
        list_->Grid().setFocus();
        shop_->Press(Qt::Key_Home);
        shop_->Press(Qt::Key_Down);
        shop_->Press(Qt::Key_End, Qt::ShiftModifier);
        const int all = list_->DataSet().RecordCount();
        QCOMPARE(list_->Grid().MarkedKeys().size(), all - 1);
        QVERIFY(!list_->Grid().MarkedKeys().contains(Text(0, QStringLiteral("Code"))));
        shop_->Press(Qt::Key_Home, Qt::ShiftModifier);
        QCOMPARE(list_->Labels()->Selection().Keys().size(), 2);
        QVERIFY(list_->Grid().IsMarked(0) && list_->Grid().IsMarked(1));
    }

    void whatBecomesOfTagsAndCategoriesElsewhereIsTakenOver()
    {
        const int food = IdOf(QStringLiteral("مواد غذایی"));
        Filters().Category->create_bubble(food, 1);
        Filters().Category->TarvaSearch1->SetValue1(QStringLiteral(",%1,").arg(food));
        Filters().FocusTags();
        shop_->Type(TagName(1));
        shop_->Press(Qt::Key_Return);
        WaitForRows();
        const int found = list_->DataSet().RecordCount();
        TCategoryStore(shop_->Connection)
            .Rename(food, QStringLiteral("خوراکی"), QStringLiteral("مواد غذایی"));
        list_->Enter();
        WaitForRows();
        QCOMPARE(list_->DataSet().RecordCount(), found);
        QCOMPARE(Filters().Category->Editor->Values().Last().DisplayText, QStringLiteral("خوراکی"));
        QCOMPARE(Filters().Tags->Tag_editor->Values().Last().DisplayText, TagName(1));
        TCategoryStore(shop_->Connection)
            .Rename(food, QStringLiteral("مواد غذایی"), QStringLiteral("خوراکی"));
        list_->ClearSearch();
    }

    void thePanelShowsTheTagsOfTheChosenRows()
    {
        MarkTwoAndThree();
        OpenPanel();
        QCOMPARE(Panel().HeadingText().contains(u'2'), true);
        QCOMPARE(TagTexts(), (QStringList{TagName(1), TagName(3)}));
        QVERIFY(Editor().hasFocus());
    }

    void thePanelFollowsTheRowsAfterAPause()
    {
        FocusGrid();
        shop_->Press(Qt::Key_Down);
        OpenPanel();
        QCOMPARE(TagTexts(), QStringList{TagName(1)});
        int readings = 0;
        shop_->Connection.OnWillExecute = [&readings](TADOConnection*, const QString& text) {
            readings += text.startsWith(u"SELECT tags AS TAGS") ? 1 : 0;
        };
        FocusGrid();
        shop_->Press(Qt::Key_Down);
        shop_->Press(Qt::Key_Down);
        shop_->Press(Qt::Key_Up);
        QCOMPARE(readings, 0);
        QTRY_COMPARE(TagTexts(), (QStringList{TagName(1), TagName(3)}));
        shop_->Connection.OnWillExecute = nullptr;
        QVERIFY(readings <= 4); // one reading of the frame runs the statement a few times
    }

    void aTagIsPutOnAllChosenRowsAndTheListShowsIt()
    {
        MarkTwoAndThree();
        OpenPanel();
        shop_->Type(TagName(2));
        shop_->Press(Qt::Key_Return);
        QCOMPARE(Tags(2), QStringLiteral(",1,2,"));
        QCOMPARE(Tags(3), QStringLiteral(",1,3,2,"));
        QCOMPARE(Tags(4), QString());
        QTRY_COMPARE(ShownTags(1), TagName(1) + QStringLiteral("، ") + TagName(2));
        QCOMPARE(Keys(), QStringLiteral("2,3"));
        QTRY_COMPARE(TagTexts().size(), 3);
    }

    void aTagIsTakenOffByBackspace()
    {
        MarkTwoAndThree();
        OpenPanel();
        while (TagTexts().contains(TagName(1)) && TagTexts().size() > 0)
            shop_->Press(Qt::Key_Backspace);
        QTRY_COMPARE(Tags(2), QString());
        QTRY_VERIFY(ShownTags(1).isEmpty());
    }

    void aLostConnectionIsToldAndTheTagIsPutByTheNextEnter()
    {
        MarkTwoAndThree();
        OpenPanel();
        shop_->Connection.OnWillExecute = [](TADOConnection*, const QString& text) {
            if (text.startsWith(u"update"))
                throw EADOError(TAdoErrorKind::ConnectionLost, QStringLiteral("ارتباط قطع شد."), text);
        };
        shop_->Type(TagName(2));
        shop_->Press(Qt::Key_Return);
        shop_->Connection.OnWillExecute = nullptr;
        QTRY_COMPARE(shop_->Told.size(), 1);
        QVERIFY(shop_->Told.constFirst().contains(QStringLiteral("ارتباط قطع شد")));
        QCOMPARE(Tags(2), QStringLiteral(",1,"));
        QCOMPARE(Tags(3), QStringLiteral(",1,3,"));
        shop_->Press(Qt::Key_Return);
        QCOMPARE(Tags(2), QStringLiteral(",1,2,"));
        QCOMPARE(Tags(3), QStringLiteral(",1,3,2,"));
        QTRY_COMPARE(TagTexts().size(), 3);
    }

    void anEmptyListHasNothingToTag()
    {
        shop_->Type(QStringLiteral("چنین کالایی نیست"));
        WaitForRows();
        QCOMPARE(Keys(), QString());
        Panel().Open();
        QVERIFY(!Panel().Tags().isEnabled());
        QCOMPARE(Editor().KeyList, QStringLiteral("()"));
        QVERIFY(TagTexts().isEmpty());
        Panel().AssignCategory();
        Panel().Category().create_bubble(IdOf(QStringLiteral("برنج خارجی")), 1);
        Panel().AssignCategory();
        Panel().TakeCategoryAway();
        QVERIFY(shop_->Told.isEmpty());
    }

    void thePanelClosesByItsKeyAndGivesTheFocusBack()
    {
        FocusGrid();
        OpenPanel();
        shop_->Press(Qt::Key_F8);
        QVERIFY(Panel().isHidden());
        QVERIFY(list_->Grid().hasFocus());
    }

    void aCategoryIsGivenToTheChosenRowsAfterTheUsersWord()
    {
        shop_->Connection.Execute(QStringLiteral("DELETE FROM dbo.kala_category WHERE kala_code = 3"));
        MarkTwoAndThree();
        OpenPanel();
        Panel().AssignCategory();
        QVERIFY(shop_->Told.isEmpty());
        const int rice = IdOf(QStringLiteral("برنج خارجی"));
        Panel().Category().create_bubble(rice, 1);
        shop_->Answers = {QStringLiteral("خیر")};
        Panel().AssignCategory();
        QCOMPARE(CategoryOf(3), 0);
        Panel().AssignCategory();
        QCOMPARE(shop_->Told.size(), 2);
        QVERIFY(shop_->Told.constLast().contains(QStringLiteral("برنج خارجی")));
        QCOMPARE(CategoryOf(2), rice);
        QCOMPARE(CategoryOf(3), rice);
        Panel().TakeCategoryAway();
        QCOMPARE(CategoryOf(2), 0);
        QCOMPARE(CategoryOf(3), 0);
    }

    void theCategoryLineNarrowsTheList()
    {
        const int food = IdOf(QStringLiteral("مواد غذایی"));
        Filters().Category->create_bubble(food, 1);
        Filters().Category->TarvaSearch1->SetValue1(QStringLiteral(",%1,").arg(food));
        WaitForRows();
        QCOMPARE(list_->DataSet().RecordCount(),
                 Number(QStringLiteral("SELECT COUNT(*) FROM dbo.KalaList WHERE Categories LIKE N'%,%1,%'")
                            .arg(food)));
        QVERIFY2(list_->Footer().ConditionInWords().contains(QStringLiteral("مواد غذایی")),
                 qPrintable(list_->Footer().ConditionInWords()));
        shop_->Press(Qt::Key_Escape);
        WaitForRows();
        QCOMPARE(list_->DataSet().RecordCount(), Number(QStringLiteral("SELECT COUNT(*) FROM dbo.kala")));
    }

    void theTagLineNarrowsTheList()
    {
        Filters().FocusTags();
        QVERIFY(Filters().Tags->Tag_editor->hasFocus());
        shop_->Type(TagName(1));
        shop_->Press(Qt::Key_Return);
        WaitForRows();
        const int tagged = Number(QStringLiteral("SELECT COUNT(*) FROM dbo.kala WHERE tags LIKE N'%,1,%'"));
        QVERIFY(tagged > 0);
        QCOMPARE(list_->DataSet().RecordCount(), tagged);
        QVERIFY2(list_->Footer().ConditionInWords().contains(TagName(1)),
                 qPrintable(list_->Footer().ConditionInWords()));
        list_->SaveState();
        Open(GoodsList());
        QCOMPARE(list_->DataSet().RecordCount(), tagged);
        QCOMPARE(Filters().Tags->Tag_editor->Values().GetItem(0).DisplayText, TagName(1));
        shop_->Press(Qt::Key_Escape);
        WaitForRows();
        QCOMPARE(list_->DataSet().RecordCount(), Number(QStringLiteral("SELECT COUNT(*) FROM dbo.kala")));
        QVERIFY(Filters().Tags->Tag_editor->Values().IsEmpty());
        list_->SaveState();
    }

    void rowsThatLeaveTheFilterStayChosen()
    {
        Filters().NoTag->click();
        WaitForRows();
        QVERIFY(!Filters().Tags->isEnabled());
        FocusGrid();
        shop_->Press(Qt::Key_Space);
        const QString chosen = Keys();
        OpenPanel();
        shop_->Type(TagName(2));
        shop_->Press(Qt::Key_Return);
        WaitForRows();
        QCOMPARE(Tags(chosen.toInt()), QStringLiteral(",2,"));
        QCOMPARE(Keys(), chosen);
        QVERIFY(Text(0, QStringLiteral("Code")) != chosen);
    }

    void rowsWithoutATagOrACategoryAreFound()
    {
        shop_->Connection.Execute(QStringLiteral("DELETE FROM dbo.kala_category WHERE kala_code = 7"));
        Filters().NoTag->click();
        WaitForRows();
        QCOMPARE(list_->DataSet().RecordCount(),
                 Number(QStringLiteral("SELECT COUNT(*) FROM dbo.kala WHERE tags IS NULL")));
        QCOMPARE(list_->Footer().ConditionInWords(), QStringLiteral("برچسب نداشته باشد"));
        Filters().NoTag->click();
        Filters().NoCategory->click();
        WaitForRows();
        QCOMPARE(list_->DataSet().RecordCount(),
                 Number(QStringLiteral("SELECT COUNT(*) FROM dbo.kala WHERE Code NOT IN (SELECT kala_code "
                                       "FROM dbo.kala_category)")));
        QVERIFY(!Filters().Category->isEnabled());
        Filters().NoCategory->click();
    }

    void theListStartsFromTheUsersDefault()
    {
        const int rice = IdOf(QStringLiteral("برنج ایرانی"));
        TCategoryStore(shop_->Connection).SetDefault(1, TCategoryStore::TListKind::Goods, rice);
        Open(GoodsList());
        QCOMPARE(
            list_->DataSet().RecordCount(),
            Number(
                QStringLiteral("SELECT COUNT(*) FROM dbo.kala_category WHERE category_code = %1").arg(rice)));
        Open(PersonsList());
        QCOMPARE(list_->DataSet().RecordCount(), Number(QStringLiteral("SELECT COUNT(*) FROM dbo.Persons")));
        TCategoryStore(shop_->Connection).SetDefault(1, TCategoryStore::TListKind::Goods, 0);
    }

    void theFiltersAreThereAgainAfterTheFormWasClosed()
    {
        const int food = IdOf(QStringLiteral("مواد غذایی"));
        Filters().Category->create_bubble(food, 1);
        Filters().Category->TarvaSearch1->SetValue1(QStringLiteral(",%1,").arg(food));
        Filters().NoTag->click();
        shop_->Press(Qt::Key_F9);
        WaitForRows();
        const int found = list_->DataSet().RecordCount();
        list_->SaveState();
        Open(GoodsList());
        QCOMPARE(list_->DataSet().RecordCount(), found);
        QVERIFY(Filters().isHidden());
        QVERIFY(Filters().NoTag->Checked());
        list_->ClearSearch();
        shop_->Press(Qt::Key_F9);
        QVERIFY(!Filters().isHidden());
        list_->SaveState();
    }

    void theCardNamesTagsAndCategory()
    {
        FocusGrid();
        shop_->Press(Qt::Key_Down);
        shop_->Press(Qt::Key_Down);
        list_->OpenCard();
        QVERIFY(list_->Card() != nullptr);
        QCOMPARE(list_->Card()->FieldText(QStringLiteral("tags")),
                 TagName(1) + QStringLiteral("، ") + TagName(3));
        QCOMPARE(IdOf(list_->Card()->FieldText(QStringLiteral("CategoryName"))), CategoryOf(3));
        list_->Card()->close();
    }

    void personsAreTaggedInTheirOwnTable()
    {
        shop_->Connection.Execute(QStringLiteral("UPDATE dbo.Persons SET tags = NULL WHERE Code = 1"));
        Open(PersonsList());
        FocusGrid();
        OpenPanel();
        shop_->Type(TagName(2));
        shop_->Press(Qt::Key_Return);
        QCOMPARE(shop_->Text(QStringLiteral("SELECT tags FROM dbo.Persons WHERE Code = 1")),
                 QStringLiteral(",2,"));
        Panel().Category().create_bubble(IdOf(QStringLiteral("مشتریان عمده")), 1);
        Panel().AssignCategory();
        QCOMPARE(
            Number(QStringLiteral("SELECT category_code FROM dbo.Person_category WHERE person_code = 1")),
            IdOf(QStringLiteral("مشتریان عمده")));
    }

private:
    void Prepare() override
    {
        shop_->Connection.Execute(QStringLiteral("UPDATE dbo.kala SET tags = NULL WHERE Code <= 10"));
        shop_->Connection.Execute(QStringLiteral("UPDATE dbo.kala SET tags = N',1,' WHERE Code = 2"));
        shop_->Connection.Execute(QStringLiteral("UPDATE dbo.kala SET tags = N',1,3,' WHERE Code = 3"));
        Open(GoodsList());
    }
    void Finish() override { list_ = nullptr; }

    void Open(const TListDescription& description)
    {
        shop_->Form.reset();
        auto list = std::make_unique<TListForm>(description, shop_->Host);
        list_ = list.get();
        shop_->Form = std::move(list);
        list_->resize(1180, 640);
        list_->show();
        TFormFixture::Activate(list_);
        list_->Enter();
        WaitForRows();
    }
    void WaitForRows()
    {
        QTRY_VERIFY(list_->SearchFrame().Filter_is_done());
        list_->SearchFrame().Refrenc_SearchManager->Flush();
        QVERIFY(list_->DataSet().WaitForFirstPage());
        QTRY_VERIFY(list_->DataSet().CountIsExact());
    }
    void FocusGrid()
    {
        list_->Grid().setFocus();
        QVERIFY(list_->DataSet().WaitForCurrentRow());
    }
    void MarkTwoAndThree()
    {
        FocusGrid();
        shop_->Press(Qt::Key_Down);
        shop_->Press(Qt::Key_Space);
        shop_->Press(Qt::Key_Down);
        shop_->Press(Qt::Key_Space);
        QCOMPARE(Keys(), QStringLiteral("2,3"));
    }
    void OpenPanel()
    {
        shop_->Press(Qt::Key_F8);
        QVERIFY(!Panel().isHidden());
    }
    TListTagging& Panel() { return list_->Labels()->Panel(); }
    TListFilters& Filters() { return list_->Labels()->Filters(); }
    TAdvListEditorPer& Editor() { return *Panel().Tags().Tags_editor; }
    QString Keys() { return list_->Labels()->Selection().Keys().join(u','); }
    QStringList TagTexts()
    {
        QStringList texts;
        for (int item = 0; item < Editor().Values().Count(); ++item)
            texts.append(Editor().Values().GetItem(item).DisplayText);
        return texts;
    }
    QString ShownTags(int row)
    {
        const QAbstractItemModel* model = list_->Grid().model();
        for (int column = 0; column < model->columnCount(); ++column) {
            if (list_->Grid().Columns().at(column).FieldName == u"tags")
                return model->index(row, column).data().toString();
        }
        return {};
    }
    QString Text(int row, const QString& field)
    {
        return list_->DataSet().ValueAt(row, list_->DataSet().FieldByName(field)->Index()).toString();
    }
    int Number(const QString& statement) { return shop_->Number(statement); }
    QString TagName(int code)
    {
        return shop_->Text(QStringLiteral("SELECT Name FROM dbo.TagS WHERE Code = %1").arg(code));
    }
    QString Tags(int code)
    {
        return shop_->Text(QStringLiteral("SELECT tags FROM dbo.kala WHERE Code = %1").arg(code));
    }
    int CategoryOf(int code)
    {
        return Number(
            QStringLiteral("SELECT category_code FROM dbo.kala_category WHERE kala_code = %1").arg(code));
    }
    int IdOf(const QString& name)
    {
        return Number(QStringLiteral("SELECT MIN(id) FROM dbo.category WHERE name = N'%1'").arg(name));
    }

    TListForm* list_ = nullptr;
};

int main(int argc, char** argv)
{
    return RunFormTest<ListLabelsTest>(argc, argv);
}
#include "ListLabelsTest.moc"
