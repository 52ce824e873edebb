#pragma once

#include <QRegularExpression>
#include <QSet>
#include <QStringList>

/// Columns of tags as tests read them.
namespace TagColumn {

/// The codes of a column; none of "NULL".
inline QStringList Codes(const QString& column)
{
    return column == QStringLiteral("NULL") ? QStringList() : column.split(u',', Qt::SkipEmptyParts);
}

/// "NULL", or codes of digits, each followed by a comma, one more in front, none twice.
inline bool IsWellFormed(const QString& column)
{
    static const QRegularExpression form(QStringLiteral("\\A(NULL|,[0-9]+(,[0-9]+)*,)\\z"));
    const QStringList codes = Codes(column);
    return form.match(column).hasMatch() && QSet<QString>(codes.begin(), codes.end()).size() == codes.size();
}

} // namespace TagColumn
