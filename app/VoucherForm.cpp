#include "VoucherForm.h"

#include "FormParts.h"
#include "KeyTip.h"
#include "Look.h"
#include "PersianText.h"
#include "ReferenceHost.h"
#include "SmartButton_TRV.h"
#include "SmartEdit_TRV.h"
#include "UnsavedQuestion.h"
#include "VoucherCurrency.h"
#include "VoucherFormParts.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

namespace {

constexpr QLatin1String layoutKey("Forms/Voucher/Layout");

QVector<TGridColumn> Columns()
{
    return {
        {QStringLiteral("RowNo"), QStringLiteral("ردیف"), 45, TGridColumn::ckCode},
        {QStringLiteral("Account"), QStringLiteral("کد حساب"), 170, TGridColumn::ckCode},
        {QStringLiteral("AccountName"), QStringLiteral("نام حساب"), 240},
        {QStringLiteral("Bed"), QStringLiteral("بدهکار"), 140, TGridColumn::ckMoney},
        {QStringLiteral("Bes"), QStringLiteral("بستانکار"), 140, TGridColumn::ckMoney},
        {QStringLiteral("CurrTitle"), QStringLiteral("ارز"), 50},
        {QStringLiteral("CurrAmount"), QStringLiteral("مبلغ ارزی"), 100, TGridColumn::ckMoney},
        {QStringLiteral("Sharh"), QStringLiteral("شرح"), 140},
    };
}

/// Today, or the nearest day of the year.
QString FirstDate(const TFiscalYear* year, const QString& today)
{
    if (year == nullptr)
        return today;
    return qBound(year->FromDate, today, qMax(year->FromDate, year->ToDate));
}

} // namespace

TVoucherForm::TVoucherForm(TReferenceHost& host, QWidget* parent)
    : TPage(parent), host_(&host), parts_(std::make_unique<TParts>(host.Connection()))
{
    setObjectName(QStringLiteral("VoucherForm"));
    Lay();
    ConnectParts();
    ConnectKeys();
    parts_->Head->SetCalendar(host_->Settings().SettingRecord().IsGregorian(),
                              [host = host_] { return host->Clock().Today(); });
    ShowLines(0);
}

TVoucherForm::~TVoucherForm()
{
    // The grid outlives parts_, with the lines that it shows.
    parts_->Source.SetDataSet(nullptr);
    delete parts_->Grid;
}

TVoucherHeadBar& TVoucherForm::HeadBar()
{
    return *parts_->Head;
}

TVoucherBand& TVoucherForm::Band()
{
    return *parts_->Band;
}

TSmartDBGrid_TRV& TVoucherForm::Grid()
{
    return *parts_->Grid;
}

TVoucherTotals& TVoucherForm::Totals()
{
    return *parts_->Totals;
}

const TVoucherDraft& TVoucherForm::Draft() const
{
    return parts_->Draft;
}

