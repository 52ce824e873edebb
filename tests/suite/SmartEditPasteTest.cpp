#include "ActiveWindow.h"
#include "Balloon.h"
#include "DecimalText.h"
#include "SmartEdit_TRV.h"
#include "TypedKeys.h"

#include <QClipboard>
#include <QMimeData>
#include <QTest>

namespace {

void Paste(TSmartEdit_TRV& edit, const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
}

void Drop(TSmartEdit_TRV& edit, const QString& text)
{
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter(edit.rect().center(), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    QApplication::sendEvent(&edit, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent event(edit.rect().center(), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&edit, &event);
    QCOMPARE(event.dropAction(), Qt::CopyAction);
}

} // namespace

class SmartEditPasteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pastedAmountsAreCleaned_data();
    void pastedAmountsAreCleaned();
    void whatIsNoAmountIsRefusedWithASentence_data();
    void whatIsNoAmountIsRefusedWithASentence();
    void anAmountGoesInAtTheCaret();
    void aSelectionIsReplacedWhole();
    void droppedAmountsAreTakenOrRefusedAlike();
    void pastedTextsBecomeOneLine_data();
    void pastedTextsBecomeOneLine();
    void textThatDoesNotFitIsToldSo();
    void aPairIsNotCutInHalf();
    void aPasteIsOneStepToUndo();
    void tenMegabytesArePastedWithoutHarm();
    void theMiddleButtonPastesTheSelection();

private:
    QWidget window_;
    TSmartEdit_TRV edit_{&window_};
};

void SmartEditPasteTest::init()
{
    Balloon::Hide();
    edit_.SetEditType(TSmartEdit_TRV::etCurrency);
    edit_.SetPrecision(2);
    edit_.SetMaxLength(15);
    edit_.Clear();
    edit_.resize(200, 28);
    window_.resize(260, 60);
    window_.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window_));
}

void SmartEditPasteTest::pastedAmountsAreCleaned_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("display");
    const auto row = [](const char* name, const QString& pasted, const QString& display) {
        QTest::newRow(name) << pasted << display;
    };
    row("plain", QStringLiteral("1234567"), QStringLiteral("1,234,567"));
    row("grouped", QStringLiteral("1,234,567.89"), QStringLiteral("1,234,567.89"));
    row("Persian", QStringLiteral("۱٬۲۳۴٬۵۶۷٫۸۹"), QStringLiteral("1,234,567.89"));
    row("Arabic-Indic", QStringLiteral("١٢٣٤"), QStringLiteral("1,234"));
    row("Persian comma", QStringLiteral("۱،۲۳۴"), QStringLiteral("1,234"));
    row("with the currency", QStringLiteral("مبلغ: ۱۲٬۵۰۰ ریال"), QStringLiteral("12,500"));
    row("with a line break", QStringLiteral("12500\r\n"), QStringLiteral("12,500"));
    row("grouped with blanks", QStringLiteral("1 234 567"), QStringLiteral("1,234,567"));
    row("narrow blanks", QStringLiteral("1\u202F234\u202F567"), QStringLiteral("1,234,567"));
    row("direction marks", QStringLiteral("\u200E-\u20681,234\u2069\u200F"), QStringLiteral("-1,234"));
    row("accountant's negative", QStringLiteral("(1,234)"), QStringLiteral("-1,234"));
    row("minus behind", QStringLiteral("1,234-"), QStringLiteral("-1,234"));
    row("mathematical minus", QStringLiteral("−12"), QStringLiteral("-12"));
    row("decimals of nothing", QStringLiteral("12.5000"), QStringLiteral("12.5"));
    row("leading zeros", QStringLiteral("0001200"), QStringLiteral("1,200"));
    row("point first", QStringLiteral(".5"), QStringLiteral("0.5"));
    row("full stop", QStringLiteral("جمع 1200."), QStringLiteral("1,200"));
}

void SmartEditPasteTest::pastedAmountsAreCleaned()
{
    QFETCH(QString, pasted);
    Paste(edit_, pasted);
    QTEST(edit_.text(), "display");
    QCOMPARE(Balloon::ShownText(), QString());
}

void SmartEditPasteTest::whatIsNoAmountIsRefusedWithASentence_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::newRow("words") << QStringLiteral("دوازده هزار");
    QTest::newRow("blanks") << QStringLiteral("   ");
    QTest::newRow("a date") << QStringLiteral("1403/05/06");
    QTest::newRow("two amounts") << QStringLiteral("120\n340");
    QTest::newRow("groups that are none") << QStringLiteral("12,34");
    QTest::newRow("two points") << QStringLiteral("1.2.3");
    QTest::newRow("exponent") << QStringLiteral("1e5");
    QTest::newRow("too many decimals") << QStringLiteral("1.234");
    QTest::newRow("too long") << QStringLiteral("1234567890123456");
    QTest::newRow("a statement") << QStringLiteral("1; drop table kala; --2");
}

void SmartEditPasteTest::whatIsNoAmountIsRefusedWithASentence()
{
    QFETCH(QString, pasted);
    edit_.SetText(QStringLiteral("777"));
    edit_.selectAll();
    Paste(edit_, pasted);
    QCOMPARE(edit_.Text(), QStringLiteral("777"));
    QCOMPARE(edit_.selectedText(), QStringLiteral("777"));
    QVERIFY(Balloon::ShownText().contains(u'؛'));
    QVERIFY(Balloon::ShownText().endsWith(u'.'));
}

