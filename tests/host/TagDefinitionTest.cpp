#include "TagDefinition.h"

#include "SharedDatabase.h"

#include "AdoError.h"

#include <algorithm>
#include <QTest>
#include <thread>
#include <vector>

namespace {

constexpr int plenty = 200;

int Count(TADOConnection& connection, const QString& table)
{
    return TSharedDatabase::Value(connection, QStringLiteral("SELECT COUNT(*) FROM ") + table).toInt();
}

} // namespace

class TagDefinitionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        connection_.reset();
        database_ = std::make_unique<TSharedDatabase>();
        connection_ = database_->Connect();
    }

    void aNewTagGetsACodeOfItsOwn()
    {
        const TTagDefinition tags(*connection_, plenty);
        const int first = tags.Create(QStringLiteral("فصلی"), 3);
        const int second = tags.Create(QStringLiteral("وارداتی"), 3);
        QVERIFY(first > 0);
        QVERIFY(second > first);
        QCOMPARE(Stored(second), QStringLiteral("وارداتی"));
        QCOMPARE(Value(QStringLiteral("SELECT color_code FROM dbo.TagS WHERE Code = %1").arg(second)).toInt(),
                 3);
    }

    void aNameThatIsThereIsNotCreatedAgain()
    {
        const TTagDefinition tags(*connection_, plenty);
        QVERIFY(tags.Create(QStringLiteral("VIP"), 1) > 0);
        const int before = Count(*connection_, QStringLiteral("dbo.TagS"));
        QCOMPARE(tags.Create(QStringLiteral("VIP"), 2), TTagDefinition::NameIsTaken);
        QCOMPARE(tags.Create(QStringLiteral("vip"), 2), TTagDefinition::NameIsTaken);
        QCOMPARE(Count(*connection_, QStringLiteral("dbo.TagS")), before);
        QVERIFY(tags.HasTag(QStringLiteral("Vip")));
    }

    void aColourThatIsNotThereIsAnError()
    {
        const TTagDefinition tags(*connection_, plenty);
        QVERIFY_THROWS_EXCEPTION(EADOError, tags.Create(QStringLiteral("بی‌رنگ"), 9999));
        QVERIFY(!tags.HasTag(QStringLiteral("بی‌رنگ")));
    }

    void hostileNamesComeBackAsTheyWere_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("quotes") << QStringLiteral("او گفت 'نه' \"آری\"");
        QTest::newRow("a statement") << QStringLiteral("'; DROP TABLE TagS; --");
        QTest::newRow("commas") << QStringLiteral(",5,12,");
        QTest::newRow("wildcards") << QStringLiteral("100%_[a-z]]");
        QTest::newRow("emoji") << QStringLiteral("ویژه 🌟👨‍👩‍👧");
        QTest::newRow("direction marks") << QStringLiteral("\u200Fالف\u202Eabc\u2066ب");
        QTest::newRow("half space") << QStringLiteral("می‌خواهم");
        QTest::newRow("fifty characters") << QString(50, u'م');
        QTest::newRow("digits of another script") << QStringLiteral("مدل ۲");
    }

    void hostileNamesComeBackAsTheyWere()
    {
        QFETCH(QString, name);
        const TTagDefinition tags(*connection_, plenty);
        const int code = tags.Create(name, 1);
        QVERIFY(code > 0);
        QCOMPARE(Stored(code), name);
        QCOMPARE(tags.Create(name, 1), TTagDefinition::NameIsTaken);
    }

    void theLimitHoldsAtTheMomentOfWriting()
    {
        const int there = Count(*connection_, QStringLiteral("dbo.TagS"));
        const TTagDefinition tags(*connection_, there + 1);
        QVERIFY(tags.HasRoom());
        const std::unique_ptr<TADOConnection> other = database_->Connect();
        QVERIFY(TTagDefinition(*other, there + 1).Create(QStringLiteral("پیش‌دستی"), 1) > 0);
        QCOMPARE(tags.Create(QStringLiteral("دیرآمده"), 1), TTagDefinition::LimitReached);
        QVERIFY(!tags.HasRoom());
        QVERIFY(!tags.HasTag(QStringLiteral("دیرآمده")));
    }

    void ofManyUsersOneCreatesAName()
    {
        const QString name = QStringLiteral("هم‌زمان");
        std::vector<int> answers(8);
        std::vector<std::thread> users;
        users.reserve(answers.size());
        for (int& answer : answers) {
            users.emplace_back([this, &answer, &name] {
                const std::unique_ptr<TADOConnection> own = database_->Connect();
                answer = TTagDefinition(*own, plenty).Create(name, 2);
            });
        }
        for (std::thread& user : users)
            user.join();
        const auto created =
            std::count_if(answers.begin(), answers.end(), [](int answer) { return answer > 0; });
        const auto refused = std::count(answers.begin(), answers.end(), int(TTagDefinition::NameIsTaken));
        QCOMPARE(created, 1);
        QCOMPARE(refused, 7);
    }

    void theColoursTellHowOftenTheyAreUsed()
    {
        const TTagDefinition tags(*connection_, plenty);
        const QVector<TTagColor> before = tags.Colors();
        QVERIFY(before.size() >= 10);
        tags.Create(QStringLiteral("رنگی"), before.at(4).Code);
        const QVector<TTagColor> after = tags.Colors();
        QCOMPARE(after.at(4).Uses, before.at(4).Uses + 1);
        QCOMPARE(after.at(5).Uses, before.at(5).Uses);
        QVERIFY(!after.at(4).Notation.isEmpty());
    }

    void aDatabaseWithoutAPaletteGetsOne()
    {
        connection_->Execute(QStringLiteral("DELETE FROM dbo.TagS"));
        connection_->Execute(QStringLiteral("DELETE FROM dbo.colors"));
        const TTagDefinition tags(*connection_, plenty);
        const QVector<TTagColor> colors = tags.Colors();
        QVERIFY(colors.size() >= 10);
        QCOMPARE(Count(*connection_, QStringLiteral("dbo.colors WHERE [h-img] IS NULL OR [l-img] IS NULL")),
                 0);
        QVERIFY(tags.Create(QStringLiteral("نخستین"), colors.constFirst().Code) > 0);
        QCOMPARE(tags.Colors().size(), colors.size());
    }

    void aPaletteOfAnotherHostIsLeftAsItIs()
    {
        connection_->Execute(QStringLiteral("DELETE FROM dbo.TagS"));
        connection_->Execute(QStringLiteral("DELETE FROM dbo.colors"));
        connection_->Execute(QStringLiteral("INSERT INTO dbo.colors (cl_code) VALUES ('clLime')"));
        const QVector<TTagColor> colors = TTagDefinition(*connection_, plenty).Colors();
        QCOMPARE(colors.size(), 1);
        QCOMPARE(colors.constFirst().Notation, QStringLiteral("clLime"));
    }

private:
    QVariant Value(const QString& statement) { return TSharedDatabase::Value(*connection_, statement); }
    QString Stored(int code)
    {
        return Value(QStringLiteral("SELECT Name FROM dbo.TagS WHERE Code = %1").arg(code)).toString();
    }

    std::unique_ptr<TSharedDatabase> database_;
    std::unique_ptr<TADOConnection> connection_;
};

QTEST_GUILESS_MAIN(TagDefinitionTest)
#include "TagDefinitionTest.moc"
