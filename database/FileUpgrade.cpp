#include "FileUpgrade.h"

#include "ADOConnection.h"
#include "DatabaseAnswer.h"
#include "DatabaseSchema.h"

namespace {

QVariant HasTable(IFunctionContext& context, const QVariantList& arguments)
{
    return !context.FirstColumn("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?", arguments)
                .isEmpty();
}

/// Within a transaction the header goes with it.
QVariant StampHeader(IFunctionContext& context, const QVariantList& arguments)
{
    context.FirstColumn("PRAGMA user_version = " + QByteArray::number(arguments.first().toInt()), {});
    return arguments.first();
}

QVariant Answer(TADOConnection& connection, const QString& statement, const QVariant& argument)
{
    const std::unique_ptr<IEngineRows> rows = connection.Run(statement, {argument});
    return rows->Next() ? rows->Value(0) : QVariant();
}

void UpgradeTo(int version, TADOConnection& connection)
{
    TTransaction transaction(connection);
    // Another program may have been quicker.
    if (DatabaseSchema::VersionOf(connection) != version - 1)
        return;
    for (const DatabaseSchema::TUpgradeStatement& statement : DatabaseSchema::UpgradeStatements(version)) {
        const bool isNeedless =
            !statement.UnlessThere.isEmpty() &&
            Answer(connection, QStringLiteral("SELECT dbo.HasTable(?) AS answer"), statement.UnlessThere)
                .toBool();
        if (!isNeedless)
            connection.Execute(statement.Text);
    }
    Answer(connection, QStringLiteral("SELECT dbo.StampHeader(?) AS version"), version);
    transaction.Commit();
}

} // namespace

void UpgradeDatabaseFile(const QString& path)
{
    TADOConnection connection;
    connection.SetConnectionString(QStringLiteral("sqlite:") + path);
    connection.RegisterFunction(QStringLiteral("HasTable"), 1, HasTable);
    connection.RegisterFunction(QStringLiteral("StampHeader"), 1, StampHeader);
    connection.Open();
    try {
        for (int version = DatabaseSchema::OldestVersion + 1; version <= DatabaseSchema::Version; ++version)
            UpgradeTo(version, connection);
    } catch (const EADOError& error) {
        if (!IsAnswerOfTheDatabase(error))
            throw;
        throw EADOError(
            error.Kind(),
            QStringLiteral(
                "پایگاه دادهٔ «%1» از نسخهٔ پیشین برنامه است و به‌روز نشد؛ پرونده همان‌گونه که بود "
                "ماند. اجازهٔ نوشتن و جای خالی دیسک را بررسی کنید.")
                .arg(path),
            error.Statement(), error.ServerMessage(), error.State(), error.Code());
    }
}
