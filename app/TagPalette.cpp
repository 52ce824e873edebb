#include "TagPalette.h"

#include "Look.h"
#include "QueryOpening.h"

void TTagPalette::Read(TADOConnection& connection)
{
    TADOQuery query;
    OpenQuery(query, connection,
              QStringLiteral("SELECT t.Code, t.Name, c.cl_code FROM dbo.TagS AS t INNER JOIN dbo.colors AS c "
                             "ON c.code = t.color_code"));
    tags_.clear();
    for (int row = 0; row < query.RecordCount(); ++row)
        tags_.insert(query.ValueAt(row, 0).toString(), {Look::StringToColor(query.ValueAt(row, 2).toString()),
                                                        query.ValueAt(row, 1).toString()});
}

QVector<TGridDot> TTagPalette::DotsOf(const QVariant& tags) const
{
    QVector<TGridDot> dots;
    for (const QString& code : tags.toString().split(u',', Qt::SkipEmptyParts)) {
        const auto tag = tags_.constFind(code.trimmed());
        if (tag != tags_.constEnd())
            dots.append(*tag);
    }
    return dots;
}

QString TTagPalette::NamesOf(const QVariant& tags) const
{
    QStringList names;
    for (const TGridDot& dot : DotsOf(tags))
        names.append(dot.Name);
    return names.join(QStringLiteral("، "));
}
