#include "PagedDataSet.h"

#include "AdoError.h"
#include "PagedLoader.h"

#include <QPointer>
#include <utility>

namespace {
constexpr int longestWait = 30000; // milliseconds
}

struct TPagedDataSet::TPrivate
{
    QPointer<TADOConnection> connection;
    TPagedSource source;
    TPagedQuery wanted; ///< the newest condition and order
    int pageSize = 100;
    bool countIsGiven = false;
    std::vector<std::unique_ptr<TField>> fields;

    int current = -1;
    std::optional<TSortKey> place; ///< of the current row, as far as it has been here
    bool bof = true;
    bool eof = true;
    bool goToLast = false; ///< the very last row is wanted and not yet known

    std::unique_ptr<TPagedLoader> loader; ///< while the list is open

    int Count() const { return loader ? loader->Count() : 0; }
    void RememberPlace();
    void ReadFields(TPagedDataSet* dataSet);
};

void TPagedDataSet::TPrivate::RememberPlace()
{
    if (auto known = loader->Place(current))
        place = std::move(known);
}

void TPagedDataSet::TPrivate::ReadFields(TPagedDataSet* dataSet)
{
    const TPageStatements statements(source, {}, wanted.OrderIndex, wanted.Order);
    const auto rows = connection->Run(statements.Columns().Text);
    fields.clear();
    for (const TColumnInfo& column : rows->Columns())
        fields.push_back(std::make_unique<TField>(dataSet, static_cast<int>(fields.size()), column));
}

TPagedDataSet::TPagedDataSet(QObject* parent) : TDataSet(parent), d(std::make_unique<TPrivate>())
{
}

TPagedDataSet::~TPagedDataSet() = default;

void TPagedDataSet::SetConnection(TADOConnection* connection)
{
    d->connection = connection;
}

void TPagedDataSet::SetSource(const TPagedSource& source)
{
    Close();
    d->source = source;
    d->wanted.OrderIndex = TPageStatements::IndexOf(source, source.KeyField);
    d->wanted.Order = Qt::AscendingOrder;
}

TPagedSource TPagedDataSet::Source() const
{
    return d->source;
}

void TPagedDataSet::SetPageSize(int rows)
{
    d->pageSize = qMax(1, rows);
}

void TPagedDataSet::SetCondition(const QString& condition)
{
    const bool same = condition == d->wanted.Condition;
    d->wanted.Condition = condition;
    if (d->loader && (!same || d->loader->FirstFailed()))
        d->loader->Ask(d->wanted, {}, false);
}

QString TPagedDataSet::Condition() const
{
    return d->wanted.Condition;
}

void TPagedDataSet::SetOrder(const QString& field, Qt::SortOrder order)
{
    const int index = TPageStatements::IndexOf(d->source, field.isEmpty() ? d->source.KeyField : field);
    if (index < 0)
        throw EADOError(TAdoErrorKind::WrongState,
                        QStringLiteral("فهرست فیلدی به نام «%1» برای ترتیب ندارد.").arg(field));
    const bool same = index == d->wanted.OrderIndex && order == d->wanted.Order;
    d->wanted.OrderIndex = index;
    d->wanted.Order = order;
    if (d->loader && (!same || d->loader->FirstFailed()))
        d->loader->Ask(d->wanted, {}, false);
}

QString TPagedDataSet::OrderField() const
{
    return d->source.Fields.value(d->wanted.OrderIndex);
}

Qt::SortOrder TPagedDataSet::Order() const
{
    return d->wanted.Order;
}

void TPagedDataSet::Refresh()
{
    if (!d->loader)
        return;
    const bool stays = d->place && d->loader->Shown() == d->wanted;
    d->loader->Ask(d->wanted, stays ? std::optional(TStanding{*d->place}) : std::nullopt, true);
}

void TPagedDataSet::SetCountIsGiven(bool given)
{
    d->countIsGiven = given;
    if (d->loader)
        d->loader->SetCountIsGiven(given);
}

void TPagedDataSet::GiveCount(const QString& condition, int count)
{
    if (d->loader)
        d->loader->GiveCount(condition, count);
}

bool TPagedDataSet::CountIsExact() const
{
    return !d->loader || d->loader->CountIsExact();
}

bool TPagedDataSet::Busy() const
{
    return d->loader && d->loader->IsBusy();
}

bool TPagedDataSet::WaitForFirstPage(int milliseconds)
{
    return d->loader && d->loader->WaitForFirst(QDeadlineTimer(milliseconds));
}

bool TPagedDataSet::WaitForCurrentRow(int milliseconds)
{
    const QDeadlineTimer deadline(milliseconds);
    return d->loader && d->loader->WaitForFirst(deadline) && d->loader &&
           d->loader->WaitForRow(d->current, deadline);
}

QVariant TPagedDataSet::CurrentKey() const
{
    return FieldValue(TPageStatements::IndexOf(d->source, d->source.KeyField));
}

bool TPagedDataSet::Active() const
{
    return d->loader != nullptr;
}

void TPagedDataSet::Open()
{
    OpenAt({});
}

