#include "SmartEdit_TRV.h"
#include "TypedKeys.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QRandomGenerator>
#include <QTest>

namespace {

void MakeMoney(TSmartEdit_TRV& edit, int decimals = 0, int maxLength = 0)
{
    edit.SetEditType(TSmartEdit_TRV::etCurrency);
    edit.SetPrecision(decimals);
    edit.SetMaxLength(maxLength);
}

QString RandomText(QRandomGenerator& random)
{
    static const QString awkward =
        QStringLiteral("\u0000\n\r\t\u007F\u0085\u2028\u200B\u200C\u200D\u200E\u202E\u2066\u2069"
                       "\uFEFF\uFFFE۱٢3٬٫,.-+()'\"%_[]یيكک\u0640\u064B");
    QString text;
    const int length = random.bounded(12);
    for (int i = 0; i < length; ++i) {
        const int kind = random.bounded(4);
        if (kind == 0)
            text += awkward.at(random.bounded(static_cast<int>(awkward.size())));
        else if (kind == 1)
            text += QChar(static_cast<char16_t>(0xD800 + random.bounded(0x800)));
        else if (kind == 2)
            text += QChar(static_cast<char16_t>(random.bounded(0x10000)));
        else
            text += QChar(static_cast<char16_t>(0x0600 + random.bounded(0x100)));
    }
    return text;
}

bool HasLoneSurrogate(const QString& text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
        else if (text.at(i).isSurrogate())
            return true;
    }
    return false;
}

bool HasControlCharacter(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) {
        return c.category() == QChar::Other_Control || c == QChar(0x2028) || c == QChar(0x2029);
    });
}

bool IsPlainNumber(const QString& text)
{
    static const QRegularExpression number(QStringLiteral(R"(\A-?[0-9]+(\.[0-9]+)?\z)"));
    return number.match(text).hasMatch();
}

} // namespace

class SmartEditTypingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typingGroupsTheDigitsAroundASteadyCaret_data();
    void typingGroupsTheDigitsAroundASteadyCaret();
    void selectedDigitsAreReplaced();
    void digitsOfAllScriptsBecomeAscii();
    void aTextEditKeepsPersianLettersAndJoiners();
    void maxLengthCountsDigitsNotSigns();
    void maxLengthStopsTypingButNotThePrograms();
    void wholeNumbersTakeNoPoint_data();
    void wholeNumbersTakeNoPoint();
    void undoAndRedoGoStepByStep();
    void undoInATextEditReachesBackBehindNormalisedDigits();
    void aSecondMinusTakesTheFirstAway();
    void noMinusWhereTheBoundsHaveNone();
    void digitsThatLeaveTheBoundsAreRefused();
    void anInputMethodTypesLikeTheKeyboard();
    void anInputMethodRaisesKeyPress();
    void aReadOnlyEditStaysAsItIs();
    void hostileTextsLeaveOneCleanLine();
    void hostileTextsLeaveANumber();
};

