#include "DetailUniqueCode_UNT.h"

#include "ADOCommand.h"
#include "ADOQuery.h"
#include "ControlEvents.h"
#include "HostServices.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "ui_DetailUniqueCode_UNT.h"

#include <QPointer>
#include <utility>

namespace {

constexpr int CodeLength = 8;
constexpr int UpperBound = 999999999;
/// More than as many users at one moment take the proposed number before this one does.
constexpr int MostProposals = 100;

QString Subject()
{
    return QStringLiteral("کد تفصيلي يکتا");
}

QString Completed(const QString& code)
{
    return Host().CommonLibrary.CompleteCode(code, CodeLength);
}

/// The shared query, open with a statement while this lives.
class TOpenQuery
{
public:
    explicit TOpenQuery(const QString& statement) : query_(Host().DM.SharedQuery())
    {
        query_->Close();
        query_->SQL.SetText(statement);
        query_->Parameters.clear();
        query_->Open();
    }
    TOpenQuery(const TOpenQuery&) = delete;
    TOpenQuery& operator=(const TOpenQuery&) = delete;
    ~TOpenQuery() { query_->Close(); }

    bool HasRows() const { return query_->RecordCount() > 0; }
    int FirstNumber() const { return query_->Field(0)->AsInteger(); }

private:
    TADOQuery* query_;
};

bool IsUsedByAccount(int code)
{
    return code != 0 && TOpenQuery(DetailUniqueCode::AccountsOf(code)).HasRows();
}

bool Passes(quint16 key)
{
    // Only Backspace and the main row's digits edit, not even the keypad's. What the form does with Tab,
    // Enter and Escape is no editing: without them a user of the keyboard could not get out.
    return key == VirtualKey::Back || (key >= VirtualKey::Digit0 && key <= VirtualKey::Digit9) ||
           key == VirtualKey::Tab || key == VirtualKey::Enter || key == VirtualKey::Escape;
}

} // namespace

TDetailUniqueCode_FRME::TDetailUniqueCode_FRME(QWidget* owner) : TFrame(owner)
{
    Ui::TDetailUniqueCode_FRME form;
    form.setupUi(this);
    Label_TRVDEVX7 = form.Label_TRVDEVX7;
    UniqueCode_EDT = form.UniqueCode_EDT;
    Label_TRVDEVX7->SetFocusControl(UniqueCode_EDT);
    UniqueCode_EDT->SetMaxValue(UpperBound);
    setFocusProxy(UniqueCode_EDT);
    BindHandlers();
    FormReady();
}

TDetailUniqueCode_FRME::~TDetailUniqueCode_FRME()
{
    // The edit outlives this class by a few steps of the destruction, and leaving it raises its events.
    UniqueCode_EDT->OnEditValueChange = nullptr;
    UniqueCode_EDT->OnExit = nullptr;
    try {
        RemoveFromCodeLock();
    } catch (const std::exception& error) {
        // Nobody can be told from here; a hold that is not renewed lapses.
        qWarning("The unique code was not released: %s", error.what());
    }
}

void TDetailUniqueCode_FRME::BindHandlers()
{
    UniqueCode_EDT->OnEditValueChange = [this](QObject*) { UniqueCode_EDTEditValueChange(); };
    UniqueCode_EDT->OnExit = [this](QObject*) { UniqueCode_EDTExit(); };
    UniqueCode_EDT->OnKeyDown = [](QObject*, quint16& key, Qt::KeyboardModifiers) {
        if (!Passes(key))
            key = 0;
    };
}

void TDetailUniqueCode_FRME::InitUniqueCode()
{
    RemoveFromCodeLock();
    int proposals = 0;
    while (!TakeProposal() && ++proposals < MostProposals)
        hold_.Release();
    const bool allGone = proposals == MostProposals;
    if (allGone)
        fUDetailCode = 0;
    UniqueCode_EDT->SetText(Completed(QString::number(fUDetailCode)));
    DetailPriUniqueCode = 0;
    if (std::exchange(disabledByUse_, false))
        UniqueCode_EDT->SetEnabled(true);
    if (allGone)
        TellInUse();
}

bool TDetailUniqueCode_FRME::TakeProposal()
{
    fUDetailCode = TOpenQuery(DetailUniqueCode::NextFree(DetailType)).FirstNumber();
    const QString code = QString::number(fUDetailCode);
    return hold_.Take(DetailType, code) || !TUniqueCodeHold::IsHeldByAnother(DetailType, code);
}

