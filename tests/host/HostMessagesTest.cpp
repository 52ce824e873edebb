#include "HostMessageBoxes.h"

#include "Balloon.h"
#include "HostTestMain.h"
#include "ModalBox.h"
#include "PersianText.h"

#include <array>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

struct TForm
{
    QWidget Window;
    QLineEdit First{&Window};
    QLineEdit Second{&Window};

    TForm()
    {
        auto* column = new QVBoxLayout(&Window);
        column->addWidget(&First);
        column->addWidget(&Second);
        Window.show();
        Activate();
        Second.setFocus();
    }
    void Activate()
    {
        QVERIFY(QTest::qWaitForWindowExposed(&Window));
        Window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&Window));
    }
};

using TSubjectMessage = void (THostMessages::*)(const QString&, QWidget*, QWidget*);

} // namespace

class HostMessagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBoxNamesItsSubjectAndGivesTheFocusBack_data()
    {
        QTest::addColumn<int>("message");
        QTest::newRow("code not available") << 0;
        QTest::newRow("not selected") << 1;
        QTest::newRow("repeated code") << 2;
        QTest::newRow("required field") << 3;
    }

    void aBoxNamesItsSubjectAndGivesTheFocusBack()
    {
        static constexpr std::array<TSubjectMessage, 4> operations{
            &THostMessages::MsgCodeNotAvailable, &THostMessages::MsgNotSelected,
            &THostMessages::MsgRepeatedCode, &THostMessages::MsgRequiredField};
        QFETCH(int, message);
        TForm form;
        ModalBox::TAnswer answer(ModalBox::Key(Qt::Key_Return));
        (messages_.*operations.at(static_cast<std::size_t>(message)))(QStringLiteral("نرخ ارز"), &form.First,
                                                                      nullptr);
        QCOMPARE(answer.Boxes(), 1);
        QVERIFY(answer.Texts.constFirst().contains(PersianText::Isolated(QStringLiteral("نرخ ارز"))));
        form.Activate();
        QCOMPARE(QApplication::focusWidget(), &form.First);
    }

    void escapeClosesABoxToo()
    {
        TForm form;
        ModalBox::TAnswer answer(ModalBox::Key(Qt::Key_Escape));
        messages_.MSGInUse(QStringLiteral("کد تفصیلی یکتا"));
        messages_.MsgHasSubRecords(QStringLiteral("کد تفصيلي يکتا"));
        messages_.ShowMessage(QStringLiteral("\"ExpenseCenter_TRV.dll\" DLL File not found / not loaded"));
        QCOMPARE(answer.Boxes(), 3);
        QCOMPARE(answer.Texts.constLast(),
                 QStringLiteral("\"ExpenseCenter_TRV.dll\" DLL File not found / not loaded"));
        form.Activate();
        QCOMPARE(QApplication::focusWidget(), &form.Second);
    }

    void aControlThatWasDestroyedMeanwhileIsLeftAlone()
    {
        TForm form;
        auto* third = new QLineEdit(&form.Window);
        third->show();
        ModalBox::TAnswer answer([third](TMessageDialog& box) {
            delete third;
            QTest::keyClick(&box, Qt::Key_Return);
        });
        messages_.MsgNotSelected(QStringLiteral("کد"), third, nullptr);
        QCOMPARE(answer.Boxes(), 1);
    }

    void aConfirmationAnswersTheButtonThatWasPressed_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("defaultButton");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("result");
        const auto row = [](const char* name, TMessageButtons buttons, int button, Qt::Key key,
                            TMessageResult result) {
            QTest::newRow(name) << static_cast<int>(buttons) << button << static_cast<int>(key)
                                << static_cast<int>(result);
        };
        row("Enter is the default, yes", TMessageButtons::mbYesNo, 0, Qt::Key_Return, TMessageResult::mrYes);
        row("Enter is the default, no", TMessageButtons::mbYesNo, 1, Qt::Key_Return, TMessageResult::mrNo);
        row("Escape is no", TMessageButtons::mbYesNo, 0, Qt::Key_Escape, TMessageResult::mrNo);
        row("Escape is cancel", TMessageButtons::mbYesNoCancel, 0, Qt::Key_Escape, TMessageResult::mrCancel);
        row("keypad Enter", TMessageButtons::mbOkCancel, 0, Qt::Key_Enter, TMessageResult::mrOk);
        row("Space", TMessageButtons::mbYesNo, 0, Qt::Key_Space, TMessageResult::mrYes);
    }

    void aConfirmationAnswersTheButtonThatWasPressed()
    {
        QFETCH(int, buttons);
        QFETCH(int, defaultButton);
        QFETCH(int, key);
        QFETCH(int, result);
        TForm form;
        ModalBox::TAnswer answer(ModalBox::Key(static_cast<Qt::Key>(key)));
        const TMessageResult given = messages_.ShowSmartMessage(
            TConfirmationMessage::cmCreateTag, static_cast<TMessageButtons>(buttons), defaultButton);
        QCOMPARE(static_cast<int>(given), result);
        form.Activate();
        QCOMPARE(QApplication::focusWidget(), &form.Second);
    }

    void theFirstButtonStandsAtTheRight()
    {
        TForm form;
        int yes = 0;
        int no = 0;
        ModalBox::TAnswer answer([&](TMessageDialog& box) {
            for (const auto* button : box.findChildren<QPushButton*>()) {
                if (button->text() == TMessageDialog::YesButton().Caption)
                    yes = button->x();
                else if (button->text() == TMessageDialog::NoButton().Caption)
                    no = button->x();
            }
            box.reject();
        });
        messages_.ShowSmartMessage(TConfirmationMessage::cmCreateTag, TMessageButtons::mbYesNo, 0);
        QVERIFY2(yes > no && no > 0, qPrintable(QStringLiteral("%1 %2").arg(yes).arg(no)));
    }

    void aNotificationFillsItsPlaceholders()
    {
        TForm form;
        ModalBox::TAnswer answer(ModalBox::Key(Qt::Key_Return));
        messages_.ShowSmartMessage(TNotificationMessage::nmLimitReached,
                                   {QStringLiteral("محدودیت در تعداد تگ ها")}, &form.First, &form.Window);
        QCOMPARE(answer.Boxes(), 1);
        QVERIFY(answer.Texts.constFirst().contains(QStringLiteral("محدودیت در تعداد تگ ها")));
        QVERIFY(!answer.Texts.constFirst().contains(u'%'));
        form.Activate();
        QCOMPARE(QApplication::focusWidget(), &form.First);
    }

    void aNumberWithoutATextIsToldAndAnswersNo_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("result");
        const auto row = [](const char* name, TMessageButtons buttons, TMessageResult result) {
            QTest::newRow(name) << static_cast<int>(buttons) << static_cast<int>(result);
        };
        row("yes and no", TMessageButtons::mbYesNo, TMessageResult::mrNo);
        row("with cancel", TMessageButtons::mbYesNoCancel, TMessageResult::mrCancel);
        row("OK and cancel", TMessageButtons::mbOkCancel, TMessageResult::mrCancel);
    }

    void aNumberWithoutATextIsToldAndAnswersNo()
    {
        QFETCH(int, buttons);
        QFETCH(int, result);
        TForm form;
        ModalBox::TAnswer answer(ModalBox::Key(Qt::Key_Return));
        const TMessageResult given = messages_.ShowSmartMessage(static_cast<TConfirmationMessage>(999),
                                                                static_cast<TMessageButtons>(buttons), 0);
        QCOMPARE(static_cast<int>(given), result);
        messages_.ShowSmartMessage(static_cast<TNotificationMessage>(998), {}, &form.First, nullptr);
        QCOMPARE(answer.Boxes(), 2);
        QVERIFY(answer.Texts.constFirst().contains(QStringLiteral("999")));
        QVERIFY(answer.Texts.constLast().contains(QStringLiteral("998")));
        form.Activate();
        QCOMPARE(QApplication::focusWidget(), &form.First);
    }

    void anApplicationAddsItsOwnNumbers()
    {
        TForm form;
        ModalBox::TAnswer answer(ModalBox::Key(Qt::Key_Return));
        messages_.Numbered().Set(30001, {QStringLiteral("سال %2 بسته شود؟"),
                                         TMessageDialog::TKind::Question,
                                         {{QStringLiteral("ببند"), static_cast<int>(TMessageResult::mrYes)},
                                          TMessageDialog::NoButton()}});
        const TMessageResult given =
            messages_.ShowSmartMessage(static_cast<TConfirmationMessage>(30001), TMessageButtons::mbOk, 1);
        QCOMPARE(given, TMessageResult::mrNo);
        TMessageArguments arguments;
        arguments.at(1) = QStringLiteral("1404");
        messages_.ShowSmartMessage(static_cast<TNotificationMessage>(30001), arguments, nullptr,
                                   &form.Window);
        QCOMPARE(answer.Texts.constLast(),
                 QStringLiteral("سال %1 بسته شود؟").arg(PersianText::Isolated(QStringLiteral("1404"))));
    }

    void placeholdersAreFilledOnceAndUpToTheEleventh()
    {
        TMessageArguments arguments;
        arguments.at(0) = QStringLiteral("%2");
        arguments.at(9) = QStringLiteral("ده");
        arguments.at(10) = QStringLiteral("یازده");
        const QString filled = TNumberedMessages::Filled(QStringLiteral("%1 %10 %11 %2 %0 ۵%"), arguments);
        QCOMPARE(filled, PersianText::Isolated(QStringLiteral("%2")) + u' ' +
                             PersianText::Isolated(QStringLiteral("ده")) + u' ' +
                             PersianText::Isolated(QStringLiteral("یازده")) + QStringLiteral("  %0 ۵%"));
    }

    void theQuestionAboutATagAndTheLimitHaveTheirTexts()
    {
        const TNumberedMessages numbered;
        QVERIFY(numbered.Has(20150));
        QVERIFY(numbered.Has(10026));
        QVERIFY(numbered.Find(20150).Text.contains(QStringLiteral("برچسب")));
        QCOMPARE(numbered.Find(20150).Kind, TMessageDialog::TKind::Question);
    }

    void aPathInAMessageKeepsItsOrder()
    {
        const QString text = QStringLiteral("پروندهٔ «/srv/سال ۱۴۰۵/a b.db» پیدا نشد.");
        const TMessageDialog box(TMessageDialog::TKind::Error, text, {TMessageDialog::OkButton()}, nullptr);
        QCOMPARE(box.Text(), text);
        bool isolated = false;
        for (const QLabel* label : box.findChildren<QLabel*>())
            isolated |= label->text().contains(QStringLiteral("«\u2068/srv/سال ۱۴۰۵/a b.db\u2069»"));
        QVERIFY(isolated);
    }

    void aTooltipIsABalloonThatLeavesTheFocusAlone()
    {
        TForm form;
        IMessages::TTooltip tooltip;
        tooltip.Title = QStringLiteral("اعتبارسنجي");
        tooltip.Text = QStringLiteral("کد صفر قابل انتخاب نمي باشد");
        messages_.ShowTooltipMessage(tooltip);
        QCOMPARE(Balloon::ShownText(), QString());
        tooltip.Control = &form.First;
        messages_.ShowTooltipMessage(tooltip);
        QVERIFY(Balloon::ShownText().contains(tooltip.Text));
        QCOMPARE(QApplication::focusWidget(), &form.Second);
        Balloon::Hide();
    }

private:
    THostMessages messages_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<HostMessagesTest>(argc, argv);
}
#include "HostMessagesTest.moc"
