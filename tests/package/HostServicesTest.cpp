#include "Frame.h"
#include "RecordingHost.h"
#include "TestCase.h"
#include "Typing.h"

#include <stdexcept>

namespace {

class TCountingFrame : public TFrame
{
public:
    explicit TCountingFrame(QWidget* owner = nullptr) : TFrame(owner) { FormReady(); }
    void Loaded() override
    {
        TFrame::Loaded();
        ++LoadedCount;
        WasVisible = isVisible();
    }

    int LoadedCount = 0;
    bool WasVisible = false;
};

} // namespace

class HostServicesTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aFrameWithoutAHostSaysWhatToDo()
    {
        QString message;
        try {
            const TFrame frame;
        } catch (const std::logic_error& error) {
            message = QString::fromUtf8(error.what());
        }
        QVERIFY2(message.contains(QStringLiteral("InstallHost()")), qPrintable(message));
    }

    void theInstalledHostIsTheOneThatAnswers()
    {
        TRecordingHost host;
        host.Clock.DateText = QStringLiteral("1403/05/06");
        QCOMPARE(Host().Clock.NowDate(QStringLiteral("-")), QStringLiteral("1403-05-06"));
        QVERIFY(HasHost());
    }

    void theHostIsGoneWithItsOwner()
    {
        {
            const TRecordingHost host;
        }
        QVERIFY(!HasHost());
        QVERIFY_THROWS_EXCEPTION(std::logic_error, Host());
    }

    void aSecondHostIsRefused()
    {
        const TRecordingHost host;
        QVERIFY_THROWS_EXCEPTION(std::logic_error, TRecordingHost());
        QVERIFY(HasHost());
    }

    void callsAreRecordedInOrder()
    {
        TRecordingHost host;
        QWidget box;
        box.setObjectName(QStringLiteral("Code_EDT"));
        host.CommonLibrary.Lookups[{LocateDBsOptions::ldStores, QStringLiteral("7")}] =
            QStringLiteral("انبار");
        QCOMPARE(Host().CommonLibrary.LookupDBs(QStringLiteral("7"), QStringLiteral("Name"),
                                                LocateDBsOptions::ldStores, &box, PerLocateOptions::plAll),
                 QVariant(QStringLiteral("انبار")));
        Host().Messages.MsgNotSelected(QStringLiteral("نرخ ارز"), nullptr, nullptr);
        QCOMPARE(host.Log.Lines(), (QStringList{QStringLiteral("LookupDBs(7, Name, 6, Code_EDT, 0)"),
                                                QStringLiteral("MsgNotSelected(نرخ ارز, -, -)")}));
        QCOMPARE(host.Log.CountOf(QStringLiteral("MsgNotSelected")), 1);
    }

    void aHoldIsTakenAndReleased()
    {
        TRecordingHost host;
        const TSoftwarePart part = CodeLockPart(TFloatingAccountsType::fatUnique);
        QCOMPARE(static_cast<int>(part), 1270010);
        host.CommonLibrary.HeldByOthers.append(QStringLiteral("1270010:8"));
        ICommonLibrary& library = Host().CommonLibrary;
        QVERIFY(library.LocateLockCode_SoftwarePart(QStringLiteral("8"), part, 0, false));
        QVERIFY(!library.OperationOnLockCode_SoftwarePart(QStringLiteral("8"), part, 0,
                                                          TOperationType::otLock, false));
        QVERIFY(library.OperationOnLockCode_SoftwarePart(QStringLiteral("9"), part, 0, TOperationType::otLock,
                                                         false));
        QCOMPARE(host.CommonLibrary.Held, QStringList{QStringLiteral("1270010:9")});
        QVERIFY(library.OperationOnLockCode_SoftwarePart(QStringLiteral("9"), part, 0,
                                                         TOperationType::otUnlock, false));
        QVERIFY(host.CommonLibrary.Held.isEmpty());
    }

    void theCalendarSwitchIsTheValueFourOfTheTwelfthByte()
    {
        TSettingRecord record;
        QVERIFY(!record.IsGregorian());
        record.Bytes[11] = 4;
        QVERIFY(record.IsGregorian());
        record.Bytes[11] = 0xFB;
        QVERIFY(!record.IsGregorian());
        record.SetGregorian(true);
        QCOMPARE(record.Bytes[11], quint8(0xFF));
        record.SetGregorian(false);
        QCOMPARE(record.Bytes[11], quint8(0xFB));
    }

    void theOrdinalsOfTheContractHold()
    {
        QCOMPARE(static_cast<int>(TEntityType::etPersonals), 2);
        QCOMPARE(static_cast<int>(TEntityType::etCities), EntityTypeCount - 1);
        QCOMPARE(static_cast<int>(LocateDBsOptions::ldCities), 30);
        QCOMPARE(static_cast<int>(THesabType::htFull), 5);
        QCOMPARE(static_cast<int>(TOperationType::otUnlock), 2);
        QCOMPARE(static_cast<int>(TMessageResult::mrYes), 6);
    }

    void aSetOfGroupsKeepsItsMembers()
    {
        TSelectGroups groups;
        QVERIFY(groups.IsEmpty());
        groups.Include(THCSelectGroups::sgAssets).Include(THCSelectGroups::sgIncomes);
        QVERIFY(groups.Contains(THCSelectGroups::sgIncomes));
        QVERIFY(!groups.Contains(THCSelectGroups::sgCosts));
        TRecordingHost host;
        QCOMPARE(Host().Accounting.AccGroupsToString(groups), QStringLiteral("1,4"));
        groups.Exclude(THCSelectGroups::sgAssets);
        QCOMPARE(groups.Bits(), 16U);
    }

    void loadedRunsOnceFromTheEventLoop()
    {
        const TRecordingHost host;
        TCountingFrame frame;
        QCOMPARE(frame.LoadedCount, 0);
        QCoreApplication::processEvents();
        QCOMPARE(frame.LoadedCount, 1);
        QVERIFY(Typing::ShowActive(&frame));
        QCOMPARE(frame.LoadedCount, 1);
    }

    void loadedRunsBeforeTheFirstShowing()
    {
        const TRecordingHost host;
        QWidget form;
        auto* frame = new TCountingFrame(&form);
        form.show();
        QCOMPARE(frame->LoadedCount, 1);
        QVERIFY(!frame->WasVisible);
        QVERIFY(frame->Showing());
        QCoreApplication::processEvents();
        QCOMPARE(frame->LoadedCount, 1);
        form.hide();
        QVERIFY(!frame->Showing());
    }

    void aFrameIsRightToLeft()
    {
        const TRecordingHost host;
        const TFrame frame;
        QCOMPARE(frame.layoutDirection(), Qt::RightToLeft);
    }

    void theClockRunsStopsAndIsPutForward()
    {
        TRecordingHost host;
        host.Clock.Stop();
        const quint32 before = Host().Clock.TickCount();
        QTest::qWait(20);
        QCOMPARE(Host().Clock.TickCount(), before);
        host.Clock.Advance(400);
        QCOMPARE(Host().Clock.TickCount(), before + 400);
        host.Clock.Start();
        QTRY_VERIFY(Host().Clock.TickCount() > before + 400);
    }
};

QTEST_MAIN(HostServicesTest)
#include "HostServicesTest.moc"
