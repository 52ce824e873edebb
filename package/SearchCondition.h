#pragma once

#include "PackageExport.h"
#include "TarvaSearch.h"
#include "TextPattern.h"

#include <optional>
#include <QString>
#include <QStringList>
#include <QVariant>

/// What one criterion says about one column, with its values checked and brought into one form. Made once,
/// then given as statement text, as an answer for one value, and in Persian words; all three mean the same.
///
/// A value that does not fit its column's kind (a text for a number, a day that does not exist, a text that
/// is too long) gives a condition that no row meets, reversed or not, and that says so in words: a list that
/// ignored the value would show rows the user has not asked for.
class BASEFRAME_EXPORT TSearchCondition
{
public:
    /// None where the criterion does not filter: switched off, no item, no field name, no value.
    /// Throws EADOError(WrongState) where the item's field name is no name.
    static std::optional<TSearchCondition> Of(const TTarvaSearch& criterion);

    /// T-SQL, to be joined to others with AND. A reversed condition also holds for NULL.
    QString Sql() const;
    /// A Persian clause with its verb: `نام شامل «شیر» باشد`.
    QString Words() const;
    /// Whether a row with this value in Column() meets the condition; an invalid variant is NULL.
    bool Matches(const QVariant& value) const;
    /// Name of the column in a data set.
    QString Column() const { return column_; }

private:
    enum class TOperator { Contains, Equals, Range, HasCode, Nothing };
    enum class TKind { Text, Number, Money, Moment };

    /// A bound of a range. An open one has an empty value.
    struct TBound
    {
        QString Value; ///< as compared
        QString Shown; ///< as the user wrote it
        bool IsOpen() const { return Value.isEmpty(); }
    };

    TSearchCondition(const TTarvaSearch& criterion, const TSearchItem& item);

    bool ReadSingle(const TTarvaSearch& criterion, const TSearchItem& item);
    bool ReadText(const QString& text);
    bool ReadNumber(const QVariant& value, bool ignoreZero);
    bool ReadMoment(const QString& text);
    bool ReadCodes(const QString& text, bool ignoreZero);
    bool ReadRange(const TTarvaSearch& criterion, const TSearchItem& item);
    bool ReadNumbers(const TTarvaSearch& criterion);
    bool ReadTexts(const TTarvaSearch& criterion, bool isDate);
    bool ReadMoments(const TTarvaSearch& criterion);
    bool Refuse(const QString& shown, const QString& reason);

    QString PlainSql() const;
    QString ContainsSql() const;
    QString RangeSql() const;
    QString CodesSql() const;
    QString Literal(const QString& value) const;
    bool PlainMatches(const QVariant& value) const;
    bool InRange(const QVariant& value) const;
    int CompareWith(const QVariant& value, const QString& bound) const;
    QString RangeWords() const;
    QString ValueInWords(const QString& value) const;

    QString words_; ///< the owner's own; empty where there are none
    QString title_;
    QString field_;
    QString foldedField_;
    QString column_;
    bool reversed_;
    TOperator operator_ = TOperator::Nothing;
    TKind kind_ = TKind::Text;
    TBound lower_; ///< the value itself of an operator with one value
    TBound upper_;
    TTextPattern pattern_{QString()};
    QStringList codes_;
    QString reason_; ///< why nothing matches
};
