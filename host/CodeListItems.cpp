#include "CodeListItems.h"

#include "ADOConnection.h"
#include "AdoError.h"
#include "PersianText.h"

namespace {

/// The name behind a code; empty where there is none.
QString NameBehind(const QPointer<TADOConnection>& connection, const QString& statement, qint64 code)
{
    if (connection == nullptr)
        return {};
    try {
        const std::unique_ptr<IEngineRows> rows = connection->Run(statement, {code});
        return rows->Next() ? rows->Text(0) : QString();
    } catch (const EADOError&) {
        // The words are shown beside a list, which itself tells that the database cannot be read.
        return {};
    }
}

/// The value as one code: "12" or ",12,"; 0 where it is none.
qint64 CodeOf(const TTarvaSearch& criterion)
{
    const QStringList parts = criterion.Value1().toString().split(u',', Qt::SkipEmptyParts);
    return parts.size() == 1 ? parts.constFirst().toLongLong() : 0;
}

TSearchItem CodeList(TADOConnection& connection, const QString& title, const QString& column,
                     const QString& statement)
{
    TSearchItem item;
    item.Title = title;
    item.FiledName = column;
    item.DataType = TSearchDataType::idtCodeList;
    item.Words = [source = QPointer(&connection), title, statement](const TTarvaSearch& criterion) {
        const QString name = NameBehind(source, statement, CodeOf(criterion));
        const QString clause = criterion.Reverst() ? QStringLiteral("%1 دارای «%2» نباشد")
                                                   : QStringLiteral("%1 دارای «%2» باشد");
        return name.isEmpty() ? QString() : clause.arg(title, PersianText::Isolated(name));
    };
    return item;
}

} // namespace

TSearchItem CodeListItems::Tags(TADOConnection& connection)
{
    return CodeList(connection, QStringLiteral("برچسب"), QStringLiteral("tags"),
                    QStringLiteral("SELECT Name FROM dbo.TagS WHERE Code = ?"));
}

TSearchItem CodeListItems::Categories(TADOConnection& connection)
{
    return CodeList(connection, QStringLiteral("دسته"), QStringLiteral("Categories"),
                    QStringLiteral("SELECT name FROM dbo.category WHERE id = ?"));
}