void SmartEditTypingTest::typingGroupsTheDigitsAroundASteadyCaret_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("display");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("caret");
    const auto row = [](const char* name, QStringView script, QStringView display, QStringView text,
                        int caret) {
        QTest::newRow(name) << script.toString() << display.toString() << text.toString() << caret;
    };
    row("nothing", u"", u"0", u"0", 1);
    row("one digit takes the place of the zero", u"5", u"5", u"5", 1);
    row("three digits", u"123", u"123", u"123", 3);
    row("four digits", u"1234", u"1,234", u"1234", 5);
    row("seven digits", u"1234567", u"1,234,567", u"1234567", 9);
    row("leading zeros go", u"000123", u"123", u"123", 3);
    row("zero stays alone", u"000", u"0", u"0", 1);
    row("backspace ungroups", u"1234<", u"123", u"123", 3);
    row("backspace behind a comma takes the digit before it", u"1234{{{<", u"234", u"234", 0);
    row("backspace to the end leaves zero", u"12<<", u"0", u"0", 1);
    row("backspace on zero", u"<<", u"0", u"0", 1);
    row("typing after the last digit went", u"1<2", u"2", u"2", 1);
    row("delete before a comma takes the digit behind it", u"1234{{{{>", u"134", u"134", 1);
    row("insert in the middle", u"1234{{9", u"12,934", u"12934", 4);
    row("insert at the front", u"234{{{1", u"1,234", u"1234", 1);
    row("zeros behind the caret wait for a digit", u"1005{{{{<", u"005", u"5", 0);
    row("and are part of the number then", u"1005{{{{<2", u"2,005", u"2005", 1);
    row("zero at the front is idle", u"5{0", u"5", u"5", 0);
    row("a digit before the lone zero replaces it", u"{5", u"5", u"5", 1);
    row("point", u"12.5", u"12.5", u"12.5", 4);
    row("point alone", u".5", u"0.5", u"0.5", 3);
    row("point without digits yet", u"12.", u"12.", u"12", 3);
    row("Persian point", u"12٫5", u"12.5", u"12.5", 4);
    row("second point is no second point", u"1.2.3", u"1.23", u"1.23", 4);
    row("typing the point that stands there steps over it", u"1.5{{.7", u"1.75", u"1.75", 3);
    row("decimals are limited", u"1.23456", u"1.234", u"1.234", 5);
    row("no grouping behind the point", u"1234.567", u"1,234.567", u"1234.567", 9);
    row("a point that would leave too many decimals is refused", u"123456{{{{{.", u"123,456", u"123456", 2);
    row("grouping signs are typed for nothing", u"1,234٬567", u"1,234,567", u"1234567", 9);
    row("letters are refused", u"1a2ب3", u"123", u"123", 3);
    row("minus", u"-12", u"-12", u"-12", 3);
    row("minus afterwards", u"12-", u"-12", u"-12", 3);
    row("minus alone is no number yet", u"-", u"-0", u"0", 2);
    row("backspace over the minus", u"-5<<", u"0", u"0", 1);
    row("plus takes the minus away", u"-1234+", u"1,234", u"1234", 5);
    row("mathematical minus", u"−7", u"-7", u"-7", 2);
    row("a digit before the minus goes behind it", u"-12{{{3", u"-312", u"-312", 2);
    row("nineteen digits", u"1234567890123456789", u"1,234,567,890,123,456,789", u"1234567890123456789", 25);
}

void SmartEditTypingTest::typingGroupsTheDigitsAroundASteadyCaret()
{
    QFETCH(QString, script);
    TSmartEdit_TRV edit;
    MakeMoney(edit, 3);
    TypedKeys::Script(&edit, script);
    QTEST(edit.text(), "display");
    QTEST(edit.Text(), "text");
    QTEST(edit.CaretPos(), "caret");
}

void SmartEditTypingTest::selectedDigitsAreReplaced()
{
    TSmartEdit_TRV edit;
    MakeMoney(edit);
    edit.SetText(QStringLiteral("1234567"));
    QCOMPARE(edit.text(), QStringLiteral("1,234,567"));
    edit.setSelection(2, 3);
    TypedKeys::Text(&edit, QStringLiteral("9"));
    QCOMPARE(edit.text(), QStringLiteral("19,567"));
    QCOMPARE(edit.CaretPos(), 2);
    edit.selectAll();
    TypedKeys::Text(&edit, QStringLiteral("۴"));
    QCOMPARE(edit.text(), QStringLiteral("4"));
    edit.selectAll();
    TypedKeys::Script(&edit, QStringLiteral(">"));
    QCOMPARE(edit.text(), QStringLiteral("0"));
    edit.SetText(QStringLiteral("1234"));
    edit.selectAll();
    TypedKeys::Text(&edit, QStringLiteral("-5"));
    QCOMPARE(edit.Text(), QStringLiteral("-5"));
}

void SmartEditTypingTest::digitsOfAllScriptsBecomeAscii()
{
    TSmartEdit_TRV money;
    MakeMoney(money, 2);
    TypedKeys::Text(&money, QStringLiteral("۱٬۲۳٤٫٥6"));
    QCOMPARE(money.Text(), QStringLiteral("1234.56"));
    TSmartEdit_TRV text;
    TypedKeys::Text(&text, QStringLiteral("پیچ ۱۲٣4"));
    QCOMPARE(text.Text(), QStringLiteral("پیچ 1234"));
    text.SetText(QStringLiteral("کد ۷٨"));
    QCOMPARE(text.Text(), QStringLiteral("کد 78"));
}

void SmartEditTypingTest::aTextEditKeepsPersianLettersAndJoiners()
{
    const QString typed = QStringLiteral("  می\u200Cخواهمِ كتابي ۀ ئـ'\"%_[");
    TSmartEdit_TRV edit;
    TypedKeys::Text(&edit, typed);
    QCOMPARE(edit.Text(), typed);
}

