#include "DatabaseCheck.h"

#include "ADOConnection.h"
#include "AdoError.h"

namespace {

qint64 Count(TADOConnection& connection, const QString& statement)
{
    const std::unique_ptr<IEngineRows> rows = connection.Run(statement);
    return rows->Next() ? rows->Int64(0) : 0;
}

QVariant IntegrityReport(IFunctionContext& context, const QVariantList&)
{
    QStringList lines;
    for (const QVariant& line : context.FirstColumn("PRAGMA integrity_check", {}))
        lines.append(line.toString());
    return lines.join(u'\n');
}

/// A tags column is NULL, or codes each followed by a comma with one more comma in front.
QString MalformedTags(const QString& table)
{
    return QStringLiteral("SELECT COUNT(*) FROM %1 WHERE tags IS NOT NULL AND (tags NOT LIKE ',[0-9]%,' "
                          "OR tags LIKE '%,,%' OR tags LIKE '%[^0-9,]%')")
        .arg(table);
}

} // namespace

const QVector<DatabaseCheck::TRule>& DatabaseCheck::Rules()
{
    static const QVector<TRule> rules{
        {QStringLiteral("بدهکار و بستانکار هر سند برابر است"),
         QStringLiteral("SELECT COUNT(*) FROM (SELECT SanadId FROM dbo.Sanad_Detail GROUP BY SanadId "
                        "HAVING SUM(Bed) <> SUM(Bes)) AS t")},
        {QStringLiteral("هر سند سطر دارد"),
         QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad AS s WHERE NOT EXISTS "
                        "(SELECT d.Id FROM dbo.Sanad_Detail AS d WHERE d.SanadId = s.Id)")},
        {QStringLiteral("هر سطر سند یا بدهکار است یا بستانکار"),
         QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad_Detail "
                        "WHERE Bed < 0 OR Bes < 0 OR (Bed = 0 AND Bes = 0) OR (Bed > 0 AND Bes > 0)")},
        {QStringLiteral("حساب معین هر سطر سند تعریف شده است"),
         QStringLiteral(
             "SELECT COUNT(*) FROM dbo.Sanad_Detail AS d WHERE d.Moin <> 0 AND NOT EXISTS "
             "(SELECT a.Code FROM dbo.AccAssistants AS a WHERE a.TotalCode = d.Kol AND a.Code = d.Moin)")},
        {QStringLiteral("مرکز هزینهٔ هر سطر سند تعریف شده است"),
         QStringLiteral("SELECT COUNT(*) FROM dbo.Sanad_Detail AS d WHERE d.Tafsili2 <> 0 AND NOT EXISTS "
                        "(SELECT e.Code FROM dbo.ExpenseCenters AS e WHERE e.Code = d.Tafsili2)")},
        {QStringLiteral("کد تفصیلی یکتا تکرار نمی‌شود"),
         QStringLiteral("SELECT COUNT(*) FROM (SELECT UniqueCode FROM dbo.AccDetails WHERE UniqueCode <> 0 "
                        "GROUP BY UniqueCode HAVING COUNT(*) > 1) AS t")},
        {QStringLiteral("هر برچسب رنگ دارد"),
         QStringLiteral("SELECT COUNT(*) FROM dbo.TagS AS t WHERE NOT EXISTS "
                        "(SELECT c.code FROM dbo.colors AS c WHERE c.code = t.color_code)")},
        {QStringLiteral("بالادست هر دسته تعریف شده است"),
         QStringLiteral("SELECT COUNT(*) FROM dbo.category AS c WHERE c.parent_code > 0 AND NOT EXISTS "
                        "(SELECT p.id FROM dbo.category AS p WHERE p.id = c.parent_code)")},
        {QStringLiteral("تاریخ نرخ ارز به شکل سال/ماه/روز است"),
         QStringLiteral("SELECT COUNT(*) FROM dbo.AccCrConvRate "
                        "WHERE CrRateDate NOT LIKE '[0-9][0-9][0-9][0-9]/[01][0-9]/[0-3][0-9]'")},
        {QStringLiteral("برچسب‌های کالاها درست نوشته شده است"),
         MalformedTags(QStringLiteral("dbo.kala"))},
        {QStringLiteral("برچسب‌های اشخاص درست نوشته شده است"),
         MalformedTags(QStringLiteral("dbo.Persons"))},
    };
    return rules;
}

QStringList DatabaseCheck::FindDamage(TADOConnection& connection)
{
    QStringList result;
    for (const TRule& rule : Rules()) {
        if (const qint64 breaches = Count(connection, rule.Statement); breaches != 0)
            result.append(QStringLiteral("«%1» در %2 مورد برقرار نیست.").arg(rule.Title).arg(breaches));
    }
    return result;
}

QStringList DatabaseCheck::FindDamagedPages(TADOConnection& connection)
{
    connection.RegisterFunction(QStringLiteral("FindDamagedPages"), 0, IntegrityReport);
    try {
        const std::unique_ptr<IEngineRows> rows =
            connection.Run(QStringLiteral("SELECT dbo.FindDamagedPages() AS damage"));
        const QString damage = rows->Next() ? rows->Text(0) : QString();
        return damage == u"ok" ? QStringList() : damage.split(u'\n');
    } catch (const EADOError& error) {
        // Damage to the pages that tell where tables stand keeps even the report from being made.
        if (error.Kind() == TAdoErrorKind::Busy || error.Kind() == TAdoErrorKind::Cancelled)
            throw;
        return {error.ServerMessage()};
    }
}

qint64 DatabaseCheck::RowCount(TADOConnection& connection, const QString& table)
{
    return Count(connection, QStringLiteral("SELECT COUNT(*) FROM ") + table);
}
