#include "ListSelection.h"

#include "DataSource.h"
#include "PageStatements.h"
#include "SmartDBGrid_TRV.h"

#include <algorithm>

namespace {

constexpr int settlingTime = 300; // milliseconds

QStringList InAscendingOrder(const QStringList& keys)
{
    QVector<qint64> numbers;
    numbers.reserve(keys.size());
    for (const QString& key : keys) {
        bool isNumber = false;
        const qint64 number = key.toLongLong(&isNumber);
        if (isNumber)
            numbers.append(number);
    }
    std::sort(numbers.begin(), numbers.end());
    QStringList ordered;
    ordered.reserve(numbers.size());
    for (const qint64 number : qAsConst(numbers))
        ordered.append(QString::number(number));
    return ordered;
}

} // namespace

TListSelection::TListSelection(const TList& list, QObject* parent) : QObject(parent), list_(list)
{
    pause_.setSingleShot(true);
    pause_.setInterval(settlingTime);
    connect(&pause_, &QTimer::timeout, this, &TListSelection::settled);
    list_.Grid.SetMultiSelect(true);
    list_.Grid.SetReadKeys([this](int first, int count) { return ReadKeys(first, count); });
    connect(&list_.Grid, &TSmartDBGrid_TRV::marksChanged, this, &TListSelection::Follow);
    connect(&list_.Grid, &TSmartDBGrid_TRV::marksLimited, this,
            [this] { Q_EMIT limited(list_.Grid.MarkLimit()); });
    connect(&list_.Source, &TDataSource::scrolled, this, [this] {
        if (markedCount_ == 0)
            Follow();
    });
}

TListSelection::~TListSelection()
{
    list_.Grid.SetReadKeys({});
}

void TListSelection::Follow()
{
    markedCount_ = list_.Grid.MarkedKeys().size();
    pause_.start();
    Q_EMIT changed();
}

QStringList TListSelection::Keys() const
{
    QStringList keys = list_.Grid.MarkedKeys();
    if (keys.isEmpty() && list_.DataSet.Active() && list_.DataSet.RecNo() > 0)
        keys.append(list_.DataSet.CurrentKey().toString());
    return InAscendingOrder(keys);
}

QStringList TListSelection::ReadKeys(int first, int count) const
{
    const TPagedSource source = list_.DataSet.Source();
    const TPageStatements statements(source, list_.DataSet.Condition(),
                                     TPageStatements::IndexOf(source, list_.DataSet.OrderField()),
                                     list_.DataSet.Order());
    const TStatement places = statements.Places();
    const auto rows = list_.Connection.Run(places.Text, places.Parameters);
    const int keyColumn = static_cast<int>(rows->Columns().size()) - 1;
    QStringList keys;
    for (int row = 0; keys.size() < count && rows->Next(); ++row) {
        if (row >= first)
            keys.append(rows->Value(keyColumn).toString());
    }
    return keys;
}
