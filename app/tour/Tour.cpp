#include "Tour.h"

#include "HostApplication.h"
#include "TourPlayer.h"
#include "TourSteps.h"

#include <cstdio>
#include <QScopeGuard>

int PlayTour(TMainWindow& window, const QString& folder)
{
    TTourPlayer player(window, folder);
    // A message that nobody awaits would stay in front for ever.
    auto* application = qobject_cast<THostApplication*>(qApp);
    application->SetErrorDisplay([&player](const TErrorReport& report) { player.Check(false, report.Text); });
    const auto boxAgain = qScopeGuard([application] { application->SetErrorDisplay({}); });
    const QVector<TTourStep> steps = GoodsListSteps() + PictureSteps() + SearchSteps() + SortingSteps() +
                                     PersonsListSteps() + VoucherSteps() + CurrencySteps() +
                                     DetailAccountSteps() + ReportSteps() + VoucherBarSteps() +
                                     CategorySteps() + LabelSteps() + GallerySteps() + WindowSteps();
    for (const TTourStep& step : steps) {
        player.BeginStep(QString::fromUtf16(step.Name));
        step.Play(player);
    }
    const qsizetype failed = player.Failures().size();
    std::printf("%lld steps, %lld failed checks\n", static_cast<long long>(steps.size()),
                static_cast<long long>(failed));
    return failed == 0 ? 0 : 1;
}
