#include "PageExtras.h"

#include "ListForm.h"
#include "RecordDetails.h"
#include "ReferenceHost.h"
#include "ReportForm.h"
#include "SmartDBGrid_TRV.h"
#include "StockCorrectionForm.h"
#include "VoucherGlance.h"
#include "VoucherNotices.h"

#include <QShortcut>

namespace {

int CurrentNumber(TPagedDataSet& rows, const QString& field)
{
    return rows.FieldByName(field)->Value().toInt();
}

void OpenStockCorrections(TListForm& list, TReferenceHost& host, TVoucherNotices& notices,
                          TRecordDetails& details)
{
    TPagedDataSet& rows = list.DataSet();
    if (rows.RecNo() == 0 || !rows.WaitForCurrentRow())
        return;
    auto* form =
        new TStockCorrectionForm(host, CurrentNumber(rows, QStringLiteral("Code")),
                                 rows.FieldByName(QStringLiteral("Name"))->Value().toString(), &list);
    form->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(form, &TStockCorrectionForm::corrected, &list, [&list, &notices, &details] {
        list.Refresh();
        details.ReadAgain();
        notices.Check();
    });
    form->open();
}

void OpenGlance(TReportForm& report, TReferenceHost& host)
{
    TPagedDataSet& rows = report.DataSet();
    if (rows.RecNo() == 0 || !rows.WaitForCurrentRow())
        return;
    auto* glance = new TVoucherGlance(host, CurrentNumber(rows, QStringLiteral("FiscalYear")),
                                      CurrentNumber(rows, QStringLiteral("Number")), &report);
    glance->setAttribute(Qt::WA_DeleteOnClose);
    glance->open();
}

} // namespace

void PageExtras::AddTo(TListForm& list, TReferenceHost& host)
{
    auto* notices = new TVoucherNotices(host, &list);
    auto* details = new TRecordDetails(list, host);
    list.MoreKeys.append({QStringLiteral("Alt+1"), QStringLiteral("باز و بسته کردن اطلاعات بیشتر رکورد")});
    if (list.Description().Key != QLatin1String("Goods"))
        return;
    const QKeySequence key(Qt::CTRL | Qt::Key_M);
    details->AddAction(QStringLiteral("اصلاح &موجودی"), key, [&list, &host, notices, details] {
        OpenStockCorrections(list, host, *notices, *details);
    });
    list.MoreKeys.append({QStringLiteral("Ctrl+M"), QStringLiteral("اصلاح موجودی کالای جاری")});
}

void PageExtras::AddTo(TReportForm& report, TReferenceHost& host)
{
    const auto* notices = new TVoucherNotices(host, &report);
    QObject::connect(notices, &TVoucherNotices::generated, &report, &TReportForm::Refresh);
    auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Return), &report.Grid(), nullptr, nullptr,
                                   Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &report,
                     [&report, &host] { OpenGlance(report, host); });
    report.MoreKeys.append(
        {QStringLiteral("Ctrl+Enter"),
         QStringLiteral("در ردیف‌ها: نگاهی به همهٔ سند ردیف")});
}
