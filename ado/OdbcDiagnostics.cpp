#include "OdbcDiagnostics.h"

#include <algorithm>
#include <array>
#include <QStringList>

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

/// What kept a connection from being made, and how the drivers tell it: by the state of a record, by the
/// number of the server or the client library, or by words.
struct TOpeningCause
{
    QStringList States; ///< or their beginnings
    QVector<int> Codes;
    QString Words;
    QString Message;
};

// In this order: behind "there is no such database" stands "login failed", and behind both "no connection".
const QVector<TOpeningCause>& OpeningCauses()
{
    static const QVector<TOpeningCause> causes{
        {{QStringLiteral("IM002"), QStringLiteral("IM003"), QStringLiteral("IM004"), QStringLiteral("IM005")},
         {},
         QStringLiteral("Can't open lib"),
         QStringLiteral(
             "راه‌انداز ODBC پیدا نشد. نام Driver یا DSN را در نشانی اتصال بررسی کنید و اگر "
             "راه‌انداز نصب نیست آن را نصب کنید.")},
        {{},
         {},
         QStringLiteral("certificate"),
         QStringLiteral("گواهی رمزنگاری سرور پذیرفته نشد. گواهی سرور یا گزینهٔ TrustServerCertificate را "
                        "در نشانی اتصال بررسی کنید.")},
        {{QStringLiteral("3D000")},
         {4060, 4063, 4064},
         {},
         QStringLiteral(
             "پایگاه داده‌ای با این نام روی سرور نیست، یا این کاربر به آن راه ندارد. نام "
             "Database را در نشانی اتصال بررسی کنید.")},
        {{QStringLiteral("28")},
         {18452, 18456, 18470, 18486, 18487, 18488},
         {},
         QStringLiteral("نام کاربری یا گذرواژهٔ پایگاه داده درست نیست، یا این کاربر اجازهٔ ورود ندارد.")},
        {{QStringLiteral("08"), QStringLiteral("HYT")},
         {20002, 20009, 20012, 20013},
         {},
         QStringLiteral(
             "سرور پایگاه داده پاسخ نمی‌دهد. نام سرور، درگاه و شبکه را بررسی کنید.")},
    };
    return causes;
}

bool Tells(const TOdbcDiagnostics& diagnostics, const TOpeningCause& cause)
{
    if (!cause.Words.isEmpty() && diagnostics.Message.contains(cause.Words, Qt::CaseInsensitive))
        return true;
    return std::any_of(
        diagnostics.Records.begin(), diagnostics.Records.end(), [&](const TOdbcDiagnostics::TRecord& record) {
            return cause.Codes.contains(record.Code) ||
                   std::any_of(cause.States.begin(), cause.States.end(),
                               [&](const QString& state) { return record.State.startsWith(state); });
        });
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
        result.Records.append({recordState, code});
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

EADOError OdbcOpeningError(const TOdbcDiagnostics& diagnostics)
{
    const auto& causes = OpeningCauses();
    const auto cause = std::find_if(causes.begin(), causes.end(),
                                    [&](const TOpeningCause& known) { return Tells(diagnostics, known); });
    const QString message = cause != causes.end() ? cause->Message : UserMessage(TAdoErrorKind::CannotOpen);
    return EADOError(TAdoErrorKind::CannotOpen, message, {}, diagnostics.Message, diagnostics.State,
                     diagnostics.Code);
}
