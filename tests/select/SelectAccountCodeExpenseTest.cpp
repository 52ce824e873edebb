#include "AccountLine.h"
#include "TestCase.h"

namespace {

constexpr QStringView Unknown = u"MsgCodeNotAvailable(مرکز هزينه اي, ExpenseCenterCode_EDT, -)";

QString Label(const QString& account, const QString& title)
{
    return account + QStringLiteral("- [") + title + QStringLiteral("]") + QString(1000, QLatin1Char(' ')) +
           QChar(0x627);
}

} // namespace

class SelectAccountCodeExpenseTest : public TTestCase
{
    Q_OBJECT

    using L = TAccountLine;

private Q_SLOTS:
    void aKnownCenterIsPaddedAndItsTitleStandsInBrackets()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        QVERIFY(line.Start(L::E));
        Typing::Type(line.Box(L::E), QStringLiteral("42"));
        line.Leave();
        QCOMPARE(line.Box(L::E)->Text(), QStringLiteral("0042"));
        QCOMPARE(line.Frame->GetExpCenterCode(), 42);
        QCOMPARE(line.Tables.Statements, QStringList{"SELECT dbo.GetExpCenterName(0042) AS Title"});
        QCOMPARE(line.Name(), Label(QStringLiteral("بانک‌ها"), QStringLiteral("کارگاه")));
        QCOMPARE(line.Events, QStringList{"change"});
        QVERIFY(line.Messages().isEmpty());
        QVERIFY(line.After->hasFocus());
    }

    void aFullTextIsCompletedToo()
    {
        TAccountLine line({L::E});
        line.Frame->SetExpCenterCode(1234);
        QVERIFY(line.Host.Log.Lines().contains(QStringLiteral("Accounting.CompleteCode(1234, 4)")));
        QCOMPARE(line.Name(), Label(QString(), QStringLiteral("کارگاه")));
        line.Forget();
        line.Frame->refresh();
        QVERIFY(line.Host.Log.Lines().contains(QStringLiteral("Accounting.CompleteCode(1234, 4)")));
    }

    void anUnknownCenterIsReportedAndKeepsTheFocus()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        QVERIFY(line.Start(L::E));
        Typing::Type(line.Box(L::E), QStringLiteral("43"));
        line.Leave();
        QCOMPARE(line.Messages(), QStringList{Unknown.toString()});
        QCOMPARE(line.Box(L::E)->Text(), QStringLiteral("0043"));
        QVERIFY(line.Box(L::E)->hasFocus());
        QVERIFY(line.Events.isEmpty());
        QCOMPARE(line.Name(), Label(QStringLiteral("بانک‌ها"), QString()));
    }

    void aTextThatIsNoCodeIsReportedWithoutAsking_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        QTest::newRow("apostrophe") << "'"
                                    << "000'";
        QTest::newRow("A") << "1A"
                           << "001A";
    }
    void aTextThatIsNoCodeIsReportedWithoutAsking()
    {
        QFETCH(QString, typed);
        QFETCH(QString, text);
        TAccountLine line;
        QVERIFY(line.Start(L::E));
        Typing::Type(line.Box(L::E), typed);
        line.Leave();
        QCOMPARE(line.Box(L::E)->Text(), text);
        QCOMPARE(line.Messages(), QStringList{Unknown.toString()});
        QVERIFY(line.Tables.Statements.isEmpty());
        QVERIFY(line.Box(L::E)->hasFocus());
    }

    void anEmptyCenterShowsItsNameAndTells()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Frame->SetExpCenterCode(42);
        QVERIFY(line.Start(L::E));
        Typing::Press(line.Box(L::E), Qt::Key_Backspace);
        line.Leave();
        QCOMPARE(line.Box(L::E)->Text(), QStringLiteral("مرکزهزينه"));
        QCOMPARE(line.Events, QStringList{"change"});
        QVERIFY(line.Tables.Statements.isEmpty());
        QCOMPARE(line.Name(), QStringLiteral("بانک‌ها")); // no title of a center that is gone
    }

    void aCenterOfZeroIsAskedFor()
    {
        TAccountLine line;
        QVERIFY(line.Start(L::E));
        Typing::Type(line.Box(L::E), QStringLiteral("0"));
        line.Leave();
        QCOMPARE(line.Tables.Statements, QStringList{"SELECT dbo.GetExpCenterName(0000) AS Title"});
        QCOMPARE(line.Messages(), QStringList{Unknown.toString()});
    }

    void theOwnersCodeIsWrittenAsItIsAndPaddedByTheExit()
    {
        TAccountLine line;
        QStringList texts;
        line.Box(L::E)->OnChange = [&](QObject*) { texts.append(line.Box(L::E)->Text()); };
        line.Frame->SetExpCenterCode(42);
        QCOMPARE(texts, (QStringList{"42", "0042"}));
        line.Frame->SetExpCenterCode(0);
        QCOMPARE(texts.last(), QStringLiteral("مرکزهزينه"));
        QCOMPARE(line.Events, (QStringList{"change", "change"}));
    }

    void theTitleIsShownAnewWhenTheAccountChanges()
    {
        TAccountLine line;
        line.Frame->SetExpCenterCode(42);
        QVERIFY(line.Start());
        line.Enter(L::T, QStringLiteral("7"));
        QCOMPARE(line.Tables.Statements.last(), QStringLiteral("SELECT dbo.GetExpCenterName(0042) AS Title"));
        QCOMPARE(line.Name(), Label(QStringLiteral("بانک‌ها"), QStringLiteral("کارگاه")));
        line.Forget();
        line.Enter(L::A, QStringLiteral("2"));
        QCOMPARE(line.Name(), Label(QStringLiteral("بانک‌ها - جاری"), QStringLiteral("کارگاه")));
        line.Enter(L::D, QStringLiteral("11"));
        QCOMPARE(line.Name(),
                 Label(QStringLiteral("بانک‌ها - جاری - ملت"), QStringLiteral("کارگاه")));
        QVERIFY(line.Messages().isEmpty());
    }

    void theTitleIsShownAnewAfterAnUnknownAssistantButNotAfterAnUnknownTotal()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Frame->SetExpCenterCode(42);
        QVERIFY(line.Start(L::A));
        line.Enter(L::A, QStringLiteral("9"));
        QCOMPARE(line.Tables.Statements.last(), QStringLiteral("SELECT dbo.GetExpCenterName(0042) AS Title"));
        line.Forget();
        line.Frame->SetAllowClear(false);
        line.Frame->SetAssistantCode(0);
        line.Before->setFocus();
        line.Box(L::T)->SetText(QStringLiteral("5"));
        line.Tables.Statements.clear();
        line.Frame->TotalCode_EDTExit(nullptr);
        QCOMPARE(line.Tables.Statements, QStringList());
    }

    void aCenterOutsideTheSetIsNotShown()
    {
        TAccountLine line({L::T, L::A, L::D});
        line.Frame->SetExpCenterCode(42);
        line.Forget();
        line.Frame->SetTotalCode(7);
        QCOMPARE(line.Tables.Statements, QStringList{"SELECT DetailType FROM AccTotals WHERE Code=7"});
        QCOMPARE(line.Name(), QStringLiteral("بانک‌ها"));
    }

    void clearingThePartDetachesTheBoxsHandlersMeanwhile()
    {
        TAccountLine line;
        line.Frame->SetExpCenterCode(42);
        int changes = 0;
        line.Box(L::E)->OnChange = [&](QObject*) { ++changes; };
        line.Box(L::E)->OnEditValueChange = [&](QObject*) { ++changes; };
        line.Forget();
        line.Frame->ClearPart(L::E);
        QCOMPARE(changes, 0);
        QCOMPARE(line.Box(L::E)->Text(), QStringLiteral("مرکزهزينه"));
        QCOMPARE(line.Events, QStringList{"change"});
        line.Box(L::E)->SetText(QStringLiteral("1"));
        QCOMPARE(changes, 1);
    }

    void anErrorOfTheDatabaseReachesTheOwnerAndTheFrameGoesOn()
    {
        TAccountLine line;
        line.Frame->SetExpCenterCode(42);
        QVERIFY(line.Start());
        Typing::Type(line.Box(L::T), QStringLiteral("7"));
        line.Tables.Connection.OnWillExecute = [](TADOConnection*, const QString& text) {
            throw EADOError(TAdoErrorKind::WrongState, QStringLiteral("خطا"), text);
        };
        QVERIFY_THROWS_EXCEPTION(EADOError, line.Frame->TotalCode_EDTExit(nullptr));
        line.Tables.Connection.OnWillExecute = nullptr;
        line.Forget();
        line.Frame->SetAllowClear(true);
        line.Frame->TotalCode_EDTExit(nullptr);
        QCOMPARE(line.Box(L::T)->Text(), QStringLiteral("007"));
        QCOMPARE(line.Events.count(QStringLiteral("change")), 2); // of the clearing and of the title
    }

    void theBlanksBehindTheTitleAreNotShown()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Frame->SetExpCenterCode(42);
        QVERIFY(line.Frame->Name_LBL->sizeHint().width() < 400);
        QVERIFY(line.Frame->minimumSizeHint().width() < 500);
        QCOMPARE(line.Frame->Name_LBL->accessibleName(), QStringLiteral("بانک‌ها- [کارگاه]"));
    }
};

QTEST_MAIN(SelectAccountCodeExpenseTest)
#include "SelectAccountCodeExpenseTest.moc"
