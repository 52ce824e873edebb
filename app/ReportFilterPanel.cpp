#include "ReportFilterPanel.h"

#include "AccountingCodes_Search_UNT.h"
#include "ADVSearch_UNT.h"
#include "DateRange_Display_UNT.h"
#include "Look.h"
#include "Range_AccCodes_Search_UNT.h"
#include "Range_Cost_Search.h"
#include "Range_Date_Search.h"
#include "Range_Digit_Search.h"
#include "Range_SelectEntity_Search_UNT.h"
#include "Range_String_Search.h"
#include "ReportItems.h"
#include "SelectEntity_Search_UNT.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartLabel_TRV.h"
#include "SmartPanel_TRV.h"
#include "StoredDateCriterion.h"
#include "Tab_Search_UNT.h"
#include "TabControl.h"
#include "TarvaSearchManager.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QJsonObject>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

constexpr int everything = 4; ///< place of the period without bounds
constexpr int captionWidth = 100;

constexpr QLatin1String periodKey("period");
constexpr QLatin1String tabKey("tab");
constexpr QLatin1String advancedKey("advanced");

TSmartPanel_TRV* NewBand(QWidget* parent)
{
    auto* band = new TSmartPanel_TRV(parent);
    band->SetGround(TSmartPanel_TRV::gBand);
    return band;
}

} // namespace

TReportFilterPanel::TReportFilterPanel(QWidget* parent) : QWidget(parent)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    AddHeader(column);
    AddLines(column);
    Tabs = new TTab_Search_Frame(this);
    column->addWidget(Tabs);
    AddRows();
    LineUp();
    StartPeriod();
    StartTabs();
    Clear();
    ShowAdvanced(false);
}

TReportFilterPanel::~TReportFilterPanel() = default;

void TReportFilterPanel::AddHeader(QVBoxLayout* column)
{
    TSmartPanel_TRV* band = NewBand(this);
    auto* row = new QHBoxLayout(band);
    row->setContentsMargins(Look::Margin, 0, Look::Margin, 0);
    row->setSpacing(Look::GroupGap);
    Period = new TDateRange_Display_FRAM(band);
    Period->RangeDate_LBL->SetCaption(QStringLiteral("F10  سندهای :"));
    Advanced = new TADVSearch_Fram(band);
    Advanced->ADVsearch_LBL->SetOnBand(true);
    Advanced->ADVSearch_CHK->OnClick = [this](QObject*) { ShowAdvanced(Advanced->ADVSearch_CHK->Checked()); };
    row->addWidget(Period);
    row->addStretch(1);
    row->addWidget(Advanced);
    column->addWidget(band);
}

void TReportFilterPanel::AddLines(QVBoxLayout* column)
{
    TSmartPanel_TRV* band = NewBand(nullptr);
    auto* lines = new QVBoxLayout(band);
    lines->setContentsMargins(0, 0, 0, Look::Unit);
    lines->setSpacing(0);
    const auto add = [band, lines](auto*& frame) {
        frame = new std::remove_reference_t<decltype(*frame)>(band);
        lines->addWidget(frame);
    };
    add(Date);
    add(Time);
    add(Cost);
    add(Digit);
    add(Code);
    add(Account);
    add(Accounts);
    add(Entity);
    add(Entities);
    lines_ = new QScrollArea(this);
    lines_->setFrameShape(QFrame::NoFrame);
    lines_->setWidgetResizable(true);
    lines_->setFocusPolicy(Qt::NoFocus);
    lines_->setWidget(band);
    lines_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    column->addWidget(lines_);
    // The toolkit scrolls for Tab; a filter's letter moves the focus too.
    connect(qApp, &QApplication::focusChanged, lines_, [lines = lines_](QWidget* /*old*/, QWidget* now) {
        if (now != nullptr && lines->widget()->isAncestorOf(now))
            lines->ensureWidgetVisible(now, 0, Look::Unit);
    });
}

void TReportFilterPanel::LineUp() const
{
    for (const TReportFilterRow& row : rows_) {
        row.Caption->setFixedWidth(captionWidth);
        // The letter of the caption serves the box too.
        row.Switch->setShortcut({});
    }
}

