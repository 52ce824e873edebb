#pragma once

#include "SuiteExport.h"

#include <QString>

/// Digits and signs of the three scripts, and texts as a Persian reader compares them.
namespace PersianText {

/// Persian and Arabic-Indic digits become ASCII; everything else stays.
SUITE_EXPORT QString AsciiDigits(const QString& text);
/// ASCII digits become Persian ones, for texts painted without the product's font (PDF, CSV, messages of
/// others).
SUITE_EXPORT QString PersianDigits(const QString& text);
/// The value of a digit of any of the three scripts; -1 where the character is none.
SUITE_EXPORT int DigitValue(QChar character);
/// ۱٬۲۳۴٫۵ and 1,234.5 and their mixtures as "1234.5"; empty where the text is no number.
SUITE_EXPORT QString NumberFromAnyScript(const QString& text);
/// The form in which two texts are equal when a Persian reader sees them alike: ی for ي and ى, ک for ك, ASCII
/// digits, no ZWNJ, no kashida, letters folded to lower case.
SUITE_EXPORT QString Fold(const QString& text);
/// The text between U+2068 and U+2069, so that it keeps its own direction inside a sentence.
SUITE_EXPORT QString Isolated(const QString& text);

/// A sentence as it is painted: its codes, numbers and paths isolated, so that 12/3-A is not turned round in
/// the middle of Persian words. Texts that already hold isolates stay as they are.
SUITE_EXPORT QString WithIsolatedCodes(const QString& sentence);
/// A name as it is painted: its numbers isolated, so that 0104-556677/2 behind Persian words is not turned
/// round at its signs. Words of other scripts are left alone: isolated one by one they would change places.
SUITE_EXPORT QString WithIsolatedNumbers(const QString& name);
/// What a one-line edit keeps of a text: ASCII digits, no control characters, no invisible direction marks,
/// no halves of surrogate pairs; line breaks become blanks, those at the ends go. ZWNJ, ZWJ and all letters
/// stay.
SUITE_EXPORT QString SingleLine(const QString& text);

} // namespace PersianText
