#include "DetailAccountCard.h"

#include "DetailUniqueCode_UNT.h"
#include "EnterChain.h"
#include "FormParts.h"
#include "Look.h"
#include "PersianText.h"
#include "ReferenceHost.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "UnsavedQuestion.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr int cardFieldWidth = 380;
constexpr int accountDigits = 6;

void ChooseObject(TSmartComboBox_TRV& box, int object)
{
    for (int index = 0; index < box.Count(); ++index) {
        if (box.ItemObject(index) == object)
            box.SetItemIndex(index);
    }
}

int ChosenObject(const TSmartComboBox_TRV& box)
{
    return box.ItemIndex() < 0 ? 0 : static_cast<int>(box.ItemObject(box.ItemIndex()));
}

void AddField(QFormLayout* form, const QString& caption, QWidget* control)
{
    control->setAccessibleName(QString(caption).remove(u'&').remove(u':'));
    control->setFixedSize(cardFieldWidth, Look::ControlHeight);
    form->addRow(FormParts::NewLabel(caption, control), control);
}

} // namespace

TDetailAccountCard::TDetailAccountCard(TReferenceHost& host, int kind, QWidget* parent)
    : TDetailAccountCard(host, TDetailAccount{kind, 0, {}, 0, true}, parent)
{
}

TDetailAccountCard::TDetailAccountCard(TReferenceHost& host, const TDetailAccount& account, QWidget* parent)
    : QDialog(parent), host_(&host), store_(host.Connection()), loaded_(account), isNew_(account.Code == 0),
      kind_(new TSmartComboBox_TRV(this)), code_(new TSmartEdit_TRV(this)), name_(new TSmartEdit_TRV(this)),
      currency_(new TSmartComboBox_TRV(this)), active_(new TSmartCheckBox_TRV(this)),
      uniqueCode_(new TDetailUniqueCode_FRME(this))
{
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(isNew_ ? QStringLiteral("حساب تفصیلی تازه") : QStringLiteral("حساب تفصیلی"));
    Lay();
    FillBoxes();
    Show(loaded_);
    if (isNew_)
        ProposeCodes();
    else
        uniqueCode_->FillUniqueCode(loaded_.Code);
    // An account from a time without numbers gets one now.
    if (!isNew_ && uniqueCode_->GetUniqueCodeValue() == 0)
        uniqueCode_->InitUniqueCode();
    loadedNumber_ = uniqueCode_->GetUniqueCodeValue();
    name_->setFocus();
}

TDetailAccountCard::~TDetailAccountCard() = default;

void TDetailAccountCard::Lay()
{
    auto* heading = new TSmartLabel_TRV(this);
    heading->SetCaption(windowTitle());
    auto* column = FormParts::NewCardColumn(this, heading);
    auto* form = FormParts::NewCardFields();
    AddField(form, QStringLiteral("&نوع حساب:"), kind_);
    AddField(form, QStringLiteral("&کد:"), code_);
    AddField(form, QStringLiteral("نا&م:"), name_);
    AddField(form, QStringLiteral("&ارز:"), currency_);
    active_->setText(QStringLiteral("&فعال"));
    form->addRow(new QWidget(this), active_);
    column->addLayout(form);
    auto* numberRow = new QHBoxLayout;
    // With the frame's own, those of the fields.
    numberRow->setContentsMargins(Look::Margin, 0, Look::Margin, 0);
    numberRow->addWidget(uniqueCode_);
    column->addLayout(numberRow);
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(Look::GroupGap, 0, Look::GroupGap, 0);
    FormParts::AddSaveButtons(buttons, this, [this] { Save(); });
    column->addLayout(buttons);
    code_->SetMaxLength(accountDigits);
    code_->OnKeyPress = [](QObject*, QChar& key) {
        if (key.isPrint() && !key.isDigit())
            key = QChar();
    };
    name_->SetMaxLength(TDetailAccountStore::LongestName);
    auto* chain =
        new TEnterChain({kind_, code_, name_, currency_, active_, uniqueCode_->UniqueCode_EDT}, this);
    connect(chain, &TEnterChain::finished, this, &TDetailAccountCard::Save);
}

