#include "ChartFixture.h"

#include "AccountDetails.h"
#include "HostTestMain.h"
#include "PersianText.h"
#include "RandomTexts.h"

namespace {

constexpr auto persons = TFloatingAccountsType::fatPersonals;
constexpr auto unique = TFloatingAccountsType::fatUnique;

QString NameHas(const QString& text)
{
    return QStringLiteral("REPLACE(REPLACE([Name] COLLATE Latin1_General_BIN2, NCHAR(8204), N''), "
                          "NCHAR(1600), N'') LIKE N'%%1%'")
        .arg(text);
}

} // namespace

class AccountDetailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        chart_ = std::make_unique<TChartFixture>();
        chart_->AddDetail(1, 7000, QStringLiteral("شمارهٔ ۰۱۲"), 1007000);
        chart_->AddDetail(1, 1234567, QStringLiteral("کد بلند"), 1008000);
        chart_->AddDetail(1, 2000000000, QStringLiteral("بلندترین کد"), 1009000);
        chart_->AddDetail(1, 7001, QStringLiteral("کنارگذاشته ۰۱۲"), 1007001, false);
        chart_->AddDetail(1, 7002, QStringLiteral("بی کد یکتا ۰۱۲"), 0);
    }

    void theListIsThatOfTheKind()
    {
        QCOMPARE(AccountDetails::Condition(persons, {}), QStringLiteral("[Type] = 1 AND Active = 1"));
        QCOMPARE(AccountDetails::Condition(persons, QStringLiteral("  ")),
                 QStringLiteral("[Type] = 1 AND Active = 1"));
        QCOMPARE(AccountDetails::Condition(unique, {}), QStringLiteral("UniqueCode > 0 AND Active = 1"));
        QCOMPARE(AccountDetails::Source(persons).KeyField, QStringLiteral("Code"));
        QCOMPARE(AccountDetails::Source(unique).KeyField, QStringLiteral("UniqueCode"));
        QCOMPARE(AccountDetails::CodeDigits(persons), 6);
        QCOMPARE(AccountDetails::CodeDigits(unique), 8);
    }

    void whatIsTypedBecomesACondition()
    {
        QCOMPARE(AccountDetails::Condition(persons, QStringLiteral("%")),
                 QStringLiteral("[Type] = 1 AND Active = 1 AND (") + NameHas(QStringLiteral("[%]")) + u')');
        const QString completed = AccountDetails::Condition(persons, QStringLiteral("000012"));
        QVERIFY2(completed.startsWith(QLatin1String("[Type] = 1 AND Active = 1 AND (Code = 12 OR REPLACE(")),
                 qPrintable(completed));
        const QString begun = AccountDetails::Condition(persons, QStringLiteral("0001"));
        QVERIFY2(begun.startsWith(
                     QLatin1String("[Type] = 1 AND Active = 1 AND (Code BETWEEN 100 AND 199 OR REPLACE(")),
                 qPrintable(begun));
        const QString plain = AccountDetails::Condition(unique, QStringLiteral("214748364"));
        QVERIFY2(
            plain.startsWith(QLatin1String("UniqueCode > 0 AND Active = 1 AND (UniqueCode = 214748364 OR "
                                           "UniqueCode BETWEEN 2147483640 AND 2147483647 OR REPLACE(")),
            qPrintable(plain));
    }

    void whatIsTypedIsFound_data()
    {
        QTest::addColumn<QString>("typed");
        for (const char* typed :
             {"1",       "12",         "012",         "000012", "0",   "0000", "7",  "7000",
              "1234567", "2000000000", "۱۲",          "١٢",     "رضا", "ي",    "كد", "بلند",
              "شماره",   "x",          "99999999999", "%",      "_",   "[",    "'"})
            QTest::newRow(typed) << QString::fromUtf8(typed);
    }

    void whatIsTypedIsFound()
    {
        QFETCH(QString, typed);
        for (const TFloatingAccountsType kind : {persons, unique})
            QCOMPARE(Codes(AccountDetails::Condition(kind, typed), kind), Expected(kind, typed));
    }

    void randomTextsFindWhatTheyShould()
    {
        TRandomTexts texts(1405);
        for (int i = 0; i < 200; ++i) {
            const QString typed = texts.Mixed(4).trimmed();
            if (PersianText::Fold(typed).isEmpty())
                continue;
            QVERIFY2(Codes(AccountDetails::Condition(persons, typed), persons) == Expected(persons, typed),
                     qPrintable(typed));
        }
        QVERIFY(Codes(AccountDetails::Condition(persons, QStringLiteral("') OR 1=1 --")), persons).isEmpty());
    }

    void thePlaceOfACodeIsCounted()
    {
        const QVector<int> all = Codes(AccountDetails::Condition(persons, {}), persons);
        for (const int row : {0, 1, 40, static_cast<int>(all.size()) - 1}) {
            QCOMPARE(Number(AccountDetails::PlaceStatement(persons, all[row])), row);
            QCOMPARE(Number(AccountDetails::PresenceStatement(persons, all[row])), 1);
        }
        QCOMPARE(Number(AccountDetails::PresenceStatement(persons, 7001)), 0);
        QCOMPARE(Number(AccountDetails::PresenceStatement(persons, 5000)), 0);
        QCOMPARE(Number(AccountDetails::PlaceStatement(unique, 1000001)), 0);
        QCOMPARE(Number(AccountDetails::PresenceStatement(unique, 1000001)), 1);
        QCOMPARE(AccountDetails::PlaceStatement(persons, 12),
                 QStringLiteral("SELECT COUNT(*) AS Number FROM dbo.AccDetails "
                                "WHERE [Type] = 1 AND Active = 1 AND Code < 12"));
        QCOMPARE(AccountDetails::PresenceStatement(unique, 12),
                 QStringLiteral("SELECT COUNT(*) AS Number FROM dbo.AccDetails "
                                "WHERE UniqueCode > 0 AND Active = 1 AND UniqueCode = 12"));
    }

