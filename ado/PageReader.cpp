#include "PageReader.h"

#include <algorithm>

namespace {

void ReadInto(IEngineRows& source, int& skip, TPageRows& rows)
{
    for (; skip > 0; --skip) {
        if (!source.Next())
            return;
    }
    while (source.Next()) {
        for (int field = 0; field < rows.FieldCount; ++field)
            rows.Values.append(source.Value(field));
    }
}

void Reverse(TPageRows& rows)
{
    const qsizetype width = rows.FieldCount;
    for (qsizetype low = 0, high = rows.Count() - 1; low < high; ++low, --high)
        std::swap_ranges(rows.Values.begin() + low * width, rows.Values.begin() + (low + 1) * width,
                         rows.Values.begin() + high * width);
}

} // namespace

TPageRows TPageReader::Read(const TPagePlan& plan)
{
    TPageRows rows{statements_.FieldCount(), {}};
    rows.Values.reserve(qsizetype(plan.Count) * rows.FieldCount);
    int skip = plan.Skip;
    for (const TPageSegment& segment : statements_.Segments(plan.Start)) {
        const int missing = plan.Count - rows.Count();
        if (missing == 0)
            break;
        const TStatement statement = statements_.Select(segment, skip + missing);
        ReadInto(*connection_.Run(statement.Text, statement.Parameters), skip, rows);
    }
    if (plan.Start.Backward)
        Reverse(rows);
    return rows;
}

int TPageReader::CountOf(const TStatement& statement)
{
    const auto rows = connection_.Run(statement.Text, statement.Parameters);
    return rows->Next() ? static_cast<int>(rows->Int64(0)) : 0;
}

int TPageReader::CountBefore(const TSortKey& place)
{
    int count = 0;
    for (const TPageSegment& segment : statements_.Segments({place, false, true}))
        count += CountOf(statements_.Count(segment));
    return count;
}

int TPageReader::Count()
{
    return CountOf(statements_.CountAll());
}

QVariantList TPageReader::SomeKeys(int count)
{
    const TStatement statement = statements_.SomeKeys(count);
    const auto rows = connection_.Run(statement.Text, statement.Parameters);
    QVariantList keys;
    while (rows->Next())
        keys.append(rows->Value(0));
    return keys;
}

std::optional<TSortKey> TPageReader::Find(const QVariant& key)
{
    const TStatement statement = statements_.Find(key);
    const auto rows = connection_.Run(statement.Text, statement.Parameters);
    if (!rows->Next())
        return std::nullopt;
    return TSortKey{rows->Value(0), rows->Value(1)};
}

TPageReader::TAround TPageReader::ReadAround(const TSortKey& place, int pageSize)
{
    TAround around;
    around.Row = CountBefore(place);
    TPageRows& rows = around.Rows;
    rows = Read({{place, false, true}, 0, around.Row % pageSize});
    rows.Values += Read({{place, true, false}, 0, pageSize - rows.Count()}).Values;
    return around;
}

TPageReader::TSurvey TPageReader::Survey(int pageSize)
{
    TSurvey survey;
    const int keyColumn = statements_.OrderedByKey() ? 0 : 1;
    const TStatement statement = statements_.Places();
    const auto rows = connection_.Run(statement.Text, statement.Parameters);
    while (rows->Next()) {
        const bool pageEnds = ++survey.Count % pageSize == 0;
        if (pageEnds && survey.Boundaries.Takes(survey.Count / pageSize))
            survey.Boundaries.Put(survey.Count / pageSize, {rows->Value(0), rows->Value(keyColumn)});
    }
    return survey;
}
