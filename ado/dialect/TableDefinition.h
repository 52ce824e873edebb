#pragma once

#include "Statements.h"

namespace Dialect {

/// Reads the columns and constraints of CREATE TABLE and ALTER TABLE ADD.
class TTableDefinition
{
public:
    explicit TTableDefinition(TCursor& cursor) : cursor_(cursor) {}

    /// The list in brackets of CREATE TABLE.
    QString Whole();
    /// The one column of ALTER TABLE ADD. `existing` are the columns that the table has.
    QString AddedColumn(const QVector<TColumn>& existing);

private:
    struct TColumnText
    {
        QString Name;
        QString Declared; ///< type and collation
        QString Constraints;
        bool IsIdentity = false;
        bool IsNotNull = false;
    };

    void Element();
    TColumnText Column();
    void ComputedColumn(TColumnText& column);
    void TypedColumn(TColumnText& column);
    bool ColumnConstraint(TColumnText& column, const TType& type);
    void Identity(TColumnText& column);
    void TableConstraint();
    void PrimaryKey(const QStringList& columns, const QString& written);
    QString KeyColumns(QStringList& names);
    QString Reference();
    QString ReferenceActions();
    QString DefaultValue(const TType& type);
    QString Check();
    QString ConstraintName();
    void SkipClustering();
    void FinishKey();
    TScope OwnScope() const;

    TCursor& cursor_;
    QVector<TColumnText> columns_;
    QVector<TColumn> types_;
    QStringList constraints_;
    QStringList primaryKey_;
    QString primaryKeyText_; ///< its columns as written, in brackets
    QString primaryKeyName_; ///< "CONSTRAINT name " or empty
};

} // namespace Dialect
