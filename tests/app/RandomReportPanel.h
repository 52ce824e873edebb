#pragma once

#include "ReportRow.h"

#include "AccountingCodes_Search_UNT.h"
#include "DateRange_Display_UNT.h"
#include "MovableClock.h"
#include "Range_AccCodes_Search_UNT.h"
#include "Range_Cost_Search.h"
#include "Range_Date_Search.h"
#include "Range_Digit_Search.h"
#include "Range_SelectEntity_Search_UNT.h"
#include "Range_String_Search.h"
#include "Select_AccountCode_UNT.h"
#include "Select_Entity_UNT.h"
#include "SelectEntity_Search_UNT.h"
#include "SmartButtonEdit_TRV.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartFaDate.h"
#include "SmartTime_TRV.h"
#include "Tab_Search_UNT.h"
#include "TabControl.h"

#include <QRandomGenerator>

/// Fills a panel at random and leaves, of all lines, those that fit. What fits is told here anew for every
/// filter, from what its frame promises.
class TRandomReportPanel
{
public:
    /// All must outlive this. `names` are the names of the totals in their order.
    TRandomReportPanel(const TReportFilterPanel& panel, const std::vector<TReportRow>& rows,
                       const QStringList& names, TMovableClock& clock)
        : panel_(&panel), rows_(&rows), names_(&names), clock_(&clock)
    {
        for (const TReportRow& row : rows) {
            all_.push_back(&row);
            if (row.Center != 0)
                centers_.push_back(&row);
            for (size_t kind = 0; kind < EntityCount; ++kind) {
                if (row.Entities.at(kind) > 0)
                    entities_.at(kind).push_back(row.Entities.at(kind));
            }
        }
    }

    /// Clears the panel and fills some of its filters.
    void Fill()
    {
        panel_->Clear();
        fitting_ = all_;
        wanted_ = &Any(*rows_);
        filled_ = 0;
        Perhaps(3, &TRandomReportPanel::FillPeriod);
        Perhaps(3, &TRandomReportPanel::FillDate);
        Perhaps(4, &TRandomReportPanel::FillTime);
        Perhaps(4, &TRandomReportPanel::FillCost);
        Perhaps(4, &TRandomReportPanel::FillDigit);
        Perhaps(4, &TRandomReportPanel::FillCode);
        Perhaps(4, &TRandomReportPanel::FillAccount);
        Perhaps(5, &TRandomReportPanel::FillAccounts);
        Perhaps(4, &TRandomReportPanel::FillEntity);
        Perhaps(5, &TRandomReportPanel::FillEntities);
        Perhaps(4, &TRandomReportPanel::FillTab);
    }
    const std::vector<const TReportRow*>& Fitting() const { return fitting_; }
    /// How many filters the last panel has, none to eleven.
    int Filled() const { return filled_; }

private:
    bool Chance(int outOf) { return random_.bounded(outOf) == 0; }
    template <typename TItem> const TItem& Any(const std::vector<TItem>& items)
    {
        return items.at(static_cast<size_t>(random_.bounded(static_cast<int>(items.size()))));
    }
    /// Every other time the line that the whole panel is after, so that filters which hold together find
    /// something.
    const TReportRow& AnyRow() { return Chance(2) ? *wanted_ : Any(*rows_); }

    void Perhaps(int outOf, void (TRandomReportPanel::*fill)())
    {
        if (!Chance(outOf))
            return;
        (this->*fill)();
        ++filled_;
    }
    template <typename TFits> void Keep(TFits fits, bool reversed = false)
    {
        std::erase_if(fitting_, [&fits, reversed](const TReportRow* row) { return fits(*row) == reversed; });
    }
    bool Turn(TSmartCheckBox_TRV* box)
    {
        const bool reversed = Chance(4);
        box->SetChecked(reversed);
        return reversed;
    }
    /// Most ranges begin before they end; `open` stands for no upper bound.
    template <typename TValue> void Order(TValue& from, TValue& to, TValue open)
    {
        if (to != open && to < from && !Chance(8))
            std::swap(from, to);
    }
    static QString DateText(int date)
    {
        return QStringLiteral("%1/%2/%3")
            .arg(date / 10000)
            .arg(date / 100 % 100, 2, 10, QChar(u'0'))
            .arg(date % 100, 2, 10, QChar(u'0'));
    }
    static int Solar(const QDate& day)
    {
        return static_cast<int>(TReportRow::Digits(TFaDate::CreateByGregorianDate(day).ToDateString()));
    }

