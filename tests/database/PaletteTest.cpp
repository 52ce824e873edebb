#include "Palette.h"

#include "TestDatabase.h"

#include <QImage>
#include <QTest>

class PaletteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        database_ = TTestDatabase::Empty();
        Palette::Complete(database_->Connection());
    }

    void anEmptyDatabaseGetsColoursToDefineTagsWith()
    {
        QVERIFY(Number(QStringLiteral("SELECT COUNT(*) FROM dbo.colors")) >= 10);
        database_->Execute(QStringLiteral("INSERT INTO dbo.TagS (Name, color_code) VALUES (N'نخستین', 1)"));
        QCOMPARE(database_->Value(QStringLiteral("SELECT cl_code FROM dbo.colors WHERE code = 1")).toString(),
                 QStringLiteral("clRed"));
    }

    void completingAgainAddsNothing()
    {
        const QByteArray before = database_->Content();
        Palette::Complete(database_->Connection());
        QCOMPARE(database_->Content(), before);
    }

    void onlyWhatIsMissingIsAdded()
    {
        const int all = Number(QStringLiteral("SELECT COUNT(*) FROM dbo.colors"));
        database_->Execute(QStringLiteral("DELETE FROM dbo.colors WHERE code IN (2, 5)"));
        database_->Execute(QStringLiteral("UPDATE dbo.colors SET [h-img] = NULL WHERE code = 3"));
        Palette::Complete(database_->Connection());
        QCOMPARE(Number(QStringLiteral("SELECT COUNT(*) FROM dbo.colors")), all);
        QCOMPARE(Number(QStringLiteral("SELECT COUNT(*) FROM dbo.colors WHERE [h-img] IS NULL")), 1);
    }

    void aColourOccursOnce()
    {
        QVERIFY_THROWS_EXCEPTION(EADOError, database_->Execute(QStringLiteral(
                                                "INSERT INTO dbo.colors (cl_code) VALUES (N'clRed')")));
    }

    void thePicturesAreDiscsOnATransparentGround()
    {
        for (const QVariantList& row :
             database_->Rows(QStringLiteral("SELECT [h-img], [l-img] FROM dbo.colors"))) {
            const QImage strong = QImage::fromData(row.at(0).toByteArray(), "PNG");
            const QImage light = QImage::fromData(row.at(1).toByteArray(), "PNG");
            QCOMPARE(strong.size(), QSize(16, 16));
            QCOMPARE(light.size(), QSize(16, 16));
            QCOMPARE(qAlpha(strong.pixel(0, 0)), 0);
            QCOMPARE(qAlpha(light.pixel(15, 15)), 0);
            QCOMPARE(qAlpha(strong.pixel(8, 8)), 255);
            QVERIFY(QColor(light.pixel(8, 8)).lightness() > QColor(strong.pixel(8, 8)).lightness());
        }
    }

private:
    int Number(const QString& statement) { return database_->Value(statement).toInt(); }

    std::unique_ptr<TTestDatabase> database_;
};

QTEST_GUILESS_MAIN(PaletteTest)
#include "PaletteTest.moc"