private:
    int Number(const QString& statement) const { return chart_->Number(statement); }

    QVector<int> Codes(const QString& condition, TFloatingAccountsType kind) const
    {
        const QString code = AccountDetails::CodeField(kind);
        TADOQuery query;
        query.SetConnection(&chart_->Connection);
        query.SQL.SetText(QStringLiteral("SELECT %1 FROM dbo.AccDetails WHERE ").arg(code) + condition +
                          QStringLiteral(" ORDER BY %1").arg(code));
        query.Open();
        QVector<int> codes;
        for (int row = 0; row < query.RecordCount(); ++row)
            codes.append(query.ValueAt(row, 0).toInt());
        return codes;
    }

    qsizetype AllRows(TFloatingAccountsType kind) const
    {
        return Codes(AccountDetails::Condition(kind, {}), kind).size();
    }

    /// The same question answered row by row.
    QVector<int> Expected(TFloatingAccountsType kind, const QString& typed) const
    {
        const QString digits = PersianText::AsciiDigits(typed);
        TADOQuery query;
        query.SetConnection(&chart_->Connection);
        query.SQL.SetText(
            QStringLiteral("SELECT [Type], Code, UniqueCode, Name, Active FROM dbo.AccDetails ORDER BY %1")
                .arg(AccountDetails::CodeField(kind)));
        query.Open();
        QVector<int> codes;
        for (int row = 0; row < query.RecordCount(); ++row) {
            const bool ofKind = kind == unique ? query.ValueAt(row, 2).toInt() > 0
                                               : query.ValueAt(row, 0).toInt() == static_cast<int>(kind);
            if (!ofKind || !query.ValueAt(row, 4).toBool())
                continue;
            const int code = query.ValueAt(row, kind == unique ? 2 : 1).toInt();
            const QString plain = QString::number(code);
            const QString completed = plain.rightJustified(AccountDetails::CodeDigits(kind), u'0');
            const QString name = PersianText::Fold(query.ValueAt(row, 3).toString());
            if (plain.startsWith(digits) || completed.startsWith(digits) ||
                name.contains(PersianText::Fold(typed)))
                codes.append(code);
        }
        return codes;
    }

    std::unique_ptr<TChartFixture> chart_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<AccountDetailsTest>(argc, argv);
}
#include "AccountDetailsTest.moc"
