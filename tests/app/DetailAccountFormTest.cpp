#include "FormFixture.h"

#include "Balloon.h"
#include "CodeLocks.h"
#include "DetailAccountCard.h"
#include "DetailAccountForm.h"
#include "DetailUniqueCode_UNT.h"
#include "General_Search_UNT.h"
#include "ListForm.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartDBGrid_TRV.h"
#include "SmartEdit_TRV.h"
#include "TarvaSearchManager.h"

class DetailAccountFormTest : public TFormTest
{
    Q_OBJECT

private Q_SLOTS:
    void theListHoldsTheAccountsOfTheChosenKind()
    {
        QCOMPARE(form_->Kind(), 1);
        QTRY_COMPARE(form_->List().DataSet().RecordCount(), CountOf(1));
        form_->ChooseKind(4);
        QVERIFY(form_->List().DataSet().WaitForFirstPage());
        QTRY_COMPARE(form_->List().DataSet().RecordCount(), CountOf(4));
        QCOMPARE(form_->KindBox().Count(), 8);
    }

    void theListIsSearchedWithinTheKind()
    {
        form_->ChooseKind(4);
        QVERIFY(form_->List().DataSet().WaitForFirstPage());
        form_->List().FocusSearchEdit();
        shop_->Type(QStringLiteral("ملزومات ادا"));
        QTRY_VERIFY(form_->List().SearchFrame().Filter_is_done());
        form_->List().SearchFrame().Refrenc_SearchManager->Flush();
        QVERIFY(form_->List().DataSet().WaitForFirstPage());
        QTRY_COMPARE(form_->List().DataSet().RecordCount(), 1);
        form_->ChooseKind(1);
        QVERIFY(form_->List().DataSet().WaitForFirstPage());
        QTRY_COMPARE(form_->List().DataSet().RecordCount(), 0);
        shop_->Press(Qt::Key_Escape);
        form_->List().SearchFrame().Refrenc_SearchManager->Flush();
        QVERIFY(form_->List().DataSet().WaitForFirstPage());
        QTRY_COMPARE(form_->List().DataSet().RecordCount(), CountOf(1));
    }

    void anAccountIsCreatedByKeysWithItsUniqueCode()
    {
        form_->ChooseKind(7);
        const int code =
            shop_->Text(QStringLiteral("SELECT MAX(Code) + 1 FROM dbo.AccDetails WHERE [Type] = 7")).toInt();
        TDetailAccountCard* card = NewCard();
        QVERIFY(card->Name().hasFocus());
        QCOMPARE(card->Code().Text(), QString::number(code));
        const QString number = card->UniqueCode().UniqueCode_EDT->Text();
        QCOMPARE(number.size(), 8);
        QCOMPARE(HeldNumbers(), QStringLiteral("1"));
        Type(card, QStringLiteral("تنخواه کارگاه"));
        for (int i = 0; i < 4; ++i)
            Press(card, Qt::Key_Return);
        QTRY_VERIFY(form_->Card() == nullptr);
        QCOMPARE(Field(7, code, QStringLiteral("Name")), QStringLiteral("تنخواه کارگاه"));
        QCOMPARE(Field(7, code, QStringLiteral("UniqueCode")).toInt(), number.toInt());
        QCOMPARE(Field(7, code, QStringLiteral("Active")), QStringLiteral("1"));
        QCOMPARE(HeldNumbers(), QStringLiteral("0"));
        QTRY_COMPARE(form_->List().DataSet().RecordCount(), CountOf(7));
    }

    void anAccountIsChanged()
    {
        form_->ChooseKind(4);
        QVERIFY(form_->List().DataSet().WaitForFirstPage());
        form_->List().DataSet().First();
        form_->OpenAccount();
        TDetailAccountCard* card = WaitForCard();
        const int code = card->Code().Text().toInt();
        QVERIFY(!card->Code().isEnabled());
        QVERIFY(!card->KindBox().isEnabled());
        card->Name().setFocus();
        card->Name().selectAll();
        Type(card, QStringLiteral("حقوق ماهانه"));
        card->Active().SetChecked(false);
        Press(card, Qt::Key_F2);
        QTRY_VERIFY(form_->Card() == nullptr);
        QCOMPARE(Field(4, code, QStringLiteral("Name")), QStringLiteral("حقوق ماهانه"));
        QCOMPARE(Field(4, code, QStringLiteral("Active")), QStringLiteral("0"));
    }

