#pragma once

#include "Page.h"
#include "VoucherDraft.h"

#include <memory>

class TReferenceHost;
class TSmartDBGrid_TRV;
class TVoucherBand;
class TVoucherHeadBar;
class TVoucherTotals;

/// Voucher entry: the head above, the band in which a line is typed, the lines, their totals. All of it by
/// keyboard.
class TVoucherForm : public TPage
{
    Q_OBJECT

public:
    /// The host must outlive the form.
    explicit TVoucherForm(TReferenceHost& host, QWidget* parent = nullptr);
    ~TVoucherForm() override;

    void Enter() override;
    bool HasUnsaved() const override { return IsChanged(); }
    bool MayClose() override { return MayDiscard(); }
    void SaveState() const override;
    void Reconnect() override { Enter(); }
    QVector<TKeyHelp> Keys() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    TVoucherHeadBar& HeadBar();
    TVoucherBand& Band();
    TSmartDBGrid_TRV& Grid();
    TVoucherTotals& Totals();
    const TVoucherDraft& Draft() const;

    /// Ctrl+N: an empty voucher, after the user has been asked about unsaved changes.
    void NewVoucher();
    /// Shows a saved voucher of the chosen year, after the user has been asked about unsaved changes.
    void OpenVoucher(int number);
    /// The same for a voucher of any year, which becomes the chosen one.
    void OpenVoucherOf(int fiscalYear, int number);
    /// F2: saves; false where that was refused and told at its control.
    bool Save();
    /// What the user has typed is not all saved.
    bool IsChanged() const;

private:
    void Lay();
    void ConnectParts();
    void ConnectKeys();
    void StartNew();
    void LoadVoucher(int number);
    void ShowVoucher(const QString& sentence);
    void ShowLines(int row);
    QString StateSentence() const;
    bool IsWritable() const;
    bool MayDiscard();
    void ChooseYear();
    void PutLine();
    bool IsAccepted(const TVoucherLine& line, TVoucherLine& accepted);
    void BeginCorrection();
    void RemoveLine();
    void MoveLine(int step);
    void UndoLines();
    bool BandIsFree();
    void ClearBand();
    void SwitchBetweenBandAndGrid();
    bool GridKey(int key, Qt::KeyboardModifiers modifiers);
    void ShowFault(const TVoucherFault& fault);

    TReferenceHost* host_;
    struct TParts;
    std::unique_ptr<TParts> parts_;
    int correcting_ = -1; ///< the line that stands in the band, counted from 0
};
