#include "CurrencyRates.h"

#include "ADOQuery.h"
#include "DecimalText.h"
#include "SplicedText.h"

namespace {

QString BaseStatement()
{
    return QStringLiteral("Select * from  AccCurrency where CurCode = %1").arg(TCurrencyRates::BaseCode);
}

QString RateText(const TField& field)
{
    constexpr int decimals = 9;
    const QVariant value = field.Value();
    const bool isFloating = value.typeId() == QMetaType::Double;
    return DecimalText::WithoutTrailingZeros(isFloating ? QString::number(value.toDouble(), 'f', decimals)
                                                        : field.AsString());
}

} // namespace

QString TCurrencyRates::BaseCountry() const
{
    Open(BaseStatement());
    QString country = TextOf(QStringLiteral("CurCountry"));
    query_->Close();
    return country;
}

QString TCurrencyRates::BaseTitle() const
{
    Open(BaseStatement());
    return TextOf(QStringLiteral("CurTitle"));
}

QVector<TCurrencyRates::TCurrency> TCurrencyRates::Currencies() const
{
    Open(QStringLiteral(
        " Select *, a.CurTitle + '-' + a.CurCountry as CurTitleCountry    from     AccCurrency  a  "));
    QVector<TCurrency> currencies;
    for (query_->First(); !query_->Eof(); query_->Next())
        currencies.append({query_->FieldByName(QStringLiteral("CurCode"))->AsInteger(),
                           TextOf(QStringLiteral("CurTitleCountry"))});
    return currencies;
}

TCurrencyRates::TRate TCurrencyRates::RateOn(int currency, const QString& date) const
{
    Open(QStringLiteral("SELECT TOP 1 * FROM AccCrConvRate WHERE AccCurrencyID = ") +
         QString::number(currency) + QStringLiteral(" AND CrRateDate <= ") + SplicedText::Quoted(date) +
         QStringLiteral(" ORDER BY CrRateDate DESC, CrRateCode DESC"));
    if (query_->IsEmpty())
        return {};
    return {RateText(*query_->FieldByName(QStringLiteral("CrRateConvRate"))),
            TextOf(QStringLiteral("CrRateDate"))};
}

void TCurrencyRates::Open(const QString& statement) const
{
    query_->Close();
    query_->SQL.SetText(statement);
    query_->Parameters.clear();
    query_->Open();
}

QString TCurrencyRates::TextOf(const QString& field) const
{
    return query_->FieldByName(field)->AsString();
}
