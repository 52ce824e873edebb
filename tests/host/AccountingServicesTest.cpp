#include "ChartFixture.h"

#include "AccountLevels.h"
#include "HostTestMain.h"

namespace {

const QString firstStatement =
    QStringLiteral("SELECT t.Name AS TotalName, t.DetailType, a.Name AS AssistantName "
                   "FROM dbo.AccTotals AS t "
                   "LEFT JOIN dbo.AccAssistants AS a ON a.TotalCode = t.Code AND a.Code = %1 "
                   "WHERE t.Code = %2");

} // namespace

class AccountingServicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        chart_ = std::make_unique<TChartFixture>();
        chart_->AddDetail(1, 900001, QStringLiteral("شخص آزمون"), 1900001);
        chart_->AddDetail(1, 900002, QStringLiteral("شخص کنارگذاشته"), 1900002, false);
        chart_->AddDetail(3, 900001, QStringLiteral("درآمد آزمون"), 3900001);
        chart_->AddDetail(4, 900002, QStringLiteral("هزینه آزمون"), 4900002);
    }

    void init() { chart_->Statements.clear(); }

    void theGroupsAreTheirOrdinalsBetweenCommas_data()
    {
        QTest::addColumn<quint32>("bits");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << 0U << QString();
        QTest::newRow("one") << 0b10U << QStringLiteral("1");
        QTest::newRow("two") << 0b10010U << QStringLiteral("1,4");
        QTest::newRow("the ordinal 0") << 0b1U << QStringLiteral("0");
        QTest::newRow("all") << 0xFFU << QStringLiteral("0,1,2,3,4,5,6,7");
        QTest::newRow("the highest bit") << 0x80000000U << QStringLiteral("31");
    }

    void theGroupsAreTheirOrdinalsBetweenCommas()
    {
        QFETCH(quint32, bits);
        QTEST(Host().Accounting.AccGroupsToString(TSelectGroups(bits)), "text");
    }

    void anAccountIsNamed_data()
    {
        QTest::addColumn<QStringList>("codes");
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("found");
        QTest::addColumn<QString>("name");
        const auto row = [](const char* title, const QStringList& codes, int kind, const char* name) {
            QTest::newRow(title) << codes << kind << (name != nullptr) << QString::fromUtf8(name);
        };
        row("total", {"101", "", ""}, 1, "موجودی صندوق");
        row("total with leading zeros", {"000101", "", ""}, 1, "موجودی صندوق");
        row("total in Persian digits", {"۱۰۱", "", ""}, 1, "موجودی صندوق");
        row("total, also of an assistant", {"101", "2", ""}, 1, "موجودی صندوق");
        row("assistant", {"101", "2", ""}, 2, "صندوق ارزی");
        row("detail", {"104", "1", "900001"}, 3, "شخص آزمون");
        row("detail of a total with a mandatory detail", {"301", "1", "900001"}, 3, "شخص آزمون");
        row("detail without an assistant", {"104", "", "900001"}, 3, "شخص آزمون");
        row("detail that is switched off", {"104", "1", "900002"}, 3, "شخص کنارگذاشته");
        row("income under assistant 1", {"604", "1", "900001"}, 3, "درآمد آزمون");
        row("income without an assistant", {"604", "", "900001"}, 3, "درآمد آزمون");
        row("cost under assistant 2", {"604", "2", "900002"}, 3, "هزینه آزمون");
        row("no cost under assistant 1", {"604", "1", "900002"}, 3, nullptr);
        row("no income under assistant 2", {"604", "2", "900001"}, 3, nullptr);
        row("unique code of a person", {"108", "1", "01900001"}, 3, "شخص آزمون");
        row("unique code of a cost", {"108", "1", "4900002"}, 3, "هزینه آزمون");
        row("no plain code where unique codes are", {"108", "1", "900001"}, 3, nullptr);
        row("full, total", {"101", "", ""}, 5, "موجودی صندوق");
        row("full, two levels", {"101", "2", ""}, 5, "موجودی صندوق - صندوق ارزی");
        row("full", {"104", "1", "900001"}, 5,
            "حساب‌های دریافتنی تجاری - مشتریان داخلی - شخص آزمون");
        row("full without an assistant", {"104", "", "900001"}, 5,
            "حساب‌های دریافتنی تجاری - شخص آزمون");
        row("nothing chosen", {"", "", ""}, 5, "");
        row("nothing chosen, total", {"", "", ""}, 1, "");
        row("the level of the name not chosen", {"101", "", ""}, 2, "");
        row("unknown total", {"999", "", ""}, 1, nullptr);
        row("unknown assistant", {"101", "9", ""}, 2, nullptr);
        row("unknown assistant, total", {"101", "9", ""}, 1, nullptr);
        row("assistant of another total", {"101", "3", ""}, 5, nullptr);
        row("unknown detail", {"104", "1", "899999"}, 5, nullptr);
        row("detail of another kind", {"101", "1", "900001"}, 5, nullptr);
        row("total without details", {"106", "1", "900001"}, 5, nullptr);
        row("unknown assistant, known detail", {"104", "9", "900001"}, 3, nullptr);
        row("expense center", {"101", "", ""}, 4, "");
    }

    void anAccountIsNamed()
    {
        QFETCH(QStringList, codes);
        QFETCH(int, kind);
        QFETCH(bool, found);
        bool answer = !found;
        const QString name = Host().Accounting.GetHesabName(codes[0], codes[1], codes[2],
                                                            static_cast<THesabType>(kind), answer);
        QCOMPARE(answer, found);
        QTEST(name, "name");
    }

    void whatIsNoCodeIsNotFoundWithoutAStatement_data()
    {
        QTest::addColumn<QStringList>("codes");
        const QStringList texts{
            "0",      "000",  "-1", "+1",   "1.5", " ",  "1 ",          "101; DROP TABLE dbo.AccTotals",
            "1 OR 1", "0x65", "کل", "معین", "1'",  "۱ک", "99999999999", "2147483648"};
        for (const QString& text : texts) {
            QTest::newRow(qPrintable("total " + text)) << QStringList{text, QString(), QString()};
            QTest::newRow(qPrintable("assistant " + text)) << QStringList{"101", text, QString()};
            QTest::newRow(qPrintable("detail " + text)) << QStringList{"101", "1", text};
        }
        QTest::newRow("assistant without a total") << QStringList{"", "1", ""};
        QTest::newRow("detail without a total") << QStringList{"", "", "1"};
    }

    void whatIsNoCodeIsNotFoundWithoutAStatement()
    {
        QFETCH(QStringList, codes);
        for (const THesabType kind :
             {THesabType::htTotal, THesabType::htAssistant, THesabType::htDetail, THesabType::htFull}) {
            bool found = true;
            QCOMPARE(Host().Accounting.GetHesabName(codes[0], codes[1], codes[2], kind, found), QString());
            QVERIFY(!found);
        }
        QCOMPARE(chart_->Statements, QStringList());
    }

    void aNameTakesOneStatementAndOneMoreForTheDetail()
    {
        bool found = false;
        Host().Accounting.GetHesabName("007", "002", "", THesabType::htFull, found);
        QCOMPARE(chart_->Statements, QStringList(firstStatement.arg(2).arg(7)));
        chart_->Statements.clear();
        Host().Accounting.GetHesabName("604", "2", "000012", THesabType::htFull, found);
        QCOMPARE(
            chart_->Statements,
            QStringList({firstStatement.arg(2).arg(604),
                         QStringLiteral("SELECT Name FROM dbo.AccDetails WHERE [Type] = 4 AND Code = 12")}));
        chart_->Statements.clear();
        Host().Accounting.GetHesabName("108", "1", "01000012", THesabType::htFull, found);
        QCOMPARE(chart_->Statements.last(),
                 QStringLiteral("SELECT Name FROM dbo.AccDetails WHERE UniqueCode = 1000012"));
    }

    void theSharedQueryKeepsItsResult()
    {
        TADOQuery* shared = Host().DM.SharedQuery();
        shared->SQL.SetText(QStringLiteral("SELECT DetailType FROM AccTotals WHERE Code=104"));
        shared->Open();
        bool found = false;
        Host().Accounting.GetHesabName("104", "1", "900001", THesabType::htFull, found);
        QVERIFY(found);
        QVERIFY(shared->Active());
        QCOMPARE(shared->Field(0)->AsInteger(), 129);
        shared->Close();
    }

    void everyKindOfDetailsFollowsFromTheTotalAndTheAssistant()
    {
        for (int type = 0; type <= 10; ++type) {
            for (int assistant = 0; assistant <= 3; ++assistant) {
                const int expected = type != 5 ? type : assistant < 2 ? 3 : 4;
                QCOMPARE(static_cast<int>(AccountLevels::DetailKind(type, assistant)), expected);
                QCOMPARE(static_cast<int>(AccountLevels::DetailKind(type + 128, assistant)), expected);
            }
        }
    }

private:
    std::unique_ptr<TChartFixture> chart_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<AccountingServicesTest>(argc, argv);
}
#include "AccountingServicesTest.moc"
