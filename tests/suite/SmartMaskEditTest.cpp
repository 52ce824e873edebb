#include "Balloon.h"
#include "DateForm.h"
#include "SmartMaskEdit_TRV.h"

#include <stdexcept>

class SmartMaskEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyWhatFitsIsTyped_data();
    void onlyWhatFitsIsTyped();
    void aRefusedKeyIsSaidUntilAnotherIsTaken();
    void keysOfOtherKindsAreRefused_data();
    void keysOfOtherKindsAreRefused();
    void aTextThatDoesNotMatchIsMarkedWhenLeft();
    void whatTheOwnerCompletesOnExitCounts();
    void anEmptyTextIsCheckedOnDemandOnly();
    void pastingIsRefusedWhereItIsDisabled();
    void pastingIsTakenWhereItIsNot();
    void aPatternThatIsNoneIsTheDevelopersError();
    void lettersOfBothCasesMatchOnDemand();
    void charactersOfAnInputMethodAreFilteredToo();
};

void SmartMaskEditTest::onlyWhatFitsIsTyped_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("maxLength");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("error");
    QTest::newRow("digits") << "\\d\\d\\d" << 3 << "12"
                            << "12" << false;
    QTest::newRow("Persian digits") << "\\d\\d\\d" << 3 << "۱۲"
                                    << "12" << false;
    QTest::newRow("a letter among them") << "\\d\\d\\d" << 3 << "1a"
                                         << "1" << true;
    QTest::newRow("a blank among them") << "\\d\\d\\d" << 3 << "1 "
                                        << "1" << true;
    QTest::newRow("full is no error") << "\\d\\d\\d" << 3 << "1234"
                                      << "123" << false;
    QTest::newRow("too many without a limit") << "\\d\\d\\d" << 0 << "1234"
                                              << "123" << true;
    QTest::newRow("no pattern") << "" << 0 << "a 1-ب"
                                << "a 1-ب" << false;
    QTest::newRow("over a selection") << "\\d\\d\\d" << 3 << "123{{4"
                                      << "123" << false;
}

void SmartMaskEditTest::onlyWhatFitsIsTyped()
{
    QFETCH(QString, pattern);
    QFETCH(int, maxLength);
    QFETCH(QString, keys);
    QFETCH(QString, text);
    QFETCH(bool, error);
    TEditForm<TSmartMaskEdit_TRV> form;
    form.Edit->RegExp().SetRegExp(pattern);
    form.Edit->SetMaxLength(maxLength);
    QVERIFY(form.Show());
    form.Type(keys);
    QCOMPARE(form.Edit->Text(), text);
    QCOMPARE(form.Edit->HasError(), error);
}

void SmartMaskEditTest::aRefusedKeyIsSaidUntilAnotherIsTaken()
{
    TEditForm<TSmartMaskEdit_TRV> form;
    form.Edit->RegExp().SetRegExp(QStringLiteral("\\d\\d"));
    QVERIFY(form.Show());
    form.Type(QStringLiteral("x"));
    QVERIFY(form.Edit->HasError());
    QCOMPARE(Balloon::ShownText(), QStringLiteral("مقدار وارده معتبر نیست"));
    form.Type(QStringLiteral("5"));
    QVERIFY(!form.Edit->HasError());
    QCOMPARE(Balloon::ShownText(), QString());
    QCOMPARE(form.Edit->Text(), QStringLiteral("5"));
}

void SmartMaskEditTest::keysOfOtherKindsAreRefused_data()
{
    QTest::addColumn<int>("allowed");
    QTest::addColumn<QString>("taken");
    QTest::newRow("all") << 15 << "aب5 -";
    QTest::newRow("letters") << int(TRegExp::vkLetter) << "aب";
    QTest::newRow("numbers") << int(TRegExp::vkNumber) << "5";
    QTest::newRow("numbers and blanks") << int(TRegExp::vkNumber | TRegExp::vkSpace) << "5 ";
    QTest::newRow("punctuation") << int(TRegExp::vkPunctuation) << "-";
}

void SmartMaskEditTest::keysOfOtherKindsAreRefused()
{
    QFETCH(int, allowed);
    QFETCH(QString, taken);
    TEditForm<TSmartMaskEdit_TRV> form;
    form.Edit->RegExp().AllowedKeys = TRegExp::TAllowedKeys(allowed);
    QVERIFY(form.Show());
    form.Type(QStringLiteral("aب5 -"));
    QCOMPARE(form.Edit->Text(), taken);
}

