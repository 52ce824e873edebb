#include "TagsSearchForm.h"
#include "TestCase.h"

/// The menu of all tags, and the help.
class TagsSearchMenuTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theButtonAsksForTagsAndFillsTheMenu()
    {
        QVERIFY(form_->Show(true));
        form_->Tables.AddTag(9, QStringLiteral("نه"), 3);
        form_->Tables.Sent();
        OpenMenu();
        QCOMPARE(form_->Tables.Sent(), (QStringList{SentText::AtButton(), SentText::Menu()}));
        QVERIFY(form_->Menu().isVisible());
        QVERIFY(!form_->Tables.Query.Active());
        QCOMPARE(form_->Menu().Count(), 4);
        const TMenuItem& entry = *form_->Menu().Item(2);
        QCOMPARE(entry.Caption(), QStringLiteral("هفت"));
        QCOMPARE(entry.Tag, 7);
        QCOMPARE(entry.ImageIndex, 0);
        QCOMPARE(entry.icon().pixmap(16).toImage().pixelColor(8, 8), QColor(32, 96, 192));
        // Green was no tag's colour when the pictures were read.
        QCOMPARE(form_->Menu().Item(3)->ImageIndex, -1);
    }

    void withoutTagsTheButtonSaysWhatToDo()
    {
        form_->Tables.Connection.Execute(QStringLiteral("DELETE FROM TagS"));
        QVERIFY(form_->Show(true));
        OpenMenu();
        QCOMPARE(form_->Tables.Sent(), QStringList{SentText::AtButton()});
        QVERIFY(!form_->Menu().isVisible());
        const IMessages::TTooltip& tooltip = form_->Host.Messages.LastTooltip;
        QCOMPARE(tooltip.Text,
                 QStringLiteral(
                     "ابتدا می بایست از منوی اطلاعات پایه قسمت برچسب گذاری اطلاعات مربوط برچسب مورد نظر "
                     "خود را وارد کرده و سپس در این قسمت از آن استفاده نمایید"));
        QCOMPARE(tooltip.Control, form_->Frame->add_btn);
        CheckTooltip(tooltip, 6000);
    }

    void theHelpIsABalloonAtItsButton()
    {
        QVERIFY(form_->Show(true));
        QTest::mouseClick(form_->Frame->TagHelp_BTN, Qt::LeftButton);
        const IMessages::TTooltip& tooltip = form_->Host.Messages.LastTooltip;
        QCOMPARE(tooltip.Text,
                 QStringLiteral(
                     "شما میتوانید از این قسمت کالاها و اشخاص را که با برچسب های رنگی مختلف از هم تفکیک "
                     "کرده اید را فیلتر کنید و روی آنها عملیات خاص خود را انجام دهید"));
        QCOMPARE(tooltip.Control, form_->Frame->TagHelp_BTN);
        CheckTooltip(tooltip, 5000);
    }

    void aPickedEntryFilters()
    {
        QVERIFY(form_->Show(true));
        form_->Other->setFocus();
        OpenMenu();
        form_->Tables.Sent();
        Choose(1);
        QCOMPARE(form_->Tables.Sent(), QStringList{QStringLiteral("select * from tags where name='پنج'")});
        QCOMPARE(form_->Items(), QStringList{QStringLiteral("پنج:5:1")});
        QCOMPARE(form_->Value(), QStringLiteral("5"));
        QVERIFY(form_->Criterion().Active());
        QVERIFY(form_->Editor().hasFocus());
        QCOMPARE(form_->Editor().KeyList, QStringLiteral(",5,"));
    }

    void anEntryThatIsChosenAlreadyAddsNothingButFiltersAgain()
    {
        QVERIFY(form_->Show(true));
        Pick(0);
        Pick(2);
        QCOMPARE(form_->Value(), QStringLiteral("7"));
        form_->Criterion().SetValue1(QStringLiteral("another"));
        form_->Criterion().SetActive(false);
        Pick(0);
        QCOMPARE(form_->Items().size(), 2);
        QCOMPARE(form_->Value(), QStringLiteral("7"));
        QVERIFY(form_->Criterion().Active());
    }

    void aPickedEntryFiltersEvenWhereTheFrameOnlyPicks()
    {
        QVERIFY(form_->Show(false));
        Pick(0);
        QCOMPARE(form_->Value(), QStringLiteral("3"));
        QVERIFY(form_->Criterion().Active());
    }

    void moreThanTenCanBePicked()
    {
        for (int code = 11; code <= 20; ++code)
            form_->Tables.AddTag(code, QStringLiteral("برچسب%1").arg(code), 1);
        QVERIFY(form_->Show(true));
        for (int index = 0; index < 12; ++index)
            Pick(index);
        QCOMPARE(form_->Items().size(), 12);
        QCOMPARE(form_->Value(), QStringLiteral("19"));
    }

    void existTellsShownTagsByTheirCode()
    {
        QVERIFY(form_->Show(true));
        Pick(0);
        Pick(2);
        TTags_search_FRM& frame = *form_->Frame;
        form_->Tables.Sent();
        QVERIFY(frame.exist(QStringLiteral("هفت"), false));
        QCOMPARE(frame.ItemIndex(), 1);
        QCOMPARE(form_->Tables.Sent(), QStringList{QStringLiteral("select * from tags where name='هفت'")});
        QVERIFY(!frame.exist(QStringLiteral("پنج"), false));
        QCOMPARE(frame.ItemIndex(), 2);
        QVERIFY(frame.exist(QStringLiteral("پنج"), true));
        QVERIFY(!frame.exist(QStringLiteral("ناشناس"), true));
        QVERIFY(frame.Tag_Registered(QStringLiteral("هفت")));
        QVERIFY(!frame.Tag_Registered(QStringLiteral("هف")));
        QVERIFY(frame.exist1(QStringLiteral("پنج")));
        QVERIFY(!frame.exist1(QStringLiteral("ناشناس")));
    }

    void splitterNeedsAComma_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("codes");
        QTest::newRow("nothing") << QString() << QStringList();
        QTest::newRow("no comma") << QStringLiteral("5") << QStringList();
        QTest::newRow("wrapped") << QStringLiteral(",12,5,")
                                 << QStringList{QStringLiteral("12"), QStringLiteral("5")};
        QTest::newRow("no comma in front")
            << QStringLiteral("12,5,") << QStringList{QStringLiteral("12"), QStringLiteral("5")};
    }

    void splitterNeedsAComma()
    {
        QFETCH(QString, text);
        QTEST(TTags_search_FRM::splitter(text), "codes");
    }

    void hostileNamesArePicked_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("quotes") << QStringLiteral("او گفت 'نه' \"آری\"");
        QTest::newRow("an ampersand") << QStringLiteral("R&D && &ب");
        QTest::newRow("a tab") << QStringLiteral("یک\tدو");
        QTest::newRow("emoji") << QStringLiteral("ویژه 🌟");
        QTest::newRow("direction marks") << QStringLiteral("\u200Fالف\u202Eabc");
        QTest::newRow("wildcards") << QStringLiteral("100%]_[");
    }

    void hostileNamesArePicked()
    {
        QFETCH(QString, name);
        form_->Tables.AddTag(12, name, 3);
        QVERIFY(form_->Show(true));
        Pick(3);
        QCOMPARE(form_->Items(), QStringList{name + QStringLiteral(":12:3")});
        Pick(3);
        QCOMPARE(form_->Items().size(), 1);
        form_->Press(Qt::Key_Backspace);
        QVERIFY(form_->Items().isEmpty());
    }

    void oneOfAThousandIsFoundByTyping()
    {
        for (int code = 1001; code <= 2000; ++code)
            form_->Tables.AddTag(code, QStringLiteral("برچسب شمارهٔ %1").arg(code), 1 + code % 3);
        QVERIFY(form_->Show(true));
        OpenMenu();
        QCOMPARE(form_->Menu().Count(), 1003);
        Typing::Type(&form_->Menu(), QStringLiteral("۱۷۳۵"));
        QTest::keyClick(&form_->Menu(), Qt::Key_Return);
        QCOMPARE(form_->Value(), QStringLiteral("1735"));
    }

