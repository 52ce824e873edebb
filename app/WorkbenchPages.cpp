#include "WorkbenchPages.h"

#include "CategoryForm.h"
#include "DetailAccountForm.h"
#include "GalleryForm.h"
#include "ListForm.h"
#include "PageExtras.h"
#include "ReportForm.h"
#include "VoucherForm.h"

namespace {

TPageDescription ListPage(const TListDescription& list)
{
    return {list.Key, list.Title, [list](TReferenceHost& host, QWidget* parent) {
                auto* page = new TListForm(list, host, parent);
                PageExtras::AddTo(*page, host);
                return page;
            }};
}

template <typename TForm> TPageDescription FormPage(const QString& key, const QString& title)
{
    return {key, title, [](TReferenceHost& host, QWidget* parent) { return new TForm(host, parent); }, false};
}

} // namespace

QVector<TPageDescription> WorkbenchPages()
{
    const auto newReport = [](TReferenceHost& host, QWidget* parent) {
        auto* page = new TReportForm(host, parent);
        PageExtras::AddTo(*page, host);
        return page;
    };
    return {
        ListPage(GoodsList()),
        ListPage(PersonsList()),
        FormPage<TVoucherForm>(QStringLiteral("Voucher"), QStringLiteral("صدور سند")),
        FormPage<TDetailAccountForm>(QStringLiteral("DetailAccounts"), QStringLiteral("حساب تفصیلی")),
        {QStringLiteral("VoucherLines"), QStringLiteral("گزارش اسناد"), newReport, false},
        FormPage<TCategoryForm>(QStringLiteral("Categories"), QStringLiteral("دسته‌ها")),
        FormPage<TGalleryForm>(QStringLiteral("Gallery"), QStringLiteral("نمایشگاه قاب‌ها")),
    };
}
