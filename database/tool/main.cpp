// database_tool: makes and checks databases of the application from the command line.

#include "ADOConnection.h"
#include "AdoError.h"
#include "DatabaseCheck.h"
#include "DatabaseFile.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTextStream>

namespace {

constexpr int Done = 0;
constexpr int Failed = 1;
constexpr int WrongUse = 2;

/// A count given on the command line, with where it goes.
struct TCountOption
{
    QString Name;
    QString Description;
    int TSampleSize::*Member;
};

const QVector<TCountOption>& CountOptions()
{
    static const QVector<TCountOption> options{
        {QStringLiteral("goods"), QStringLiteral("Number of goods."), &TSampleSize::Goods},
        {QStringLiteral("persons"), QStringLiteral("Number of persons, 20 to 999999."),
         &TSampleSize::Persons},
        {QStringLiteral("vouchers"), QStringLiteral("Vouchers in each year."), &TSampleSize::VouchersPerYear},
        {QStringLiteral("years"), QStringLiteral("Fiscal years, 1 to 4."), &TSampleSize::FiscalYears},
        {QStringLiteral("pictures"), QStringLiteral("Goods and persons, each, that have pictures."),
         &TSampleSize::PicturedRecords},
    };
    return options;
}

QTextStream& Out()
{
    static QTextStream stream(stdout);
    return stream;
}

QTextStream& Err()
{
    static QTextStream stream(stderr);
    return stream;
}

int Complain(const QString& text)
{
    Err() << text << Qt::endl;
    return WrongUse;
}

bool ReadSize(const QCommandLineParser& parser, TSampleSize& size, QString& complaint)
{
    const QString preset = parser.value(QStringLiteral("size"));
    if (preset == u"small")
        size = TSampleSize::Small();
    else if (preset == u"large")
        size = TSampleSize::Large();
    else if (preset != u"normal")
        complaint = QStringLiteral("--size takes small, normal or large, not \"%1\".").arg(preset);
    for (const TCountOption& option : CountOptions()) {
        if (!parser.isSet(option.Name))
            continue;
        bool isNumber = false;
        const int count = parser.value(option.Name).toInt(&isNumber);
        if (!isNumber || count < 0)
            complaint = QStringLiteral("--%1 takes a whole number, not \"%2\".")
                            .arg(option.Name, parser.value(option.Name));
        size.*option.Member = count;
    }
    return complaint.isEmpty();
}

/// As the application opens a database: a missing one is made.
int Open(const QString& file, const TSampleSize& size)
{
    QElapsedTimer timer;
    timer.start();
    bool made = false;
    TDatabaseOptions options;
    options.Size = size;
    options.Progress = [&made](int percent, const QString&) {
        made = made || percent > 0;
        return true;
    };
    TADOConnection connection;
    OpenDatabase(connection, QStringLiteral("sqlite:") + file, options);
    Out() << (made ? "made " : "opened ") << file << ": "
          << DatabaseCheck::RowCount(connection, QStringLiteral("dbo.kala")) << " goods, "
          << DatabaseCheck::RowCount(connection, QStringLiteral("dbo.Persons")) << " persons, "
          << DatabaseCheck::RowCount(connection, QStringLiteral("dbo.Sanad")) << " vouchers in "
          << static_cast<double>(timer.elapsed()) / 1000 << " s" << Qt::endl;
    return Done;
}

int Create(const QString& file, const TSampleSize& size)
{
    if (QFileInfo::exists(file))
        return Complain(QStringLiteral("\"%1\" is there already and stays as it is.").arg(file));
    return Open(file, size);
}

int Check(const QString& file)
{
    TDatabaseOptions options;
    options.CreateMissing = false;
    TADOConnection connection;
    OpenDatabase(connection, QStringLiteral("sqlite:") + file, options);
    const QStringList damagedPages = DatabaseCheck::FindDamagedPages(connection);
    for (const QString& sentence : damagedPages)
        Out() << sentence << Qt::endl;
    if (!damagedPages.isEmpty())
        return Failed;
    const QStringList damage = DatabaseCheck::FindDamage(connection);
    for (const QString& sentence : damage)
        Out() << sentence << Qt::endl;
    Out() << file << ": " << DatabaseCheck::Rules().size() << " rules checked, " << damage.size() << " broken"
          << Qt::endl;
    return damage.isEmpty() ? Done : Failed;
}

int Run(QCommandLineParser& parser)
{
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() != 2)
        return Complain(QStringLiteral("Give a command and a file. --help tells more."));
    const QString& command = arguments.first();
    const QString& file = arguments.last();
    if (command == u"check")
        return Check(file);
    if (command != u"create" && command != u"open")
        return Complain(QStringLiteral("Unknown command \"%1\". --help tells more.").arg(command));
    TSampleSize size;
    QString complaint;
    if (!ReadSize(parser, size, complaint))
        return Complain(complaint);
    return command == u"create" ? Create(file, size) : Open(file, size);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Makes and checks databases of the accounting application."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("command"),
                                 QStringLiteral("create, open (creates a missing file) or check."));
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("The database file."));
    parser.addOption({QStringLiteral("size"), QStringLiteral("small, normal or large."),
                      QStringLiteral("preset"), QStringLiteral("normal")});
    for (const TCountOption& option : CountOptions())
        parser.addOption({option.Name, option.Description, QStringLiteral("count")});
    parser.process(application);
    try {
        return Run(parser);
    } catch (const EADOError& error) {
        Err() << error.Message() << Qt::endl;
        if (!error.ServerMessage().isEmpty())
            Err() << error.ServerMessage() << Qt::endl;
        return Failed;
    }
}
