#pragma once

#include "ReportFilterRow.h"

#include <QWidget>

class QJsonObject;
class QScrollArea;
class QVBoxLayout;
class TADVSearch_Fram;
class TAccountingCodes_Search_Frame;
class TDateRange_Display_FRAM;
class TRange_AccCodes_Search_Frame;
class TRange_Cost_Search_Frame;
class TRange_Date_Search_Frame;
class TRange_Digit_Search_Frame;
class TRange_SelectEntity_Search_Frame;
class TRange_String_Search_Frame;
class TSelectEntity_Search_Frame;
class TStoredDateCriterion;
class TTab_Search_Frame;
class TTarvaSearch;
class TTarvaSearchManager;

/// The filters of the report of voucher lines: the period and the switch of the advanced search above, below
/// it one line for each filter, and the tabs by the voucher's state. Nothing filters at first. Hidden lines
/// stay in force.
class TReportFilterPanel : public QWidget
{
    Q_OBJECT

public:
    explicit TReportFilterPanel(QWidget* parent = nullptr);
    ~TReportFilterPanel() override;

    /// All criteria of the panel; the manager forgets them when the panel is destroyed.
    void AddTo(TTarvaSearchManager& manager) const;
    /// The criteria whose bounds are dates, as they stand in the condition.
    QVector<const TTarvaSearch*> DateCriteria() const;
    void Clear() const;
    QJsonObject State() const;
    void Restore(const QJsonObject& state) const;

    void ShowAdvanced(bool shown);
    bool AdvancedIsShown() const;
    void FocusPeriod() const;

    TDateRange_Display_FRAM* Period = nullptr;
    TADVSearch_Fram* Advanced = nullptr;
    TTab_Search_Frame* Tabs = nullptr;
    TRange_Date_Search_Frame* Date = nullptr;
    TRange_Date_Search_Frame* Time = nullptr;
    TRange_Cost_Search_Frame* Cost = nullptr;
    TRange_Digit_Search_Frame* Digit = nullptr;
    TRange_String_Search_Frame* Code = nullptr;
    TAccountingCodes_Search_Frame* Account = nullptr;
    TRange_AccCodes_Search_Frame* Accounts = nullptr;
    TSelectEntity_Search_Frame* Entity = nullptr;
    TRange_SelectEntity_Search_Frame* Entities = nullptr;

private:
    void AddHeader(QVBoxLayout* column);
    void AddLines(QVBoxLayout* column);
    void AddRows();
    void AddDateRow(const QString& key, const QString& caption, TRange_Date_Search_Frame* frame);
    void AddNumberRows();
    void AddCodeRow();
    void AddAccountRow();
    void AddAccountRangeRow();
    void AddEntityRows();
    void LineUp() const;
    void StartPeriod();
    void StartTabs() const;
    void ChoosePeriod(int index) const;
    void ChooseTab(int index) const;

    QScrollArea* lines_ = nullptr;
    TStoredDateCriterion* storedDate_ = nullptr;
    TStoredDateCriterion* storedPeriod_ = nullptr;
    QVector<TReportFilterRow> rows_;
};
