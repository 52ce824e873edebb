#include "AccountBook.h"
#include "ReferenceHost.h"
#include "SmartEdit_TRV.h"
#include "VoucherCurrency.h"
#include "VoucherFormParts.h"

#include <QKeyEvent>

// How lines come into the voucher, are corrected, moved and removed.

void TVoucherForm::PutLine()
{
    TParts& parts = *parts_;
    TVoucherLine line;
    if (!IsWritable() || parts.Band->Currency().IsRefused() || !IsAccepted(parts.Band->Line(), line))
        return;
    const int row = correcting_ >= 0 ? correcting_ : parts.Draft.Count();
    if (correcting_ >= 0)
        parts.Draft.Replace(row, line);
    else
        parts.Draft.Append(line);
    ShowLines(row);
    parts.Totals->Tell(QStringLiteral("ردیف %1 در سند است؛ سند هنوز ذخیره نشده.").arg(row + 1));
    ClearBand();
}

bool TVoucherForm::IsAccepted(const TVoucherLine& line, TVoucherLine& accepted)
{
    const TAccountFacts facts = TAccountBook(host_->Connection()).Facts(line.Account);
    accepted = line;
    accepted.AccountName = facts.Name;
    std::optional<TVoucherFault> fault = TVoucherDraft::CheckLine(line, facts);
    bool sameAccount = false;
    if (correcting_ >= 0) {
        const TVoucherLine& before = parts_->Draft.Lines().at(correcting_);
        sameAccount = before.Account == line.Account;
    }
    if (!fault && !facts.DetailIsActive && !sameAccount)
        fault = TVoucherFault{TVoucherField::Detail,
                              QStringLiteral("این حساب تفصیلی غیرفعال است؛ حساب دیگری برگزینید.")};
    if (fault)
        parts_->Band->ShowFault(*fault);
    return !fault;
}

// A line that stands half typed in the band must not be lost or saved without the user noticing.
bool TVoucherForm::BandIsFree()
{
    if (parts_->Band->IsEmpty() && correcting_ < 0)
        return true;
    parts_->Band->ShowFault(
        {TVoucherField::Total,
         QStringLiteral(
             "ردیفی در نوار نیمه‌کاره است؛ آن را با Enter به سند ببرید یا با Escape رها کنید.")});
    return false;
}

void TVoucherForm::ClearBand()
{
    correcting_ = -1;
    parts_->Band->Clear();
    parts_->Band->SetCorrecting(false);
    parts_->Band->FocusTotal();
}

void TVoucherForm::BeginCorrection()
{
    const int row = parts_->Lines.CurrentLine();
    if (row < 0 || !IsWritable() || !BandIsFree())
        return;
    parts_->Band->Show(parts_->Draft.Lines().at(row));
    parts_->Band->SetCorrecting(true);
    correcting_ = row;
    parts_->Band->FocusTotal();
}

void TVoucherForm::RemoveLine()
{
    const int row = parts_->Lines.CurrentLine();
    if (row < 0 || !IsWritable() || !BandIsFree())
        return;
    parts_->Draft.Remove(row);
    ShowLines(row);
    parts_->Totals->Tell(
        QStringLiteral("ردیف %1 حذف شد؛ با Ctrl+Z برمی‌گردد.").arg(row + 1));
}

void TVoucherForm::MoveLine(int step)
{
    const int row = parts_->Lines.CurrentLine();
    if (IsWritable() && BandIsFree() && parts_->Draft.Move(row, step))
        ShowLines(row + step);
}

void TVoucherForm::UndoLines()
{
    if (!IsWritable() || !BandIsFree() || !parts_->Draft.Undo())
        return;
    ShowLines(parts_->Lines.CurrentLine());
    parts_->Totals->Tell(QStringLiteral("آخرین تغییر ردیف‌ها برگردانده شد."));
}

void TVoucherForm::SwitchBetweenBandAndGrid()
{
    if (parts_->Grid->hasFocus())
        parts_->Band->FocusTotal();
    else
        parts_->Grid->setFocus(Qt::ShortcutFocusReason);
}

bool TVoucherForm::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != parts_->Grid || event->type() != QEvent::KeyPress)
        return TPage::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    return GridKey(key.key(), key.modifiers() & ~Qt::KeypadModifier);
}

bool TVoucherForm::GridKey(int key, Qt::KeyboardModifiers modifiers)
{
    if (modifiers == Qt::NoModifier && (key == Qt::Key_Return || key == Qt::Key_Enter))
        BeginCorrection();
    else if (modifiers == Qt::NoModifier && key == Qt::Key_Delete)
        RemoveLine();
    else if (modifiers == Qt::ControlModifier && key == Qt::Key_Up)
        MoveLine(-1);
    else if (modifiers == Qt::ControlModifier && key == Qt::Key_Down)
        MoveLine(1);
    else if (modifiers == Qt::ControlModifier && key == Qt::Key_Z)
        UndoLines();
    else
        return false;
    return true;
}
