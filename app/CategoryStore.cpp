#include "CategoryStore.h"

#include "PersianText.h"
#include "QueryOpening.h"

#include <algorithm>
#include <QSet>

namespace {

constexpr QChar persianComma(u'\u060C');
constexpr int longestId = 10; // digits of a 32-bit number

[[noreturn]] void RefuseMissing()
{
    throw ECategoryRefused(QStringLiteral(
        "این دسته دیگر نیست؛ کاربر دیگری آن را حذف کرده است. با F5 دسته‌ها را دوباره بخوانید."));
}

[[noreturn]] void RefuseDepth()
{
    throw ECategoryRefused(QStringLiteral(
        "دسته‌ها بیش از اندازه تو در تو می‌شوند؛ جایی نزدیک‌تر به سطح یک برگزینید."));
}

QString PathWith(const QString& parentPath, int id)
{
    return parentPath + QString::number(id) + u',';
}

/// "12 زیردسته، 3 کالا" for what is above zero.
QString UseInWords(const TCategoryUse& use)
{
    QStringList parts;
    const auto add = [&parts](int count, const QString& words) {
        if (count > 0)
            parts.append(words.arg(count));
    };
    add(use.Children, QStringLiteral("%1 زیردسته دارد"));
    add(use.Goods, QStringLiteral("دستهٔ %1 کالا است"));
    add(use.Persons, QStringLiteral("دستهٔ %1 شخص است"));
    add(use.Defaults, QStringLiteral("پیش‌فرض %1 کاربر است"));
    return parts.join(QStringLiteral(" و "));
}

QString ColumnOfKind(TCategoryStore::TListKind kind)
{
    return kind == TCategoryStore::TListKind::Goods ? QStringLiteral("Good") : QStringLiteral("Person");
}

} // namespace

ECategoryRefused::~ECategoryRefused() = default;

QString TCategoryStore::WithoutCommas(const QString& name)
{
    return QString(name).replace(u',', persianComma);
}

QString TCategoryStore::CheckedName(const QString& name)
{
    QString checked = WithoutCommas(name);
    const auto isControl = [](QChar character) { return character.category() == QChar::Other_Control; };
    std::replace_if(checked.begin(), checked.end(), isControl, QChar(u' '));
    checked = checked.trimmed();
    if (PersianText::Fold(checked).trimmed().isEmpty())
        throw ECategoryRefused(QStringLiteral("نام دسته را بنویسید."));
    if (checked.size() > LongestName)
        throw ECategoryRefused(
            QStringLiteral("نام دسته تا %1 نویسه جا دارد؛ آن را کوتاه کنید.").arg(LongestName));
    return checked;
}

QVector<TCategoryRow> TCategoryStore::All() const
{
    TADOQuery query;
    OpenQuery(query, *connection_,
              QStringLiteral("SELECT id, parent_code, name FROM dbo.category ORDER BY name, id"));
    QVector<TCategoryRow> rows;
    rows.reserve(query.RecordCount());
    for (int row = 0; row < query.RecordCount(); ++row)
        rows.append({query.ValueAt(row, 0).toInt(), std::max(query.ValueAt(row, 1).toInt(), 0),
                     query.ValueAt(row, 2).toString()});
    return rows;
}

TCategoryUse TCategoryStore::UseOf(int id) const
{
    const auto count = [this, id](const QString& table, const QString& column) {
        return Number(QStringLiteral("SELECT COUNT(*) AS n FROM dbo.%1 WHERE %2 = ?").arg(table, column),
                      {id});
    };
    return {count(QStringLiteral("category"), QStringLiteral("parent_code")),
            count(QStringLiteral("kala_category"), QStringLiteral("category_code")),
            count(QStringLiteral("Person_category"), QStringLiteral("category_code")),
            count(QStringLiteral("DefaultUserCategory"), QStringLiteral("Code_category"))};
}

