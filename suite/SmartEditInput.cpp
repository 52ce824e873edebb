#include "SmartEditPrivate.h"

#include "Balloon.h"
#include "DecimalText.h"
#include "EditMenu.h"
#include "PersianText.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>

namespace {

// More than anybody writes on one line, and as much as a line can lay out without a pause.
constexpr int LongestLine = 32767;

bool IsTyping(const QKeyEvent* event)
{
    const Qt::KeyboardModifiers held =
        event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool plain = held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier);
    return plain && !event->text().isEmpty() && event->text().front() >= u' ' &&
           event->text().front() != QChar(0x7F);
}

// The toolkit's line writes the letter of Alt and a letter that no mnemonic has taken.
bool WritesBesideTyping(const QKeyEvent* event)
{
    const Qt::KeyboardModifiers held = event->modifiers() & (Qt::AltModifier | Qt::MetaModifier);
    return held != Qt::NoModifier && !IsTyping(event) && !event->text().isEmpty() &&
           event->text().front() >= u' ';
}

bool IsDirectionKey(const QKeyEvent* event)
{
    return event->key() == Qt::Key_Direction_L || event->key() == Qt::Key_Direction_R;
}

bool Matches(const QKeyEvent* event, std::initializer_list<QKeySequence::StandardKey> keys)
{
    return std::any_of(keys.begin(), keys.end(), [event](auto key) { return event->matches(key); });
}

QString PersianCount(int count)
{
    return PersianText::PersianDigits(QString::number(count));
}

QString RefusalOf(TNumberText::TTaken taken, const TNumberRules& rules)
{
    switch (taken) {
    case TNumberText::TTaken::TooManyDigits:
        return QStringLiteral("این کادر تا %1 رقم جا دارد؛ عدد کوتاه‌تری "
                              "بچسبانید.")
            .arg(PersianCount(rules.maxDigits));
    case TNumberText::TTaken::TooManyDecimals:
        return rules.decimals == 0
                   ? QStringLiteral(
                         "این کادر عدد بدون اعشار می‌خواهد؛ عدد را گرد "
                         "کنید "
                         "و "
                         "دوباره بچسبانید.")
                   : QStringLiteral(
                         "این کادر تا %1 رقم اعشار می‌پذیرد؛ عدد را گرد "
                         "کنید "
                         "و "
                         "دوباره بچسبانید.")
                         .arg(PersianCount(rules.decimals));
    default:
        return QStringLiteral(
            "این عدد با آنچه در کادر هست جور نمی‌شود؛ همهٔ کادر را انتخاب کنید "
            "و "
            "دوباره "
            "بچسبانید.");
    }
}

} // namespace

bool TSmartEdit_TRV::TPrivate::HandleKey(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Paste)) {
        Paste(QGuiApplication::clipboard()->text());
        return true;
    }
    if (IsNumber())
        return HandleNumberKey(event);
    if (WritesBesideTyping(event)) {
        event->ignore();
        return true;
    }
    if (!IsTyping(event))
        return false;
    const QString clean = TypedText(event->text());
    if (clean == event->text())
        return false;
    if (!clean.isEmpty() && CanChange())
        edit->insert(clean);
    return true;
}

bool TSmartEdit_TRV::TPrivate::HandleNumberKey(QKeyEvent* event)
{
    if (calculator && event->key() == Qt::Key_F4 && event->modifiers() == Qt::NoModifier)
        OpenCalculator();
    else if (event->matches(QKeySequence::Copy))
        Copy();
    else if (event->matches(QKeySequence::Cut))
        Cut();
    else if (event->matches(QKeySequence::Undo))
        Undo();
    else if (event->matches(QKeySequence::Redo))
        Redo();
    else if (Matches(event, {QKeySequence::DeleteStartOfWord, QKeySequence::DeleteCompleteLine}))
        Edit([](TNumberText& text) { return text.DeleteToStart(); });
    else if (Matches(event, {QKeySequence::DeleteEndOfWord, QKeySequence::DeleteEndOfLine}))
        Edit([](TNumberText& text) { return text.DeleteToEnd(); });
    else if (event->key() == Qt::Key_Backspace)
        Edit([](TNumberText& text) { return text.DeleteBackward(); });
    else if (event->matches(QKeySequence::Delete))
        Edit([](TNumberText& text) { return text.DeleteForward(); });
    else if (IsTyping(event))
        Type(event->text());
    else
        // A number runs from left to right whatever the user's layout keys say.
        return IsDirectionKey(event);
    return true;
}

