#include "General_Search_UNT.h"

#include "ComponentRegistry.h"
#include "DataSet.h"
#include "HostServices.h"
#include "Look.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "ui_General_Search_UNT.h"
#include "ValueText.h"

#include <algorithm>
#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QPainter>
#include <QScopeGuard>
#include <QTimer>

namespace {

constexpr quint32 PauseMilliseconds = 400;
/// The longest sleep of the wait, so that it notices a clock that was put forward.
constexpr quint32 LongestSleep = 25;

constexpr quint16 EnterKey = VirtualKey::Enter;
constexpr char16_t EnterCharacter = 13;

QString WithoutLeadingBlanks(const QString& text)
{
    const auto first =
        std::find_if(text.begin(), text.end(), [](QChar character) { return !character.isSpace(); });
    return text.mid(first - text.begin());
}

} // namespace

TGeneral_Search_Frame::TGeneral_Search_Frame(QWidget* owner)
    : TFrame(owner), TarvaSearch_General(new TTarvaSearch(this))
{
    Ui::TGeneral_Search_Frame form;
    form.setupUi(this);
    Label_TRVDEVX2 = form.Label_TRVDEVX2;
    Search_CMB = form.Search_CMB;
    Panel1 = form.Panel1;
    Search_EDT = form.Search_EDT;
    SearchCost_EDT = form.SearchCost_EDT;
    SearchDigit_EDT = form.SearchDigit_EDT;
    Search_Reverst_CHK = form.Search_Reverst_CHK;
    Search_Reverst_LBL = form.Search_Reverst_LBL;
    Label_TRVDEVX2->SetFocusControl(Search_CMB);
    // The label beside it carries the same mnemonic; with two holders the key would click neither.
    Search_Reverst_CHK->setShortcut({});

    TSearchItem item;
    item.ItemResult = TSearchItemResult::irProc;
    TarvaSearch_General->setObjectName(QStringLiteral("TarvaSearch_General"));
    TarvaSearch_General->SearchItems.Add(item);
    BindHandlers();
    FormReady();
}

TGeneral_Search_Frame::~TGeneral_Search_Frame() = default;

void TGeneral_Search_Frame::BindHandlers()
{
    Search_CMB->OnChange = [this](QObject*) { Search_CMBPropertiesChange(); };
    for (const TMessage message : {EditChangeMessage, CostChangeMessage, DigitChangeMessage}) {
        EditOf(message)->OnChange = [this, message](QObject*) { EditChanged(message); };
        EditOf(message)->OnKeyPress = [this, message](QObject*, QChar& key) { EditKeyPress(message, key); };
    }
    Search_EDT->OnKeyDown = [this](QObject*, quint16& key, Qt::KeyboardModifiers) { Search_EDTKeyDown(key); };
    Search_Reverst_CHK->OnClick = [this](QObject* sender) { Search_Reverst_CHKClick(sender); };
    Search_Reverst_LBL->OnClick = [this](QObject* sender) { Search_Reverst_CHKClick(sender); };
    TarvaSearch_General->OnChange = [this](QObject*) { TarvaSearch_GeneralChange(); };
    TarvaSearch_General->OnChangeItemIndex = [this](QObject*) { TarvaSearch_GeneralChangeItemIndex(); };
}

void TGeneral_Search_Frame::init()
{
    SetFilter_is_done(true);
    ReverstSearchEnabled(false);
    if (Search_CMB->Count() > 0)
        Search_CMB->Clear();
    const TSearchCollection& items = TarvaSearch_General->SearchItems;
    if (items.Count() == 0)
        return;
    for (int index = 0; index < items.Count(); ++index)
        Search_CMB->AddItem(items.GetItem(index).Title);
    if (TarvaSearch_General->ItemIndex() == -1)
        TarvaSearch_General->SetItemIndex(0);
    Search_CMB->SetItemIndex(TarvaSearch_General->ItemIndex());
    TarvaSearch_GeneralChangeItemIndex();
    TarvaSearch_General->SetActive(true);
}

