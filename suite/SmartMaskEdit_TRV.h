#pragma once

#include "SmartEdit_TRV.h"
#include "SuiteExport.h"

#include <QRegularExpression>

/// What a masked edit takes: a pattern for the whole text, and the kinds of keys.
class SUITE_EXPORT TRegExp
{
public:
    /// Kinds of characters that can be typed.
    enum TAllowedKey { vkLetter = 1, vkNumber = 2, vkSpace = 4, vkPunctuation = 8 };
    Q_DECLARE_FLAGS(TAllowedKeys, TAllowedKey)
    /// How the pattern is compared.
    enum TOption { roIgnoreCase = 1 };
    Q_DECLARE_FLAGS(TOptions, TOption)

    /// The empty pattern takes every text. Throws std::invalid_argument for one that is none. A text that is
    /// there already stays; it is checked when the edit is left.
    void SetRegExp(const QString& pattern);
    QString RegExp() const { return pattern_; }
    void SetOptions(TOptions options); ///< none at first
    TOptions Options() const { return options_; }

    bool ValidateIfEmpty = false; ///< whether an empty text has to match too
    /// The sentence for a text that does not match.
    QString ErrorMessage = QStringLiteral("مقدار وارده معتبر نیست");
    /// Other keys are refused, whatever the pattern says.
    TAllowedKeys AllowedKeys = TAllowedKeys(vkLetter | vkNumber | vkSpace | vkPunctuation);
    bool DisablePaste = false; ///< nothing can be pasted or dropped

    /// The whole text; an empty one unless ValidateIfEmpty says otherwise.
    bool Matches(const QString& text) const;
    /// Whether the text matches or could be typed on until it does.
    bool MayMatch(const QString& text) const;
    bool Allows(QChar character) const; ///< by AllowedKeys

private:
    QString pattern_;
    TOptions options_;
    QRegularExpression whole_;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(TRegExp::TAllowedKeys)
Q_DECLARE_OPERATORS_FOR_FLAGS(TRegExp::TOptions)

/// One-line edit that takes only what fits a pattern. A key that does not fit is refused with the pattern's
/// message; a text that does not match when the edit is left stays and is marked as wrong.
class SUITE_EXPORT TSmartMaskEdit_TRV : public TSmartEdit_TRV
{
    Q_OBJECT

public:
    explicit TSmartMaskEdit_TRV(QWidget* parent = nullptr);
    ~TSmartMaskEdit_TRV() override;

    /// What the edit takes; owned by the edit.
    TRegExp& RegExp() { return regExp_; }
    const TRegExp& RegExp() const { return regExp_; }
    bool IsValid() const { return regExp_.Matches(Text()); } ///< whether the text matches

protected:
    QString Admitted(const QString& text) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    TRegExp regExp_;
};
