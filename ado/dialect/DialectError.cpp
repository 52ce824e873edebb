#include "DialectError.h"

namespace Dialect {

namespace {

QString Detail(QStringView piece, const char* reason)
{
    return QString::fromLatin1(reason) + QStringLiteral(": ") + piece.toString();
}

} // namespace

void Refuse(QStringView statement, QStringView piece, const char* reason)
{
    throw EADOError(
        TAdoErrorKind::Unsupported,
        QStringLiteral(
            "این دستور در پایگاه دادهٔ محلی پشتیبانی نمی‌شود: "
            "«%1»")
            .arg(piece),
        statement.toString(), Detail(piece, reason));
}

void RefuseMalformed(QStringView statement, QStringView piece, const char* reason)
{
    throw EADOError(TAdoErrorKind::Syntax, QStringLiteral("متن دستور پایگاه داده درست نیست: «%1»").arg(piece),
                    statement.toString(), Detail(piece, reason));
}

} // namespace Dialect
