#include "AccountLine.h"
#include "Balloon.h"
#include "RandomTexts.h"
#include "TestCase.h"

#include <QClipboard>
#include <QMimeData>
#include <QRegularExpression>

namespace {

const QString NoDigits = QStringLiteral(
    "در متن چسبانده‌شده رقمی نیست؛ کد را رونوشت کنید و دوباره بچسبانید.");
const QString Others = QStringLiteral(
    "کد فقط رقم دارد؛ رقم‌ها چسبانده شد و باقی متن کنار گذاشته شد.");
const QString TooLong = QStringLiteral(
    "این کادر تا %1 رقم جا دارد؛ باقی رقم‌ها چسبانده نشد.");

QString DigitsOf(const QString& text)
{
    QString digits;
    for (const QChar character : text) {
        const char16_t unit = character.unicode();
        if (unit >= u'0' && unit <= u'9')
            digits += character;
        else if ((unit >= 0x660 && unit <= 0x669) || (unit >= 0x6F0 && unit <= 0x6F9))
            digits += QChar(u'0' + (unit & 0xF));
    }
    return digits;
}

} // namespace

class SelectAccountCodePasteTest : public TTestCase
{
    Q_OBJECT

    using L = TAccountLine;

    static void Paste(QWidget* box, const QString& text)
    {
        QGuiApplication::clipboard()->setText(text);
        QTest::keySequence(box, QKeySequence::Paste);
    }

protected:
    void Finish() override { Balloon::Hide(); }

private Q_SLOTS:
    void onlyDigitsArePasted_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");
        QTest::newRow("digits") << "12"
                                << "12"
                                << "";
        QTest::newRow("Persian") << QStringLiteral("۱۲") << "12"
                                 << "";
        QTest::newRow("Arabic-Indic") << QStringLiteral("١٢") << "12"
                                      << "";
        QTest::newRow("cell of a sheet") << "\t12\r\n"
                                         << "12"
                                         << "";
        QTest::newRow("letters") << "abc"
                                 << "" << NoDigits;
        QTest::newRow("A") << "A"
                           << "" << NoDigits;
        QTest::newRow("placeholder") << QStringLiteral("کل") << "" << NoDigits;
        QTest::newRow("apostrophe") << "1'2"
                                    << "12" << Others;
        QTest::newRow("grouped") << "1,2"
                                 << "12" << Others;
        QTest::newRow("negative") << "-12"
                                  << "12" << Others;
        QTest::newRow("statement") << "1; DROP TABLE kala"
                                   << "1" << Others;
        QTest::newRow("mixed") << QStringLiteral("کد ۱۲") << "12" << Others;
        QTest::newRow("too long") << "98765432101"
                                  << "cut"
                                  << "cut";
        QTest::newRow("too long and mixed") << "9876x5432101"
                                            << "cut" << Others;
    }
    void onlyDigitsArePasted()
    {
        QFETCH(QString, pasted);
        TAccountLine line;
        for (const TCodeItem level : {L::T, L::A, L::D, L::E}) {
            QFETCH(QString, text);
            QFETCH(QString, message);
            QVERIFY(line.Start(level));
            Balloon::Hide();
            line.Frame->Clear(); // the placeholder stands under the user's caret
            TSmartEdit_TRV* const box = line.Box(level);
            Paste(box, pasted);
            const int length = box->MaxLength();
            if (text == QStringLiteral("cut"))
                text = DigitsOf(pasted).left(length);
            if (message == QStringLiteral("cut"))
                message = TooLong.arg(QChar(0x6F0 + length));
            QCOMPARE(box->Text(), text);
            QCOMPARE(Balloon::ShownText(), message);
            QCOMPARE(box->HasError(), !message.isEmpty());
            QCoreApplication::removePostedEvents(box);
            line.Frame->Clear();
        }
    }

    void pastingReplacesTheSelectionAndKeepsTheRest()
    {
        TAccountLine line;
        QVERIFY(line.Start(L::D));
        line.Box(L::D)->SetText(QStringLiteral("1234"));
        line.Box(L::D)->setSelection(1, 2);
        Paste(line.Box(L::D), QStringLiteral("۷۸۹"));
        QCOMPARE(line.Box(L::D)->Text(), QStringLiteral("17894"));
        line.Box(L::D)->deselect();
        line.Box(L::D)->setCursorPosition(0);
        Paste(line.Box(L::D), QStringLiteral("55"));
        QCOMPARE(line.Box(L::D)->Text(), QStringLiteral("517894"));
        QVERIFY(line.Box(L::D)->HasError());
    }

    void pastingCountsAsTyping()
    {
        TAccountLine line({L::T, L::A, L::D});
        line.Frame->SetTotalCode(7);
        line.Frame->SetAssistantCode(2);
        QVERIFY(line.Start());
        Paste(line.Box(L::T), QStringLiteral("90"));
        QVERIFY(line.Frame->AllowClear());
        line.Leave();
        QCOMPARE(line.Frame->GetTotalCode(), 90);
        QCOMPARE(line.Frame->GetAssistantCode(), 0);
    }

    void aPastedCodeThatFillsItsBoxMovesOn()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        Paste(line.Box(L::T), QStringLiteral("۰۰۷"));
        QTRY_VERIFY(line.Box(L::A)->hasFocus());
        QCOMPARE(line.Name(), QStringLiteral("بانک‌ها"));
    }

    void aDroppedTextIsFilteredToo()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        QMimeData data;
        data.setText(QStringLiteral("کد 7"));
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(line.Box(L::T), &enter);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(line.Box(L::T), &drop);
        QCOMPARE(line.Box(L::T)->Text(), QStringLiteral("7"));
    }

    void theMessageGoesWhenTheUserTypes()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        Paste(line.Box(L::T), QStringLiteral("x"));
        QVERIFY(line.Box(L::T)->HasError());
        Typing::Type(line.Box(L::T), QStringLiteral("7"));
        QVERIFY(!line.Box(L::T)->HasError());
        QCOMPARE(Balloon::ShownText(), QString());
    }

    void tenThousandRandomTextsLeaveDigitsInEveryStatement()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        line.Form->hide(); // balloons and letters of every script would take most of the time
        TRandomTexts texts(7);
        for (int round = 0; round < 10000; ++round) {
            TSmartEdit_TRV* const box = line.Box(static_cast<TCodeItem>(round % 4));
            const QString text = (round % 8 < 4 ? texts.Mixed(8) : texts.Unicode(8)).trimmed();
            box->SetText(QString());
            Typing::Type(box, QStringLiteral("5"));
            QVERIFY(!box->HasError());
            box->selectAll();
            Paste(box, text);
            const QString digits = DigitsOf(text).left(box->MaxLength());
            QVERIFY2(box->Text() == (digits.isEmpty() ? QStringLiteral("5") : digits), qPrintable(text));
            QVERIFY2(box->HasError() == (digits.size() < text.size()), qPrintable(text));
            line.Frame->refresh();
        }
        static const QRegularExpression digitsOnly(QStringLiteral(
            R"(^(SELECT DetailType FROM AccTotals WHERE Code=\d+|SELECT dbo\.GetExpCenterName\(\d+\) AS Title)$)"));
        QVERIFY(line.Tables.Statements.size() > 100);
        for (const QString& statement : std::as_const(line.Tables.Statements))
            QVERIFY2(digitsOnly.match(statement).hasMatch(), qPrintable(statement));
    }
};

QTEST_MAIN(SelectAccountCodePasteTest)
#include "SelectAccountCodePasteTest.moc"