void SmartEditPasteTest::anAmountGoesInAtTheCaret()
{
    edit_.SetText(QStringLiteral("1278"));
    edit_.SetCaretPos(3);
    Paste(edit_, QStringLiteral("۳۴۵۶"));
    QCOMPARE(edit_.text(), QStringLiteral("12,345,678"));
    QCOMPARE(edit_.CaretPos(), 8);
    Paste(edit_, QStringLiteral("-5"));
    QCOMPARE(edit_.text(), QStringLiteral("12,345,678"));
    QVERIFY(!Balloon::ShownText().isEmpty());
}

void SmartEditPasteTest::aSelectionIsReplacedWhole()
{
    edit_.SetText(QStringLiteral("123456"));
    edit_.selectAll();
    Paste(edit_, QStringLiteral("-1.5"));
    QCOMPARE(edit_.Text(), QStringLiteral("-1.5"));
}

void SmartEditPasteTest::droppedAmountsAreTakenOrRefusedAlike()
{
    Drop(edit_, QStringLiteral("۱۲٬۵۰۰ ریال"));
    QCOMPARE(edit_.text(), QStringLiteral("12,500"));
    Drop(edit_, QStringLiteral("ریال"));
    QCOMPARE(edit_.text(), QStringLiteral("12,500"));
    QVERIFY(!Balloon::ShownText().isEmpty());
    edit_.SetEditType(TSmartEdit_TRV::etString);
    edit_.Clear();
    Drop(edit_, QStringLiteral("کد\n۱۲"));
    QCOMPARE(edit_.Text(), QStringLiteral("کد 12"));
}

void SmartEditPasteTest::pastedTextsBecomeOneLine_data()
{
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* name, const QString& pasted, const QString& line) {
        QTest::newRow(name) << pasted << line;
    };
    row("line breaks", QStringLiteral("\r\nیک\r\nدو\nسه\u2028چهار\n"), QStringLiteral("یک دو سه چهار"));
    row("tab", QStringLiteral("a\tb"), QStringLiteral("a b"));
    row("null", QString::fromUtf16(u"a\0b", 3), QStringLiteral("ab"));
    row("joiner stays", QStringLiteral("می\u200Cشود"), QStringLiteral("می\u200Cشود"));
    row("direction marks go", QStringLiteral("\u202Ea\u202C\u200Fb"), QStringLiteral("ab"));
    row("digits", QStringLiteral("۱٢3"), QStringLiteral("123"));
    row("letters stay as they are", QStringLiteral("كتابي"), QStringLiteral("كتابي"));
    row("half a pair", QStringLiteral("a") + QChar(0xD83D) + QStringLiteral("b"), QStringLiteral("ab"));
    row("a pair", QStringLiteral("a\U0001F600b"), QStringLiteral("a\U0001F600b"));
    row("quotes", QStringLiteral("'; drop table kala; --"), QStringLiteral("'; drop table kala; --"));
}

void SmartEditPasteTest::pastedTextsBecomeOneLine()
{
    QFETCH(QString, pasted);
    edit_.SetEditType(TSmartEdit_TRV::etString);
    edit_.SetMaxLength(0);
    edit_.Clear();
    Paste(edit_, pasted);
    QTEST(edit_.Text(), "line");
    edit_.SetText(pasted);
    QTEST(edit_.Text(), "line");
}

void SmartEditPasteTest::textThatDoesNotFitIsToldSo()
{
    edit_.SetEditType(TSmartEdit_TRV::etString);
    edit_.SetMaxLength(5);
    edit_.SetText(QStringLiteral("ab"));
    Paste(edit_, QStringLiteral("cdefg"));
    QCOMPARE(edit_.Text(), QStringLiteral("abcde"));
    QVERIFY(Balloon::ShownText().contains(QStringLiteral("۵")));
    Paste(edit_, QString(QChar(0x200E)));
    QCOMPARE(edit_.Text(), QStringLiteral("abcde"));
    QVERIFY(!Balloon::ShownText().isEmpty());
}

void SmartEditPasteTest::aPairIsNotCutInHalf()
{
    edit_.SetEditType(TSmartEdit_TRV::etString);
    edit_.SetMaxLength(2);
    edit_.Clear();
    Paste(edit_, QStringLiteral("a\U0001F600"));
    QCOMPARE(edit_.Text(), QStringLiteral("a"));
}

void SmartEditPasteTest::aPasteIsOneStepToUndo()
{
    edit_.SetText(QStringLiteral("12"));
    Paste(edit_, QStringLiteral("345"));
    QCOMPARE(edit_.Text(), QStringLiteral("12345"));
    QTest::keyClick(&edit_, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(edit_.Text(), QStringLiteral("12"));
}

void SmartEditPasteTest::tenMegabytesArePastedWithoutHarm()
{
    const QString text(5 * 1024 * 1024, u'۱');
    Paste(edit_, text);
    QCOMPARE(edit_.Text(), QStringLiteral("0"));
    edit_.SetEditType(TSmartEdit_TRV::etString);
    edit_.SetMaxLength(0);
    edit_.Clear();
    Paste(edit_, text);
    QCOMPARE(edit_.Text(), QString(32767, u'1'));
    QVERIFY(!Balloon::ShownText().isEmpty());
    edit_.Clear();
}

void SmartEditPasteTest::theMiddleButtonPastesTheSelection()
{
    if (!QGuiApplication::clipboard()->supportsSelection())
        QSKIP("No selection clipboard off-screen; on the X server, where it is, this runs too.");
    QGuiApplication::clipboard()->setText(QStringLiteral("۱۲٬۵۰۰ ریال"), QClipboard::Selection);
    QTest::mouseClick(&edit_, Qt::MiddleButton);
    QCOMPARE(edit_.text(), QStringLiteral("12,500"));
}

QTEST_MAIN(SmartEditPasteTest)
#include "SmartEditPasteTest.moc"
