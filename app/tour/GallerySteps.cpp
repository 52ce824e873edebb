#include "GalleryForm.h"
#include "MainWindow.h"
#include "TourPlayer.h"
#include "TourSteps.h"

namespace {

constexpr int settling = 150; // a frame reads its tables from the event loop

// Each frame of the package, one after the other, by keyboard; the pictures are those of the frames' pages.
void ShowEveryFrame(TTourPlayer& player)
{
    player.Press(Qt::Key_7, Qt::ControlModifier);
    const auto* gallery = player.Window().findChild<TGalleryForm*>();
    if (!player.Check(gallery != nullptr, QStringLiteral("نمایشگاه قاب‌ها باز نشد")))
        return;
    const QVector<TGalleryEntry>& entries = gallery->Entries();
    for (int index = 0; index < entries.size(); ++index) {
        if (index > 0)
            player.Press(Qt::Key_Tab, Qt::ControlModifier);
        TTourPlayer::Wait(settling);
        TFrame* const frame = gallery->ShownFrame();
        const bool shown = gallery->Chosen() == index && frame != nullptr && frame->Showing();
        if (player.Check(shown, QStringLiteral("قاب %1 نشان داده نشد").arg(entries[index].ClassName)))
            player.Picture(*frame, entries[index].Unit);
        if (index == 0)
            player.Screenshot(QStringLiteral("gallery"));
    }
    player.Screenshot(QStringLiteral("gallery-last"));
    player.Press(Qt::Key_1, Qt::ControlModifier);
}

} // namespace

QVector<TTourStep> GallerySteps()
{
    return {{u"نمایشگاه قاب‌ها", ShowEveryFrame}};
}
