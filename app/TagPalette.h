#pragma once

#include "SmartDBGrid_TRV.h"

#include <QHash>

class TADOConnection;

/// The names and colours of all tags, for lists that show the tags of their records.
class TTagPalette
{
public:
    void Read(TADOConnection& connection);

    /// The marks for a text of codes between commas, in its order; codes that are no tags are left out.
    QVector<TGridDot> DotsOf(const QVariant& tags) const;
    /// The same in words.
    QString NamesOf(const QVariant& tags) const;
    QString NameOf(const QString& code) const { return tags_.value(code).Name; }

private:
    QHash<QString, TGridDot> tags_; ///< by code
};
