#include "NumberedMessages.h"

#include "PersianText.h"

#include <QRegularExpression>

namespace {

using TKind = TMessageDialog::TKind;

} // namespace

TNumberedMessages::TNumberedMessages()
{
    Set(static_cast<int>(TConfirmationMessage::cmCreateTag),
        {QStringLiteral(
             "برچسبی با این نام تعریف نشده است. آیا برچسب تازه‌ای ساخته شود؟"),
         TKind::Question,
         {}});
    Set(static_cast<int>(TNotificationMessage::nmLimitReached),
        {QStringLiteral("%1: بیش از این تعداد مجاز نیست."), TKind::Warning, {}});
}

void TNumberedMessages::Set(int number, const TNumberedMessage& message)
{
    messages_[number] = message;
}

TNumberedMessage TNumberedMessages::Find(int number) const
{
    const auto found = messages_.find(number);
    if (found != messages_.end())
        return found->second;
    return {
        QStringLiteral("برای پیام شمارهٔ %1 در این برنامه متنی نیست. این شماره را به پشتیبان برنامه بگویید.")
            .arg(PersianText::Isolated(QString::number(number))),
        TKind::Warning,
        {}};
}

QString TNumberedMessages::Filled(const QString& text, const TMessageArguments& arguments)
{
    static const QRegularExpression placeholder(QStringLiteral("%(1[01]|[1-9])"));
    QString result;
    qsizetype from = 0;
    for (auto matches = placeholder.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QString& argument = arguments.at(match.captured(1).toUInt() - 1);
        result += text.mid(from, match.capturedStart() - from);
        result += argument.isEmpty() ? QString() : PersianText::Isolated(argument);
        from = match.capturedEnd();
    }
    return result + text.mid(from);
}
