#include "BenchProgram.h"

#include "AdoError.h"
#include "OffscreenMessages.h"

#include <cstdio>
#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>

TBenchPlatform::TBenchPlatform()
{
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeFolder_.path()));
    HideOffscreenMessages();
}

TBenchOptions ReadBenchOptions(const QCoreApplication& application, const TBenchDefaults& defaults)
{
    constexpr int fewestRows = 1000;
    const QString number = QStringLiteral("N");
    QCommandLineParser parser;
    const QCommandLineOption file(QStringLiteral("database"), QStringLiteral("Kept database."),
                                  QStringLiteral("FILE"), defaults.File);
    const QCommandLineOption rows(defaults.RowsOption,
                                  defaults.RowsMeaning + QStringLiteral(" in a database made anew."), number,
                                  QString::number(defaults.Rows));
    const QCommandLineOption rounds(QStringLiteral("rounds"), QStringLiteral("Measurements per condition."),
                                    number, QString::number(defaults.Rounds));
    parser.addOptions({file, rows, rounds});
    parser.addHelpOption();
    parser.process(application);
    return {QFileInfo(parser.value(file)).absoluteFilePath(), qMax(fewestRows, parser.value(rows).toInt()),
            qMax(1, parser.value(rounds).toInt())};
}

void RunBench(const std::function<void()>& run)
{
    try {
        run();
    } catch (const EADOError& error) {
        qFatal("%s", qUtf8Printable(error.Message()));
    }
}
