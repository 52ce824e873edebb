#include "ADOQuery.h"

#include "LocateMatch.h"
#include "RowStore.h"

#include <algorithm>
#include <numeric>

struct TADOQuery::TPrivate
{
    QPointer<TADOConnection> Connection;
    bool Active = false;
    QString OpenedText;
    TRowStore Store;
    std::vector<std::unique_ptr<TField>> Fields; ///< made when they are asked for
    TRowFilter Filter;
    std::vector<int> Visible; ///< source rows that the filter lets through; unused without a filter
    int Row = -1;             ///< current row among the visible ones, -1 when there is none
    bool Bof = true;
    bool Eof = true;

    int RowCount() const { return Filter ? static_cast<int>(Visible.size()) : Store.RowCount(); }
    void ApplyFilter(const TADOQuery& query);
};

void TADOQuery::TPrivate::ApplyFilter(const TADOQuery& query)
{
    Visible.clear();
    if (!Filter)
        return;
    for (int row = 0; row < Store.RowCount(); ++row) {
        if (Filter(query, row))
            Visible.push_back(row);
    }
}

TADOQuery::TADOQuery(QObject* parent) : TDataSet(parent), d(std::make_unique<TPrivate>())
{
}

TADOQuery::~TADOQuery() = default;

void TADOQuery::SetConnection(TADOConnection* connection)
{
    d->Connection = connection;
}

TADOConnection* TADOQuery::Connection() const
{
    return d->Connection;
}

TADOConnection& TADOQuery::LiveConnection() const
{
    if (!d->Connection) {
        throw EADOError(TAdoErrorKind::WrongState,
                        QStringLiteral("برای پرس‌وجو اتصالی تعیین نشده است."),
                        SQL.Text());
    }
    return *d->Connection;
}

void TADOQuery::CheckActive() const
{
    if (!d->Active)
        throw EADOError(TAdoErrorKind::WrongState, QStringLiteral("مجموعهٔ داده بسته است."), SQL.Text());
}

bool TADOQuery::Active() const
{
    return d->Active;
}

void TADOQuery::Open()
{
    const QString text = SQL.Text();
    if (d->Active && d->OpenedText == text)
        return;
    Close();
    TADOConnection& connection = LiveConnection();
    {
        const std::unique_ptr<IEngineRows> rows = connection.Run(text, Parameters);
        connection.Noting([&] { d->Store.Read(*rows); });
    }
    d->OpenedText = text;
    d->Active = true;
    d->Fields.resize(static_cast<std::size_t>(d->Store.Columns().size()));
    d->ApplyFilter(*this);
    MoveTo(0, true, false);
    AnnounceData();
    if (AfterOpen)
        AfterOpen(this);
}

void TADOQuery::Close()
{
    if (!d->Active)
        return;
    d->Active = false;
    d->Fields.clear();
    d->Visible.clear();
    d->Store.Clear();
    MoveTo(0, true, true);
    AnnounceData();
}

void TADOQuery::Requery()
{
    const int recNo = RecNo();
    DisableControls();
    const QScopeGuard enable([this] { EnableControls(); });
    Close();
    Open();
    if (recNo > 1 && Active() && RecordCount() > 0)
        SetRecNo(std::min(recNo, RecordCount()));
}

qint64 TADOQuery::ExecSQL()
{
    Close();
    return LiveConnection().Execute(SQL.Text(), Parameters);
}

bool TADOQuery::IsEmpty()
{
    return RecordCount() == 0;
}

int TADOQuery::RecordCount()
{
    return d->RowCount();
}

int TADOQuery::FieldCount() const
{
    return static_cast<int>(d->Fields.size());
}

TField* TADOQuery::Field(int index)
{
    if (index < 0 || index >= FieldCount()) {
        throw EADOError(TAdoErrorKind::WrongState, QStringLiteral("فیلد شمارهٔ %1 در نتیجه نیست.").arg(index),
                        SQL.Text());
    }
    auto& field = d->Fields[static_cast<std::size_t>(index)];
    if (!field)
        field = std::make_unique<TField>(this, index, d->Store.Columns().at(index));
    return field.get();
}

