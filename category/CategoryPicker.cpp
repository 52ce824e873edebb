#include "CategoryPicker.h"

#include "AdvListEditorPer.h"
#include "PopupMenu.h"

#include <stdexcept>

namespace {

/// The path text of a top-level category is not taken apart.
TCategoryBubble TopLevelBubble(const TCategoryRow& category)
{
    return {category.Name, QString::number(category.Id), category.ParentId};
}

} // namespace

TCategoryPicker::TCategoryPicker(TAdvListEditorPer& editor, TPopupMenu& menu, TADOQuery& query,
                                 TNotifyEvent onItemClick)
    : editor_(editor), menu_(menu), tree_(query), onItemClick_(std::move(onItemClick))
{
    editor_.SetSeparator(u';');
    editor_.SetPopupMenu(&menu_);
    menu_.SetCentred(true);
}

void TCategoryPicker::createmenuItemByCode(int code)
{
    const QVector<TCategoryRow> children = tree_.Children(code);
    menu_.Clear();
    for (const TCategoryRow& child : children)
        menu_.AddItem(child.Name, child.Id, child.ParentId)->OnClick = onItemClick_;
}

void TCategoryPicker::create_bubble(int code, quint8 mode)
{
    if (mode != WholePath && mode != PathToParent)
        throw std::invalid_argument("the mode of a path is 1 or 2");
    const std::optional<TCategoryRow> category = tree_.Category(code);
    if (!category) {
        Show({});
        createmenuItemByCode(0);
        return;
    }
    QVector<TCategoryRow> categories = tree_.PathTo(*category);
    const bool isTopLevel = category->ParentId <= 0;
    if (mode == PathToParent)
        categories.removeLast();
    QVector<TStep> path;
    for (const TCategoryRow& step : qAsConst(categories)) {
        // Intended: the answer is not used.
        if (!isTopLevel)
            tree_.Category(0);
        path.append({step, isTopLevel ? TopLevelBubble(step) : TCategoryTree::BubbleOf(step)});
    }
    Show(path);
    if (path.isEmpty())
        createmenuItemByCode(isTopLevel ? category->Id : category->ParentId);
    else
        createmenuItemByCode(
            TCategoryTree::NumberIn(path.last().Bubble.Id).value_or(path.last().Category.Id));
}

void TCategoryPicker::DrawItem(const QString& name)
{
    const std::optional<TCategoryRow> category = tree_.Named(name);
    if (!category)
        return;
    create_bubble(category->Id, WholePath);
    editor_.clear();
    editor_.CorrectEditPos();
    createmenuItemByCode(category->Id);
}

bool TCategoryPicker::exist(const QString& text) const
{
    return editor_.Values().IndexOfText(text) >= 0;
}

QStringList TCategoryPicker::Fill_allPop()
{
    return Offer(tree_.All());
}

QStringList TCategoryPicker::fill_pop(const QString& id)
{
    return Offer(tree_.Filtered(id));
}

bool TCategoryPicker::POP_click(const QObject* sender)
{
    const auto* const item = qobject_cast<const TMenuItem*>(sender);
    if (item == nullptr || exist(item->Caption()))
        return false;
    const int code = item->Tag;
    create_bubble(code, WholePath);
    editor_.Update_selectedItems();
    createmenuItemByCode(code);
    editor_.CorrectEditPos();
    return true;
}

QString TCategoryPicker::LastValue() const
{
    return editor_.Values().Last().Value;
}

QString TCategoryPicker::LastName() const
{
    return editor_.Values().Last().DisplayText;
}

QString TCategoryPicker::ChosenId() const
{
    const TAdvListValueItem& last = editor_.Values().Last();
    const int id = MadeOf(editor_.Values().Count() - 1, last.DisplayText, last.Value);
    return id != 0 ? QString::number(id) : last.Value;
}

void TCategoryPicker::OfferUnderLastBubble()
{
    const TAdvListValueItem last = editor_.Values().Last();
    const int made = MadeOf(editor_.Values().Count() - 1, last.DisplayText, last.Value);
    createmenuItemByCode(TCategoryTree::NumberIn(last.Value).value_or(made));
}

bool TCategoryPicker::NothingIsLeft() const
{
    return editor_.RemovedItem().isEmpty() && editor_.CurrentIndex() < 0;
}

bool TCategoryPicker::HasRemoved() const
{
    return editor_.Values().Count() < editor_.SnapshotCount();
}

int TCategoryPicker::RemovedId() const
{
    const QString removed = editor_.RemovedItem();
    const QString id = TCategoryTree::splitter(removed + u',', 2).trimmed();
    const QString value = removed.section(u',', -1);
    return TCategoryTree::NumberIn(id).value_or(
        MadeOf(editor_.RemovedIndex(), removed.chopped(value.size() + 1), value));
}

void TCategoryPicker::CutPathBack()
{
    while (editor_.RemovedIndex() >= 0 && editor_.CurrentIndex() == editor_.RemovedIndex()) {
        editor_.Values().Delete(editor_.RemovedIndex());
        editor_.CorrectEditPos();
    }
}

QStringList TCategoryPicker::Offer(const QVector<TCategoryRow>& categories)
{
    QStringList ids;
    ids.reserve(categories.size());
    TAdvListValues entries;
    entries.Reserve(static_cast<int>(categories.size()));
    for (const TCategoryRow& category : categories) {
        ids.append(QString::number(category.Id));
        entries.AddPair(category.Name, QString(), category.ParentId);
    }
    editor_.Lookup() = entries;
    return ids;
}

void TCategoryPicker::Show(const QVector<TStep>& path)
{
    path_ = path;
    editor_.Values().Clear();
    for (const TStep& step : path)
        editor_.Values().AddPair(step.Bubble.Name, step.Bubble.Id, step.Bubble.ParentId);
}

int TCategoryPicker::MadeOf(int index, const QString& name, const QString& value) const
{
    const TStep step = path_.value(index);
    return step.Bubble.Name == name && step.Bubble.Id == value ? step.Category.Id : 0;
}
