#pragma once

#include "EntityTypes.h"
#include "HostExport.h"

#include <map>
#include <optional>
#include <QDateTime>
#include <QObject>
#include <QString>
#include <QTimer>
#include <tuple>

class ISettings;
class TADOConnection;

/// Who holds a code.
struct TCodeHolder
{
    int UserCode = 0;  ///< 0 where nobody is signed in
    QString UserName;  ///< as messages call him
    QString Machine;   ///< the name of his computer
    QDateTime TakenAt; ///< UTC, by the database server's clock
};

/// The codes that a run of the program holds, in the table dbo.CodeLocks: one row for each code of a part,
/// written by the one statement that can write it first. A hold ends when it is released, when the run ends,
/// or, where the program has died, when it has not been renewed for its lifetime; the database server's clock
/// says when that is. Another run is another holder, even of the same user on the same machine.
///
/// Codes are compared without zeros in front. An empty code and 0 are no codes: they can be taken by
/// everybody and are held by nobody.
///
/// Errors of the database are thrown as EADOError by everything but the renewal and the destructor.
class HOST_EXPORT TCodeLocks : public QObject
{
    Q_OBJECT

public:
    static constexpr int DefaultLifetime = 120;   ///< seconds
    static constexpr int LongestLifetime = 86400; ///< seconds

    /// Both must outlive this. The connection need not be open yet.
    TCodeLocks(TADOConnection& connection, const ISettings& settings);
    /// Releases everything.
    ~TCodeLocks() override;

    /// Who else holds the code, if anybody; remembered for TakeLastRefusal.
    std::optional<TCodeHolder> OtherHolder(const QString& code, TSoftwarePart part);
    /// Takes the code, or takes it once more where this run has it: it is free after as many releases. False
    /// where another run holds it, which is remembered for TakeLastRefusal. Renewed by itself from then on.
    bool Take(const QString& code, TSoftwarePart part);
    /// Renews the hold; false where it has been lost.
    bool Renew(const QString& code, TSoftwarePart part);
    /// False where this run does not hold the code.
    bool Release(const QString& code, TSoftwarePart part);
    void ReleaseAll(); ///< what this run holds

    /// Seconds from the last renewal of a hold to its end, for what is taken and renewed from now on. 0 and
    /// below mean DefaultLifetime, more than LongestLifetime means that.
    void SetLifetime(int seconds);
    /// The holder that the last OtherHolder or Take met, if they met one; once.
    std::optional<TCodeHolder> TakeLastRefusal();

private:
    struct TKey
    {
        int Part = 0;
        QString Code;
        bool IsCode() const { return !Code.isEmpty(); }
        bool operator<(const TKey& other) const
        {
            return std::tie(Part, Code) < std::tie(other.Part, other.Code);
        }
    };

    static TKey KeyOf(const QString& code, TSoftwarePart part);
    std::optional<TCodeHolder> FindOther(const TKey& key);
    bool TakeRow(const TKey& key);
    void InsertRow(const TKey& key);
    void DeleteDeadRow(const TKey& key);
    bool RenewRow(const TKey& key);
    void RenewHolds();
    void ScheduleRenewal();

    TADOConnection* connection_;
    const ISettings* settings_;
    QString ownerId_; ///< of this run, known to nobody else
    QString machine_;
    int lifetime_ = DefaultLifetime;
    std::map<TKey, int> holds_; ///< how many times each is held
    std::optional<TCodeHolder> lastRefusal_;
    QTimer renewal_;
};