bool TSmartEdit_TRV::TPrivate::Edit(const std::function<bool(TNumberText&)>& change)
{
    if (!CanChange())
        return false;
    const int caret = edit->cursorPosition();
    int anchor = caret;
    if (edit->hasSelectedText())
        anchor = caret == edit->selectionStart() ? edit->selectionEnd() : edit->selectionStart();
    number.Select(anchor, caret);
    TNumberText candidate = number;
    if (!change(candidate) || !IsWithinReach(candidate))
        return false;
    number = candidate;
    ShowNumber();
    TextMayHaveChanged(true);
    return true;
}

// Digits that lead further out of the bounds are refused; what is still too small may become large enough.
bool TSmartEdit_TRV::TPrivate::IsWithinReach(const TNumberText& candidate)
{
    const long double value = DecimalText::ToValue(candidate.Text());
    const long double now = DecimalText::ToValue(number.Text());
    const bool tooLarge = maxValue >= 0 && value > maxValue && value > now;
    const bool tooSmall = minValue <= 0 && value < minValue && value < now;
    if (!IsBounded() || (!tooLarge && !tooSmall))
        return true;
    const QString bound =
        DecimalText::Grouped(DecimalText::FromValue(tooLarge ? maxValue : minValue, Decimals()));
    Balloon::Show(
        edit,
        (tooLarge
             ? QStringLiteral(
                   "بیشترین مقدار این کادر %1 است؛ عدد کوچک‌تری "
                   "بنویسید.")
             : QStringLiteral("کمترین مقدار این کادر %1 است؛ عدد بزرگ‌تری "
                              "بنویسید."))
            .arg(bound));
    return false;
}

void TSmartEdit_TRV::TPrivate::Type(const QString& text)
{
    const QPointer<TSmartEdit_TRV> alive = edit;
    for (const QChar character : text) {
        Edit([&](TNumberText& typed) { return typed.Type(character, Rules()); });
        if (!alive)
            return;
    }
}

// What a text edit takes of a text.
QString TSmartEdit_TRV::TPrivate::CleanText(const QString& text) const
{
    if (!digitsOnly)
        return PersianText::SingleLine(text);
    QString digits = PersianText::AsciiDigits(text);
    digits.removeIf([](QChar character) { return character < u'0' || character > u'9'; });
    return digits;
}

QString TSmartEdit_TRV::TPrivate::TypedText(const QString& text) const
{
    const QString fitting = FittingText(CleanText(text));
    return fitting.isEmpty() ? fitting : edit->Admitted(fitting);
}

// As much of a text as the edit still has room for.
QString TSmartEdit_TRV::TPrivate::FittingText(const QString& text) const
{
    const int limit = maxLength > 0 ? maxLength : LongestLine;
    const qsizetype room = limit - (edit->text().size() - edit->selectedText().size());
    if (room <= 0)
        return {};
    const bool splitsPair = room < text.size() && text.at(room).isLowSurrogate();
    return text.left(splitsPair ? room - 1 : room);
}

bool TSmartEdit_TRV::TPrivate::Paste(const QString& text)
{
    if (text.isEmpty() || !CanChange())
        return false;
    QString taken = text;
    const QPointer<TSmartEdit_TRV> alive = edit;
    // A copy, because the handler may replace or clear itself.
    if (const TPasteEvent handler = edit->OnPaste)
        handler(edit, taken);
    if (!alive || taken.isEmpty())
        return true;
    if (IsNumber())
        return PasteNumber(taken);
    return digitsOnly ? PasteDigits(taken) : PasteText(taken);
}

// The one number of a text; a sentence to the user where there is not just one.
std::optional<QString> TSmartEdit_TRV::TPrivate::FindNumber(const QString& text) const
{
    QString found;
    switch (DecimalText::Find(text, found)) {
    case DecimalText::TFinding::Nothing:
        Balloon::Show(
            edit,
            QStringLiteral(
                "در متن چسبانده‌شده عددی نیست؛ یک عدد رونوشت کنید و دوباره بچسبانید."));
        return {};
    case DecimalText::TFinding::Several:
        Balloon::Show(
            edit,
            QStringLiteral(
                "متن چسبانده‌شده یک عدد تنها نیست؛ فقط همان عدد را رونوشت کنید."));
        return {};
    case DecimalText::TFinding::One:
        break;
    }
    return found;
}

