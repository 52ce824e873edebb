#pragma once

#include "ADOConnection.h"
#include "DataSet.h"

#include <memory>

/// Where the rows of a large list come from. All texts are the host's own words.
struct TPagedSource {
    QStringList Fields;  ///< column names to read, the key among them
    QString From;        ///< table or view, e.g. `dbo.kala`
    QString KeyField;    ///< unique, not null; breaks ties of the order
};

/// A large list that is never read whole: pages by key on a connection and a thread of its own, so that nothing
/// waits for it. A new condition or order abandons the query under way; an old answer never replaces a newer one.
/// RecordCount() is what is known so far until the background count has come (CountIsExact()). Rows that have not
/// arrived read as invalid variants and are announced by rowsArrived().
class ADO_EXPORT TPagedDataSet : public TDataSet {
    Q_OBJECT

public:
    explicit TPagedDataSet(QObject* parent = nullptr);
    ~TPagedDataSet() override;

    void SetConnection(TADOConnection* connection);  ///< cloned for the worker at Open()
    void SetSource(const TPagedSource& source);
    TPagedSource Source() const;
    void SetPageSize(int rows);  ///< 100 by default

    /// WHERE text without the word; empty for all rows. Starts the new query and returns at once.
    void SetCondition(const QString& condition);
    QString Condition() const;
    void SetOrder(const QString& field, Qt::SortOrder order);
    QString OrderField() const;
    Qt::SortOrder Order() const;
    void Refresh();  ///< reads again, keeping condition, order and, where it still exists, the current key

    bool CountIsExact() const;
    bool Busy() const;  ///< a page or the count is under way
    /// Waits until the first page of the newest condition is here; false after `milliseconds`.
    bool WaitForFirstPage(int milliseconds = 30000);
    /// The key of the current row; invalid when there is none.
    QVariant CurrentKey() const;

    bool Active() const override;
    void Open() override;
    void Close() override;
    bool IsEmpty() override;  ///< waits for the first page of the newest condition
    int RecordCount() override;
    int FieldCount() const override;
    TField* Field(int index) override;
    TField* FindField(const QString& name) override;
    bool Bof() const override;
    bool Eof() const override;
    void First() override;
    void Prior() override;
    void Next() override;
    void Last() override;
    int RecNo() const override;
    void SetRecNo(int recNo) override;
    QVariant FieldValue(int index) const override;
    QVariant ValueAt(int row, int index) const override;  ///< asks for the row's page when it is not here

Q_SIGNALS:
    void rowsArrived(int first, int last);
    void countChanged(int count, bool exact);
    void busyChanged(bool busy);
    /// A statement failed; the list keeps what it has. The handler of the application shows it.
    void failed(const QString& message, const QString& serverMessage);

private:
    struct TPrivate;
    std::unique_ptr<TPrivate> d;
};
