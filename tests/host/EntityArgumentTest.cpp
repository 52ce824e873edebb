#include "EntityArgument.h"

#include <QTest>
#include <stdexcept>

class EntityArgumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theCodeStandsBeforeItsMarker_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("code"); // 0: none
        QTest::newRow("empty text") << "" << 0;
        QTest::newRow("only the marker") << "#LC#" << 0;
        QTest::newRow("code") << "12#LC#" << 12;
        QTest::newRow("completed code and parameters") << "007#LC#GroupCode=1" << 7;
        QTest::newRow("Persian digits") << QStringLiteral("۱۲#LC#") << 12;
        QTest::newRow("blanks") << " 12 #LC#" << 12;
        QTest::newRow("zero") << "0#LC#" << 0;
        QTest::newRow("negative") << "-5#LC#" << 0;
        QTest::newRow("letters") << QStringLiteral("شیر#LC#") << 0;
        QTest::newRow("too large") << "99999999999#LC#" << 0;
        QTest::newRow("the marker typed by a user") << "12#LC##LC#GroupCode=1" << 0;
        QTest::newRow("no marker") << "GroupCode=1" << 0;
    }

    void theCodeStandsBeforeItsMarker()
    {
        QFETCH(QString, text);
        QFETCH(int, code);
        QCOMPARE(TEntityArgument::Of(text).CurrentCode.value_or(0), code);
    }

    void parametersRestrictTheList_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("restrictions");
        QTest::newRow("none") << "12#LC#"
                              << "";
        QTest::newRow("one") << "GroupCode=3"
                             << "GroupCode=3";
        QTest::newRow("two") << "GroupCode=3;Active=1"
                             << "GroupCode=3 Active=1";
        QTest::newRow("several values") << "GroupCode=3,5, 7"
                                        << "GroupCode=3,5,7";
        QTest::newRow("negative value") << "Level=-1"
                                        << "Level=-1";
        QTest::newRow("blanks and empty pieces") << " ; GroupCode = 3 ;; Active=1; "
                                                 << "GroupCode=3 Active=1";
        QTest::newRow("behind the code") << "12#LC#GroupCode=3"
                                         << "GroupCode=3";
        QTest::newRow("on both sides of the marker") << "GroupCode=3#OP#Active=1"
                                                     << "GroupCode=3 Active=1";
        QTest::newRow("only before the marker") << "GroupCode=3#OP#"
                                                << "GroupCode=3";
        QTest::newRow("only behind the marker") << "#OP#Active=1"
                                                << "Active=1";
        QTest::newRow("largest and smallest") << "a=2147483647,-2147483648"
                                              << "a=2147483647,-2147483648";
    }

    void parametersRestrictTheList()
    {
        QFETCH(QString, text);
        QFETCH(QString, restrictions);
        QStringList found;
        const TEntityArgument argument = TEntityArgument::Of(text);
        for (const TEntityRestriction& restriction : argument.Restrictions) {
            QStringList values;
            for (const int value : restriction.Values)
                values.append(QString::number(value));
            found.append(restriction.Column + u'=' + values.join(u','));
        }
        QCOMPARE(found.join(u' '), restrictions);
    }

    void whatIsNotUnderstoodIsNamed_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("piece");
        QTest::newRow("no value") << "GroupCode" << QByteArray("\"GroupCode\"");
        QTest::newRow("empty value") << "GroupCode=" << QByteArray("\"GroupCode=\"");
        QTest::newRow("empty among values") << "GroupCode=1,,2" << QByteArray("\"GroupCode=1,,2\"");
        QTest::newRow("no column") << "=3" << QByteArray("\"=3\"");
        QTest::newRow("text value") << "Name='x'" << QByteArray("\"Name='x'\"");
        QTest::newRow("decimal") << "Price=1.5" << QByteArray("\"Price=1.5\"");
        QTest::newRow("plus") << "Code=+5" << QByteArray("\"Code=+5\"");
        QTest::newRow("other comparison") << "Code>5" << QByteArray("\"Code>5\"");
        QTest::newRow("too large") << "Code=2147483648" << QByteArray("2147483648");
        QTest::newRow("a condition") << "Code=1 OR 1=1" << QByteArray("\"Code=1 OR 1=1\"");
        QTest::newRow("brackets") << "[Code]=1" << QByteArray("\"[Code]=1\"");
        QTest::newRow("second of two") << "GroupCode=1;1=1--" << QByteArray("\"1=1--\"");
        QTest::newRow("Persian digits") << QStringLiteral("Code=۵") << QByteArray("Code=");
        QTest::newRow("before the marker") << "x#OP#" << QByteArray("\"x\"");
    }

    void whatIsNotUnderstoodIsNamed()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, piece);
        try {
            TEntityArgument::Of(text);
            QFAIL("no error");
        } catch (const std::invalid_argument& error) {
            QVERIFY2(QByteArray(error.what()).contains(piece), error.what());
        }
    }
};

QTEST_GUILESS_MAIN(EntityArgumentTest)
#include "EntityArgumentTest.moc"
