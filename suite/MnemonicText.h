#pragma once

#include <QRect>
#include <QString>

class QPainter;

/// The toolkit breaks the joining of a Persian word at its mnemonic letter. Here the word is painted whole
/// and the line drawn under the letter.
struct TMnemonicText
{
    QString Text;            ///< without marks
    qsizetype Position = -1; ///< of the mnemonic letter in Text; -1 where there is none

    static TMnemonicText Parse(const QString& marked);
    /// Whether the mnemonic letter is of a script whose letters join.
    bool BreaksJoining() const;
    /// Draws the line for one line of text painted with these flags in the rectangle.
    void PaintLine(QPainter& painter, const QRect& rect, int flags) const;
};
