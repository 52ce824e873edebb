#include "CategoryTree.h"

#include "ADOQuery.h"
#include "SplicedText.h"

#include <QRegularExpression>
#include <QSet>
#include <stdexcept>

namespace {

/// Selects nothing where () would not be a valid list.
constexpr QStringView nothing = u"(-1)";

bool IsIdList(const QString& text)
{
    static const QRegularExpression list(QStringLiteral("\\A\\(\\s*-?[0-9]+(\\s*,\\s*-?[0-9]+)*\\s*\\)\\z"));
    return list.match(text).hasMatch();
}

[[noreturn]] void RefuseCycle(const TCategoryRow& category)
{
    throw EADOError(
        TAdoErrorKind::Other,
        QStringLiteral(
            "در درخت دسته‌ها دستهٔ «%1» زیرمجموعهٔ خودش شده است و مسیر آن به سردسته‌ای نمی‌رسد. "
            "مسیر پیشین تغییر نکرد؛ جای این دسته را در درخت دسته‌ها اصلاح کنید.")
            .arg(category.Name));
}

} // namespace

QString TCategoryTree::BaseStatement()
{
    return QStringLiteral(
        "SELECT *,(SELECT parent_code FROM category WHERE id=ID1) AS parent_id FROM( SELECT NAME, "
        "MIN(ID) AS ID1 FROM category group BY NAME) AS t1");
}

QVector<TCategoryRow> TCategoryTree::Children(int code) const
{
    const QString statement = QStringLiteral("select dbo.Category_SubNodes(") + QString::number(code) +
                              QStringLiteral(",0,1) as value");
    Open(statement);
    QString ids = query_.FieldByName(QStringLiteral("value"))->AsString();
    if (ids == QLatin1String("()"))
        ids = nothing.toString();
    if (!IsIdList(ids))
        throw EADOError(
            TAdoErrorKind::Other,
            QStringLiteral(
                "پایگاه داده فهرست زیردسته‌ها را به شکل درست نداد. به پشتیبانی خبر دهید."),
            statement, ids);
    return List(QStringLiteral(" where ID1 in ") + ids + QStringLiteral(" ORDER BY ID1"));
}

QVector<TCategoryRow> TCategoryTree::All() const
{
    return List(QStringLiteral(" ORDER BY ID1"));
}

std::optional<TCategoryRow> TCategoryTree::Named(const QString& name) const
{
    const QVector<TCategoryRow> found =
        List(QStringLiteral(" where name=N") + SplicedText::Quoted(name) + QStringLiteral(" ORDER BY ID1"));
    return found.isEmpty() ? std::nullopt : std::optional(found.first());
}

QStringList TCategoryTree::AllNames() const
{
    Open(QStringLiteral("SELECT * from category"));
    const int name = query_.FieldByName(QStringLiteral("Name"))->Index();
    const int count = query_.RecordCount();
    QStringList result;
    result.reserve(count);
    for (int row = 0; row < count; ++row)
        result.append(query_.ValueAt(row, name).toString());
    return result;
}

std::optional<TCategoryRow> TCategoryTree::Category(int id) const
{
    return FirstCategory(QStringLiteral("select * from category where id = ") + QString::number(id));
}

QVector<TCategoryRow> TCategoryTree::Filtered(const QString& id) const
{
    return List(QStringLiteral(" where id1= ORDER BY ID1 where id1 in category_Subnodes(") + Digits(id) +
                QStringLiteral(",0,1)"));
}

QVector<TCategoryRow> TCategoryTree::PathTo(const TCategoryRow& category) const
{
    if (category.ParentId <= 0)
        return {category};
    QVector<TCategoryRow> path{category};
    QSet<int> seen{category.Id};
    while (path.first().ParentId != 0) {
        const int parent = path.first().ParentId;
        if (seen.contains(parent))
            RefuseCycle(category);
        seen.insert(parent);
        const std::optional<TCategoryRow> ancestor = Category(parent);
        if (!ancestor)
            break;
        path.prepend(*ancestor);
    }
    return path;
}

QString TCategoryTree::PathText(const TCategoryRow& category)
{
    return category.Name + u',' + QString::number(category.Id) + u',' + QString::number(category.ParentId);
}

QString TCategoryTree::splitter(const QString& s, quint8 field)
{
    switch (field) {
    case 1:
        return s.section(u',', 0, 0);
    case 2:
        return s.section(u',', 1, 1);
    case 3:
        return s.section(u',', 2);
    default:
        return {};
    }
}

TCategoryBubble TCategoryTree::BubbleOf(const TCategoryRow& category)
{
    const QString text = PathText(category);
    return {splitter(text, 1), splitter(text, 2), NumberIn(splitter(text, 3)).value_or(category.ParentId)};
}

std::optional<int> TCategoryTree::NumberIn(const QString& text)
{
    const bool hasSign = text.startsWith(u'-');
    bool fits = false;
    const int number = text.toInt(&fits);
    return fits && SplicedText::IsDigits(text.mid(hasSign ? 1 : 0)) ? std::optional(number) : std::nullopt;
}

QString TCategoryTree::Digits(const QString& code)
{
    if (!SplicedText::IsDigits(code))
        throw std::invalid_argument("the code of a record or category is made of digits");
    return code;
}

std::optional<int> TCategoryTree::FirstId(const QString& statement, const QString& column) const
{
    Open(statement);
    if (query_.IsEmpty())
        return std::nullopt;
    return query_.FieldByName(column)->AsInteger();
}

std::optional<TCategoryRow> TCategoryTree::FirstCategory(const QString& statement) const
{
    Open(statement);
    if (query_.IsEmpty())
        return std::nullopt;
    return TCategoryRow{query_.FieldByName(QStringLiteral("id"))->AsInteger(),
                        query_.FieldByName(QStringLiteral("parent_code"))->AsInteger(),
                        query_.FieldByName(QStringLiteral("name"))->AsString()};
}

QVector<TCategoryRow> TCategoryTree::List(const QString& ending) const
{
    Open(BaseStatement() + ending);
    const int name = query_.FieldByName(QStringLiteral("name"))->Index();
    const int id = query_.FieldByName(QStringLiteral("id1"))->Index();
    const int parent = query_.FieldByName(QStringLiteral("parent_id"))->Index();
    const int count = query_.RecordCount();
    QVector<TCategoryRow> result;
    result.reserve(count);
    for (int row = 0; row < count; ++row)
        result.append({query_.ValueAt(row, id).toInt(), query_.ValueAt(row, parent).toInt(),
                       query_.ValueAt(row, name).toString()});
    return result;
}

void TCategoryTree::Open(const QString& statement) const
{
    query_.Close();
    query_.SQL.SetText(statement);
    query_.Open();
}
