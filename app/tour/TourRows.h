#pragma once

#include <QString>
#include <QStringList>

class TListForm;

/// What the rows of a list hold, for the tour's checks.
namespace TourRows {

/// Texts of a column in the first rows, at most `count`; rows that have not arrived are left out.
QStringList FirstTexts(TListForm& list, const QString& fieldName, int count = 50);
/// Whether each of the first rows contains the text, compared as a Persian reader does; false where there is
/// no row.
bool EachContains(TListForm& list, const QString& fieldName, const QString& text);
/// Whether none of the first rows contains it; false where there is no row.
bool NoneContains(TListForm& list, const QString& fieldName, const QString& text);
/// The value of a column in the current row.
QString CurrentText(TListForm& list, const QString& fieldName);

} // namespace TourRows