protected:
    void Prepare() override { form_ = std::make_unique<TTagsSearchForm>(); }
    void Finish() override { form_.reset(); }

private:
    void OpenMenu() { QTest::mouseClick(form_->Frame->add_btn, Qt::LeftButton); }

    void Choose(int index)
    {
        QVERIFY(QTest::qWaitForWindowExposed(&form_->Menu()));
        QTest::mouseClick(&form_->Menu(), Qt::LeftButton, Qt::NoModifier,
                          form_->Menu().actionGeometry(form_->Menu().Item(index)).center());
        QVERIFY(!form_->Menu().isVisible());
    }

    void Pick(int index)
    {
        OpenMenu();
        Choose(index);
    }

    static void CheckTooltip(const IMessages::TTooltip& tooltip, int milliseconds)
    {
        QCOMPARE(tooltip.Title, QString());
        QCOMPARE(tooltip.Milliseconds, milliseconds);
        QCOMPARE(tooltip.Kind, 4);
        QCOMPARE(tooltip.Color, quint32(0xC0C0C0));
        QCOMPARE(tooltip.Reserved, 0);
        QCOMPARE(tooltip.Width, 250);
        QCOMPARE(tooltip.ScreenPosition, tooltip.Control->mapToGlobal(QPoint()));
    }

    std::unique_ptr<TTagsSearchForm> form_;
};

QTEST_MAIN(TagsSearchMenuTest)
#include "TagsSearchMenuTest.moc"