void TGeneral_Search_Frame::Clear()
{
    ReverstSearchEnabled(false);
    TarvaSearch_General->SetActive(false);
    TarvaSearch_General->SetValue1(QString());
    SettPrimValue = true;
    Search_EDT->Clear();
    Search_Reverst_CHK->SetChecked(false);
    SearchDigit_EDT->Clear();
    SearchCost_EDT->Clear();
    SettPrimValue = false;
    ForgetKeystrokes();
    Search_CMB->SetItemIndex(TarvaSearch_General->ItemIndex());
    TarvaSearch_General->SetActive(true);
}

void TGeneral_Search_Frame::ReverstSearchEnabled(bool enabled) const
{
    Search_Reverst_CHK->setEnabled(enabled);
    Search_Reverst_LBL->setEnabled(enabled);
}

void TGeneral_Search_Frame::SetRet_press(bool pressed)
{
    FRet_press = pressed;
}

void TGeneral_Search_Frame::SetFilter_is_done(bool done)
{
    FFilter_is_done = done;
}

void TGeneral_Search_Frame::Search_CMBPropertiesChange()
{
    SettPrimValue = true;
    TarvaSearch_General->SetItemIndex(Search_CMB->ItemIndex());
    SettPrimValue = false;
}

void TGeneral_Search_Frame::EditChanged(TMessage message)
{
    if (SettPrimValue)
        return;
    InProc = false;
    StartTick = Host().Clock.TickCount();
    FRet_press = false;
    FFilter_is_done = false;
    QCoreApplication::postEvent(this, new QEvent(static_cast<QEvent::Type>(message)));
}

void TGeneral_Search_Frame::EditKeyPress(TMessage message, QChar& key)
{
    if (key != EnterCharacter)
        return;
    SetRet_press(true);
    QCoreApplication::postEvent(this, new QEvent(static_cast<QEvent::Type>(message)));
    key = QChar::Null;
}

void TGeneral_Search_Frame::Search_EDTKeyDown(quint16& key)
{
    QWidget* const follower = TarvaSearch_General->FollowControl();
    if (!follower)
        return;
    if (key == EnterKey || key == VirtualKey::Up || key == VirtualKey::Down) {
        key = 0;
        const QPointer<TGeneral_Search_Frame> guard(this);
        follower->setFocus();
        if (!guard)
            return;
        SetRet_press(true);
    }
    if (Search_EDT->Text().trimmed().isEmpty())
        Search_EDT->SetText(QString());
}

void TGeneral_Search_Frame::Search_Reverst_CHKClick(const QObject* sender) const
{
    if (sender == Search_Reverst_LBL)
        Search_Reverst_CHK->SetChecked(!Search_Reverst_CHK->Checked());
    TarvaSearch_General->SetReverst(Search_Reverst_CHK->Checked());
}

void TGeneral_Search_Frame::TarvaSearch_GeneralChange()
{
    const TSearchItem* item = TarvaSearch_General->CurrentItem();
    if (IndexIsChanged || !item)
        return;
    const QString text = ValueText(TarvaSearch_General->Value1());
    SettPrimValue = true;
    switch (item->DataType) {
    case TSearchDataType::idtString:
        ShowValue(Search_EDT, QString(text).remove(QLatin1Char('\'')));
        ReverstSearchEnabled(!Search_EDT->Text().trimmed().isEmpty());
        SearchCost_EDT->SetText(QStringLiteral("0"));
        SearchDigit_EDT->SetText(QStringLiteral("0"));
        break;
    case TSearchDataType::idtMoney:
        ShowValue(SearchCost_EDT, text);
        ReverstSearchEnabled(!SearchCost_EDT->Text().trimmed().isEmpty() &&
                             SearchCost_EDT->GetValue() != 0.0L);
        Search_EDT->Clear();
        SearchDigit_EDT->SetText(QStringLiteral("0"));
        break;
    case TSearchDataType::idtDigit:
        ShowValue(SearchDigit_EDT, text);
        ReverstSearchEnabled(!SearchDigit_EDT->Text().trimmed().isEmpty() &&
                             SearchDigit_EDT->GetValue() != 0.0L);
        Search_EDT->Clear();
        SearchCost_EDT->SetText(QStringLiteral("0"));
        break;
    case TSearchDataType::idtDateTime:
    case TSearchDataType::idtCodeList:
        break;
    }
    SettPrimValue = false;
}

