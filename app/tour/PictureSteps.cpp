#include "ADOQuery.h"
#include "ATImageBox.h"
#include "ListForm.h"
#include "Pic_Show_UNT.h"
#include "PictureCard.h"
#include "RecordCard.h"
#include "RecordPictures.h"
#include "TourPlayer.h"
#include "TourSteps.h"

#include <QPushButton>

namespace {

void LookAtPictures(TTourPlayer& player)
{
    TListForm& list = player.List();
    player.Press(Qt::Key_Return);
    if (!player.WaitUntil([&list] { return list.Card() != nullptr; }, QStringLiteral("کارت باز نشد")))
        return;
    TPic_Show& viewer = list.Card()->Pictures()->Viewer();
    player.WaitUntil([&viewer] { return !viewer.Pic_IMG->Picture().isNull(); },
                     QStringLiteral("عکس کالا نشان داده نشد"));
    viewer.Pic_IMG->setFocus();
    for (int step = 0; step < 3; ++step)
        player.Press(Qt::Key_Plus);
    player.Check(!viewer.Pic_IMG->IsFitted(), QStringLiteral("کلید + عکس را بزرگ نکرد"));
    player.Press(Qt::Key_Left);
    player.Screenshot(QStringLiteral("goods-picture-zoomed"));
    player.Press(Qt::Key_0);
    player.Check(viewer.Pic_IMG->IsFitted(), QStringLiteral("کلید 0 عکس را جا نداد"));
}

void OpenPictureCard(TTourPlayer& player)
{
    TRecordCard* card = player.List().Card();
    player.Check(card != nullptr, QStringLiteral("کارت باز نیست"));
    if (card == nullptr)
        return;
    card->Pictures()->findChild<QPushButton*>(QStringLiteral("ChangePicture_BTN"))->setFocus();
    player.Press(Qt::Key_Space);
    player.Check(card->findChild<TPictureCard*>() != nullptr, QStringLiteral("پنجرهٔ عکس باز نشد"));
    player.Screenshot(QStringLiteral("goods-picture-card"));
    player.Press(Qt::Key_Escape);
    player.WaitUntil([card] { return card->findChild<TPictureCard*>() == nullptr; },
                     QStringLiteral("پنجرهٔ عکس بسته نشد"));
    player.Press(Qt::Key_Escape);
    player.WaitUntil([&player] { return player.List().Card() == nullptr; }, QStringLiteral("کارت بسته نشد"));
}

} // namespace

QVector<TTourStep> PictureSteps()
{
    return {
        {u"دیدن و بزرگ کردن عکس کالا", LookAtPictures},
        {u"پنجرهٔ تغییر عکس", OpenPictureCard},
    };
}
