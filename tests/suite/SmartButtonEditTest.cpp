#include "ActiveWindow.h"
#include "Balloon.h"
#include "Ink.h"
#include "Look.h"
#include "SmartButtonEdit_TRV.h"
#include "TypedKeys.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QMimeData>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QVBoxLayout>

namespace {

struct TForm
{
    QWidget window;
    QVBoxLayout layout{&window};
    std::unique_ptr<TSmartButtonEdit_TRV> edit = std::make_unique<TSmartButtonEdit_TRV>();
    TSmartEdit_TRV other;
    int opened = 0;

    TForm()
    {
        window.setLayoutDirection(Qt::RightToLeft);
        layout.addWidget(edit.get());
        layout.addWidget(&other);
        edit->setFixedSize(70, Look::ControlHeight);
        edit->SetMaxLength(6);
        edit->OnButtonClick = [this](QObject*) { ++opened; };
        window.show();
    }

    bool Ready()
    {
        const bool active = ActiveWindow::Activate(&window);
        edit->setFocus();
        return active && QTest::qWaitFor([this] { return edit->hasFocus(); });
    }

    QAbstractButton* Button() const { return edit->findChild<QAbstractButton*>(); }
};

void Paste(QWidget& edit, const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
}

void Drop(QWidget& edit, const QString& text)
{
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter(edit.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&edit, &enter);
    QDropEvent event(edit.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&edit, &event);
}

void Commit(QWidget& edit, const QString& text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(&edit, &event);
}

int WidthOfDigits(TSmartButtonEdit_TRV& edit)
{
    constexpr int EndOfDots = 11;
    constexpr int Frame = 4;
    const QImage text = edit.grab().toImage().copy(edit.rect().adjusted(EndOfDots, Frame, -Frame, -Frame));
    const QVector<Ink::TRun> runs = Ink::Runs(text, Look::Color(Look::TRole::Base));
    return runs.isEmpty() ? 0 : runs.last().Last - runs.first().First;
}

QString RandomText(QRandomGenerator& random)
{
    static const QString alphabet =
        QStringLiteral("0123456789۰۱۲۳۴۵۶۷۸۹٠١٢٣٤٥٦٧٨٩,.،٬٫+-−()/ \t\nابپaeEx'%\u200C\u200F²½①");
    QString text;
    const int length = random.bounded(1, 14);
    while (text.size() < length) {
        const auto any = static_cast<char32_t>(random.bounded(1, 0x2FFFF));
        if (random.bounded(8) == 0 && !QChar::isSurrogate(any))
            text += QString::fromUcs4(&any, 1);
        else
            text += alphabet.at(random.bounded(static_cast<int>(alphabet.size())));
    }
    return text;
}

} // namespace

class SmartButtonEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }
    void init() { Balloon::Hide(); }

    void aNewEditIsForThePersonsCode()
    {
        const TSmartButtonEdit_TRV edit;
        QCOMPARE(edit.EditType(), TSmartButtonEdit_TRV::betEntity);
        QCOMPARE(edit.EntityType(), TEntityType::etPersonals);
        QVERIFY(edit.ShowButton());
        QCOMPARE(edit.SelectParams(), QString());
        QCOMPARE(edit.Text(), QString());
    }

    void formsSetItsPropertiesByName()
    {
        TSmartButtonEdit_TRV edit;
        QVERIFY(edit.setProperty("EditType", QStringLiteral("betString")));
        QVERIFY(edit.setProperty("EntityType", 12));
        QVERIFY(edit.setProperty("ShowButton", false));
        QVERIFY(edit.setProperty("SelectParams", QStringLiteral("active=1")));
        QCOMPARE(edit.EditType(), TSmartButtonEdit_TRV::betString);
        QCOMPARE(edit.EntityType(), TEntityType::etExpenseLevel4);
        QVERIFY(!edit.ShowButton());
        QCOMPARE(edit.SelectParams(), QStringLiteral("active=1"));
    }

    void aClickOnTheButtonOpensOnceAndPutsTheFocusInTheEdit()
    {
        TForm form;
        QVERIFY(form.Ready());
        form.other.setFocus();
        QTest::mouseClick(form.Button(), Qt::LeftButton);
        QCOMPARE(form.opened, 1);
        QVERIFY(form.edit->hasFocus());
        QTest::mouseClick(form.Button(), Qt::LeftButton);
        QCOMPARE(form.opened, 2);
        QVERIFY(form.edit->hasFocus());
        QTest::mouseClick(form.Button(), Qt::RightButton);
        QCOMPARE(form.opened, 2);
    }

    void tabDoesNotStopAtTheButton()
    {
        TForm form;
        QVERIFY(form.Ready());
        QTest::keyClick(form.edit.get(), Qt::Key_Tab);
        QVERIFY(form.other.hasFocus());
    }

    void keysThatOpenTheList_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("held");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("opens");
        const auto row = [](const char* name, int key, Qt::KeyboardModifiers held, const QString& text,
                            bool opens) { QTest::newRow(name) << key << held << text << opens; };
        const QString plus = QStringLiteral("+");
        row("+ of the keypad", Qt::Key_Plus, Qt::KeypadModifier, plus, true);
        row("+ of the main row", Qt::Key_Plus, Qt::ShiftModifier, plus, true);
        row("F4", Qt::Key_F4, Qt::NoModifier, {}, true);
        row("Alt and Down", Qt::Key_Down, Qt::AltModifier, {}, true);
        row("Down", Qt::Key_Down, Qt::NoModifier, {}, false);
        row("Ctrl and +", Qt::Key_Plus, Qt::ControlModifier, {}, false);
        row("Alt and F4", Qt::Key_F4, Qt::AltModifier, {}, false);
        row("Shift and F4", Qt::Key_F4, Qt::ShiftModifier, {}, false);
        row("Enter", Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), false);
        row("a digit", Qt::Key_5, Qt::NoModifier, QStringLiteral("5"), false);
    }

    void keysThatOpenTheList()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, held);
        QFETCH(QString, text);
        TForm form;
        QVERIFY(form.Ready());
        form.edit->SetText(QStringLiteral("12"));
        TypedKeys::Stroke(form.edit.get(), key, held, text);
        QFETCH(bool, opens);
        QCOMPARE(form.opened, opens ? 1 : 0);
        QVERIFY(form.edit->hasFocus());
        QCOMPARE(form.edit->Text(), key == Qt::Key_5 ? QStringLiteral("125") : QStringLiteral("12"));
    }

    void aKeyThatIsHeldOpensOnce()
    {
        TForm form;
        QVERIFY(form.Ready());
        for (const bool repeats : {false, true, true}) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Plus, Qt::KeypadModifier, QStringLiteral("+"), repeats);
            QApplication::sendEvent(form.edit.get(), &press);
        }
        QCOMPARE(form.opened, 1);
        QCOMPARE(form.edit->Text(), QString());
    }

    void keyHandlersComeFirstAndMaySwallowTheKey()
    {
        TForm form;
        QVERIFY(form.Ready());
        quint16 seen = 0;
        form.edit->OnKeyDown = [&seen](QObject*, quint16& key, Qt::KeyboardModifiers) {
            seen = key;
            key = 0;
        };
        TypedKeys::Stroke(form.edit.get(), Qt::Key_Plus, Qt::KeypadModifier, QStringLiteral("+"));
        QCOMPARE(seen, quint16(VirtualKey::Add));
        QCOMPARE(form.opened, 0);
    }

    void nothingOpensWhereNothingMayBePicked_data()
    {
        QTest::addColumn<QString>("state");
        for (const char* state : {"read-only", "disabled", "without button"})
            QTest::newRow(state) << QString::fromLatin1(state);
    }

    void nothingOpensWhereNothingMayBePicked()
    {
        QFETCH(QString, state);
        TForm form;
        QVERIFY(form.Ready());
        form.edit->setReadOnly(state == u"read-only");
        form.edit->SetEnabled(state != u"disabled");
        form.edit->SetShowButton(state != u"without button");
        QCOMPARE(form.Button()->isVisible(), state != u"without button");
        QTest::mouseClick(form.edit.get(), Qt::LeftButton, Qt::NoModifier, QPoint(6, 14));
        if (form.Button()->isVisible())
            QTest::mouseClick(form.Button(), Qt::LeftButton);
        TypedKeys::Stroke(form.edit.get(), Qt::Key_Plus, Qt::KeypadModifier, QStringLiteral("+"));
        TypedKeys::Stroke(form.edit.get(), Qt::Key_F4);
        QCOMPARE(form.opened, 0);
        QCOMPARE(form.edit->Text(), QString());
    }

    void theHandlerMayDestroyTheEdit_data()
    {
        QTest::addColumn<bool>("byMouse");
        QTest::newRow("mouse") << true;
        QTest::newRow("key") << false;
    }

    void theHandlerMayDestroyTheEdit()
    {
        QFETCH(bool, byMouse);
        TForm form;
        QVERIFY(form.Ready());
        form.edit->OnButtonClick = [&form](QObject*) { form.edit.reset(); };
        if (byMouse)
            QTest::mouseClick(form.Button(), Qt::LeftButton);
        else
            QTest::keyClick(form.edit.get(), Qt::Key_F4);
        QVERIFY(!form.edit);
    }

    void theButtonStandsWhereTheLineEnds()
    {
        TForm form;
        QVERIFY(form.Ready());
        QVERIFY(form.Button()->geometry().right() < form.edit->width() / 2);
        form.window.setLayoutDirection(Qt::LeftToRight);
        QVERIFY(form.Button()->geometry().left() > form.edit->width() / 2);
        QVERIFY(!form.Button()->accessibleName().isEmpty());
    }

    void sixWideDigitsFitBesideTheButton()
    {
        TForm form;
        QFont font;
        font.setPixelSize(15);
        font.setBold(true);
        form.edit->setFont(font);
        QVERIFY(form.Ready());
        form.other.setFocus();
        form.edit->SetText(QStringLiteral("888888"));
        const int narrow = WidthOfDigits(*form.edit);
        form.edit->setFixedWidth(200);
        QVERIFY(narrow > 40);
        QCOMPARE(narrow, WidthOfDigits(*form.edit));
    }

    void onlyDigitsAreTyped()
    {
        TForm form;
        QVERIFY(form.Ready());
        TypedKeys::Text(form.edit.get(), QStringLiteral("a0 -۱.ب٢,x"));
        QCOMPARE(form.edit->Text(), QStringLiteral("012"));
        TypedKeys::Stroke(form.edit.get(), Qt::Key_A, Qt::AltModifier, QStringLiteral("a"));
        TypedKeys::Stroke(form.edit.get(), Qt::Key_A, Qt::MetaModifier, QStringLiteral("a"));
        QCOMPARE(form.edit->Text(), QStringLiteral("012"));
    }

    void zerosInFrontStay()
    {
        TForm form;
        QVERIFY(form.Ready());
        TypedKeys::Text(form.edit.get(), QStringLiteral("007"));
        form.other.setFocus();
        QCOMPARE(form.edit->Text(), QStringLiteral("007"));
        QVERIFY(form.edit->GetValue() == 7.0L);
    }

    void theSeventhDigitIsRefused()
    {
        TForm form;
        QVERIFY(form.Ready());
        TypedKeys::Text(form.edit.get(), QStringLiteral("۱۲۳۴۵۶۷"));
        QCOMPARE(form.edit->Text(), QStringLiteral("123456"));
        form.edit->Clear();
        Commit(*form.edit, QStringLiteral("۱۲۳۴۵۶۷"));
        QCOMPARE(form.edit->Text(), QStringLiteral("123456"));
    }

    void aPastedCodeIsTakenWholeOrNotAtAll_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const QString& pasted, const QString& text) {
            QTest::newRow(name) << pasted << text;
        };
        row("plain", QStringLiteral("123456"), QStringLiteral("123456"));
        row("Persian", QStringLiteral("۰۰۱۲"), QStringLiteral("0012"));
        row("Arabic-Indic", QStringLiteral("٠٧"), QStringLiteral("07"));
        row("with words and a line break", QStringLiteral("کد: ۱۲۳\r\n"), QStringLiteral("123"));
        row("grouped", QStringLiteral("12,345"), QStringLiteral("12345"));
        row("with direction marks", QStringLiteral("\u200F\u206812\u2069"), QStringLiteral("12"));
        row("too long", QStringLiteral("1234567"), {});
        row("words", QStringLiteral("الف"), {});
        row("negative", QStringLiteral("-12"), {});
        row("with decimals", QStringLiteral("1.5"), {});
        row("two codes", QStringLiteral("12 و 13"), {});
        row("a date", QStringLiteral("1403/05/06"), {});
        row("a statement", QStringLiteral("1; drop table kala; --2"), {});
    }

    void aPastedCodeIsTakenWholeOrNotAtAll()
    {
        QFETCH(QString, pasted);
        QFETCH(QString, text);
        TForm form;
        QVERIFY(form.Ready());
        Paste(*form.edit, pasted);
        QCOMPARE(form.edit->Text(), text);
        QCOMPARE(Balloon::ShownText().isEmpty(), !text.isEmpty());
        form.edit->SetText(QString());
        Drop(*form.edit, pasted);
        QCOMPARE(form.edit->Text(), text);
    }

    void aPasteReplacesTheSelectionAndCountsWhatStays()
    {
        TForm form;
        QVERIFY(form.Ready());
        form.edit->SetText(QStringLiteral("123456"));
        form.edit->setSelection(1, 2);
        Paste(*form.edit, QStringLiteral("99"));
        QCOMPARE(form.edit->Text(), QStringLiteral("199456"));
        Paste(*form.edit, QStringLiteral("7"));
        QCOMPARE(form.edit->Text(), QStringLiteral("199456"));
        QVERIFY(Balloon::ShownText().contains(QStringLiteral("۶ رقم")));
    }

    void nothingButDigitsGetsInWhateverTheUserDoes()
    {
        TForm form;
        QVERIFY(form.Ready());
        static const QRegularExpression digits(QStringLiteral("^[0-9]{0,6}$"));
        QRandomGenerator random(20240320);
        int kept = 0;
        for (int round = 0; round < 10000; ++round) {
            const QString text = RandomText(random);
            switch (random.bounded(10)) {
            case 0:
                Paste(*form.edit, text);
                break;
            case 1:
                Drop(*form.edit, text);
                break;
            case 2:
            case 3:
                Commit(*form.edit, text);
                break;
            default:
                TypedKeys::Text(form.edit.get(), text);
            }
            const QString now = form.edit->Text();
            QVERIFY2(digits.match(now).hasMatch(), qPrintable(text));
            kept += now.isEmpty() ? 0 : 1;
            if (random.bounded(3) == 0)
                form.edit->SetText(QString());
        }
        QVERIFY(kept > 1000);
    }

    void theProgramMayShowAnyText()
    {
        TForm form;
        form.edit->SetText(QStringLiteral(" 0 "));
        QCOMPARE(form.edit->Text(), QStringLiteral(" 0 "));
        form.edit->SetValue(12345678);
        QCOMPARE(form.edit->Text(), QStringLiteral("12345678"));
        form.edit->SetValue(100000);
        QCOMPARE(form.edit->Text(), QStringLiteral("100000"));
        TSmartEdit_TRV& asEdit = *form.edit;
        asEdit.Clear();
        QCOMPARE(form.edit->Text(), QString());
        QVERIFY(form.edit->GetValue() == 0.0L);
    }

    void aTextEditWithButtonTakesAnyText()
    {
        TForm form;
        form.edit->SetEditType(TSmartButtonEdit_TRV::betString);
        QVERIFY(form.Ready());
        TypedKeys::Text(form.edit.get(), QStringLiteral("ab+۱"));
        QCOMPARE(form.edit->Text(), QStringLiteral("ab+1"));
        QCOMPARE(form.opened, 0);
        TypedKeys::Stroke(form.edit.get(), Qt::Key_F4);
        QCOMPARE(form.opened, 1);
    }
};

QTEST_MAIN(SmartButtonEditTest)
#include "SmartButtonEditTest.moc"
