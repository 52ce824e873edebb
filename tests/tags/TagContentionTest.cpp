#include "TagColumn.h"
#include "TagTables.h"
#include "TestCase.h"

#include <memory>
#include <QProcess>
#include <QTemporaryDir>
#include <vector>

/// Users in programs of their own tag overlapping selections of one database.
class TagContentionTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void noTagIsLostAndNoColumnMalformed()
    {
        constexpr int Users = 2;
        constexpr int Goods = 30;
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("goods.db"));
        TTagTables tables(file);
        for (int key = 1; key <= Goods; ++key)
            tables.AddGoods(key, QVariant());
        for (int code = 11; code < (Users + 1) * 10; ++code)
            tables.AddTag(code, QStringLiteral("tag %1").arg(code), 1);

        std::vector<std::unique_ptr<QProcess>> users;
        for (int user = 1; user <= Users; ++user) {
            users.push_back(std::make_unique<QProcess>());
            users.back()->setProcessChannelMode(QProcess::ForwardedErrorChannel);
            users.back()->start(QCoreApplication::applicationDirPath() + QStringLiteral("/" TAG_WORKER),
                                {file, QString::number(user), QStringLiteral("150")});
        }
        bool isAtWork = true;
        while (isAtWork) {
            const QStringList columns = tables.AllTags();
            for (const QString& column : columns) {
                // A lone comma stands for no tag, until the second statement of a removal.
                QVERIFY2(column == QStringLiteral(",") || TagColumn::IsWellFormed(column),
                         qUtf8Printable(column));
            }
            isAtWork = false;
            for (const auto& user : users)
                isAtWork |= !user->waitForFinished(20) && user->state() != QProcess::NotRunning;
        }
        QList<QSet<QString>> expected(Goods);
        int told = 0;
        for (const auto& user : users) {
            QCOMPARE(user->exitStatus(), QProcess::NormalExit);
            QCOMPARE(user->exitCode(), 0);
            const QStringList lines =
                QString::fromUtf8(user->readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
            QCOMPARE(lines.size(), Goods);
            for (const QString& line : lines) {
                const QStringList words = line.split(u' ');
                for (const QString& code : words.mid(1)) {
                    expected[words.first().toInt() - 1].insert(code);
                    ++told;
                }
            }
        }
        QVERIFY(told > Goods);
        const QStringList columns = tables.AllTags();
        for (int row = 0; row < Goods; ++row) {
            QVERIFY2(TagColumn::IsWellFormed(columns[row]), qUtf8Printable(columns[row]));
            const QStringList codes = TagColumn::Codes(columns[row]);
            QCOMPARE(QSet<QString>(codes.begin(), codes.end()), expected[row]);
        }
    }
};

QTEST_GUILESS_MAIN(TagContentionTest)
#include "TagContentionTest.moc"
