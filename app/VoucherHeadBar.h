#pragma once

#include "VoucherDraft.h"

#include <functional>
#include <QDate>
#include <QWidget>

class QHBoxLayout;
class TSmartComboBox_TRV;
class TSmartDateEdit_TRV;
class TSmartEdit_TRV;

/// The head of a voucher: fiscal year, number, date, title. A number that is typed asks for the voucher of
/// that number.
class TVoucherHeadBar : public QWidget
{
    Q_OBJECT

public:
    explicit TVoucherHeadBar(QWidget* parent = nullptr);
    ~TVoucherHeadBar() override;

    /// The calendar in which dates are typed, and where today comes from.
    void SetCalendar(bool gregorian, std::function<QDate()> today);
    /// The first one that is open is chosen.
    void SetYears(const QVector<TFiscalYear>& years);
    /// The chosen year; null where there is none.
    const TFiscalYear* Year() const;
    bool ChooseYear(int code);
    void Show(const TVoucherHead& head);
    /// The head as it is typed, over the one that was shown.
    TVoucherHead Head() const;
    /// The number that a new voucher would get, in grey.
    void SetProposedNumber(int number);
    /// Date and title can be changed; the year as well, as long as the voucher is a new one.
    void SetWritable(bool writable, bool yearToo);
    void FocusNumber();
    void FocusDate();
    void ShowFault(const TVoucherFault& fault);

    TSmartComboBox_TRV& YearBox() { return *year_; }
    TSmartEdit_TRV& Number() { return *number_; }
    TSmartDateEdit_TRV& Date() { return *date_; }
    TSmartEdit_TRV& Title() { return *title_; }

Q_SIGNALS:
    void yearChosen();
    void numberEntered(int number);
    void dayChanged(const QString& day); ///< another day, by the user or by another voucher
    void finished();                     ///< Enter in the title

private:
    void Lay();
    void ShowNumber();
    void EnterNumber();

    QVector<TFiscalYear> years_;
    TVoucherHead head_;
    QString shownDate_; // as the edits spell what was shown, which a saved voucher may spell otherwise
    QString shownTitle_;
    TSmartComboBox_TRV* year_;
    TSmartEdit_TRV* number_;
    TSmartDateEdit_TRV* date_;
    TSmartEdit_TRV* title_;
};