    void aUsedUniqueCodeCannotBeChanged()
    {
        const QString used = shop_->Text(QStringLiteral(
            "SELECT MIN(Tafzili) FROM dbo.Sanad_Detail WHERE Kol IN (SELECT Code FROM dbo.AccTotals WHERE "
            "DetailType = 10) AND Tafzili > 0"));
        if (used.toInt() == 0)
            shop_->Connection.Execute(
                QStringLiteral("INSERT INTO dbo.Deduction (Title, Kol, Moin, Tafzili) VALUES "
                               "(N'وام', 108, 2, (SELECT UniqueCode FROM dbo.AccDetails WHERE "
                               "[Type] = 1 AND Code = 5))"));
        const QString owner = shop_->Text(
            used.toInt() == 0
                ? QStringLiteral("SELECT 5 AS Code")
                : QStringLiteral("SELECT Code FROM dbo.AccDetails WHERE [Type] = 1 AND UniqueCode = %1")
                      .arg(used));
        TDetailAccountCard card(shop_->Host, *TDetailAccountStore(shop_->Connection).Find(1, owner.toInt()),
                                form_);
        QVERIFY(!card.UniqueCode().UniqueCode_EDT->isEnabled());
    }

    void anEmptyNameAndARepeatedCodeAreToldAtTheirControl()
    {
        form_->ChooseKind(6);
        const int before = CountOf(6);
        TDetailAccountCard* card = NewCard();
        Press(card, Qt::Key_F2);
        QVERIFY(card->Name().HasError());
        QVERIFY(Balloon::ShownText().contains(QStringLiteral("نام")));
        Type(card, QStringLiteral("صندوق تازه"));
        card->Code().SetText(QStringLiteral("1"));
        Press(card, Qt::Key_F2);
        QVERIFY(card->Code().HasError());
        QVERIFY(card->Code().hasFocus());
        card->Code().SetText(QString());
        Press(card, Qt::Key_F2);
        QVERIFY(card->Code().HasError());
        QCOMPARE(CountOf(6), before);
        shop_->Answers = {QStringLiteral("ذخیره نکن")};
        Press(card, Qt::Key_Escape);
        QTRY_VERIFY(form_->Card() == nullptr);
        QCOMPARE(HeldNumbers(), QStringLiteral("0"));
        QCOMPARE(CountOf(6), before);
    }

    void aNumberOfAnotherAccountIsRefused()
    {
        form_->ChooseKind(6);
        TDetailAccountCard* card = NewCard();
        Type(card, QStringLiteral("صندوق تازه"));
        const QString taken = shop_->Text(
            QStringLiteral("SELECT UniqueCode FROM dbo.AccDetails WHERE [Type] = 1 AND Code = 3"));
        card->UniqueCode().UniqueCode_EDT->SetText(taken.rightJustified(8, u'0'));
        const int before = CountOf(6);
        Press(card, Qt::Key_F2);
        QCOMPARE(shop_->Told.size(), 1);
        QVERIFY(form_->Card() != nullptr);
        QCOMPARE(CountOf(6), before);
        shop_->Answers = {QStringLiteral("ذخیره نکن")};
        card->reject();
    }

    void aNumberThatAnotherUserHoldsIsRefusedWithHisName()
    {
        form_->ChooseKind(6);
        TDetailAccountCard* card = NewCard();
        const QString number = card->UniqueCode().UniqueCode_EDT->Text();
        const std::unique_ptr<TADOConnection> connection = shop_->Connection.Clone();
        connection->Open();
        THostSettings settings(shop_->Folder.filePath(QStringLiteral("other.ini")));
        settings.SetUserInfo({2, QStringLiteral("همکار")});
        TCodeLocks other(*connection, settings);
        const QString held = QString::number(number.toInt() + 5);
        QVERIFY(other.Take(held, CodeLockPart(TFloatingAccountsType::fatCashDesks)));
        TSmartEdit_TRV* edit = card->UniqueCode().UniqueCode_EDT;
        edit->setFocus();
        edit->selectAll();
        for (const QChar digit : held.rightJustified(8, u'0'))
            QTest::keyClick(edit, static_cast<Qt::Key>(Qt::Key_0 + digit.digitValue()));
        QTRY_COMPARE(shop_->Told.size(), 1);
        QVERIFY2(shop_->Told.constFirst().contains(QStringLiteral("همکار")),
                 qPrintable(shop_->Told.constFirst()));
        QCOMPARE(edit->Text().toInt(), number.toInt());
        card->reject();
        QTRY_VERIFY(form_->Card() == nullptr);
    }

    void anotherKindProposesOtherNumbers()
    {
        form_->ChooseKind(6);
        TDetailAccountCard* card = NewCard();
        const QString before = card->UniqueCode().UniqueCode_EDT->Text();
        card->KindBox().setFocus();
        QTest::keyClick(&card->KindBox(), Qt::Key_Down);
        QCOMPARE(card->Account().Kind, 7);
        QVERIFY(card->UniqueCode().UniqueCode_EDT->Text() != before);
        QCOMPARE(HeldNumbers(), QStringLiteral("1"));
        QVERIFY(!card->IsChanged());
        card->reject();
        QTRY_VERIFY(form_->Card() == nullptr);
    }

