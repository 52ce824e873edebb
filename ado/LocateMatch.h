#pragma once

#include "ADOQuery.h"

/// Compares rows with the values that Locate is asked for.
class TLocateMatch
{
public:
    /// `fields` and `values` belong together one by one.
    TLocateMatch(const QVector<TField*>& fields, const QVariantList& values, TLocateOptions options);
    bool Matches(const TADOQuery& query, int sourceRow) const;

private:
    struct TCondition
    {
        int Index;
        QVariant Value;
        bool IsNumber;
        QString Text; ///< canonical where a number is compared
    };

    bool Matches(const TCondition& condition, const QVariant& value) const;
    bool TextMatches(const QString& text, const QString& wanted) const;

    QVector<TCondition> conditions_;
    TLocateOptions options_;
};