void TGeneral_Search_Frame::ShowValue(TSmartEdit_TRV* edit, const QString& text)
{
    const TNotifyEvent handler = std::exchange(edit->OnChange, nullptr);
    edit->SetText(text);
    edit->OnChange = handler;
}

void TGeneral_Search_Frame::TarvaSearch_GeneralChangeItemIndex()
{
    if (Search_CMB->ItemIndex() != TarvaSearch_General->ItemIndex())
        Search_CMB->SetItemIndex(TarvaSearch_General->ItemIndex());
    const TSearchItem* item = TarvaSearch_General->CurrentItem();
    IndexIsChanged = true;
    const TNotifyEvent handler = std::exchange(TarvaSearch_General->OnChange, nullptr);
    switch (item ? item->DataType : TSearchDataType::idtDateTime) {
    case TSearchDataType::idtString:
        ResetEdit(Search_EDT, *item);
        break;
    case TSearchDataType::idtMoney:
        ResetEdit(SearchCost_EDT, *item);
        break;
    case TSearchDataType::idtDigit:
        ResetEdit(SearchDigit_EDT, *item);
        break;
    case TSearchDataType::idtDateTime:
    case TSearchDataType::idtCodeList:
        break;
    }
    IndexIsChanged = false;
    TarvaSearch_General->OnChange = handler;
}

void TGeneral_Search_Frame::ResetEdit(TSmartEdit_TRV* edit, const TSearchItem& item)
{
    const bool wasFenced = std::exchange(SettPrimValue, true);
    if (edit->CanTakeFocus())
        TarvaSearch_General->SetFocusControl(edit);
    ShowEdit(edit);
    TarvaSearch_General->SetValue1(QString());
    if (edit == Search_EDT) {
        edit->Clear();
    } else {
        edit->SetValue(0);
        if (item.MaxLength > 0)
            edit->SetMaxLength(item.MaxLength);
    }
    ForgetKeystrokes();
    SettPrimValue = wasFenced;
}

void TGeneral_Search_Frame::ForgetKeystrokes()
{
    for (const TMessage message : {EditChangeMessage, CostChangeMessage, DigitChangeMessage})
        QCoreApplication::removePostedEvents(this, message);
    InProc = false;
    FFilter_is_done = true;
}

void TGeneral_Search_Frame::ShowEdit(TSmartEdit_TRV* shown)
{
    shown->show();
    for (TSmartEdit_TRV* edit : {Search_EDT, SearchCost_EDT, SearchDigit_EDT}) {
        if (edit != shown)
            edit->hide();
    }
}

void TGeneral_Search_Frame::customEvent(QEvent* event)
{
    switch (static_cast<int>(event->type())) {
    case EditChangeMessage:
    case CostChangeMessage:
    case DigitChangeMessage:
        DelayedFiltering(static_cast<TMessage>(event->type()));
        break;
    default:
        TFrame::customEvent(event);
    }
}

void TGeneral_Search_Frame::DelayedFiltering(TMessage message)
{
    InProc = true;
    message_ = message;
    // The wait under way follows the last keystroke anyway; a wait for each would pile up under a held key.
    if (waiting_)
        return;
    const QPointer<TGeneral_Search_Frame> guard(this);
    WaitForPause();
    if (!guard)
        return;
    const auto finish = qScopeGuard([&guard] {
        if (!guard)
            return;
        guard->InProc = false;
        guard->SetRet_press(false);
    });
    if (InProc)
        Apply(message_);
}

