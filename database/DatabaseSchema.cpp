#include "DatabaseSchema.h"

#include "ADOConnection.h"

#include <QFile>
#include <QRegularExpression>

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

QStringList BatchesOf(const QString& script)
{
    QFile file(QStringLiteral(":/database/") + script);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s is missing from the program's resources", qPrintable(script));
    return DatabaseSchema::Batches(QString::fromUtf8(file.readAll()));
}

QStringList SchemaStatements(bool indexesAndViews)
{
    QStringList result;
    for (const QString& statement : BatchesOf(QStringLiteral("schema.sql"))) {
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

QVector<DatabaseSchema::TUpgradeStatement> DatabaseSchema::UpgradeStatements(int version)
{
    static const QRegularExpression condition(
        QStringLiteral("^IF OBJECT_ID\\(N'dbo\\.(\\w+)'\\) IS NULL\\s+"));
    QStringList batches = BatchesOf(QStringLiteral("upgrades/%1.sql").arg(version));
    // The first and the last are the server's transaction.
    batches.removeFirst();
    batches.removeLast();
    QVector<TUpgradeStatement> result;
    for (const QString& batch : qAsConst(batches)) {
        const QRegularExpressionMatch match = condition.match(batch);
        result.append({batch.mid(match.capturedLength()), match.captured(1)});
    }
    return result;
}

int DatabaseSchema::VersionOf(TADOConnection& connection)
{
    const std::unique_ptr<IEngineRows> rows =
        connection.Run(QStringLiteral("SELECT Version FROM dbo.SchemaInfo"));
    return rows->Next() ? static_cast<int>(rows->Int64(0)) : 0;
}
