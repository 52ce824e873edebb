#pragma once

#include "HostExport.h"

#include <optional>
#include <QString>
#include <QVector>

/// Rows of a list whose column has one of the values.
struct TEntityRestriction
{
    QString Column;
    QVector<int> Values; ///< never empty
};

/// What the caller of a list of entities says about it, in one text:
///
///     [code "#LC#"] [parameters "#OP#"] parameters
///
/// `code` is what stands in the caller's box, as typed: the list opens on its row, and on the first one where
/// it is no code. Parameters restrict the list: `Column=Value`, `;` between several, a value being a whole
/// number or several with `,` between them; all must hold. Blanks do not matter.
///
///     12#LC#GroupCode=3;CurrCode=1,2       opens on code 12, in group 3, in currency 1 or 2
struct HOST_EXPORT TEntityArgument
{
    std::optional<int> CurrentCode;
    QVector<TEntityRestriction> Restrictions;

    /// Throws std::invalid_argument, naming the piece, for parameters that are not of this form.
    static TEntityArgument Of(const QString& text);
};
