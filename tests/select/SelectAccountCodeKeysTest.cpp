#include "AccountLine.h"
#include "CodeKeys.h"
#include "TestCase.h"

namespace {

/// The rule once more, in the words of its owner: what is not a letter, not a sign, not a point, not a blank.
bool IsTaken(int unit)
{
    const QString signs = QStringLiteral("!\"#$%&()*+,-/:;<=>?@[\\]^_`|~");
    const bool isLetter = unit > 'A';
    const bool isSign = signs.contains(QChar(unit)) && unit != 0;
    return !isLetter && !isSign && unit != '.' && unit != ' ';
}

} // namespace

class SelectAccountCodeKeysTest : public TTestCase
{
    Q_OBJECT

    using L = TAccountLine;

private Q_SLOTS:
    void theFilterIsRightForEveryCodeUnit()
    {
        int taken = 0;
        for (int unit = 0; unit <= 0xFFFF; ++unit) {
            const bool passes = CodeKeys::ValidateKey(QChar(unit));
            QVERIFY2(passes == IsTaken(unit), qPrintable(QString::number(unit)));
            taken += passes ? 1 : 0;
        }
        QCOMPARE(taken, 32 + 10 + 2); // control characters, digits, "A" and the apostrophe
    }

    void signsAreTheNamedOnes()
    {
        const auto within = [](int unit, int first, int last) { return unit >= first && unit <= last; };
        for (int unit = 0; unit <= 0xFFFF; ++unit) {
            const bool isSign = within(unit, 33, 38) || within(unit, 40, 45) || unit == 47 ||
                                within(unit, 58, 64) || within(unit, 91, 96) || unit == 124 || unit == 126;
            QCOMPARE(CodeKeys::IsSymbol(QChar(unit)), isSign);
            QCOMPARE(CodeKeys::IsCharacter(QChar(unit)), unit > 65);
            QCOMPARE(CodeKeys::IsPoint(QChar(unit)), unit == 46);
        }
    }