void TDetailAccountCard::FillBoxes()
{
    for (const TNamedCode& kind : store_.Kinds())
        kind_->AddItem(kind.Name, kind.Code);
    currency_->AddItem(QStringLiteral("ارز پایه"), 0);
    for (const TNamedCode& currency : store_.Currencies())
        currency_->AddItem(currency.Name, currency.Code);
    kind_->OnChange = [this](QObject*) { ProposeCodes(); };
}

void TDetailAccountCard::Show(const TDetailAccount& account)
{
    ChooseObject(*kind_, account.Kind);
    ChooseObject(*currency_, account.Currency);
    code_->SetText(account.Code == 0 ? QString() : QString::number(account.Code));
    name_->SetText(account.Name);
    active_->SetChecked(account.Active);
    // They are the account's key.
    kind_->setEnabled(isNew_);
    code_->setEnabled(isNew_);
    uniqueCode_->DetailType = static_cast<TFloatingAccountsType>(account.Kind);
}

// For a new account only, and anew for each kind that is chosen.
void TDetailAccountCard::ProposeCodes()
{
    const int kind = ChosenObject(*kind_);
    const int code = store_.NextCode(kind);
    code_->SetText(code == 0 ? QString() : QString::number(code));
    uniqueCode_->DetailType = static_cast<TFloatingAccountsType>(kind);
    uniqueCode_->InitUniqueCode();
    loaded_.Kind = kind;
    loaded_.Code = code;
    loadedNumber_ = uniqueCode_->GetUniqueCodeValue();
}

TDetailAccount TDetailAccountCard::Account() const
{
    return {ChosenObject(*kind_), PersianText::AsciiDigits(code_->Text()).toInt(), name_->Text(),
            ChosenObject(*currency_), active_->Checked()};
}

bool TDetailAccountCard::IsChanged() const
{
    return Account() != loaded_ || uniqueCode_->GetUniqueCodeValue() != loadedNumber_;
}

bool TDetailAccountCard::Save()
{
    const TDetailAccount account = Account();
    try {
        if (!uniqueCode_->IsValidated())
            return false;
        Write(account);
    } catch (const EDetailRefused& fault) {
        ShowFault(fault);
        return false;
    }
    Q_EMIT saved(QStringLiteral("حساب «%1» با کد یکتای %2 ذخیره شد.")
                     .arg(PersianText::Isolated(account.Name.trimmed()),
                          PersianText::Isolated(uniqueCode_->UniqueCode_EDT->Text())));
    accept();
    return true;
}

void TDetailAccountCard::Write(const TDetailAccount& account)
{
    const auto saveNumber = [this, &account] { uniqueCode_->SaveDetailUniqueCode(account.Code); };
    if (isNew_)
        store_.Insert(account, saveNumber);
    else
        store_.Update(account, loaded_, saveNumber);
}

void TDetailAccountCard::ShowFault(const EDetailRefused& fault)
{
    if (fault.Field() == TDetailField::Account) {
        host_->Messages().ShowMessage(fault.Message());
        return;
    }
    TSmartEdit_TRV* control = fault.Field() == TDetailField::Code   ? code_
                              : fault.Field() == TDetailField::Name ? name_
                                                                    : uniqueCode_->UniqueCode_EDT;
    control->setFocus(Qt::OtherFocusReason);
    control->ShowError(fault.Message());
}

void TDetailAccountCard::reject()
{
    if (IsChanged()) {
        const TUnsavedAnswer answer = AskAboutUnsaved(
            this, QStringLiteral("این حساب تغییر کرده و ذخیره نشده است. پیش از بستن ذخیره شود؟"));
        if (answer == TUnsavedAnswer::Stay)
            return;
        if (answer == TUnsavedAnswer::Save) {
            Save();
            return;
        }
    }
    QDialog::reject();
}
