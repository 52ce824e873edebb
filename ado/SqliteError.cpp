#include "SqliteError.h"

namespace {

struct TMeaning
{
    TAdoErrorKind Kind;
    QString Message;
};

TMeaning ConstraintMeaning(int extendedCode)
{
    switch (extendedCode) {
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_ROWID:
        return {TAdoErrorKind::Constraint, QStringLiteral("رکوردی با این مقدار از پیش ثبت شده است.")};
    case SQLITE_CONSTRAINT_NOTNULL:
        return {TAdoErrorKind::Constraint, QStringLiteral("یکی از مقدارهای لازم خالی است.")};
    case SQLITE_CONSTRAINT_FOREIGNKEY:
        return {TAdoErrorKind::Constraint, QStringLiteral("این رکورد با رکوردهای دیگری پیوند دارد.")};
    default:
        return {TAdoErrorKind::Constraint,
                QStringLiteral(
                    "مقدار واردشده با قاعده‌های پایگاه داده سازگار "
                    "نیست.")};
    }
}

TMeaning PlainErrorMeaning(TSqlitePhase phase)
{
    if (phase == TSqlitePhase::Preparing)
        return {TAdoErrorKind::Syntax,
                QStringLiteral("پایگاه داده این دستور را نمی‌شناسد.")};
    return {TAdoErrorKind::Other, QStringLiteral("پایگاه داده دستور را انجام نداد.")};
}

TMeaning FileMeaning(int code)
{
    switch (code) {
    case SQLITE_FULL:
        return {TAdoErrorKind::Other, QStringLiteral("فضای دیسک پر است و چیزی ذخیره نشد.")};
    case SQLITE_READONLY:
        return {TAdoErrorKind::Other, QStringLiteral("پایگاه داده فقط خواندنی است و چیزی ذخیره نشد.")};
    case SQLITE_IOERR:
        return {TAdoErrorKind::Other, QStringLiteral("خواندن یا نوشتن پروندهٔ پایگاه داده ناموفق بود.")};
    case SQLITE_NOMEM:
        return {TAdoErrorKind::Other, QStringLiteral("حافظهٔ رایانه برای انجام دستور کافی نیست.")};
    case SQLITE_TOOBIG:
        return {TAdoErrorKind::Other,
                QStringLiteral(
                    "مقدار از اندازهٔ مجاز پایگاه داده بزرگ‌تر است.")};
    default:
        return {TAdoErrorKind::Other, QStringLiteral("پایگاه داده دستور را انجام نداد.")};
    }
}

TMeaning Meaning(int extendedCode, TSqlitePhase phase)
{
    const int code = extendedCode & 0xff;
    switch (code) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {TAdoErrorKind::Busy,
                QStringLiteral("پایگاه داده در دست کاربر دیگری است؛ کمی بعد دوباره تلاش کنید.")};
    case SQLITE_NOTADB:
        return {TAdoErrorKind::NotADatabase, QStringLiteral("این پرونده پایگاه داده نیست.")};
    case SQLITE_CORRUPT:
        return {TAdoErrorKind::NotADatabase,
                QStringLiteral("پروندهٔ پایگاه داده آسیب دیده است؛ از نسخهٔ پشتیبان استفاده کنید.")};
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return {TAdoErrorKind::CannotOpen, QStringLiteral("پایگاه داده باز نشد.")};
    case SQLITE_INTERRUPT:
        return {TAdoErrorKind::Cancelled, QStringLiteral("دستور لغو شد.")};
    case SQLITE_CONSTRAINT:
        return ConstraintMeaning(extendedCode);
    case SQLITE_ERROR:
        return PlainErrorMeaning(phase);
    default:
        return FileMeaning(code);
    }
}

} // namespace

EADOError SqliteError(sqlite3* handle, int code, TSqlitePhase phase, const QString& statement)
{
    const QString words =
        QString::fromUtf8(handle != nullptr ? sqlite3_errmsg(handle) : sqlite3_errstr(code));
    const int extendedCode = handle != nullptr && (sqlite3_extended_errcode(handle) & 0xff) == (code & 0xff)
                                 ? sqlite3_extended_errcode(handle)
                                 : code;
    const TMeaning meaning = Meaning(extendedCode, phase);
    return {meaning.Kind, meaning.Message, statement, words, {}, extendedCode};
}
