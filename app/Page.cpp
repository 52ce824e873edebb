#include "Page.h"

#include "ListForm.h"

TPage::~TPage() = default;

namespace {

TPageDescription ListPage(const TListDescription& list)
{
    return {list.Key, list.Title,
            [list](TReferenceHost& host, QWidget* parent) { return new TListForm(list, host, parent); }};
}

} // namespace

QVector<TPageDescription> WorkbenchPages()
{
    return {ListPage(GoodsList()), ListPage(PersonsList())};
}
