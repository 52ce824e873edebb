#include "ActiveWindow.h"
#include "SmartEdit_TRV.h"

#include <QClipboard>
#include <QMenu>
#include <QTest>

class SmartEditValuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesSurviveTheirText_data();
    void valuesSurviveTheirText();
    void textOfTheProgramBecomesANumber_data();
    void textOfTheProgramBecomesANumber();
    void clearEmptiesTextsAndZeroesNumbers();
    void theCaretIsSetAndRead();
    void theHintOfAMultiCurrencyEditTellsRateAndTitle();
    void theContextMenuIsPersianAndWorks();
    void copyingANumberLeavesItsGroupingBehind();
    void propertiesAreReadBackAsTheyWereSet();
};

void SmartEditValuesTest::valuesSurviveTheirText_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("precision");
    QTest::addColumn<QString>("display");
    const auto row = [](const QString& value, int precision, const QString& display) {
        QTest::addRow("%s to %d", qPrintable(value), precision) << value << precision << display;
    };
    row(QStringLiteral("0"), 0, QStringLiteral("0"));
    row(QStringLiteral("0.1"), 9, QStringLiteral("0.1"));
    row(QStringLiteral("0.3"), 18, QStringLiteral("0.3"));
    row(QStringLiteral("42500.123456789"), 9, QStringLiteral("42,500.123456789"));
    row(QStringLiteral("922337203685477.5807"), 4, QStringLiteral("922,337,203,685,477.5807"));
    row(QStringLiteral("-1234567890123456789"), 0, QStringLiteral("-1,234,567,890,123,456,789"));
    row(QStringLiteral("2.345"), 2, QStringLiteral("2.35"));
    row(QStringLiteral("-0.004"), 2, QStringLiteral("0"));
    row(QStringLiteral("1e15"), 0, QStringLiteral("1,000,000,000,000,000"));
    row(QStringLiteral("1.50"), 2, QStringLiteral("1.5"));
}

void SmartEditValuesTest::valuesSurviveTheirText()
{
    QFETCH(QString, value);
    QFETCH(int, precision);
    TSmartEdit_TRV edit;
    edit.SetEditType(TSmartEdit_TRV::etCurrency);
    edit.SetPrecision(precision);
    const long double number = std::strtold(qPrintable(value), nullptr);
    edit.SetValue(number);
    QTEST(edit.text(), "display");
    if (precision >= 4 || value.endsWith(u'9'))
        QCOMPARE(edit.GetValue(), number);
    edit.SetText(edit.Text());
    QTEST(edit.text(), "display");
    // The same number as a double, which is how most of them come.
    if (value.size() < 16) {
        edit.SetValue(0);
        edit.SetValue(value.toDouble());
        QTEST(edit.text(), "display");
    }
}

void SmartEditValuesTest::textOfTheProgramBecomesANumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");
    QTest::newRow("trailing zeros") << QStringLiteral("42500.0000") << QStringLiteral("42500");
    QTest::newRow("leading zeros") << QStringLiteral("00012") << QStringLiteral("12");
    QTest::newRow("exponent") << QStringLiteral("1e+15") << QStringLiteral("1000000000000000");
    QTest::newRow("Persian") << QStringLiteral("۱٬۲۳۴٫۵") << QStringLiteral("1234.5");
    QTest::newRow("too many decimals") << QStringLiteral("0.126") << QStringLiteral("0.13");
    QTest::newRow("all nines") << QStringLiteral("-99.999") << QStringLiteral("-100");
    QTest::newRow("empty") << QString() << QStringLiteral("0");
    QTest::newRow("no number") << QStringLiteral("مرکزهزينه") << QStringLiteral("0");
    QTest::newRow("infinity") << QStringLiteral("inf") << QStringLiteral("0");
}

void SmartEditValuesTest::textOfTheProgramBecomesANumber()
{
    QFETCH(QString, text);
    TSmartEdit_TRV edit;
    edit.SetEditType(TSmartEdit_TRV::etCurrency);
    edit.SetPrecision(2);
    edit.SetText(QStringLiteral("7"));
    edit.SetText(text);
    QTEST(edit.Text(), "result");
}

