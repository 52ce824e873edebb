#include "ADOCommand.h"
#include "GalleryFixture.h"
#include "Monkey.h"
#include "tags_frame.h"

#include <QRegularExpression>
#include <QSet>

namespace {

/// A statement without its literals, which may hold anything that was typed, halves of surrogate pairs too.
/// One that does not end leaves its quote.
QString WithoutLiterals(const QString& statement)
{
    QString shape;
    bool inside = false;
    for (const QChar character : statement) {
        if (character == u'\'')
            inside = !inside;
        else if (!inside)
            shape.append(character);
    }
    return inside ? shape + u'\'' : shape;
}

/// The tables that frames and their host write, and in which way.
bool IsKnownWrite(const QString& shape)
{
    static const QRegularExpression writes(
        QStringLiteral("^\\s*(?:INSERT INTO dbo\\.TagS\\b"
                       "|UPDATE dbo\\.FiscalYears SET Title = Title\\b"
                       "|(?:INSERT INTO|UPDATE|DELETE FROM) dbo\\.CodeLocks\\b"
                       "|(?:INSERT INTO|UPDATE|DELETE FROM) dbo\\.(?:Sanad|Sanad_Detail|Trades)\\b"
                       "|(?:INSERT INTO|DELETE FROM) dbo\\.FinancialReport(?:Detail)?\\b)"),
        QRegularExpression::CaseInsensitiveOption);
    return writes.match(shape).hasMatch();
}

/// What the tags frame writes, into records of its own.
bool IsTagging(const QString& shape)
{
    static const QRegularExpression tagging(QStringLiteral("^\\s*UPDATE dbo\\.Persons\\s+SET\\s+tags\\b"),
                                            QRegularExpression::CaseInsensitiveOption);
    return tagging.match(shape).hasMatch();
}

/// Nothing that was typed stands outside a literal, there is one statement, and it reads or writes what a
/// frame does.
bool IsKnown(const QString& statement, bool (*isKnownWrite)(const QString& shape) = IsKnownWrite)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_\\s.,()\\[\\]=<>*+\\-/%?&!|@:]*$"));
    static const QRegularExpression reads(QStringLiteral("^\\s*SELECT\\b"),
                                          QRegularExpression::CaseInsensitiveOption);
    const QString shape = WithoutLiterals(statement);
    return plain.match(shape).hasMatch() && !shape.contains(QStringLiteral("--")) &&
           !shape.contains(QStringLiteral("/*")) && (reads.match(shape).hasMatch() || isKnownWrite(shape));
}

int FromEnvironment(const char* name, int otherwise)
{
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber && number > 0 ? number : otherwise;
}

} // namespace

