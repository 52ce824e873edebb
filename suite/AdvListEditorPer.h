#pragma once

#include "AdvListValues.h"
#include "ControlEvents.h"
#include "SuiteExport.h"

#include <functional>
#include <memory>
#include <QChar>
#include <QImage>
#include <QStringList>
#include <QVector>
#include <QWidget>

class QMenu;

/// A mouse button went down inside the editor, anywhere but on a close mark; X and Y in the editor's pixels.
using TMouseDownEvent =
    std::function<void(QObject* Sender, Qt::MouseButton Button, Qt::KeyboardModifiers Shift, int X, int Y)>;
/// The item at `ValueIndex` was made of a text; `Text` is its text.
using TValueEditDoneEvent = std::function<void(QObject* Sender, int ValueIndex, QString& Text)>;

/// Edit whose text is a row of items shown as bubbles, with a box for typing among them. The caret, and with
/// it the box, stands at one of the Count() + 1 places before, between and behind the bubbles. What is typed
/// is free text: it stays as it was typed.
///
/// Keys. The arrow that points forward in reading order (Left from right to left) goes through the typed text
/// and, at its end, over the next bubble; the other one back. Home and End go to the ends of the typed text,
/// then to those of the row; with Ctrl to those of the row at once. With Shift they select. Ctrl+A selects
/// everything. Backspace removes the selected bubbles; without any, a character of the text, and at the
/// text's start the bubble before it; held, it stops where the text ends. Delete likewise the bubble behind.
/// Typing and pasting never remove a bubble. Copied bubbles are their texts with the separator between them.
///
/// How a typed text becomes an item:
///  - The user chooses an entry of the pop-up that lists the entries of Lookup() which begin with the text:
///    with the mouse, or with Enter or Tab on an entry to which he has gone by Up or Down. The item is a copy
///    of the entry.
///  - He types the separator, or pastes a text that holds separators or lines, and Lookup() has an entry of
///    that text as a Persian reader compares; the item is a copy of that entry. Where there is none, the text
///    becomes an item with an empty value if FreeItems() is set; if not, the separator is a character like
///    any other.
/// Each item made so raises OnValueEditDone. Nothing else makes an item of the text: Enter without an entry
/// gone to leaves the text as it is, so that OnKeyUp of Enter finds it in EditText(). An entry that is taken
/// by Enter or Tab is in Values() when OnKeyUp of that key comes, and EditText() is empty then.
///
/// Tab moves the focus with its press and is released in the next control. Where a text is typed the editor
/// therefore raises OnKeyUp of Tab itself, just before the focus goes.
///
/// Removal. The user removes bubbles by Backspace, Delete, cutting, the menu's commands and the close mark. A
/// removal that is neither Backspace nor Delete is raised as a stroke of Delete (OnKeyDown before, OnKeyUp
/// after it), so that an owner who looks for removals in OnKeyUp sees all of them. An OnKeyDown that swallows
/// the key prevents the removal.
///
/// A handler may change the items. It may destroy the editor too, except in OnEnter and OnExit, which come
/// while the toolkit moves the focus.
class SUITE_EXPORT TAdvListEditorPer : public QWidget, public TControlEvents
{
    Q_OBJECT
    Q_PROPERTY(QString EditText READ EditText WRITE SetEditText)
    Q_PROPERTY(QString PlaceholderText READ PlaceholderText WRITE SetPlaceholderText)
    Q_PROPERTY(bool ReadOnly READ ReadOnly WRITE SetReadOnly)
    Q_PROPERTY(bool FreeItems READ FreeItems WRITE SetFreeItems)
    Q_PROPERTY(bool AllowReorder READ AllowReorder WRITE SetAllowReorder)
    Q_PROPERTY(bool CloseMarks READ CloseMarks WRITE SetCloseMarks)
    Q_PROPERTY(int MaxLength READ MaxLength WRITE SetMaxLength)
    Q_PROPERTY(int MaxLines READ MaxLines WRITE SetMaxLines)

public:
    explicit TAdvListEditorPer(QWidget* parent = nullptr);
    ~TAdvListEditorPer() override;

    /// The items. A caret behind the last bubble stays there when items are added.
    TAdvListValues& Values();
    const TAdvListValues& Values() const;
    /// The entries of the auto-completion, in the order in which they are offered.
    TAdvListValues& Lookup();
    const TAdvListValues& Lookup() const;

