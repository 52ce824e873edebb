#include "EntityLine.h"
#include "Look.h"
#include "TestCase.h"

#include <QSignalSpy>
#include <stdexcept>

class SelectEntityTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }

    void theFormIsAsDesigned()
    {
        const TRecordingHost host;
        TSelect_Entity_Frame frame;
        QCOMPARE(frame.size(), QSize(318, 34));
        QCOMPARE(frame.layoutDirection(), Qt::RightToLeft);
        QCOMPARE(frame.font().pixelSize(), 15);
        QVERIFY(frame.font().bold());
        frame.show();
        const TSmartButtonEdit_TRV& box = *frame.Code_EDT;
        QCOMPARE(box.objectName(), QStringLiteral("Code_EDT"));
        QCOMPARE(box.width(), 70);
        QCOMPARE(box.geometry().right(), frame.rect().right());
        QCOMPARE(box.MaxLength(), 6);
        QVERIFY(box.ShowButton());
        QCOMPARE(box.EditType(), TSmartButtonEdit_TRV::betEntity);
        QCOMPARE(box.EntityType(), TEntityType::etPersonals);
        QVERIFY(!box.Calculator());
        QVERIFY(!box.MultiCurrency());
        QCOMPARE(box.font().pixelSize(), 15);
        QVERIFY(!box.accessibleName().isEmpty());
        QVERIFY(frame.Name_LBL->font().bold());
        QVERIFY(frame.Name_LBL->OnBand());
        QVERIFY(frame.Name_LBL->geometry().right() < box.geometry().left());
        QVERIFY(frame.Name_LBL->geometry().left() < 10);
        frame.hide();
    }

    void theNameStandsWhiteOnTheBand()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("5"), QStringLiteral("بازرگانی آفتاب"));
        QVERIFY(line.Start());
        line.Enter(QStringLiteral("5"));
        const QImage picture = line.Frame->grab().toImage().copy(line.Frame->Name_LBL->geometry());
        QCOMPARE(picture.pixelColor(1, 1), Look::Color(Look::TRole::Band));
        bool white = false;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                white = white || picture.pixelColor(x, y) == QColor(Qt::white);
        }
        QVERIFY(white);
        QVERIFY(Look::Contrast(Look::Color(Look::TRole::Band), Qt::white) >= 4.5);
    }

    void aLongNameNeitherWidensTheFormNorTakesAMnemonic()
    {
        TEntityLine line;
        const QString name = QStringLiteral("A&B ").repeated(60);
        line.KnowPerson(QStringLiteral("5"), name);
        QVERIFY(line.Start());
        const int width = line.Form->width();
        line.Enter(QStringLiteral("5"));
        QCOMPARE(line.Name(), name);
        QCoreApplication::processEvents();
        QCOMPARE(line.Form->width(), width);
        QVERIFY(line.Form->minimumSizeHint().width() < 400);
        QVERIFY(!line.Frame->Name_LBL->ShowAccelChar());
    }

    void leavingShowsTheNameAndRaisesOnce()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("12"), QStringLiteral("رضایی"));
        const QSignalSpy signal(line.Frame, &TSelect_Entity_Frame::codeChanged);
        QVERIFY(line.Start());
        line.Enter(QStringLiteral("12"));
        QCOMPARE(line.Raised, QStringList{QStringLiteral("12/رضایی")});
        QCOMPARE(signal.count(), 1);
        QVERIFY(line.After->hasFocus());
        line.Enter(QStringLiteral("12"));
        QCOMPARE(line.Raised.size(), 2);
        QCOMPARE(signal.count(), 2);
    }

    void whatIsLookedUpIsWhatTheBoxHolds()
    {
        TEntityLine line;
        QVERIFY(line.Start());
        line.KnowPerson(QStringLiteral("0007"), QStringLiteral("رضایی"));
        line.Enter(QStringLiteral("۰٠07"));
        QCOMPARE(line.CallsOf(QStringLiteral("LookupDBs")),
                 QStringList{QStringLiteral("LookupDBs(0007, fullname, 0, Code_EDT, 0)")});
        QCOMPARE(line.Code(), QStringLiteral("0007"));
    }

    void anotherWindowIsNoExit()
    {
        TEntityLine line;
        QVERIFY(line.Start());
        Typing::Type(line.Frame->Code_EDT, QStringLiteral("12"));
        QWidget other;
        QVERIFY(Typing::ShowActive(&other));
        QVERIFY(line.Host.Log.Lines().isEmpty());
        QCOMPARE(line.Code(), QStringLiteral("12"));
    }

    void zeroIsRefusedWithABalloon_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("0") << QStringLiteral("0");
        QTest::newRow("0 between blanks") << QStringLiteral(" 0 ");
    }

    void zeroIsRefusedWithABalloon()
    {
        QFETCH(QString, text);
        TEntityLine line;
        line.KnowPerson(QStringLiteral("5"), QStringLiteral("رضایی"));
        QVERIFY(line.Start());
        line.Enter(QStringLiteral("5"));
        line.Frame->Code_EDT->setFocus();
        line.Host.Log.Clear();
        line.Raised.clear();
        line.Frame->Code_EDT->SetText(text);
        Typing::Press(line.Frame->Code_EDT, Qt::Key_Tab);
        QCOMPARE(line.Host.Log.Lines().size(), 1);
        const IMessages::TTooltip& balloon = line.Host.Messages.LastTooltip;
        QCOMPARE(balloon.Title, QStringLiteral("اعتبارسنجي"));
        QCOMPARE(balloon.Text, QStringLiteral("کد صفر قابل انتخاب نمي باشد"));
        QCOMPARE(balloon.Control, line.Frame->Code_EDT);
        QCOMPARE(balloon.Milliseconds, 3000);
        QCOMPARE(balloon.Kind, 1);
        QCOMPARE(balloon.Color, 0xC0C0C0U);
        QCOMPARE(balloon.Reserved, 0);
        QCOMPARE(balloon.Width, 250);
        QCOMPARE(balloon.ScreenPosition, line.Frame->Code_EDT->mapToGlobal(QPoint()));
        QCOMPARE(line.Raised, QStringList{QStringLiteral("/")});
        QVERIFY(line.After->hasFocus());
    }

    void zeroIsRefusedSilentlyWhereNobodyLooks()
    {
        TEntityLine line;
        line.Frame->Code_EDT->SetText(QStringLiteral("0"));
        line.Frame->Code_EDTExit(nullptr);
        QVERIFY(line.Host.Log.Lines().isEmpty());
        QCOMPARE(line.Raised, QStringList{QStringLiteral("/")});
    }

    void severalZerosAreACodeLikeOthers()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("00"), QStringLiteral("صندوق"));
        QVERIFY(line.Start());
        line.Enter(QStringLiteral("00"));
        QCOMPARE(line.CallsOf(QStringLiteral("ShowTooltipMessage")), QStringList());
        QCOMPARE(line.Raised, QStringList{QStringLiteral("00/صندوق")});
    }

    void leavingTheEmptyBoxShowsNoNameAndRaises()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("5"), QStringLiteral("رضایی"));
        QVERIFY(line.Start());
        line.Enter(QStringLiteral("5"));
        line.Enter(QString());
        QCOMPARE(line.Raised, (QStringList{QStringLiteral("5/رضایی"), QStringLiteral("/")}));
        QCOMPARE(line.Host.Log.Lines().size(), 1);
        QVERIFY(line.After->hasFocus());
    }

    void anUnknownCodeIsEmptiedSilentlyAndKeepsTheFocus()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("5"), QStringLiteral("رضایی"));
        QVERIFY(line.Start());
        line.Enter(QStringLiteral("5"));
        line.Raised.clear();
        line.Host.Log.Clear();
        line.Enter(QStringLiteral("6"));
        QCOMPARE(line.Host.Log.Lines().size(), 1);
        QCOMPARE(line.Code(), QString());
        QCOMPARE(line.Name(), QString());
        QVERIFY(line.Raised.isEmpty());
        QVERIFY(line.Frame->Code_EDT->hasFocus());
        Typing::Press(line.Frame->Code_EDT, Qt::Key_Tab);
        QVERIFY(line.After->hasFocus());
        QCOMPARE(line.Raised, QStringList{QStringLiteral("/")});
    }

    void aClickElsewhereBringsAnUnknownCodeTheFocusBackToo()
    {
        TEntityLine line;
        QVERIFY(line.Start());
        Typing::Type(line.Frame->Code_EDT, QStringLiteral("6"));
        QTest::mouseClick(line.After, Qt::LeftButton);
        QVERIFY(line.Frame->Code_EDT->hasFocus());
        QCOMPARE(line.Code(), QString());
    }

    void theFocusStaysAwayFromABoxThatCannotTakeIt()
    {
        TEntityLine line;
        QVERIFY(line.Start());
        line.Frame->Enabled(false);
        line.After->setFocus();
        line.Frame->SetCodeValue(6);
        QCOMPARE(line.Code(), QString());
        QVERIFY(line.After->hasFocus());
        line.Frame->Enabled(true);
        line.Frame->hide();
        line.Frame->SetCodeValue(6);
        QVERIFY(line.After->hasFocus());
        line.Frame->show();
        line.Frame->SetCodeValue(6);
        QVERIFY(line.Frame->Code_EDT->hasFocus());
    }

    void theAccountShowsNameBranchAndNumber_data()
    {
        QTest::addColumn<QVariant>("found");
        QTest::addColumn<QString>("name");
        const auto row = [](const char* name, const QVariantList& found, const QString& caption) {
            QTest::newRow(name) << QVariant(found) << caption;
        };
        const QString bank = QStringLiteral("ملت");
        const QString branch = QStringLiteral("ونک");
        row("all three", {bank, branch, QStringLiteral("12/3")}, QStringLiteral("ملت ونک - 12/3"));
        row("a number that is one", {bank, branch, 44}, QStringLiteral("ملت ونک - 44"));
        row("without branch", {bank, QVariant(), QStringLiteral("12/3")}, QStringLiteral("ملت  - 12/3"));
        row("placeholders in the texts", {QStringLiteral("%2"), QStringLiteral("%3"), QStringLiteral("%1")},
            QStringLiteral("%2 %3 - %1"));
    }

    void theAccountShowsNameBranchAndNumber()
    {
        QFETCH(QVariant, found);
        TEntityLine line;
        line.SetType(TEntityType::etBankAccounts);
        line.Know(LocateDBsOptions::ldBankAccounts, QStringLiteral("8"), found);
        QVERIFY(line.Start());
        line.Enter(QStringLiteral("8"));
        QTEST(line.Name(), "name");
        QCOMPARE(line.Raised.size(), 1);
    }

    void anEntityWithoutNameIsThereAllTheSame()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("8"), QString());
        QVERIFY(line.Start());
        line.Enter(QStringLiteral("8"));
        QCOMPARE(line.Raised, QStringList{QStringLiteral("8/")});
    }

    void aTypedCodeIsCompletedAfterItsLookup()
    {
        TEntityLine line;
        line.SetType(TEntityType::etExpenseLevel4);
        line.Know(LocateDBsOptions::ldExpenseLevel4, QStringLiteral("7"), QStringLiteral("اداری"));
        QVERIFY(line.Start());
        line.Enter(QStringLiteral("7"));
        QCOMPARE(line.Code(), QStringLiteral("0007"));
        // The event comes with the lookup, before the completion.
        QCOMPARE(line.Raised, QStringList{QStringLiteral("7/اداری")});
        line.Enter(QStringLiteral("9"));
        QCOMPARE(line.Code(), QString());
    }

    void codesAreRead_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("value");
        QTest::addColumn<bool>("isCode");
        QTest::newRow("empty") << QString() << 0 << true;
        QTest::newRow("plain") << QStringLiteral("123456") << 123456 << true;
        QTest::newRow("zeros in front") << QStringLiteral("0012") << 12 << true;
        QTest::newRow("no number") << QStringLiteral("12a") << 0 << false;
        QTest::newRow("too large") << QStringLiteral("99999999999") << 0 << false;
        QTest::newRow("blank") << QStringLiteral(" ") << 0 << false;
    }

    void codesAreRead()
    {
        QFETCH(QString, text);
        QFETCH(int, value);
        QFETCH(bool, isCode);
        const TEntityLine line;
        line.Frame->Code_EDT->SetText(text);
        QCOMPARE(line.Frame->GetCodeValue(), QVariant(value));
        QCOMPARE(line.Frame->GetCodeValue().typeId(), int(QMetaType::Int));
        if (isCode)
            QCOMPARE(line.Frame->CodeAsInt(), value);
        else
            QVERIFY_THROWS_EXCEPTION(std::invalid_argument, line.Frame->CodeAsInt());
    }

    void aCodeThatIsSetIsValidatedLikeATypedOne_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("lookedUp");
        const auto row = [](const char* name, const QVariant& value, const char* lookedUp) {
            QTest::newRow(name) << value << QString::fromLatin1(lookedUp);
        };
        row("int", 12, "12");
        row("64 bits", qint64(12), "12");
        row("double", 100000.0, "100000");
        row("text", QStringLiteral("12"), "12");
        row("text with zeros in front", QStringLiteral("0012"), "12");
        row("more digits than can be typed", 12345678, "12345678");
        row("0", 0, "");
        row("negative", -5, "");
        row("negative fraction", -5.5, "");
        row("null", QVariant(), "");
        row("empty text", QString(), "");
    }

    void aCodeThatIsSetIsValidatedLikeATypedOne()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, lookedUp);
        TEntityLine line;
        line.KnowPerson(lookedUp, QStringLiteral("رضایی"));
        line.Frame->Code_EDT->SetText(QStringLiteral("77"));
        line.Frame->SetCodeValue(value);
        const QString lookup = QStringLiteral("LookupDBs(%1, fullname, 0, Code_EDT, 0)").arg(lookedUp);
        QCOMPARE(line.Host.Log.Lines(), lookedUp.isEmpty() ? QStringList() : QStringList{lookup});
        const QString name = lookedUp.isEmpty() ? QString() : QStringLiteral("رضایی");
        QCOMPARE(line.Raised, QStringList{lookedUp + u'/' + name});
    }

    void whatIsNoCodeIsNotSet_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("word") << QVariant(QStringLiteral("دوازده"));
        QTest::newRow("fraction") << QVariant(1.5);
        QTest::newRow("too large") << QVariant(99999999999LL);
        QTest::newRow("list") << QVariant(QStringLiteral("1,2"));
    }

    void whatIsNoCodeIsNotSet()
    {
        QFETCH(QVariant, value);
        const TEntityLine line;
        line.Frame->Code_EDT->SetText(QStringLiteral("77"));
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, line.Frame->SetCodeValue(value));
        QCOMPARE(line.Code(), QStringLiteral("77"));
        QVERIFY(line.Raised.isEmpty());
    }

    void settingACodeRunsTheOwnersExitHandler()
    {
        const TEntityLine line;
        QObject* sender = nullptr;
        line.Frame->Code_EDT->OnExit = [&sender](QObject* box) { sender = box; };
        line.Frame->SetCodeValue(12);
        QCOMPARE(sender, line.Frame->Code_EDT);
        QVERIFY(line.Host.Log.Lines().isEmpty());
        line.Frame->Code_EDT->OnExit = nullptr;
        line.Frame->SetCodeValue(13);
        QCOMPARE(line.Code(), QStringLiteral("13"));
    }

    void clearRaisesNothing()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("5"), QStringLiteral("رضایی"));
        line.Frame->SetCodeValue(5);
        line.Raised.clear();
        line.Frame->Clear();
        QCOMPARE(line.Code() + line.Name(), QString());
        QVERIFY(line.Raised.isEmpty());
    }

    void disablingEmptiesOnRequestOnly()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("5"), QStringLiteral("رضایی"));
        line.Frame->SetCodeValue(5);
        line.Raised.clear();
        for (const bool clear : {false, true}) {
            line.Frame->Enabled(true, clear);
            QVERIFY(line.Frame->Code_EDT->isEnabled());
            QCOMPARE(line.Code(), QStringLiteral("5"));
            line.Frame->Enabled(false, clear);
            QVERIFY(!line.Frame->Code_EDT->isEnabled());
            QVERIFY(line.Frame->isEnabled());
        }
        QCOMPARE(line.Code() + line.Name(), QString());
        QVERIFY(line.Raised.isEmpty());
    }

    void theFrameMayBeDestroyedByItsOwnEvent_data()
    {
        QTest::addColumn<QString>("code");
        QTest::newRow("found") << QStringLiteral("5");
        QTest::newRow("empty") << QString();
        QTest::newRow("zero") << QStringLiteral("0");
    }

    void theFrameMayBeDestroyedByItsOwnEvent()
    {
        QFETCH(QString, code);
        TEntityLine line;
        line.SetType(TEntityType::etExpenseLevel4);
        line.Know(LocateDBsOptions::ldExpenseLevel4, QStringLiteral("5"), QStringLiteral("اداری"));
        QVERIFY(line.Start());
        const QPointer<TSelect_Entity_Frame> frame = line.Frame;
        line.Frame->SetOnCodeChanged([](QObject* sender) { delete sender; });
        line.Enter(code);
        QVERIFY(!frame);
        QVERIFY(line.After->hasFocus());
    }

    void theFrameMayBeDestroyedDuringItsLookup()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("5"), QStringLiteral("رضایی"));
        QVERIFY(line.Start());
        const QPointer<TSelect_Entity_Frame> frame = line.Frame;
        line.Host.CommonLibrary.WhileLookingUp = [frame] { delete frame; };
        line.Enter(QStringLiteral("5"));
        QVERIFY(!frame);
        QVERIFY(line.Raised.isEmpty());
    }

    void anErrorOfTheLookupLeavesNoOtherName()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("5"), QStringLiteral("رضایی"));
        line.Frame->SetCodeValue(5);
        line.Raised.clear();
        line.Host.CommonLibrary.WhileLookingUp = [] { throw std::runtime_error("connection lost"); };
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, line.Frame->SetCodeValue(6));
        QCOMPARE(line.Code(), QStringLiteral("6"));
        QCOMPARE(line.Name(), QString());
        QVERIFY(line.Raised.isEmpty());
    }

    void theFrameMayBeDestroyedWhileACodeIsSet()
    {
        TEntityLine line;
        line.KnowPerson(QStringLiteral("5"), QStringLiteral("رضایی"));
        const QPointer<TSelect_Entity_Frame> frame = line.Frame;
        line.Frame->SetOnCodeChanged([](QObject* sender) { delete sender; });
        line.Frame->SetCodeValue(5);
        QVERIFY(!frame);
    }
};

QTEST_MAIN(SelectEntityTest)
#include "SelectEntityTest.moc"