    void accountAndNumberAreOneTransaction()
    {
        form_->ChooseKind(6);
        const int before = CountOf(6);
        TDetailAccountCard* card = NewCard();
        Type(card, QStringLiteral("صندوق تازه"));
        QStringList reports;
        auto* application = qobject_cast<THostApplication*>(qApp);
        application->SetErrorDisplay([&reports](const TErrorReport& report) { reports.append(report.Text); });
        bool failed = false;
        shop_->Connection.OnWillExecute = [&failed](TADOConnection*, const QString& text) {
            if (text.startsWith(u"UPDATE AccDetails SET UniqueCode") && !failed) {
                failed = true;
                throw EADOError(TAdoErrorKind::Other, QStringLiteral("خطا"));
            }
        };
        Press(card, Qt::Key_F2);
        QTRY_COMPARE(reports.size(), 1);
        application->SetErrorDisplay({});
        QVERIFY(failed);
        QCOMPARE(CountOf(6), before);
        QVERIFY(form_->Card() != nullptr);
        QCOMPARE(card->Name().Text(), QStringLiteral("صندوق تازه"));
        Press(card, Qt::Key_F2);
        QTRY_VERIFY(form_->Card() == nullptr);
        QCOMPARE(CountOf(6), before + 1);
    }

    void hostileNamesAreKeptToTheLetter()
    {
        const QString hostile = QStringLiteral("'; DROP TABLE dbo.AccDetails; -- [ك] %_?");
        form_->ChooseKind(9);
        TDetailAccountCard* card = NewCard();
        const int code = card->Code().Text().toInt();
        Type(card, hostile);
        Press(card, Qt::Key_F2);
        QTRY_VERIFY(form_->Card() == nullptr);
        QCOMPARE(Field(9, code, QStringLiteral("Name")), hostile);
    }

    void twoUsersWhoCreateAtOnceDoNotGetOneAccount()
    {
        form_->ChooseKind(6);
        TDetailAccountCard* card = NewCard();
        Type(card, QStringLiteral("صندوق یکم"));
        TDetailAccountStore store(shop_->Connection);
        store.Insert({6, card->Code().Text().toInt(), QStringLiteral("صندوق همکار"), 0, true}, [] {});
        const int before = CountOf(6);
        Press(card, Qt::Key_F2);
        QVERIFY(card->Code().HasError());
        QCOMPARE(CountOf(6), before);
        shop_->Answers = {QStringLiteral("ذخیره نکن")};
        card->reject();
        QTRY_VERIFY(form_->Card() == nullptr);
    }

    void anAccountThatWasChangedMeanwhileIsNotOverwritten()
    {
        TDetailAccountStore store(shop_->Connection);
        const TDetailAccount loaded = *store.Find(2, 1);
        TDetailAccount mine = loaded;
        TDetailAccount theirs = loaded;
        mine.Name = QStringLiteral("من");
        theirs.Name = QStringLiteral("او");
        store.Update(theirs, loaded, [] {});
        QVERIFY_THROWS_EXCEPTION(EDetailRefused, store.Update(mine, loaded, [] {}));
        QCOMPARE(store.Find(2, 1)->Name, QStringLiteral("او"));
    }

private:
    void Prepare() override
    {
        form_ = &shop_->Open<TDetailAccountForm>();
        QVERIFY(form_->List().DataSet().WaitForFirstPage());
    }

    int CountOf(int kind)
    {
        return shop_->Text(QStringLiteral("SELECT COUNT(*) FROM dbo.AccDetails WHERE [Type] = %1").arg(kind))
            .toInt();
    }
    QString Field(int kind, int code, const QString& field)
    {
        return shop_->Text(QStringLiteral("SELECT %1 FROM dbo.AccDetails WHERE [Type] = %2 AND Code = %3")
                               .arg(field)
                               .arg(kind)
                               .arg(code));
    }
    QString HeldNumbers() { return shop_->Text(QStringLiteral("SELECT COUNT(*) FROM dbo.CodeLocks")); }
    TDetailAccountCard* WaitForCard()
    {
        TDetailAccountCard* card = form_->Card();
        if (card != nullptr)
            TFormFixture::Activate(card);
        return card;
    }
    TDetailAccountCard* NewCard()
    {
        shop_->Press(Qt::Key_N, Qt::ControlModifier);
        return WaitForCard();
    }
    static void Press(TDetailAccountCard* card, Qt::Key key)
    {
        QTest::keyClick(card->focusWidget() != nullptr ? card->focusWidget() : card, key);
        QCoreApplication::processEvents();
    }
    static void Type(TDetailAccountCard* card, const QString& text)
    {
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, card->focusWidget(), Qt::Key_unknown, QString(character),
                                Qt::NoModifier);
    }

    TDetailAccountForm* form_ = nullptr;
};

int main(int argc, char** argv)
{
    return RunFormTest<DetailAccountFormTest>(argc, argv);
}
#include "DetailAccountFormTest.moc"
