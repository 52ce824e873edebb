#include "Palette.h"

#include "ADOConnection.h"
#include "AdoError.h"
#include "PngPicture.h"
#include "Vocabulary.h"

namespace {

PngPicture::TPixel ColorFromHex(const QString& text)
{
    const uint value = text.toUInt(nullptr, 16);
    return {static_cast<int>(value >> 16 & 0xFFU), static_cast<int>(value >> 8 & 0xFFU),
            static_cast<int>(value & 0xFFU), 255};
}

bool HasColor(TADOConnection& connection, const QString& notation)
{
    return connection.Run(QStringLiteral("SELECT code FROM dbo.colors WHERE cl_code = ?"), {notation})
        ->Next();
}

void AddColor(TADOConnection& connection, const QString& notation, const PngPicture::TPixel& color)
{
    try {
        connection.Execute(
            QStringLiteral("INSERT INTO dbo.colors (cl_code, [h-img], [l-img]) VALUES (?, ?, ?)"),
            {notation, PngPicture::Tag(color), PngPicture::Tag(PngPicture::Lighter(color))});
    } catch (const EADOError& error) {
        // Another program has been quicker.
        if (error.Kind() != TAdoErrorKind::Constraint)
            throw;
    }
}

} // namespace

void Palette::Complete(TADOConnection& connection)
{
    for (const QStringList& row : Vocabulary::Rows(QStringLiteral("fixed.txt"), QStringLiteral("palette"))) {
        if (!HasColor(connection, row.at(0)))
            AddColor(connection, row.at(0), ColorFromHex(row.at(1)));
    }
}
