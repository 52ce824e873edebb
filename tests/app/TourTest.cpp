#include "WorkbenchProcess.h"

#include <QDir>
#include <QImage>
#include <QTest>

class TourTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTourRunsGreenAndLeavesItsPictures()
    {
        TWorkbenchProcess workbench;
        const QString pictures = workbench.File(QStringLiteral("pictures"));
        const QString log = workbench.File(QStringLiteral("statements.sql"));
        const int code =
            workbench.Run({QStringLiteral("--database"), workbench.Database(QStringLiteral("shop.db")),
                           QStringLiteral("--tour"), pictures, QStringLiteral("--log-sql"), log},
                          200'000);
        QVERIFY2(code == 0, qPrintable(workbench.Output + workbench.Errors));
        const QStringList files = QDir(pictures).entryList({QStringLiteral("*.png")});
        QVERIFY2(files.size() >= 15, qPrintable(files.join(u' ')));
        for (const QString& file : files) {
            const QImage picture(QDir(pictures).filePath(file));
            QVERIFY2(picture.width() >= 1000 && picture.height() >= 600, qPrintable(file));
        }
        QVERIFY(files.contains(QStringLiteral("readme.png")));
        // One for each frame.
        const QDir frames(QDir(pictures).filePath(QStringLiteral("frames")));
        QCOMPARE(frames.entryList({QStringLiteral("*.png")}).size(), 27);
        QFile statements(log);
        QVERIFY(statements.open(QIODevice::ReadOnly));
        QVERIFY(statements.readAll().contains("dbo.KalaList"));
    }
};

QTEST_GUILESS_MAIN(TourTest)
#include "TourTest.moc"
