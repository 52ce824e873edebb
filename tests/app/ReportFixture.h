#pragma once

#include "Decimal.h"
#include "FormFixture.h"
#include "ListFooter.h"
#include "PagedDataSet.h"
#include "ReportFilterPanel.h"
#include "ReportForm.h"
#include "ReportTotals.h"
#include "SmartDBGrid_TRV.h"
#include "TarvaSearchManager.h"

#include <functional>

/// A line as a test sees it: read by a statement of its own, without the report's source.
struct TPlainLine
{
    int Id = 0;
    int FiscalYear = 0;
    int Number = 0;
    QString Date;
    QString RegisteredAt;
    bool Confirmed = false;
    int RowNo = 0;
    int Kol = 0;
    QString KolName;
    int DetailType = 0;
    int Moin = 0;
    int Tafzili = 0;
    int Tafsili2 = 0;
    QString Debit;
    QString Credit;
};

/// The report over a sample database, with all its lines in memory beside it.
class TReportFixture : public TFormFixture
{
public:
    using TPredicate = std::function<bool(const TPlainLine& line)>;

    explicit TReportFixture(const TSampleSize& size = TSampleSize::Small()) : TFormFixture(size)
    {
        ReadLines();
    }

    TReportForm& OpenReport()
    {
        Report = &Open<TReportForm>();
        Form->resize(1050, 700);
        Settle();
        return *Report;
    }
    /// Closes the report as the main window does and opens it anew.
    TReportForm& Reopen()
    {
        Report->SaveState();
        Form.reset();
        return OpenReport();
    }

    /// Until what was typed is in force and answered.
    void Settle() const
    {
        constexpr int DelayOfEdits = 350;
        QTest::qWait(DelayOfEdits);
        Report->Manager().Flush();
        QVERIFY(Report->DataSet().WaitForFirstPage());
        QTRY_VERIFY(Report->DataSet().CountIsExact());
        QTRY_VERIFY(!Report->IsBusy());
    }

    QVector<TPlainLine> Matching(const TPredicate& predicate) const
    {
        QVector<TPlainLine> lines;
        std::copy_if(Lines.begin(), Lines.end(), std::back_inserter(lines), predicate);
        return lines;
    }
    static QString Sum(const QVector<TPlainLine>& lines, QString TPlainLine::*amount)
    {
        TDecimal sum;
        for (const TPlainLine& line : lines)
            sum = sum + TDecimal(line.*amount);
        return sum.ToString();
    }

    /// The report shows the lines that the predicate lets through, as many and with the same totals; and
    /// neither none nor all of them, so that the filter is seen to work.
    void Expect(const TPredicate& predicate) const
    {
        Settle();
        const QVector<TPlainLine> lines = Matching(predicate);
        QVERIFY(!lines.isEmpty());
        QVERIFY(lines.size() < Lines.size());
        QCOMPARE(Report->DataSet().RecordCount(), lines.size());
        QCOMPARE(Digits(Report->Totals().DebitText()), Sum(lines, &TPlainLine::Debit));
        QCOMPARE(Digits(Report->Totals().CreditText()), Sum(lines, &TPlainLine::Credit));
    }
    void ExpectAll() const
    {
        Settle();
        QCOMPARE(Report->DataSet().RecordCount(), Lines.size());
        QCOMPARE(Digits(Report->Totals().DebitText()), Sum(Lines, &TPlainLine::Debit));
    }
    QString Words() const { return Report->Footer().ConditionInWords(); }

    /// The number in a caption, without grouping signs.
    static QString Digits(const QString& caption)
    {
        QString digits;
        for (const QChar character : caption) {
            if (character.isDigit())
                digits += character;
            else if (character == u'٫' || (character == u'.' && !digits.isEmpty()))
                digits += u'.';
        }
        return digits;
    }

    /// Reads the lines anew, after they have been changed.
    void ReadLines()
    {
        Lines.clear();
        TADOQuery query;
        query.SetConnection(&Connection);
        query.SQL.SetText(QStringLiteral(
            "SELECT d.Id, s.FiscalYear, s.Number, s.VoucherDate, s.RegisteredAt, s.Confirmed, d.RowNo, d.Kol, "
            "t.Name, t.DetailType, d.Moin, d.Tafzili, d.Tafsili2, d.Bed, d.Bes FROM dbo.Sanad_Detail AS d "
            "INNER JOIN dbo.Sanad AS s ON s.Id = d.SanadId INNER JOIN dbo.AccTotals AS t ON t.Code = d.Kol "
            "ORDER BY d.Id"));
        query.Open();
        for (int row = 0; row < query.RecordCount(); ++row) {
            int column = 0;
            const auto next = [&query, row, &column] { return query.ValueAt(row, column++); };
            TPlainLine line;
            line.Id = next().toInt();
            line.FiscalYear = next().toInt();
            line.Number = next().toInt();
            line.Date = next().toString();
            line.RegisteredAt = next().toString();
            line.Confirmed = next().toBool();
            line.RowNo = next().toInt();
            line.Kol = next().toInt();
            line.KolName = next().toString();
            line.DetailType = next().toInt() % 128; // the kind, be a detail mandatory or not
            line.Moin = next().toInt();
            line.Tafzili = next().toInt();
            line.Tafsili2 = next().toInt();
            line.Debit = next().toString();
            line.Credit = next().toString();
            Lines.append(line);
        }
    }

    QVector<TPlainLine> Lines;
    TReportForm* Report = nullptr;
};
