#include "TagPictures.h"
#include "TagStore.h"
#include "TagTables.h"
#include "TestCase.h"

#include <QColor>

class TagPicturesTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void strongPicturesComeBeforeLightOnes()
    {
        TTagTables tables;
        tables.AddColor(7, QStringLiteral("clRed"), QColor(200, 10, 20));
        tables.AddColor(3, QStringLiteral("clBlue"), QColor(10, 20, 200));
        const TTagPictures pictures = Read(tables);
        const QStringList order{QStringLiteral("3"), QStringLiteral("7"), QStringLiteral("3"),
                                QStringLiteral("7")};
        QCOMPARE(pictures.Colors(), order);
        QCOMPARE(pictures.Images().size(), 4);
        QCOMPARE(pictures.IndexOf(QStringLiteral("7")), 1);
        QCOMPARE(pictures.IndexOf(QStringLiteral("8")), -1);
        QCOMPARE(pictures.IndexOf(QString()), -1);
        QCOMPARE(pictures.Images()[1].pixelColor(0, 0), QColor(200, 10, 20));
    }

    void theAlphaChannelIsNotPremultiplied()
    {
        TTagTables tables;
        tables.AddColor(1, QStringLiteral("clRed"), QColor(200, 10, 20));
        const QImage light = Read(tables).Images().at(1);
        QCOMPARE(light.format(), QImage::Format_ARGB32);
        QCOMPARE(light.pixel(3, 3), qRgba(200, 10, 20, 128));
    }

    void aBrokenPictureKeepsItsPlace()
    {
        TTagTables tables;
        tables.AddColor(1, QStringLiteral("clRed"), Qt::red);
        tables.AddColor(2, QStringLiteral("clBlue"), Qt::blue);
        tables.AddColor(3, QStringLiteral("clLime"), Qt::green);
        tables.Connection.Execute(QStringLiteral("UPDATE colors SET [h-img] = NULL WHERE code = 1"));
        tables.Connection.Execute(QStringLiteral("UPDATE colors SET [h-img] = ? WHERE code = 2"),
                                  {QByteArray("no picture at all")});
        const TTagPictures pictures = Read(tables);
        QVERIFY(pictures.Images().at(0).isNull());
        QVERIFY(pictures.Images().at(1).isNull());
        QCOMPARE(pictures.Images().at(2).pixelColor(0, 0), QColor(Qt::green));
        QCOMPARE(pictures.Images().size(), 6);
    }

    void aNewBeginningForgetsTheOldPictures()
    {
        TTagTables tables;
        tables.AddColor(1, QStringLiteral("clRed"), Qt::red);
        TTagPictures pictures = Read(tables);
        pictures.Clear();
        QVERIFY(pictures.Images().isEmpty());
        QCOMPARE(pictures.IndexOf(QStringLiteral("1")), -1);
    }

    void theQueryIsLeftWithAllColors()
    {
        TTagTables tables;
        tables.AddColor(1, QStringLiteral("clRed"), Qt::red);
        tables.AddColor(2, QStringLiteral("clBlue"), Qt::blue);
        Read(tables);
        QCOMPARE(tables.Query.RecordCount(), 2);
        QVERIFY(!tables.Query.ControlsDisabled());
    }

private:
    static TTagPictures Read(TTagTables& tables)
    {
        TTagPictures pictures;
        pictures.Add(tables.Query, TagStatements::StrongPictures(), QStringLiteral("code"),
                     QStringLiteral("h-img"));
        pictures.Add(tables.Query, TagStatements::LightPictures(), QStringLiteral("code"),
                     QStringLiteral("l-img"));
        return pictures;
    }
};

QTEST_GUILESS_MAIN(TagPicturesTest)
#include "TagPicturesTest.moc"
