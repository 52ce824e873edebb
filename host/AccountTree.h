#pragma once

#include "AccountTypes.h"
#include "HostExport.h"

#include <optional>
#include <QString>
#include <QVector>

class TADOConnection;

/// Which part of the chart of accounts is read.
struct TAccountScope
{
    QString Groups = {}; ///< kinds of groups between commas; empty for all. Checked before it is spliced.
    std::optional<int> OnlyTotal = {}; ///< one total account alone
    bool Assistants = true;            ///< with the assistant accounts
};

/// An account of the upper levels.
struct TAccountNode
{
    enum TLevel { Group, Total, Assistant };
    TLevel Level = Group;
    int Code = 0;
    QString Name;
    int DetailType = 0; ///< of a total account, and for an assistant account that of its total
    int Parent = -1;    ///< place of the level above; -1 of a group
};

/// Groups, totals and assistants in the order of their codes, each behind its parent, and which of them meet
/// what the user has typed. The upper levels hold a few thousand accounts at most, by the length of their
/// codes; detail accounts are not among them.
class HOST_EXPORT TAccountTree
{
public:
    /// Two statements. Throws EADOError(WrongState) where the scope's groups are not numbers between commas.
    void Read(TADOConnection& connection, const TAccountScope& scope);

    void Clear();

    int Count() const { return static_cast<int>(nodes_.size()); }
    const TAccountNode& At(int place) const { return nodes_[place]; }
    /// The place of a total account, or of an assistant account under it; -1 where it was not read.
    int Find(int total, int assistant) const;
    bool Has(TAccountNode::TLevel level) const;
    bool HasChildren(int place) const { return place + 1 < Count() && At(place + 1).Parent == place; }
    /// The code as the boxes show it, or "101-002" for an assistant account.
    QString CodeText(int place) const;

    /// Keeps what matches with the levels above it and all that stands under it. Digits are sought at the
    /// beginning of codes ("10", "101-2", "101002") and inside names, other texts inside names as a Persian
    /// reader compares them. An empty text keeps everything.
    void Filter(const QString& typed);
    bool IsShown(int place) const { return shown_[place]; }
    bool Matches(int place) const { return matching_[place]; }
    bool AnyShown() const { return shown_.contains(true); }
    /// The account that the typed text means most likely: the one of exactly that code, else the first whose
    /// code begins with it, else the first whose name has it. Groups are last. -1 without a match.
    int BestMatch() const { return best_; }

private:
    void ReadTotals(TADOConnection& connection, const TAccountScope& scope);
    void AddAssistants(TADOConnection& connection, const TAccountScope& scope);
    void ShowAround(int place);

    QVector<TAccountNode> nodes_;
    QVector<bool> shown_;
    QVector<bool> matching_;
    int best_ = -1;
};
