#pragma once

#include "CategoryStore.h"
#include "PagedDataSet.h"
#include "SmartDBGrid_TRV.h"
#include "TarvaSearch.h"

#include <functional>
#include <optional>
#include <QString>
#include <QVector>

/// A field of a record's card.
struct TCardField
{
    QString FieldName;
    QString Title;
    TGridColumn::TKind Kind = TGridColumn::ckText;
    /// Puts a value into words; without it the value reads as its kind does.
    std::function<QString(const QVariant& value)> Words = {};
};

/// Where the tags and the category of a list's records are written. All names are the database's.
struct TLabelTables
{
    QString Table;         ///< of the records; has a column `tags`
    QString CategoryTable; ///< a row for each record that has a category, with its `category_code`
    QString CategoryKey;   ///< the record's key in it
    TCategoryStore::TListKind Kind = TCategoryStore::TListKind::Goods;
};

/// Everything that makes a list a list of goods and not of persons. All names are columns of the database.
struct TListDescription
{
    QString Key;        ///< under which the list's state is kept in the settings
    QString Title;      ///< of the list, in the plural
    QString RecordName; ///< of one record
    QString TitleField; ///< column that heads a record's card
    TPagedSource Source;
    QVector<TSearchItem> SearchItems;
    QVector<TGridColumn> Columns;
    QVector<TCardField> CardFields;
    QString OrderField;                 ///< in force until the user orders otherwise
    std::optional<TLabelTables> Labels; ///< without them its records carry neither tags nor categories
    int PictureGroup = 0;               ///< of its records' pictures; 0 where they have none
};

TListDescription GoodsList();
TListDescription PersonsList();
/// The detail accounts of a kind.
TListDescription DetailAccountsList(int kind);
