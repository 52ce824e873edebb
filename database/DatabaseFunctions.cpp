#include "DatabaseFunctions.h"

#include "ADOConnection.h"
#include "DatabaseSchema.h"

#include <QSet>
#include <QStringList>

namespace {

/// A whole number from any type of argument; false for NULL and for what is no whole number.
bool ReadInteger(const QVariant& argument, qint64& number)
{
    bool isNumber = false;
    number = argument.toLongLong(&isNumber);
    return argument.isValid() && isNumber;
}

QVariant FirstValue(IFunctionContext& context, const char* statement, const QVariantList& arguments)
{
    const QVariantList values = context.FirstColumn(statement, arguments);
    return values.isEmpty() ? QVariant() : values.first();
}

QVariant ExpenseCenterName(IFunctionContext& context, const QVariantList& arguments)
{
    qint64 code = 0;
    if (!ReadInteger(arguments.first(), code))
        return {};
    return FirstValue(context, "SELECT Title FROM ExpenseCenters WHERE Code = ?", {code});
}

QSet<qint64> LockedUniqueCodes(IFunctionContext& context)
{
    QSet<qint64> result;
    const QVariantList codes =
        context.FirstColumn("SELECT Code FROM CodeLocks WHERE SoftwarePart BETWEEN 1270000 AND 1270099 "
                            "AND julianday(ExpiresAt) > julianday('now')",
                            {});
    for (const QVariant& code : codes) {
        qint64 number = 0;
        if (ReadInteger(code, number))
            result.insert(number);
    }
    return result;
}

/// The smallest number that is neither used nor locked; 0 where there is none.
qint64 SmallestFreeCode(IFunctionContext& context, const QSet<qint64>& locked, qint64 first, qint64 last)
{
    const QVariantList used = context.FirstColumn(
        "SELECT UniqueCode FROM AccDetails WHERE UniqueCode BETWEEN ? AND ? ORDER BY UniqueCode",
        {first, last});
    qint64 candidate = first;
    auto next = used.cbegin();
    while (candidate <= last) {
        while (next != used.cend() && next->toLongLong() < candidate)
            ++next;
        const bool isUsed = next != used.cend() && next->toLongLong() == candidate;
        if (!isUsed && !locked.contains(candidate))
            return candidate;
        ++candidate;
    }
    return 0;
}

QVariant UniqueCode(IFunctionContext& context, const QVariantList& arguments)
{
    qint64 kind = 0;
    if (!ReadInteger(arguments.first(), kind) || kind < 0 || kind > 99)
        return qint64(0);
    const qint64 first = kind * DatabaseSchema::UniqueCodesPerKind + 1;
    const qint64 last = first + DatabaseSchema::UniqueCodesPerKind - 2;
    const QSet<qint64> locked = LockedUniqueCodes(context);
    const QVariant highest = FirstValue(
        context, "SELECT MAX(UniqueCode) FROM AccDetails WHERE UniqueCode BETWEEN ? AND ?", {first, last});
    qint64 code = highest.isValid() ? highest.toLongLong() + 1 : first;
    while (locked.contains(code))
        ++code;
    return code <= last ? code : SmallestFreeCode(context, locked, first, last);
}

/// UNION drops what is already there, so a cycle in damaged data comes to an end. The range finds the nodes
/// by their index: those of one parent, or all of the top level, whose parent is 0 or less.
constexpr char Descendants[] =
    "WITH RECURSIVE found (id) AS ("
    "SELECT id FROM category "
    "WHERE ?1 >= 0 AND parent_code BETWEEN CASE WHEN ?1 = 0 THEN -2147483648 ELSE ?1 END AND ?1 "
    "UNION SELECT c.id FROM category AS c INNER JOIN found ON c.parent_code = found.id) "
    "SELECT id FROM found ORDER BY id";
constexpr char Children[] =
    "SELECT id FROM category "
    "WHERE ?1 >= 0 AND parent_code BETWEEN CASE WHEN ?1 = 0 THEN -2147483648 ELSE ?1 END AND ?1 "
    "ORDER BY id";

QVariant CategorySubNodes(IFunctionContext& context, const QVariantList& arguments)
{
    QStringList ids;
    qint64 id = 0;
    if (ReadInteger(arguments.at(0), id)) {
        const bool allLevels = arguments.at(1).toBool();
        for (const QVariant& found : context.FirstColumn(allLevels ? Descendants : Children, {id}))
            ids.append(found.toString());
    }
    const QString list = ids.join(u',');
    return arguments.at(2).toBool() ? QString(u'(' + list + u')') : list;
}

} // namespace

void RegisterDatabaseFunctions(TADOConnection& connection)
{
    connection.RegisterFunction(QStringLiteral("GetExpCenterName"), 1, ExpenseCenterName);
    connection.RegisterFunction(QStringLiteral("GetUinqueCode_FNC"), 1, UniqueCode);
    connection.RegisterFunction(QStringLiteral("Category_SubNodes"), 3, CategorySubNodes);
}
