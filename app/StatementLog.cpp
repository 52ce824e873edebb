#include "StatementLog.h"

#include "ADOConnection.h"

#include <QDateTime>

bool TStatementLog::Open(const QString& fileName, QString& error)
{
    file_.setFileName(fileName);
    if (file_.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text))
        return true;
    error = file_.errorString();
    return false;
}

void TStatementLog::Follow(TADOConnection& connection) const
{
    if (file_.isOpen())
        connect(&connection, &TADOConnection::willExecute, this, &TStatementLog::Write);
}

void TStatementLog::Write(const QString& text)
{
    const QString time = QDateTime::currentDateTime().toString(Qt::ISODateWithMs);
    file_.write((QStringLiteral("-- ") + time + u'\n' + text + QStringLiteral("\nGO\n")).toUtf8());
    file_.flush();
}
