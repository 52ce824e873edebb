#include "General_Search_UNT.h"
#include "ListForm.h"
#include "MainWindow.h"
#include "RecordCard.h"
#include "TourPlayer.h"
#include "TourRows.h"
#include "TourSteps.h"

namespace {

constexpr QLatin1String city("City");

void OpenPersons(TTourPlayer& player)
{
    player.Press(Qt::Key_2, Qt::ControlModifier);
    player.Check(player.List().Description().Key == QLatin1String("Persons"),
                 QStringLiteral("فهرست اشخاص باز نشد"));
    player.WaitForAnswer();
    player.Check(player.List().DataSet().RecordCount() > 0, QStringLiteral("فهرست اشخاص خالی است"));
    player.Screenshot(QStringLiteral("persons"));
}

void SearchByCity(TTourPlayer& player)
{
    TListForm& list = player.List();
    const QString wanted = TourRows::FirstTexts(list, city).value(2);
    player.Press(Qt::Key_F10);
    for (int i = 0; i < 4; ++i)
        player.Press(Qt::Key_Down);
    player.Press(Qt::Key_Tab);
    player.Type(wanted);
    player.Press(Qt::Key_Return);
    if (!player.WaitUntil([&list] { return list.Card() != nullptr; },
                          QStringLiteral("Enter کارت را باز نکرد")))
        return;
    player.Check(list.Card()->FieldText(city) == wanted, QStringLiteral("شهر کارت چیز دیگری است"));
    player.Check(TourRows::EachContains(list, city, wanted), QStringLiteral("شهرها با جستجو جور نیستند"));
    player.Screenshot(QStringLiteral("person-card"));
    player.Press(Qt::Key_Escape);
    player.WaitUntil([&list] { return list.Card() == nullptr; }, QStringLiteral("کارت بسته نشد"));
    player.Press(Qt::Key_Escape);
    player.WaitForAnswer();
}

} // namespace

QVector<TTourStep> PersonsListSteps()
{
    return {
        {u"باز کردن فهرست اشخاص", OpenPersons},
        {u"جستجوی شهر و خواندن کارت", SearchByCity},
    };
}
