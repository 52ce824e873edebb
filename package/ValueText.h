#pragma once

#include <QLocale>
#include <QString>
#include <QVariant>

/// The text by which a box shows a value: numbers in full, never with an exponent; null is empty.
inline QString ValueText(const QVariant& value)
{
    return value.typeId() == QMetaType::Double
               ? QString::number(value.toDouble(), 'f', QLocale::FloatingPointShortest)
               : value.toString();
}
