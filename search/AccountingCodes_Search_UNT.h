#pragma once

#include "CodeItem.h"
#include "FilterLine.h"
#include "Frame.h"

#include <QVariant>

class TSelect_AccountCode;
class TSmartCheckBox_TRV;
class TSmartLabel_TRV;
class TTarvaSearch;

/// A filter by one account code: a check box that turns it on, an account code, and a "not" box. Each level
/// has a criterion of its own, which compares with the code of the level; 0 where none is chosen.
///
/// The owner sets CodeItems, calls init() and gathers the criteria with those of its other frames.
class BASEFRAME_EXPORT TAccountingCodes_Search_Frame : public TFrame
{
    Q_OBJECT
    /// The set as bits, for forms.
    Q_PROPERTY(int CodeItems READ CodeItemBits WRITE SetCodeItemBits)
    Q_PROPERTY(bool Active READ GetActive WRITE SetActive)
    Q_PROPERTY(QVariant SearchTotalValue READ GetSearchTotalValue WRITE SetSearchTotalValue DESIGNABLE false)
    Q_PROPERTY(QVariant SearchAssistantValue READ GetSearchAssistantValue WRITE SetSearchAssistantValue
                   DESIGNABLE false)
    Q_PROPERTY(
        QVariant SearchDetailValue READ GetSearchDetailValue WRITE SetSearchDetailValue DESIGNABLE false)
    Q_PROPERTY(QVariant SearchExpenseCenterValue READ GetSearchExpenseCenterValue WRITE
                   SetSearchExpenseCenterValue DESIGNABLE false)

public:
    explicit TAccountingCodes_Search_Frame(QWidget* owner = nullptr);
    ~TAccountingCodes_Search_Frame() override;

    /// Shows the levels in CodeItems, empty and switched off.
    void init();

    TCodeItems CodeItems() const { return FCodeItems; }
    void SetCodeItems(TCodeItems levels);
    int CodeItemBits() const { return FCodeItems.Bits(); }
    void SetCodeItemBits(int bits);
    /// Whether the filter is switched on.
    bool GetActive() const;
    void SetActive(bool active) const;

    // The value of a level's criterion, as a 64-bit integer; 0 for none.
    QVariant GetSearchTotalValue() const;
    QVariant GetSearchAssistantValue() const;
    QVariant GetSearchDetailValue() const;
    QVariant GetSearchExpenseCenterValue() const;
    // Writes the value into the level's box as a text, and does what leaving the box does.
    void SetSearchTotalValue(const QVariant& value);
    void SetSearchAssistantValue(const QVariant& value);
    void SetSearchDetailValue(const QVariant& value);
    void SetSearchExpenseCenterValue(const QVariant& value);

    TSmartCheckBox_TRV* AccCodes_CHK = nullptr;
    TSmartLabel_TRV* AccCodes_Cap_LBL = nullptr;
    TSelect_AccountCode* Select_AccountCode1 = nullptr;
    TSmartCheckBox_TRV* AccCodes_Reverst_CHK = nullptr;
    TSmartLabel_TRV* AccCodes_Reverst_LBL = nullptr;
    TTarvaSearch* TarvaSearch_Total = nullptr;
    TTarvaSearch* TarvaSearch_Assisstant = nullptr;
    TTarvaSearch* TarvaSearch_Detail = nullptr;
    TTarvaSearch* TarvaSearch_ExpenseCenter = nullptr;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void BindHandlers();

    void AccCodes_CHKClick();
    void AccCodes_Reverst_CHKClick();
    void TotalCode_EDTExit() const;
    void AssistantCode_EDTExit(QObject* sender);
    void DetailCode_EDTExit(QObject* sender);
    void ExpenseCenterCode_EDTExit(QObject* sender);
    void AccCodeSelect_PUMClick(QObject* sender);
    void ExpenseCenter_PUMClick(QObject* sender);

    TFilterLine line_;
    TCodeItems FCodeItems;
};
