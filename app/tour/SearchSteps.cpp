#include "General_Search_UNT.h"
#include "ListFooter.h"
#include "ListForm.h"
#include "MainWindow.h"
#include "RecordCard.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "TourPlayer.h"
#include "TourRows.h"
#include "TourSteps.h"

namespace {

constexpr QLatin1String searchedName("Name");

// A piece of a real name, so that the tour plays on any data.
QString PieceOfName(TListForm& list, int row)
{
    const QStringList words =
        TourRows::FirstTexts(list, searchedName).value(row).split(u' ', Qt::SkipEmptyParts);
    return words.value(0).left(5);
}

void SearchByName(TTourPlayer& player)
{
    TListForm& list = player.List();
    const QString piece = PieceOfName(list, 3);
    const int all = list.DataSet().RecordCount();
    player.Press(Qt::Key_F10);
    player.Check(list.SearchFrame().Search_CMB->hasFocus(), QStringLiteral("کلید F10 به فیلد جستجو نرفت"));
    player.Press(Qt::Key_Tab);
    player.Check(list.SearchFrame().Search_EDT->hasFocus(), QStringLiteral("کلید Tab به جای نوشتن نرفت"));
    player.Type(piece);
    player.Wait(400);
    player.WaitForAnswer();
    player.Check(TourRows::EachContains(list, searchedName, piece),
                 QStringLiteral("ردیف‌ها با متن جستجو جور نیستند"));
    player.Check(list.DataSet().RecordCount() < all, QStringLiteral("فهرست کوتاه‌تر نشد"));
    player.Check(list.Footer().ConditionInWords().contains(piece),
                 QStringLiteral("شرط به زبان فارسی نوشته نشد"));
    player.Screenshot(QStringLiteral("search-by-name"));
    player.Screenshot(QStringLiteral("readme"), false);
}

void ReverseSearch(TTourPlayer& player)
{
    TListForm& list = player.List();
    const QString piece = list.SearchFrame().Search_EDT->Text();
    player.Press(Qt::Key_Tab);
    player.Check(list.SearchFrame().Search_Reverst_CHK->hasFocus(), QStringLiteral("Tab به «نباشد» نرفت"));
    player.Press(Qt::Key_Space);
    player.WaitForAnswer();
    player.Check(TourRows::NoneContains(list, searchedName, piece), QStringLiteral("جستجو وارونه نشد"));
    player.Screenshot(QStringLiteral("search-reversed"));
    player.Press(Qt::Key_Escape);
    player.WaitForAnswer();
    player.Check(!list.SearchFrame().Search_Reverst_CHK->Checked(),
                 QStringLiteral("Escape «نباشد» را برنداشت"));
    player.Check(list.SearchFrame().Search_EDT->Text().isEmpty(), QStringLiteral("Escape متن را پاک نکرد"));
}

void SearchByCode(TTourPlayer& player)
{
    TListForm& list = player.List();
    player.Press(Qt::Key_F10);
    player.Press(Qt::Key_Down);
    player.Check(list.SearchFrame().SearchDigit_EDT->isVisible(), QStringLiteral("جای نوشتن عدد پیدا نشد"));
    player.Press(Qt::Key_Tab);
    const QString code = TourRows::FirstTexts(list, QStringLiteral("Code")).value(7);
    player.Type(code);
    player.Press(Qt::Key_Return);
    if (!player.WaitUntil([&list] { return list.Card() != nullptr; },
                          QStringLiteral("Enter کارت را باز نکرد")))
        return;
    player.Check(list.Card()->FieldText(QStringLiteral("Code")) == code,
                 QStringLiteral("کارت کالای دیگری باز شد"));
    player.Screenshot(QStringLiteral("enter-opens-found-row"));
    player.Press(Qt::Key_Escape);
    player.WaitUntil([&list] { return list.Card() == nullptr; }, QStringLiteral("کارت بسته نشد"));
}

void SearchByPrice(TTourPlayer& player)
{
    TListForm& list = player.List();
    player.Press(Qt::Key_Escape);
    player.WaitForAnswer();
    QString price = TourRows::FirstTexts(list, QStringLiteral("Price")).value(5).section(u'.', 0, 0);
    player.Press(Qt::Key_F10);
    player.Press(Qt::Key_Down);
    player.Press(Qt::Key_Down);
    player.Check(list.SearchFrame().SearchCost_EDT->isVisible(), QStringLiteral("جای نوشتن مبلغ پیدا نشد"));
    player.Press(Qt::Key_Tab);
    player.Type(price);
    player.Wait(400);
    player.WaitForAnswer();
    player.Check(TourRows::EachContains(list, QStringLiteral("Price"), price),
                 QStringLiteral("قیمت‌ها با جستجو جور نیستند"));
    player.Screenshot(QStringLiteral("search-by-price"));
}

void FindNothing(TTourPlayer& player)
{
    TListForm& list = player.List();
    player.Press(Qt::Key_F10);
    player.Press(Qt::Key_Home);
    player.Press(Qt::Key_Tab);
    player.Type(QStringLiteral("'; drop table kala; --"));
    player.Wait(400);
    player.WaitForAnswer();
    player.Check(list.DataSet().RecordCount() == 0, QStringLiteral("ردیفی پیدا شد که نباید"));
    player.Screenshot(QStringLiteral("nothing-found"));
    player.Press(Qt::Key_Escape);
    player.WaitForAnswer();
    player.Check(list.DataSet().RecordCount() > 0,
                 QStringLiteral("Escape همهٔ ردیف‌ها را برنگرداند"));
}

void TypeInGrid(TTourPlayer& player)
{
    TListForm& list = player.List();
    const QString piece = PieceOfName(list, 1).left(2);
    player.Press(Qt::Key_Down);
    player.Type(piece);
    player.Check(list.SearchFrame().Search_EDT->hasFocus(), QStringLiteral("نوشتن در فهرست به جستجو نرفت"));
    player.Check(list.SearchFrame().Search_EDT->Text() == piece,
                 QStringLiteral("همهٔ حرف‌ها به جستجو نرسید"));
    player.Wait(400);
    player.WaitForAnswer();
    player.Check(TourRows::EachContains(list, searchedName, piece),
                 QStringLiteral("ردیف‌ها با متن جستجو جور نیستند"));
    player.Press(Qt::Key_Escape);
    player.WaitForAnswer();
}

} // namespace

QVector<TTourStep> SearchSteps()
{
    return {
        {u"جستجوی زنده بر اساس نام", SearchByName},
        {u"وارونه کردن جستجو و پاک کردن آن", ReverseSearch},
        {u"جستجوی کد و باز کردن ردیف پیدا شده با Enter", SearchByCode},
        {u"جستجوی قیمت", SearchByPrice},
        {u"جستجویی که چیزی نمی‌یابد", FindNothing},
        {u"نوشتن در فهرست", TypeInGrid},
    };
}
