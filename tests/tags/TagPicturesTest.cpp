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
        const TTagPictures pictures = Read(tables);
        const QStringList order{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")};
        QCOMPARE(pictures.Colors(), order + order);
        QCOMPARE(pictures.Images().size(), 6);
        QCOMPARE(pictures.IndexOf(QStringLiteral("2")), 1);
        QCOMPARE(pictures.IndexOf(QStringLiteral("8")), -1);
        QCOMPARE(pictures.IndexOf(QString()), -1);
        QCOMPARE(pictures.Images()[1].pixelColor(0, 0), QColor(32, 96, 192));
    }

    void theAlphaChannelIsNotPremultiplied()
    {
        TTagTables tables;
        const QImage light = Read(tables).Images().at(3);
        QCOMPARE(light.format(), QImage::Format_ARGB32);
        QCOMPARE(light.pixel(3, 3), qRgba(208, 48, 48, 128));
    }

    void aBrokenPictureKeepsItsPlace()
    {
        TTagTables tables;
        tables.Connection.Execute(QStringLiteral("UPDATE colors SET [h-img] = NULL WHERE code = 1"));
        tables.Connection.Execute(QStringLiteral("UPDATE colors SET [h-img] = ? WHERE code = 2"),
                                  {QByteArray("no picture at all")});
        const TTagPictures pictures = Read(tables);
        QVERIFY(pictures.Images().at(0).isNull());
        QVERIFY(pictures.Images().at(1).isNull());
        QCOMPARE(pictures.Images().at(2).pixelColor(0, 0), QColor(0, 128, 0));
        QCOMPARE(pictures.Images().size(), 6);
    }

    void aNewBeginningForgetsTheOldPictures()
    {
        TTagTables tables;
        TTagPictures pictures = Read(tables);
        pictures.Clear();
        QVERIFY(pictures.Images().isEmpty());
        QCOMPARE(pictures.IndexOf(QStringLiteral("1")), -1);
    }

    void theQueryIsLeftWithAllColors()
    {
        TTagTables tables;
        Read(tables);
        QCOMPARE(tables.Query.RecordCount(), 3);
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