    /// The text that is typed and not yet an item, as it stands in the box.
    QString EditText() const;
    /// Puts a text into the box, caret behind it; no pop-up opens.
    void SetEditText(const QString& text);
    /// Empties the typed text; the items stay.
    void clear();
    /// Settles the typed text for its owner: decides StateFlag(). EditText() is up to date with or without
    /// it, and the text becomes no item.
    void Getvalue();
    /// True where the typed text may be completed by suggestions: false after a Getvalue() on a disabled or
    /// read-only editor, true after any other and before the first.
    bool StateFlag() const;
    /// Puts the caret behind the last bubble and lets go of selected bubbles. The typed text stays.
    void CorrectEditPos();
    /// Writes the selection text KeyList anew: the items' values in order, each followed by a comma and the
    /// whole preceded by one (",3,12,"); empty without items. Empty values are left out. While TableName is
    /// set, KeyList holds the keys of records and belongs to the host: then nothing happens.
    void Update_selectedItems();

    /// Number of items before the key being handled. Set by each press before OnKeyDown; a key that repeats
    /// while it is held keeps what its first press has set. OnKeyUp of a key sees its own press's number,
    /// whatever keys were pressed in between.
    int SnapshotCount() const;
    /// What the key being handled has removed, as display text, comma, value: of all bubbles it has removed,
    /// the one that stood first. Empty where it has removed none.
    QString RemovedItem() const;
    /// The place of RemovedItem() in Values() before it was removed; -1 where the key has removed none.
    int RemovedIndex() const;
    /// The current item, as an index into Values(); -1 exactly when there is no item. After a removal it is
    /// the item that has taken the removed one's place, and where the row ends before that place, the last
    /// item. After a key that has removed nothing it is the item before the caret, or the first one where the
    /// caret stands before all.
    ///
    /// It follows Values() at once, so this loop takes away everything behind a removed item and ends:
    ///
    ///     while (editor->RemovedIndex() >= 0 && editor->CurrentIndex() == editor->RemovedIndex()) {
    ///         editor->Values().Delete(editor->RemovedIndex());
    ///         editor->CorrectEditPos();
    ///     }
    ///
    /// There is neither a removed nor a current item, RemovedItem().isEmpty() && CurrentIndex() < 0, after a
    /// key that found the editor without items.
    int CurrentIndex() const;

    /// The direction of the row; from right to left is the default.
    void SetRightToLeft(bool on);
    /// The pictures that items show by their ImageIndex, scaled down to the height of the text.
    void SetImages(const QVector<QImage>& images);
    const QVector<QImage>& Images() const;
    /// The ground as 0x00BBGGRR, taken as it is, except white (0xFFFFFF, the default), which is the look's
    /// own ground for edits. Texts on it take the colour that can be read.
    void SetColor(quint32 color);
    quint32 Color() const;
    /// The sign between items in copied and typed text; ';' by default, the null character for none.
    void SetSeparator(QChar separator);
    QChar Separator() const;
    /// The menu for the right mouse button and the menu key, in place of the edit's own; not owned.
    void SetPopupMenu(QMenu* menu);
    QMenu* PopupMenu() const;

    /// What an editor without items and text shows.
    QString PlaceholderText() const;
    void SetPlaceholderText(const QString& text);
    /// A read-only editor can be walked through and copied from. False by default.
    bool ReadOnly() const;
    void SetReadOnly(bool readOnly);
    /// Whether a text that Lookup() does not know becomes an item too. False by default.
    bool FreeItems() const;
    void SetFreeItems(bool on);
    /// Whether the user may drag a bubble to another place. False by default.
    bool AllowReorder() const;
    void SetAllowReorder(bool on);
    /// Whether bubbles carry a mark that removes them. True by default; read-only editors show none.
    bool CloseMarks() const;
    void SetCloseMarks(bool on);
    /// The longest text that can be typed; 32767 by default. What is pasted beyond it is left out, and a
    /// balloon says so.
    int MaxLength() const;
    void SetMaxLength(int length);
    /// How many lines the editor may grow to: 1, the default, scrolls sideways; more wrap the bubbles and
    /// scroll up and down beyond that number of lines.
    int MaxLines() const;
    void SetMaxLines(int lines);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

    /// The tagged table, its key column and the keys of the records, all the host's: KeyList is one
    /// character, the keys with commas between them, one character. See Update_selectedItems().
    QString TableName;
    QString KeyField;
    QString KeyList;
    /// The codes of the items as their owner has loaded them; the editor only carries them.
    QStringList SnapshotCodes;

    TMouseDownEvent OnMouseDown; ///< see its type
    /// After a typed text has become an item. The text that the handler leaves in `Text` becomes the item's,
    /// unless the handler has changed the items.
    TValueEditDoneEvent OnValueEditDone;

Q_SIGNALS:
    /// After every change of Values(), by the user or by code.
    void valuesChanged();
    /// After every change of EditText(), by the user or by code.
    void editTextChanged();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class TAdvListLine;
    friend class TAdvListAccessible;
    struct TPrivate;
    std::unique_ptr<TPrivate> d;
};
