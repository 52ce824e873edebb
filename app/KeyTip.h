#pragma once

#include "PersianText.h"

#include <QString>

/// What a tool tip says of a control that has a key of its own.
namespace KeyTip {

/// "meaning (key)"; the key keeps its left-to-right order.
inline QString Of(const QString& meaning, const QString& key)
{
    return QStringLiteral("%1 (%2)").arg(meaning, PersianText::Isolated(key));
}

} // namespace KeyTip
