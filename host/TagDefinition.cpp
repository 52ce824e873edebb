#include "TagDefinition.h"

#include "ADOConnection.h"
#include "AdoError.h"
#include "Palette.h"

namespace {

QVector<TTagColor> ReadColors(TADOConnection& connection)
{
    const std::unique_ptr<IEngineRows> rows = connection.Run(
        QStringLiteral("SELECT c.code, c.cl_code, COUNT(t.Code) AS Uses FROM dbo.colors AS c LEFT "
                       "JOIN dbo.TagS AS t ON t.color_code = c.code GROUP BY c.code, c.cl_code "
                       "ORDER BY c.code"));
    QVector<TTagColor> colors;
    while (rows->Next())
        colors.append({static_cast<int>(rows->Int64(0)), rows->Text(1), static_cast<int>(rows->Int64(2))});
    return colors;
}

} // namespace

TTagDefinition::TTagDefinition(TADOConnection& connection, int limit)
    : connection_(&connection), limit_(limit)
{
}

bool TTagDefinition::HasRoom() const
{
    const auto rows = connection_->Run(QStringLiteral("SELECT COUNT(*) FROM dbo.TagS"));
    return rows->Next() && rows->Int64(0) < limit_;
}

QVector<TTagColor> TTagDefinition::Colors() const
{
    QVector<TTagColor> colors = ReadColors(*connection_);
    if (colors.isEmpty()) {
        Palette::Complete(*connection_);
        colors = ReadColors(*connection_);
    }
    return colors;
}

bool TTagDefinition::HasTag(const QString& name) const
{
    return CodeOf(name) > 0;
}

int TTagDefinition::Create(const QString& name, int colorCode) const
{
    try {
        const qint64 written = connection_->Execute(
            QStringLiteral("INSERT INTO dbo.TagS (Name, color_code) SELECT ?, ? WHERE (SELECT "
                           "COUNT(*) FROM dbo.TagS) < ?"),
            {name, colorCode, limit_});
        return written == 0 ? LimitReached : CodeOf(name);
    } catch (const EADOError& error) {
        if (error.Kind() != TAdoErrorKind::Constraint || !HasTag(name))
            throw;
    }
    return NameIsTaken;
}

int TTagDefinition::CodeOf(const QString& name) const
{
    const auto rows = connection_->Run(QStringLiteral("SELECT Code FROM dbo.TagS WHERE Name = ?"), {name});
    return rows->Next() ? static_cast<int>(rows->Int64(0)) : 0;
}
