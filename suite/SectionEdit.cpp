#include "SectionEdit.h"

#include "Balloon.h"
#include "ControlDispatch.h"
#include "EditMenu.h"
#include "Look.h"
#include "PersianText.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPointer>

namespace {

constexpr int UsualDelay = 300;

bool IsTyping(const QKeyEvent* event)
{
    const Qt::KeyboardModifiers held =
        event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return held == Qt::NoModifier && !event->text().isEmpty() && event->text().front() >= u' ' &&
           event->text().front() != QChar(0x7F);
}

bool IsSeparator(QChar sign)
{
    return QStringLiteral("/\\.-: ,،٫").contains(sign);
}

bool Matches(const QKeyEvent* event, std::initializer_list<QKeySequence::StandardKey> keys)
{
    return std::any_of(keys.begin(), keys.end(), [event](auto key) { return event->matches(key); });
}

} // namespace

TSectionEdit::TSectionEdit(const QList<TSectionText::TSection>& sections, QChar separator, QWidget* parent)
    : QLineEdit(parent), typed_(sections, separator)
{
    // Numbers run from left to right, half typed ones too.
    setLayoutDirection(Qt::LeftToRight);
    setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    setInputMethodHints(Qt::ImhPreferNumbers);
    setAcceptDrops(false);
    delay_.setSingleShot(true);
    delay_.setTimerType(Qt::PreciseTimer);
    delay_.setInterval(UsualDelay);
    connect(&delay_, &QTimer::timeout, this, &TSectionEdit::AnnounceValue);
    // Written by somebody who knows the edit only as the toolkit's line edit.
    connect(this, &QLineEdit::textChanged, this, [this](const QString& line) {
        if (!showing_)
            SetText(line);
    });
}

TSectionEdit::~TSectionEdit() = default;

void TSectionEdit::Init()
{
    SetText({});
}

void TSectionEdit::SetText(const QString& text)
{
    delay_.stop();
    ClearError();
    typed_.Reset(text);
    ShowTyped();
    toldValue_ = ValueOf(typed_.Settled());
    if (const QString problem = typed_.IsEmpty() ? QString() : ProblemOf(typed_.Settled());
        !problem.isEmpty())
        ShowError(problem);
    TextMayHaveChanged(false);
}

void TSectionEdit::ShowError(const QString& sentence)
{
    error_ = true;
    setAccessibleDescription(sentence);
    Balloon::Show(this, sentence);
    update();
}

void TSectionEdit::ClearError()
{
    if (!error_)
        return;
    error_ = false;
    if (Balloon::ShownText() == accessibleDescription())
        Balloon::Hide();
    setAccessibleDescription({});
    update();
}

void TSectionEdit::Refuse(const QString& sentence)
{
    ShowError(sentence);
}

void TSectionEdit::Assign(const QString& text)
{
    Edit([&text](TSectionText& typed) { return typed.Assign(text); });
}

void TSectionEdit::ShowTyped()
{
    showing_ = true;
    if (text() != typed_.Text())
        QLineEdit::setText(typed_.Text());
    showing_ = false;
    setCursorPosition(static_cast<int>(typed_.Caret()));
}

void TSectionEdit::Edit(const std::function<bool(TSectionText&)>& change)
{
    if (!CanChange())
        return;
    if (change(typed_)) {
        ShowTyped();
        TextMayHaveChanged(true);
    } else if (!typed_.Refusal().isEmpty()) {
        Refuse(typed_.Refusal());
    }
}

void TSectionEdit::TextMayHaveChanged(bool byUser)
{
    if (byUser)
        ClearError();
    if (Text() == toldText_)
        return;
    const QString now = Text();
    const QString before = std::exchange(toldText_, now);
    TextChanged(before);
    if (toldText_ != now)
        return;
    if (byUser) {
        const bool isHalfTyped = !typed_.IsComplete() && !typed_.IsEmpty();
        const QString problem = isHalfTyped || typed_.IsEmpty() ? QString() : ProblemOf(Text());
        if (!problem.isEmpty())
            ShowError(problem);
        if (isHalfTyped || !problem.isEmpty() || ValueOf(Text()) == toldValue_)
            delay_.stop();
        else
            delay_.start();
    }
    // A copy, because the handler may replace or clear itself, or destroy the edit.
    if (const TNotifyEvent handler = OnChange)
        handler(this);
}

void TSectionEdit::AnnounceValue()
{
    delay_.stop();
    toldValue_ = ValueOf(typed_.Settled());
    const QPointer<TSectionEdit> alive = this;
    if (const TNotifyEvent handler = OnEditValueChange)
        handler(this);
    if (alive)
        Q_EMIT editValueChanged();
}

/// The edit is left: what is half typed is completed, and what makes no value is said.
void TSectionEdit::Settle()
{
    const QPointer<TSectionEdit> alive = this;
    if (CanChange() && typed_.Settle()) {
        ShowTyped();
        TextMayHaveChanged(true);
    }
    if (!alive)
        return;
    const QString problem = typed_.IsEmpty() ? QString() : ProblemOf(Text());
    if (problem.isEmpty())
        ClearError();
    else
        ShowError(problem);
    if (ValueOf(Text()) != toldValue_)
        AnnounceValue();
}

bool TSectionEdit::HandleKey(QKeyEvent* event)
{
    const auto caret = static_cast<qsizetype>(cursorPosition());
    const bool caretFirst = hasSelectedText() && caret == selectionStart();
    typed_.Select(!hasSelectedText() ? caret : caretFirst ? selectionEnd() : selectionStart(), caret);
    if (HandleOwnKey(event) || HandleEditKey(event))
        return true;
    if (IsTyping(event)) {
        Type(event->text());
        return true;
    }
    // Numbers run from left to right whatever the user's layout keys say.
    return event->key() == Qt::Key_Direction_L || event->key() == Qt::Key_Direction_R;
}