TField* TADOQuery::FindField(const QString& name)
{
    for (int index = 0; index < FieldCount(); ++index) {
        if (d->Store.Columns().at(index).Name.compare(name, Qt::CaseInsensitive) == 0)
            return Field(index);
    }
    return nullptr;
}

bool TADOQuery::Bof() const
{
    return d->Bof;
}

bool TADOQuery::Eof() const
{
    return d->Eof;
}

/// Goes to the nearest row there is; a result without rows is at its beginning and its end.
void TADOQuery::MoveTo(int row, bool bof, bool eof)
{
    const int count = d->RowCount();
    d->Row = count == 0 ? -1 : std::clamp(row, 0, count - 1);
    d->Bof = bof || count == 0;
    d->Eof = eof || count == 0;
}

void TADOQuery::First()
{
    CheckActive();
    const int before = d->Row;
    MoveTo(0, true, false);
    if (d->Row != before)
        AnnounceScroll();
}

void TADOQuery::Prior()
{
    CheckActive();
    const int before = d->Row;
    MoveTo(before - 1, before <= 0, false);
    if (d->Row != before)
        AnnounceScroll();
}

void TADOQuery::Next()
{
    CheckActive();
    const int before = d->Row;
    MoveTo(before + 1, false, before + 1 >= d->RowCount());
    if (d->Row != before)
        AnnounceScroll();
}

void TADOQuery::Last()
{
    CheckActive();
    const int before = d->Row;
    MoveTo(d->RowCount() - 1, false, true);
    if (d->Row != before)
        AnnounceScroll();
}

int TADOQuery::RecNo() const
{
    return d->Row + 1;
}

void TADOQuery::SetRecNo(int recNo)
{
    CheckActive();
    const int before = d->Row;
    MoveTo(recNo - 1, false, false);
    if (d->Row != before)
        AnnounceScroll();
}

int TADOQuery::SourceRow(int row) const
{
    if (!d->Filter || row < 0)
        return row;
    return row < d->RowCount() ? d->Visible[static_cast<std::size_t>(row)] : -1;
}

QVariant TADOQuery::FieldValue(int index) const
{
    return ValueAt(d->Row, index);
}

QVariant TADOQuery::ValueAt(int row, int index) const
{
    return SourceValue(SourceRow(row), index);
}

QStringView TADOQuery::TextAt(int row, int index) const
{
    return d->Store.Text(SourceRow(row), index);
}

QVariant TADOQuery::SourceValue(int sourceRow, int index) const
{
    return d->Store.Value(sourceRow, index);
}

bool TADOQuery::Locate(const QString& keyFields, const QVariantList& values, TLocateOptions options)
{
    CheckActive();
    QVector<TField*> fields;
    const QStringList names = keyFields.split(u';');
    for (const QString& name : names)
        fields.append(FieldByName(name.trimmed()));
    if (fields.size() != values.size()) {
        throw EADOError(
            TAdoErrorKind::WrongState,
            QStringLiteral("شمار فیلدها و مقدارهای جست‌وجو برابر نیست."),
            SQL.Text());
    }
    const TLocateMatch match(fields, values, options);
    for (int row = 0; row < d->RowCount(); ++row) {
        if (!match.Matches(*this, SourceRow(row)))
            continue;
        SetRecNo(row + 1);
        return true;
    }
    return false;
}

void TADOQuery::SetRowFilter(TRowFilter filter)
{
    const int currentSourceRow = SourceRow(d->Row);
    d->Filter = std::move(filter);
    if (!d->Active)
        return;
    d->ApplyFilter(*this);
    const int count = d->RowCount();
    int row = 0;
    while (row < count && SourceRow(row) != currentSourceRow)
        ++row;
    if (row < count)
        MoveTo(row, false, false);
    else
        MoveTo(0, true, false);
    AnnounceData();
}
