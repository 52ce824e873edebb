#include "PictureSet.h"
#include "Gallery.h"
#include "OrdinaryUser.h"
#include "PictureBytes.h"
#include "TestCase.h"

using namespace PictureBytes;

class PictureSetTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aGroupBelowOneMeansAllGroups()
    {
        const QString select =
            QStringLiteral("Select *,Cast(Id_Pic As Varchar)As Id_PicName from PhotoGallery");
        for (const int group : {0, -1})
            QCOMPARE(PictureSet::Statement(group, 25),
                     (QStringList{select, QStringLiteral(" Where Id_Pic=25")}));
        QCOMPARE(PictureSet::Statement(3, 25),
                 (QStringList{select, QStringLiteral(" Where GRPCode=3"), QStringLiteral(" And Id_Pic=25")}));
    }

    void aFileIsTakenByItsExtensionInAnyCase_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("isShown");
        QTest::newRow("jpg") << QStringLiteral("a.jpg") << Jpeg(Qt::blue) << true;
        QTest::newRow("JPG") << QStringLiteral("a.JPG") << Jpeg(Qt::blue) << true;
        QTest::newRow("jpeg") << QStringLiteral("a.jpeg") << Jpeg(Qt::blue) << true;
        QTest::newRow("JpEg") << QStringLiteral("a.JpEg") << Jpeg(Qt::blue) << true;
        QTest::newRow("png") << QStringLiteral("a.png") << Png(Qt::blue) << true;
        QTest::newRow("PNG") << QStringLiteral("a.PNG") << Png(Qt::blue) << true;
        QTest::newRow("another extension") << QStringLiteral("a.bmp") << Jpeg(Qt::blue) << false;
        QTest::newRow("no extension") << QStringLiteral("a") << Jpeg(Qt::blue) << false;
        QTest::newRow("PNG called JPEG") << QStringLiteral("a.jpg") << Png(Qt::blue) << false;
        QTest::newRow("corrupt") << QStringLiteral("a.jpg") << QByteArray("هیچ") << false;
    }

    void aFileIsTakenByItsExtensionInAnyCase()
    {
        QFETCH(const QString, file);
        QFETCH(const QByteArray, content);
        QFETCH(const bool, isShown);
        TGallery gallery;
        QVERIFY(Write(gallery.Path(file), content));
        // The stored copy does not count while there is a file, be it one that cannot be shown.
        gallery.Add(1, 5, QStringLiteral("نام.jpg"), Jpeg(Qt::red), gallery.Path(file));
        const PictureSet::TShown shown = PictureSet::Current(gallery.All());
        QCOMPARE(!shown.Image.isNull(), isShown);
        QVERIFY(!isShown || IsPlain(shown.Image, Qt::blue));
        QCOMPARE(shown.Name.value_or(QString()), QStringLiteral("نام.jpg"));
    }

    void aStoredCopyIsTakenByItsNameAsItStands_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("isShown");
        QTest::newRow("jpg") << QStringLiteral("a.jpg") << Jpeg(Qt::blue) << true;
        QTest::newRow("png") << QStringLiteral("a.png") << Png(Qt::blue) << true;
        QTest::newRow("JPG") << QStringLiteral("a.JPG") << Jpeg(Qt::blue) << false;
        QTest::newRow("jpeg") << QStringLiteral("a.jpeg") << Jpeg(Qt::blue) << false;
        QTest::newRow("PNG") << QStringLiteral("a.PNG") << Png(Qt::blue) << false;
        QTest::newRow("none") << QStringLiteral("a") << Jpeg(Qt::blue) << false;
        QTest::newRow("empty") << QStringLiteral("a.jpg") << QByteArray("") << false;
        QTest::newRow("JPEG called PNG") << QStringLiteral("a.png") << Jpeg(Qt::blue) << false;
    }

    void aStoredCopyIsTakenByItsNameAsItStands()
    {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, content);
        QFETCH(const bool, isShown);
        TGallery gallery;
        gallery.Add(1, 5, name, content);
        const PictureSet::TShown shown = PictureSet::Current(gallery.All());
        QCOMPARE(!shown.Image.isNull(), isShown);
        QVERIFY(!shown.Name);
    }

    void whatIsNoFileLeavesTheStoredCopy_data()
    {
        QTest::addColumn<QString>("address");
        QTest::newRow("missing") << QStringLiteral("missing.jpg");
        QTest::newRow("a folder") << QStringLiteral("folder.jpg");
    }

    void whatIsNoFileLeavesTheStoredCopy()
    {
        QFETCH(const QString, address);
        TGallery gallery;
        QVERIFY(QDir().mkpath(gallery.Path(QStringLiteral("folder.jpg"))));
        gallery.Add(1, 5, QStringLiteral("a.jpg"), Jpeg(Qt::blue), gallery.Path(address));
        const PictureSet::TShown shown = PictureSet::Current(gallery.All());
        QVERIFY(IsPlain(shown.Image, Qt::blue));
        QVERIFY(!shown.Name);
    }

    void aFolderThatMayNotBeReadLeavesTheStoredCopy()
    {
        TGallery gallery;
        const QString folder = gallery.Path(QStringLiteral("closed"));
        const QString file = folder + QStringLiteral("/a.jpg");
        QVERIFY(QDir().mkpath(folder) && Write(file, Jpeg(Qt::red)));
        gallery.Add(1, 5, QStringLiteral("a.jpg"), Jpeg(Qt::blue), file);
        TADOQuery& rows = gallery.All();
        PictureSet::TShown shown;
        QVERIFY(QFile::setPermissions(folder, {}));
        AsOrdinaryUser([&] { shown = PictureSet::Current(rows); });
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QVERIFY(IsPlain(shown.Image, Qt::blue));
    }

    void aFileThatMayNotBeReadShowsNothingUnderItsName()
    {
        TGallery gallery;
        const QString file = gallery.Path(QStringLiteral("a.jpg"));
        QVERIFY(Write(file, Jpeg(Qt::red)));
        gallery.Add(1, 5, QStringLiteral("a.jpg"), Jpeg(Qt::blue), file);
        TADOQuery& rows = gallery.All();
        PictureSet::TShown shown;
        QVERIFY(QFile::setPermissions(file, {}));
        AsOrdinaryUser([&] { shown = PictureSet::Current(rows); });
        QVERIFY(shown.Image.isNull());
        QCOMPARE(shown.Name.value_or(QString()), QStringLiteral("a.jpg"));
    }

    void withoutFileAndCopyTheNameSaysSo()
    {
        TGallery gallery;
        gallery.Add(1, 5, QStringLiteral("a.jpg"), {}, gallery.Path(QStringLiteral("missing.jpg")));
        const PictureSet::TShown shown = PictureSet::Current(gallery.All());
        QVERIFY(shown.Image.isNull());
        QCOMPARE(shown.Name.value_or(QString()), QStringLiteral("عکس پيدا نشد"));
    }
};

QTEST_MAIN(PictureSetTest)
#include "PictureSetTest.moc"
