#include "VoucherFixture.h"

#include <atomic>
#include <QSet>
#include <thread>

class VoucherStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { shop_ = std::make_unique<TVoucherFixture>(); }
    void cleanupTestCase() { shop_.reset(); }

    void yearsAreReadTheNewestFirst()
    {
        const QVector<TFiscalYear> years = shop_->Store.FiscalYears();
        QCOMPARE(years.size(), 2);
        QCOMPARE(years.at(0).Code, TVoucherFixture::OpenYear);
        QVERIFY(!years.at(0).Closed);
        QCOMPARE(years.at(0).ToDate, QStringLiteral("1403/12/30"));
        QVERIFY(years.at(1).Closed);
    }

    void aVoucherIsReadBackAsItWasSaved()
    {
        TVoucherDraft draft = TVoucherFixture::Draft(QStringLiteral("922337203685477.5807"));
        draft.Append(TVoucherFixture::Line({802, 1, 7, 10}, QStringLiteral("123456789012345.67"),
                                           QStringLiteral("0")));
        draft.Append(
            TVoucherFixture::Line({101, 1, 1, 0}, QStringLiteral("0"), QStringLiteral("123456789012345.67")));
        const int expected = shop_->Store.NextNumber(TVoucherFixture::OpenYear);
        const int number = shop_->Store.Save(draft, TVoucherFixture::Entry()).Number;
        QCOMPARE(number, expected);
        TVoucherDraft read;
        QVERIFY(shop_->Store.Find(TVoucherFixture::OpenYear, number, read));
        QCOMPARE(read.Lines().size(), draft.Lines().size());
        for (int i = 0; i < read.Count(); ++i)
            QVERIFY(read.Lines().at(i) == draft.Lines().at(i));
        QCOMPARE(read.Head.Date, QStringLiteral("1403/02/03"));
        QCOMPARE(read.Head.Title, draft.Head.Title);
        QVERIFY(!read.Head.Confirmed);
        QCOMPARE(
            read.Lines().at(2).AccountName,
            QStringLiteral(
                "هزینه‌های اداری و عمومی - هزینه‌های اداری - ملزومات اداری - فروش حضوری"));
        QVERIFY(read.Balance().IsZero());
        const QString head =
            QStringLiteral(" FROM dbo.Sanad WHERE Number = %1 AND FiscalYear = 1403").arg(number);
        QCOMPARE(shop_->Text(QStringLiteral("SELECT Kind") + head), QStringLiteral("1"));
        QCOMPARE(shop_->Text(QStringLiteral("SELECT UserCode") + head), QStringLiteral("1"));
        QVERIFY(shop_->Text(QStringLiteral("SELECT RegisteredAt") + head).startsWith(u"2024-05-01T10:11:12"));
    }

    void hostileTextIsKeptToTheLetter()
    {
        const QString hostile = QStringLiteral("'); DROP TABLE dbo.Sanad; -- \" ?%_[ك]ي\u200cN'x'");
        TVoucherDraft draft = TVoucherFixture::Draft();
        draft.Head.Title = hostile;
        TVoucherLine line = draft.Lines().constFirst();
        line.Description = hostile;
        draft.Replace(0, line);
        const int number = shop_->Store.Save(draft, TVoucherFixture::Entry()).Number;
        TVoucherDraft read;
        QVERIFY(shop_->Store.Find(TVoucherFixture::OpenYear, number, read));
        QCOMPARE(read.Head.Title, hostile);
        QCOMPARE(read.Lines().constFirst().Description, hostile);
    }

    void everySampleVoucherIsReadAndBalances()
    {
        const int last = shop_->Store.NextNumber(TVoucherFixture::ClosedYear) - 1;
        QVERIFY(last > 10);
        for (int number = 1; number <= last; ++number) {
            TVoucherDraft draft;
            QVERIFY(shop_->Store.Find(TVoucherFixture::ClosedYear, number, draft));
            QVERIFY(draft.Count() > 0);
            QVERIFY(draft.Balance().IsZero());
            for (const TVoucherLine& line : draft.Lines())
                QVERIFY2(line.AccountName.contains(u'-'), qPrintable(line.AccountName));
        }
        TVoucherDraft none;
        QVERIFY(!shop_->Store.Find(TVoucherFixture::ClosedYear, last + 1, none));
    }

    void whatMayNotBeSavedIsRefusedAndNothingIsWritten_data()
    {
        QTest::addColumn<int>("field");
        QTest::addColumn<int>("line");
        const auto row = [](const char* name, TVoucherField field, int line = -1) {
            QTest::newRow(name) << static_cast<int>(field) << line;
        };
        row("closed year", TVoucherField::FiscalYear);
        row("no year", TVoucherField::FiscalYear);
        row("bad date", TVoucherField::Date);
        row("no title", TVoucherField::Title);
        row("unknown total", TVoucherField::Total, 1);
        row("unknown assistant", TVoucherField::Assistant, 1);
        row("missing detail", TVoucherField::Detail, 0);
        row("unknown detail", TVoucherField::Detail, 0);
        row("unknown center", TVoucherField::ExpenseCenter, 1);
        row("unbalanced", TVoucherField::Debit);
        row("empty", TVoucherField::Total);
        row("no user", TVoucherField::Voucher);
    }

    void whatMayNotBeSavedIsRefusedAndNothingIsWritten()
    {
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        QFETCH(int, field);
        QFETCH(int, line);
        TVoucherDraft draft = TVoucherFixture::Draft();
        TVoucherEntry entry = TVoucherFixture::Entry();
        Spoil(draft, entry, name);
        const QStringList before = shop_->State();
        try {
            shop_->Store.Save(draft, entry);
            QFAIL("it was saved");
        } catch (const EVoucherRefused& refused) {
            QCOMPARE(static_cast<int>(refused.Fault().Field), field);
            QCOMPARE(refused.Fault().Line, line);
        }
        QCOMPARE(shop_->State(), before);
        QVERIFY(!shop_->Connection.InTransaction());
    }

    void aCorrectionKeepsTheVoucherAndItsForeignLines()
    {
        const TLineCurrency currency{2, QStringLiteral("512300.25"), QStringLiteral("1234.5")};
        TVoucherDraft draft = TVoucherFixture::Draft();
        TVoucherLine foreign = draft.Lines().constFirst();
        foreign.Currency = currency;
        draft.Replace(0, foreign);
        const int number = shop_->Store.Save(draft, TVoucherFixture::Entry()).Number;
        QVERIFY(shop_->Store.Find(TVoucherFixture::OpenYear, number, draft));
        const TVoucherHead head = draft.Head;
        QVERIFY(draft.Lines().constFirst().Currency == currency);
        draft.Head.Title = QStringLiteral("اصلاح شده");
        draft.Append(TVoucherFixture::Line({101, 1, 1, 0}, QStringLiteral("10"), QStringLiteral("0")));
        draft.Append(TVoucherFixture::Line({101, 1, 2, 0}, QStringLiteral("0"), QStringLiteral("10")));
        QCOMPARE(shop_->Store.Save(draft, TVoucherFixture::Entry()).Number, number);
        TVoucherDraft read;
        QVERIFY(shop_->Store.Find(TVoucherFixture::OpenYear, number, read));
        QCOMPARE(read.Head.Id, head.Id);
        QCOMPARE(read.Head.Title, QStringLiteral("اصلاح شده"));
        QCOMPARE(read.Count(), draft.Count());
        QVERIFY(read.Lines().constFirst().Currency == currency);
    }

    void aConfirmedVoucherIsNotCorrected()
    {
        const int number = shop_->Store.Save(TVoucherFixture::Draft(), TVoucherFixture::Entry()).Number;
        TVoucherDraft draft;
        QVERIFY(shop_->Store.Find(TVoucherFixture::OpenYear, number, draft));
        shop_->Connection.Execute(QStringLiteral("UPDATE dbo.Sanad SET Confirmed = 1 WHERE Id = ?"),
                                  {draft.Head.Id});
        const QStringList before = shop_->State();
        QVERIFY_THROWS_EXCEPTION(EVoucherRefused, shop_->Store.Save(draft, TVoucherFixture::Entry()));
        QVERIFY(shop_->Store.Find(TVoucherFixture::OpenYear, number, draft));
        QVERIFY(draft.Head.Confirmed);
        QVERIFY_THROWS_EXCEPTION(EVoucherRefused, shop_->Store.Save(draft, TVoucherFixture::Entry()));
        draft.Head.Confirmed = false;
        QVERIFY_THROWS_EXCEPTION(EVoucherRefused, shop_->Store.Save(draft, TVoucherFixture::Entry()));
        QCOMPARE(shop_->State(), before);
    }

    void ofTwoUsersWhoCorrectOneVoucherTheSecondIsTold()
    {
        const int number = shop_->Store.Save(TVoucherFixture::Draft(), TVoucherFixture::Entry()).Number;
        TVoucherDraft first;
        TVoucherDraft second;
        QVERIFY(shop_->Store.Find(TVoucherFixture::OpenYear, number, first));
        QVERIFY(shop_->Store.Find(TVoucherFixture::OpenYear, number, second));
        first.Head.Title = QStringLiteral("یکم");
        second.Head.Title = QStringLiteral("دوم");
        shop_->Store.Save(first, TVoucherFixture::Entry());
        QVERIFY_THROWS_EXCEPTION(EVoucherRefused, shop_->Store.Save(second, TVoucherFixture::Entry()));
        QVERIFY(shop_->Store.Find(TVoucherFixture::OpenYear, number, first));
        QCOMPARE(first.Head.Title, QStringLiteral("یکم"));
    }

    void aStatementThatFailsInTheMiddleLeavesNothingBehind()
    {
        const QStringList before = shop_->State();
        TVoucherDraft draft = TVoucherFixture::Draft();
        TVoucherLine line = draft.Lines().at(1);
        line.Currency.Code = 999; // no such currency: the key of the table refuses the second line
        draft.Replace(1, line);
        try {
            shop_->Store.Save(draft, TVoucherFixture::Entry());
            QFAIL("it was saved");
        } catch (const EADOError& error) {
            QCOMPARE(error.Kind(), TAdoErrorKind::Constraint);
        }
        QCOMPARE(shop_->State(), before);
        QVERIFY(!shop_->Connection.InTransaction());
        QVERIFY(shop_->Store.Save(TVoucherFixture::Draft(), TVoucherFixture::Entry()).Number > 0);
    }

    void aConnectionThatIsClosedInTheMiddleLeavesNothingBehind()
    {
        const QStringList before = shop_->State();
        bool closed = false;
        shop_->Connection.OnWillExecute = [&closed](TADOConnection* connection, const QString& text) {
            if (text.startsWith(u"INSERT INTO dbo.Sanad_Detail") && !closed) {
                closed = true;
                connection->Close();
            }
        };
        QVERIFY_THROWS_EXCEPTION(EADOError,
                                 shop_->Store.Save(TVoucherFixture::Draft(), TVoucherFixture::Entry()));
        shop_->Connection.OnWillExecute = nullptr;
        QVERIFY(closed);
        shop_->Connection.Reopen();
        QCOMPARE(shop_->State(), before);
    }

    void usersWhoSaveAtOnceGetDifferentNumbers()
    {
        constexpr int users = 4;
        constexpr int vouchersEach = 15;
        const int first = shop_->Store.NextNumber(TVoucherFixture::OpenYear);
        std::vector<std::unique_ptr<TADOConnection>> connections;
        for (int user = 0; user < users; ++user)
            connections.push_back(shop_->Connection.Clone());
        std::vector<QVector<int>> numbers(users);
        std::atomic<int> failures = 0;
        std::vector<std::thread> threads;
        for (int user = 0; user < users; ++user) {
            threads.emplace_back([&, user] {
                try {
                    TADOConnection& connection = *connections.at(static_cast<size_t>(user));
                    connection.Open();
                    TVoucherStore store(connection);
                    for (int i = 0; i < vouchersEach; ++i)
                        numbers.at(static_cast<size_t>(user))
                            .append(store.Save(TVoucherFixture::Draft(), TVoucherFixture::Entry()).Number);
                    connection.Close();
                } catch (const std::exception& error) {
                    qWarning("%s", error.what());
                    ++failures;
                }
            });
        }
        for (std::thread& thread : threads)
            thread.join();
        QCOMPARE(failures.load(), 0);
        QSet<int> all;
        for (const QVector<int>& own : numbers)
            all.unite(QSet<int>(own.begin(), own.end()));
        QCOMPARE(all.size(), users * vouchersEach);
        QCOMPARE(*std::min_element(all.begin(), all.end()), first);
        QCOMPARE(*std::max_element(all.begin(), all.end()), first + users * vouchersEach - 1);
    }

