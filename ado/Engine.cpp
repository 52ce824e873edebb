#include "Engine.h"

#include "AdoError.h"

IEngineRows::~IEngineRows() = default;

void IEngineRows::AppendText(int column, std::u16string& buffer)
{
    const QString text = Text(column);
    buffer.append(reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size()));
}

IFunctionContext::~IFunctionContext() = default;
IEngine::~IEngine() = default;

std::unique_ptr<IEngine> OpenEngine(const QString& connectionString, const TEngineOptions& options)
{
    const qsizetype colon = connectionString.indexOf(u':');
    const QStringView prefix = QStringView(connectionString).left(colon < 0 ? 0 : colon).trimmed();
    const QString rest = connectionString.mid(colon + 1);
    if (prefix.compare(u"sqlite", Qt::CaseInsensitive) == 0)
        return OpenSqliteEngine(rest, options);
    if (prefix.compare(u"odbc", Qt::CaseInsensitive) == 0)
        return OpenOdbcEngine(rest, options);
    throw EADOError(TAdoErrorKind::CannotOpen,
                    QStringLiteral("نشانی پایگاه داده باید با sqlite: یا odbc: آغاز شود."));
}