int TCategoryStore::Add(int parentId, const QString& name)
{
    const QString checked = CheckedName(name);
    int id = 0;
    InTransaction([&] {
        HoldTree();
        const QString parentPath = parentId > 0 ? PathOf(parentId) : QStringLiteral(",");
        if (parentPath.size() + longestId + 1 > LongestPath)
            RefuseDepth();
        connection_->Execute(QStringLiteral("INSERT INTO dbo.category (parent_code, name) VALUES (?, ?)"),
                             {parentId, checked});
        id = Number(
            QStringLiteral("SELECT MAX(id) AS id FROM dbo.category WHERE parent_code = ? AND name = ?"),
            {parentId, checked});
        connection_->Execute(QStringLiteral("UPDATE dbo.category SET path = ? WHERE id = ?"),
                             {PathWith(parentPath, id), id});
    });
    return id;
}

void TCategoryStore::Rename(int id, const QString& name, const QString& loaded)
{
    const QString checked = CheckedName(name);
    InTransaction([&] {
        // The row is held first, so that nobody writes between the comparison and the change.
        if (connection_->Execute(
                QStringLiteral("UPDATE dbo.category SET parent_code = parent_code WHERE id = ?"), {id}) == 0)
            RefuseMissing();
        TADOQuery query;
        OpenQuery(query, *connection_, QStringLiteral("SELECT name FROM dbo.category WHERE id = ?"), {id});
        const QString present = query.FieldByName(QStringLiteral("name"))->AsString();
        query.Close();
        if (present != loaded)
            throw ECategoryRefused(
                QStringLiteral(
                    "نام این دسته را کاربر دیگری به «%1» برگردانده است؛ با F5 دسته‌ها را دوباره "
                    "بخوانید.")
                    .arg(present));
        connection_->Execute(QStringLiteral("UPDATE dbo.category SET name = ? WHERE id = ?"), {checked, id});
    });
}

void TCategoryStore::Move(int id, int parentId)
{
    InTransaction([&] {
        HoldTree();
        const QString oldPath = PathOf(id);
        const QString newPath = PathWith(parentId > 0 ? PathOf(parentId) : QStringLiteral(","), id);
        CheckNotUnder(id, parentId);
        CheckDepth(oldPath, newPath);
        connection_->Execute(QStringLiteral("UPDATE dbo.category SET parent_code = ?, path = ? WHERE id = ?"),
                             {parentId, newPath, id});
        SetPathsUnder(newPath);
    });
}

void TCategoryStore::Delete(int id)
{
    InTransaction([&] {
        HoldTree();
        PathOf(id); // it is still there
        const QString use = UseInWords(UseOf(id));
        if (!use.isEmpty())
            throw ECategoryRefused(
                QStringLiteral("این دسته حذف نمی‌شود، چون %1.").arg(use));
        connection_->Execute(QStringLiteral("DELETE FROM dbo.category WHERE id = ?"), {id});
    });
}

TDefaultCategories TCategoryStore::DefaultsOf(int user) const
{
    const auto of = [this, user](TListKind kind) {
        return Number(
            QStringLiteral("SELECT MIN(Code_category) AS id FROM dbo.DefaultUserCategory WHERE user_code = ? "
                           "AND %1 = 1")
                .arg(ColumnOfKind(kind)),
            {user});
    };
    return {of(TListKind::Goods), of(TListKind::Persons)};
}

