#include "Look.h"
#include "TagsSearchForm.h"
#include "TestCase.h"

/// The frame as a filter.
class TagsSearchTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFormIsAsDescribed()
    {
        const TTags_search_FRM& frame = *form_->Frame;
        QCOMPARE(frame.Tags_LBL->text(), QStringLiteral(" &برچسب :"));
        QCOMPARE(frame.add_btn->text(), QStringLiteral("..."));
        QCOMPARE(frame.Tag_editor->Separator(), QChar(u';'));
        const TTarvaSearch& criterion = form_->Criterion();
        QVERIFY(!criterion.Active());
        QVERIFY(!criterion.Reverst());
        QCOMPARE(criterion.SearchTypes(), TSearchType::stGeneral);
        QCOMPARE(criterion.SearchItems.Count(), 0);
        QCOMPARE(criterion.ItemIndex(), 0);
        QVERIFY(criterion.Value2().isNull());
        for (TADOQuery* query : {frame.Tags_qry, frame.Colors_qry})
            QCOMPARE(query->Connection(), &form_->Tables.Connection);
        QCOMPARE(frame.cmd->Connection(), &form_->Tables.Connection);
        QVERIFY(!frame.searchble());
    }

    void loadingTurnsTheEditorRightToLeft()
    {
        form_->Editor().SetRightToLeft(false);
        form_->Frame->frame_load();
        QCOMPARE(form_->Editor().layoutDirection(), Qt::RightToLeft);
    }

    void eachKeySettlesTheTypedText()
    {
        QVERIFY(form_->Show(true));
        form_->Editor().SetReadOnly(true);
        QTest::keyPress(&form_->Editor(), Qt::Key_A);
        QVERIFY(!form_->Editor().StateFlag());
        form_->Editor().SetReadOnly(false);
        QTest::keyRelease(&form_->Editor(), Qt::Key_A);
        QVERIFY(form_->Editor().StateFlag());
    }

    void comingInPutsTheCaretBehindTheTags()
    {
        QVERIFY(form_->Show(true));
        form_->Enter(QStringLiteral("سه"));
        form_->Enter(QStringLiteral("هفت"));
        form_->Press(Qt::Key_Home);
        form_->Other->setFocus();
        form_->Editor().setFocus();
        form_->Press(Qt::Key_Backspace);
        QCOMPARE(form_->Items(), QStringList{QStringLiteral("سه:3:0")});
    }

    void loadingSendsTheListThePicturesTwiceAndTheMenu()
    {
        form_->Frame->frame_load();
        QCOMPARE(
            form_->Tables.Sent(),
            (QStringList{QStringLiteral("SELECT TagS.Code AS ID,TagS.Name,Colors.code,[h-img] as image FROM "
                                        "TagS inner join colors on TagS.color_code = colors.code"),
                         SentText::Pictures(), SentText::Pictures(), SentText::Menu()}));
        QCOMPARE(form_->Editor().Images().size(), 3);
        QCOMPARE(form_->Menu().Count(), 3);
        QVERIFY(form_->Items().isEmpty());
        QVERIFY(!form_->Criterion().Active());
    }

    void loadingAgainStartsEmpty()
    {
        QVERIFY(form_->Show(true));
        form_->Enter(QStringLiteral("سه"));
        form_->Frame->frame_load();
        QVERIFY(form_->Items().isEmpty());
        QCOMPARE(form_->Menu().Count(), 3);
    }

    void theHelpButtonComesToTheRight()
    {
        QVERIFY(form_->Show(true));
        const TTags_search_FRM& frame = *form_->Frame;
        QVERIFY(frame.TagHelp_BTN->x() > frame.Tags_LBL->x());
        QVERIFY(frame.Tags_LBL->x() > frame.Tag_editor->x());
        QVERIFY(frame.Tag_editor->x() > frame.add_btn->x());
    }

    void choosingPutsTheCaretBehindTheTags()
    {
        QVERIFY(form_->Show(true));
        form_->Enter(QStringLiteral("سه"));
        form_->Enter(QStringLiteral("هفت"));
        const auto removesLast = [this] {
            form_->Press(Qt::Key_Backspace);
            return form_->Items() == QStringList{QStringLiteral("سه:3:0"), QStringLiteral("هفت:7:0")};
        };
        form_->Press(Qt::Key_Home);
        form_->Enter(QStringLiteral("پنج"));
        QVERIFY(removesLast());
        form_->Press(Qt::Key_Home);
        form_->Frame->POP_click(form_->Menu().Item(1));
        QVERIFY(removesLast());
        form_->Press(Qt::Key_Home);
        form_->Enter(QStringLiteral("سه"));
        form_->Press(Qt::Key_Backspace);
        QCOMPARE(form_->Items(), QStringList{QStringLiteral("سه:3:0")});
    }

    void aTypedNameFiltersByItsCode_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Enter") << int(Qt::Key_Return);
        QTest::newRow("keypad Enter") << int(Qt::Key_Enter);
        QTest::newRow("Tab") << int(Qt::Key_Tab);
    }

    void aTypedNameFiltersByItsCode()
    {
        QFETCH(int, key);
        QVERIFY(form_->Show(true));
        form_->Type(QStringLiteral("هفت"));
        form_->Tables.Sent();
        form_->Press(static_cast<Qt::Key>(key));
        QCOMPARE(form_->Tables.Sent(), QStringList{SentText::Tag(QStringLiteral("'هفت'"))});
        // Blue's first tag is «سه».
        QCOMPARE(form_->Items(), QStringList{QStringLiteral("هفت:7:0")});
        QCOMPARE(form_->Value(), QStringLiteral("7"));
        QVERIFY(form_->Criterion().Active());
        QCOMPARE(form_->Editor().EditText(), QString());
        QCOMPARE(form_->Editor().KeyList, QStringLiteral(",7,"));
        QCOMPARE(form_->Other->hasFocus(), false);
    }

    void theFirstKeySwitchesTheCriterionOn()
    {
        QVERIFY(form_->Show(true));
        QVERIFY(!form_->Criterion().Active());
        form_->Type(QStringLiteral("س"));
        QVERIFY(form_->Criterion().Active());
        QCOMPARE(form_->Value(), QString());
    }

    void theLastTagFilters()
    {
        QVERIFY(form_->Show(true));
        form_->Enter(QStringLiteral("سه"));
        QCOMPARE(form_->Value(), QStringLiteral("3"));
        form_->Enter(QStringLiteral("هفت"));
        QCOMPARE(form_->Value(), QStringLiteral("7"));
        QCOMPARE(form_->Items().size(), 2);
        form_->Press(Qt::Key_Backspace);
        QCOMPARE(form_->Items(), QStringList{QStringLiteral("سه:3:0")});
        QCOMPARE(form_->Value(), QStringLiteral("3"));
        QCOMPARE(form_->Frame->ChosenCodes(), QStringList{QStringLiteral("3")});
        form_->Press(Qt::Key_Backspace);
        QCOMPARE(form_->Criterion().Value1(), QVariant(QString(QLatin1String(""))));
        QVERIFY(form_->Criterion().Active());
        QVERIFY(form_->Frame->ChosenCodes().isEmpty());
    }

    void deleteTakesTheTagBehindTheCaretOff()
    {
        QVERIFY(form_->Show(true));
        form_->Enter(QStringLiteral("سه"));
        form_->Enter(QStringLiteral("هفت"));
        form_->Tables.Sent();
        Typing::Press(&form_->Editor(), Qt::Key_Right);
        form_->Press(Qt::Key_Delete);
        QCOMPARE(form_->Items(), QStringList{QStringLiteral("سه:3:0")});
        QCOMPARE(form_->Value(), QStringLiteral("3"));
        QVERIFY(form_->Tables.Sent().isEmpty());
    }

    void aTagThatIsChosenAlreadyIsDropped()
    {
        QVERIFY(form_->Show(true));
        form_->Enter(QStringLiteral("سه"));
        form_->Type(QStringLiteral("سه"));
        form_->Tables.Sent();
        form_->Press(Qt::Key_Return);
        QVERIFY(form_->Tables.Sent().isEmpty());
        QCOMPARE(form_->Items().size(), 1);
        QCOMPARE(form_->Editor().EditText(), QString());
    }

    void anUnknownNameIsDroppedWithoutAMessage()
    {
        QVERIFY(form_->Show(true));
        form_->Enter(QStringLiteral("سه"));
        form_->Type(QStringLiteral("ناشناس"));
        form_->Tables.Sent();
        form_->Press(Qt::Key_Return);
        QCOMPARE(form_->Tables.Sent(), QStringList{SentText::Tag(QStringLiteral("'ناشناس'"))});
        QVERIFY(form_->Host.Log.Lines().isEmpty());
        QCOMPARE(form_->Editor().EditText(), QString());
        QCOMPARE(form_->Value(), QStringLiteral("3"));
        QCOMPARE(form_->Frame->ChosenCodes(), QStringList{QStringLiteral("3")});
    }

    void theEleventhTagIsNotTaken()
    {
        for (int code = 11; code <= 21; ++code)
            form_->Tables.AddTag(code, QStringLiteral("برچسب%1").arg(code), 1);
        QVERIFY(form_->Show(true));
        for (int code = 11; code <= 20; ++code)
            form_->Enter(QStringLiteral("برچسب%1").arg(code));
        QCOMPARE(form_->Items().size(), 10);
        form_->Type(QStringLiteral("برچسب21"));
        form_->Tables.Sent();
        form_->Press(Qt::Key_Return);
        QCOMPARE(form_->Items().size(), 10);
        QVERIFY(form_->Tables.Sent().isEmpty());
        QCOMPARE(form_->Editor().EditText(), QStringLiteral("برچسب21"));
        QCOMPARE(form_->Value(), QStringLiteral("20"));
    }

    void enterWithoutATextMovesOn()
    {
        QVERIFY(form_->Show(true));
        form_->Type(QStringLiteral("  "));
        QTest::keyPress(&form_->Editor(), Qt::Key_Return);
        QVERIFY(form_->Frame->add_btn->hasFocus());
    }

    void enterWithATextStays()
    {
        QVERIFY(form_->Show(true));
        form_->Enter(QStringLiteral("ناشناس"));
        QVERIFY(form_->Editor().hasFocus());
    }

    void theEditorIsYellowWhileItHasTheFocus()
    {
        QVERIFY(form_->Show(true));
        QCOMPARE(form_->Editor().Color(), quint32(65535));
        form_->Type(QStringLiteral("نیمه"));
        form_->Other->setFocus();
        QCOMPARE(form_->Editor().Color(), quint32(0xFFFFFF));
        QCOMPARE(form_->Editor().EditText(), QString());
    }

    void theUnboundHandlersDoWhatTheirBodiesSay()
    {
        QVERIFY(form_->Show(true));
        TTags_search_FRM& frame = *form_->Frame;
        form_->Editor().SetEditText(QStringLiteral("متن"));
        frame.Tag_editor1Exit();
        QCOMPARE(form_->Editor().Color(), quint32(0xFFFFFF));
        QCOMPARE(form_->Editor().EditText(), QStringLiteral("متن"));
        frame.Tag_editor1Enter();
        QCOMPARE(form_->Editor().Color(), quint32(65535));
        QCOMPARE(form_->Editor().EditText(), QString());
        frame.Tag_editor1KeyUp();
        frame.tags_CHKClick();
        QVERIFY(!form_->Criterion().Active());
        frame.Tag_editor1ValueEditDone();
        QVERIFY(form_->Criterion().Active());
    }

    void aCompletedEntryFilters()
    {
        QVERIFY(form_->Show(true));
        form_->Editor().Lookup().AddPair(QStringLiteral("پنج"), QStringLiteral("5"), 1);
        form_->Type(QStringLiteral("پنج;"));
        QCOMPARE(form_->Items(), QStringList{QStringLiteral("پنج:5:1")});
        QCOMPARE(form_->Value(), QStringLiteral("5"));
    }

    void hostileNamesAreFoundShownAndTakenOff_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("quotes") << QStringLiteral("او گفت 'نه' \"آری\"");
        QTest::newRow("a statement") << QStringLiteral("' or '1'='1");
        QTest::newRow("commas") << QStringLiteral(",3,7,");
        QTest::newRow("wildcards") << QStringLiteral("100%_[a-z]]");
        QTest::newRow("emoji") << QStringLiteral("ویژه 🌟👨‍👩‍👧");
        QTest::newRow("direction marks") << QStringLiteral("\u200Fالف\u202Eabc\u2066ب");
        QTest::newRow("fifty characters") << QString(50, u'م');
    }

    void hostileNamesAreFoundShownAndTakenOff()
    {
        QFETCH(QString, name);
        form_->Tables.AddTag(12, name, 3);
        QVERIFY(form_->Show(true));
        form_->Enter(QStringLiteral("سه"));
        form_->Editor().SetEditText(name);
        form_->Press(Qt::Key_Return);
        QCOMPARE(form_->Value(), QStringLiteral("12"));
        QCOMPARE(form_->Items().last(), name + QStringLiteral(":12:3"));
        QVERIFY(!form_->Editor().grab().isNull());
        form_->Press(Qt::Key_Backspace);
        QCOMPARE(form_->Value(), QStringLiteral("3"));
    }

protected:
    void Prepare() override { form_ = std::make_unique<TTagsSearchForm>(); }
    void Finish() override { form_.reset(); }

private:
    std::unique_ptr<TTagsSearchForm> form_;
};

QTEST_MAIN(TagsSearchTest)
#include "TagsSearchTest.moc"
