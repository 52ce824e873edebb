#include "CodeHolderText.h"

#include "HostSettingsFile.h"
#include "HostSystemClock.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

/// Without the characters that keep names and numbers in order inside the sentence.
QString Plain(QString text)
{
    return text.remove(QChar(0x2068)).remove(QChar(0x2069));
}

} // namespace

class CodeHolderTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHolderIsNamed_data()
    {
        QTest::addColumn<int>("user");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::newRow("another user")
            << 2 << QStringLiteral("سارا رضایی") << QStringLiteral("در دست «سارا رضایی» روی رایانهٔ «PC-2»");
        QTest::newRow("the same user") << 1 << QStringLiteral("علی")
                                       << QStringLiteral("در دست خود شما در برنامهٔ دیگری روی رایانهٔ «PC-2»");
        QTest::newRow("a user without a name")
            << 2 << QString() << QStringLiteral("در دست کاربر دیگری روی رایانهٔ «PC-2»");
        QTest::newRow("nobody signed in")
            << 0 << QString() << QStringLiteral("در دست کاربر دیگری روی رایانهٔ «PC-2»");
    }

    void theHolderIsNamed()
    {
        QFETCH(int, user);
        QFETCH(QString, name);
        QFETCH(QString, text);
        const QString phrase = Phrase({user, name, QStringLiteral("PC-2"), {}});
        QCOMPARE(phrase, QStringLiteral("هم‌اکنون ") + text);
    }

    void theTimeIsLocalAndTheDayIsToldWhereItIsAnother()
    {
        const QDateTime now = QDateTime::currentDateTime();
        const QString time = now.time().toString(QStringLiteral("HH:mm"));
        QVERIFY(PhraseOf(now.toUTC()).startsWith(QStringLiteral("از ساعت ") + time + u' '));
        const QDateTime earlier(QDate(2024, 3, 20), QTime(9, 5));
        QVERIFY2(PhraseOf(earlier.toUTC()).startsWith(QStringLiteral("از 1403/01/01 ساعت 09:05 ")),
                 qPrintable(PhraseOf(earlier.toUTC())));
    }

private:
    QString PhraseOf(const QDateTime& moment)
    {
        return Phrase({2, QStringLiteral("سارا رضایی"), QStringLiteral("PC-2"), moment});
    }
    QString Phrase(const TCodeHolder& holder)
    {
        return Plain(CodeHolderText::Phrase(holder, {1, QStringLiteral("علی")}, clock_));
    }

    QTemporaryDir folder_;
    THostSettings settings_{folder_.filePath(QStringLiteral("settings.ini"))};
    THostClock clock_{settings_};
};

QTEST_GUILESS_MAIN(CodeHolderTextTest)
#include "CodeHolderTextTest.moc"
