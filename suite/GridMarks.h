#pragma once

#include "PagedDataSet.h"
#include "SmartDBGrid_TRV.h"

#include <QMap>
#include <QSet>

/// The rows of a paged data set that the user has marked, known by their keys, so that they stay marked when
/// the list is ordered or read again.
class TGridMarks : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~TGridMarks() override;

    void SetDataSet(TPagedDataSet* dataSet);
    void SetReader(TReadKeysEvent reader) { reader_ = std::move(reader); }
    void SetLimit(int limit) { limit_ = limit; }
    int Limit() const { return limit_; }

    bool IsEmpty() const { return keys_.isEmpty(); }
    bool IsMarked(int row) const;
    QStringList Keys() const { return {keys_.cbegin(), keys_.cend()}; }
    void SetKeys(const QStringList& keys);
    void Clear() { SetKeys({}); }

    /// The row from which the next range starts.
    void SetAnchor(int row);
    bool HasAnchor() const { return anchor_ >= 0; }
    void Toggle(int row);
    /// Marks from the anchor to the row, instead of the range before from the same anchor.
    void ExtendTo(int row);
    void MarkAll();
    /// The rows stand elsewhere now; what is marked stays so.
    void ForgetRows();

Q_SIGNALS:
    void changed();
    void limited(); ///< more was to be marked than may be

private:
    QString KeyOf(int row) const; ///< empty where the row is not here
    QStringList KeysOf(int first, int last) const;
    void MarkRows(int first, int last);
    void LeaveRows(int first, int last);

    QPointer<TPagedDataSet> dataSet_;
    int keyField_ = -1;
    TReadKeysEvent reader_;
    int limit_ = 100000;
    QSet<QString> keys_;
    int anchor_ = -1;
    /// The rows of the range that starts at the anchor, with the keys that it has marked; a row that was
    /// marked before has none here and stays marked when the range leaves it.
    QMap<int, QString> range_;
};