void SmartMaskEditTest::aTextThatDoesNotMatchIsMarkedWhenLeft()
{
    TEditForm<TSmartMaskEdit_TRV> form;
    form.Edit->RegExp().SetRegExp(QStringLiteral("\\d\\d\\d"));
    QVERIFY(form.Show());
    form.Type(QStringLiteral("12"));
    QVERIFY(!form.Edit->IsValid());
    QVERIFY(!form.Edit->HasError());
    form.Other->setFocus();
    QVERIFY(form.Edit->HasError());
    QVERIFY(form.Other->hasFocus());
    QCOMPARE(form.Edit->Text(), QStringLiteral("12"));
    QCOMPARE(Balloon::ShownText(), QStringLiteral("مقدار وارده معتبر نیست"));
}

void SmartMaskEditTest::whatTheOwnerCompletesOnExitCounts()
{
    TEditForm<TSmartMaskEdit_TRV> form;
    form.Edit->RegExp().SetRegExp(QStringLiteral("\\d\\d\\d"));
    form.Edit->OnExit = [&](QObject*) { form.Edit->SetText(QStringLiteral("0") + form.Edit->Text()); };
    QVERIFY(form.Show());
    form.Type(QStringLiteral("12"));
    form.Other->setFocus();
    QCOMPARE(form.Edit->Text(), QStringLiteral("012"));
    QVERIFY(!form.Edit->HasError());
}

void SmartMaskEditTest::anEmptyTextIsCheckedOnDemandOnly()
{
    TEditForm<TSmartMaskEdit_TRV> form;
    form.Edit->RegExp().SetRegExp(QStringLiteral("\\d\\d\\d"));
    QVERIFY(form.Show());
    form.Other->setFocus();
    QVERIFY(!form.Edit->HasError());
    form.Edit->RegExp().ValidateIfEmpty = true;
    form.Edit->setFocus();
    form.Other->setFocus();
    QVERIFY(form.Edit->HasError());
}

void SmartMaskEditTest::pastingIsRefusedWhereItIsDisabled()
{
    TEditForm<TSmartMaskEdit_TRV> form;
    form.Edit->RegExp().DisablePaste = true;
    QVERIFY(form.Show());
    form.Type(QStringLiteral("1"));
    form.Paste(QStringLiteral("23"));
    QCOMPARE(form.Edit->Text(), QStringLiteral("1"));
    QVERIFY(form.Edit->HasError());
    QVERIFY(Balloon::ShownText().contains(QStringLiteral("چسباندن")));
}

void SmartMaskEditTest::pastingIsTakenWhereItIsNot()
{
    TEditForm<TSmartMaskEdit_TRV> form;
    QVERIFY(form.Show());
    form.Paste(QStringLiteral("23"));
    QCOMPARE(form.Edit->Text(), QStringLiteral("23"));
    QVERIFY(!form.Edit->HasError());
}

void SmartMaskEditTest::aPatternThatIsNoneIsTheDevelopersError()
{
    TSmartMaskEdit_TRV edit;
    edit.RegExp().SetRegExp(QStringLiteral("\\d"));
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, edit.RegExp().SetRegExp(QStringLiteral("(")));
    QCOMPARE(edit.RegExp().RegExp(), QStringLiteral("\\d"));
}

void SmartMaskEditTest::lettersOfBothCasesMatchOnDemand()
{
    TRegExp regExp;
    regExp.SetRegExp(QStringLiteral("[a-z]+"));
    QVERIFY(!regExp.Matches(QStringLiteral("AB")));
    regExp.SetOptions(TRegExp::roIgnoreCase);
    QVERIFY(regExp.Matches(QStringLiteral("AB")));
}

void SmartMaskEditTest::charactersOfAnInputMethodAreFilteredToo()
{
    TEditForm<TSmartMaskEdit_TRV> form;
    form.Edit->RegExp().SetRegExp(QStringLiteral("\\d\\d\\d"));
    QVERIFY(form.Show());
    QInputMethodEvent letter;
    letter.setCommitString(QStringLiteral("ب"));
    QApplication::sendEvent(form.Edit, &letter);
    QCOMPARE(form.Edit->Text(), QString());
    QInputMethodEvent digit;
    digit.setCommitString(QStringLiteral("۷"));
    QApplication::sendEvent(form.Edit, &digit);
    QCOMPARE(form.Edit->Text(), QStringLiteral("7"));
}

QTEST_MAIN(SmartMaskEditTest)
#include "SmartMaskEditTest.moc"
