#include "Tour.h"

#include "TourPlayer.h"
#include "TourSteps.h"

#include <cstdio>

int PlayTour(TMainWindow& window, const QString& folder)
{
    TTourPlayer player(window, folder);
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