void TGeneral_Search_Frame::WaitForPause()
{
    const QPointer<TGeneral_Search_Frame> guard(this);
    QEventLoop loop;
    QTimer wakeUp;
    wakeUp.setSingleShot(true);
    wakeUp.setTimerType(Qt::PreciseTimer);
    waiting_ = true;
    while (guard && !FRet_press) {
        const quint32 passed = Host().Clock.TickCount() - StartTick;
        if (passed >= PauseMilliseconds)
            break;
        wakeUp.start(static_cast<int>(std::min(PauseMilliseconds - passed, LongestSleep)));
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
    if (guard)
        waiting_ = false;
}

void TGeneral_Search_Frame::Apply(TMessage message)
{
    const QPointer<TGeneral_Search_Frame> guard(this);
    TSmartEdit_TRV* const edit = EditOf(message);
    // What is still on its way says no more than the edit does now.
    QCoreApplication::removePostedEvents(this, message);
    CaretPos = edit->CaretPos();
    // A money value of 0 filters by "0" and a digit value of 0 by nothing; the difference is intended.
    if (message == EditChangeMessage)
        ApplyText();
    else
        ApplyNumber(*edit, message == CostChangeMessage ? QStringLiteral("0") : QString());
    if (!guard)
        return;
    invalid_Data = true;
    FFilter_is_done = true;
    if (message == EditChangeMessage)
        edit->SetCaretPos(static_cast<int>(edit->text().size()));
    // Asking for rows may wait for them, so it comes last.
    if (doselection && FRet_press && FoundRows() && guard) {
        const Selection_Proc select = doselection;
        select();
    }
    if (guard)
        edit->SetCaretPos(CaretPos);
}

void TGeneral_Search_Frame::ApplyText()
{
    const QPointer<TGeneral_Search_Frame> guard(this);
    const QString text = WithoutLeadingBlanks(Search_EDT->Text());
    TarvaSearch_General->SetValue1(text);
    if (guard)
        ReverstSearchEnabled(!text.isEmpty());
}

void TGeneral_Search_Frame::ApplyNumber(const TSmartEdit_TRV& edit, const QString& valueOfZero)
{
    const QPointer<TGeneral_Search_Frame> guard(this);
    const auto value = static_cast<double>(edit.GetValue());
    const bool isZero = value == 0.0;
    TarvaSearch_General->SetValue1(isZero ? QVariant(valueOfZero) : QVariant(value));
    if (guard)
        ReverstSearchEnabled(!isZero && !edit.Text().trimmed().isEmpty());
}

bool TGeneral_Search_Frame::FoundRows() const
{
    TDataSet* const dataSet = Refrenc_SearchManager ? Refrenc_SearchManager->DataSet() : nullptr;
    return dataSet && !dataSet->IsEmpty();
}

TSmartEdit_TRV* TGeneral_Search_Frame::EditOf(TMessage message) const
{
    switch (message) {
    case CostChangeMessage:
        return SearchCost_EDT;
    case DigitChangeMessage:
        return SearchDigit_EDT;
    case EditChangeMessage:
        break;
    }
    return Search_EDT;
}

void TGeneral_Search_Frame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), Look::Color(Look::TRole::Band));
}

void Register(TComponentRegistry& registry)
{
    registry.RegisterComponent({
        QStringLiteral("TarvaFrames"),
        QStringLiteral("TGeneral_Search_Frame"),
        QStringLiteral("General_Search_UNT.h"),
        QStringLiteral("جستجو در فهرست"),
        QStringLiteral(
            "<ui language=\"c++\"><widget class=\"TGeneral_Search_Frame\" name=\"General_Search_Frame\">"
            "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>800</width><height>33</height></rect>"
            "</property></widget></ui>"),
        [](QWidget* parent) -> QWidget* { return new TGeneral_Search_Frame(parent); },
    });
}
