#include "DatabaseSchema.h"

#include <QFile>

namespace {

bool MakesIndexOrView(const QString& statement)
{
    static const QStringList beginnings{QStringLiteral("CREATE INDEX"), QStringLiteral("CREATE UNIQUE INDEX"),
                                        QStringLiteral("CREATE VIEW")};
    for (const QString& beginning : beginnings) {
        if (statement.startsWith(beginning))
            return true;
    }
    return false;
}

QStringList SchemaStatements(bool indexesAndViews)
{
    QFile file(QStringLiteral(":/database/schema.sql"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("schema.sql is missing from the program's resources");
    QStringList result;
    for (const QString& statement : DatabaseSchema::Batches(QString::fromUtf8(file.readAll()))) {
        if (MakesIndexOrView(statement) == indexesAndViews)
            result.append(statement);
    }
    return result;
}

} // namespace

QStringList DatabaseSchema::Batches(const QString& script)
{
    QStringList result;
    QStringList lines;
    const auto finish = [&result, &lines] {
        const QString batch = lines.join(u'\n').trimmed();
        if (!batch.isEmpty())
            result.append(batch);
        lines.clear();
    };
    for (const QString& line : script.split(u'\n')) {
        const QString content = line.trimmed();
        if (content.compare(u"GO", Qt::CaseInsensitive) == 0)
            finish();
        else if (!content.startsWith(u"--"))
            lines.append(line);
    }
    finish();
    return result;
}

QStringList DatabaseSchema::TableStatements()
{
    return SchemaStatements(false);
}

QStringList DatabaseSchema::IndexAndViewStatements()
{
    return SchemaStatements(true);
}
