#include "AdoError.h"
#include "ADOQuery.h"
#include "ATImageBox.h"
#include "Gallery.h"
#include "Pic_Show_UNT.h"
#include "PictureBytes.h"
#include "SmartLabel_TRV.h"
#include "SymbolButton.h"
#include "TestCase.h"
#include "Typing.h"

#include <QApplication>

using namespace PictureBytes;

namespace {

QString NotFound()
{
    return QStringLiteral("عکس پيدا نشد");
}

/// The frame before a gallery in which the record 25 of group 1 has three pictures: red in a file, green
/// stored, and one that is lost; the record 26 has one, the record 25 of group 2 another.
struct TViewer
{
    TGallery Gallery;
    std::unique_ptr<TPic_Show> Frame;

    TViewer()
    {
        const QString file = Gallery.Path(QStringLiteral("red.jpg"));
        Write(file, Jpeg(Qt::red));
        Gallery.Add(1, 25, QStringLiteral("قرمز.jpg"), {}, file);
        Gallery.Add(1, 25, QStringLiteral("سبز.png"), Png(Qt::green));
        Gallery.Add(1, 25, QStringLiteral("گم.jpg"), {});
        Gallery.Add(1, 26, QStringLiteral("آبی.jpg"), Jpeg(Qt::blue));
        Gallery.Add(2, 25, QStringLiteral("سیاه.png"), Png(Qt::black));
        Frame = std::make_unique<TPic_Show>();
    }
    QString Name() const { return Frame->Name_LBL->Caption(); }
    bool ShowsNothing() const { return Frame->Pic_IMG->Picture().isNull(); }
    bool Shows(const QColor& color) const
    {
        return !ShowsNothing() && IsPlain(Frame->Pic_IMG->Picture(), color);
    }
    QList<TSymbolButton*> Buttons() const
    {
        return {Frame->First_BTN, Frame->Prev_BTN, Frame->Next_BTN, Frame->Last_BTN};
    }
    /// How many of the navigation buttons are enabled.
    int Enabled() const
    {
        int count = 0;
        for (const TSymbolButton* button : Buttons())
            count += button->isEnabled() ? 1 : 0;
        return count;
    }
    void Press(TSymbolButton* button) const
    {
        button->setFocus();
        Typing::Press(button, Qt::Key_Space);
    }
};

} // namespace

class PicShowTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theControlsAreThoseOfTheForm()
    {
        const TViewer viewer;
        const TPic_Show& frame = *viewer.Frame;
        QCOMPARE(frame.size(), QSize(245, 279));
        QCOMPARE(frame.First_BTN->text(), QStringLiteral("7"));
        QCOMPARE(frame.Prev_BTN->text(), QStringLiteral("|"));
        QCOMPARE(frame.Next_BTN->text(), QStringLiteral("}"));
        QCOMPARE(frame.Last_BTN->text(), QStringLiteral("8"));
        QCOMPARE(frame.Close_BTN->text(), QStringLiteral("x"));
        QCOMPARE(frame.Display_QRY->Connection(), Host().DM.ADOConnection1());
        QCOMPARE(viewer.Enabled(), 0);
        QVERIFY(viewer.Frame->isRightToLeft());
    }

    void fromTheLeftComeFirstPrevNextAndLast()
    {
        const TViewer viewer;
        viewer.Frame->grab();
        const QList<TSymbolButton*> buttons = viewer.Buttons();
        for (qsizetype i = 1; i < buttons.size(); ++i)
            QVERIFY(buttons.at(i - 1)->geometry().right() < buttons.at(i)->geometry().left());
        QVERIFY(viewer.Frame->Next_BTN->x() - viewer.Frame->Prev_BTN->geometry().right() >
                viewer.Frame->Prev_BTN->x() - viewer.Frame->First_BTN->geometry().right());
    }

    void statementsAreToTheLetter()
    {
        TViewer viewer;
        const QString select =
            QStringLiteral("Select *,Cast(Id_Pic As Varchar)As Id_PicName from PhotoGallery\r\n");
        viewer.Frame->Load(0, 25, false);
        QCOMPARE(viewer.Gallery.Sent(), QStringList{select + QStringLiteral(" Where Id_Pic=25")});
        QCOMPARE(viewer.Frame->Display_QRY->RecordCount(), 4);
        viewer.Frame->Load(3, 25, false);
        QCOMPARE(viewer.Gallery.Sent(),
                 QStringList{select + QStringLiteral(" Where GRPCode=3\r\n And Id_Pic=25")});
    }

    void theFirstPictureIsShownWithItsName()
    {
        const TViewer viewer;
        viewer.Frame->Load(1, 25);
        QVERIFY(viewer.Shows(Qt::red));
        QVERIFY(viewer.Frame->Pic_IMG->IsFitted());
        QCOMPARE(viewer.Name(), QStringLiteral("قرمز.jpg"));
        QCOMPARE(viewer.Enabled(), 4);
        QVERIFY(viewer.Frame->Display_QRY->Active());
    }

    void oneCanGoThroughTheSetAndStopsAtItsEnds()
    {
        const TViewer viewer;
        QVERIFY(Typing::ShowActive(viewer.Frame.get()));
        viewer.Frame->Load(1, 25);
        viewer.Press(viewer.Frame->Next_BTN);
        QVERIFY(viewer.Shows(Qt::green));
        QCOMPARE(viewer.Name(), QString());
        viewer.Press(viewer.Frame->Next_BTN);
        QVERIFY(viewer.ShowsNothing());
        QCOMPARE(viewer.Name(), NotFound());
        viewer.Press(viewer.Frame->Next_BTN);
        QCOMPARE(viewer.Name(), NotFound());
        viewer.Press(viewer.Frame->Prev_BTN);
        QVERIFY(viewer.Shows(Qt::green));
        viewer.Press(viewer.Frame->First_BTN);
        QVERIFY(viewer.Shows(Qt::red));
        viewer.Press(viewer.Frame->Prev_BTN);
        QVERIFY(viewer.Shows(Qt::red));
        QCOMPARE(viewer.Name(), QStringLiteral("قرمز.jpg"));
        viewer.Press(viewer.Frame->Last_BTN);
        QCOMPARE(viewer.Name(), NotFound());
    }

    void nextOnTheLastPictureKeepsItWithItsName()
    {
        TViewer viewer;
        const QString file = viewer.Gallery.Path(QStringLiteral("last.png"));
        QVERIFY(Write(file, Png(Qt::blue)));
        viewer.Gallery.Add(1, 25, QStringLiteral("آخر.png"), {}, file);
        viewer.Frame->Load(1, 25);
        viewer.Frame->Last();
        viewer.Frame->Next();
        viewer.Frame->Next();
        QVERIFY(viewer.Shows(Qt::blue));
        QCOMPARE(viewer.Name(), QStringLiteral("آخر.png"));
    }

    void aSetOfOneIsShownWithAllButtonsDisabled()
    {
        const TViewer viewer;
        viewer.Frame->Load(1, 26);
        QVERIFY(viewer.Shows(Qt::blue));
        QCOMPARE(viewer.Enabled(), 0);
    }

    void anEmptySetShowsNothing()
    {
        const TViewer viewer;
        viewer.Frame->Load(1, 25);
        viewer.Frame->Load(1, 99);
        QVERIFY(viewer.ShowsNothing());
        QCOMPARE(viewer.Name(), QString());
        QCOMPARE(viewer.Enabled(), 0);
        viewer.Frame->Next();
        viewer.Frame->Prev();
        viewer.Frame->Last();
        QVERIFY(viewer.ShowsNothing());
    }

    void theSameSetIsNotReadAgainWhereThatIsAsked()
    {
        TViewer viewer;
        viewer.Frame->Load(-1, -1, true); // as if loaded already
        QCOMPARE(viewer.Gallery.Sent(), QStringList());
        viewer.Frame->Load(1, 25, true);
        viewer.Frame->Next();
        viewer.Gallery.Sent();
        viewer.Frame->Load(1, 25, true);
        QCOMPARE(viewer.Gallery.Sent(), QStringList());
        QVERIFY(viewer.Shows(Qt::green));
        viewer.Frame->Load(1, 25, false);
        QCOMPARE(viewer.Gallery.Sent().size(), 1);
        QVERIFY(viewer.Shows(Qt::red));
        viewer.Frame->Load(2, 25, true);
        QVERIFY(viewer.Shows(Qt::black));
    }

    void buttonsOfAClosedSetDoNothing()
    {
        const TViewer viewer;
        for (TSymbolButton* button : viewer.Buttons()) {
            button->setEnabled(true);
            viewer.Press(button);
        }
        QVERIFY(viewer.ShowsNothing());
    }

    void aDatabaseErrorIsNotCaughtAndLeavesNoSet()
    {
        TViewer viewer;
        viewer.Frame->Load(1, 26);
        viewer.Gallery.Connection.Execute(QStringLiteral("DROP TABLE PhotoGallery"));
        QVERIFY_THROWS_EXCEPTION(EADOError, viewer.Frame->Load(1, 25));
        QVERIFY(viewer.ShowsNothing());
        QCOMPARE(viewer.Enabled(), 0);
        QVERIFY_THROWS_EXCEPTION(EADOError, viewer.Frame->Load(1, 26, true));
    }

    void aPictureThatCannotBeReadLeavesThePlaceEmptyUnderItsName()
    {
        TViewer viewer;
        const QString file = viewer.Gallery.Path(QStringLiteral("corrupt.jpg"));
        QVERIFY(Write(file, QByteArray("corrupt")));
        viewer.Gallery.Add(3, 1, QStringLiteral("سالم.png"), Png(Qt::green));
        viewer.Gallery.Add(3, 1, QStringLiteral("خراب.jpg"), {}, file);
        viewer.Frame->Load(3, 1);
        viewer.Frame->Next();
        QVERIFY(viewer.ShowsNothing());
        QCOMPARE(viewer.Name(), QStringLiteral("خراب.jpg"));
        QCOMPARE(viewer.Gallery.Host.Log.Lines(), QStringList());
    }

    void whatStandsAboveIsLeftToAStoredCopyAndReplacedByAFilesName()
    {
        TViewer viewer;
        const QString file = viewer.Gallery.Path(QStringLiteral("nameless.png"));
        QVERIFY(Write(file, Png(Qt::blue)));
        viewer.Gallery.Add(4, 1, QStringLiteral("سبز.png"), Png(Qt::green));
        viewer.Gallery.Add(4, 1, QStringLiteral(""), {}, file);
        viewer.Frame->Load(4, 1);
        viewer.Frame->Name_LBL->SetCaption(QStringLiteral("از فرم"));
        viewer.Frame->SetPicture();
        QCOMPARE(viewer.Name(), QStringLiteral("از فرم"));
        viewer.Frame->Next();
        viewer.Frame->Name_LBL->SetCaption(QStringLiteral("از فرم"));
        viewer.Frame->SetPicture();
        QVERIFY(viewer.Shows(Qt::blue));
        QCOMPARE(viewer.Name(), QString());
    }

    void theKeyboardReachesEveryControl()
    {
        const TViewer viewer;
        QVERIFY(Typing::ShowActive(viewer.Frame.get()));
        viewer.Frame->Load(1, 25);
        const TPic_Show& frame = *viewer.Frame;
        frame.Close_BTN->setFocus();
        const QList<QWidget*> order{frame.Close_BTN, frame.Pic_IMG,  frame.Last_BTN,
                                    frame.Next_BTN,  frame.Prev_BTN, frame.First_BTN};
        for (QWidget* control : order) {
            QCOMPARE(QApplication::focusWidget(), control);
            QVERIFY(!control->accessibleName().isEmpty());
            Typing::Press(control, Qt::Key_Tab);
        }
    }
};

QTEST_MAIN(PicShowTest)
#include "PicShowTest.moc"
