#include "AutoVoucherRun.h"

#include "HostServices.h"
#include "ServiceRefused.h"

#include <QApplication>
#include <QDateTime>
#include <QProgressDialog>
#include <QScopeGuard>

namespace {

/// Of the faults so many are told; the rest is counted.
constexpr int MostFaultsTold = 5;
constexpr int LongWork = 2000; // milliseconds

TAutoVoucherEntry Entry()
{
    return {Host().Settings.UserInfo().Code, QDateTime::currentDateTime().toString(Qt::ISODate)};
}

using TWork =
    std::function<TAutoVoucherResult(TAutoVouchers& vouchers, const TAutoVouchers::TProgress& progress)>;

/// The work with a busy pointer and, where it takes long, with progress.
TAutoVoucherResult WithProgress(const TWork& work)
{
    QProgressDialog dialog(QStringLiteral("سندهای خودکار ثبت می‌شوند…"),
                           QStringLiteral("توقف"), 0, 0, QApplication::activeWindow());
    dialog.setWindowTitle(QStringLiteral("ثبت اسناد"));
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setMinimumDuration(LongWork);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
    TAutoVouchers vouchers(*Host().DM.ADOConnection1(), Entry());
    return work(vouchers, [&dialog](int done, int count) {
        dialog.setMaximum(count);
        dialog.setValue(done);
        return !dialog.wasCanceled();
    });
}

int Run(const TWork& work)
{
    try {
        const TAutoVoucherResult result = WithProgress(work);
        if (const QString report = AutoVoucherRun::Report(result); !report.isEmpty())
            Host().Messages.ShowMessage(report);
        return result.Written;
    } catch (const EServiceRefused& refused) {
        Host().Messages.ShowMessage(refused.Message());
        return 0;
    }
}

} // namespace

int AutoVoucherRun::SaveMissing()
{
    return Run([](TAutoVouchers& vouchers, const TAutoVouchers::TProgress& progress) {
        return vouchers.SaveMissing(progress);
    });
}

int AutoVoucherRun::SaveAgain(const TAutoVoucherScope& scope)
{
    return Run([&scope](TAutoVouchers& vouchers, const TAutoVouchers::TProgress& progress) {
        return vouchers.SaveAgain(scope, progress);
    });
}

QString AutoVoucherRun::Report(const TAutoVoucherResult& result)
{
    QStringList sentences;
    if (result.Stopped)
        sentences << QStringLiteral("کار به خواست شما متوقف شد؛ %1 سند ثبت شده است.").arg(result.Written);
    if (result.InClosedYears > 0)
        sentences
            << QStringLiteral(
                   "%1 عملیات در سال‌های مالی بسته است و به آن دست نخورد.")
                   .arg(result.InClosedYears);
    if (!result.Faults.isEmpty())
        sentences << QStringLiteral("برای %1 عملیات سند ثبت نشد:").arg(result.Faults.size())
                  << result.Faults.mid(0, MostFaultsTold);
    if (result.Faults.size() > MostFaultsTold)
        sentences << QStringLiteral("و %1 عملیات دیگر.").arg(result.Faults.size() - MostFaultsTold);
    return sentences.join(u'\n');
}
