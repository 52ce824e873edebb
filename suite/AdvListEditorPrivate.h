#pragma once

#include "AdvListCompletion.h"
#include "AdvListEditorPer.h"
#include "AdvListLayout.h"
#include "AdvListLine.h"
#include "AdvListMatches.h"
#include "AdvListPainter.h"

#include <functional>
#include <QHash>
#include <QMenu>
#include <QPointer>

class QPainter;

/// What stands behind a token editor: the caret among the bubbles, the selection, the stroke being handled.
/// The typed text itself is the line's.
struct TAdvListEditorPer::TPrivate
{
    /// What one key has found and done, from its first press to its release.
    struct TStroke
    {
        int Count = 0;
        int RemovedIndex = -1;
        QString RemovedItem;
        bool TookText = false; ///< its first press removed typed text
    };

    /// The left mouse button that is down.
    struct TPress
    {
        int Bubble = -1; ///< where it went down; -1 between the bubbles
        bool OnMark = false;
        bool Selects = false;
        QPoint Start;
        int DropPlace = -1; ///< where a dragged bubble would come to stand; -1 while none is dragged
    };

    static constexpr int NoKey = -1;

    explicit TPrivate(TAdvListEditorPer* owner);

    // AdvListEditorPer.cpp
    void ItemsChanged(TAdvListValues::TChange change, int index, int count);
    bool CanChange() const { return editor->isEnabled() && !readOnly; }

    // AdvListView.cpp: from the items to the screen
    void Invalidate();
    void Measure();
    TAdvListLayout::TRow Row(int lineWidth) const;
    void Arrange();
    void ScrollToBox();
    void ScrollBy(const QPoint& distance);
    QRect Inner() const;
    int LineHeight() const;
    int HeightOf(int lines) const;
    QRect OnScreen(const QRect& reading) const;
    QPoint Reading(const QPoint& point) const;
    TAdvListColors Colors() const;
    void ShowColors() const;
    void ShowPlaceholder() const;
    QPixmap Picture(int imageIndex);
    TAdvListBubble Bubble(int index);
    int BubbleAt(const QPoint& point, bool* onMark = nullptr);
    void Paint(QPainter& painter);
    void PaintCaret(QPainter& painter, const TAdvListColors& colors) const;
    void PaintFades(QPainter& painter, const TAdvListColors& colors) const;
    QString ToolTipAt(const QPoint& point);

    // AdvListKeys.cpp: from the keyboard to the items
    void BeginStroke(const QKeyEvent& event);
    void EndStroke(const QKeyEvent& event);
    void KeepStroke();
    bool HandleKey(QKeyEvent* event);
    bool HandleCompletionKey(const QKeyEvent& event);
    bool HandleCommand(const QKeyEvent& event);
    bool HandleMove(QKeyEvent* event);
    bool HandleErase(QKeyEvent* event);
    bool HandleText(QKeyEvent* event);
    bool LeaveByTab(const QKeyEvent& event);
    bool MovesInLine(QKeyEvent* event) const;
    void MoveCaret(int place, bool selecting);
    void SelectAll();
    void Compose(QInputMethodEvent* event);

    // AdvListCommit.cpp: from the typed text to items and back to nothing
    int SelectionStart() const { return qMin(anchor, caret); }
    int SelectionEnd() const { return qMax(anchor, caret); }
    bool HasSelection() const { return anchor != caret; }
    void Remove(int first, int last);
    void RemoveAsDelete(const std::function<void()>& removal);
    void RemoveSelected();
    bool Commit(const QString& text);
    void Choose(int entry);
    void Insert(const TAdvListValueItem& item);
    bool BecomesItem(const QString& text) const;
    bool TakeParts(const QString& text);
    void Offer(const QString& beginning);
    void TextTyped();
    void HideCompletion() const;

    // AdvListClipboard.cpp
    QString SelectedText() const;
    bool Copy() const;
    void Cut();
    void DeleteSelected();
    void Paste(const QString& text);
    void PasteIntoLine(const QString& text);
    void ShowMenu(const QPoint& position);

    // AdvListMouse.cpp
    bool TellPress(const QMouseEvent& event) const;
    void Press(const QMouseEvent& event);
    void PressBubble(int bubble, bool extends);
    void Drag(const QPoint& point);
    void Release(const QMouseEvent& event);
    void Hover(const QPoint& point);

    // AdvListAccessible.cpp
    void TellFocus() const;
    void TellSelection() const;
    void TellItems(TAdvListValues::TChange change, int index) const;

    TAdvListEditorPer* editor;
    TAdvListLine* line;
    TAdvListValues values;
    TAdvListValues lookup;
    TAdvListMatches matches{lookup};
    QPointer<TAdvListCompletion> completion; // made when first offered
    int revision = 0;                        // counts the changes of the items

    TAdvListLayout layout;
    QVector<int> widths; // of the bubbles; -1 where not measured yet
    int measuredFor = 0; // the line width that limited them
    QPoint scroll;
    bool arranged = false;
    int lines = 1;
    int caret = 0;  // how many bubbles stand before the box
    int anchor = 0; // the other end of the selected bubbles
    TPress press;
    int hotMark = -1; // the bubble whose mark is under the mouse

    TStroke stroke;
    int strokeKey = NoKey;
    QHash<int, TStroke> held; // by the keys that are down
    bool stateFlag = true;

    QVector<QImage> images;
    QHash<int, QPixmap> pictures; // scaled ones, by index
    quint32 color = 0xffffff;
    QChar separator = u';';
    QPointer<QMenu> popupMenu;
    QString placeholder;
    bool readOnly = false;
    bool freeItems = false;
    bool allowReorder = false;
    bool closeMarks = true;
    int maxLines = 1;
};