/// Random events over all frames. BASEFRAME_MONKEY_EVENTS in the environment is how many, and
/// BASEFRAME_MONKEY_SEED which ones.
class GalleryMonkeyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(IsKnown(QStringLiteral("SELECT Code FROM dbo.kala WHERE Name LIKE N'%''; DROP TABLE x--%'")));
        QVERIFY(!IsKnown(QStringLiteral("SELECT Code FROM dbo.kala WHERE Name = N''; DROP TABLE x--'")));
        QVERIFY(!IsKnown(QStringLiteral("SELECT Code FROM dbo.kala WHERE Name = آ")));
        QVERIFY(!IsKnown(QStringLiteral("SELECT Code FROM dbo.kala WHERE Name = N'x")));
        QVERIFY(!IsKnown(QStringLiteral("DELETE FROM dbo.kala")));
        QVERIFY(IsKnown(QStringLiteral("SELECT Code FROM dbo.kala WHERE Name = N'") + QChar(0xd83d) + u'\''));
        shop_ = std::make_unique<TGalleryFixture>();
        shop_->OpenGallery();
        QVERIFY(!IsKnown(QStringLiteral("UPDATE dbo.Persons SET tags = NULL")));
        Watch(shop_->Connection, IsKnownWrite);
        shop_->Gallery->Choose(shop_->EntryOf(QStringLiteral("TTags")));
        tags_ = qobject_cast<TTags*>(shop_->Gallery->ShownFrame());
        QVERIFY(tags_ != nullptr);
        Watch(*tags_->cmd->Connection(), IsTagging);
    }
    void cleanupTestCase() { shop_.reset(); }

    void nothingBreaks()
    {
        constexpr int Events = 3000;
        constexpr quint32 Seed = 14030702;
        constexpr double LongestGap = 1000; // milliseconds
        const int events = FromEnvironment("BASEFRAME_MONKEY_EVENTS", Events);
        const int frames = static_cast<int>(shop_->Gallery->Entries().size());
        // Every frame comes twice, and oftener in a long run.
        const int stay = qBound(1, events / (2 * frames), 500);
        TMonkey monkey(*shop_->Form, static_cast<quint32>(
                                         FromEnvironment("BASEFRAME_MONKEY_SEED", static_cast<int>(Seed))));
        QSet<QString> seen;
        monkey.Favourite = [this] { return shop_->Gallery->ShownFrame(); };
        monkey.BeforeEvent = [&](int number) {
            if (number % stay == 0 && QApplication::activeModalWidget() == nullptr) {
                shop_->Gallery->Choose(number / stay % frames);
                seen.insert(shop_->Gallery->Entries().at(shop_->Gallery->Chosen()).ClassName);
            }
            if (number % 500 == 0)
                CheckTags();
        };
        monkey.Run(events);
        TGalleryFixture::Settle();
        CheckTags();
        qInfo("%d events, %d statements, %d frames, %d message boxes; longest gap %.0f ms (%s)", events,
              statements_, static_cast<int>(seen.size()), static_cast<int>(shop_->Told.size()),
              monkey.LongestGap(), qPrintable(monkey.Slowest()));
        QVERIFY2(unknown_.isEmpty(), qPrintable(unknown_.join(u'\n')));
        QVERIFY2(malformed_.isEmpty(), qPrintable(malformed_.join(u'\n')));
        QVERIFY(statements_ > 0);
        QVERIFY(seen.size() > frames / 2);
        QVERIFY2(monkey.LongestGap() <= LongestGap, qPrintable(monkey.Slowest()));
        QVERIFY(shop_->Form->isVisible());
    }

private:
    void Watch(const TADOConnection& connection, bool (*isKnownWrite)(const QString& shape))
    {
        connect(&connection, &TADOConnection::willExecute, this, [this, isKnownWrite](const QString& text) {
            ++statements_;
            if (!IsKnown(text, isKnownWrite) && !unknown_.contains(text))
                unknown_.append(text);
        });
    }
    /// Null, or codes with a comma behind each and one before the first.
    void CheckTags()
    {
        CheckTags(shop_->Connection, QStringLiteral("dbo.Persons"));
        CheckTags(shop_->Connection, QStringLiteral("dbo.kala"));
        CheckTags(*tags_->cmd->Connection(), QStringLiteral("dbo.Persons"));
    }
    void CheckTags(TADOConnection& connection, const QString& table)
    {
        static const QRegularExpression codes(QStringLiteral("^,(?:[0-9]+,)+$"));
        TADOQuery query;
        query.SetConnection(&connection);
        query.SQL.SetText(QStringLiteral("SELECT DISTINCT tags FROM %1 WHERE tags IS NOT NULL").arg(table));
        for (query.Open(); !query.Eof(); query.Next()) {
            const QString tags = query.Field(0)->AsString();
            if (!codes.match(tags).hasMatch() && !malformed_.contains(tags))
                malformed_.append(tags);
        }
    }

    std::unique_ptr<TGalleryFixture> shop_;
    TTags* tags_ = nullptr;
    QStringList unknown_;
    QStringList malformed_;
    int statements_ = 0;
};

int main(int argc, char** argv)
{
    return RunFormTest<GalleryMonkeyTest>(argc, argv);
}
#include "GalleryMonkeyTest.moc"
