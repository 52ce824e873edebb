#include "CategoryForm.h"

#include "CategoryCard.h"
#include "CategoryDetails.h"
#include "Look.h"
#include "MessageDialog.h"
#include "MirroredTreeView.h"
#include "PersianText.h"
#include "ReferenceHost.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"

namespace {

QString QuotedName(const QString& name)
{
    return u'«' + PersianText::Isolated(name) + u'»';
}

} // namespace

void TCategoryForm::Enter()
{
    if (!isRead_)
        Reload();
    tree_->setFocus(Qt::OtherFocusReason);
}

QVector<TKeyHelp> TCategoryForm::Keys() const
{
    return {
        {QStringLiteral("Insert"), QStringLiteral("زیردستهٔ تازه برای دستهٔ جاری")},
        {QStringLiteral("Ctrl+N"), QStringLiteral("دستهٔ تازه در سطح یک")},
        {QStringLiteral("F2"), QStringLiteral("تغییر نام دسته؛ در کارت: ذخیره")},
        {QStringLiteral("Delete"),
         QStringLiteral(
             "حذف دسته‌ای که زیردسته ندارد و به کار نرفته است")},
        {QStringLiteral("Ctrl+X"),
         QStringLiteral(
             "برداشتن دسته برای جابه‌جایی؛ Escape آن را به جایش برمی‌گرداند")},
        {QStringLiteral("Ctrl+V"),
         QStringLiteral(
             "گذاشتن دستهٔ برداشته زیر دستهٔ جاری، همراه زیردسته‌هایش؛ با موش هم کشیده می‌شود")},
        {QStringLiteral("Ctrl+Shift+V"), QStringLiteral("گذاشتن دستهٔ برداشته در سطح یک")},
        {QStringLiteral("F10"),
         QStringLiteral(
             "جستجوی دسته با نام یا کد؛ Enter به یافتهٔ بعدی می‌رود")},
        {QStringLiteral("← →"), QStringLiteral("باز کردن دسته و رفتن به زیر آن؛ بستن و رفتن به بالا")},
        {QStringLiteral("Alt+ک  Alt+ا"),
         QStringLiteral(
             "پیش‌فرض کردن دسته برای فهرست کالاها یا اشخاص من")},
        {QStringLiteral("F5"), QStringLiteral("خواندن دوبارهٔ دسته‌ها")},
    };
}

int TCategoryForm::CurrentPlace() const
{
    return TCategoryTreeModel::PlaceOf(tree_->currentIndex());
}

int TCategoryForm::CurrentId() const
{
    return CurrentPlace() < 0 ? 0 : model_.Outline().At(CurrentPlace()).Id;
}

int TCategoryForm::User() const
{
    return host_->Settings().UserInfo().Code;
}

void TCategoryForm::Show(int id)
{
    const QModelIndex index = model_.IndexOf(model_.Outline().Find(id));
    if (!index.isValid())
        return;
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        tree_->expand(above);
    tree_->setCurrentIndex(index);
    tree_->scrollTo(index);
}

void TCategoryForm::Reload()
{
    model_.Fill(store_.All());
    model_.ShowDefaults(store_.DefaultsOf(User()));
    isRead_ = true;
    if (model_.Outline().Find(pickedUp_) < 0)
        pickedUp_ = 0;
    if (CurrentPlace() < 0 && model_.rowCount() > 0)
        tree_->setCurrentIndex(model_.index(0, 0));
    ShowDetails();
    ShowHint();
}

void TCategoryForm::AddTop()
{
    AddUnder(0);
}

void TCategoryForm::AddChild()
{
    AddUnder(CurrentId());
}

void TCategoryForm::AddUnder(int parentId)
{
    const int place = model_.Outline().Find(parentId);
    const QString where = place < 0
                              ? QStringLiteral("در سطح یک")
                              : QStringLiteral("زیر %1").arg(QuotedName(model_.Outline().PathText(place)));
    OpenCard(new TCategoryCard(
        {place < 0 ? QStringLiteral("دستهٔ تازه") : QStringLiteral("زیردستهٔ تازه"), where, {}},
        [this, parentId](const QString& name) {
            const int id = store_.Add(parentId, name);
            search_->Clear();
            Reload();
            Show(id);
        },
        this));
}

void TCategoryForm::Rename()
{
    const int place = CurrentPlace();
    if (place < 0)
        return;
    const TCategoryRow row = model_.Outline().At(place);
    OpenCard(new TCategoryCard(
        {QStringLiteral("تغییر نام دسته"), QuotedName(model_.Outline().PathText(place)), row.Name},
        [this, row](const QString& name) {
            store_.Rename(row.Id, name, row.Name);
            Reload();
            Show(row.Id);
        },
        this));
}

void TCategoryForm::OpenCard(TCategoryCard* card)
{
    if (card_ != nullptr) {
        delete card;
        return;
    }
    card_ = card;
    card_->setAttribute(Qt::WA_DeleteOnClose);
    card_->open();
}

void TCategoryForm::DeleteCurrent()
{
    const int place = CurrentPlace();
    if (place < 0)
        return;
    const TCategoryRow row = model_.Outline().At(place);
    const QModelIndex current = tree_->currentIndex().siblingAtColumn(0);
    QModelIndex next = current.siblingAtRow(current.row() + 1);
    if (!next.isValid())
        next = current.row() > 0 ? current.siblingAtRow(current.row() - 1) : current.parent();
    const int nextId = next.isValid() ? model_.Outline().At(TCategoryTreeModel::PlaceOf(next)).Id : 0;
    if (!Confirm(QStringLiteral("دستهٔ %1 حذف شود؟ حذف برگشت ندارد.").arg(QuotedName(row.Name))) ||
        !Attempt([&] { store_.Delete(row.Id); }))
        return;
    Reload();
    Show(nextId);
}

