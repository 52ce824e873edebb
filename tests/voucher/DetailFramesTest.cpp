#include "ADOQuery.h"
#include "Detail_Button_UNT.h"
#include "GetVoucher_UNT.h"
#include "Look.h"
#include "RecordingHost.h"
#include "SmartButton_TRV.h"
#include "TestCase.h"
#include "Typing.h"

#include <QApplication>

namespace {

/// A table of voucher lines in memory, and a query of it.
struct TLines
{
    TLines()
    {
        Connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        Connection.Open();
        Connection.Execute(QStringLiteral("CREATE TABLE dbo.Lines (RowNo int NOT NULL PRIMARY KEY)"));
        Query.SetConnection(&Connection);
        Query.SQL.SetText(QStringLiteral("SELECT RowNo FROM dbo.Lines"));
    }
    void Add(int row)
    {
        Connection.Execute(QStringLiteral("INSERT INTO dbo.Lines (RowNo) VALUES (?)"), {row});
        Query.Close();
        Query.Open();
    }

    TADOConnection Connection;
    TADOQuery Query;
};

} // namespace

class DetailFramesTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }
    void theButtonsAreAsDesigned();
    void theButtonsStandFromTheRight();
    void tabGoesThroughTheButtonsFromTheRight();
    void anEmptyQueryDisablesEditingAndDeleting();
    void aRecordEnablesThem();
    void theNewButtonIsNeverTouched();
    void aQueryThatIsNotThereOrClosedHasNoRecord();
    void theOwnersClicksAreCalled();
    void theVouchersPlaceIsEmpty();
};

void DetailFramesTest::theButtonsAreAsDesigned()
{
    const TRecordingHost host;
    const TDetial_Grid_Frame frame;
    QCOMPARE(frame.size(), QSize(710, 35));
    QCOMPARE(frame.layoutDirection(), Qt::RightToLeft);
    QCOMPARE(frame.metaObject()->className(), "TDetial_Grid_Frame");
    QCOMPARE(frame.DeleteRecord_BTN->text(), QStringLiteral("حذف سطر"));
    QCOMPARE(frame.EditRecord_BTN->text(), QStringLiteral("ویرایش سطر"));
    QCOMPARE(frame.NewRecord_BTN->text(), QStringLiteral("سطر جدید"));
    for (const TSmartButton_TRV* button :
         {frame.DeleteRecord_BTN, frame.EditRecord_BTN, frame.NewRecord_BTN}) {
        QCOMPARE(button->Margin(), 5);
        QVERIFY(button->isEnabled());
        QVERIFY(!button->OnClick);
    }
}

void DetailFramesTest::theButtonsStandFromTheRight()
{
    const TRecordingHost host;
    TDetial_Grid_Frame frame;
    frame.grab();
    QCOMPARE(frame.DeleteRecord_BTN->width(), 93);
    QCOMPARE(frame.EditRecord_BTN->width(), 108);
    QCOMPARE(frame.NewRecord_BTN->width(), 93);
    QVERIFY(frame.DeleteRecord_BTN->x() > frame.EditRecord_BTN->x());
    QVERIFY(frame.EditRecord_BTN->x() > frame.NewRecord_BTN->x());
    QVERIFY(frame.DeleteRecord_BTN->geometry().right() > frame.width() - 5);
}

void DetailFramesTest::tabGoesThroughTheButtonsFromTheRight()
{
    const TRecordingHost host;
    TDetial_Grid_Frame frame;
    QVERIFY(Typing::ShowActive(&frame));
    frame.DeleteRecord_BTN->setFocus();
    Typing::Press(frame.DeleteRecord_BTN, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), frame.EditRecord_BTN);
    Typing::Press(frame.EditRecord_BTN, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), frame.NewRecord_BTN);
}

void DetailFramesTest::anEmptyQueryDisablesEditingAndDeleting()
{
    const TRecordingHost host;
    const TDetial_Grid_Frame frame;
    TLines lines;
    lines.Query.Open();
    frame.SetEnableButton(&lines.Query);
    QVERIFY(!frame.EditRecord_BTN->isEnabled());
    QVERIFY(!frame.DeleteRecord_BTN->isEnabled());
    QVERIFY(frame.NewRecord_BTN->isEnabled());
}

void DetailFramesTest::aRecordEnablesThem()
{
    const TRecordingHost host;
    const TDetial_Grid_Frame frame;
    TLines lines;
    lines.Query.Open();
    frame.SetEnableButton(&lines.Query);
    lines.Add(1);
    frame.SetEnableButton(&lines.Query);
    QVERIFY(frame.EditRecord_BTN->isEnabled());
    QVERIFY(frame.DeleteRecord_BTN->isEnabled());
}

void DetailFramesTest::theNewButtonIsNeverTouched()
{
    const TRecordingHost host;
    const TDetial_Grid_Frame frame;
    frame.NewRecord_BTN->setEnabled(false);
    TLines lines;
    lines.Add(1);
    frame.SetEnableButton(&lines.Query);
    QVERIFY(!frame.NewRecord_BTN->isEnabled());
}

void DetailFramesTest::aQueryThatIsNotThereOrClosedHasNoRecord()
{
    const TRecordingHost host;
    const TDetial_Grid_Frame frame;
    TLines lines;
    for (TADOQuery* query : {static_cast<TADOQuery*>(nullptr), &lines.Query}) {
        frame.EditRecord_BTN->setEnabled(true);
        frame.SetEnableButton(query);
        QVERIFY(!frame.EditRecord_BTN->isEnabled());
    }
}

void DetailFramesTest::theOwnersClicksAreCalled()
{
    const TRecordingHost host;
    TDetial_Grid_Frame frame;
    QStringList clicked;
    for (TSmartButton_TRV* button : {frame.DeleteRecord_BTN, frame.EditRecord_BTN, frame.NewRecord_BTN})
        button->OnClick = [&clicked](QObject* sender) { clicked << sender->objectName(); };
    QVERIFY(Typing::ShowActive(&frame));
    QTest::mouseClick(frame.DeleteRecord_BTN, Qt::LeftButton);
    QTest::mouseClick(frame.EditRecord_BTN, Qt::LeftButton);
    frame.NewRecord_BTN->setFocus();
    Typing::Press(frame.NewRecord_BTN, Qt::Key_Space);
    QCOMPARE(clicked, (QStringList{"DeleteRecord_BTN", "EditRecord_BTN", "NewRecord_BTN"}));
}

void DetailFramesTest::theVouchersPlaceIsEmpty()
{
    const TRecordingHost host;
    const TGetVoucher_FRM frame;
    QCOMPARE(frame.size(), QSize(619, 513));
    QVERIFY(frame.findChildren<QWidget*>().isEmpty());
    QCOMPARE(frame.metaObject()->superClass(), &TFrame::staticMetaObject);
}

QTEST_MAIN(DetailFramesTest)
#include "DetailFramesTest.moc"
