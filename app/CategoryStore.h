#pragma once

#include "CategoryTree.h"

#include <functional>
#include <QString>
#include <QVariantList>
#include <QVector>
#include <stdexcept>

class TADOConnection;
class TADOQuery;

/// What hangs on a category.
struct TCategoryUse
{
    int Children = 0;
    int Goods = 0;
    int Persons = 0;
    int Defaults = 0; ///< users whose default it is
};

/// The categories that a user's lists begin with; 0 for none.
struct TDefaultCategories
{
    int Goods = 0;
    int Persons = 0;
};

/// A change of the categories is not made because a rule forbids it. Nothing is written then.
class ECategoryRefused : public std::runtime_error
{
public:
    explicit ECategoryRefused(const QString& message)
        : std::runtime_error(message.toStdString()), message_(message)
    {
    }
    ~ECategoryRefused() override;
    QString Message() const { return message_; }

private:
    QString message_;
};

/// The categories in the database. Every change is one transaction; changes of the tree's shape wait for each
/// other, so that two users together cannot make a circle of it. All of them throw ECategoryRefused where a
/// rule forbids the change and EADOError where the database fails.
class TCategoryStore
{
public:
    static constexpr int LongestName = 100;
    static constexpr int LongestPath = 400;

    enum class TListKind { Goods, Persons };

    /// `connection` must outlive the store.
    explicit TCategoryStore(TADOConnection& connection) : connection_(&connection) {}

    /// Names stand in comma-separated texts: an ASCII comma becomes the Persian one, character by character.
    static QString WithoutCommas(const QString& name);
    /// A name as it is kept: without commas, line breaks and blanks around it. Refuses an empty or too long
    /// one.
    static QString CheckedName(const QString& name);

    /// All of them, ordered by name and then by id.
    QVector<TCategoryRow> All() const;
    TCategoryUse UseOf(int id) const;

    /// Returns the new one's id; `parentId` 0 makes it one of the top level.
    int Add(int parentId, const QString& name);
    /// `loaded` is the name that the user has changed; another user's change in the meantime is a refusal.
    void Rename(int id, const QString& name, const QString& loaded);
    /// Takes all that is under it along, and sets the path of each.
    void Move(int id, int parentId);
    /// Refused while something hangs on it.
    void Delete(int id);

    TDefaultCategories DefaultsOf(int user) const;
    /// Makes the category the user's only default of the kind; 0 takes the default away.
    void SetDefault(int user, TListKind kind, int id);

private:
    void InTransaction(const std::function<void()>& work);
    void HoldTree();
    QString PathOf(int id) const;
    void CheckNotUnder(int id, int parentId) const;
    void CheckDepth(const QString& oldPath, const QString& newPath) const;
    void SetPathsUnder(const QString& path);
    int Number(const QString& statement, const QVariantList& parameters) const;

    TADOConnection* connection_;
};
