#include "Select_AccountCode_UNT.h"

#include "AccountChart.h"
#include "AccountCodeBox.h"
#include "AccountCodeNames.h"
#include "CodeKeys.h"
#include "HostServices.h"
#include "MenuItem.h"
#include "PersianText.h"
#include "ScopedFlag.h"
#include "SmartButton_TRV.h"
#include "SmartLabel_TRV.h"
#include "ui_Select_AccountCode_UNT.h"

#include <QEvent>
#include <QMenu>
#include <QPointer>
#include <QScopeGuard>
#include <utility>

namespace {

constexpr int AccountLength = 3;
constexpr int DetailLength = 6;
constexpr int ExpenseCenterLength = 4;

constexpr TCodeItem AllLevels[] = {TCodeItem::ctTotal, TCodeItem::ctAssistant, TCodeItem::ctDetail,
                                   TCodeItem::ctExpenseCenter};

} // namespace

TSelect_AccountCode::TSelect_AccountCode(QWidget* owner) : TFrame(owner)
{
    Ui::TSelect_AccountCode form;
    form.setupUi(this);
    TotalCode_EDT = form.TotalCode_EDT;
    AssistantCode_EDT = form.AssistantCode_EDT;
    DetailCode_EDT = form.DetailCode_EDT;
    ExpenseCenterCode_EDT = form.ExpenseCenterCode_EDT;
    Separator_LBL = form.Separator_LBL;
    Name_LBL = form.Name_LBL;
    Select_BTN = form.Select_BTN;
    Menu_PUM = new QMenu(this);
    AccCodeSelect_PUM = new TMenuItem(QStringLiteral("کد حساب"), Menu_PUM);
    ExpenseCenter_PUM = new TMenuItem(QStringLiteral("مرکز هزینه"), Menu_PUM);
    Menu_PUM->setObjectName(QStringLiteral("Menu_PUM"));
    Menu_PUM->addActions({AccCodeSelect_PUM, ExpenseCenter_PUM});
    Select_BTN->SetDropDownMenu(Menu_PUM);

    TotalCode_EDT->SetMaxLength(AccountLength);
    AssistantCode_EDT->SetMaxLength(AccountLength);
    DetailCode_EDT->SetMaxLength(DetailLength);
    ExpenseCenterCode_EDT->SetMaxLength(ExpenseCenterLength);
    BindHandlers();
    FormReady();
}

TSelect_AccountCode::~TSelect_AccountCode() = default;

void TSelect_AccountCode::BindHandlers()
{
    for (const TCodeItem level : AllLevels)
        BindBox(level);
    ExpenseCenterCode_EDT->OnChange = [this](QObject*) { ExpenseCenterCode_EDTPropertiesChange(); };
    TotalCode_EDT->OnEditValueChange = [this](QObject*) { TotalCode_EDTEditValueChange(); };
    AssistantCode_EDT->OnEditValueChange = [this](QObject*) { AssistantCode_EDTEditValueChange(); };
    DetailCode_EDT->OnEditValueChange = [this](QObject*) { DetailCode_EDTEditValueChange(); };
    TotalCode_EDT->OnExit = [this](QObject* sender) { TotalCode_EDTExit(sender); };
    AssistantCode_EDT->OnExit = [this](QObject* sender) { AssistantCode_EDTExit(sender); };
    DetailCode_EDT->OnExit = [this](QObject* sender) { DetailCode_EDTExit(sender); };
    ExpenseCenterCode_EDT->OnExit = [this](QObject* sender) { ExpenseCenterCode_EDTExit(sender); };
    Select_BTN->OnClick = [this](QObject* sender) { Select_BTNClick(sender); };
    AccCodeSelect_PUM->OnClick = [this](QObject* sender) { AccCodeSelect_PUMClick(sender); };
    ExpenseCenter_PUM->OnClick = [this](QObject* sender) { ExpenseCenter_PUMClick(sender); };
}

void TSelect_AccountCode::BindBox(TCodeItem level)
{
    TSmartEdit_TRV* const box = BoxOf(level);
    box->OnKeyPress = [this](QObject* sender, QChar& key) { Code_EDTKeyPress(sender, key); };
    box->OnEnter = [this, level](QObject*) { Code_EDTEnter(level); };
    box->OnChange = [this](QObject* sender) { Code_EDTChange(sender); };
    box->OnPaste = [this](QObject* sender, QString& text) { Code_EDTPaste(sender, text); };
    // Not only keys change a code: there are the menu's cut and paste, and the Delete key, which is no
    // character.
    connect(box, &QLineEdit::textEdited, this, [this] { SetAllowClear(true); });
    // A placeholder is no text of the user's: there is nothing to select, copy or drag away.
    connect(box, &QLineEdit::selectionChanged, this, [box] {
        if (AccountCodeBox::ShowsPlaceholder(*box))
            box->deselect();
    });
}

