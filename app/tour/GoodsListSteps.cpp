#include "DisplayText.h"
#include "ListFooter.h"
#include "ListForm.h"
#include "MainWindow.h"
#include "RecordCard.h"
#include "TourPlayer.h"
#include "TourRows.h"
#include "TourSteps.h"

namespace {

constexpr QLatin1String goodsName("Name");

void OpenGoods(TTourPlayer& player)
{
    player.Press(Qt::Key_1, Qt::ControlModifier);
    player.Check(player.List().Description().Key == QLatin1String("Goods"),
                 QStringLiteral("فهرست کالاها باز نشد"));
    player.WaitForAnswer();
    const int rows = player.List().DataSet().RecordCount();
    player.Check(rows > 0, QStringLiteral("فهرست کالاها خالی است"));
    player.Check(player.List().Footer().CountText() == DisplayText::RowCount(rows),
                 QStringLiteral("شمار ردیف‌ها درست نوشته نشده است"));
    player.Screenshot(QStringLiteral("goods"));
}

void MoveInGrid(TTourPlayer& player)
{
    TListForm& list = player.List();
    player.Press(Qt::Key_Down);
    player.Check(list.Grid().hasFocus(), QStringLiteral("کلید پایین به فهرست نرفت"));
    const int before = list.DataSet().RecNo();
    player.Press(Qt::Key_Down);
    player.Press(Qt::Key_Down);
    player.Check(list.DataSet().RecNo() == before + 2, QStringLiteral("ردیف جاری دو ردیف پایین نرفت"));
    player.Press(Qt::Key_End, Qt::ControlModifier);
    player.WaitUntil([&list] { return list.DataSet().FieldByName(goodsName)->Value().isValid(); },
                     QStringLiteral("ردیف پایانی نرسید"));
    player.Check(list.DataSet().RecNo() == list.DataSet().RecordCount(),
                 QStringLiteral("به پایان فهرست نرفت"));
    player.Press(Qt::Key_Home, Qt::ControlModifier);
    player.Check(list.DataSet().RecNo() == 1, QStringLiteral("به آغاز فهرست برنگشت"));
}

void ReadCard(TTourPlayer& player)
{
    TListForm& list = player.List();
    const QString first = TourRows::CurrentText(list, goodsName);
    player.Press(Qt::Key_Return);
    if (!player.WaitUntil([&list] { return list.Card() != nullptr; }, QStringLiteral("کارت باز نشد")))
        return;
    player.Check(list.Card()->FieldText(goodsName) == first,
                 QStringLiteral("کارت ردیف دیگری را نشان می‌دهد"));
    player.Screenshot(QStringLiteral("goods-card"));
    player.Press(Qt::Key_PageDown);
    player.Check(list.DataSet().RecNo() == 2, QStringLiteral("کارت به رکورد بعدی نرفت"));
    player.Check(list.Card()->FieldText(goodsName) == TourRows::CurrentText(list, goodsName),
                 QStringLiteral("کارت رکورد بعدی را نشان نمی‌دهد"));
    player.Press(Qt::Key_Escape);
    player.WaitUntil([&list] { return list.Card() == nullptr; }, QStringLiteral("کارت بسته نشد"));
    player.Check(player.Window().focusWidget() == &list.Grid(),
                 QStringLiteral("پس از کارت، فهرست فوکوس نگرفت"));
}

} // namespace

QVector<TTourStep> GoodsListSteps()
{
    return {
        {u"باز کردن فهرست کالاها", OpenGoods},
        {u"گشتن در فهرست با صفحه‌کلید", MoveInGrid},
        {u"خواندن کارت یک کالا", ReadCard},
    };
}
