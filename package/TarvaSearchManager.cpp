#include "TarvaSearchManager.h"

#include "ADOQuery.h"
#include "PagedDataSet.h"
#include "SearchCondition.h"

#include <algorithm>
#include <QPointer>
#include <vector>

struct TTarvaSearchManager::TPrivate
{
    /// A condition and where it goes.
    struct TPart
    {
        TSearchFilterType FilterType;
        bool IsSql;
        TSearchCondition Condition;
    };

    std::vector<TTarvaSearch*> Criteria;
    std::vector<TPart> Parts;
    TSearchProc SearchProc;
    QPointer<TPagedDataSet> Paged;
    QPointer<TADOQuery> Query;
    QString Announced;
    bool IsDirty = false;
    bool IsQueued = false;
    bool IsRebuilding = false;

    QString Text(std::initializer_list<TSearchFilterType> filterTypes) const;
    void Collect();
    void ApplyRowFilter();
};

QString TTarvaSearchManager::TPrivate::Text(std::initializer_list<TSearchFilterType> filterTypes) const
{
    QStringList texts;
    for (const TPart& part : Parts) {
        if (part.IsSql &&
            std::find(filterTypes.begin(), filterTypes.end(), part.FilterType) != filterTypes.end())
            texts.append(part.Condition.Sql());
    }
    return texts.join(QLatin1String(" AND "));
}

void TTarvaSearchManager::TPrivate::Collect()
{
    std::vector<TPart> parts;
    for (const TTarvaSearch* criterion : Criteria) {
        const auto condition = TSearchCondition::Of(*criterion);
        if (!condition)
            continue;
        const TSearchItem& item = *criterion->CurrentItem();
        parts.push_back({item.FilterType, item.ItemResult == TSearchItemResult::irSQL, *condition});
    }
    Parts = std::move(parts);
}

void TTarvaSearchManager::TPrivate::ApplyRowFilter()
{
    std::vector<TSearchCondition> conditions;
    for (const TPart& part : Parts) {
        if (part.IsSql && part.FilterType == TSearchFilterType::iftDataset)
            conditions.push_back(part.Condition);
    }
    if (conditions.empty()) {
        Query->SetRowFilter({});
        return;
    }
    TADOQuery* const fields = Query;
    Query->SetRowFilter([conditions, fields](const TADOQuery& query, int sourceRow) {
        return std::all_of(conditions.begin(), conditions.end(), [&](const TSearchCondition& condition) {
            return condition.Matches(
                query.SourceValue(sourceRow, fields->FieldByName(condition.Column())->Index()));
        });
    });
}

TTarvaSearchManager::TTarvaSearchManager(QObject* parent) : QObject(parent), d(std::make_unique<TPrivate>())
{
}

TTarvaSearchManager::~TTarvaSearchManager() = default;

void TTarvaSearchManager::Add(TTarvaSearch* criterion)
{
    if (!criterion || std::find(d->Criteria.begin(), d->Criteria.end(), criterion) != d->Criteria.end())
        return;
    d->Criteria.push_back(criterion);
    connect(criterion, &TTarvaSearch::activeChanged, this, &TTarvaSearchManager::Invalidate);
    connect(criterion, &TTarvaSearch::reverstChanged, this, &TTarvaSearchManager::Invalidate);
    connect(criterion, &TTarvaSearch::changed, this, &TTarvaSearchManager::Invalidate);
    connect(criterion, &TTarvaSearch::itemIndexChanged, this, &TTarvaSearchManager::Invalidate);
    connect(criterion, &QObject::destroyed, this, [this, criterion] { Forget(criterion); });
    Invalidate();
}

void TTarvaSearchManager::Remove(TTarvaSearch* criterion)
{
    if (!criterion)
        return;
    criterion->disconnect(this);
    Forget(criterion);
}

void TTarvaSearchManager::Forget(const TTarvaSearch* criterion)
{
    d->Criteria.erase(std::remove(d->Criteria.begin(), d->Criteria.end(), criterion), d->Criteria.end());
    Invalidate();
}

void TTarvaSearchManager::SetDataSet(TPagedDataSet* dataSet)
{
    d->Paged = dataSet;
    d->Query.clear();
    Invalidate();
}

void TTarvaSearchManager::SetDataSet(TADOQuery* dataSet)
{
    d->Query = dataSet;
    d->Paged.clear();
    Invalidate();
}

TDataSet* TTarvaSearchManager::DataSet()
{
    Flush();
    if (d->Paged)
        return d->Paged;
    return d->Query;
}

QString TTarvaSearchManager::Condition()
{
    Flush();
    return d->Text({TSearchFilterType::iftDataset, TSearchFilterType::iftQuery});
}

QString TTarvaSearchManager::Condition(TSearchFilterType filterType)
{
    Flush();
    return d->Text({filterType});
}

QString TTarvaSearchManager::ConditionInWords()
{
    Flush();
    QStringList clauses;
    for (const TPrivate::TPart& part : d->Parts)
        clauses.append(part.Condition.Words());
    return clauses.join(QStringLiteral(" و "));
}

void TTarvaSearchManager::SetSearchProc(TSearchProc proc)
{
    d->SearchProc = std::move(proc);
    Invalidate();
}

void TTarvaSearchManager::Invalidate()
{
    d->IsDirty = true;
    if (d->IsQueued)
        return;
    d->IsQueued = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            d->IsQueued = false;
            Flush();
        },
        Qt::QueuedConnection);
}

void TTarvaSearchManager::Flush()
{
    if (!d->IsDirty || d->IsRebuilding)
        return;
    d->IsDirty = false;
    d->IsRebuilding = true;
    const QPointer<TTarvaSearchManager> guard(this);
    const auto finish = qScopeGuard([&guard] {
        if (guard)
            guard->d->IsRebuilding = false;
    });
    d->Collect();
    CallSearchProc();
    if (guard)
        ApplyCondition();
    if (guard)
        Q_EMIT rebuilt();
}

void TTarvaSearchManager::CallSearchProc()
{
    if (!d->SearchProc)
        return;
    const QPointer<TTarvaSearchManager> guard(this);
    const TSearchProc proc = d->SearchProc;
    const std::vector<TTarvaSearch*> criteria = d->Criteria;
    for (TTarvaSearch* criterion : criteria) {
        if (!guard)
            return;
        const bool isHere = std::find(d->Criteria.begin(), d->Criteria.end(), criterion) != d->Criteria.end();
        const TSearchItem* item = isHere && criterion->Active() ? criterion->CurrentItem() : nullptr;
        if (item && item->ItemResult == TSearchItemResult::irProc)
            proc(criterion);
    }
}

void TTarvaSearchManager::ApplyCondition()
{
    const QString statement = d->Query
                                  ? d->Text({TSearchFilterType::iftQuery})
                                  : d->Text({TSearchFilterType::iftDataset, TSearchFilterType::iftQuery});
    if (d->Paged && d->Paged->Condition() != statement)
        d->Paged->SetCondition(statement);
    if (d->Query)
        d->ApplyRowFilter();
    if (d->Announced == statement)
        return;
    d->Announced = statement;
    Q_EMIT conditionChanged(statement);
}