void TSelect_AccountCode::init()
{
    Select_BTN->hide();
    SetAllowClear(false);
    for (const TCodeItem level : AllLevels)
        BoxOf(level)->setVisible(FCodeItem.Contains(level));
    const bool both = FCodeItem.Contains(TCodeItem::ctExpenseCenter) && FCodeItem.ContainsAccount();
    Separator_LBL->setVisible(both);
    Select_BTN->show();
    PlaceExpenseCenter();
    Select_BTN->SetButtonKind(both ? TSmartButton_TRV::bkDropDown : TSmartButton_TRV::bkStandard);
    Select_BTN->SetAutoWidth(false);
    Select_BTN->SetAutoWidth(true);
    Clear();
}

// The form has the separator before the detail box; it belongs between the account and the expense center.
void TSelect_AccountCode::PlaceExpenseCenter()
{
    auto* const line = qobject_cast<QBoxLayout*>(layout());
    for (QWidget* const widget :
         {static_cast<QWidget*>(Separator_LBL), static_cast<QWidget*>(ExpenseCenterCode_EDT)}) {
        line->removeWidget(widget);
        line->insertWidget(line->indexOf(Select_BTN), widget);
    }
}

void TSelect_AccountCode::Clear()
{
    for (const TCodeItem level : AllLevels)
        AccountCodeBox::ShowPlaceholder(*BoxOf(level), AccountCodeNames::OfLevel(level));
    accountName_.clear();
    Name_LBL->Clear();
}

void TSelect_AccountCode::ClearPart(TCodeItem level)
{
    TSmartEdit_TRV* const box = BoxOf(level);
    if (level != TCodeItem::ctExpenseCenter) {
        box->Clear();
        RunExit(level, nullptr);
        return;
    }
    const QPointer<TSelect_AccountCode> guard(this);
    const auto reattach = qScopeGuard([guard, box, change = std::exchange(box->OnChange, nullptr),
                                       valueChange = std::exchange(box->OnEditValueChange, nullptr)] {
        if (!guard)
            return;
        box->OnChange = change;
        box->OnEditValueChange = valueChange;
    });
    box->Clear();
    RunExit(level, nullptr);
}

void TSelect_AccountCode::refresh()
{
    const QPointer<TSelect_AccountCode> guard(this);
    for (const TCodeItem level : AllLevels) {
        if (guard && FCodeItem.Contains(level))
            RunExit(level, nullptr);
    }
}

void TSelect_AccountCode::Enabled(bool enable, bool clear)
{
    for (const TCodeItem level : AllLevels)
        BoxOf(level)->SetEnabled(enable);
    Select_BTN->setEnabled(enable);
    if (clear)
        Clear();
}

bool TSelect_AccountCode::IsEmpty() const
{
    for (const TCodeItem level : AllLevels) {
        if (FCodeItem.Contains(level) && CodeOf(level) != 0)
            return false;
    }
    return true;
}

bool TSelect_AccountCode::IsValid() const
{
    bool found = false;
    HesabName(found);
    return found;
}

int TSelect_AccountCode::GetTotalCode() const
{
    return CodeOf(TCodeItem::ctTotal);
}

int TSelect_AccountCode::GetAssistantCode() const
{
    return CodeOf(TCodeItem::ctAssistant);
}

int TSelect_AccountCode::GetDetailCode() const
{
    return CodeOf(TCodeItem::ctDetail);
}

int TSelect_AccountCode::GetExpCenterCode() const
{
    return CodeOf(TCodeItem::ctExpenseCenter);
}

void TSelect_AccountCode::SetTotalCode(int code)
{
    WriteCode(TCodeItem::ctTotal, code);
}

void TSelect_AccountCode::SetAssistantCode(int code)
{
    const QPointer<TSelect_AccountCode> guard(this);
    RaiseValueChange(AssistantCode_EDT);
    if (guard)
        WriteCode(TCodeItem::ctAssistant, code);
    if (guard)
        SetDetailCode(0);
}

void TSelect_AccountCode::SetDetailCode(int code)
{
    WriteCode(TCodeItem::ctDetail, code);
}

void TSelect_AccountCode::SetExpCenterCode(int code)
{
    if (code == 0)
        AccountCodeBox::ShowPlaceholder(*ExpenseCenterCode_EDT, AccountCodeNames::ExpenseCenter);
    else
        WriteText(TCodeItem::ctExpenseCenter, QString::number(code));
    ExpenseCenterCode_EDTExit(nullptr);
}

int TSelect_AccountCode::CodeOf(TCodeItem level) const
{
    return AccountCodeBox::Code(*BoxOf(level));
}

void TSelect_AccountCode::WriteText(TCodeItem level, const QString& text)
{
    TSmartEdit_TRV* const box = BoxOf(level);
    // Only a user who is in the box is moved on.
    const TScopedFlag inBox(this, advances_, advances_ && box->hasFocus());
    AccountCodeBox::StyleAsCode(*box);
    box->SetText(text);
}

void TSelect_AccountCode::RestorePlaceholder(TCodeItem level) const
{
    if (BoxOf(level)->Text().isEmpty())
        AccountCodeBox::ShowPlaceholder(*BoxOf(level), AccountCodeNames::OfLevel(level));
}

