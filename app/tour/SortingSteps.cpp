#include "ListForm.h"
#include "MainWindow.h"
#include "TourPlayer.h"
#include "TourRows.h"
#include "TourSteps.h"

#include <algorithm>
#include <QHeaderView>

namespace {

int ColumnOf(TListForm& list, const QString& field)
{
    const QVector<TGridColumn> columns = list.Grid().Columns();
    const auto found = std::find_if(columns.begin(), columns.end(), [&field](const TGridColumn& column) {
        return column.FieldName == field;
    });
    return static_cast<int>(found - columns.begin());
}

QVector<double> Numbers(TListForm& list, const QString& field)
{
    QVector<double> numbers;
    for (const QString& text : TourRows::FirstTexts(list, field))
        numbers.append(text.toDouble());
    return numbers;
}

void SortByHeader(TTourPlayer& player)
{
    TListForm& list = player.List();
    QHeaderView* header = list.Grid().horizontalHeader();
    const int column = ColumnOf(list, QStringLiteral("Price"));
    const QPoint place(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                       header->height() / 2);
    player.Click(header->viewport(), place);
    player.WaitForAnswer();
    const QVector<double> up = Numbers(list, QStringLiteral("Price"));
    player.Check(!up.isEmpty() && std::is_sorted(up.begin(), up.end()),
                 QStringLiteral("قیمت‌ها بالارونده نیستند"));
    player.Click(header->viewport(), place);
    player.WaitForAnswer();
    const QVector<double> down = Numbers(list, QStringLiteral("Price"));
    player.Check(!down.isEmpty() && std::is_sorted(down.rbegin(), down.rend()),
                 QStringLiteral("قیمت‌ها پایین‌رونده نیستند"));
    player.Screenshot(QStringLiteral("sorted-by-price"));
}

void SortByKeyboard(TTourPlayer& player)
{
    TListForm& list = player.List();
    player.Press(Qt::Key_F7);
    player.Screenshot(QStringLiteral("sort-menu"));
    player.Press(Qt::Key_Down);
    player.Press(Qt::Key_Return);
    player.WaitForAnswer();
    const QVector<double> codes = Numbers(list, QStringLiteral("Code"));
    player.Check(!codes.isEmpty() && std::is_sorted(codes.begin(), codes.end()),
                 QStringLiteral("کدها بالارونده نیستند"));
}

} // namespace

QVector<TTourStep> SortingSteps()
{
    return {
        {u"مرتب‌سازی با کلیک روی سرستون", SortByHeader},
        {u"مرتب‌سازی با صفحه‌کلید", SortByKeyboard},
    };
}
