#pragma once

#include "SmartEdit_TRV.h"

/// What one box of an account code shows: a code, or in grey the name of its level.
namespace AccountCodeBox {

/// The code in the box; 0 where its text is anything else than ASCII digits that an int holds.
int Code(const TSmartEdit_TRV& box);
/// The text begins with a letter, which no code does.
bool ShowsPlaceholder(const TSmartEdit_TRV& box);
void ShowPlaceholder(TSmartEdit_TRV& box, QStringView levelName);
/// Black and in the size of codes; the text stays.
void StyleAsCode(TSmartEdit_TRV& box);
/// Empties a box that shows its placeholder.
void RemovePlaceholder(TSmartEdit_TRV& box);
/// The colours again, after the scheme has changed.
void Restyle(TSmartEdit_TRV& box);
/// Puts the digits of a pasted text in at the caret, as many as there is room for; says in a balloon what was
/// left out.
void TakeDigits(TSmartEdit_TRV& box, const QString& pasted);

} // namespace AccountCodeBox
