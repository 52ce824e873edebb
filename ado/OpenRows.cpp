#include "OpenRows.h"

#include <utility>

void TOpenRows::Take(IOpenRows* rows, const QString& text)
{
    RefuseWhileOpen(text);
    rows_ = rows;
}

void TOpenRows::Release(const IOpenRows* rows)
{
    if (rows_ == rows)
        rows_ = nullptr;
}

void TOpenRows::RefuseWhileOpen(const QString& text) const
{
    if (rows_ == nullptr)
        return;
    throw EADOError(TAdoErrorKind::WrongState, QStringLiteral("دستور پیشین این اتصال هنوز بسته نشده است."),
                    text, QStringLiteral("a connection has one open statement at a time"));
}

void TOpenRows::ConnectionCloses()
{
    if (rows_ != nullptr)
        std::exchange(rows_, nullptr)->ConnectionCloses();
}

EADOError TOpenRows::CutOff(const QString& text)
{
    return {TAdoErrorKind::WrongState, QStringLiteral("اتصال پیش از پایان خواندن بسته شد."), text};
}