void TDetailUniqueCode_FRME::FillUniqueCode(int detailCode)
{
    RemoveFromCodeLock();
    {
        const TOpenQuery stored(DetailUniqueCode::Stored(DetailType, detailCode));
        DetailPriUniqueCode = stored.FirstNumber();
        hold_.Take(DetailType, QString::number(DetailPriUniqueCode));
    }
    fUDetailCode = DetailPriUniqueCode;
    UniqueCode_EDT->SetValue(fUDetailCode);
    disabledByUse_ = UniqueDetailCodeInUse(DetailType, detailCode, false);
    UniqueCode_EDT->SetEnabled(!disabledByUse_);
}

int TDetailUniqueCode_FRME::GetUniqueCodeValue() const
{
    return UniqueCode_EDT->Text().toInt();
}

void TDetailUniqueCode_FRME::SetUniqueCodeValue(int code)
{
    const QString text = code < 1 ? QStringLiteral("00000001") : Completed(QString::number(code));
    if (text.toInt() != fUDetailCode)
        RemoveFromCodeLock();
    UniqueCode_EDT->SetText(text);
    DetailPriUniqueCode = fUDetailCode = text.toInt();
    if (!hold_.IsTaken())
        hold_.Adopt(DetailType, fUDetailCode);
}

bool TDetailUniqueCode_FRME::IsValidated(const TOnInvalideProc& OnInvalid)
{
    IMessages& messages = Host().Messages;
    const int value = GetUniqueCodeValue();
    if (UniqueCode_EDT->Text().isEmpty())
        return Refuse(OnInvalid, [&] { messages.MsgNotSelected(Subject(), UniqueCode_EDT, nullptr); });
    if (value == 0)
        return Refuse(OnInvalid, [&] { messages.MsgRequiredField(Subject(), UniqueCode_EDT, nullptr); });
    if (value != DetailPriUniqueCode && IsUsedByAccount(value))
        return Refuse(OnInvalid, [&] {
            messages.MsgRepeatedCode(QStringLiteral("تفصيلي يکتا"), UniqueCode_EDT, nullptr);
        });
    // A key that saves without leaving the edit may come before the edit has told its value.
    if (value != fUDetailCode && !MoveLock())
        return Refuse(OnInvalid, [this] { TellInUse(); });
    return true;
}

bool TDetailUniqueCode_FRME::Refuse(const TOnInvalideProc& OnInvalid, const std::function<void()>& report)
{
    const QPointer<TDetailUniqueCode_FRME> alive = this;
    if (OnInvalid)
        OnInvalid();
    if (alive)
        report();
    if (alive)
        UniqueCode_EDT->setFocus();
    return false;
}

void TDetailUniqueCode_FRME::SaveDetailUniqueCode(int detailCode) const
{
    TADOCommand* const command = Host().DM.SharedCommand();
    command->CommandText = DetailUniqueCode::Save(DetailType, detailCode, GetUniqueCodeValue());
    command->Parameters.clear();
    command->Execute();
}

void TDetailUniqueCode_FRME::RemoveFromCodeLock()
{
    hold_.Release();
}

void TDetailUniqueCode_FRME::UniqueCode_EDTEditValueChange()
{
    if (!MoveLock())
        TellInUse();
}

void TDetailUniqueCode_FRME::UniqueCode_EDTExit() const
{
    UniqueCode_EDT->SetText(Completed(UniqueCode_EDT->Text()));
}

/// Holds the number in the edit instead of the one before. False where another user has it; the one before is
/// held as it was.
bool TDetailUniqueCode_FRME::MoveLock()
{
    const QString text = UniqueCode_EDT->Text();
    const int value = GetUniqueCodeValue();
    if (value == fUDetailCode && hold_.IsTaken())
        return true;
    if (TUniqueCodeHold::IsHeldByAnother(DetailType, text))
        return false;
    hold_.Release();
    if (!hold_.Take(DetailType, text) && TUniqueCodeHold::IsHeldByAnother(DetailType, text)) {
        // Another user was faster. The number before was free for a moment, too.
        const QString before = QString::number(fUDetailCode);
        if (!hold_.Take(DetailType, before) && TUniqueCodeHold::IsHeldByAnother(DetailType, before))
            fUDetailCode = 0;
        return false;
    }
    fUDetailCode = value;
    return true;
}

void TDetailUniqueCode_FRME::TellInUse()
{
    const QPointer<TDetailUniqueCode_FRME> alive = this;
    Host().Messages.MSGInUse(QStringLiteral("کد تفصیلی یکتا"));
    if (alive)
        UniqueCode_EDT->SetText(fUDetailCode == 0 ? QString() : Completed(QString::number(fUDetailCode)));
}

bool UniqueDetailCodeInUse(TFloatingAccountsType kind, int code, bool showMessage)
{
    const bool isUsed = TOpenQuery(DetailUniqueCode::Uses(kind, code)).HasRows();
    if (isUsed && showMessage)
        Host().Messages.MsgHasSubRecords(Subject());
    return isUsed;
}