    void FillPeriod()
    {
        constexpr int Periods = 4;
        const QDate today = QDate(2023, 3, 21).addDays(random_.bounded(1320));
        clock_->Day = today;
        const int period = random_.bounded(Periods);
        panel_->Period->RangeDate_CMB->SetItemIndex(period);
        panel_->Period->RangeDate_CMBChange(panel_->Period->RangeDate_CMB);
        const int month = Solar(today) / 100 * 100;
        const int dayOfWeek = (today.dayOfWeek() + 1) % 7 + 1; // Saturday is the first
        // A week begins one day early.
        const int from[] = {Solar(today.addDays(-30)), Solar(today.addDays(-7)), month + 1,
                            Solar(today.addDays(-dayOfWeek))};
        const int to[] = {Solar(today), Solar(today), month + 31, Solar(today.addDays(7 - dayOfWeek))};
        Keep([first = from[period], last = to[period]](const TReportRow& row) {
            return row.Date >= first && row.Date <= last;
        });
    }
    void FillDate()
    {
        TRange_Date_Search_Frame& frame = *panel_->Date;
        int from = Chance(4) ? 0 : AnyRow().Date;
        int to = from == 0 || Chance(2) ? AnyRow().Date : 99999999;
        Order(from, to, 99999999);
        frame.RangeDate_CHK->SetChecked(true);
        frame.SetFromDate(from == 0 ? QString() : DateText(from));
        frame.SetToDate(to == 99999999 ? QString() : DateText(to));
        Keep([=](const TReportRow& row) { return row.Date >= from && row.Date <= to; },
             Turn(frame.RangeDate_Reverst_CHK));
    }
    void FillTime()
    {
        TRange_Date_Search_Frame& frame = *panel_->Time;
        constexpr qint64 Open = std::numeric_limits<qint64>::max();
        const auto write = [](qint64 moment, TSmartTime_TRV& time) {
            const QString minute = QString::number(moment);
            time.SetText(minute.mid(8, 2) + u':' + minute.mid(10, 2));
            const QDate day = QDate::fromString(minute.left(8), QStringLiteral("yyyyMMdd"));
            return TFaDate::CreateByGregorianDate(day).ToDateString();
        };
        qint64 from = Chance(2) ? AnyRow().Minute : 0;
        qint64 to = from == 0 || Chance(2) ? AnyRow().Minute : Open;
        Order(from, to, Open);
        if (from != 0)
            frame.SetFromDate(write(from, *frame.RangeTime_From_EDT));
        if (to != Open)
            frame.SetToDate(write(to, *frame.RangeTime_To_EDT));
        frame.RangeDate_CHK->SetChecked(true);
        Keep([=](const TReportRow& row) { return row.Minute >= from && row.Minute <= to; },
             Turn(frame.RangeDate_Reverst_CHK));
    }
    void FillCost()
    {
        TRange_Cost_Search_Frame& frame = *panel_->Cost;
        const bool credit = Chance(2);
        const auto amount = [credit](const TReportRow& row) { return credit ? row.Credit : row.Debit; };
        qint64 from = amount(AnyRow()) / TReportRow::PartsOfUnit;
        qint64 to = from == 0 || Chance(2) ? amount(AnyRow()) / TReportRow::PartsOfUnit : 0;
        Order(from, to, qint64{0});
        frame.RangeCost_CMB->SetItemIndex(credit ? 1 : 0);
        frame.RangeCost_From_EDT->SetText(QString::number(from));
        frame.RangeCost_To_EDT->SetText(QString::number(to));
        frame.RangeCost_CHK->SetChecked(true);
        const bool reversed = Turn(frame.RangeCost_Reverst_CHK);
        // Without a bound there is no filter, and nothing to turn round.
        if (from == 0 && to == 0)
            return;
        Keep(
            [=](const TReportRow& row) {
                return amount(row) >= from * TReportRow::PartsOfUnit &&
                       (to == 0 || amount(row) <= to * TReportRow::PartsOfUnit);
            },
            reversed);
    }
    void FillDigit()
    {
        static constexpr int TReportRow::*Fields[] = {&TReportRow::Number, &TReportRow::RowNo,
                                                      &TReportRow::FiscalYear};
        TRange_Digit_Search_Frame& frame = *panel_->Digit;
        const int index = random_.bounded(3);
        const auto field = Fields[index];
        int from = AnyRow().*field;
        int to = Chance(2) ? AnyRow().*field : 0;
        Order(from, to, 0);
        frame.RangeDigit_CMB->SetItemIndex(index);
        frame.RangeDigit_From_EDT->SetText(QString::number(from));
        frame.RangeDigit_To_EDT->SetText(QString::number(to));
        frame.SetActive(true);
        Keep([=](const TReportRow& row) { return row.*field >= from && (to == 0 || row.*field <= to); },
             Turn(frame.RangeDigit_Reverst_CHK));
    }
    void FillCode()
    {
        TRange_String_Search_Frame& frame = *panel_->Code;
        const bool byName = Chance(3);
        const auto key = [byName](const TReportRow& row) {
            return byName ? row.NameRank : row.Total * 1000 + row.Assistant;
        };
        int from = key(AnyRow());
        int to = Chance(3) ? -1 : key(AnyRow());
        Order(from, to, -1);
        const auto text = [this, byName](int value) {
            return value < 0 ? QString() : byName ? names_->at(value) : QString::number(value);
        };
        frame.initControl(true, byName ? 1 : 0, text(from), text(to));
        Keep([=](const TReportRow& row) { return key(row) >= from && (to < 0 || key(row) <= to); },
             Turn(frame.RangeString_Reverst_CHK));
    }
    void FillAccount()
    {
        TAccountingCodes_Search_Frame& frame = *panel_->Account;
        const TReportRow& wanted = Chance(3) ? *Any(centers_) : AnyRow();
        frame.SetActive(true);
        const bool reversed = Turn(frame.AccCodes_Reverst_CHK);
        // Every level is a criterion of its own, turned round on its own.
        const auto keep = [&](int TReportRow::*level) {
            Keep([&wanted, level](const TReportRow& row) { return row.*level == wanted.*level; }, reversed);
        };
        const bool onlyCenter = wanted.Center != 0 && Chance(3);
        if (!onlyCenter) {
            frame.SetSearchTotalValue(wanted.Total);
            keep(&TReportRow::Total);
            if (wanted.Assistant != 0 && !Chance(3)) {
                frame.SetSearchAssistantValue(wanted.Assistant);
                keep(&TReportRow::Assistant);
                if (IsShortDetail(wanted) && !Chance(3)) {
                    frame.SetSearchDetailValue(wanted.Detail);
                    keep(&TReportRow::Detail);
                }
            }
        }
        if (wanted.Center != 0) {
            frame.SetSearchExpenseCenterValue(wanted.Center);
            keep(&TReportRow::Center);
        }
    }
    /// Details that are unique codes do not fit into the box.
    static bool IsShortDetail(const TReportRow& row) { return row.Detail > 0 && row.Detail <= LargestDetail; }

