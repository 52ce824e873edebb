#pragma once

#include "SuiteExport.h"

#include <QAccessibleWidget>
#include <QHash>

class TAdvListEditorPer;

/// A token editor as a screen reader sees it: a list of items, and the box for typing behind them.
class TAdvListAccessible : public QAccessibleWidget
{
public:
    explicit TAdvListAccessible(TAdvListEditorPer* editor);
    ~TAdvListAccessible() override;

    /// Makes the suite's token editors known to the toolkit; once is enough.
    static void Install();

    /// Tells a screen reader, where one is at work, and the listener.
    static void Tell(QAccessibleEvent& event);
    /// Hears what all editors of the process tell, whether or not a screen reader is at work; null for none.
    using TListener = void (*)(const QAccessibleEvent& event);
    SUITE_EXPORT static void SetListener(TListener listener);

    TAdvListEditorPer* Editor() const;
    /// Items are told apart by their place, so what stood for them goes with each change.
    void Forget();

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text text) const override;

private:
    class TItem;

    QAccessibleInterface* LineInterface() const;

    mutable QHash<int, QAccessible::Id> items_;
};
