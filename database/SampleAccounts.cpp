#include "DatabaseSchema.h"
#include "RowWriter.h"
#include "SampleContext.h"
#include "Vocabulary.h"

namespace {

/// A kind of detail account and the section of fixed.txt whose Code and Name columns make its accounts.
struct TDetailSource
{
    int Kind;
    QString Section;
};

int Indentation(const QString& line)
{
    return static_cast<int>(line.size() - line.trimmed().size());
}

QStringList Pieces(const QString& line)
{
    return line.trimmed().split(u'|');
}

void InsertAccounts(TSampleContext& context)
{
    TRowWriter groups(context.Connection, QStringLiteral("dbo.AccGroups"),
                      {QStringLiteral("Code"), QStringLiteral("Name"), QStringLiteral("Type")});
    TRowWriter totals(context.Connection, QStringLiteral("dbo.AccTotals"),
                      {QStringLiteral("Code"), QStringLiteral("Name"), QStringLiteral("GroupCode"),
                       QStringLiteral("DetailType"), QStringLiteral("Nature"), QStringLiteral("Properties")});
    TRowWriter assistants(context.Connection, QStringLiteral("dbo.AccAssistants"),
                          {QStringLiteral("TotalCode"), QStringLiteral("Code"), QStringLiteral("Name")});
    QString group;
    QString total;
    for (const QString& line : Vocabulary::Lines(QStringLiteral("chart.txt"))) {
        const QStringList pieces = Pieces(line);
        switch (Indentation(line)) {
        case 0:
            group = pieces.at(0);
            groups.Add({pieces.at(0), pieces.at(1), pieces.at(2)});
            break;
        case 1:
            total = pieces.at(0);
            totals.Add({pieces.at(0), pieces.at(1), group, pieces.at(2), pieces.at(3), pieces.at(4)});
            break;
        default:
            assistants.Add({total, pieces.at(0), pieces.at(1)});
        }
    }
    groups.Flush();
    totals.Flush();
    assistants.Flush();
}

void InsertDetails(TSampleContext& context)
{
    const TDetailSource sources[] = {
        {2, QStringLiteral("dbo.BankAccounts")}, {3, QStringLiteral("dbo.Incomes")},
        {4, QStringLiteral("dbo.Costs")},        {6, QStringLiteral("dbo.CashDesks")},
        {7, QStringLiteral("dbo.PettyCash")},    {9, QStringLiteral("dbo.Assets")}};
    TRowWriter writer(context.Connection, QStringLiteral("dbo.AccDetails"),
                      {QStringLiteral("Type"), QStringLiteral("Code"), QStringLiteral("Name"),
                       QStringLiteral("CurrCode"), QStringLiteral("UniqueCode")});
    for (const TDetailSource& source : sources) {
        QVector<QStringList> rows = Vocabulary::Rows(QStringLiteral("fixed.txt"), source.Section);
        const qsizetype currency = rows.takeFirst().indexOf(QStringLiteral("CurrCode"));
        for (const QStringList& row : rows) {
            const QVariant currencyCode = currency < 0 ? QVariant() : QVariant(row.at(currency));
            writer.Add({source.Kind, row.at(0), row.at(1), currencyCode,
                        source.Kind * DatabaseSchema::UniqueCodesPerKind + row.at(0).toInt()});
        }
    }
    writer.Flush();
}

} // namespace

void SampleParts::FillChartOfAccounts(TSampleContext& context)
{
    context.Progress.Begin(QStringLiteral("سرفصل حساب‌ها"));
    InsertAccounts(context);
    InsertDetails(context);
}

void SampleParts::FillCategories(TSampleContext& context)
{
    // The ids are given by the database; in an empty table they are those of the tree.
    TRowWriter writer(context.Connection, QStringLiteral("dbo.category"),
                      {QStringLiteral("parent_code"), QStringLiteral("name"), QStringLiteral("path")});
    for (const TCategory& node : context.Categories.Nodes())
        writer.Add({node.ParentId, node.Name, node.Path});
    writer.Flush();
    TRowWriter defaults(context.Connection, QStringLiteral("dbo.DefaultUserCategory"),
                        {QStringLiteral("user_code"), QStringLiteral("Code_category"),
                         QStringLiteral("Person"), QStringLiteral("Good")});
    defaults.Add({2, context.Categories.IdOf(QStringLiteral("مشتریان عمده")), true, false});
    defaults.Add({2, context.Categories.IdOf(QStringLiteral("برنج ایرانی")), false, true});
    defaults.Flush();
}