    void FillAccounts()
    {
        TRange_AccCodes_Search_Frame& frame = *panel_->Accounts;
        frame.AccCodes_CHK->SetChecked(true);
        // Open above is the largest code that fits into the box.
        const TAccountBounds from = WriteAccount(*frame.Select_AccountCode1, {0, 0, 0, 0});
        const TAccountBounds to = WriteAccount(*frame.Select_AccountCode2, {999, 999, LargestDetail, 9999});
        static constexpr int TReportRow::*Levels[] = {&TReportRow::Total, &TReportRow::Assistant,
                                                      &TReportRow::Detail, &TReportRow::Center};
        TTarvaSearch* const criteria[] = {frame.TarvaSearch_Range_Total, frame.TarvaSearch_Range_Assisstant,
                                          frame.TarvaSearch_Range_Detail, frame.TarvaSearch_Range_ExpCenter};
        // The frame hides its box for turning round; an owner can still turn the criterion of a level.
        const size_t turned = Chance(3) ? static_cast<size_t>(random_.bounded(4)) : from.size();
        for (size_t place = 0; place < from.size(); ++place) {
            criteria[place]->SetReverst(place == turned);
            Keep([level = Levels[place], first = from.at(place), last = to.at(place)](
                     const TReportRow& row) { return row.*level >= first && row.*level <= last; },
                 place == turned);
        }
    }
    using TAccountBounds = std::array<int, 4>;
    TAccountBounds WriteAccount(TSelect_AccountCode& selector, TAccountBounds bounds)
    {
        const TReportRow& row = Chance(4) ? *Any(centers_) : AnyRow();
        const auto write = [&](TCodeItem level, size_t place, int code) {
            selector.WriteText(level, QString::number(code));
            TSmartEdit_TRV* box = selector.BoxOf(level);
            box->OnExit(box);
            bounds.at(place) = code;
        };
        write(TCodeItem::ctTotal, 0, row.Total);
        if (row.Assistant != 0 && Chance(3)) {
            write(TCodeItem::ctAssistant, 1, row.Assistant);
            if (IsShortDetail(row) && Chance(2))
                write(TCodeItem::ctDetail, 2, row.Detail);
        }
        if (row.Center != 0 && Chance(2))
            write(TCodeItem::ctExpenseCenter, 3, row.Center);
        return bounds;
    }