void TPagedDataSet::OpenAt(const QVariant& key)
{
    if (d->loader)
        return;
    if (!d->connection)
        throw EADOError(TAdoErrorKind::WrongState, QStringLiteral("اتصال فهرست تعیین نشده است."));
    d->ReadFields(this);
    d->loader = std::make_unique<TPagedLoader>(*d->connection, d->source, d->pageSize);
    TPagedLoader* loader = d->loader.get();
    connect(loader, &TPagedLoader::replaced, this, &TPagedDataSet::ShowReplaced);
    connect(loader, &TPagedLoader::rowsArrived, this, &TPagedDataSet::ShowArrived);
    connect(loader, &TPagedLoader::countChanged, this, &TPagedDataSet::ShowCount);
    connect(loader, &TPagedLoader::busyChanged, this, &TPagedDataSet::busyChanged);
    connect(loader, &TPagedLoader::failed, this, &TPagedDataSet::failed);
    loader->SetCountIsGiven(d->countIsGiven);
    loader->Ask(d->wanted, key.isValid() ? std::optional(TStanding{{{}, key}, false}) : std::nullopt, false);
    AnnounceData();
}

void TPagedDataSet::Close()
{
    if (!d->loader)
        return;
    const bool wasBusy = Busy();
    // A handler of one of its signals may be what closes the list.
    TPagedLoader* loader = d->loader.release();
    loader->Stop();
    loader->disconnect(this);
    loader->deleteLater();
    d->fields.clear();
    d->current = -1;
    d->place.reset();
    d->bof = d->eof = true;
    d->goToLast = false;
    AnnounceData();
    if (wasBusy)
        Q_EMIT busyChanged(false);
}

void TPagedDataSet::ShowReplaced(int row)
{
    d->current = row;
    d->place.reset();
    d->RememberPlace();
    d->bof = row <= 0;
    d->eof = row < 0;
    d->goToLast = false;
    const QPointer<TPagedDataSet> alive(this);
    AnnounceData();
    if (alive && d->loader)
        AnnounceCount();
}

void TPagedDataSet::ShowArrived(int first, int last)
{
    d->RememberPlace();
    if (ControlsDisabled())
        AnnounceData();
    else
        Q_EMIT rowsArrived(first, last);
}

void TPagedDataSet::AnnounceCount()
{
    if (ControlsDisabled())
        AnnounceData();
    else
        Q_EMIT countChanged(d->Count(), CountIsExact());
}

void TPagedDataSet::ShowCount()
{
    const QPointer<TPagedDataSet> alive(this);
    AnnounceCount();
    if (!alive || !d->loader)
        return;
    const bool toLast = CountIsExact() && std::exchange(d->goToLast, false);
    if (toLast || d->current >= d->Count())
        MoveTo(d->Count() - 1);
}

void TPagedDataSet::MoveTo(int row)
{
    const bool moved = row != d->current;
    d->current = row;
    d->bof = d->eof = row < 0;
    d->goToLast = false;
    if (!moved)
        return;
    d->place.reset();
    d->RememberPlace();
    AnnounceScroll();
}

bool TPagedDataSet::IsEmpty()
{
    if (d->loader)
        d->loader->WaitForFirst(QDeadlineTimer(longestWait));
    return d->Count() == 0;
}

int TPagedDataSet::RecordCount()
{
    return d->Count();
}

int TPagedDataSet::FieldCount() const
{
    return static_cast<int>(d->fields.size());
}

TField* TPagedDataSet::Field(int index)
{
    return index >= 0 && index < FieldCount() ? d->fields[static_cast<size_t>(index)].get() : nullptr;
}

TField* TPagedDataSet::FindField(const QString& name)
{
    for (const auto& field : d->fields) {
        if (field->FieldName().compare(name, Qt::CaseInsensitive) == 0)
            return field.get();
    }
    return nullptr;
}

bool TPagedDataSet::Bof() const
{
    return d->bof;
}

bool TPagedDataSet::Eof() const
{
    return d->eof;
}

void TPagedDataSet::First()
{
    if (d->Count() == 0)
        return;
    MoveTo(0);
    d->bof = true;
}

void TPagedDataSet::Prior()
{
    if (d->current > 0)
        MoveTo(d->current - 1);
    else
        d->bof = true;
}

void TPagedDataSet::Next()
{
    if (d->loader && d->current + 1 >= d->Count())
        d->loader->WaitForMore(QDeadlineTimer(longestWait));
    if (d->current + 1 < d->Count())
        MoveTo(d->current + 1);
    else
        d->eof = true;
}

void TPagedDataSet::Last()
{
    if (d->Count() == 0)
        return;
    MoveTo(d->Count() - 1);
    d->eof = CountIsExact();
    d->goToLast = !CountIsExact();
}

int TPagedDataSet::RecNo() const
{
    return d->current + 1;
}

void TPagedDataSet::SetRecNo(int recNo)
{
    if (d->Count() > 0)
        MoveTo(qBound(1, recNo, d->Count()) - 1);
}

QVariant TPagedDataSet::FieldValue(int index) const
{
    return ValueAt(d->current, index);
}

QVariant TPagedDataSet::ValueAt(int row, int index) const
{
    return d->loader && index >= 0 ? d->loader->Value(row, index) : QVariant();
}
