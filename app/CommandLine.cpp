#include "CommandLine.h"

#include "PersianText.h"

#include <QMap>

namespace {

QString Quoted(const QString& text)
{
    return QStringLiteral("«%1»").arg(PersianText::Isolated(text));
}

void CheckDatabase(const QString& database)
{
    const bool known =
        database.startsWith(QLatin1String("sqlite:")) || database.startsWith(QLatin1String("odbc:"));
    if (!known || database.endsWith(u':'))
        throw EUsageError(QStringLiteral("بانک اطلاعاتی %1 شناخته نشد. آن را به شکل %2 یا %3 بنویسید.")
                              .arg(Quoted(database), PersianText::Isolated(QStringLiteral("sqlite:FILE")),
                                   PersianText::Isolated(QStringLiteral("odbc:CONNECTION STRING"))));
}

void CheckScheme(const QString& scheme)
{
    if (scheme != QLatin1String("light") && scheme != QLatin1String("dark"))
        throw EUsageError(
            QStringLiteral("رنگ‌بندی %1 شناخته نشد. %2 یا %3 بنویسید.")
                .arg(Quoted(scheme), Quoted(QStringLiteral("light")), Quoted(QStringLiteral("dark"))));
}

} // namespace

EUsageError::EUsageError(const QString& message)
    : std::runtime_error(message.toStdString()), message_(message)
{
}

EUsageError::~EUsageError() = default;

TCommandLine ParseCommandLine(const QStringList& arguments)
{
    TCommandLine line;
    const QMap<QString, QString*> options = {{QStringLiteral("--database"), &line.Database},
                                             {QStringLiteral("--tour"), &line.TourFolder},
                                             {QStringLiteral("--scheme"), &line.Scheme},
                                             {QStringLiteral("--log-sql"), &line.LogFile},
                                             {QStringLiteral("--user"), &line.User}};
    for (int i = 0; i < arguments.size(); ++i) {
        const QString name = arguments.at(i).section(u'=', 0, 0);
        if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
            line.Help = true;
            continue;
        }
        QString* const value = options.value(name);
        if (value == nullptr)
            throw EUsageError(
                QStringLiteral(
                    "گزینهٔ %1 شناخته نشد. با %2 گزینه‌ها را ببینید.")
                    .arg(Quoted(arguments.at(i)), PersianText::Isolated(QStringLiteral("--help"))));
        *value = arguments.at(i).contains(u'=') ? arguments.at(i).section(u'=', 1) : arguments.value(++i);
        if (value->trimmed().isEmpty())
            throw EUsageError(QStringLiteral("پس از گزینهٔ %1 باید مقدار آن بیاید.").arg(Quoted(name)));
    }
    if (!line.Database.isEmpty())
        CheckDatabase(line.Database);
    if (!line.Scheme.isEmpty())
        CheckScheme(line.Scheme);
    return line;
}

QString CommandLineHelp()
{
    return QStringLiteral(
        "workbench [--database sqlite:FILE | --database odbc:CONNECTION STRING] [--tour DIR]\n"
        "          [--scheme light | --scheme dark] [--log-sql FILE] [--user NAME] [--help]\n"
        "\n"
        "  --database  بانک اطلاعاتی؛ اگر داده نشود، بانک نمونه در پوشهٔ داده‌های کاربر باز یا "
        "ساخته "
        "می‌شود\n"
        "  --tour      نمایش خودکار را اجرا می‌کند و تصویرها را در این "
        "پوشه "
        "می‌گذارد\n"
        "  --scheme    رنگ‌بندی روشن یا تیره برای همین اجرا\n"
        "  --log-sql   همهٔ دستورهای بانک اطلاعاتی را در این پرونده "
        "می‌نویسد\n"
        "  --user      نام کاربر\n"
        "  --help      همین راهنما\n"
        "\n"
        "کد خروج: 0 درست، 1 نمایش خودکار خطایی یافت، 2 گزینهٔ نادرست، 3 باز نشدن بانک یا پرونده\n");
}