bool TSmartEdit_TRV::TPrivate::PasteNumber(const QString& text)
{
    const std::optional<QString> found = FindNumber(text);
    if (!found)
        return false;
    TNumberText::TTaken taken = TNumberText::TTaken::Yes;
    const TNumberRules rules = Rules();
    const bool done = Edit([&](TNumberText& typed) {
        taken = typed.Paste(*found, rules);
        return taken == TNumberText::TTaken::Yes;
    });
    if (taken != TNumberText::TTaken::Yes)
        Balloon::Show(edit, RefusalOf(taken, rules));
    return done;
}

// A code is taken whole or not at all; half of one would be another one. Its zeros in front stay.
bool TSmartEdit_TRV::TPrivate::PasteDigits(const QString& text) const
{
    const std::optional<QString> found = FindNumber(text);
    if (!found)
        return false;
    const QString digits = CleanText(text);
    if (found->startsWith(u'-') || found->contains(u'.')) {
        Balloon::Show(
            edit, QStringLiteral("کد فقط رقم دارد؛ کد را بی علامت و اعشار رونوشت کنید و دوباره بچسبانید."));
    } else if (FittingText(digits) != digits) {
        Balloon::Show(edit, RefusalOf(TNumberText::TTaken::TooManyDigits, Rules()));
    } else {
        edit->insert(digits);
        return true;
    }
    return false;
}

bool TSmartEdit_TRV::TPrivate::PasteText(const QString& text) const
{
    const QString clean = PersianText::SingleLine(text);
    if (clean.isEmpty()) {
        Balloon::Show(
            edit,
            QStringLiteral(
                "متن چسبانده‌شده نوشته‌ای ندارد؛ متن دیگری رونوشت کنید."));
        return false;
    }
    const QString fitting = FittingText(clean);
    const QPointer<TSmartEdit_TRV> alive = edit;
    if (!fitting.isEmpty())
        edit->insert(fitting);
    if (alive && fitting.size() < clean.size())
        Balloon::Show(alive, QStringLiteral("این کادر تا %1 نویسه جا دارد؛ باقی متن چسبانده نشد.")
                                 .arg(PersianCount(maxLength > 0 ? maxLength : LongestLine)));
    return !fitting.isEmpty();
}

void TSmartEdit_TRV::TPrivate::Copy() const
{
    if (!IsNumber()) {
        edit->copy();
        return;
    }
    QString selected = edit->selectedText();
    if (!selected.isEmpty())
        QGuiApplication::clipboard()->setText(selected.remove(u','));
}

void TSmartEdit_TRV::TPrivate::Cut()
{
    if (!CanChange())
        return;
    Copy();
    DeleteSelected();
}

void TSmartEdit_TRV::TPrivate::DeleteSelected()
{
    if (IsNumber())
        Edit([](TNumberText& text) { return text.DeleteSelection(); });
    else if (CanChange() && edit->hasSelectedText())
        edit->insert({});
}

void TSmartEdit_TRV::TPrivate::Undo()
{
    if (IsNumber())
        Edit([](TNumberText& text) { return text.Undo(); });
    else
        edit->undo();
}

void TSmartEdit_TRV::TPrivate::Redo()
{
    if (IsNumber())
        Edit([](TNumberText& text) { return text.Redo(); });
    else
        edit->redo();
}

QMenu* TSmartEdit_TRV::TPrivate::ContextMenu()
{
    TEditCommands commands;
    commands.Undo = [this] { Undo(); };
    commands.Redo = [this] { Redo(); };
    commands.Cut = [this] { Cut(); };
    commands.Copy = [this] { Copy(); };
    commands.Paste = [this] { Paste(QGuiApplication::clipboard()->text()); };
    commands.Delete = [this] { DeleteSelected(); };
    commands.CanUndo = IsNumber() ? number.CanUndo() : edit->isUndoAvailable();
    commands.CanRedo = IsNumber() ? number.CanRedo() : edit->isRedoAvailable();
    commands.CanChange = CanChange();
    commands.CanPaste = true;
    QMenu* menu = EditMenu::Create(edit, commands);
    if (calculatorButton && CanChange())
        menu->addAction(calculatorButton);
    return menu;
}