void TCategoryStore::SetDefault(int user, TListKind kind, int id)
{
    const QString column = ColumnOfKind(kind);
    InTransaction([&] {
        if (connection_->Execute(QStringLiteral("UPDATE dbo.users SET Name = Name WHERE Code = ?"), {user}) ==
            0)
            throw ECategoryRefused(QStringLiteral(
                "پیش‌فرض برای کاربری که وارد برنامه شده نگه داشته می‌شود؛ نخست وارد شوید."));
        if (id > 0)
            PathOf(id);
        connection_->Execute(
            QStringLiteral("UPDATE dbo.DefaultUserCategory SET %1 = 0 WHERE user_code = ?").arg(column),
            {user});
        if (id > 0 && connection_->Execute(
                          QStringLiteral("UPDATE dbo.DefaultUserCategory SET %1 = 1 WHERE user_code = ? "
                                         "AND Code_category = ?")
                              .arg(column),
                          {user, id}) == 0)
            connection_->Execute(
                QStringLiteral(
                    "INSERT INTO dbo.DefaultUserCategory (user_code, Code_category, %1) VALUES (?, ?, 1)")
                    .arg(column),
                {user, id});
        connection_->Execute(
            QStringLiteral(
                "DELETE FROM dbo.DefaultUserCategory WHERE user_code = ? AND Person = 0 AND Good = 0"),
            {user});
    });
}

void TCategoryStore::InTransaction(const std::function<void()>& work)
{
    TTransaction transaction(*connection_);
    work();
    transaction.Commit();
}

// One row stands for the whole tree: whoever changes the tree's shape holds it until he is done.
void TCategoryStore::HoldTree()
{
    connection_->Execute(
        QStringLiteral("UPDATE dbo.category SET name = name WHERE id = (SELECT MIN(id) FROM dbo.category)"));
}

// Climbs by the parents, which are the truth; the path column is only derived from them.
QString TCategoryStore::PathOf(int id) const
{
    QString path = QStringLiteral(",");
    QSet<int> climbed;
    for (int above = id; above > 0;) {
        TADOQuery query;
        OpenQuery(query, *connection_, QStringLiteral("SELECT parent_code FROM dbo.category WHERE id = ?"),
                  {above});
        if (query.IsEmpty() && above == id)
            RefuseMissing();
        if (query.IsEmpty() || climbed.contains(above))
            break; // a table that is no tree; moving what is wrong in it mends it
        climbed.insert(above);
        path.prepend(u',' + QString::number(above));
        above = query.FieldByName(QStringLiteral("parent_code"))->AsInteger();
    }
    return path;
}

void TCategoryStore::CheckNotUnder(int id, int parentId) const
{
    if (id == parentId)
        throw ECategoryRefused(QStringLiteral("یک دسته نمی‌تواند زیر خودش برود."));
    if (parentId > 0 && PathOf(parentId).contains(u',' + QString::number(id) + u','))
        throw ECategoryRefused(QStringLiteral(
            "یک دسته نمی‌تواند زیر یکی از زیردسته‌های خودش برود."));
}

void TCategoryStore::CheckDepth(const QString& oldPath, const QString& newPath) const
{
    const int longest =
        Number(QStringLiteral("SELECT MAX(LEN(path)) AS n FROM dbo.category WHERE path LIKE ?"),
               {QString(oldPath + u'%')});
    const auto deepest = std::max(static_cast<qsizetype>(longest), oldPath.size());
    if (deepest - oldPath.size() + newPath.size() > LongestPath)
        RefuseDepth();
}

// Level after level, until nothing under the category has another path than its parent gives it.
void TCategoryStore::SetPathsUnder(const QString& path)
{
    const QString right =
        QStringLiteral("(SELECT p.path FROM dbo.category AS p WHERE p.id = category.parent_code) "
                       "+ CAST(id AS nvarchar(11)) + N','");
    const QString statement =
        QStringLiteral(
            "UPDATE dbo.category SET path = %1 WHERE parent_code IN (SELECT u.id FROM dbo.category AS "
            "u WHERE u.path LIKE ?) AND ISNULL(path, N'') <> %1")
            .arg(right);
    while (connection_->Execute(statement, {QString(path + u'%')}) > 0) {
    }
}

int TCategoryStore::Number(const QString& statement, const QVariantList& parameters) const
{
    TADOQuery query;
    OpenQuery(query, *connection_, statement, parameters);
    return query.Field(0)->AsInteger();
}
