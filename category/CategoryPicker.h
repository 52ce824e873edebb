#pragma once

#include "CategoryTree.h"
#include "NotifyEvent.h"

class TAdvListEditorPer;
class TPopupMenu;

/// How a category is picked: the path from the top level down to it as bubbles of a token editor, and a menu
/// of the categories under the last bubble. What the category frames have in common; each adds what it does
/// with the choice.
///
/// A bubble shows the category's name, its value is the id as decimal text, its image index the parent's id.
class BASEFRAME_EXPORT TCategoryPicker
{
public:
    /// What create_bubble shows.
    enum TMode : quint8 {
        WholePath = 1,    ///< down to the category; the menu offers what is under it
        PathToParent = 2, ///< down to its parent; the menu offers the category and its siblings
    };

    /// The editor's ground while it has the focus and while it has not, 0x00BBGGRR.
    static constexpr quint32 ColorInside = 0x00FFFF;
    static constexpr quint32 ColorOutside = 0xFFFFFF;

    /// The controls and the query are the frame's own; `onItemClick` is the handler of every menu item.
    TCategoryPicker(TAdvListEditorPer& editor, TPopupMenu& menu, TADOQuery& query, TNotifyEvent onItemClick);

    const TCategoryTree& Tree() const { return tree_; } ///< on the frame's query

    /// The menu of the top level.
    void Runfirst() { createmenuItemByCode(0); }
    /// The menu of the categories under `code`.
    void createmenuItemByCode(int code);
    /// Shows the path of a category. A category that does not exist leaves no bubbles and the menu of the top
    /// level. Throws EADOError, the bubbles as they were, where a category is its own ancestor;
    /// std::invalid_argument for a `mode` that is no TMode.
    void create_bubble(int code, quint8 mode);
    /// Makes the category of the name the chosen one; does nothing where there is none.
    void DrawItem(const QString& name);
    /// Whether a bubble shows exactly this text.
    bool exist(const QString& text) const;
    /// Offers all categories for completion, without ids, so that what is completed is resolved by its name.
    /// Returns their ids.
    QStringList Fill_allPop();
    /// As Fill_allPop() over a list that the database refuses; see TCategoryTree::Filtered().
    QStringList fill_pop(const QString& id);
    /// The user has chosen a menu item: goes down to its category. False, and nothing done, where a bubble
    /// shows its caption already.
    bool POP_click(const QObject* sender);

    /// The value of the last bubble; empty where there is none.
    QString LastValue() const;
    /// The text of the last bubble; empty where there is none.
    QString LastName() const;
    /// The id of the category that the last bubble shows: its value, except where a comma in the name has
    /// pushed the id out of it. Empty where there is none.
    QString ChosenId() const;
    /// The menu of the categories under the last bubble.
    void OfferUnderLastBubble();

    /// The key being handled has removed nothing, and no bubble is left.
    bool NothingIsLeft() const;
    /// The key being handled has removed a bubble.
    bool HasRemoved() const;
    /// The category of the bubble that the key has removed; 0 where it was none.
    int RemovedId() const;
    /// Takes away what stands behind the removed bubble.
    void CutPathBack();

private:
    struct TStep
    {
        TCategoryRow Category;
        TCategoryBubble Bubble;
    };

    QStringList Offer(const QVector<TCategoryRow>& categories);
    void Show(const QVector<TStep>& path);
    /// The category that a bubble of this text and value was made of; 0 where it was not made here.
    int MadeOf(int index, const QString& name, const QString& value) const;

    TAdvListEditorPer& editor_;
    TPopupMenu& menu_;
    TCategoryTree tree_;
    TNotifyEvent onItemClick_;
    /// What was shown last, for the ids that a comma in a name has pushed out of the bubbles.
    QVector<TStep> path_;
};
