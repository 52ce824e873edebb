#pragma once

#include "AdoExport.h"

#include <QString>

/// The one spelling of an exact decimal number: no plus sign, no zeros in front of the whole part or behind
/// the last digit that counts, no bare point, no negative zero ("12.50" -> "12.5", ".5" -> "0.5", "-0.00" ->
/// "0"). A text that is no plain decimal number comes back as it is.
ADO_EXPORT QString CanonicalDecimal(const QString& text);

/// True when the text is digits with at most one point and an optional sign.
ADO_EXPORT bool IsDecimal(const QString& text);

/// True for a decimal in its one spelling; quick, for what mostly is.
ADO_EXPORT bool IsCanonicalDecimal(QStringView text);
