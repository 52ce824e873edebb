#include "Page.h"

#include "CategoryForm.h"
#include "DetailAccountForm.h"
#include "ListForm.h"
#include "ReportForm.h"
#include "VoucherForm.h"

TPage::~TPage() = default;

namespace {

TPageDescription ListPage(const TListDescription& list)
{
    return {list.Key, list.Title,
            [list](TReferenceHost& host, QWidget* parent) { return new TListForm(list, host, parent); }};
}

template <typename TForm> TPageDescription FormPage(const QString& key, const QString& title)
{
    return {key, title, [](TReferenceHost& host, QWidget* parent) { return new TForm(host, parent); }, false};
}

} // namespace

QVector<TPageDescription> WorkbenchPages()
{
    return {
        ListPage(GoodsList()),
        ListPage(PersonsList()),
        FormPage<TVoucherForm>(QStringLiteral("Voucher"), QStringLiteral("صدور سند")),
        FormPage<TDetailAccountForm>(QStringLiteral("DetailAccounts"), QStringLiteral("حساب تفصیلی")),
        FormPage<TReportForm>(QStringLiteral("VoucherLines"), QStringLiteral("گزارش اسناد")),
        FormPage<TCategoryForm>(QStringLiteral("Categories"), QStringLiteral("دسته‌ها")),
    };
}
