#include "PictureReader.h"
#include "PictureBytes.h"
#include "TestCase.h"

#include <ctime>
#include <QRegularExpression>
#include <QTemporaryDir>
#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using PictureReader::TFormat;
using namespace PictureBytes;

namespace {

/// The most memory that the process has held, in megabytes; 0 where the system does not tell.
qint64 PeakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    static const QRegularExpression peak(QStringLiteral("VmHWM:\\s+(\\d+) kB"));
    return peak.match(QString::fromLatin1(status.readAll())).captured(1).toLongLong() / 1024;
}

void ExpectDecoderWarning(const char* pattern)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QLatin1String(pattern)));
}

} // namespace

class PictureReaderTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theExtensionIsWhatFollowsTheLastDotOfTheName_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("extension");
        QTest::newRow("usual") << QStringLiteral("/a/b.jpg") << QStringLiteral(".jpg");
        QTest::newRow("case as it is") << QStringLiteral("B.JPG") << QStringLiteral(".JPG");
        QTest::newRow("the last dot") << QStringLiteral("b.png.jpeg") << QStringLiteral(".jpeg");
        QTest::newRow("a folder's dot") << QStringLiteral("/a.jpg/b") << QString();
        QTest::newRow("the other separator") << QStringLiteral("C:\\a.jpg\\b") << QString();
        QTest::newRow("none") << QStringLiteral("b") << QString();
        QTest::newRow("dot at the end") << QStringLiteral("b.") << QStringLiteral(".");
    }

    void theExtensionIsWhatFollowsTheLastDotOfTheName()
    {
        QFETCH(const QString, file);
        QTEST(PictureReader::ExtensionOf(file), "extension");
    }

    void formatsGoByExtensionsAndFirstBytes()
    {
        QCOMPARE(PictureReader::FormatOfExtension(QStringLiteral(".jpg")), TFormat::Jpeg);
        QCOMPARE(PictureReader::FormatOfExtension(QStringLiteral(".jpeg")), TFormat::Jpeg);
        QCOMPARE(PictureReader::FormatOfExtension(QStringLiteral(".png")), TFormat::Png);
        QCOMPARE(PictureReader::FormatOfExtension(QStringLiteral(".JPG")), TFormat::None);
        QCOMPARE(PictureReader::FormatOfExtension(QStringLiteral(".gif")), TFormat::None);
        QCOMPARE(PictureReader::FormatOfContent(Jpeg()), TFormat::Jpeg);
        QCOMPARE(PictureReader::FormatOfContent(Png()), TFormat::Png);
        QCOMPARE(PictureReader::FormatOfContent(QByteArray("GIF89a")), TFormat::None);
        QCOMPARE(PictureReader::FormatOfContent({}), TFormat::None);
    }

    void soundPicturesAreReadFromBytesAndFiles()
    {
        QVERIFY(IsPlain(PictureReader::FromBytes(Jpeg(Qt::blue), TFormat::Jpeg), Qt::blue));
        QVERIFY(IsPlain(PictureReader::FromBytes(Png(Qt::green), TFormat::Png), Qt::green));
        const QString path = folder_.filePath(QStringLiteral("عکس سالم.jpg"));
        QVERIFY(Write(path, Jpeg(Qt::blue)));
        QVERIFY(IsPlain(PictureReader::FromFile(path, TFormat::Jpeg), Qt::blue));
    }

    void whatIsNoPictureOfItsFormatIsNone_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("format");
        const auto jpeg = static_cast<int>(TFormat::Jpeg);
        const auto png = static_cast<int>(TFormat::Png);
        QTest::newRow("no bytes as JPEG") << QByteArray() << jpeg;
        QTest::newRow("no bytes as PNG") << QByteArray() << png;
        QTest::newRow("a text") << QByteArray("این عکس نیست") << jpeg;
        QTest::newRow("PNG called JPEG") << Png() << jpeg;
        QTest::newRow("JPEG called PNG") << Jpeg() << png;
        QTest::newRow("no format") << Jpeg() << static_cast<int>(TFormat::None);
        QTest::newRow("JPEG's first bytes") << Jpeg().left(3) << jpeg;
        QTest::newRow("JPEG cut off in its head") << Jpeg().left(60) << jpeg;
        QTest::newRow("segments without end") << QByteArray("\xFF\xD8\xFF\xE0\xFF\xFF") << jpeg;
        QTest::newRow("fill bytes without end") << QByteArray("\xFF\xD8") + QByteArray(5000, '\xFF') << jpeg;
        QTest::newRow("PNG's first bytes") << Png().left(12) << png;
    }

    void whatIsNoPictureOfItsFormatIsNone()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const int, format);
        QVERIFY(PictureReader::FromBytes(bytes, static_cast<TFormat>(format)).isNull());
        const QString path = folder_.filePath(QStringLiteral("فاسد.jpg"));
        QVERIFY(Write(path, bytes));
        QVERIFY(PictureReader::FromFile(path, static_cast<TFormat>(format)).isNull());
    }

    void aPngThatIsCutOffIsNone()
    {
        const QByteArray whole = Png(Qt::red, {400, 300});
        QVERIFY(PictureReader::FromBytes(whole.left(whole.size() / 2), TFormat::Png).isNull());
    }

    void aJpegThatIsCutOffShowsWhatIsThere()
    {
        const QByteArray whole = Jpeg(Qt::red, {400, 300});
        ExpectDecoderWarning("premature end");
        const QImage image = PictureReader::FromBytes(whole.left(whole.size() - 100), TFormat::Jpeg);
        QCOMPARE(image.size(), QSize(400, 300));
    }

    void oneByteWrongAnywhereDoesNoHarm()
    {
        // Decoders warn or not, as the byte will have it.
        const auto before =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        for (const QByteArray& sound : {Jpeg(Qt::red, {32, 24}), Png(Qt::red, {32, 24})}) {
            const TFormat format = PictureReader::FormatOfContent(sound);
            for (qsizetype place = 0; place < sound.size(); place += 3) {
                for (const char wrong : {'\0', '\xFF', static_cast<char>(~sound.at(place))}) {
                    QByteArray bytes = sound;
                    bytes[place] = wrong;
                    const QImage image = PictureReader::FromBytes(bytes, format);
                    QVERIFY(qint64{image.width()} * image.height() <= PictureReader::MostPixels);
                }
            }
        }
        qInstallMessageHandler(before);
    }

    void hugePicturesAreReadSmallerInBoundedMemoryAndTime_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("format");
        const auto jpeg = static_cast<int>(TFormat::Jpeg);
        const auto png = static_cast<int>(TFormat::Png);
        QTest::newRow("JPEG 20,000 x 20,000") << FlatJpeg(20000, 20000, false) << jpeg;
        QTest::newRow("JPEG 20,000 x 20,000 in colours") << FlatJpeg(20000, 20000, false, 1, 3) << jpeg;
        QTest::newRow("JPEG of odd sides") << FlatJpeg(19999, 19999, false) << jpeg;
        QTest::newRow("progressive JPEG 6,000 x 6,000") << FlatJpeg(6000, 6000, true, 10) << jpeg;
        QTest::newRow("PNG 5,700 x 5,700") << FlatPng(5700) << png;
        QTest::newRow("PNG of two bytes for each sample") << FlatPng(4000, 16) << png;
        QTest::newRow("PNG in passes") << FlatPng(2000, 8, true) << png;
    }

    void hugePicturesAreReadSmallerInBoundedMemoryAndTime()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const int, format);
        const qint64 before = PeakMemory();
        const std::clock_t start = std::clock();
        const QImage image = PictureReader::FromBytes(bytes, static_cast<TFormat>(format));
        // Of the processor's time: that of the clock on the wall others take as well.
        QVERIFY(std::clock() - start < CLOCKS_PER_SEC);
        QCOMPARE(image.width(), image.height());
        QVERIFY(image.width() > 1000);
        QVERIFY(qint64{image.width()} * image.height() <= PictureReader::MostPixels);
        constexpr qint64 mostMegabytes = 400;
        QVERIFY(PeakMemory() - before < mostMegabytes);
    }

    void picturesThatTakeTooMuchAreNone_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("format");
        const auto jpeg = static_cast<int>(TFormat::Jpeg);
        QTest::newRow("progressive JPEG") << FlatJpeg(20000, 20000, true) << jpeg;
        QTest::newRow("scans without number") << FlatJpeg(64, 64, true, 5000) << jpeg;
        QTest::newRow("many scans of a large picture") << FlatJpeg(4000, 4000, true, 60, 3) << jpeg;
        QTest::newRow("many bytes of a huge picture")
            << FlatJpeg(20000, 20000, false) + QByteArray(60'000'000, '\0') << jpeg;
        QTest::newRow("too large even as an eighth") << FlatJpeg(40000, 40000, false) << jpeg;
        QTest::newRow("coded arithmetically")
            << FlatJpeg(20000, 20000, false).replace("\xFF\xC0", "\xFF\xC9") << jpeg;
        QTest::newRow("small and coded arithmetically")
            << FlatJpeg(64, 64, false).replace("\xFF\xC0", "\xFF\xC9") << jpeg;
        QTest::newRow("components without factors") << FlatJpeg(64, 64, false).left(70) << jpeg;
        QTest::newRow("largest JPEG") << FlatJpeg(65500, 65500, false) << jpeg;
        QTest::newRow("PNG 20,000 x 20,000") << FlatPng(20000) << static_cast<int>(TFormat::Png);
        QTest::newRow("large PNG of two bytes for each sample")
            << FlatPng(4200, 16) << static_cast<int>(TFormat::Png);
        QTest::newRow("large PNG in passes") << FlatPng(4200, 8, true) << static_cast<int>(TFormat::Png);
        QTest::newRow("PNG of 2,000,000,000 in each direction")
            << FlatPng(100).replace(16, 8, QByteArray("\x77\x35\x94\0\x77\x35\x94\0", 8))
            << static_cast<int>(TFormat::Png);
    }

    void picturesThatTakeTooMuchAreNone()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const int, format);
        const qint64 before = PeakMemory();
        QVERIFY(PictureReader::FromBytes(bytes, static_cast<TFormat>(format)).isNull());
        constexpr qint64 mostMegabytes = 200;
        QVERIFY(PeakMemory() - before < mostMegabytes);
    }

    void aJpegWithoutSizeIsNone()
    {
        ExpectDecoderWarning("Empty JPEG image");
        QVERIFY(PictureReader::FromBytes(FlatJpeg(0, 0, false), TFormat::Jpeg).isNull());
    }

    void aProgressiveJpegOfOrdinarySizeIsRead()
    {
        QCOMPARE(PictureReader::FromBytes(FlatJpeg(640, 480, true), TFormat::Jpeg).size(), QSize(640, 480));
    }

    void foldersPipesDevicesAndMissingFilesAreNone()
    {
        const QString folder = folder_.filePath(QStringLiteral("folder.jpg"));
        QVERIFY(QDir().mkpath(folder));
        QStringList paths{folder, folder_.filePath(QStringLiteral("missing.jpg")), QString()};
#ifdef Q_OS_UNIX
        const QString pipe = folder_.filePath(QStringLiteral("pipe.jpg"));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
        const QString device = folder_.filePath(QStringLiteral("device.jpg"));
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), device));
        const QString loop = folder_.filePath(QStringLiteral("loop.jpg"));
        QVERIFY(QFile::link(loop, loop));
        paths << pipe << device << loop;
#endif
        for (const QString& path : paths) {
            QVERIFY2(!PictureReader::FileExists(path), qPrintable(path));
            QVERIFY2(PictureReader::FromFile(path, TFormat::Jpeg).isNull(), qPrintable(path));
        }
    }

    void aVeryLongFileIsNone()
    {
        const QString path = folder_.filePath(QStringLiteral("long.jpg"));
        QVERIFY(Write(path, Jpeg()));
        QVERIFY(QFile::resize(path, PictureReader::MostBytes + 1));
        QVERIFY(PictureReader::FromFile(path, TFormat::Jpeg).isNull());
    }

private:
    QTemporaryDir folder_;
};

QTEST_MAIN(PictureReaderTest)
#include "PictureReaderTest.moc"
