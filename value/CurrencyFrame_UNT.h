#pragma once

#include "Frame.h"

class TSmartComboBox_TRV;
class TSmartEdit_TRV;
class TSmartLabel_TRV;

/// Part of the unit's interface for hosts; the frame neither reads nor writes it.
BASEFRAME_EXPORT extern bool blnFirst;

/// The currency of a document and the rate that is in force on the document's date. The base currency has the
/// code 1 and the rate 1, which cannot be changed; a foreign one shows its rate of RateDate, over which the
/// user may type another.
///
/// The owner sets RateDate and reads CodeValue and PriceValue, and asks InValid before he saves. The list of
/// currencies is read once, when the frame is loaded; asking for a value or setting one earlier loads it.
class BASEFRAME_EXPORT TCurrency_FRAME : public TFrame
{
    Q_OBJECT
    Q_PROPERTY(bool BaseCurrSelected READ BaseCurrSelected WRITE SetBaseCurrSelected)

public:
    explicit TCurrency_FRAME(QWidget* owner = nullptr);
    ~TCurrency_FRAME() override;

    void Loaded() override;
    void init() {} ///< does nothing; owners call it as they do with every frame

    /// The code of the selected currency; the base currency's where none is selected.
    int GetCodeValue() const;
    /// Selects a currency and shows its rate; 0 and less the first of the list, an unknown code none.
    void SetCodeValue(int code);
    /// The rate; 1 where no currency is selected, 0 where the currency has no rate.
    long double GetPriceValue() const;
    /// Shows a rate, as that of a stored document. Zero becomes 1 while the rate edit is disabled, as it is
    /// for the base currency; a foreign currency keeps the zero, which is no rate and is refused by InValid.
    void SetPriceValue(long double rate);
    long double GetAmountValue() const { return 0; } ///< always 0
    void SetAmountValue(long double /*amount*/) {}   ///< has no effect
    /// As it was last written, or found when a currency was selected.
    bool BaseCurrSelected() const { return FBaseCurrSelected; }
    /// Selects the base currency; false is only stored.
    void SetBaseCurrSelected(bool selected);
    /// The base currency's country, read afresh.
    QString GetBaseTitleCountry();
    void SetBaseTitleCountry(const QString& country) { FBaseTitleCountry = country; }
    /// The text of the selected entry: title and country.
    QString TitleCountry() const;
    /// The day, year/month/day, whose rates are shown; today's where it is empty. A rate that the user has
    /// typed stays until a currency is selected.
    void SetRateDate(const QString& date);
    int GetBaseCurrCode() const; ///< the code of the base currency
    /// The rate of the selected currency in force on a day, today where it is empty, as decimal text; "0"
    /// where there is none. Leaves the host's shared query open on the rate's row.
    QString GetCurrRate(const QString& date) const;
    /// Whether the values may not be saved; the user has been told why then. A hidden frame is always valid.
    bool InValid();

    /// Handlers that no control is bound to, for forms that bind them.
    void Currency9999Amount_EDTChange(QObject* /*Sender*/) {}
    void SmartEdit_TRV1Change(QObject* /*Sender*/) {}
    void SmartComboBox_TRV1Change(QObject* Sender);

    TSmartLabel_TRV* SmartLabel_TRV2 = nullptr;
    TSmartComboBox_TRV* CurrencyType_CMB = nullptr;
    TSmartLabel_TRV* SmartLabel_TRV3 = nullptr;
    TSmartLabel_TRV* CurBAse_Lbl = nullptr;
    TSmartEdit_TRV* CurrencyRate_EDT = nullptr;

protected:
    int CrDefaultIndex = 0; ///< for derived frames; not used here

private:
    void BindHandlers();
    void CurrencyTypes_Fill();
    void CurrencyType_CMBSelect();
    bool IsBaseSelected() const;
    bool Refuse(const QString& subject, QWidget* control);

    bool FBaseCurrSelected = false;
    QString FRateDate;
    bool RateEditchange = false; ///< the user has typed a rate since the last selection
    QString FBaseTitleCountry;
};
