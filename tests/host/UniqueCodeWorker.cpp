// One user of a shared database at work in a program of his own.
//
// create DATABASE USER COUNT     makes so many new detail accounts and ends
// hold DATABASE USER LIFETIME    shows a new account's number, writes it to the standard output, and stays

#include "ADOConnection.h"
#include "DatabaseFile.h"
#include "DetailUniqueCode_UNT.h"
#include "ReferenceHost.h"

#include <cstdio>
#include <cstdlib>
#include <QApplication>
#include <QTemporaryDir>

namespace {

constexpr auto kind = TFloatingAccountsType::fatCosts;
constexpr int accountsPerUser = 1000;
constexpr int firstAccount = 900000;

void Show(int number)
{
    std::printf("%d\n", number);
    std::fflush(stdout);
}

/// Between the proposal of a number and the hold on it another program had the time to save the number.
struct TAlreadySaved
{
};

/// What the form of a detail account does from opening to closing. Throws TAlreadySaved, of which no message
/// box tells because nobody is there to close it.
int CreateAccount(TADOConnection& connection, int account)
{
    TDetailUniqueCode_FRME frame;
    frame.DetailType = kind;
    frame.InitUniqueCode();
    if (!frame.IsValidated([] { throw TAlreadySaved(); }))
        return 0;
    connection.Execute(QStringLiteral("INSERT INTO dbo.AccDetails ([Type], Code, Name) VALUES (?, ?, N'-')"),
                       {static_cast<int>(kind), account});
    frame.SaveDetailUniqueCode(account);
    return frame.GetUniqueCodeValue();
}

int CreateAccountWithAnyNumber(TADOConnection& connection, int account)
{
    for (;;) {
        try {
            return CreateAccount(connection, account);
        } catch (const TAlreadySaved&) {
            std::fprintf(stderr, "account %d asks for another number\n", account);
        }
    }
}

} // namespace

int main(int argumentCount, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argumentCount, arguments);
    const QStringList options = QCoreApplication::arguments();
    const int user = options.at(3).toInt();
    const int number = options.at(4).toInt();

    const QTemporaryDir folder;
    TADOConnection connection;
    OpenDatabase(connection, options.at(2));
    THostSettings settings(folder.filePath(QStringLiteral("settings.ini")));
    settings.SetUserInfo({user, QStringLiteral("کاربر %1").arg(user)});
    const TReferenceHost host(connection, settings);

    if (options.at(1) == QStringLiteral("create")) {
        for (int i = 0; i < number; ++i)
            Show(CreateAccountWithAnyNumber(connection, firstAccount + user * accountsPerUser + i));
        return EXIT_SUCCESS;
    }
    settings.SetIniOptions({number});
    TDetailUniqueCode_FRME frame;
    frame.DetailType = kind;
    frame.InitUniqueCode();
    Show(frame.GetUniqueCodeValue());
    return QApplication::exec();
}