bool TSectionEdit::HandleEditKey(const QKeyEvent* event)
{
    if (event->matches(QKeySequence::Paste)) {
        Paste(QGuiApplication::clipboard()->text());
    } else if (event->matches(QKeySequence::Cut)) {
        copy();
        Edit([](TSectionText& typed) { return typed.DeleteSelection(); });
    } else if (event->matches(QKeySequence::Undo)) {
        Edit([](TSectionText& typed) { return typed.Undo(); });
    } else if (event->matches(QKeySequence::Redo)) {
        Edit([](TSectionText& typed) { return typed.Redo(); });
    } else if (Matches(event, {QKeySequence::DeleteStartOfWord, QKeySequence::DeleteCompleteLine})) {
        typed_.Select(0, cursorPosition());
        Edit([](TSectionText& typed) { return typed.DeleteSelection(); });
    } else if (Matches(event, {QKeySequence::DeleteEndOfWord, QKeySequence::DeleteEndOfLine})) {
        typed_.Select(text().size(), cursorPosition());
        Edit([](TSectionText& typed) { return typed.DeleteSelection(); });
    } else if (event->key() == Qt::Key_Backspace) {
        Edit([](TSectionText& typed) { return typed.DeleteBackward(); });
    } else if (event->matches(QKeySequence::Delete)) {
        Edit([](TSectionText& typed) { return typed.DeleteForward(); });
    } else {
        return false;
    }
    return true;
}

void TSectionEdit::Type(const QString& text)
{
    const QPointer<TSectionEdit> alive = this;
    for (const QChar sign : text) {
        const int digit = PersianText::DigitValue(sign);
        if (digit >= 0)
            Edit([digit](TSectionText& typed) { return typed.TypeDigit(digit); });
        else if (IsSeparator(sign))
            Edit([](TSectionText& typed) { return typed.TypeSeparator(); });
        if (!alive)
            return;
    }
}

bool TSectionEdit::Paste(const QString& text)
{
    if (text.isEmpty() || !CanChange())
        return false;
    const QString pasted = Pasted(text);
    if (pasted.isEmpty()) {
        Refuse(PasteRefusal());
        return false;
    }
    Assign(pasted);
    return true;
}

void TSectionEdit::AddToMenu(QMenu* /*menu*/)
{
}

bool TSectionEdit::event(QEvent* event)
{
    return ControlDispatch::Event(this, *this, event) || QLineEdit::event(event);
}

void TSectionEdit::keyPressEvent(QKeyEvent* event)
{
    ControlDispatch::KeyPress(this, *this, event, [this](QKeyEvent* own) {
        if (!HandleKey(own))
            QLineEdit::keyPressEvent(own);
    });
}

void TSectionEdit::keyReleaseEvent(QKeyEvent* event)
{
    ControlDispatch::KeyRelease(this, *this, event,
                                [this](QKeyEvent* own) { QLineEdit::keyReleaseEvent(own); });
}

void TSectionEdit::inputMethodEvent(QInputMethodEvent* event)
{
    const QPointer<TSectionEdit> alive = this;
    const QString text = ControlDispatch::Characters(this, *this, event->commitString());
    event->accept();
    if (alive)
        Type(text);
}

void TSectionEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    // What is typed next goes over what is there, whichever way the focus came.
    if (event->reason() == Qt::OtherFocusReason)
        selectAll();
    ControlDispatch::FocusIn(this, *this, event);
}

void TSectionEdit::focusOutEvent(QFocusEvent* event)
{
    const QPointer<TSectionEdit> alive = this;
    QLineEdit::focusOutEvent(event);
    if (alive && ControlDispatch::MovesBetweenControls(event))
        Settle();
    if (alive)
        ControlDispatch::FocusOut(this, *this, event);
}

void TSectionEdit::contextMenuEvent(QContextMenuEvent* event)
{
    TEditCommands commands;
    commands.Undo = [this] { Edit([](TSectionText& typed) { return typed.Undo(); }); };
    commands.Redo = [this] { Edit([](TSectionText& typed) { return typed.Redo(); }); };
    commands.Copy = [this] { copy(); };
    commands.Delete = [this] {
        typed_.Select(selectionStart(), selectionEnd());
        Edit([](TSectionText& typed) { return typed.DeleteSelection(); });
    };
    commands.Cut = [copyIt = commands.Copy, deleteIt = commands.Delete] {
        copyIt();
        deleteIt();
    };
    commands.Paste = [this] { Paste(QGuiApplication::clipboard()->text()); };
    commands.CanUndo = typed_.CanUndo();
    commands.CanRedo = typed_.CanRedo();
    commands.CanChange = CanChange();
    commands.CanPaste = true;
    QMenu* menu = EditMenu::Create(this, commands);
    AddToMenu(menu);
    menu->popup(event->globalPos());
}

void TSectionEdit::mouseReleaseEvent(QMouseEvent* event)
{
    const QClipboard* clipboard = QGuiApplication::clipboard();
    if (event->button() == Qt::MiddleButton && clipboard->supportsSelection())
        Paste(clipboard->text(QClipboard::Selection));
    else
        QLineEdit::mouseReleaseEvent(event);
}

void TSectionEdit::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    if (error_) {
        QPainter painter(this);
        Look::PaintRing(painter, rect(), Look::Color(Look::TRole::Wrong));
    }
}