void SmartEditTypingTest::maxLengthCountsDigitsNotSigns()
{
    TSmartEdit_TRV edit;
    MakeMoney(edit, 2, 6);
    TypedKeys::Text(&edit, QStringLiteral("-1234.567"));
    QCOMPARE(edit.text(), QStringLiteral("-1,234.56"));
    TSmartEdit_TRV whole;
    whole.SetEditType(TSmartEdit_TRV::etNumeric);
    whole.SetMaxLength(12);
    TypedKeys::Text(&whole, QStringLiteral("1234567890123"));
    QCOMPARE(whole.Text(), QStringLiteral("123456789012"));
    QVERIFY2(whole.text() == whole.Text(), "codes and other whole numbers are shown without grouping signs");
}

void SmartEditTypingTest::maxLengthStopsTypingButNotThePrograms()
{
    TSmartEdit_TRV edit;
    edit.SetMaxLength(3);
    TypedKeys::Text(&edit, QStringLiteral("abcd"));
    QCOMPARE(edit.Text(), QStringLiteral("abc"));
    edit.SetText(QStringLiteral("مرکزهزينه"));
    QCOMPARE(edit.Text(), QStringLiteral("مرکزهزينه"));
    TypedKeys::Text(&edit, QStringLiteral("x"));
    QCOMPARE(edit.Text(), QStringLiteral("مرکزهزينه"));
    edit.selectAll();
    TypedKeys::Text(&edit, QStringLiteral("12"));
    QCOMPARE(edit.Text(), QStringLiteral("12"));
}

void SmartEditTypingTest::wholeNumbersTakeNoPoint_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("valueType");
    QTest::addColumn<int>("precision");
    QTest::newRow("numeric") << int(TSmartEdit_TRV::etNumeric) << int(TSmartEdit_TRV::vtFloat) << 3;
    QTest::newRow("numeric int") << int(TSmartEdit_TRV::etNumeric) << int(TSmartEdit_TRV::vtInt) << 0;
    QTest::newRow("currency int") << int(TSmartEdit_TRV::etCurrency) << int(TSmartEdit_TRV::vtInt) << 3;
    QTest::newRow("currency without decimals")
        << int(TSmartEdit_TRV::etCurrency) << int(TSmartEdit_TRV::vtFloat) << 0;
}

void SmartEditTypingTest::wholeNumbersTakeNoPoint()
{
    QFETCH(int, type);
    QFETCH(int, valueType);
    QFETCH(int, precision);
    TSmartEdit_TRV edit;
    edit.SetEditType(TSmartEdit_TRV::TEditType(type));
    edit.SetValueType(TSmartEdit_TRV::TValueType(valueType));
    edit.SetPrecision(precision);
    TypedKeys::Text(&edit, QStringLiteral("12.5"));
    QCOMPARE(edit.Text(), QStringLiteral("125"));
}

void SmartEditTypingTest::undoAndRedoGoStepByStep()
{
    TSmartEdit_TRV edit;
    MakeMoney(edit);
    TypedKeys::Text(&edit, QStringLiteral("1234"));
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(edit.text(), QStringLiteral("123"));
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(edit.text(), QStringLiteral("0"));
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(edit.text(), QStringLiteral("1,234"));
    QCOMPARE(edit.CaretPos(), 5);
    TypedKeys::Text(&edit, QStringLiteral("5"));
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(edit.text(), QStringLiteral("12,345"));
}

void SmartEditTypingTest::undoInATextEditReachesBackBehindNormalisedDigits()
{
    TSmartEdit_TRV edit;
    TypedKeys::Text(&edit, QStringLiteral("پیچ ۱۲"));
    QCOMPARE(edit.Text(), QStringLiteral("پیچ 12"));
    while (edit.isUndoAvailable())
        QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(edit.Text(), QString());
    while (edit.isRedoAvailable())
        QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(edit.Text(), QStringLiteral("پیچ 12"));
}

void SmartEditTypingTest::aSecondMinusTakesTheFirstAway()
{
    TSmartEdit_TRV edit;
    MakeMoney(edit);
    TypedKeys::Script(&edit, QStringLiteral("1234{-"));
    QCOMPARE(edit.text(), QStringLiteral("-1,234"));
    QCOMPARE(edit.CaretPos(), 5);
    TypedKeys::Script(&edit, QStringLiteral("-"));
    QCOMPARE(edit.text(), QStringLiteral("1,234"));
    QCOMPARE(edit.CaretPos(), 4);
}