    void theHandlerSwallowsWhatTheFilterRefuses()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        for (int unit = 0; unit <= 0xFFFF; ++unit) {
            line.Frame->SetAllowClear(false);
            QChar key(unit);
            line.Frame->Code_EDTKeyPress(line.Box(L::T), key);
            const int digit = QChar(unit).digitValue();
            const bool isDigit = (unit >= '0' && unit <= '9') || (unit >= 0x6F0 && unit <= 0x6F9) ||
                                 (unit >= 0x660 && unit <= 0x669);
            const int expected = isDigit ? '0' + digit : IsTaken(unit) ? unit : 0;
            QVERIFY2(key.unicode() == expected, qPrintable(QString::number(unit)));
            const bool changes = expected != 0 && unit != 9 && unit != 13;
            QVERIFY2(line.Frame->AllowClear() == changes, qPrintable(QString::number(unit)));
        }
    }

    void typedKeys_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("changes");
        QTest::newRow("digits") << "12"
                                << "12" << true;
        QTest::newRow("Persian digits") << QStringLiteral("۱۲") << "12" << true;
        QTest::newRow("Arabic-Indic digits") << QStringLiteral("١٢") << "12" << true;
        QTest::newRow("point") << "."
                               << "" << false;
        QTest::newRow("minus") << "-"
                               << "" << false;
        QTest::newRow("blank") << " "
                               << "" << false;
        QTest::newRow("A") << "A"
                           << "A" << true;
        QTest::newRow("small a") << "a"
                                 << "" << false;
        QTest::newRow("B") << "B"
                           << "" << false;
        QTest::newRow("Persian letter") << QStringLiteral("ب") << "" << false;
        QTest::newRow("apostrophe") << "'"
                                    << "'" << true;
        QTest::newRow("braces") << "{}"
                                << "" << false;
        QTest::newRow("emoji") << QStringLiteral("😀") << "" << false;
        QTest::newRow("digit among letters") << "x1y"
                                             << "1" << true;
    }
    void typedKeys()
    {
        QFETCH(QString, typed);
        QFETCH(QString, text);
        QFETCH(bool, changes);
        TAccountLine line;
        for (const TCodeItem level : {L::T, L::A, L::D, L::E}) {
            QVERIFY(line.Start(level));
            line.Frame->SetAllowClear(false);
            Typing::Type(line.Box(level), typed);
            QCOMPARE(line.Box(level)->Text(), text);
            QCOMPARE(line.Frame->AllowClear(), changes);
            line.Frame->Clear();
        }
    }

    void tabAndEnterDoNotCountAsTyping()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        Typing::Press(line.Box(L::T), Qt::Key_Return);
        QVERIFY(!line.Frame->AllowClear());
        Typing::Press(line.Box(L::T), Qt::Key_Tab);
        QVERIFY(!line.Frame->AllowClear());
        QVERIFY(line.Box(L::A)->hasFocus());
    }

    void everyWayToChangeACodeCountsAsTyping()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        QVERIFY(line.Start());
        Typing::Press(line.Box(L::T), Qt::Key_Backspace);
        QVERIFY(line.Frame->AllowClear());
        line.Box(L::T)->SetText(QStringLiteral("007"));
        line.Box(L::T)->selectAll();
        line.Frame->SetAllowClear(false);
        Typing::Press(line.Box(L::T), Qt::Key_Delete); // gives no character
        QCOMPARE(line.Box(L::T)->Text(), QString());
        QVERIFY(line.Frame->AllowClear());
    }

    void textsThatTheOwnerWritesDoNotCountAsTyping()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        line.Box(L::T)->SetText(QStringLiteral("007"));
        QVERIFY(!line.Frame->AllowClear());
    }

    void plusOpensThePickerAndIsNotInserted()
    {
        TAccountLine line;
        for (const TCodeItem level : {L::T, L::A, L::D}) {
            QVERIFY(line.Start(level));
            Typing::Type(line.Box(level), QStringLiteral("+"));
            QCOMPARE(line.Host.Log.CountOf(QStringLiteral("Select_AccountCodes")), 1);
            QCOMPARE(line.Box(level)->Text(), QString());
            QVERIFY(!line.Frame->AllowClear());
        }
        QVERIFY(line.Start(L::E));
        QTest::keyClick(line.Box(L::E), Qt::Key_Plus, Qt::KeypadModifier);
        QCOMPARE(line.Host.Log.Lines(), QStringList{QStringLiteral("Select_Entity(115, , 0)")});
        QCOMPARE(line.Box(L::E)->Text(), QString());
    }

    void enteringABoxEmptiesThePlaceholderOnly()
    {
        TAccountLine line;
        QVERIFY(line.Start(L::A));
        QCOMPARE(line.Box(L::A)->Text(), QString());
        QCOMPARE(line.Box(L::A)->palette().color(QPalette::Active, QPalette::Text), QColor(Qt::black));
        QCOMPARE(line.Box(L::A)->font().pointSize(), 11);
        QCOMPARE(line.Frame->ActiveItem(), L::A);
        line.Box(L::D)->SetText(QStringLiteral("تفصیلی"));
        line.Box(L::D)->setFocus();
        QCOMPARE(line.Box(L::D)->Text(), QString());
        line.Box(L::E)->SetText(QStringLiteral("A"));
        line.Box(L::E)->setFocus();
        QCOMPARE(line.Box(L::E)->Text(), QStringLiteral("A"));
        QCOMPARE(line.Frame->ActiveItem(), L::E);
    }

    void typingIntoABoxThatWasEmptiedUnderTheUserReplacesThePlaceholder()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        line.Frame->Clear();
        Typing::Type(line.Box(L::T), QStringLiteral("7"));
        QCOMPARE(line.Box(L::T)->Text(), QStringLiteral("7"));
        QCOMPARE(line.Box(L::T)->palette().color(QPalette::Active, QPalette::Text), QColor(Qt::black));
    }

    void aFullBoxIsSelectedWhenEntered()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        QVERIFY(line.Start());
        Typing::Type(line.Box(L::T), QStringLiteral("9"));
        QCOMPARE(line.Box(L::T)->Text(), QStringLiteral("9"));
    }
};

QTEST_MAIN(SelectAccountCodeKeysTest)
#include "SelectAccountCodeKeysTest.moc"
