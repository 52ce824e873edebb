#pragma once

#include <QStringList>
#include <QVector>

/// The texts of the folder vocabulary/, embedded in the library. Empty lines and lines beginning with # are
/// skipped; a line in square brackets begins a section.
namespace Vocabulary {

/// The lines of a file's section, with their indentation; without a section the lines before the first one.
QStringList Lines(const QString& file, const QString& section = {});
/// The same, cut at the vertical bars, without the blanks around the pieces.
QVector<QStringList> Rows(const QString& file, const QString& section = {});
/// The names of a file's sections in their order.
QStringList Sections(const QString& file);

} // namespace Vocabulary