void SmartEditTypingTest::noMinusWhereTheBoundsHaveNone()
{
    TSmartEdit_TRV edit;
    MakeMoney(edit);
    edit.SetMaxValue(500);
    TypedKeys::Text(&edit, QStringLiteral("-12"));
    QCOMPARE(edit.Text(), QStringLiteral("12"));
}

void SmartEditTypingTest::digitsThatLeaveTheBoundsAreRefused()
{
    TSmartEdit_TRV edit;
    MakeMoney(edit);
    edit.SetMinValue(-20);
    edit.SetMaxValue(500);
    TypedKeys::Text(&edit, QStringLiteral("5012"));
    QCOMPARE(edit.Text(), QStringLiteral("50"));
    edit.SetText(QStringLiteral("7000"));
    TypedKeys::Script(&edit, QStringLiteral("<"));
    QCOMPARE(edit.Text(), QStringLiteral("700"));
    edit.SetText(QStringLiteral("-1"));
    TypedKeys::Text(&edit, QStringLiteral("23"));
    QCOMPARE(edit.Text(), QStringLiteral("-12"));
}

void SmartEditTypingTest::anInputMethodTypesLikeTheKeyboard()
{
    TSmartEdit_TRV money;
    MakeMoney(money);
    TSmartEdit_TRV text;
    for (TSmartEdit_TRV* edit : {&money, &text}) {
        QInputMethodEvent event(QString(), {});
        event.setCommitString(QStringLiteral("ع۱۲٣\n4"));
        QApplication::sendEvent(edit, &event);
    }
    QCOMPARE(money.text(), QStringLiteral("1,234"));
    QCOMPARE(text.Text(), QStringLiteral("ع123 4"));
}

void SmartEditTypingTest::anInputMethodRaisesKeyPress()
{
    TSmartEdit_TRV edit;
    edit.OnKeyPress = [](QObject*, QChar& key) {
        if (key == u'b')
            key = QChar();
    };
    QInputMethodEvent event(QString(), {});
    event.setCommitString(QStringLiteral("abc"));
    QApplication::sendEvent(&edit, &event);
    QCOMPARE(edit.Text(), QStringLiteral("ac"));
}

void SmartEditTypingTest::aReadOnlyEditStaysAsItIs()
{
    TSmartEdit_TRV money;
    MakeMoney(money);
    money.SetText(QStringLiteral("1234"));
    TSmartEdit_TRV text;
    text.SetText(QStringLiteral("متن"));
    QGuiApplication::clipboard()->setText(QStringLiteral("99"));
    for (TSmartEdit_TRV* edit : {&money, &text}) {
        const QString before = edit->text();
        edit->setReadOnly(true);
        edit->selectAll();
        TypedKeys::Script(edit, QStringLiteral("5۷<>"));
        QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(edit, Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(edit->text(), before);
    }
}

void SmartEditTypingTest::hostileTextsLeaveOneCleanLine()
{
    QRandomGenerator random(20261121);
    TSmartEdit_TRV edit;
    for (int i = 0; i < 10000; ++i) {
        const QString text = RandomText(random);
        if (i % 50 == 0)
            edit.Clear();
        if (i % 2 == 0) {
            TypedKeys::Stroke(&edit, 0, Qt::NoModifier, text);
        } else {
            QGuiApplication::clipboard()->setText(text);
            QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
        }
        const QString line = edit.Text();
        QVERIFY2(!HasControlCharacter(line) && !HasLoneSurrogate(line), qPrintable(line));
        QVERIFY2(!line.contains(QChar(0x202E)) && !line.contains(QChar(0x06F1)), qPrintable(line));
    }
}

void SmartEditTypingTest::hostileTextsLeaveANumber()
{
    QRandomGenerator random(1405);
    TSmartEdit_TRV edit;
    MakeMoney(edit, 4, 19);
    for (int i = 0; i < 10000; ++i) {
        const QString text = RandomText(random) + QString::number(random.bounded(2000) - 1000);
        if (i % 3 == 0)
            edit.setSelection(random.bounded(5), random.bounded(5));
        if (i % 2 == 0) {
            TypedKeys::Stroke(&edit, 0, Qt::NoModifier, text);
        } else {
            QGuiApplication::clipboard()->setText(text);
            QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
        }
        QVERIFY2(IsPlainNumber(edit.Text()), qPrintable(edit.Text()));
        if (edit.Text().size() > 18)
            edit.Clear();
    }
}

QTEST_MAIN(SmartEditTypingTest)
#include "SmartEditTypingTest.moc"
