#include "ADOConnection.h"
#include "Palette.h"
#include "RowWriter.h"
#include "SampleCalendar.h"
#include "SampleContext.h"
#include "SampleRandom.h"
#include "Vocabulary.h"

namespace {

constexpr quint64 RateStream = 10;

/// The rate of the foreign currencies in rials at the beginning of the first year, by currency code from 2
/// on.
struct TCurrencyStart
{
    int Code;
    qint64 Rate;
};
constexpr TCurrencyStart CurrencyStarts[] = {{2, 480000}, {3, 525000}, {4, 131000}, {5, 24500},
                                             {6, 69800},  {7, 602000}, {8, 366000}};

QString FixedRows()
{
    return QStringLiteral("fixed.txt");
}

QVariant FixedValue(const QString& text)
{
    return text == u"-" ? QVariant() : QVariant(text);
}

void InsertSection(TADOConnection& connection, const QString& table)
{
    QVector<QStringList> rows = Vocabulary::Rows(FixedRows(), table);
    const QStringList columns = rows.takeFirst();
    TRowWriter writer(connection, table, columns);
    for (const QStringList& row : rows) {
        QVariantList values;
        for (const QString& text : row)
            values.append(FixedValue(text));
        writer.Add(values);
    }
    writer.Flush();
}

void InsertPlaces(TADOConnection& connection)
{
    TRowWriter provinces(connection, QStringLiteral("dbo.Provinces"),
                         {QStringLiteral("Code"), QStringLiteral("Name")});
    TRowWriter cities(connection, QStringLiteral("dbo.Cities"),
                      {QStringLiteral("Code"), QStringLiteral("Name"), QStringLiteral("ProvinceCode")});
    TRowWriter districts(connection, QStringLiteral("dbo.Districts"),
                         {QStringLiteral("Code"), QStringLiteral("Name"), QStringLiteral("CityCode")});
    int code = 0;
    for (const QStringList& city : Vocabulary::Rows(QStringLiteral("people.txt"), QStringLiteral("cities"))) {
        ++code;
        provinces.Add({code, city.at(1)});
        cities.Add({code, city.at(0), code});
        districts.Add({code * 2 - 1, QString(city.at(0) + QStringLiteral(" - مرکز")), code});
        districts.Add({code * 2, QString(city.at(0) + QStringLiteral(" - شمال")), code});
    }
    provinces.Flush();
    cities.Flush();
    districts.Flush();
}

void InsertFiscalYears(TSampleContext& context)
{
    TRowWriter writer(context.Connection, QStringLiteral("dbo.FiscalYears"),
                      {QStringLiteral("Code"), QStringLiteral("Title"), QStringLiteral("FromDate"),
                       QStringLiteral("ToDate"), QStringLiteral("Closed")});
    for (int index = 0; index < context.Size.FiscalYears; ++index) {
        const int year = SampleCalendar::FirstYear + index;
        const bool closed = index + 1 < context.Size.FiscalYears;
        writer.Add({year, QStringLiteral("سال مالی %1").arg(year), SampleCalendar::DateText(year, 0),
                    SampleCalendar::DateText(year, SampleCalendar::DaysIn(year) - 1), closed});
    }
    writer.Flush();
}

} // namespace

void SampleParts::FillFixedRows(TSampleContext& context)
{
    context.Progress.Begin(QStringLiteral("اطلاعات پایه"));
    for (const QString& section : Vocabulary::Sections(FixedRows())) {
        if (section == u"palette")
            Palette::Complete(context.Connection);
        else
            InsertSection(context.Connection, section);
    }
    InsertPlaces(context.Connection);
    InsertFiscalYears(context);
}

void SampleParts::FillRates(TSampleContext& context)
{
    TRowWriter writer(
        context.Connection, QStringLiteral("dbo.AccCrConvRate"),
        {QStringLiteral("AccCurrencyID"), QStringLiteral("CrRateDate"), QStringLiteral("CrRateConvRate")});
    constexpr int DaysBetween = 15;
    for (const TCurrencyStart& start : CurrencyStarts) {
        TSampleRandom random(RateStream, static_cast<quint64>(start.Code));
        qint64 rate = start.Rate;
        for (int index = 0; index < context.Size.FiscalYears; ++index) {
            const int year = SampleCalendar::FirstYear + index;
            for (int day = 0; day < SampleCalendar::DaysIn(year); day += DaysBetween) {
                rate = rate * random.Between(990, 1026) / 1000;
                writer.Add({start.Code, SampleCalendar::DateText(year, day), QString::number(rate)});
                // A rate entered wrong in the morning and again in the afternoon: the later one counts.
                if (random.Chance(8))
                    writer.Add({start.Code, SampleCalendar::DateText(year, day),
                                QString::number(rate + rate / 200)});
            }
        }
    }
    writer.Flush();
}
