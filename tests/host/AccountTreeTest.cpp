#include "ChartFixture.h"

#include "AccountTree.h"
#include "HostTestMain.h"

namespace {

const QString totalsStatement =
    QStringLiteral("SELECT g.Code AS GroupCode, g.Name AS GroupName, t.Code, t.Name, t.DetailType "
                   "FROM dbo.AccGroups AS g INNER JOIN dbo.AccTotals AS t ON t.GroupCode = g.Code "
                   "%1ORDER BY g.Code, t.Code");
const QString assistantsStatement =
    QStringLiteral("SELECT a.TotalCode, a.Code, a.Name FROM dbo.AccAssistants AS a "
                   "INNER JOIN dbo.AccTotals AS t ON t.Code = a.TotalCode "
                   "INNER JOIN dbo.AccGroups AS g ON g.Code = t.GroupCode "
                   "%1ORDER BY a.TotalCode, a.Code");

} // namespace

class AccountTreeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { chart_ = std::make_unique<TChartFixture>(); }

    void init()
    {
        chart_->Statements.clear();
        tree_.Read(chart_->Connection, {});
    }

    void everyAccountStandsBehindTheOneAboveIt()
    {
        QCOMPARE(tree_.CodeText(0), QStringLiteral("1"));
        QCOMPARE(tree_.CodeText(1), QStringLiteral("101"));
        QCOMPARE(tree_.CodeText(2), QStringLiteral("101-001"));
        QCOMPARE(tree_.At(2).Name, QStringLiteral("صندوق ریالی"));
        QCOMPARE(tree_.CodeText(4), QStringLiteral("102"));
        QCOMPARE(tree_.At(4).DetailType, 130);
        for (int place = 0; place < tree_.Count(); ++place) {
            const TAccountNode& node = tree_.At(place);
            QCOMPARE(node.Parent < 0, node.Level == TAccountNode::Group);
            QVERIFY(node.Parent < place);
            if (node.Parent >= 0)
                QCOMPARE(static_cast<int>(tree_.At(node.Parent).Level), static_cast<int>(node.Level) - 1);
        }
        QCOMPARE(CountOf(TAccountNode::Total), RowsOf(QStringLiteral("dbo.AccTotals")));
        QCOMPARE(CountOf(TAccountNode::Assistant), RowsOf(QStringLiteral("dbo.AccAssistants")));
    }

    void theScopeGoesIntoTwoStatements_data()
    {
        QTest::addColumn<QString>("groups");
        QTest::addColumn<int>("total");
        QTest::addColumn<QString>("where");
        QTest::newRow("all") << QString() << -1 << QString();
        QTest::newRow("groups") << QStringLiteral("1,4") << -1 << QStringLiteral("WHERE g.[Type] IN (1,4) ");
        QTest::newRow("one total") << QString() << 104 << QStringLiteral("WHERE t.Code = 104 ");
        QTest::newRow("no total") << QString() << 0 << QStringLiteral("WHERE t.Code = 0 ");
        QTest::newRow("both") << QStringLiteral("2") << 301
                              << QStringLiteral("WHERE g.[Type] IN (2) AND t.Code = 301 ");
    }

    void theScopeGoesIntoTwoStatements()
    {
        QFETCH(QString, groups);
        QFETCH(int, total);
        QFETCH(QString, where);
        chart_->Statements.clear();
        TAccountScope scope;
        scope.Groups = groups;
        if (total >= 0)
            scope.OnlyTotal = total;
        tree_.Read(chart_->Connection, scope);
        QCOMPARE(chart_->Statements,
                 QStringList({totalsStatement.arg(where), assistantsStatement.arg(where)}));
        chart_->Statements.clear();
        scope.Assistants = false;
        tree_.Read(chart_->Connection, scope);
        QCOMPARE(chart_->Statements, QStringList(totalsStatement.arg(where)));
        QVERIFY(!tree_.Has(TAccountNode::Assistant));
    }

    void groupsThatAreNoNumbersAreRefused_data()
    {
        QTest::addColumn<QString>("groups");
        for (const char* text :
             {" ", ",", "1,", ",1", "1,,2", "1 OR 1=1", "1)--", "1;2", "۱,۲", "-1", "1,2\n"})
            QTest::newRow(text) << QString::fromUtf8(text);
    }

    void groupsThatAreNoNumbersAreRefused()
    {
        QFETCH(QString, groups);
        chart_->Statements.clear();
        TAccountScope scope;
        scope.Groups = groups;
        QVERIFY_THROWS_EXCEPTION(EADOError, tree_.Read(chart_->Connection, scope));
        QCOMPARE(chart_->Statements, QStringList());
    }

    void aTextFindsItsAccounts_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("best");
        QTest::addColumn<QStringList>("matching");
        const auto row = [](const char* title, const char* typed, const char* best,
                            const QStringList& matching) {
            QTest::newRow(title) << QString::fromUtf8(typed) << QString::fromUtf8(best) << matching;
        };
        row("total", "104", "104", {"104"});
        row("Persian digits", "۱۰۴", "104", {"104"});
        row("Arabic-Indic digits", "١٠٤", "104", {"104"});
        row("blanks around", " 104 ", "104", {"104"});
        row("beginning of totals", "30", "301", {"301", "302", "303", "304", "305", "306"});
        row("assistant, completed", "104002", "104-002", {"104-002"});
        row("assistant, beginning", "1040", "104-001", {"104-001", "104-002"});
        row("assistant behind a hyphen", "104-2", "104-002", {"104-002"});
        row("assistant behind a slash", "104/002", "104-002", {"104-002"});
        row("assistant behind a blank", "۱۰۴ ۲", "104-002", {"104-002"});
        row("hyphen, nothing behind it", "104-", "104", {"104"});
        row("unknown code", "999", "", {});
        row("name of a total", "تنخواه‌گردان‌ها", "103", {"103"});
        row("name with Arabic letters", "كالاي در راه", "106-003", {"106-003"});
        row("name without its half-space", "چکهای", "105-001", {"105-001", "105-002", "105-003", "302-001"});
        row("nothing of that name", "هیچ‌کدام", "", {});
        row("quotes and wildcards", "%' OR 1=1 --", "", {});
    }

    void aTextFindsItsAccounts()
    {
        QFETCH(QString, typed);
        QFETCH(QString, best);
        tree_.Filter(typed);
        QStringList matching;
        for (int place = 0; place < tree_.Count(); ++place) {
            if (tree_.Matches(place))
                matching.append(tree_.CodeText(place));
        }
        QTEST(matching, "matching");
        QCOMPARE(tree_.BestMatch() < 0 ? QString() : tree_.CodeText(tree_.BestMatch()), best);
        QCOMPARE(tree_.AnyShown(), !matching.isEmpty());
    }

    void anAccountIsPreferredToAGroup()
    {
        tree_.Filter(QStringLiteral("حساب‌های انتظامی"));
        QVERIFY(tree_.Matches(tree_.At(tree_.Find(901, 0)).Parent));
        QCOMPARE(tree_.BestMatch(), tree_.Find(901, 0));
    }

    void whatMatchesIsShownWithTheLevelsAroundIt()
    {
        tree_.Filter(QStringLiteral("104"));
        QStringList shown;
        for (int place = 0; place < tree_.Count(); ++place) {
            if (tree_.IsShown(place))
                shown.append(tree_.CodeText(place));
        }
        QCOMPARE(shown, QStringList({"1", "104", "104-001", "104-002"}));
        tree_.Filter(QStringLiteral("  "));
        for (int place = 0; place < tree_.Count(); ++place)
            QVERIFY(tree_.IsShown(place));
        QCOMPARE(tree_.BestMatch(), -1);
    }

    void anAccountIsFoundByItsCodes()
    {
        QCOMPARE(tree_.CodeText(tree_.Find(302, 1)), QStringLiteral("302-001"));
        QCOMPARE(tree_.CodeText(tree_.Find(302, 0)), QStringLiteral("302"));
        QCOMPARE(tree_.Find(302, 9), -1);
        QCOMPARE(tree_.Find(999, 0), -1);
        QCOMPARE(tree_.Find(0, 0), -1);
    }

private:
    int CountOf(TAccountNode::TLevel level) const
    {
        int count = 0;
        for (int place = 0; place < tree_.Count(); ++place)
            count += tree_.At(place).Level == level ? 1 : 0;
        return count;
    }

    int RowsOf(const QString& table) const
    {
        TADOQuery query;
        query.SetConnection(&chart_->Connection);
        query.SQL.SetText(QStringLiteral("SELECT COUNT(*) AS n FROM ") + table);
        query.Open();
        return query.Field(0)->AsInteger();
    }

    std::unique_ptr<TChartFixture> chart_;
    TAccountTree tree_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<AccountTreeTest>(argc, argv);
}
#include "AccountTreeTest.moc"
