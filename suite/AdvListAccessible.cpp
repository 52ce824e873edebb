#include "AdvListAccessible.h"

#include "AdvListEditorPrivate.h"

#include <mutex>
#include <utility>

namespace {

TAdvListAccessible::TListener& Listener()
{
    static TAdvListAccessible::TListener listener = nullptr;
    return listener;
}

QAccessibleInterface* AccessibleOf(const QString& className, QObject* object)
{
    auto* editor = className == u"TAdvListEditorPer" ? qobject_cast<TAdvListEditorPer*>(object) : nullptr;
    return editor ? new TAdvListAccessible(editor) : nullptr;
}

} // namespace

/// One bubble.
class TAdvListAccessible::TItem : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    TItem(TAdvListAccessible* list, int index) : list_(list), index_(index) {}

    bool isValid() const override { return Editor() && index_ < Editor()->Values().Count(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return list_; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text, const QString&) override {}

    QString text(QAccessible::Text text) const override
    {
        return isValid() && text == QAccessible::Name ? Editor()->Values()[index_].DisplayText : QString();
    }
    QRect rect() const override
    {
        if (!isValid())
            return {};
        TEditorPrivate& view = *Editor()->d;
        view.Arrange();
        const QRect bubble = view.OnScreen(view.layout.Bubble(index_));
        return {Editor()->mapToGlobal(bubble.topLeft()), bubble.size()};
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const TEditorPrivate& view = *Editor()->d;
        state.selectable = true;
        state.extSelectable = true;
        state.focusable = true;
        state.selected = index_ >= view.SelectionStart() && index_ < view.SelectionEnd();
        state.disabled = !Editor()->isEnabled();
        state.offscreen =
            !view.Inner().intersects(QRect(Editor()->mapFromGlobal(rect().topLeft()), rect().size()));
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override
    {
        if (!isValid())
            return {};
        return Editor()->d->CanChange() ? QStringList({setFocusAction(), pressAction()})
                                        : QStringList(setFocusAction());
    }
    QString localizedActionName(const QString& name) const override
    {
        return name == pressAction() ? QStringLiteral("حذف") : QStringLiteral("انتخاب");
    }
    void doAction(const QString& name) override
    {
        if (!isValid() || !actionNames().contains(name))
            return;
        TEditorPrivate* view = Editor()->d.get();
        if (name == setFocusAction()) {
            Editor()->setFocus(Qt::OtherFocusReason);
            view->PressBubble(index_, false);
        } else {
            view->RemoveAsDelete([view, index = index_] { view->Remove(index, index + 1); });
        }
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    using TEditorPrivate = TAdvListEditorPer::TPrivate;

    TAdvListEditorPer* Editor() const { return list_->Editor(); }

    TAdvListAccessible* list_;
    int index_;
};

TAdvListAccessible::TAdvListAccessible(TAdvListEditorPer* editor)
    : QAccessibleWidget(editor, QAccessible::List)
{
}

TAdvListAccessible::~TAdvListAccessible()
{
    Forget();
}

void TAdvListAccessible::Install()
{
    static std::once_flag installed;
    std::call_once(installed, [] { QAccessible::installFactory(AccessibleOf); });
}

void TAdvListAccessible::Tell(QAccessibleEvent& event)
{
    if (const TListener listener = Listener())
        listener(event);
    // The toolkit makes the interfaces of an event even where nobody asks for them.
    if (QAccessible::isActive())
        QAccessible::updateAccessibility(&event);
}

void TAdvListAccessible::SetListener(TListener listener)
{
    Listener() = listener;
}

TAdvListEditorPer* TAdvListAccessible::Editor() const
{
    return qobject_cast<TAdvListEditorPer*>(object());
}

void TAdvListAccessible::Forget()
{
    const QHash<int, QAccessible::Id> gone = std::exchange(items_, {});
    for (const QAccessible::Id item : gone)
        QAccessible::deleteAccessibleInterface(item);
}

QAccessibleInterface* TAdvListAccessible::LineInterface() const
{
    TAdvListLine* line = Editor()->d->line;
    line->setAccessibleName(text(QAccessible::Name));
    return QAccessible::queryAccessibleInterface(line);
}

int TAdvListAccessible::childCount() const
{
    return Editor() ? Editor()->Values().Count() + 1 : 0;
}

QAccessibleInterface* TAdvListAccessible::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    if (index == childCount() - 1)
        return LineInterface();
    const auto known = items_.constFind(index);
    if (known != items_.constEnd())
        return QAccessible::accessibleInterface(*known);
    auto* item = new TItem(const_cast<TAdvListAccessible*>(this), index); // owned by the toolkit's register
    items_.insert(index, QAccessible::registerAccessibleInterface(item));
    return item;
}

int TAdvListAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    if (!child || !Editor())
        return -1;
    if (child->object() == Editor()->d->line)
        return childCount() - 1;
    for (auto item = items_.constBegin(); item != items_.constEnd(); ++item) {
        if (QAccessible::accessibleInterface(item.value()) == child)
            return item.key();
    }
    return -1;
}

QAccessibleInterface* TAdvListAccessible::childAt(int x, int y) const
{
    if (!Editor())
        return nullptr;
    const QPoint point = Editor()->mapFromGlobal(QPoint(x, y));
    if (Editor()->d->line->geometry().contains(point))
        return LineInterface();
    const int bubble = Editor()->d->BubbleAt(point);
    return bubble < 0 ? nullptr : child(bubble);
}

QAccessibleInterface* TAdvListAccessible::focusChild() const
{
    return Editor() && Editor()->d->line->hasFocus() ? LineInterface() : nullptr;
}

QString TAdvListAccessible::text(QAccessible::Text text) const
{
    if (text != QAccessible::Value || !Editor())
        return QAccessibleWidget::text(text);
    QStringList names;
    for (int index = 0; index < Editor()->Values().Count(); ++index)
        names << Editor()->Values()[index].DisplayText;
    return names.join(QStringLiteral("، "));
}

void TAdvListEditorPer::TPrivate::TellFocus() const
{
    if (!line->hasFocus())
        return;
    // The bubble before the caret is what the user has come to.
    QAccessibleEvent focus(editor, QAccessible::Focus);
    focus.setChild(caret > 0 ? caret - 1 : values.Count());
    TAdvListAccessible::Tell(focus);
}

void TAdvListEditorPer::TPrivate::TellSelection() const
{
    QAccessibleEvent selection(editor, QAccessible::SelectionWithin);
    TAdvListAccessible::Tell(selection);
}

void TAdvListEditorPer::TPrivate::TellItems(TAdvListValues::TChange change, int index) const
{
    if (auto* list = dynamic_cast<TAdvListAccessible*>(QAccessible::queryAccessibleInterface(editor)))
        list->Forget();
    if (change == TAdvListValues::TChange::Changed) {
        QAccessibleEvent renamed(editor, QAccessible::NameChanged);
        renamed.setChild(index);
        TAdvListAccessible::Tell(renamed);
        return;
    }
    QAccessibleEvent reordered(editor, QAccessible::ObjectReorder);
    TAdvListAccessible::Tell(reordered);
}
