#pragma once

#include <functional>
#include <optional>
#include <QString>
#include <QVariantList>
#include <QVector>
#include <stdexcept>

class TADOConnection;
class TADOQuery;

/// A code and what it is called.
struct TNamedCode
{
    int Code = 0;
    QString Name;
};

/// A detail account without its unique code, which a frame looks after.
struct TDetailAccount
{
    int Kind = 0;
    int Code = 0;
    QString Name;
    int Currency = 0; ///< 0 where the account has none of its own
    bool Active = true;
    friend bool operator==(const TDetailAccount&, const TDetailAccount&) = default;
};

enum class TDetailField { Account, Code, Name, UniqueCode };

/// A detail account is not saved because a rule forbids it.
class EDetailRefused : public std::runtime_error
{
public:
    EDetailRefused(TDetailField field, const QString& message)
        : std::runtime_error(message.toStdString()), field_(field), message_(message)
    {
    }
    ~EDetailRefused() override;
    TDetailField Field() const { return field_; }
    QString Message() const { return message_; }

private:
    TDetailField field_;
    QString message_;
};

/// Detail accounts in the database.
class TDetailAccountStore
{
public:
    static constexpr int LongestName = 200;
    static constexpr int LargestCode = 999999;

    /// `connection` must outlive the store.
    explicit TDetailAccountStore(TADOConnection& connection) : connection_(&connection) {}

    /// The kinds that detail accounts can be of.
    QVector<TNamedCode> Kinds() const;
    QVector<TNamedCode> Currencies() const;
    /// The code behind the highest one of a kind, or else the smallest free one; 0 where there is none.
    int NextCode(int kind) const;
    std::optional<TDetailAccount> Find(int kind, int code) const;

    /// Saves a new account together with what `saveNumber` writes, in one transaction. Throws EDetailRefused
    /// where a rule forbids it, EADOError where the database fails; nothing is written then.
    void Insert(const TDetailAccount& account, const std::function<void()>& saveNumber);
    /// The same for an account that is there; `loaded` is what the user has changed. Another user's change
    /// in the meantime is a refusal.
    void Update(const TDetailAccount& account, const TDetailAccount& loaded,
                const std::function<void()>& saveNumber);

private:
    void Save(const TDetailAccount& account, bool isNew, const std::function<void()>& write);
    QVector<TNamedCode> NamedCodes(const QString& statement) const;

    TADOConnection* connection_;
};
