#include "SmartMaskEdit_TRV.h"

#include "ControlDispatch.h"

#include <algorithm>
#include <QFocusEvent>
#include <QPointer>
#include <stdexcept>

namespace {

TRegExp::TAllowedKey KindOf(QChar character)
{
    if (character.isDigit())
        return TRegExp::vkNumber;
    if (character.isSpace())
        return TRegExp::vkSpace;
    return character.isPunct() || character.isSymbol() ? TRegExp::vkPunctuation : TRegExp::vkLetter;
}

} // namespace

void TRegExp::SetRegExp(const QString& pattern)
{
    const auto options = options_.testFlag(roIgnoreCase) ? QRegularExpression::CaseInsensitiveOption
                                                         : QRegularExpression::NoPatternOption;
    const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern), options);
    if (!whole.isValid())
        throw std::invalid_argument("TRegExp: '" + pattern.toStdString() +
                                    "' is no pattern: " + whole.errorString().toStdString());
    pattern_ = pattern;
    whole_ = whole;
}

void TRegExp::SetOptions(TOptions options)
{
    options_ = options;
    SetRegExp(pattern_);
}

bool TRegExp::Matches(const QString& text) const
{
    if (pattern_.isEmpty())
        return !text.isEmpty() || !ValidateIfEmpty;
    return (text.isEmpty() && !ValidateIfEmpty) || whole_.match(text).hasMatch();
}

bool TRegExp::MayMatch(const QString& text) const
{
    if (pattern_.isEmpty())
        return true;
    const auto match = whole_.match(text, 0, QRegularExpression::PartialPreferCompleteMatch);
    return match.hasMatch() || match.hasPartialMatch();
}

bool TRegExp::Allows(QChar character) const
{
    return AllowedKeys.testFlag(KindOf(character));
}

TSmartMaskEdit_TRV::TSmartMaskEdit_TRV(QWidget* parent) : TSmartEdit_TRV(parent)
{
    OnPaste = [this](QObject*, QString& text) {
        if (!regExp_.DisablePaste)
            return;
        text.clear();
        ShowError(QStringLiteral("چسباندن در این کادر ممکن نیست؛ مقدار را بنویسید."));
    };
}

TSmartMaskEdit_TRV::~TSmartMaskEdit_TRV() = default;

QString TSmartMaskEdit_TRV::Admitted(const QString& text)
{
    const QString now = this->text();
    const qsizetype start = hasSelectedText() ? selectionStart() : cursorPosition();
    const QString then = now.left(start) + text + now.mid(start + selectedText().size());
    const bool allowed =
        std::all_of(text.begin(), text.end(), [this](QChar character) { return regExp_.Allows(character); });
    if (allowed && regExp_.MayMatch(then))
        return text;
    ShowError(regExp_.ErrorMessage);
    return {};
}

void TSmartMaskEdit_TRV::focusOutEvent(QFocusEvent* event)
{
    const QPointer<TSmartMaskEdit_TRV> alive = this;
    TSmartEdit_TRV::focusOutEvent(event);
    // The owner may have completed the text on the exit.
    if (alive && ControlDispatch::MovesBetweenControls(event) && !IsValid())
        ShowError(regExp_.ErrorMessage);
}
