#include "ListFilters.h"

#include "AdvListEditorPer.h"
#include "Category_SearchWithManager_UNT.h"
#include "CodeListItems.h"
#include "Look.h"
#include "PopupMenu.h"
#include "ReferenceHost.h"
#include "SmartCheckBox_TRV.h"
#include "Tags_search_UNT.h"
#include "TarvaSearchManager.h"

#include <QHBoxLayout>

namespace {

constexpr QLatin1String tagsKey("Tags");
constexpr QLatin1String categoryKey("Category");
constexpr QLatin1String noTagKey("NoTag");
constexpr QLatin1String noCategoryKey("NoCategory");

} // namespace

TListFilters::TListFilters(const TListDescription& list, TReferenceHost& host, QWidget* parent)
    : TSmartPanel_TRV(parent), list_(list)
{
    SetGround(gBand);
    Tags = new TTags_search_FRM(this);
    Tags->SetSearchble(true);
    Category = new TCategorysearchframe(this);
    NoTag = NewBox(QStringLiteral("NoTag_CHK"), QStringLiteral("بی‌برچسب"));
    NoCategory = NewBox(QStringLiteral("NoCategory_CHK"), QStringLiteral("بی‌دسته"));
    AddItems(host);
    Lay();
    NoTag->OnClick = [this](QObject*) { SwitchNoTag(); };
    NoCategory->OnClick = [this](QObject*) { SwitchNoCategory(); };
}

TListFilters::~TListFilters()
{
    NoTag->OnClick = nullptr;
    NoCategory->OnClick = nullptr;
}

TSmartCheckBox_TRV* TListFilters::NewBox(const QString& name, const QString& caption)
{
    auto* box = new TSmartCheckBox_TRV(this);
    box->setObjectName(name);
    box->setText(caption);
    return box;
}

void TListFilters::Lay()
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Look::Margin, 0, Look::Margin, Look::Unit);
    row->setSpacing(Look::Margin);
    row->addWidget(Tags);
    row->addWidget(NoTag);
    row->addSpacing(Look::GroupGap);
    row->addWidget(Category);
    row->addWidget(NoCategory);
    row->addStretch(1);
}

void TListFilters::AddItems(TReferenceHost& host)
{
    Tags->TarvaSearch_tags->SearchItems.Add(CodeListItems::Tags(host.Connection()));
    Tags->TarvaSearch_tags->SetItemIndex(0);
    Category->TarvaSearch1->SearchItems.Add(CodeListItems::Categories(host.Connection()));
    Category->TarvaSearch1->SetItemIndex(0);
    noTag_ = NewNoneCriterion(QStringLiteral("tags"), QStringLiteral("برچسب نداشته باشد"));
    noCategory_ = NewNoneCriterion(QStringLiteral("Categories"), QStringLiteral("دسته نداشته باشد"));
}

// A column of codes holds a comma wherever it holds a code.
TTarvaSearch* TListFilters::NewNoneCriterion(const QString& column, const QString& words)
{
    TSearchItem item;
    item.FiledName = column;
    item.FoldedName = column;
    item.Words = [words](const TTarvaSearch&) { return words; };
    auto* criterion = new TTarvaSearch(this);
    criterion->SearchItems.Add(item);
    criterion->SetItemIndex(0);
    criterion->SetReverst(true);
    criterion->SetValue1(QStringLiteral(","));
    return criterion;
}

void TListFilters::AddTo(TTarvaSearchManager& manager) const
{
    for (TTarvaSearch* criterion : {Tags->TarvaSearch_tags, Category->TarvaSearch1, noTag_, noCategory_})
        manager.Add(criterion);
}

void TListFilters::Start()
{
    Tags->frame_load();
    const bool goods = list_.Labels->Kind == TCategoryStore::TListKind::Goods;
    Category->open(goods ? TCategorysearchframe::GoodsLists : TCategorysearchframe::PersonLists);
}

void TListFilters::Clear() const
{
    Tags->Tag_editor->Values().Clear();
    Tags->Tag_editor->clear();
    Tags->Filter();
    Category->Editor->Values().Clear();
    Category->createmenuItemByCode(0);
    Category->TarvaSearch1->SetValue1(QString());
    NoTag->SetChecked(false);
    NoCategory->SetChecked(false);
}

void TListFilters::FocusTags() const
{
    Tags->Tag_editor->setFocus(Qt::ShortcutFocusReason);
}

void TListFilters::SwitchNoTag()
{
    const bool none = NoTag->Checked();
    noTag_->SetActive(none);
    Tags->TarvaSearch_tags->SetActive(!none);
    Tags->setEnabled(!none);
}

void TListFilters::SwitchNoCategory()
{
    const bool none = NoCategory->Checked();
    noCategory_->SetActive(none);
    Category->TarvaSearch1->SetActive(!none);
    Category->setEnabled(!none);
}

QJsonArray TListFilters::ChosenTags() const
{
    QJsonArray codes;
    const TAdvListValues& tags = Tags->Tag_editor->Values();
    for (int item = 0; item < tags.Count(); ++item)
        codes.append(tags.GetItem(item).Value.toInt());
    return codes;
}

int TListFilters::CategoryId() const
{
    return Category->ChosenCategory();
}

QJsonObject TListFilters::State() const
{
    return {{tagsKey, ChosenTags()},
            {categoryKey, CategoryId()},
            {noTagKey, NoTag->Checked()},
            {noCategoryKey, NoCategory->Checked()}};
}

void TListFilters::Restore(const QJsonObject& state)
{
    ChooseTags(state.value(tagsKey).toArray());
    if (CategoryId() == 0)
        ChooseCategory(state.value(categoryKey).toInt());
    NoTag->SetChecked(state.value(noTagKey).toBool());
    NoCategory->SetChecked(state.value(noCategoryKey).toBool());
}

void TListFilters::Refresh()
{
    const QJsonArray tags = ChosenTags();
    Tags->frame_load();
    ChooseTags(tags);
    ChooseCategory(CategoryId());
    Category->Fill_allPop();
}

// As if the user picked them again; a tag that is gone is not in the menu.
void TListFilters::ChooseTags(const QJsonArray& codes)
{
    for (const auto& code : codes) {
        for (int item = 0; item < Tags->tags_list_pop->Count(); ++item) {
            if (Tags->tags_list_pop->Item(item)->Tag == code.toInt())
                Tags->POP_click(Tags->tags_list_pop->Item(item));
        }
    }
    // POP_click switches the criterion on.
    if (NoTag->Checked())
        SwitchNoTag();
    else if (Tags->Tag_editor->Values().IsEmpty())
        Tags->TarvaSearch_tags->SetValue1(QString());
}

void TListFilters::ChooseCategory(int id)
{
    if (id == 0) {
        Category->createmenuItemByCode(0);
        return;
    }
    Category->create_bubble(id, TCategoryPicker::WholePath);
    const int chosen = CategoryId();
    Category->TarvaSearch1->SetValue1(chosen > 0 ? QStringLiteral(",%1,").arg(chosen) : QString());
}
