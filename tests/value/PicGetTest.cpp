#include "Gallery.h"
#include "Pic_Get_UNT.h"
#include "PictureBytes.h"
#include "SmartButton_TRV.h"
#include "SmartPanel_TRV.h"
#include "TestCase.h"
#include "Typing.h"

#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

using namespace PictureBytes;

namespace {

/// The frame before its host, counting what it announces.
struct TEditor
{
    TGallery Gallery;
    std::unique_ptr<TPic_Get> Frame = std::make_unique<TPic_Get>();
    int Changes = 0;

    TEditor()
    {
        Frame->SetOnChange([this](QObject* sender) { Changes += sender == Frame.get() ? 1 : 1000; });
    }
    QString NewFile(const QString& name, const QByteArray& bytes = Jpeg(Qt::blue)) const
    {
        const QString path = Gallery.Path(name);
        return Write(path, bytes) ? path : QString();
    }
    bool ShowsPicture() const { return !Frame->Pic_IMG->pixmap(Qt::ReturnByValue).isNull(); }
    bool Shows(const QColor& color) const { return ShowsPicture() && IsPlain(Frame->Picture(), color); }
    void Press(QWidget* button) const
    {
        button->setFocus();
        Typing::Press(button, Qt::Key_Space);
    }
    /// Presses the button that chooses, and in the window that opens types a file's name; nothing cancels.
    void Choose(const QString& file) const
    {
        QTimer::singleShot(0, Frame.get(), [file] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return;
            auto* const name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            if (file.isEmpty()) {
                Typing::Press(name, Qt::Key_Escape);
                return;
            }
            name->setText(file);
            Typing::Press(name, Qt::Key_Return);
        });
        Press(Frame->PicInsert_BTN);
    }
};

} // namespace

class PicGetTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theControlsAreThoseOfTheForm()
    {
        const TEditor editor;
        const TPic_Get& frame = *editor.Frame;
        QCOMPARE(frame.size(), QSize(120, 140));
        editor.Frame->grab();
        QCOMPARE(frame.Pic_IMG->width(), 111);
        QVERIFY(frame.Pic_IMG->height() >= 96);
        QCOMPARE(frame.Pic_CXGB->Bevel(), TSmartPanel_TRV::bvLowered);
        QCOMPARE(frame.OpenPictureDialog1.Filter, QStringLiteral("JPEG Files (*.jpg)|*.jpg"));
        QCOMPARE(frame.PicInsert_BTN->toolTip(), QStringLiteral("انتخاب عکس"));
        QCOMPARE(frame.PicDelete_BTN->toolTip(), QStringLiteral("حذف عکس"));
        QCOMPARE(frame.PicInsert_BTN->text() + frame.PicDelete_BTN->text(), QString());
        QVERIFY(frame.PicDelete_BTN->geometry().right() < frame.PicInsert_BTN->geometry().left());
        QVERIFY(frame.Button_CXGB->geometry().top() > frame.Pic_IMG->geometry().bottom());
    }

    void theMenuBelongsToNoControlAndDoesNothing()
    {
        TEditor editor;
        editor.Frame->LoadPic(editor.NewFile(QStringLiteral("a.jpg")));
        QCOMPARE(editor.Frame->PicInsert_PMI->text(), QStringLiteral("انتخاب عکس"));
        QCOMPARE(editor.Frame->PicDelete_PMI->text(), QStringLiteral("حذف عکس"));
        editor.Frame->PicInsert_PMI->trigger();
        editor.Frame->PicDelete_PMI->trigger();
        QVERIFY(editor.ShowsPicture());
        QCOMPARE(editor.Changes, 1);
    }

    void aFileIsShownFittedAndRemembered()
    {
        TEditor editor;
        const QString path = editor.NewFile(QStringLiteral("عکس.jpg"));
        editor.Frame->LoadPic(path);
        QVERIFY(editor.Shows(Qt::blue));
        QCOMPARE(editor.Frame->PicAddress(), path);
        QCOMPARE(editor.Changes, 1);
        const QRect place = editor.Frame->Pic_IMG->geometry();
        QCOMPARE(editor.Gallery.Host.Log.Lines().constLast(),
                 QStringLiteral("FitPicture(Pic_IMG, %1, %2, %3, %4)")
                     .arg(place.left())
                     .arg(place.top())
                     .arg(place.width())
                     .arg(place.height()));
    }

    void anEmptyPathAndClearShowNone()
    {
        TEditor editor;
        for (const bool clears : {false, true}) {
            editor.Frame->LoadPic(editor.NewFile(QStringLiteral("a.jpg")));
            if (clears)
                editor.Frame->ClearPic();
            else
                editor.Frame->LoadPic(QString());
            QVERIFY(!editor.ShowsPicture());
            QVERIFY(editor.Frame->Picture().isNull());
            QCOMPARE(editor.Frame->PicAddress(), QString());
        }
        QCOMPARE(editor.Changes, 4);
    }

    void whatCannotBeLoadedLeavesNothing_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("missing") << QStringLiteral("missing.jpg");
        QTest::newRow("corrupt") << QStringLiteral("corrupt.jpg");
        QTest::newRow("PNG called JPEG") << QStringLiteral("disguised.jpg");
        QTest::newRow("a folder") << QStringLiteral("folder.jpg");
        QTest::newRow("no picture's extension") << QStringLiteral("text.txt");
    }

    void whatCannotBeLoadedLeavesNothing()
    {
        QFETCH(const QString, file);
        TEditor editor;
        editor.NewFile(QStringLiteral("corrupt.jpg"), QByteArray("\xFF\xD8\xFF\xE0 corrupt"));
        editor.NewFile(QStringLiteral("disguised.jpg"), Png());
        editor.NewFile(QStringLiteral("text.txt"));
        QVERIFY(QDir().mkpath(editor.Gallery.Path(QStringLiteral("folder.jpg"))));
        editor.Frame->LoadPic(editor.NewFile(QStringLiteral("a.jpg")));
        editor.Frame->LoadPic(editor.Gallery.Path(file));
        QVERIFY(!editor.ShowsPicture());
        QCOMPARE(editor.Frame->PicAddress(), QString());
        QCOMPARE(editor.Changes, 2);
        QCOMPARE(editor.Gallery.Host.Log.CountOf(QStringLiteral("ShowMessage")), 0);
    }

    void aFieldsPictureIsShownAndTheAddressKept()
    {
        TEditor editor;
        editor.Gallery.Add(1, 5, QStringLiteral("a.jpg"), Jpeg());
        editor.Gallery.Host.Pictures.Picture = Plain({20, 10}, Qt::green);
        const QString path = editor.NewFile(QStringLiteral("a.jpg"));
        editor.Frame->LoadPic(path);
        editor.Frame->LoadPic(editor.Gallery.All().FieldByName(QStringLiteral("picture")));
        QVERIFY(editor.Shows(Qt::green));
        QCOMPARE(editor.Frame->PicAddress(), path);
        QCOMPARE(editor.Changes, 2);
        QCOMPARE(editor.Gallery.Host.Log.CountOf(QStringLiteral("LoadFromDb")), 1);
    }

    void withoutFieldWithNullAndOnFailureNothingIsLeft()
    {
        TEditor editor;
        editor.Gallery.Add(1, 5, QStringLiteral("a.jpg"), {});
        editor.Gallery.Add(1, 6, QStringLiteral("b.jpg"), QByteArray("no picture"));
        TADOQuery& rows = editor.Gallery.All();
        TField* const field = rows.FieldByName(QStringLiteral("picture"));
        const QString path = editor.NewFile(QStringLiteral("a.jpg"));
        const auto leavesNothing = [&](TField* loaded) {
            editor.Frame->LoadPic(path);
            editor.Changes = 0;
            editor.Frame->LoadPic(loaded);
            return !editor.ShowsPicture() && editor.Frame->PicAddress().isEmpty() && editor.Changes == 1;
        };
        QVERIFY(leavesNothing(nullptr));
        QVERIFY(leavesNothing(field));
        QCOMPARE(editor.Gallery.Host.Log.CountOf(QStringLiteral("LoadFromDb")), 0);
        rows.Next();
        QVERIFY(leavesNothing(field)); // the host has no picture for these bytes
        QCOMPARE(editor.Gallery.Host.Log.CountOf(QStringLiteral("LoadFromDb")), 1);
    }

    void choosingAFileShowsIt_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("jpg") << QStringLiteral("new.jpg");
        QTest::newRow("JPG") << QStringLiteral("NEW.JPG");
    }

    void choosingAFileShowsIt()
    {
        QFETCH(const QString, name);
        TEditor editor;
        QVERIFY(Typing::ShowActive(editor.Frame.get()));
        const QString path = editor.NewFile(name);
        editor.Choose(path);
        QVERIFY(editor.Shows(Qt::blue));
        QCOMPARE(editor.Frame->PicAddress(), path);
        QCOMPARE(editor.Changes, 1);
    }

    void aFileOfAnotherExtensionIsIgnoredButAnnounced_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("jpeg") << QStringLiteral("new.jpeg");
        QTest::newRow("png") << QStringLiteral("new.png");
        QTest::newRow("none") << QStringLiteral("new");
    }

    void aFileOfAnotherExtensionIsIgnoredButAnnounced()
    {
        QFETCH(const QString, name);
        TEditor editor;
        QVERIFY(Typing::ShowActive(editor.Frame.get()));
        const QString before = editor.NewFile(QStringLiteral("before.jpg"), Jpeg(Qt::red));
        editor.Frame->LoadPic(before);
        editor.Choose(editor.NewFile(name));
        QVERIFY(editor.Shows(Qt::red));
        QCOMPARE(editor.Frame->PicAddress(), before);
        QCOMPARE(editor.Changes, 2);
        QCOMPARE(editor.Gallery.Host.Log.CountOf(QStringLiteral("ShowMessage")), 0);
    }

    void aChosenFileThatIsCorruptLeavesNothing()
    {
        TEditor editor;
        QVERIFY(Typing::ShowActive(editor.Frame.get()));
        editor.Frame->LoadPic(editor.NewFile(QStringLiteral("before.jpg")));
        editor.Choose(editor.NewFile(QStringLiteral("corrupt.jpg"), QByteArray("corrupt")));
        QVERIFY(!editor.ShowsPicture());
        QCOMPARE(editor.Frame->PicAddress(), QString());
        QCOMPARE(editor.Changes, 2);
    }

    void cancellingChangesNothing()
    {
        TEditor editor;
        QVERIFY(Typing::ShowActive(editor.Frame.get()));
        const QString path = editor.NewFile(QStringLiteral("a.jpg"));
        editor.Frame->LoadPic(path);
        editor.Choose({});
        QVERIFY(editor.ShowsPicture());
        QCOMPARE(editor.Frame->PicAddress(), path);
        QCOMPARE(editor.Changes, 1);
    }

    void aFrameThatGoesWhileTheWindowIsOpenDoesNoHarm()
    {
        TEditor editor;
        QVERIFY(Typing::ShowActive(editor.Frame.get()));
        QPushButton* const button = editor.Frame->PicInsert_BTN;
        QTimer::singleShot(0, qApp, [&editor] { editor.Frame.reset(); });
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(editor.Frame == nullptr);
        QCOMPARE(editor.Changes, 0);
    }

    void removingShowsNoneAndTells()
    {
        TEditor editor;
        QVERIFY(Typing::ShowActive(editor.Frame.get()));
        const QSignalSpy changed(editor.Frame.get(), &TPic_Get::pictureChanged);
        editor.Frame->LoadPic(editor.NewFile(QStringLiteral("a.jpg")));
        editor.Press(editor.Frame->PicDelete_BTN);
        QVERIFY(!editor.ShowsPicture());
        QCOMPARE(editor.Frame->PicAddress(), QString());
        QCOMPARE(editor.Changes, 2);
        QCOMPARE(changed.count(), 2);
    }

    void theAddressIsOnlyStored()
    {
        TEditor editor;
        editor.Frame->SetPicAddress(QStringLiteral("/elsewhere/a.jpg"));
        QCOMPARE(editor.Frame->PicAddress(), QStringLiteral("/elsewhere/a.jpg"));
        QVERIFY(!editor.ShowsPicture());
        QCOMPARE(editor.Changes, 0);
    }

    void aHandlerMayDestroyTheFrame()
    {
        TEditor editor;
        editor.Frame->SetOnChange([&editor](QObject*) { editor.Frame.reset(); });
        editor.Frame->ClearPic();
        QVERIFY(editor.Frame == nullptr);
    }

    void aLargerFrameFitsThePictureAgain()
    {
        TEditor editor;
        QVERIFY(Typing::ShowActive(editor.Frame.get()));
        editor.Frame->LoadPic(editor.NewFile(QStringLiteral("a.jpg")));
        editor.Gallery.Host.Log.Clear();
        editor.Frame->resize(300, 300);
        QTRY_VERIFY(editor.Gallery.Host.Log.CountOf(QStringLiteral("FitPicture")) > 0);
        QCOMPARE(editor.Changes, 1);
    }
};

QTEST_MAIN(PicGetTest)
#include "PicGetTest.moc"
