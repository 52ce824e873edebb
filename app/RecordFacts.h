#pragma once

#include "SmartDBGrid_TRV.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <QVector>

class TADOConnection;

/// Something that the detail area tells of a record.
struct TRecordFact
{
    enum TPlace { Fixed, LargeTop, SmallTop, LargeBottom, SmallBottom };
    TPlace Place;
    QString Caption;
    QString Name;        ///< of a field of the list, or of a value of RecordFacts::Read
    bool InList = false; ///< a field of the list
    TGridColumn::TKind Kind = TGridColumn::ckText;
    bool IsPurchasePrice = false; ///< not for every user's eyes
};

/// What is told of a record beside its row in the list, and where it comes from.
namespace RecordFacts {

/// In the order of the menus, the first of each place first.
QVector<TRecordFact> Of(const QString& listKey);

/// Reads the values of one record; a name without a value is missing. Any thread, with its connection.
QHash<QString, QVariant> Read(TADOConnection& connection, const QString& listKey, int code);
/// Whether a user may not see what goods were bought for: the setting HidePurchasePrices of his is 1.
bool HidesPurchasePrices(TADOConnection& connection, int user);

} // namespace RecordFacts
