#include "AccountLine.h"
#include "Look.h"
#include "TestCase.h"

#include <QClipboard>

namespace {

constexpr QStringView Grey = u"#a0a0a4";

QColor TextColor(const QWidget* widget)
{
    return widget->palette().color(QPalette::Active, QPalette::Text);
}

QStringList Placeholders()
{
    return {QStringLiteral("کل"), QStringLiteral("معين"), QStringLiteral("تفصيلي"),
            QStringLiteral("مرکزهزينه")};
}

} // namespace

class SelectAccountCodeModelTest : public TTestCase
{
    Q_OBJECT

    using L = TAccountLine;

protected:
    void Finish() override
    {
        Look::SetScheme(Look::TScheme::Light);
        QCoreApplication::processEvents();
    }

private Q_SLOTS:
    void aNewFrameHasItsLengthsAndWidths()
    {
        const TAccountLine line;
        QCOMPARE(line.Box(L::T)->MaxLength(), 3);
        QCOMPARE(line.Box(L::A)->MaxLength(), 3);
        QCOMPARE(line.Box(L::D)->MaxLength(), 6);
        QCOMPARE(line.Box(L::E)->MaxLength(), 4);
        line.Form->resize(600, 120);
        line.Form->ensurePolished();
        line.Form->layout()->activate();
        line.Frame->layout()->activate();
        QCOMPARE(line.Box(L::T)->width(), 40);
        QCOMPARE(line.Box(L::A)->width(), 40);
        QCOMPARE(line.Box(L::D)->width(), 60);
        QCOMPARE(line.Box(L::E)->width(), 55);
        QCOMPARE(line.Frame->Separator_LBL->width(), 11);
        QCOMPARE(line.Frame->Separator_LBL->Caption(), QStringLiteral("-"));
        QCOMPARE(line.Frame->AccCodeSelect_PUM->text(), QStringLiteral("کد حساب"));
        QCOMPARE(line.Frame->ExpenseCenter_PUM->text(), QStringLiteral("مرکز هزینه"));
        QCOMPARE(line.Frame->Select_BTN->focusPolicy(), Qt::NoFocus);
    }

    void emptyLevelsShowTheirNamesInGrey()
    {
        const TAccountLine line;
        QCOMPARE(line.Texts(), Placeholders());
        for (const TCodeItem level : {L::T, L::A, L::D, L::E}) {
            QCOMPARE(TextColor(line.Box(level)).name(), Grey.toString());
            QCOMPARE(line.Box(level)->font().pointSize(), 10);
        }
        QCOMPARE(line.Name(), QString());
        QVERIFY(line.Frame->IsEmpty());
        QVERIFY(line.Events.isEmpty());
    }