    /// A kind of which there are lines.
    size_t AnyKind()
    {
        if (Chance(2)) {
            const auto& codes = wanted_->Entities;
            const auto code = std::find_if(codes.begin(), codes.end(), [](int each) { return each > 0; });
            if (code != codes.end())
                return static_cast<size_t>(code - codes.begin());
        }
        size_t kind = EntityCount;
        while (kind == EntityCount || entities_.at(kind).empty())
            kind = static_cast<size_t>(random_.bounded(static_cast<int>(EntityCount)));
        return kind;
    }
    int AnyCode(size_t kind)
    {
        const int code = AnyRow().Entities.at(kind);
        return code > 0 ? code : Any(entities_.at(kind));
    }
    static void Choose(TSmartComboBox_TRV* box, size_t index)
    {
        box->SetItemIndex(static_cast<int>(index));
        box->OnChange(box);
    }
    void FillEntity()
    {
        TSelectEntity_Search_Frame& frame = *panel_->Entity;
        const size_t kind = AnyKind();
        const int code = AnyCode(kind);
        frame.SelectEntity_CHK->SetChecked(true);
        Choose(frame.SelectEntity_CMB, kind);
        TSmartButtonEdit_TRV* box = frame.TSelect_Entity_Frame1->Code_EDT;
        box->SetText(QString::number(code));
        box->OnExit(box);
        Keep([=](const TReportRow& row) { return row.Entities.at(kind) == code; },
             Turn(frame.SelectEntity_Reverst_CHK));
    }
    void FillEntities()
    {
        TRange_SelectEntity_Search_Frame& frame = *panel_->Entities;
        const size_t kind = AnyKind();
        int from = Chance(4) ? 0 : AnyCode(kind);
        int to = from == 0 || Chance(2) ? AnyCode(kind) : 0;
        Order(from, to, 0);
        frame.SetActive(true);
        Choose(frame.SelectEntity_CMB, kind);
        if (from != 0)
            frame.SetSearchValue1(from);
        if (to != 0)
            frame.SetSearchValue2(to);
        Keep(
            [=](const TReportRow& row) {
                const int code = row.Entities.at(kind);
                return code != TReportRow::NoEntity && code >= from && (to == 0 || code <= to);
            },
            Turn(frame.SelectEntity_Reverst_CHK));
    }
    void FillTab()
    {
        const bool confirmed = Chance(2);
        panel_->Tabs->Search_TBC->SetTabIndex(confirmed ? 1 : 2);
        panel_->Tabs->Search_TBCChange(panel_->Tabs->Search_TBC);
        Keep([confirmed](const TReportRow& row) { return row.Confirmed == confirmed; });
    }

    static constexpr int LargestDetail = 999999;

    QRandomGenerator random_{14030101};
    const TReportFilterPanel* panel_;
    const std::vector<TReportRow>* rows_;
    const QStringList* names_;
    TMovableClock* clock_;
    std::vector<const TReportRow*> all_;
    std::vector<const TReportRow*> centers_;
    std::array<std::vector<int>, EntityCount> entities_;
    std::vector<const TReportRow*> fitting_;
    const TReportRow* wanted_ = nullptr;
    int filled_ = 0;
};
