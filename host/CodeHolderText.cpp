#include "CodeHolderText.h"

#include "HostSettings.h"
#include "HostSystemClock.h"
#include "PersianText.h"

namespace {

QString Quoted(const QString& name)
{
    return u'«' + PersianText::Isolated(name) + u'»';
}

QString Owner(const TCodeHolder& holder, const TUserInfo& viewer)
{
    if (holder.UserCode != 0 && holder.UserCode == viewer.Code)
        return QStringLiteral("خود شما در برنامهٔ دیگری");
    if (holder.UserName.isEmpty())
        return QStringLiteral("کاربر دیگری");
    return Quoted(holder.UserName);
}

QString Since(const QDateTime& moment, THostClock& clock)
{
    if (!moment.isValid())
        return QStringLiteral("هم‌اکنون");
    const QDateTime local = moment.toLocalTime();
    const QString time =
        QStringLiteral("ساعت ") + PersianText::Isolated(local.time().toString(QStringLiteral("HH:mm")));
    if (local.date() == clock.Today())
        return QStringLiteral("از ") + time;
    return QStringLiteral("از ") + PersianText::Isolated(clock.DateText(local.date(), QStringLiteral("/"))) +
           u' ' + time;
}

} // namespace

QString CodeHolderText::Phrase(const TCodeHolder& holder, const TUserInfo& viewer, THostClock& clock)
{
    return QStringLiteral("%1 در دست %2 روی رایانهٔ %3")
        .arg(Since(holder.TakenAt, clock), Owner(holder, viewer), Quoted(holder.Machine));
}