    void everyGetterReadsAnythingButDigitsAsZero_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("code");
        QTest::newRow("digits") << "007" << 7;
        QTest::newRow("one digit") << "7" << 7;
        QTest::newRow("empty") << "" << 0;
        QTest::newRow("Arabic yeh") << QStringLiteral("معين") << 0;
        QTest::newRow("Persian yeh") << QStringLiteral("تفصیلی") << 0;
        QTest::newRow("A") << "A" << 0;
        QTest::newRow("apostrophe") << "1'2" << 0;
        QTest::newRow("minus") << "-5" << 0;
        QTest::newRow("hexadecimal") << "$5" << 0;
        QTest::newRow("largest") << "2147483647" << 2147483647;
        QTest::newRow("beyond an int") << "2147483648" << 0;
    }
    void everyGetterReadsAnythingButDigitsAsZero()
    {
        QFETCH(QString, text);
        QFETCH(int, code);
        const TAccountLine line;
        for (const TCodeItem level : {L::T, L::A, L::D, L::E})
            line.Box(level)->SetText(text);
        QCOMPARE(line.Frame->GetTotalCode(), code);
        QCOMPARE(line.Frame->GetAssistantCode(), code);
        QCOMPARE(line.Frame->GetDetailCode(), code);
        QCOMPARE(line.Frame->GetExpCenterCode(), code);
    }

    void initShowsTheLevelsOfTheSet_data()
    {
        QTest::addColumn<int>("levels");
        for (int levels = 0; levels < 16; ++levels)
            QTest::addRow("%d", levels) << levels;
    }
    void initShowsTheLevelsOfTheSet()
    {
        QFETCH(int, levels);
        TAccountLine line(TCodeItems::FromBits(static_cast<unsigned>(levels)));
        QVERIFY(Typing::ShowActive(line.Form.get()));
        for (int level = 0; level < 4; ++level)
            QCOMPARE(line.Box(static_cast<TCodeItem>(level))->isVisible(), (levels >> level & 1) == 1);
        const bool both = levels > 8;
        QCOMPARE(line.Frame->Separator_LBL->isVisible(), both);
        QVERIFY(line.Frame->Select_BTN->isVisible());
        QCOMPARE(line.Frame->Select_BTN->ButtonKind(),
                 both ? TSmartButton_TRV::bkDropDown : TSmartButton_TRV::bkStandard);
        QVERIFY(line.Frame->Select_BTN->AutoWidth());
        QCOMPARE(line.Frame->Select_BTN->width(), line.Frame->Select_BTN->sizeHint().width());
        QVERIFY(!line.Frame->AllowClear());
    }

    void theExpenseCenterStandsRightOfTheButtonAndTheSeparatorRightOfIt()
    {
        TAccountLine line;
        line.Frame->init(); // once more changes nothing
        QVERIFY(Typing::ShowActive(line.Form.get()));
        const QList<QWidget*> fromTheRight = {
            line.Box(L::T), line.Box(L::A),         line.Box(L::D),      line.Frame->Separator_LBL,
            line.Box(L::E), line.Frame->Select_BTN, line.Frame->Name_LBL};
        int left = line.Frame->width();
        for (const QWidget* const widget : fromTheRight) {
            QVERIFY2(widget->geometry().right() < left, qPrintable(widget->objectName()));
            left = widget->x();
        }
        QCOMPARE(line.Frame->Name_LBL->x(), 0);
    }

    void initEmptiesAndRaisesNothing()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Forget();
        line.Frame->init();
        QCOMPARE(line.Texts(), Placeholders());
        QVERIFY(line.Events.isEmpty());
        QVERIFY(line.Host.Log.Lines().isEmpty());
    }

    void theTabOrderFollowsTheLevels()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        for (QWidget* const next :
             {static_cast<QWidget*>(line.Box(L::A)), static_cast<QWidget*>(line.Box(L::D)),
              static_cast<QWidget*>(line.Box(L::E)), static_cast<QWidget*>(line.After)}) {
            line.Leave();
            QCOMPARE(QApplication::focusWidget(), next);
        }
    }

    void isEmptyLooksAtTheLevelsOfTheSetOnly()
    {
        TAccountLine line({L::T, L::E});
        line.Box(L::A)->SetText(QStringLiteral("002"));
        QVERIFY(line.Frame->IsEmpty());
        line.Box(L::E)->SetText(QStringLiteral("0042"));
        QVERIFY(!line.Frame->IsEmpty());
        line.Box(L::E)->SetText(QStringLiteral("0000"));
        QVERIFY(line.Frame->IsEmpty());
    }

    void isValidIsTheHostsAnswer()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        QVERIFY(line.Frame->IsValid());
        line.Box(L::T)->SetText(QStringLiteral("008"));
        QVERIFY(!line.Frame->IsValid());
    }

    void enabledSwitchesBoxesAndButton()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Frame->Enabled(false, false);
        for (const TCodeItem level : {L::T, L::A, L::D, L::E})
            QVERIFY(!line.Box(level)->isEnabled());
        QVERIFY(!line.Frame->Select_BTN->isEnabled());
        QCOMPARE(line.Frame->GetTotalCode(), 7);
        line.Frame->Enabled(true, true);
        QVERIFY(line.Box(L::E)->isEnabled());
        QVERIFY(line.Frame->Select_BTN->isEnabled());
        QCOMPARE(line.Texts(), Placeholders());
    }

    void propertiesKeepTheirValues()
    {
        const TAccountLine line;
        line.Frame->SetSingleForm(true);
        line.Frame->SetDisableOnChange(true);
        line.Frame->SetSelectCodeProperties(TPropertiesItem::piQuantity);
        line.Frame->SetGroupType(THCSelectGroups::sgEquity);
        line.Frame->SetGroupTypeFilter(TSelectGroups(6));
        QVERIFY(line.Frame->SingleForm());
        QVERIFY(line.Frame->DisableOnChange());
        QCOMPARE(line.Frame->SelectCodeProperties(), TPropertiesItems(TPropertiesItem::piQuantity));
        QCOMPARE(line.Frame->GetGroupType(), THCSelectGroups::sgEquity);
        QCOMPARE(line.Frame->GroupTypeFilter().Bits(), 6U);
        QVERIFY(line.Frame->setProperty("CodeItem", 5));
        QCOMPARE(line.Frame->CodeItem(), (TCodeItems{L::T, L::D}));
        QCOMPARE(line.Frame->property("CodeItem").toInt(), 5);
    }

    void disableOnChangeSilencesNothing()
    {
        TAccountLine line;
        line.Frame->SetDisableOnChange(true);
        line.Frame->SetExpCenterCode(0);
        QCOMPARE(line.Events, QStringList{"change"});
    }

    void theQuestionsAreAboutTheCodesInTheBoxes()
    {
        TAccountLine line;
        line.Frame->SetTotalCode(7);
        line.Frame->SetDetailCode(11);
        QCOMPARE(line.Frame->GetTotalDetailType(), 1);
        QCOMPARE(line.Frame->GetTotalNatureType(), 2);
        QCOMPARE(line.Frame->GetTotalGroupType(), 4);
        QCOMPARE(line.Frame->GetGroupType(), THCSelectGroups::sgIncomes);
        QCOMPARE(line.Frame->GetSelectCodeProperties().toInt(), 21U);
        QCOMPARE(line.Frame->GetCurrCode(), 5);
    }

    void theBoxesAndTheButtonHaveNames()
    {
        const TAccountLine line;
        QSet<QString> names;
        for (const QWidget* const widget :
             {static_cast<QWidget*>(line.Box(L::T)), static_cast<QWidget*>(line.Box(L::A)),
              static_cast<QWidget*>(line.Box(L::D)), static_cast<QWidget*>(line.Box(L::E)),
              static_cast<QWidget*>(line.Frame->Select_BTN)}) {
            QVERIFY(!widget->accessibleName().isEmpty());
            names.insert(widget->accessibleName());
        }
        QCOMPARE(names.size(), 5);
    }

    void codesAreReadableInBothSchemes()
    {
        TAccountLine line;
        QVERIFY(line.Start(L::E));
        line.Frame->SetTotalCode(7);
        QCOMPARE(TextColor(line.Box(L::T)), QColor(Qt::black));
        QCOMPARE(line.Box(L::T)->font().pointSize(), 11);
        Look::SetScheme(Look::TScheme::Dark);
        QCoreApplication::processEvents();
        const QColor ground = line.Box(L::T)->palette().color(QPalette::Active, QPalette::Base);
        const double ofCode = Look::Contrast(TextColor(line.Box(L::T)), ground);
        const double ofPlaceholder = Look::Contrast(TextColor(line.Box(L::A)), ground);
        const QColor placeholder = TextColor(line.Box(L::A));
        Finish();
        QVERIFY(ofCode >= 4.5);
        QVERIFY(ofPlaceholder >= 4.5);
        QCOMPARE(placeholder.name(), Grey.toString());
        QCOMPARE(TextColor(line.Box(L::T)), QColor(Qt::black));
    }

    void aDisabledBoxLooksDisabled()
    {
        const TAccountLine line;
        line.Frame->SetTotalCode(7);
        QCOMPARE(line.Box(L::T)->palette().color(QPalette::Disabled, QPalette::Text),
                 QApplication::palette().color(QPalette::Disabled, QPalette::Text));
    }

    void aPlaceholderCannotBeSelectedNorCopied()
    {
        TAccountLine line;
        QVERIFY(line.Start());
        line.Frame->Clear(); // the user is still in the box
        QCOMPARE(line.Box(L::T)->Text(), QStringLiteral("کل"));
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
        QTest::keySequence(line.Box(L::T), QKeySequence::SelectAll);
        QTest::keySequence(line.Box(L::T), QKeySequence::Copy);
        QVERIFY(line.Box(L::T)->selectedText().isEmpty());
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    Look::Install(application, Look::TScheme::Light);
    SelectAccountCodeModelTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "SelectAccountCodeModelTest.moc"