void TVoucherForm::Lay()
{
    TParts& parts = *parts_;
    parts.Head = new TVoucherHeadBar(this);
    parts.Band = new TVoucherBand(this);
    parts.Grid = new TSmartDBGrid_TRV(this);
    parts.Totals = new TVoucherTotals(this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(parts.Head);
    column->addWidget(parts.Band);
    column->addWidget(parts.Grid, 1);
    auto* footer = new QHBoxLayout;
    footer->setContentsMargins(Look::Margin, 0, 0, 0);
    footer->setSpacing(Look::Margin);
    footer->addWidget(parts.Totals, 1);
    const auto addButton = [this, footer](const QString& name, const QString& caption, const QString& key,
                                          auto action) {
        auto* button = FormParts::NewBarButton(this, name, caption);
        button->setToolTip(KeyTip::Of(caption, key));
        button->setFocusPolicy(Qt::NoFocus);
        button->OnClick = [this, action](QObject*) { (this->*action)(); };
        footer->addWidget(button);
    };
    addButton(QStringLiteral("New_BTN"), QStringLiteral("سند تازه"), QStringLiteral("Ctrl+N"),
              &TVoucherForm::NewVoucher);
    addButton(QStringLiteral("Save_BTN"), QStringLiteral("ذخیره"), QStringLiteral("F2"), &TVoucherForm::Save);
    column->addLayout(footer);
}

void TVoucherForm::ConnectParts()
{
    TParts& parts = *parts_;
    parts.Source.SetDataSet(&parts.Lines);
    parts.Grid->setAccessibleName(QStringLiteral("ردیف‌های سند"));
    parts.Grid->SetColumns(Columns());
    parts.Grid->SetDataSource(&parts.Source);
    parts.Grid->RestoreLayout(host_->Settings().Value(layoutKey).toByteArray());
    parts.Grid->horizontalHeader()->setStretchLastSection(true);
    parts.Grid->SetEmptyText(
        QStringLiteral("سند هنوز ردیفی ندارد. حساب و مبلغ را در نوار بالا بنویسید و Enter بزنید."));
    parts.Grid->OnDblClick = [this](QObject*) { BeginCorrection(); };
    parts.Grid->installEventFilter(this);
    connect(parts.Head, &TVoucherHeadBar::yearChosen, this, &TVoucherForm::ChooseYear);
    connect(parts.Head, &TVoucherHeadBar::numberEntered, this, &TVoucherForm::OpenVoucher);
    connect(parts.Head, &TVoucherHeadBar::dayChanged, &parts.Band->Currency(), &TVoucherCurrency::SetDate);
    connect(parts.Head, &TVoucherHeadBar::finished, parts.Band, &TVoucherBand::FocusTotal);
    connect(parts.Band, &TVoucherBand::lineEntered, this, &TVoucherForm::PutLine);
}

void TVoucherForm::ConnectKeys()
{
    FormParts::OnKey(this, Qt::CTRL | Qt::Key_N, &TVoucherForm::NewVoucher);
    FormParts::OnKey(this, Qt::Key_F2, &TVoucherForm::Save);
    FormParts::OnKey(this, Qt::CTRL | Qt::Key_S, &TVoucherForm::Save);
    FormParts::OnKey(this, Qt::Key_F3, [this] { parts_->Head->FocusNumber(); });
    FormParts::OnKey(this, Qt::CTRL | Qt::Key_O, [this] { parts_->Head->FocusNumber(); });
    FormParts::OnKey(this, Qt::Key_F6, &TVoucherForm::SwitchBetweenBandAndGrid);
    FormParts::OnKey(this, Qt::Key_F8, [this] { parts_->Band->FocusCurrency(); });
    FormParts::OnKey(this, Qt::Key_Escape, &TVoucherForm::ClearBand);
}

QVector<TKeyHelp> TVoucherForm::Keys() const
{
    return {
        {QStringLiteral("Enter"),
         QStringLiteral(
             "خانهٔ بعدی؛ در پایان نوار، ردیف را به سند می‌برد")},
        {QStringLiteral("+"),
         QStringLiteral(
             "در خانه‌های کد: برگزیدن حساب یا مرکز هزینه از فهرست")},
        {QStringLiteral("F2  Ctrl+S"), QStringLiteral("ذخیرهٔ سند")},
        {QStringLiteral("Ctrl+N"), QStringLiteral("سند تازه")},
        {QStringLiteral("F3  Ctrl+O"),
         QStringLiteral("رفتن به شماره؛ شماره را بنویسید و Enter بزنید تا سند باز شود")},
        {QStringLiteral("F6"), QStringLiteral("از نوار به ردیف‌ها و برگشت")},
        {QStringLiteral("F8"),
         QStringLiteral(
             "برگزیدن ارز ردیف؛ مبلغ‌ها به همان ارز نوشته می‌شوند")},
        {QStringLiteral("Enter"), QStringLiteral("در ردیف‌ها: اصلاح ردیف")},
        {QStringLiteral("Delete"), QStringLiteral("در ردیف‌ها: حذف ردیف")},
        {QStringLiteral("Ctrl+Z"),
         QStringLiteral("در ردیف‌ها: برگرداندن آخرین تغییر")},
        {QStringLiteral("Ctrl+↑  Ctrl+↓"),
         QStringLiteral("در ردیف‌ها: جابه‌جا کردن ردیف")},
        {QStringLiteral("Escape"), QStringLiteral("پاک کردن نوار و رها کردن اصلاح ردیف")},
    };
}

void TVoucherForm::SaveState() const
{
    host_->Settings().SetValue(layoutKey, parts_->Grid->SaveLayout());
}

void TVoucherForm::Enter()
{
    if (!parts_->Started) {
        parts_->Head->SetYears(parts_->Store.FiscalYears());
        parts_->Lines.SetCurrencyTitles(parts_->Store.CurrencyTitles());
        StartNew();
        parts_->Started = true;
        parts_->Head->FocusDate();
        return;
    }
    if (focusWidget() == nullptr)
        parts_->Band->FocusTotal();
    else
        focusWidget()->setFocus(Qt::OtherFocusReason);
}

bool TVoucherForm::IsWritable() const
{
    const TFiscalYear* year = parts_->Head->Year();
    return !parts_->Draft.Head.Confirmed && year != nullptr && !year->Closed;
}

bool TVoucherForm::IsChanged() const
{
    TVoucherDraft draft = parts_->Draft;
    draft.Head = parts_->Head->Head();
    if (!parts_->Band->IsEmpty() || correcting_ >= 0)
        return true;
    return draft.Head.Id == 0 ? draft.Count() > 0 || !draft.Head.Title.trimmed().isEmpty()
                              : draft.IsChanged();
}

bool TVoucherForm::MayDiscard()
{
    if (!IsChanged())
        return true;
    const TUnsavedAnswer answer = AskAboutUnsaved(
        window(), QStringLiteral("این سند تغییر کرده و ذخیره نشده است. پیش از ادامه ذخیره شود؟"));
    return answer == TUnsavedAnswer::Discard || (answer == TUnsavedAnswer::Save && Save());
}

void TVoucherForm::NewVoucher()
{
    if (!MayDiscard())
        return;
    StartNew();
    parts_->Head->FocusDate();
}

void TVoucherForm::StartNew()
{
    TVoucherHeadBar& bar = *parts_->Head;
    TVoucherHead head;
    if (const TFiscalYear* year = bar.Year())
        head.FiscalYear = year->Code;
    head.Date = FirstDate(bar.Year(), host_->Clock().NowDate(QStringLiteral("/")));
    const int proposed = parts_->Store.NextNumber(head.FiscalYear);
    parts_->Draft.Load(head, {});
    bar.SetProposedNumber(head.FiscalYear == 0 ? 0 : proposed);
    ShowVoucher(StateSentence());
}

void TVoucherForm::ChooseYear()
{
    if (!IsChanged()) {
        StartNew();
        return;
    }
    // What has been typed stays, but for the date, which belongs to a year.
    TVoucherHead head = parts_->Head->Head();
    head.Date = FirstDate(parts_->Head->Year(), head.Date);
    parts_->Head->SetProposedNumber(parts_->Store.NextNumber(head.FiscalYear));
    parts_->Head->Show(head);
    parts_->Band->SetEnabled(IsWritable());
    parts_->Totals->Tell(StateSentence());
}

void TVoucherForm::OpenVoucher(int number)
{
    if (parts_->Head->Year() != nullptr && MayDiscard())
        LoadVoucher(number);
}

void TVoucherForm::OpenVoucherOf(int fiscalYear, int number)
{
    if (MayDiscard() && parts_->Head->ChooseYear(fiscalYear))
        LoadVoucher(number);
}

void TVoucherForm::LoadVoucher(int number)
{
    const TFiscalYear* year = parts_->Head->Year();
    if (!parts_->Store.Find(year->Code, number, parts_->Draft)) {
        parts_->Head->FocusNumber();
        parts_->Head->Number().ShowError(QStringLiteral("سندی با این شماره در %1 نیست.").arg(year->Title));
        return;
    }
    ShowVoucher(StateSentence());
    parts_->Grid->setFocus(Qt::OtherFocusReason);
}

QString TVoucherForm::StateSentence() const
{
    const TVoucherHead& head = parts_->Draft.Head;
    const TFiscalYear* year = parts_->Head->Year();
    if (year == nullptr)
        return QStringLiteral(
            "هنوز سال مالی تعریف نشده است؛ بی آن سندی ذخیره نمی‌شود.");
    const QString name =
        head.Id == 0 ? QStringLiteral("سند تازه") : QStringLiteral("سند شمارهٔ %1").arg(head.Number);
    if (head.Confirmed)
        return name + QStringLiteral(" — تأیید شده، فقط برای دیدن");
    if (year->Closed)
        return name + QStringLiteral(" — سال مالی بسته است، فقط برای دیدن");
    return head.Id == 0
               ? name + QStringLiteral(" — شماره هنگام ذخیره داده می‌شود")
               : name;
}

void TVoucherForm::ShowVoucher(const QString& sentence)
{
    TParts& parts = *parts_;
    correcting_ = -1;
    parts.Head->Show(parts.Draft.Head);
    const bool writable = IsWritable();
    parts.Head->SetWritable(writable, parts.Draft.Head.Id == 0);
    parts.Band->Clear();
    parts.Band->Currency().ChooseBase();
    parts.Band->SetCorrecting(false);
    parts.Band->SetEnabled(writable);
    ShowLines(0);
    parts.Totals->Tell(sentence);
}

void TVoucherForm::ShowLines(int row)
{
    parts_->Lines.Announce(row);
    parts_->Totals->Show(parts_->Draft);
}

bool TVoucherForm::Save()
{
    TParts& parts = *parts_;
    parts.Draft.Head = parts.Head->Head();
    if (!BandIsFree())
        return false;
    const TVoucherEntry entry{host_->Settings().UserInfo().Code,
                              QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")),
                              host_->Settings().SettingRecord().IsGregorian()};
    try {
        const TVoucherHead saved = parts.Store.Save(parts.Draft, entry);
        parts.Draft.Load(saved, parts.Draft.Lines());
    } catch (const EVoucherRefused& refused) {
        ShowFault(refused.Fault());
        return false;
    }
    const int row = parts.Lines.CurrentLine();
    ShowVoucher(QStringLiteral("سند شمارهٔ %1 ذخیره شد.").arg(parts.Draft.Head.Number));
    ShowLines(row);
    return true;
}

void TVoucherForm::ShowFault(const TVoucherFault& fault)
{
    if (fault.Line >= 0) {
        ShowLines(fault.Line);
        BeginCorrection();
        parts_->Band->ShowFault(fault);
        return;
    }
    switch (fault.Field) {
    case TVoucherField::Voucher:
        host_->Messages().ShowMessage(fault.Message);
        break;
    case TVoucherField::FiscalYear:
    case TVoucherField::Date:
    case TVoucherField::Title:
        parts_->Head->ShowFault(fault);
        break;
    default:
        parts_->Band->ShowFault(fault);
    }
}
