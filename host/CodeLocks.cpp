#include "CodeLocks.h"

#include "ADOConnection.h"
#include "HostSettings.h"
#include "PersianText.h"

#include <QCoreApplication>
#include <QSysInfo>
#include <QUuid>
#include <utility>

namespace {

constexpr int MillisecondsPerSecond = 1000;
/// A renewal may fail twice before the hold lapses.
constexpr int RenewalsPerLifetime = 3;
/// A row that stands in the way may vanish before it is looked at, and come again, but not for long.
constexpr int MostAttempts = 5;

constexpr int LongestName = 100; // of the columns UserName and Machine

/// The moment at which a hold taken or renewed now lapses. The clocks of the users' machines differ; the
/// server's is one.
QString LapseMoment(int lifetime)
{
    return QStringLiteral("DATEADD(second, %1, GETUTCDATE())").arg(lifetime);
}

QDateTime MomentOf(const QString& text)
{
    QDateTime moment = QDateTime::fromString(text, Qt::ISODateWithMs);
    moment.setTimeSpec(Qt::UTC);
    return moment;
}

} // namespace

TCodeLocks::TCodeLocks(TADOConnection& connection, const ISettings& settings)
    : connection_(&connection), settings_(&settings),
      ownerId_(QUuid::createUuid().toString(QUuid::WithoutBraces)),
      machine_(QSysInfo::machineHostName().left(LongestName))
{
    renewal_.callOnTimeout(this, &TCodeLocks::RenewHolds);
}

TCodeLocks::~TCodeLocks()
{
    if (!connection_->Connected() || connection_->IsLost())
        return;
    try {
        ReleaseAll();
    } catch (const EADOError& error) {
        qWarning("The codes were not released: %s", error.what());
    }
}

std::optional<TCodeHolder> TCodeLocks::OtherHolder(const QString& code, TSoftwarePart part)
{
    lastRefusal_.reset();
    const TKey key = KeyOf(code, part);
    return key.IsCode() ? FindOther(key) : std::nullopt;
}

bool TCodeLocks::Take(const QString& code, TSoftwarePart part)
{
    lastRefusal_.reset();
    const TKey key = KeyOf(code, part);
    if (!key.IsCode())
        return true;
    const bool hasIt = holds_.contains(key) && RenewRow(key);
    if (!hasIt && !TakeRow(key))
        return false;
    ++holds_[key];
    ScheduleRenewal();
    return true;
}

bool TCodeLocks::Renew(const QString& code, TSoftwarePart part)
{
    const TKey key = KeyOf(code, part);
    return !key.IsCode() || (holds_.contains(key) && RenewRow(key));
}

bool TCodeLocks::Release(const QString& code, TSoftwarePart part)
{
    const auto hold = holds_.find(KeyOf(code, part));
    if (hold == holds_.end())
        return false;
    if (--hold->second > 0)
        return true;
    // Forgotten first: where the statement fails, the row is not renewed and lapses.
    const TKey key = hold->first;
    holds_.erase(hold);
    ScheduleRenewal();
    connection_->Execute(
        QStringLiteral("DELETE FROM dbo.CodeLocks WHERE SoftwarePart = ? AND Code = ? AND OwnerId = ?"),
        {key.Part, key.Code, ownerId_});
    return true;
}

void TCodeLocks::ReleaseAll()
{
    if (holds_.empty())
        return;
    holds_.clear();
    ScheduleRenewal();
    connection_->Execute(QStringLiteral("DELETE FROM dbo.CodeLocks WHERE OwnerId = ?"), {ownerId_});
}

void TCodeLocks::SetLifetime(int seconds)
{
    const int lifetime = seconds > 0 ? qMin(seconds, LongestLifetime) : DefaultLifetime;
    if (lifetime == lifetime_)
        return;
    lifetime_ = lifetime;
    ScheduleRenewal();
}

