// Another user who generates the missing vouchers of a database, in a program of his own: the arguments are
// the connection string and his code. Writes how many vouchers he has made.

#include "ADOConnection.h"
#include "AutoVouchers.h"
#include "DatabaseFile.h"

#include <cstdio>
#include <QCoreApplication>

int main(int argumentCount, char** arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    const QStringList options = QCoreApplication::arguments();
    TADOConnection connection;
    OpenDatabase(connection, options.at(1));
    TAutoVouchers vouchers(connection, {options.at(2).toInt(), QStringLiteral("2026-01-02T03:04:05")});
    std::printf("%d\n", vouchers.SaveMissing().Written);
    return 0;
}
