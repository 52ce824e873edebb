#pragma once

#include "ADOConnection.h"
#include "DataSet.h"

#include <memory>

/// Where the rows of a large list come from. All texts are the host's own words.
struct TPagedSource
{
    QStringList Fields; ///< column names to read, the key among them
    QString From;       ///< table or view, e.g. `dbo.kala`
    QString KeyField;   ///< unique, not null; breaks ties of the order
};

/// A large list that is never read whole: pages by key on a connection and a thread of its own, so that
/// nothing waits for it. A new condition or order abandons the query under way; an old answer never replaces
/// a newer one. RecordCount() is what is known so far until the background count has come (CountIsExact()).
/// Rows that have not arrived read as invalid variants and are announced by rowsArrived(). Until the first
/// page of a new condition or order is here the list is the one before it; then the current row is the first
/// one. Memory is bounded: some pages around those used last, and a place for every page.
class ADO_EXPORT TPagedDataSet : public TDataSet
{
    Q_OBJECT

public:
    explicit TPagedDataSet(QObject* parent = nullptr);
    ~TPagedDataSet() override;

    void SetConnection(TADOConnection* connection); ///< cloned for the work in the background at Open()
    void SetSource(const TPagedSource& source); ///< closes an open list; the order becomes that of the key
    TPagedSource Source() const;
    void SetPageSize(int rows); ///< 100 by default; takes effect at Open()

    /// WHERE text without the word; empty for all rows. Starts the new query and returns at once.
    void SetCondition(const QString& condition);
    QString Condition() const;
    /// Orders by one of the source's fields; an empty name orders by the key. Throws EADOError(WrongState)
    /// for another.
    void SetOrder(const QString& field, Qt::SortOrder order);
    QString OrderField() const; ///< never empty once there is a source
    Qt::SortOrder Order() const;
    /// Reads again, keeping condition and order. The current row stays on its key where that still exists,
    /// else on the row that has taken its place. Also opens a lost connection again.
    void Refresh();

    /// Whether the owner finds out the number of rows by a statement of its own and gives it, so that the
    /// same rows are not walked twice. Off by default; when it is turned off the list counts.
    void SetCountIsGiven(bool given);
    /// The number of rows that answer a condition; nothing happens when it is no longer the one that was
    /// asked for.
    void GiveCount(const QString& condition, int count);
    bool CountIsExact() const; ///< false while rows are still being counted
    bool Busy() const;         ///< a page or the count is under way
    /// Waits until the first page of the newest condition is here; false when it has not come after
    /// `milliseconds` and when its statement failed. Handles no events meanwhile.
    bool WaitForFirstPage(int milliseconds = 30000);
    /// Waits in the same way until the current row is here, so that its values can be read.
    bool WaitForCurrentRow(int milliseconds = 30000);
    /// The key of the current row; invalid when there is none or it has not arrived.
    QVariant CurrentKey() const;

    bool Active() const override;
    void Open() override; ///< throws EADOError when the source cannot be read; the rows come later
    /// Opens the list standing on the row that has the key; on the first row where it holds none.
    void OpenAt(const QVariant& key);
    void Close() override;
    bool IsEmpty() override; ///< waits for the first page of the newest condition
    int RecordCount() override;
    int FieldCount() const override;
    TField* Field(int index) override;
    TField* FindField(const QString& name) override;
    bool Bof() const override;
    bool Eof() const override;
    void First() override;
    void Prior() override;
    void Next() override; ///< waits at the end of the known rows until it is clear whether there is another
    void Last() override; ///< goes to the last known row, and on to the very last one when the count comes
    int RecNo() const override;
    void SetRecNo(int recNo) override;
    QVariant FieldValue(int index) const override;
    QVariant ValueAt(int row, int index) const override; ///< asks for the row's page when it is not here

Q_SIGNALS:
    void rowsArrived(int first, int last); ///< numbers of rows, counted from 0, whose values can be read now
    void countChanged(int count, bool exact); ///< of the rows known so far; `exact` when it is all of them
    void busyChanged(bool busy);              ///< with Busy()
    /// A statement failed; the list keeps what it has. The handler of the application shows it.
    void failed(const QString& message, const QString& serverMessage);

private:
    struct TPrivate;

    void ShowReplaced(int row);
    void ShowArrived(int first, int last);
    void ShowCount();
    void AnnounceCount();
    void MoveTo(int row);

    std::unique_ptr<TPrivate> d;
};
