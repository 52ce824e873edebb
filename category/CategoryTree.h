#pragma once

#include "PackageExport.h"

#include <optional>
#include <QStringList>
#include <QVector>

class TADOQuery;

/// One category as the statements deliver it. Id 0 is no category: it stands for the root.
struct TCategoryRow
{
    int Id = 0;       ///< above 0 for a category
    int ParentId = 0; ///< 0 or less at the top level
    QString Name;     ///< as the user knows it
};
Q_DECLARE_TYPEINFO(TCategoryRow, Q_RELOCATABLE_TYPE);

/// What a bubble of the path shows and carries.
struct TCategoryBubble
{
    QString Name;
    QString Id; ///< decimal digits
    int ParentId = 0;
};

/// The shared tree of categories as the category frames ask for it, without widgets. Every statement runs
/// through the one query, which is left open. Ids go into statements as decimal digits and as nothing else;
/// names as quoted literals. What the database says against a statement (EADOError) is not caught.
///
/// Lists of categories are by name: categories that share a name are one row, with the smallest of their ids
/// and that one's parent.
class BASEFRAME_EXPORT TCategoryTree
{
public:
    /// The query is kept, not owned.
    explicit TCategoryTree(TADOQuery& query) : query_(query) {}

    /// The statement of the lists by name, with the columns NAME, ID1 and parent_id.
    static QString BaseStatement();

    /// The categories to be offered under `code`, in the order of their ids; 0 for the top level. Throws
    /// EADOError where the database answers with anything else than a list of ids in parentheses.
    QVector<TCategoryRow> Children(int code) const;
    /// All categories in the order of their ids.
    QVector<TCategoryRow> All() const;
    /// Of several categories of the name the one with the smallest id.
    std::optional<TCategoryRow> Named(const QString& name) const;
    /// All names, one for each row of the table, in the table's order.
    QStringList AllNames() const;
    /// Nothing where the category does not exist (any longer).
    std::optional<TCategoryRow> Category(int id) const;
    /// The list under a text that the database does not understand: EADOError, always. Throws
    /// std::invalid_argument where `id` is not made of ASCII digits.
    QVector<TCategoryRow> Filtered(const QString& id) const;

    /// The categories from the top level down to `category`. Ends at an ancestor that does not exist. Throws
    /// EADOError with a text for the user where a category is its own ancestor.
    QVector<TCategoryRow> PathTo(const TCategoryRow& category) const;

    /// "name,id,parent". Nothing is escaped: a comma in a name shifts the fields, and whoever takes such a
    /// text apart gets them shifted.
    static QString PathText(const TCategoryRow& category);
    /// Field 1, 2 or 3 of a path text: the text before the first comma, the one up to the next, the rest.
    /// Empty where there is no such field.
    static QString splitter(const QString& s, quint8 field);
    /// The bubble of a category, by way of its path text. A shifted field that should be the parent and is no
    /// number gives way to the category's parent.
    static TCategoryBubble BubbleOf(const TCategoryRow& category);
    /// The number that a text of ASCII digits, perhaps with a minus sign, stands for; nothing for any other
    /// text.
    static std::optional<int> NumberIn(const QString& text);

    /// `code` as it is. Throws std::invalid_argument where it is not made of ASCII digits.
    static QString Digits(const QString& code);

    /// Reads a column of a statement's first row as an id; nothing where there is no row.
    std::optional<int> FirstId(const QString& statement, const QString& column) const;
    /// As Category(), with a statement of the caller's own over the table.
    std::optional<TCategoryRow> FirstCategory(const QString& statement) const;

private:
    QVector<TCategoryRow> List(const QString& ending) const;
    void Open(const QString& statement) const;

    TADOQuery& query_;
};