void SmartEditValuesTest::clearEmptiesTextsAndZeroesNumbers()
{
    TSmartEdit_TRV edit;
    QCOMPARE(edit.EditType(), TSmartEdit_TRV::etString);
    edit.SetText(QStringLiteral("12a"));
    QCOMPARE(edit.GetValue(), 0.0L);
    edit.SetText(QStringLiteral("007"));
    QCOMPARE(edit.GetValue(), 7.0L);
    edit.Clear();
    QCOMPARE(edit.Text(), QString());
    QCOMPARE(edit.GetValue(), 0.0L);
    edit.SetEditType(TSmartEdit_TRV::etNumeric);
    QCOMPARE(edit.Text(), QStringLiteral("0"));
    edit.SetValue(8);
    edit.Clear();
    QCOMPARE(edit.Text(), QStringLiteral("0"));
}

void SmartEditValuesTest::theCaretIsSetAndRead()
{
    TSmartEdit_TRV edit;
    edit.SetText(QStringLiteral("abcd"));
    edit.SetCaretPos(2);
    QCOMPARE(edit.CaretPos(), 2);
    edit.SetCaretPos(99);
    QCOMPARE(edit.CaretPos(), 4);
    edit.SetCaretPos(-1);
    QCOMPARE(edit.CaretPos(), 0);
}

void SmartEditValuesTest::theHintOfAMultiCurrencyEditTellsRateAndTitle()
{
    TSmartEdit_TRV edit;
    edit.SetEditType(TSmartEdit_TRV::etCurrency);
    edit.SetCurrencyRate(42500.5L);
    edit.SetCurrencyTypeTitle(QStringLiteral("دلار-آمریکا"));
    QCOMPARE(edit.toolTip(), QString());
    edit.SetMultiCurrency(true);
    QVERIFY(edit.toolTip().contains(QStringLiteral("دلار-آمریکا")));
    QVERIFY(edit.toolTip().contains(QStringLiteral("42,500.5")));
    edit.SetCurrencyRate(43000);
    QVERIFY(edit.toolTip().contains(QStringLiteral("43,000")));
}

void SmartEditValuesTest::theContextMenuIsPersianAndWorks()
{
    TSmartEdit_TRV edit;
    edit.show();
    QVERIFY(ActiveWindow::Activate(&edit));
    edit.SetEditType(TSmartEdit_TRV::etCurrency);
    edit.SetText(QStringLiteral("1234"));
    edit.selectAll();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), edit.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&edit, &event);
    auto* menu = edit.findChild<QMenu*>();
    QVERIFY(menu && menu->isVisible());
    QCOMPARE(menu->layoutDirection(), Qt::RightToLeft);
    QAction* cut = nullptr;
    for (QAction* action : menu->actions()) {
        if (action->text() == QStringLiteral("&بریدن"))
            cut = action;
    }
    QVERIFY(cut && cut->isEnabled());
    cut->trigger();
    menu->close();
    QCOMPARE(edit.Text(), QStringLiteral("0"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("1234"));
}

void SmartEditValuesTest::copyingANumberLeavesItsGroupingBehind()
{
    TSmartEdit_TRV edit;
    edit.SetEditType(TSmartEdit_TRV::etCurrency);
    edit.SetText(QStringLiteral("1234567"));
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("1234567"));
    QCOMPARE(edit.text(), QStringLiteral("1,234,567"));
}

void SmartEditValuesTest::propertiesAreReadBackAsTheyWereSet()
{
    TSmartEdit_TRV edit;
    for (const auto& [name, value] : std::initializer_list<std::pair<const char*, QVariant>>{
             {"EditType", QVariant::fromValue(TSmartEdit_TRV::etCurrency)},
             {"ValueType", QVariant::fromValue(TSmartEdit_TRV::vtInt)},
             {"MaxLength", 15},
             {"DelayTimeCount", 250},
             {"Precision", 4},
             {"Calculator", true},
             {"MultiCurrency", true},
             {"ReverseCurrency", true},
             {"MinValue", -5.5},
             {"MaxValue", 1e9},
             {"CanTakeFocus", false}}) {
        QVERIFY2(edit.property(name) != value, name);
        QVERIFY2(edit.setProperty(name, value), name);
        QCOMPARE(edit.property(name), value);
    }
    edit.SetEnabled(false);
    QVERIFY(!edit.isEnabled());
}

QTEST_MAIN(SmartEditValuesTest)
#include "SmartEditValuesTest.moc"