void TReportFilterPanel::StartPeriod()
{
    Period->Tarva_DisplayRange->SearchItems.Clear();
    ReportItems::AddDates(Period->Tarva_DisplayRange->SearchItems);
    storedPeriod_ = new TStoredDateCriterion(*Period->Tarva_DisplayRange, this);
    Period->RangeDate_CMB->SetItemIndex(everything);
    Period->init();
}

void TReportFilterPanel::StartTabs() const
{
    Tabs->TarvaSearch_Tab->SearchItems.Clear();
    ReportItems::AddStates(Tabs->TarvaSearch_Tab->SearchItems);
    Tabs->init();
    ChooseTab(0);
}

void TReportFilterPanel::ChoosePeriod(int index) const
{
    Period->RangeDate_CMB->SetItemIndex(index);
    Period->RangeDate_CMBChange(Period->RangeDate_CMB);
}

void TReportFilterPanel::ChooseTab(int index) const
{
    Tabs->Search_TBC->SetTabIndex(index);
    Tabs->Search_TBCChange(Tabs->Search_TBC);
}

void TReportFilterPanel::AddTo(TTarvaSearchManager& manager) const
{
    for (TTarvaSearch* criterion : std::initializer_list<TTarvaSearch*>{
             storedPeriod_, Tabs->TarvaSearch_Tab, storedDate_, Time->TarvaSearch_Range_Date,
             Cost->TarvaSearch_Range_Cost, Digit->TarvaSearch_Range_Digit, Code->TarvaSearch_Range_String,
             Account->TarvaSearch_Total, Account->TarvaSearch_Assisstant, Account->TarvaSearch_Detail,
             Account->TarvaSearch_ExpenseCenter, Accounts->TarvaSearch_Range_Total,
             Accounts->TarvaSearch_Range_Assisstant, Accounts->TarvaSearch_Range_Detail,
             Accounts->TarvaSearch_Range_ExpCenter, Entity->TarvaSearch_SelectEntityEDT,
             Entities->TarvaSearch_Range_SelectEntity})
        manager.Add(criterion);
}

QVector<const TTarvaSearch*> TReportFilterPanel::DateCriteria() const
{
    return {storedPeriod_, storedDate_, Time->TarvaSearch_Range_Date};
}

void TReportFilterPanel::Clear() const
{
    for (const TReportFilterRow& row : rows_)
        row.Clear();
    ChoosePeriod(everything);
    ChooseTab(0);
}

QJsonObject TReportFilterPanel::State() const
{
    QJsonObject state;
    state.insert(periodKey, Period->RangeDate_CMB->ItemIndex());
    state.insert(tabKey, Tabs->Search_TBC->TabIndex());
    state.insert(advancedKey, AdvancedIsShown());
    for (const TReportFilterRow& row : rows_)
        state.insert(row.Key, row.State());
    return state;
}

void TReportFilterPanel::Restore(const QJsonObject& state) const
{
    const int period = state.value(periodKey).toInt(everything);
    ChoosePeriod(period >= 0 && period <= everything ? period : everything);
    const int tab = state.value(tabKey).toInt();
    ChooseTab(tab >= 0 && tab < Tabs->Search_TBC->TabCount() ? tab : 0);
    for (const TReportFilterRow& row : rows_)
        row.Restore(state.value(row.Key).toObject());
    Advanced->ADVSearch_CHK->SetChecked(state.value(advancedKey).toBool());
}

void TReportFilterPanel::ShowAdvanced(bool shown)
{
    const bool opened = shown && lines_->isHidden();
    lines_->setVisible(shown);
    if (opened && isVisible())
        Date->RangeDate_CHK->setFocus(Qt::ShortcutFocusReason);
}

bool TReportFilterPanel::AdvancedIsShown() const
{
    return !lines_->isHidden();
}

void TReportFilterPanel::FocusPeriod() const
{
    Period->RangeDate_CMB->setFocus(Qt::ShortcutFocusReason);
}