void TCategoryForm::PickUp()
{
    pickedUp_ = CurrentId();
    model_.SetPickedUp(pickedUp_);
    ShowHint();
}

void TCategoryForm::PutUnder()
{
    if (pickedUp_ > 0 && CurrentId() > 0)
        Move(pickedUp_, CurrentId());
}

void TCategoryForm::PutOnTop()
{
    if (pickedUp_ > 0)
        Move(pickedUp_, 0);
}

void TCategoryForm::Move(int id, int parentId)
{
    const TCategoryOutline& outline = model_.Outline();
    const int place = outline.Find(id);
    const int target = outline.Find(parentId);
    if (place < 0 || outline.At(place).ParentId == parentId)
        return;
    const int under = outline.CountUnder(place);
    const QString with = under > 0 ? QStringLiteral(" همراه %1 زیردسته").arg(under) : QString();
    const QString where = target < 0 ? QStringLiteral("به سطح یک")
                                     : QStringLiteral("به زیر %1").arg(QuotedName(outline.PathText(target)));
    const bool possible = target < 0 || !outline.IsUnder(target, place);
    if (possible &&
        !Confirm(QStringLiteral("دستهٔ %1%2 %3 برود؟").arg(QuotedName(outline.At(place).Name), with, where)))
        return;
    if (!Attempt([&] { store_.Move(id, parentId); }))
        return;
    pickedUp_ = 0;
    model_.SetPickedUp(0);
    Reload();
    Show(id);
}

void TCategoryForm::SetDefault(TCategoryStore::TListKind kind, bool wanted)
{
    const int id = CurrentId();
    Attempt([&] { store_.SetDefault(User(), kind, wanted ? id : 0); });
    model_.ShowDefaults(store_.DefaultsOf(User()));
    ShowDetails();
}

bool TCategoryForm::Confirm(const QString& question)
{
    TMessageDialog box(TMessageDialog::TKind::Question, question,
                       {TMessageDialog::YesButton(), TMessageDialog::NoButton()}, this);
    return box.Ask() == TMessageDialog::YesButton().Result;
}

bool TCategoryForm::Attempt(const std::function<void()>& work)
{
    try {
        work();
    } catch (const ECategoryRefused& refusal) {
        host_->Messages().ShowMessage(refusal.Message());
        return false;
    }
    return true;
}

void TCategoryForm::ShowDetails()
{
    detailsDelay_.stop();
    const int place = CurrentPlace();
    details_->Show(model_.Outline(), place, place < 0 ? TCategoryUse() : store_.UseOf(CurrentId()),
                   model_.Defaults());
}

void TCategoryForm::ShowHint()
{
    const int place = model_.Outline().Find(pickedUp_);
    if (place >= 0) {
        hint_->SetCaption(QStringLiteral("%1 برداشته شد؛ روی دستهٔ مقصد %2 را بزنید، برای سطح یک %3، برای "
                                         "انصراف %4.")
                              .arg(QuotedName(model_.Outline().At(place).Name),
                                   PersianText::Isolated(QStringLiteral("Ctrl+V")),
                                   PersianText::Isolated(QStringLiteral("Ctrl+Shift+V")),
                                   PersianText::Isolated(QStringLiteral("Escape"))));
        return;
    }
    const qsizetype found = model_.Outline().MatchingPlaces().size();
    hint_->SetCaption(search_->Text().isEmpty() ? QStringLiteral("%1 دسته").arg(model_.Outline().Count())
                                                : QStringLiteral("%1 دسته پیدا شد").arg(found));
}

QString TCategoryForm::HintText() const
{
    return hint_->Caption();
}

TCategoryCard* TCategoryForm::Card() const
{
    return card_;
}

void TCategoryForm::ApplySearch()
{
    const int before = CurrentId();
    model_.Filter(search_->Text());
    const QVector<int> matches = model_.Outline().MatchingPlaces();
    for (const int place : matches) {
        for (QModelIndex above = model_.IndexOf(place).parent(); above.isValid() && !tree_->isExpanded(above);
             above = above.parent())
            tree_->expand(above);
    }
    tree_->SetEmptyText(
        search_->Text().isEmpty()
            ? QStringLiteral("هنوز دسته‌ای نیست. با %1 دسته‌ای بسازید.")
                  .arg(PersianText::Isolated(QStringLiteral("Ctrl+N")))
            : QStringLiteral(
                  "هیچ دسته‌ای با «%1» جور نیست. متن جستجو را کوتاه‌تر کنید.")
                  .arg(search_->Text().trimmed()));
    Show(matches.isEmpty() ? before : model_.Outline().At(matches.constFirst()).Id);
    if (!tree_->currentIndex().isValid())
        ShowDetails();
    ShowHint();
}

void TCategoryForm::NextMatch()
{
    const QVector<int> matches = model_.Outline().MatchingPlaces();
    if (matches.isEmpty())
        return;
    const qsizetype current = matches.indexOf(CurrentPlace());
    Show(model_.Outline().At(matches.at((current + 1) % matches.size())).Id);
}

void TCategoryForm::Escape()
{
    if (pickedUp_ > 0) {
        pickedUp_ = 0;
        model_.SetPickedUp(0);
        ShowHint();
        return;
    }
    search_->Clear();
    tree_->setFocus(Qt::OtherFocusReason);
}
