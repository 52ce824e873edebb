#pragma once

#include "HostExport.h"

#include <QString>
#include <QVector>

class TADOConnection;

/// A colour of the palette.
struct TTagColor
{
    int Code = 0;
    QString Notation; ///< as Look::StringToColor reads it
    int Uses = 0;     ///< number of tags of this colour
};

/// The tags of the database, as far as new ones are defined.
class HOST_EXPORT TTagDefinition
{
public:
    static constexpr int LongestName = 50;
    /// Answers of Create() other than the new tag's code.
    static constexpr int LimitReached = -1;
    static constexpr int NameIsTaken = -2;

    /// At most `limit` tags are defined. The connection must outlive the object.
    TTagDefinition(TADOConnection& connection, int limit);

    bool HasRoom() const;
    /// The palette in the order of its codes. A database without one gets it first.
    QVector<TTagColor> Colors() const;
    bool HasTag(const QString& name) const;
    /// Creates the tag and answers its code, above 0. Limit and name are decided by the database at that
    /// moment, whoever else defines tags. `name` has 1 to LongestName characters.
    int Create(const QString& name, int colorCode) const;

private:
    int CodeOf(const QString& name) const;

    TADOConnection* connection_;
    int limit_;
};
