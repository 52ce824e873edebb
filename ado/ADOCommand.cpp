#include "ADOCommand.h"

TADOCommand::TADOCommand(QObject* parent) : QObject(parent)
{
}

TADOCommand::~TADOCommand() = default;

void TADOCommand::SetConnection(TADOConnection* connection)
{
    connection_ = connection;
}

TADOConnection* TADOCommand::Connection() const
{
    return connection_;
}

qint64 TADOCommand::Execute()
{
    if (!connection_) {
        throw EADOError(TAdoErrorKind::WrongState, QStringLiteral("برای دستور اتصالی تعیین نشده است."),
                        CommandText);
    }
    return connection_->Execute(CommandText, Parameters);
}
