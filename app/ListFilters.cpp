#include "ListFilters.h"

#include "AdvListEditorPer.h"
#include "Category_SearchWithManager_UNT.h"
#include "Look.h"
#include "PersianText.h"
#include "SmartCheckBox_TRV.h"
#include "TagPalette.h"
#include "TarvaSearchManager.h"

#include <QHBoxLayout>

namespace {

constexpr QLatin1String categoryKey("Category");
constexpr QLatin1String noTagKey("NoTag");
constexpr QLatin1String noCategoryKey("NoCategory");

QString Is(const QString& title, const QString& name)
{
    return QStringLiteral("%1 «%2» باشد").arg(title, PersianText::Isolated(name));
}

} // namespace

TListFilters::TListFilters(const TListDescription& list, const TTagPalette& palette, QWidget* parent)
    : TSmartPanel_TRV(parent), list_(list), palette_(&palette)
{
    SetGround(gBand);
    Category = new TCategorysearchframe(this);
    NoTag = NewBox(QStringLiteral("NoTag_CHK"), QStringLiteral("بی‌برچسب"));
    NoCategory = NewBox(QStringLiteral("NoCategory_CHK"), QStringLiteral("بی‌دسته"));
    AddItems();
    Lay();
    NoTag->OnClick = [this](QObject*) { noTag_->SetActive(NoTag->Checked()); };
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
    row->addWidget(NoTag);
    row->addSpacing(Look::GroupGap);
    row->addWidget(Category);
    row->addWidget(NoCategory);
    row->addStretch(1);
}

void TListFilters::AddItems()
{
    TSearchItem category;
    category.Title = QStringLiteral("دسته");
    category.FiledName = QStringLiteral("Categories");
    category.DataType = TSearchDataType::idtCodeList;
    category.Words = [this, title = category.Title](const TTarvaSearch&) {
        const TAdvListValues& path = Category->Editor->Values();
        return path.IsEmpty() ? QString() : Is(title, path.Last().DisplayText);
    };
    Category->TarvaSearch1->SearchItems.Add(category);
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
    for (TTarvaSearch* criterion : {Category->TarvaSearch1, noTag_, noCategory_})
        manager.Add(criterion);
}

void TListFilters::Start()
{
    const bool goods = list_.Labels->Kind == TCategoryStore::TListKind::Goods;
    Category->open(goods ? TCategorysearchframe::GoodsLists : TCategorysearchframe::PersonLists);
}

void TListFilters::Clear()
{
    Category->Editor->Values().Clear();
    Category->createmenuItemByCode(0);
    Category->TarvaSearch1->SetValue1(QString());
    NoTag->SetChecked(false);
    NoCategory->SetChecked(false);
}

void TListFilters::FocusTags() const
{
    Category->Editor->setFocus(Qt::ShortcutFocusReason);
}

void TListFilters::SwitchNoCategory()
{
    const bool none = NoCategory->Checked();
    noCategory_->SetActive(none);
    Category->TarvaSearch1->SetActive(!none);
    Category->setEnabled(!none);
}

int TListFilters::CategoryId() const
{
    const TAdvListValues& path = Category->Editor->Values();
    return path.IsEmpty() ? 0 : path.Last().Value.toInt();
}

QJsonObject TListFilters::State() const
{
    return {
        {categoryKey, CategoryId()}, {noTagKey, NoTag->Checked()}, {noCategoryKey, NoCategory->Checked()}};
}

void TListFilters::Restore(const QJsonObject& state)
{
    const int category = state.value(categoryKey).toInt();
    if (category > 0 && CategoryId() == 0) {
        Category->create_bubble(category, TCategoryPicker::WholePath);
        const int id = CategoryId();
        Category->TarvaSearch1->SetValue1(id > 0 ? QStringLiteral(",%1,").arg(id) : QString());
    }
    NoTag->SetChecked(state.value(noTagKey).toBool());
    NoCategory->SetChecked(state.value(noCategoryKey).toBool());
}
