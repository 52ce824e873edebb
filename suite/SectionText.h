#pragma once

#include "SuiteExport.h"

#include <functional>
#include <QList>
#include <QString>
#include <QStringList>

/// A text of numbers between separators (a date, a time of day) while it is typed: the separators come by
/// themselves, digits are typed over digits, each number keeps to its limits, and everything can be undone.
class SUITE_EXPORT TSectionText
{
public:
    /// One of the numbers.
    struct TSection
    {
        int Digits = 2;             ///< of the number when it is complete
        int Least = 0;              ///< the smallest number that is taken
        int Most = 0;               ///< the greatest number that is taken
        QString Refusal;            ///< the sentence that says what the section takes
        bool TakesExtremes = false; ///< zeros only and nines only are taken too, as open bounds begin
    };

    /// Empty, with the sections in the order in which they are typed.
    TSectionText(const QList<TSection>& sections, QChar separator);

    /// Completes a section that the user leaves with too few digits; by zeros in front where none is set.
    using TCompletion = std::function<QString(qsizetype section, const QString& digits)>;
    void SetCompletion(TCompletion completion) { completion_ = std::move(completion); }
    /// Other limits for a section, for what is typed from now on.
    void SetLimits(qsizetype section, int least, int most, const QString& refusal);

    QString Text() const; ///< as far as it is typed, in ASCII digits with separators
    /// Text() as it is once every section is completed.
    QString Settled() const;
    qsizetype MaxLength() const;                                                    ///< of a complete text
    bool IsEmpty() const { return now_.foreign.isEmpty() && Join(now_).isEmpty(); } ///< nothing is typed
    /// Every section has all its digits.
    bool IsComplete() const;

    /// Place in Text(), as all places here.
    qsizetype Caret() const { return PositionOf(now_.section, now_.offset); }
    void Select(qsizetype anchor, qsizetype caret); ///< the same place twice selects nothing
    /// The section that the selection or the caret stands in; the last one where everything is selected.
    qsizetype CurrentSection() const;
    /// The place before its first digit.
    qsizetype SectionStart(qsizetype section) const { return PositionOf(section, 0); }
    /// Digits that are typed of it.
    qsizetype SectionLength(qsizetype section) const { return now_.digits.at(section).size(); }

    /// Each of these answers whether anything changed, the caret included. Refusal() tells why a digit was
    /// not taken; it is empty where there simply is no room.
    bool TypeDigit(int digit);
    bool TypeSeparator();
    bool DeleteBackward();
    bool DeleteForward();
    bool DeleteSelection();
    bool Undo();
    bool Redo();
    bool CanUndo() const { return !undo_.isEmpty(); } ///< whether Undo() would change anything
    bool CanRedo() const { return !redo_.isEmpty(); } ///< whether Redo() would change anything
    /// Completes what is half typed.
    bool Settle();
    const QString& Refusal() const { return refusal_; }

    /// Another text in place of this one, as one step that can be undone.
    bool Assign(const QString& text);
    /// Another text from outside; nothing is left to undo. What is no such text is kept as it is until
    /// something is typed.
    void Reset(const QString& text);

private:
    struct TState
    {
        QStringList digits;
        qsizetype section = 0; // of the caret
        qsizetype offset = 0;
        qsizetype opened = 0; // the last section that a separator leads to
        QString foreign;
    };

    TState Empty() const;
    TState Parsed(const QString& text) const;
    QString Join(const TState& state) const;
    qsizetype PositionOf(qsizetype section, qsizetype offset) const;
    void Place(TState& state, qsizetype position) const;
    bool HasSelection() const { return anchor_ != Caret(); }
    TState WithoutSelection() const;
    bool InsertDigit(TState& state, QChar digit);
    bool TakeSection(TState& state, const QString& digits, qsizetype offset);
    bool Complete(TState& state);
    void OpenNext(TState& state) const;
    void CloseEmpty(TState& state) const;
    bool IsWithinLimits(qsizetype section, const QString& digits) const;
    bool Take(const TState& next);
    void MoveTo(const TState& state);

    QList<TSection> sections_;
    QChar separator_;
    TCompletion completion_;
    TState now_;
    qsizetype anchor_ = 0;
    QString refusal_;
    QList<TState> undo_;
    QList<TState> redo_;
};
