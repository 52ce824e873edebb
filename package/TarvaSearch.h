#pragma once

#include "NotifyEvent.h"
#include "PackageExport.h"

#include <functional>
#include <memory>
#include <QObject>
#include <QPointer>
#include <QVariant>
#include <QWidget>
#include <vector>

/// The shape of a condition.
enum class TSearchType { stGeneral, stRangeDigit, stRangeCost, stRangeDate, stRangeString };

/// The kind of value of a search item. Frames test the first four by their ordinals.
enum class TSearchDataType {
    idtString = 0,
    idtMoney = 1,
    idtDigit = 2,
    idtDateTime = 3, ///< a date with a time of day
    idtCodeList = 4, ///< a column of codes between commas (",5,12,"), as tags and categories are kept
};

/// How the condition is applied; frames show their reverse controls for ordinal 1 and hide them for 0.
enum class TSearchFilterType {
    iftDataset = 0, ///< narrows the rows of the data set
    iftQuery = 1,   ///< goes into the data set's statement
};

/// How the result is produced.
enum class TSearchItemResult {
    irSQL,  ///< the manager builds the condition
    irProc, ///< a procedure of the owner does the filtering
};

class TTarvaSearch;

/// A field that a criterion can apply to.
struct BASEFRAME_EXPORT TSearchItem
{
    QString Title;      ///< caption for the user
    QString FiledName;  ///< column or `alias.column`; the host's own words, brackets optional
    QString FoldedName; ///< column that keeps FiledName already folded (PersianText::Fold), empty where there
                        ///< is none
    TSearchDataType DataType = TSearchDataType::idtString;
    TSearchFilterType FilterType = TSearchFilterType::iftDataset; ///< where the condition goes
    TSearchItemResult ItemResult = TSearchItemResult::irSQL;      ///< what becomes of the condition
    int MaxLength = 0;                                            ///< longest value; 0 means no limit
    QVariant ItemValue; ///< fixed value that comes with the item (an entity kind, a tab's state)
    /// Says the condition in the owner's words, where codes have names that the manager does not know. An
    /// empty answer leaves it to the manager's own words, as does a value that does not fit the item.
    std::function<QString(const TTarvaSearch& criterion)> Words = {};
};

/// The fields of a criterion, in order.
class BASEFRAME_EXPORT TSearchCollection
{
public:
    TSearchItem& Add(const TSearchItem& item = {}); ///< at the end; stays valid until Clear()
    void Clear();                                   ///< takes all items out
    int Count() const;
    /// Throws std::out_of_range for an index outside the collection.
    TSearchItem& GetItem(int index);
    const TSearchItem& GetItem(int index) const;

private:
    std::vector<std::unique_ptr<TSearchItem>> items_;
};

/// One filter condition of a form: its fields, its values, whether it is switched on and whether it is
/// negated. A plain object without a window; frames keep it in step with their controls. Setters raise
/// OnChange (Value1, Value2) and OnChangeItemIndex synchronously, and only when the value is another one than
/// before, so that a handler may write the same value back without an end. The Qt signals come at the same
/// moments, whatever handlers are set, and before them.
class BASEFRAME_EXPORT TTarvaSearch : public QObject
{
    Q_OBJECT

public:
    explicit TTarvaSearch(QObject* parent = nullptr);
    ~TTarvaSearch() override;

    /// Whether the criterion filters. False at first.
    bool Active() const { return active_; }
    void SetActive(bool active);
    /// Whether the condition is negated. False at first.
    bool Reverst() const { return reverst_; }
    void SetReverst(bool reverst);
    /// How the values are compared: one value, a range of a kind, a tab. stGeneral at first.
    TSearchType SearchTypes() const { return searchTypes_; }
    void SetSearchTypes(TSearchType type);
    TSearchCollection SearchItems; ///< filled by the owner; changes raise nothing
    /// -1 for none. An index outside the items is kept and means none until there is such an item.
    int ItemIndex() const { return itemIndex_; }
    void SetItemIndex(int index);
    /// The item in force; null where ItemIndex names none.
    const TSearchItem* CurrentItem() const;
    QVariant Value1() const { return value1_; } ///< the value, or the lower bound of a range
    QVariant Value2() const { return value2_; } ///< the upper bound of a range
    /// Null (invalid) and empty text mean no value.
    void SetValue1(const QVariant& value);
    void SetValue2(const QVariant& value);
    /// The bound as an integer; 0 where it is no number or outside int.
    int GetValue1AsInt() const;
    int GetValue2AsInt() const;
    /// A value of zero does not filter. True by default.
    bool ZeroValueIgnore() const { return zeroValueIgnore_; }
    void SetZeroValueIgnore(bool ignore);
    /// The control that edits the criterion's value.
    QWidget* FocusControl() const { return focusControl_; }
    void SetFocusControl(QWidget* control);
    /// The control of the host form that takes the focus when the user leaves the value by Enter or an arrow
    /// key.
    QWidget* FollowControl() const { return followControl_; }
    void SetFollowControl(QWidget* control);

    TNotifyEvent OnChange;          ///< Value1 or Value2 is another one
    TNotifyEvent OnChangeItemIndex; ///< ItemIndex is another one

Q_SIGNALS:
    void activeChanged(bool active);   ///< no handler goes with it
    void reverstChanged(bool reverst); ///< no handler goes with it
    void changed();                    ///< at the moments of OnChange
    void itemIndexChanged(int index);  ///< at the moments of OnChangeItemIndex

private:
    void RaiseChange();

    bool active_ = false;
    bool reverst_ = false;
    bool zeroValueIgnore_ = true;
    TSearchType searchTypes_ = TSearchType::stGeneral;
    int itemIndex_ = -1;
    QVariant value1_;
    QVariant value2_;
    QPointer<QWidget> focusControl_;
    QPointer<QWidget> followControl_;
};
