#pragma once

#include "AdvListEditorPer.h"
#include "AdvListLayout.h"
#include "AdvListLine.h"

#include <QHash>
#include <QPixmap>
#include <QPointer>

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
    };

    explicit TPrivate(TAdvListEditorPer* owner);

    // AdvListEditorPer.cpp: from the items to the screen
    void ItemsChanged(TAdvListValues::TChange change, int index, int count);
    void Invalidate();
    void Arrange();
    int BubbleWidth(int index);
    QRect Inner() const;
    QRect OnScreen(const QRect& reading) const;
    QPoint Reading(const QPoint& point) const;
    void ScrollToBox();
    void ShowColors();

    // AdvListKeys.cpp
    void BeginStroke(const QKeyEvent& event);
    void EndStroke(const QKeyEvent& event);
    bool CanChange() const { return editor->isEnabled() && !readOnly; }
    bool HandleKey(QKeyEvent* event);
    void MoveCaret(int place, bool selecting);
    void Remove(int first, int last);

    TAdvListEditorPer* editor;
    TAdvListLine* line;
    TAdvListValues values;
    TAdvListValues lookup;
    TAdvListLayout layout;
    QVector<int> widths; // of the bubbles; -1 where not measured yet
    QPoint scroll;
    bool arranged = false;
    int caret = 0;  // how many bubbles stand before the box
    int anchor = 0; // the other end of the selected bubbles

    TStroke stroke;
    int strokeKey = 0;
    QHash<int, TStroke> held; // by the keys that are down
    bool stateFlag = true;

    QVector<QImage> images;
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