void TSelect_AccountCode::SetCodeItem(TCodeItems levels)
{
    FCodeItem = levels;
}

void TSelect_AccountCode::SetCodeItemBits(int bits)
{
    FCodeItem = TCodeItems::FromBits(static_cast<unsigned>(bits));
}

void TSelect_AccountCode::SetSingleForm(bool single)
{
    FSingleForm = single;
}

bool TSelect_AccountCode::OnBand() const
{
    return Name_LBL->OnBand();
}

void TSelect_AccountCode::SetOnBand(bool on) const
{
    Name_LBL->SetOnBand(on);
    Separator_LBL->SetOnBand(on);
}

void TSelect_AccountCode::SetDisableOnChange(bool disable)
{
    FDisableOnChange = disable;
}

void TSelect_AccountCode::SetSelectCodeProperties(TPropertiesItems properties)
{
    FSelectCodeProperties = properties;
}

void TSelect_AccountCode::SetGroupTypeFilter(TSelectGroups groups)
{
    FGroupTypeFilter = groups;
}

void TSelect_AccountCode::SetGroupType(THCSelectGroups group)
{
    FGroupType = group;
}

void TSelect_AccountCode::SetAllowClear(bool allow)
{
    FAllowClear = allow;
}

void TSelect_AccountCode::SetOnChange(TNotifyEvent handler)
{
    OnChange = std::move(handler);
}

void TSelect_AccountCode::Code_EDTKeyPress(QObject* sender, QChar& key)
{
    constexpr QChar Tab(9);
    constexpr QChar Enter(13);
    if (const int digit = PersianText::DigitValue(key); digit >= 0)
        key = QChar(u'0' + digit);
    if (key == u'+')
        Select_BTN->Click(); // may destroy the frame, of which nothing is touched behind it
    else if (CodeKeys::ValidateKey(key)) {
        if (key.isNull() || key == Tab || key == Enter)
            return;
        if (auto* const box = qobject_cast<TSmartEdit_TRV*>(sender))
            AccountCodeBox::RemovePlaceholder(*box);
        SetAllowClear(true);
        return;
    }
    key = QChar::Null;
}

void TSelect_AccountCode::Code_EDTChange(QObject* sender) const
{
    const auto* const box = qobject_cast<TSmartEdit_TRV*>(sender);
    if (!box || !advances_)
        return;
    const QString text = box->Text();
    if (!text.isEmpty() && text.size() == box->MaxLength() && !CodeKeys::IsCharacter(text.front()) &&
        box->hasFocus())
        PostTabStroke();
}

// Only the press is sent, and wherever the focus is, which is intended.
void TSelect_AccountCode::ExpenseCenterCode_EDTPropertiesChange() const
{
    const QString text = ExpenseCenterCode_EDT->Text();
    const int length = ExpenseCenterCode_EDT->MaxLength();
    if (advances_ && length > 0 && text.size() == length &&
        text.front() != AccountCodeNames::ExpenseCenter.front())
        PostTabDown();
}

void TSelect_AccountCode::Code_EDTEnter(TCodeItem level)
{
    FActiveItem = level;
    TSmartEdit_TRV* const box = BoxOf(level);
    AccountCodeBox::RemovePlaceholder(*box);
    AccountCodeBox::StyleAsCode(*box);
    box->selectAll(); // a box that is full takes no key before something of it is selected
}

void TSelect_AccountCode::Code_EDTPaste(QObject* sender, QString& text)
{
    if (auto* const box = qobject_cast<TSmartEdit_TRV*>(sender))
        AccountCodeBox::TakeDigits(*box, std::exchange(text, QString()));
}

void TSelect_AccountCode::TotalCode_EDTEditValueChange()
{
    RaiseEvent(OnTotalCodeChanged, &TSelect_AccountCode::totalCodeChanged);
}

void TSelect_AccountCode::AssistantCode_EDTEditValueChange()
{
    RaiseEvent(OnAssistantCodeChanged, &TSelect_AccountCode::assistantCodeChanged);
}

void TSelect_AccountCode::DetailCode_EDTEditValueChange()
{
    RaiseEvent(OnDetailCodeChanged, &TSelect_AccountCode::detailCodeChanged);
}

void TSelect_AccountCode::changeEvent(QEvent* event)
{
    TFrame::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || !ExpenseCenterCode_EDT)
        return;
    for (const TCodeItem level : AllLevels)
        AccountCodeBox::Restyle(*BoxOf(level));
}

TSmartEdit_TRV* TSelect_AccountCode::BoxOf(TCodeItem level) const
{
    switch (level) {
    case TCodeItem::ctTotal:
        return TotalCode_EDT;
    case TCodeItem::ctAssistant:
        return AssistantCode_EDT;
    case TCodeItem::ctDetail:
        return DetailCode_EDT;
    case TCodeItem::ctExpenseCenter:
        break;
    }
    return ExpenseCenterCode_EDT;
}
