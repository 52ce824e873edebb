#include "TagStore.h"
#include "TagTables.h"
#include "TestCase.h"

namespace {

const TTaggedRecords goods{QStringLiteral("Goods"), QStringLiteral("Id"), QStringLiteral("1,2,3")};

TTaggedRecords Goods(const QString& keys)
{
    return {goods.TableName, goods.KeyField, keys};
}

} // namespace

class TagStoreTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theListsOfTagsHaveTheirExactTexts()
    {
        QCOMPARE(TagStatements::AllTags(),
                 QStringLiteral("SELECT TagS.Code AS ID,TagS.Name,cl_code,Colors.code,[h-img] as image FROM "
                                "TagS inner join colors on TagS.color_code = colors.code"));
        QCOMPARE(
            TagStatements::TagsOfForm(),
            QStringLiteral("SELECT TagS.Code AS ID,TagS.Name,Colors.code,[h-img] as image FROM TagS inner "
                           "join colors on TagS.color_code = colors.code"));
        QCOMPARE(TagStatements::StrongPictures(), QStringLiteral("select code,[h-img] from colors"));
        QCOMPARE(TagStatements::LightPictures(), QStringLiteral("select code,[l-img] from colors"));
        QCOMPARE(TagStatements::PicturesOfTags(),
                 QStringLiteral("select TagS.color_code,TagS.Name,[H-img] from TagS inner join colors on "
                                "TagS.color_code = colors.code "));
        QCOMPARE(TagStatements::MenuOfTags(),
                 QStringLiteral("select tags.code,TagS.color_code,TagS.Name,[H-img] from TagS inner join "
                                "colors on TagS.color_code = colors.code "));
        QCOMPARE(TagStatements::MenuOfTagsAtButton(),
                 QStringLiteral(" select tags.code,TagS.color_code,TagS.Name,[H-img] from TagS inner  join "
                                "colors on TagS.color_code = colors.code "));
        QCOMPARE(TagStatements::CountOfTags(), QStringLiteral("select count(code) from tags"));
    }

    void suggestionsLeaveOutTheCommonTags()
    {
        const QString select = QStringLiteral(
            "SELECT TagS.Code AS ID,TagS.Name,[h-img] as image,Colors.code,colors.cl_code FROM TagS inner join "
            "colors on TagS.color_code = colors.code where tags.code not in (");
        QCOMPARE(TagStatements::Suggestions({}, QString()),
                 select + QStringLiteral("-1) and TagS.name like '%'"));
        QCOMPARE(
            TagStatements::Suggestions({QStringLiteral("12"), QStringLiteral("5")}, QStringLiteral("عم")),
            select + QStringLiteral("12,5) and TagS.name like 'عم%'"));
        QCOMPARE(TagStatements::Suggestions({}, QStringLiteral("o'x")),
                 select + QStringLiteral("-1) and TagS.name like 'o''x%'"));
    }

    void lookupsHaveTheirExactTexts()
    {
        QCOMPARE(TagStatements::TagByName(QStringLiteral("عمده")),
                 QStringLiteral("select * from tags where name='عمده'"));
        QCOMPARE(TagStatements::TagByName(QStringLiteral("'; drop table tags; --")),
                 QStringLiteral("select * from tags where name='''; drop table tags; --'"));
        QCOMPARE(TagStatements::TagByName(QString()), QStringLiteral("select * from tags where name=''"));
        QCOMPARE(TagStatements::TagByCode(QStringLiteral("7")),
                 QStringLiteral("select tags.code,colors.code as Color_code,TagS.Name  from TagS inner join "
                                "colors on tags.color_code = colors.code where tags.code=7"));
        QCOMPARE(TagStatements::NewTag(QStringLiteral("7")),
                 QStringLiteral("SELECT TagS.Code AS ID,TagS.Name,Colors.code FROM TagS inner join colors on "
                                "TagS.color_code = colors.code where tags.code=7"));
        QCOMPARE(TagStatements::TagWithPicture(QStringLiteral("a'b")),
                 QStringLiteral("select tags.code,TagS.color_code,TagS.Name,[H-img] from TagS inner join "
                                "colors on TagS.color_code = colors.code where tags.name ='a''b'"));
    }

    void theTwoFormsOfAddingDifferInCaseAndOrder()
    {
        QCOMPARE(
            TagStatements::AddShown(goods, QStringLiteral("5")),
            QStringLiteral("update Goods set tags =(case when tags is null then ',5,' else tags+'5,' end) "
                           "where Id in(1,2,3) and (tags not like '%,5,%' OR TAGS IS NULL)"));
        QCOMPARE(
            TagStatements::AddUnshown(goods, QStringLiteral("5")),
            QStringLiteral("update Goods set Tags =(case when tags is null then ',5,' else tags+'5,' end) "
                           "where (TagS not like '%,5,%' or tags is null) and (Id in (1,2,3))"));
    }

    void removingIsAPairOfStatements()
    {
        QCOMPARE(TagStatements::Remove(goods, QStringLiteral("5")),
                 QStringLiteral("update Goods set tags = REPLACE(tags,',5,',',') where Id in(1,2,3) "));
        QCOMPARE(TagStatements::ClearEmptied(goods),
                 QStringLiteral("update Goods set tags = NULL where Id in(1,2,3) and tags=','"));
    }

    void whatIsNoCodeIsRefusedBeforeThereIsAStatement_data()
    {
        QTest::addColumn<QString>("code");
        for (const QString& code : {QString(), QStringLiteral("-1"), QStringLiteral("5 "),
                                    QStringLiteral("5,7"), QStringLiteral("x"), QStringLiteral("1 or 1=1"),
                                    QStringLiteral("۵"), QStringLiteral("5'"), QStringLiteral("%")})
            QTest::addRow("<%s>", qUtf8Printable(code)) << code;
    }

    void whatIsNoCodeIsRefusedBeforeThereIsAStatement()
    {
        QFETCH(const QString, code);
        QVERIFY_THROWS_EXCEPTION(EADOError,
                                 TagStatements::Suggestions({QStringLiteral("5"), code}, QString()));
        QVERIFY_THROWS_EXCEPTION(EADOError, TagStatements::TagByCode(code));
        QVERIFY_THROWS_EXCEPTION(EADOError, TagStatements::NewTag(code));
        QVERIFY_THROWS_EXCEPTION(EADOError, TagStatements::AddShown(goods, code));
        QVERIFY_THROWS_EXCEPTION(EADOError, TagStatements::AddUnshown(goods, code));
        QVERIFY_THROWS_EXCEPTION(EADOError, TagStatements::Remove(goods, code));
    }

    void keysAreUnwrapped()
    {
        QCOMPARE(TTaggedRecords::Unwrapped(QStringLiteral("(1,2,3)")), QStringLiteral("1,2,3"));
        QCOMPARE(TTaggedRecords::Unwrapped(QStringLiteral(",14,")), QStringLiteral("14"));
        QCOMPARE(TTaggedRecords::Unwrapped(QStringLiteral("()")), QString());
        QCOMPARE(TTaggedRecords::Unwrapped(QStringLiteral("(")), QString());
        QCOMPARE(TTaggedRecords::Unwrapped(QString()), QString());
    }

    void theReaderOrdersCodesAsTexts_data()
    {
        QTest::addColumn<QString>("tags");
        QTest::addColumn<QStringList>("codes");
        QTest::newRow("one") << QStringLiteral(",5,") << QStringList{QStringLiteral("5")};
        QTest::newRow("as texts") << QStringLiteral(",5,12,3,")
                                  << QStringList{QStringLiteral("12"), QStringLiteral("3"),
                                                 QStringLiteral("5")};
        QTest::newRow("blanks around")
            << QStringLiteral("  ,5,7, ") << QStringList{QStringLiteral("5"), QStringLiteral("7")};
        QTest::newRow("a lone comma") << QStringLiteral(",") << QStringList();
        QTest::newRow("nothing") << QString() << QStringList();
        QTest::newRow("without a comma behind") << QStringLiteral(",5,7") << QStringList{QStringLiteral("5")};
    }

    void theReaderOrdersCodesAsTexts()
    {
        QFETCH(const QString, tags);
        QFETCH(const QStringList, codes);
        QCOMPARE(TagCodes::Split(tags), codes);
    }

    void theReaderOfChosenTagsKeepsTheirOrder_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("codes");
        const QStringList three{QStringLiteral("5"), QStringLiteral("12"), QStringLiteral("3")};
        QTest::newRow("with a comma in front") << QStringLiteral(",5,12,3,") << three;
        QTest::newRow("without one") << QStringLiteral("5,12,3,") << three;
        QTest::newRow("no comma at all") << QStringLiteral("5") << QStringList();
        QTest::newRow("nothing") << QString() << QStringList();
    }

    void theReaderOfChosenTagsKeepsTheirOrder()
    {
        QFETCH(const QString, text);
        QFETCH(const QStringList, codes);
        QCOMPARE(TagCodes::SplitChosen(text), codes);
    }

    void addingTouchesOnlyRecordsWithoutTheTag_data()
    {
        QTest::addColumn<bool>("shown");
        QTest::newRow("first form") << true;
        QTest::newRow("second form") << false;
    }

    void addingTouchesOnlyRecordsWithoutTheTag()
    {
        QFETCH(const bool, shown);
        TTagTables tables;
        const QVariant null;
        const QStringList before{QStringLiteral(",3,"), QStringLiteral(",5,"), QStringLiteral(",15,"),
                                 QStringLiteral(",51,")};
        tables.AddGoods(1, null);
        for (int i = 0; i < before.size(); ++i)
            tables.AddGoods(i + 2, before[i]);
        tables.AddGoods(6, null); // not selected
        const TTaggedRecords records = Goods(QStringLiteral("1,2,3,4,5"));
        const qint64 written =
            tables.Connection.Execute(shown ? TagStatements::AddShown(records, QStringLiteral("5"))
                                            : TagStatements::AddUnshown(records, QStringLiteral("5")));
        QCOMPARE(written, 4);
        const QStringList after{QStringLiteral(",5,"),    QStringLiteral(",3,5,"),  QStringLiteral(",5,"),
                                QStringLiteral(",15,5,"), QStringLiteral(",51,5,"), QStringLiteral("NULL")};
        QCOMPARE(tables.AllTags(), after);
    }

    void removingTheLastTagLeavesNull()
    {
        TTagTables tables;
        tables.AddGoods(1, QStringLiteral(",3,5,7,"));
        tables.AddGoods(2, QStringLiteral(",5,"));
        tables.AddGoods(3, QStringLiteral(",15,51,"));
        tables.AddGoods(4, QStringLiteral(",5,")); // not selected
        tables.Connection.Execute(TagStatements::Remove(goods, QStringLiteral("5")));
        QCOMPARE(tables.TagsOf(2), QStringLiteral(","));
        tables.Connection.Execute(TagStatements::ClearEmptied(goods));
        const QStringList after{QStringLiteral(",3,7,"), QStringLiteral("NULL"), QStringLiteral(",15,51,"),
                                QStringLiteral(",5,")};
        QCOMPARE(tables.AllTags(), after);
    }

    void theTagsOfASelectionAreCommonOrPartial_data()
    {
        QTest::addColumn<QStringList>("records");
        QTest::addColumn<QString>("common");
        QTest::addColumn<QString>("partial");
        QTest::addColumn<QString>("snapshot");
        const QString null = QStringLiteral("NULL");
        QTest::newRow("none selected") << QStringList() << QString() << QString() << QString();
        QTest::newRow("one") << QStringList{QStringLiteral(",5,12,")} << QStringLiteral("12,5") << QString()
                             << QStringLiteral("12,5");
        QTest::newRow("common and partial")
            << QStringList{QStringLiteral(",5,7,"), QStringLiteral(",3,5,")} << QStringLiteral("5")
            << QStringLiteral("7,3") << QStringLiteral("3,5");
        QTest::newRow("a record without tags") << QStringList{QStringLiteral(",5,"), null} << QString()
                                               << QStringLiteral("5") << QStringLiteral("5");
        QTest::newRow("the first without tags") << QStringList{null, QStringLiteral(",5,")} << QString()
                                                << QStringLiteral("5") << QStringLiteral("5");
        QTest::newRow("all without tags") << QStringList{null, null} << QString() << QString() << QString();
        QTest::newRow("not part of another code")
            << QStringList{QStringLiteral(",5,"), QStringLiteral(",15,51,"), QStringLiteral(",5,")}
            << QString() << QStringLiteral("5,15,51") << QStringLiteral("5");
        QTest::newRow("a lone comma at the end") << QStringList{QStringLiteral(",5,"), QStringLiteral(",")}
                                                 << QString() << QStringLiteral("5") << QString();
        QTest::newRow("an empty text at the end")
            << QStringList{QStringLiteral(",5,"), QString()} << QString() << QStringLiteral("5") << QString();
        QTest::newRow("what is no code") << QStringList{QStringLiteral(",x,5,,"), QStringLiteral(",5,x,,")}
                                         << QStringLiteral("5") << QString() << QStringLiteral("5");
        QTest::newRow("equal records again")
            << QStringList{QStringLiteral(",5,7,"), QStringLiteral(",5,7,"), QStringLiteral(",5,"),
                           QStringLiteral(",5,7,")}
            << QStringLiteral("5") << QStringLiteral("7") << QStringLiteral("5,7");
    }

    void theTagsOfASelectionAreCommonOrPartial()
    {
        QFETCH(const QStringList, records);
        QFETCH(const QString, common);
        QFETCH(const QString, partial);
        QFETCH(const QString, snapshot);
        TTagTables tables;
        for (int i = 0; i < records.size(); ++i)
            tables.AddGoods(i + 1, records[i] == QStringLiteral("NULL")
                                       ? QVariant()
                                       : QVariant(QStringLiteral("") + records[i]));
        tables.Query.SQL.SetText(QStringLiteral("SELECT TAGS FROM Goods ORDER BY Id"));
        TSelectedTags selected;
        selected.ReadCommon(tables.Query);
        selected.ReadPartial(tables.Query);
        QCOMPARE(selected.Common().join(u','), common);
        QCOMPARE(selected.Partial().join(u','), partial);
        QCOMPARE(selected.Snapshot().join(u','), snapshot);
    }

    void eachReadingSeesWhatHasBeenWrittenMeanwhile()
    {
        TTagTables tables;
        tables.AddGoods(1, QStringLiteral(",5,"));
        tables.Query.SQL.SetText(QStringLiteral("SELECT tags FROM Goods"));
        TSelectedTags selected;
        selected.ReadCommon(tables.Query);
        tables.Connection.Execute(TagStatements::AddShown(Goods(QStringLiteral("1")), QStringLiteral("7")));
        selected.ReadCommon(tables.Query);
        selected.ReadPartial(tables.Query);
        QCOMPARE(selected.Common().join(u','), QStringLiteral("5,7"));
        QCOMPARE(selected.Snapshot().join(u','), QStringLiteral("5,7"));
        tables.Connection.Execute(QStringLiteral("UPDATE Goods SET tags = NULL"));
        selected.ReadCommon(tables.Query);
        selected.ReadPartial(tables.Query);
        QVERIFY(selected.Common().isEmpty());
        QVERIFY(selected.Snapshot().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TagStoreTest)
#include "TagStoreTest.moc"
