#include "Vocabulary.h"

#include <QFile>

namespace {

QStringList AllLines(const QString& fileName)
{
    QFile file(QStringLiteral(":/database/vocabulary/") + fileName);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s is missing from the program's resources", qPrintable(fileName));
    QStringList result;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (!line.trimmed().isEmpty() && !line.startsWith(u'#'))
            result.append(line);
    }
    return result;
}

bool IsHeading(const QString& line)
{
    return line.startsWith(u'[');
}

QString SectionName(const QString& heading)
{
    return heading.trimmed().mid(1).chopped(1);
}

} // namespace

QStringList Vocabulary::Lines(const QString& file, const QString& section)
{
    QStringList result;
    QString current;
    for (const QString& line : AllLines(file)) {
        if (IsHeading(line))
            current = SectionName(line);
        else if (current == section)
            result.append(line);
    }
    return result;
}

QVector<QStringList> Vocabulary::Rows(const QString& file, const QString& section)
{
    QVector<QStringList> result;
    for (const QString& line : Lines(file, section)) {
        QStringList pieces;
        for (const QString& piece : line.split(u'|'))
            pieces.append(piece.trimmed());
        result.append(pieces);
    }
    return result;
}

QStringList Vocabulary::Sections(const QString& file)
{
    QStringList result;
    for (const QString& line : AllLines(file)) {
        if (IsHeading(line))
            result.append(SectionName(line));
    }
    return result;
}
