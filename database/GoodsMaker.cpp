#include "GoodsMaker.h"

#include "PersianSpelling.h"
#include "SampleCategories.h"
#include "SampleRandom.h"
#include "Vocabulary.h"

namespace {

constexpr quint64 NameStream = 20;
constexpr quint64 PriceStream = 21;
constexpr quint64 RestStream = 22;
constexpr qint64 PriceStep = 1000;
/// Has no divisor in common with any count of names of one kind, so that it spreads them without repeating
/// one.
constexpr qint64 Spread = 7919;
/// Where the names of one kind begin, so that neighbours in the list do not all carry the same trade name.
constexpr qint64 KindSpread = 131;

int GroupCodeOf(const QString& name)
{
    for (const QStringList& row :
         Vocabulary::Rows(QStringLiteral("fixed.txt"), QStringLiteral("dbo.KalaGroups"))) {
        if (row.at(1) == name)
            return row.at(0).toInt();
    }
    qFatal("No goods group is called %s", qPrintable(name));
}

void Append(QString& name, const QString& piece)
{
    if (piece != u"-")
        name += u' ' + piece;
}

QString Barcode(int code)
{
    const QString digits = QStringLiteral("626%1").arg(code, 9, 10, QLatin1Char('0'));
    int sum = 0;
    for (int index = 0; index < digits.size(); ++index)
        sum += digits.at(index).digitValue() * (index % 2 == 0 ? 1 : 3);
    return digits + QString::number((10 - sum % 10) % 10);
}

/// Thousandths as decimal text without zeros at the end.
QString DecimalText(qint64 thousandths)
{
    QString text = QString::number(thousandths / 1000);
    if (thousandths % 1000 == 0)
        return text;
    text += QStringLiteral(".%1").arg(thousandths % 1000, 3, 10, QLatin1Char('0'));
    while (text.endsWith(u'0'))
        text.chop(1);
    return text;
}

} // namespace

QString SampleTags(TSampleRandom& random, int firstTag, int tagCount)
{
    if (!random.Chance(18))
        return {};
    QString result = QStringLiteral(",");
    const int wanted = 1 + random.Below(3);
    for (int index = 0; index < wanted; ++index) {
        const QString piece = QString::number(firstTag + random.Below(tagCount)) + u',';
        if (!result.contains(u',' + piece))
            result += piece;
    }
    return result;
}

TGoodsMaker::TGoodsMaker(const TSampleCategories& categories)
    : brands_(Vocabulary::Lines(QStringLiteral("brands.txt")))
{
    for (const QStringList& row : Vocabulary::Rows(QStringLiteral("goods.txt"))) {
        const int category = categories.IdOf(row.at(2));
        kinds_.append({row.at(0), row.at(1), GroupCodeOf(categories.SecondLevelName(category)), category,
                       row.at(3).toLongLong(), row.at(4).toLongLong(), row.at(5).split(u';'),
                       row.at(6).split(u';'), row.at(1) == u"کیلوگرم" || row.at(1) == u"متر"});
    }
}

TGoods TGoodsMaker::Make(int code) const
{
    const TKind& kind = KindOf(code);
    TSampleRandom random(RestStream, static_cast<quint64>(code));
    TGoods goods;
    goods.Name = Name(code);
    goods.Barcode = Barcode(code);
    goods.UnitName = kind.UnitName;
    goods.GroupCode = kind.GroupCode;
    goods.Price = Price(code);
    goods.Stock = DecimalText(kind.SoldByMeasure ? random.Between(0, 900000) : random.Between(0, 900) * 1000);
    goods.Tags = SampleTags(random, 1, 4);
    goods.Active = !random.Chance(3);
    return goods;
}

qint64 TGoodsMaker::Price(int code) const
{
    const TKind& kind = KindOf(code);
    TSampleRandom random(PriceStream, static_cast<quint64>(code));
    return random.Between(kind.LowestPrice / PriceStep, kind.HighestPrice / PriceStep) * PriceStep;
}

const TGoodsMaker::TKind& TGoodsMaker::KindOf(int code) const
{
    return kinds_.at((code - 1) % kinds_.size());
}

QString TGoodsMaker::Name(int code) const
{
    const TKind& kind = KindOf(code);
    const qint64 number = (code - 1) / kinds_.size();
    const qint64 nameCount = kind.Variants.size() * brands_.size() * kind.Sizes.size();
    qint64 choice = (number * Spread + (code - 1) % kinds_.size() * KindSpread) % nameCount;
    QString name = kind.Noun;
    Append(name, kind.Variants.at(choice % kind.Variants.size()));
    choice /= kind.Variants.size();
    Append(name, brands_.at(choice % brands_.size()));
    Append(name, kind.Sizes.at(choice / brands_.size()));
    if (const qint64 model = number / nameCount; model > 0)
        Append(name, QStringLiteral("مدل %1").arg(100 + model));
    TSampleRandom random(NameStream, static_cast<quint64>(code));
    return PersianSpelling::AsTyped(name, random);
}
