#include "PictureServices.h"
#include "ADOConnection.h"
#include "ADOQuery.h"

#include <QBuffer>
#include <QLabel>
#include <QTest>

namespace {

QByteArray Saved(const char* format, const QColor& color)
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

/// One row with a blob.
struct TStored
{
    TADOConnection Connection;
    TADOQuery Query;
    THostPictures Pictures;

    explicit TStored(const QVariant& bytes)
    {
        Connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        Connection.Open();
        Connection.Execute(QStringLiteral("CREATE TABLE Stored (picture varbinary(max), name nvarchar(20))"));
        Connection.Execute(QStringLiteral("INSERT INTO Stored (picture, name) VALUES (?, N'نام')"), {bytes});
        Query.SetConnection(&Connection);
        Query.SQL.SetText(QStringLiteral("SELECT picture, name FROM Stored"));
        Query.Open();
    }
    TField* Field(const QString& name) { return Query.FieldByName(name); }
};

} // namespace

class PictureServicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aStoredPictureIsReadByItsContent_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("JPEG") << Saved("JPG", Qt::blue);
        QTest::newRow("PNG") << Saved("PNG", Qt::blue);
    }

    void aStoredPictureIsReadByItsContent()
    {
        QFETCH(const QByteArray, bytes);
        TStored stored(bytes);
        QImage picture;
        QVERIFY(stored.Pictures.LoadFromDb(picture, stored.Field(QStringLiteral("picture"))));
        QCOMPARE(picture.size(), QSize(40, 20));
        QVERIFY(picture.pixelColor(20, 10).blue() > 240);
    }

    void whatIsNoPictureGivesNone_data()
    {
        QTest::addColumn<QVariant>("bytes");
        QTest::addColumn<QString>("field");
        QTest::newRow("NULL") << QVariant() << QStringLiteral("picture");
        QTest::newRow("no bytes") << QVariant(QByteArray("")) << QStringLiteral("picture");
        QTest::newRow("other bytes") << QVariant(QByteArray("GIF89a")) << QStringLiteral("picture");
        QTest::newRow("cut off") << QVariant(Saved("PNG", Qt::red).left(20)) << QStringLiteral("picture");
        QTest::newRow("a text") << QVariant() << QStringLiteral("name");
    }

    void whatIsNoPictureGivesNone()
    {
        QFETCH(const QVariant, bytes);
        QFETCH(const QString, field);
        TStored stored(bytes);
        QImage picture(5, 5, QImage::Format_RGB32);
        QVERIFY(!stored.Pictures.LoadFromDb(picture, stored.Field(field)));
        QVERIFY(picture.isNull());
    }

    void withoutFieldThereIsNoPicture()
    {
        THostPictures pictures;
        QImage picture(5, 5, QImage::Format_RGB32);
        QVERIFY(!pictures.LoadFromDb(picture, nullptr));
        QVERIFY(picture.isNull());
    }

    void aPictureIsFittedIntoTheBoxInItsProportions_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSizeF>("fitted");
        QTest::newRow("wide") << QSize(400, 200) << QSizeF(100, 50);
        QTest::newRow("high") << QSize(200, 400) << QSizeF(40, 80);
        QTest::newRow("small") << QSize(10, 10) << QSizeF(80, 80);
        QTest::newRow("a line") << QSize(4000, 1) << QSizeF(100, 1);
    }

    void aPictureIsFittedIntoTheBoxInItsProportions()
    {
        QFETCH(const QSize, picture);
        QFETCH(const QSizeF, fitted);
        QLabel label;
        label.setGeometry(5, 6, 100, 80);
        QPixmap pixmap(picture);
        pixmap.fill(Qt::red);
        label.setPixmap(pixmap);
        THostPictures().FitPicture(&label, 5, 6, 100, 80);
        QCOMPARE(label.pixmap(Qt::ReturnByValue).deviceIndependentSize(), fitted);
        QCOMPARE(label.geometry(), QRect(5, 6, 100, 80));
    }

    void withoutPictureOrRoomNothingHappens()
    {
        THostPictures pictures;
        pictures.FitPicture(nullptr, 0, 0, 10, 10);
        QLabel label;
        pictures.FitPicture(&label, 0, 0, 10, 10);
        QVERIFY(label.pixmap(Qt::ReturnByValue).isNull());
        QPixmap pixmap(30, 20);
        pixmap.fill(Qt::red);
        label.setPixmap(pixmap);
        pictures.FitPicture(&label, 0, 0, 0, 10);
        pictures.FitPicture(&label, 0, 0, -5, -5);
        QCOMPARE(label.pixmap(Qt::ReturnByValue).size(), QSize(30, 20));
    }
};

QTEST_MAIN(PictureServicesTest)
#include "PictureServicesTest.moc"
