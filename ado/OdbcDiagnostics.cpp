#include "OdbcDiagnostics.h"

#include <array>

namespace {

// Native numbers of a client library over TDS: the server closed the connection, the process behind it is
// dead, or a read or write on the socket failed. Only the first error after the loss carries one of them;
// later calls complain of an invalid cursor state.
constexpr std::array DeadConnectionCodes = {20003, 20004, 20006, 20017, 20047};

constexpr int LockRequestTimeout = 1222;
constexpr int DeadlockVictim = 1205;

QString UserMessage(TAdoErrorKind kind)
{
    switch (kind) {
    case TAdoErrorKind::ConnectionLost:
        return QStringLiteral("ارتباط با پایگاه داده قطع شده است. پس از بررسی شبکه دوباره وصل شوید.");
    case TAdoErrorKind::CannotOpen:
        return QStringLiteral("اتصال به پایگاه داده برقرار نشد. نشانی سرور و نام کاربری را بررسی کنید.");
    case TAdoErrorKind::Busy:
        return QStringLiteral("رکورد در دست کاربر دیگری است. کمی بعد دوباره تلاش کنید.");
    case TAdoErrorKind::Constraint:
        return QStringLiteral(
            "ثبت نشد، چون با قاعده‌های پایگاه داده سازگار نیست.");
    case TAdoErrorKind::Syntax:
        return QStringLiteral("پایگاه داده این دستور را نمی‌پذیرد.");
    case TAdoErrorKind::Cancelled:
        return QStringLiteral("اجرای دستور متوقف شد.");
    default:
        return QStringLiteral("پایگاه داده خطا داد.");
    }
}

} // namespace

TOdbcDiagnostics ReadDiagnostics(SQLSMALLINT handleType, SQLHANDLE handle)
{
    TOdbcDiagnostics result;
    std::array<SQLWCHAR, 6> state{};
    std::array<SQLWCHAR, SQL_MAX_MESSAGE_LENGTH * 4> text{};
    for (SQLSMALLINT record = 1;; ++record) {
        SQLINTEGER code = 0;
        SQLSMALLINT length = 0;
        const SQLRETURN answer = SQLGetDiagRecW(handleType, handle, record, state.data(), &code, text.data(),
                                                static_cast<SQLSMALLINT>(text.size()), &length);
        if (!Succeeded(answer))
            break;
        const QString recordState = QString::fromUtf16(reinterpret_cast<const char16_t*>(state.data()));
        if (record == 1) {
            result.State = recordState;
            result.Code = code;
        } else {
            result.Message += u'\n';
        }
        result.Message += QString::fromUtf16(reinterpret_cast<const char16_t*>(text.data()));
        const bool deadCode = std::find(DeadConnectionCodes.begin(), DeadConnectionCodes.end(), code) !=
                              DeadConnectionCodes.end();
        result.Dead = result.Dead || deadCode || recordState.startsWith(QLatin1String("08"));
    }
    return result;
}

TAdoErrorKind KindOf(const TOdbcDiagnostics& diagnostics)
{
    const QString& state = diagnostics.State;
    if (diagnostics.Dead)
        return TAdoErrorKind::ConnectionLost;
    if (state == QLatin1String("HY008"))
        return TAdoErrorKind::Cancelled;
    if (diagnostics.Code == LockRequestTimeout || diagnostics.Code == DeadlockVictim ||
        state == QLatin1String("HYT00") || state == QLatin1String("40001"))
        return TAdoErrorKind::Busy;
    if (state.startsWith(QLatin1String("23")))
        return TAdoErrorKind::Constraint;
    if (state.startsWith(QLatin1String("42")))
        return TAdoErrorKind::Syntax;
    return TAdoErrorKind::Other;
}

EADOError OdbcError(const TOdbcDiagnostics& diagnostics, const QString& statement, TAdoErrorKind kind)
{
    if (kind == TAdoErrorKind::Other)
        kind = KindOf(diagnostics);
    return EADOError(kind, UserMessage(kind), statement, diagnostics.Message, diagnostics.State,
                     diagnostics.Code);
}
