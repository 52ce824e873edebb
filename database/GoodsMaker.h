#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class TSampleCategories;
class TSampleRandom;

/// One goods item.
struct TGoods
{
    QString Name;
    QString Barcode; ///< thirteen digits, the last one checks
    QString UnitName;
    int GroupCode = 0;
    qint64 Price = 0; ///< rials
    QString Stock;    ///< decimal text
    QString Tags;     ///< as in a tags column; null without tags
    bool Active = true;
};

/// Makes goods out of the vocabulary; the same code always makes the same item.
class TGoodsMaker
{
public:
    explicit TGoodsMaker(const TSampleCategories& categories);

    TGoods Make(int code) const;
    /// Parts of the item that others need alone.
    qint64 Price(int code) const;
    int CategoryOf(int code) const { return KindOf(code).CategoryId; }

private:
    struct TKind
    {
        QString Noun;
        QString UnitName;
        int GroupCode;
        int CategoryId;
        qint64 LowestPrice;
        qint64 HighestPrice;
        QStringList Variants;
        QStringList Sizes;
        bool SoldByMeasure; ///< stock has decimals
    };

    const TKind& KindOf(int code) const;
    QString Name(int code) const;

    QVector<TKind> kinds_;
    QStringList brands_;
};

/// The text of a tags column with up to three of `tagCount` tags, codes from `firstTag` on; null for most
/// records.
QString SampleTags(TSampleRandom& random, int firstTag, int tagCount);
