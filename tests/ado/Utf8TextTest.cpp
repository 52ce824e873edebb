#include "Utf8Text.h"

#include <QTest>

namespace {

QString ReadBehind(const QString& before, const QByteArray& bytes)
{
    std::u16string buffer = before.toStdU16String();
    AppendTextOfUtf8(bytes.constData(), bytes.size(), buffer);
    return QString::fromStdU16String(buffer);
}

} // namespace

class Utf8TextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void validTextIsReadToTheLetter_data();
    void validTextIsReadToTheLetter();
    void everyCharacterIsRead();
    void whatIsNoUtf8IsReplaced_data();
    void whatIsNoUtf8IsReplaced();
};

void Utf8TextTest::validTextIsReadToTheLetter_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QStringLiteral("");
    QTest::newRow("seven letters") << QStringLiteral("abcdefg");
    QTest::newRow("eight letters") << QStringLiteral("abcdefgh");
    QTest::newRow("Persian") << QStringLiteral("کالای شمارهٔ ۱۲ — بسته‌بندی");
    QTest::newRow("mixed") << QStringLiteral("abcdefgی12345678ک😀x");
    QTest::newRow("byte order mark first") << QString(QChar(0xFEFF)) + QStringLiteral("الف");
    QTest::newRow("zero within") << QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b");
}

void Utf8TextTest::validTextIsReadToTheLetter()
{
    QFETCH(QString, text);
    const QByteArray bytes = text.toUtf8();
    const QString read = TextOfUtf8(bytes.constData(), bytes.size());
    QCOMPARE(read, text);
    QVERIFY(!read.isNull());
    QCOMPARE(ReadBehind(QStringLiteral("پیش"), bytes), QStringLiteral("پیش") + text);
}

void Utf8TextTest::everyCharacterIsRead()
{
    for (char32_t character = 0; character <= QChar::LastValidCodePoint; ++character) {
        if (QChar::isSurrogate(character))
            continue;
        const QString text = QString::fromUcs4(&character, 1);
        const QByteArray bytes = text.toUtf8();
        if (TextOfUtf8(bytes.constData(), bytes.size()) != text)
            QFAIL(qPrintable(QStringLiteral("U+%1 is read otherwise").arg(character, 4, 16)));
    }
}

void Utf8TextTest::whatIsNoUtf8IsReplaced_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("lone continuation") << QByteArray("a\x80z");
    QTest::newRow("cut character") << QByteArray("a\xDA");
    QTest::newRow("cut long character") << QByteArray("a\xF0\x9F\x98");
    QTest::newRow("longer than need be") << QByteArray("a\xC0\xAFz");
    QTest::newRow("half a pair") << QByteArray("a\xED\xA0\x80z");
    QTest::newRow("behind the last character") << QByteArray("a\xF4\x90\x80\x80z");
    QTest::newRow("no lead byte") << QByteArray("a\xFFz");
    QTest::newRow("three bytes for one") << QByteArray("a\xE0\x80\xAFz");
}

void Utf8TextTest::whatIsNoUtf8IsReplaced()
{
    QFETCH(QByteArray, bytes);
    const QString text = TextOfUtf8(bytes.constData(), bytes.size());
    QVERIFY(text.startsWith(u'a'));
    QVERIFY(text.contains(QChar(QChar::ReplacementCharacter)));
    QCOMPARE(text.endsWith(u'z'), bytes.endsWith('z'));
    QCOMPARE(ReadBehind(QStringLiteral("پیش"), bytes), QStringLiteral("پیش") + text);
    const QByteArray withMark = QByteArray("\xEF\xBB\xBF") + bytes;
    QVERIFY(TextOfUtf8(withMark.constData(), withMark.size()).startsWith(QChar(0xFEFF)));
}

QTEST_APPLESS_MAIN(Utf8TextTest)
#include "Utf8TextTest.moc"
