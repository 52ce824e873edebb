#include "GridMarks.h"

#include <algorithm>

TGridMarks::~TGridMarks() = default;

void TGridMarks::SetDataSet(TPagedDataSet* dataSet)
{
    dataSet_ = dataSet;
    const TField* key = dataSet != nullptr ? dataSet->FindField(dataSet->Source().KeyField) : nullptr;
    keyField_ = key != nullptr ? key->Index() : -1;
    ForgetRows();
}

bool TGridMarks::IsMarked(int row) const
{
    return !keys_.isEmpty() && keys_.contains(KeyOf(row));
}

void TGridMarks::SetKeys(const QStringList& keys)
{
    ForgetRows();
    const QSet<QString> wanted(keys.cbegin(), keys.cend());
    if (wanted == keys_)
        return;
    keys_ = wanted;
    Q_EMIT changed();
}

void TGridMarks::SetAnchor(int row)
{
    anchor_ = row;
    range_.clear();
}

void TGridMarks::Toggle(int row)
{
    SetAnchor(row);
    const QString key = KeyOf(row);
    if (key.isEmpty())
        return;
    if (!keys_.remove(key)) {
        if (keys_.size() >= limit_) {
            Q_EMIT limited();
            return;
        }
        keys_.insert(key);
    }
    Q_EMIT changed();
}

void TGridMarks::ExtendTo(int row)
{
    if (anchor_ < 0)
        SetAnchor(row);
    const int first = std::min(anchor_, row);
    const int last = std::max(anchor_, row);
    LeaveRows(first, last);
    if (range_.isEmpty()) {
        MarkRows(first, last);
    } else {
        const int known = range_.firstKey();
        const int lastKnown = range_.lastKey();
        MarkRows(first, known - 1);
        MarkRows(lastKnown + 1, last);
    }
    Q_EMIT changed();
}

void TGridMarks::LeaveRows(int first, int last)
{
    range_.removeIf([&](const QMap<int, QString>::iterator& row) {
        const bool leaves = row.key() < first || row.key() > last;
        if (leaves)
            keys_.remove(row.value());
        return leaves;
    });
}

void TGridMarks::MarkRows(int first, int last)
{
    if (first > last)
        return;
    const QStringList keys = KeysOf(first, last);
    for (qsizetype i = 0; i < keys.size(); ++i) {
        const bool isNew = !keys_.contains(keys.at(i));
        if (isNew && keys_.size() >= limit_) {
            Q_EMIT limited();
            return;
        }
        range_.insert(first + static_cast<int>(i), isNew ? keys.at(i) : QString());
        keys_.insert(keys.at(i));
    }
}

void TGridMarks::MarkAll()
{
    SetAnchor(-1);
    if (dataSet_ == nullptr)
        return;
    const QStringList keys = reader_ ? reader_(0, limit_ + 1) : KeysOf(0, dataSet_->RecordCount() - 1);
    const QSet<QString> before = keys_;
    for (const QString& key : keys) {
        if (keys_.size() >= limit_ && !keys_.contains(key)) {
            Q_EMIT limited();
            break;
        }
        keys_.insert(key);
    }
    if (keys_ != before)
        Q_EMIT changed();
}

void TGridMarks::ForgetRows()
{
    anchor_ = -1;
    range_.clear();
}

QString TGridMarks::KeyOf(int row) const
{
    if (dataSet_ == nullptr || keyField_ < 0 || row < 0)
        return {};
    const QVariant key = dataSet_->ValueAt(row, keyField_);
    return key.isNull() ? QString() : key.toString();
}

QStringList TGridMarks::KeysOf(int first, int last) const
{
    QStringList keys;
    for (int row = first; row <= last; ++row) {
        const QString key = KeyOf(row);
        // What is far away has not been read, or is forgotten already.
        if (key.isEmpty())
            return reader_ ? reader_(first, last - first + 1) : keys;
        keys.append(key);
    }
    return keys;
}