private:
    static void Spoil(TVoucherDraft& draft, TVoucherEntry& entry, const QString& how)
    {
        TVoucherLine first = draft.Lines().at(0);
        TVoucherLine second = draft.Lines().at(1);
        if (how == u"closed year")
            draft.Head.FiscalYear = TVoucherFixture::ClosedYear;
        else if (how == u"no year")
            draft.Head.FiscalYear = 1300;
        else if (how == u"bad date")
            draft.Head.Date = QStringLiteral("1403/07/31");
        else if (how == u"no title")
            draft.Head.Title.clear();
        else if (how == u"unknown total")
            second.Account.Total = 9;
        else if (how == u"unknown assistant")
            second.Account.Assistant = 99;
        else if (how == u"missing detail")
            first.Account.Detail = 0;
        else if (how == u"unknown detail")
            first.Account.Detail = 999;
        else if (how == u"unknown center")
            second.Account.ExpenseCenter = 9999;
        else if (how == u"unbalanced")
            second.Credit = QStringLiteral("1500000.0001");
        else if (how == u"no user")
            entry.UserCode = 0;
        draft.Replace(0, first);
        draft.Replace(1, second);
        if (how == u"empty") {
            draft.Remove(0);
            draft.Remove(0);
        }
    }

    std::unique_ptr<TVoucherFixture> shop_;
};

QTEST_GUILESS_MAIN(VoucherStoreTest)
#include "VoucherStoreTest.moc"