std::optional<TCodeHolder> TCodeLocks::TakeLastRefusal()
{
    return std::exchange(lastRefusal_, std::nullopt);
}

TCodeLocks::TKey TCodeLocks::KeyOf(const QString& code, TSoftwarePart part)
{
    const QString text = PersianText::AsciiDigits(code).trimmed();
    qsizetype zeros = 0;
    while (zeros < text.size() && text.at(zeros) == u'0')
        ++zeros;
    return {static_cast<int>(part), text.mid(zeros)};
}

std::optional<TCodeHolder> TCodeLocks::FindOther(const TKey& key)
{
    const std::unique_ptr<IEngineRows> rows = connection_->Run(
        QStringLiteral("SELECT UserCode, UserName, Machine, TakenAt FROM dbo.CodeLocks WHERE "
                       "SoftwarePart = ? AND Code = ? AND OwnerId <> ? AND ExpiresAt > "
                       "GETUTCDATE()"),
        {key.Part, key.Code, ownerId_});
    if (!rows->Next())
        return std::nullopt;
    lastRefusal_ = TCodeHolder{rows->Value(0).toInt(), rows->Text(1), rows->Text(2),
                               MomentOf(rows->Value(3).toString())};
    return lastRefusal_;
}

/// The primary key decides between runs that come at the same time: one inserts the row, the others are
/// refused.
bool TCodeLocks::TakeRow(const TKey& key)
{
    for (int attempt = 1;; ++attempt) {
        try {
            InsertRow(key);
            return true;
        } catch (const EADOError& error) {
            if (error.Kind() != TAdoErrorKind::Constraint || attempt == MostAttempts)
                throw;
        }
        if (FindOther(key))
            return false;
        DeleteDeadRow(key);
    }
}

void TCodeLocks::InsertRow(const TKey& key)
{
    const TUserInfo& user = settings_->UserInfo();
    connection_->Execute(
        QStringLiteral(
            "INSERT INTO dbo.CodeLocks (SoftwarePart, Code, UserCode, UserName, Machine, ProcessId, "
            "OwnerId, TakenAt, ExpiresAt) VALUES (?, ?, ?, ?, ?, ?, ?, GETUTCDATE(), %1)")
            .arg(LapseMoment(lifetime_)),
        {key.Part, key.Code, user.Code, user.Name.left(LongestName), machine_,
         QCoreApplication::applicationPid(), ownerId_});
}

/// A row of a program that has died, or of this run where a release did not reach the database.
void TCodeLocks::DeleteDeadRow(const TKey& key)
{
    connection_->Execute(QStringLiteral("DELETE FROM dbo.CodeLocks WHERE SoftwarePart = ? AND Code = ? AND "
                                        "(ExpiresAt <= GETUTCDATE() OR OwnerId = ?)"),
                         {key.Part, key.Code, ownerId_});
}

bool TCodeLocks::RenewRow(const TKey& key)
{
    return connection_->Execute(
               QStringLiteral(
                   "UPDATE dbo.CodeLocks SET ExpiresAt = %1 WHERE SoftwarePart = ? AND Code = ? AND "
                   "OwnerId = ?")
                   .arg(LapseMoment(lifetime_)),
               {key.Part, key.Code, ownerId_}) != 0;
}

void TCodeLocks::RenewHolds()
{
    for (const auto& hold : holds_) {
        try {
            // A program that slept longer than the lifetime takes its code again, unless another has it now.
            if (!RenewRow(hold.first))
                TakeRow(hold.first);
        } catch (const EADOError&) {
            // The next renewal comes before the hold lapses; the connection itself tells when it is lost.
            break;
        }
    }
    lastRefusal_.reset();
}

void TCodeLocks::ScheduleRenewal()
{
    if (holds_.empty())
        renewal_.stop();
    else if (const int interval = lifetime_ * MillisecondsPerSecond / RenewalsPerLifetime;
             !renewal_.isActive() || renewal_.interval() != interval)
        renewal_.start(interval);
}
