#include "TestDatabase.h"

#include "DatabaseFunctions.h"
#include "DatabaseSchema.h"

#include <QCryptographicHash>
#include <QRegularExpression>

TTestDatabase::TTestDatabase()
{
    RegisterDatabaseFunctions(connection_);
    connection_.SetConnectionString(QStringLiteral("sqlite::memory:"));
    connection_.Open();
}

std::unique_ptr<TTestDatabase> TTestDatabase::Empty()
{
    std::unique_ptr<TTestDatabase> result(new TTestDatabase);
    for (const QString& statement :
         DatabaseSchema::TableStatements() + DatabaseSchema::IndexAndViewStatements())
        result->Execute(statement);
    return result;
}

std::unique_ptr<TTestDatabase> TTestDatabase::Filled(const TSampleSize& size)
{
    std::unique_ptr<TTestDatabase> result(new TTestDatabase);
    CreateSampleDatabase(result->connection_, size);
    return result;
}

QVector<QVariantList> TTestDatabase::Rows(const QString& statement)
{
    QVector<QVariantList> result;
    const std::unique_ptr<IEngineRows> rows = connection_.Run(statement);
    while (rows->Next()) {
        QVariantList values;
        for (int column = 0; column < rows->Columns().size(); ++column)
            values.append(rows->Value(column));
        result.append(values);
    }
    return result;
}

QVariantList TTestDatabase::Column(const QString& statement)
{
    QVariantList result;
    for (const QVariantList& row : Rows(statement))
        result.append(row.first());
    return result;
}

QVariant TTestDatabase::Value(const QString& statement)
{
    const QVariantList column = Column(statement);
    return column.isEmpty() ? QVariant() : column.first();
}

QByteArray TTestDatabase::Content()
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QString& table : Tables()) {
        hash.addData(table.toUtf8());
        for (const QVariantList& row : Rows(QStringLiteral("SELECT * FROM ") + table)) {
            for (const QVariant& value : row) {
                hash.addData(value.isValid() ? value.toByteArray() : QByteArrayLiteral("NULL"));
                hash.addData(QByteArrayLiteral("\x1f"));
            }
        }
    }
    return hash.result();
}

QStringList TTestDatabase::Tables()
{
    static const QRegularExpression definition(QStringLiteral("^CREATE TABLE (\\S+)"));
    QStringList result;
    for (const QString& statement : DatabaseSchema::TableStatements()) {
        if (const QRegularExpressionMatch match = definition.match(statement); match.hasMatch())
            result.append(match.captured(1));
    }
    return result;
}
