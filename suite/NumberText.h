#pragma once

#include "SuiteExport.h"

#include <QList>
#include <QString>

/// What may be typed into a number edit.
struct TNumberRules
{
    int maxDigits = 0; ///< 0 for any number of digits
    int decimals = 0;  ///< digits behind the point; 0 for whole numbers
    bool negative = true;
};

/// A number while it is being typed: the digits, the grouping that is shown, the caret and what can be
/// undone. The caret stays behind the same digit whatever the grouping does around it.
class SUITE_EXPORT TNumberText
{
public:
    enum class TTaken { Yes, TooManyDigits, TooManyDecimals, DoesNotFit };

    /// Whether Display() groups thousands: amounts do, codes do not. Grouped at first.
    void SetGrouped(bool grouped) { grouped_ = grouped; }
    /// The number as shown. Positions are positions in this text.
    QString Display() const;
    /// The number without grouping signs, always complete: what is half typed counts as far as it goes.
    QString Text() const;
    int Caret() const;
    void Select(int anchor, int caret);
    QString SelectedText() const; ///< without grouping signs

    /// Each of these answers whether anything changed, the caret included. The selection is what they work
    /// on.
    bool Type(QChar character, const TNumberRules& rules); ///< a digit, a point or a sign of any script
    bool DeleteBackward();
    bool DeleteForward();
    bool DeleteToStart();
    bool DeleteToEnd();
    bool DeleteSelection();
    bool Undo();
    bool Redo();
    bool CanUndo() const { return !undo_.isEmpty(); }
    bool CanRedo() const { return !redo_.isEmpty(); }

    /// Puts a plain number in place of the selection, whole or not at all.
    TTaken Paste(const QString& number, const TNumberRules& rules);
    /// Another number from outside; nothing is left to undo.
    void Reset(const QString& number);
    /// Another number in place of this one, as one step that can be undone.
    void Assign(const QString& number);
    /// Completes what is half typed.
    void Settle();

private:
    struct TState
    {
        QString typed = QStringLiteral("0");
        int caret = 1; // in typed
    };

    bool HasSelection() const { return anchor_ != now_.caret; }
    int SelectionStart() const { return qMin(anchor_, now_.caret); }
    int SelectionEnd() const { return qMax(anchor_, now_.caret); }
    int SignLength() const { return now_.typed.startsWith(u'-') ? 1 : 0; }
    bool IsBareZero() const { return now_.typed.mid(SignLength()) == QStringLiteral("0"); }
    bool IsWhollySelected() const { return SelectionStart() == 0 && SelectionEnd() == now_.typed.size(); }
    int TypedPosition(int displayPosition) const;
    TState WithReplaced(int from, int to, const QString& text) const;
    bool TypeDigit(int digit, const TNumberRules& rules);
    bool TypePoint(const TNumberRules& rules);
    bool TypeSign(bool minus, const TNumberRules& rules);
    bool Remove(int from, int to);
    bool Take(const TState& next);
    void MoveTo(const TState& state);

    TState now_;
    int anchor_ = 1;
    bool grouped_ = true;
    QList<TState> undo_;
    QList<TState> redo_;
};
