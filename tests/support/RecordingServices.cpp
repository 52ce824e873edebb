#include "RecordingServices.h"

#include <QLabel>

namespace {

QString ZeroFilled(const QString& code, int length)
{
    return code.isEmpty() ? code : code.rightJustified(length, QLatin1Char('0'));
}

QString LockKey(const QString& code, TSoftwarePart part)
{
    return QStringLiteral("%1:%2").arg(static_cast<int>(part)).arg(code);
}

} // namespace

QString TRecordingCommonLibrary::CompleteCode(const QString& code, int length)
{
    log_.Note(QStringLiteral("CompleteCode"), code, length);
    return ZeroFilled(code, length);
}

QString TRecordingCommonLibrary::FloatToStr_TRV(long double value)
{
    log_.Note(QStringLiteral("FloatToStr_TRV"), value);
    return QString::number(static_cast<double>(value), 'g', 15);
}

QVariant TRecordingCommonLibrary::LookupDBs(const QString& code, const QString& fields,
                                            LocateDBsOptions option, QWidget* control,
                                            PerLocateOptions persons)
{
    log_.Note(QStringLiteral("LookupDBs"), code, fields, option, control, persons);
    if (WhileLookingUp)
        WhileLookingUp();
    const auto found = Lookups.find({option, code});
    return found == Lookups.end() ? QVariant() : found->second;
}

void TRecordingCommonLibrary::ResetDataset(TADOQuery* query)
{
    log_.Note(QStringLiteral("ResetDataset"), query ? QStringLiteral("query") : QStringLiteral("-"));
}

void TRecordingCommonLibrary::SetWinControlRightAlign(QWidget* control)
{
    log_.Note(QStringLiteral("SetWinControlRightAlign"), control);
}

bool TRecordingCommonLibrary::LocateLockCode_SoftwarePart(const QString& code, TSoftwarePart part, int option,
                                                          bool showMessage)
{
    log_.Note(QStringLiteral("LocateLockCode_SoftwarePart"), code, part, option, showMessage);
    return HeldByOthers.contains(LockKey(code, part));
}

bool TRecordingCommonLibrary::OperationOnLockCode_SoftwarePart(const QString& code, TSoftwarePart part,
                                                               int option, TOperationType operation,
                                                               bool showMessage)
{
    log_.Note(QStringLiteral("OperationOnLockCode_SoftwarePart"), code, part, option, operation, showMessage);
    const QString key = LockKey(code, part);
    if (operation == TOperationType::otUnlock)
        return Held.removeAll(key) > 0;
    if (HeldByOthers.contains(key))
        return false;
    if (!Held.contains(key))
        Held.append(key);
    return true;
}

QString TRecordingAccounting::CompleteCode(const QString& code, int length)
{
    log_.Note(QStringLiteral("Accounting.CompleteCode"), code, length);
    return ZeroFilled(code, length);
}

QString TRecordingAccounting::AccGroupsToString(TSelectGroups groups)
{
    log_.Note(QStringLiteral("AccGroupsToString"), groups.Bits());
    QStringList ordinals;
    for (unsigned ordinal = 0; ordinal < 32; ++ordinal) {
        if ((groups.Bits() >> ordinal & 1U) != 0)
            ordinals.append(QString::number(ordinal));
    }
    return ordinals.join(QLatin1Char(','));
}

QString TRecordingAccounting::GetHesabName(const QString& total, const QString& assistant,
                                           const QString& detail, THesabType kind, bool& found)
{
    log_.Note(QStringLiteral("GetHesabName"), total, assistant, detail, kind);
    const auto name = Names.constFind(QStringList{total, assistant, detail}.join(QLatin1Char('/')));
    const bool isNamed = name != Names.constEnd();
    found = isNamed || KnowsAll;
    return isNamed ? *name : QString();
}

bool TRecordingAccounting::VoucherConflicts()
{
    log_.Note(QStringLiteral("VoucherConflicts"));
    return Conflicts;
}

bool TRecordingAccounting::ExistRefreshAutoVoucher()
{
    log_.Note(QStringLiteral("ExistRefreshAutoVoucher"));
    return RefreshAwaits;
}

void TRecordingAccounting::SaveAutoVouchersAgain(const QString& from, const QString& to, const QString& kinds,
                                                 int number)
{
    log_.Note(QStringLiteral("SaveAutoVouchersAgain"), from, to, kinds, number);
    if (WhileRegenerating)
        WhileRegenerating();
}

void TRecordingAccounting::VoucherConflictThread_Start(QWidget* control)
{
    log_.Note(QStringLiteral("VoucherConflictThread_Start"), control);
    ConflictControl = control;
}

int TRecordingPickers::Pick() const
{
    if (WhilePicking)
        WhilePicking();
    return Picked;
}

int TRecordingPickers::Select_Entity(TSoftwarePart part, const QString& argument, bool all)
{
    log_.Note(QStringLiteral("Select_Entity"), part, argument, all);
    return Pick();
}

int TRecordingPickers::Select_GroupList(TSoftwarePart part, const QString& argument)
{
    log_.Note(QStringLiteral("Select_GroupList"), part, argument);
    return Pick();
}

THCSelectedCode TRecordingPickers::Select_AccountCodes(TSelectGroups groups, const QString& total,
                                                       const QString& assistant, const QString& detail,
                                                       quint8 focusLevel)
{
    log_.Note(QStringLiteral("Select_AccountCodes"), groups.Bits(), total, assistant, detail, focusLevel);
    Pick();
    return PickedAccount;
}

int TRecordingPickers::Select_AccTotals1(const QString& groups, const QString& code)
{
    log_.Note(QStringLiteral("Select_AccTotals1"), groups, code);
    return Pick();
}

int TRecordingPickers::Select_AccAssistants1(int total, const QString& code)
{
    log_.Note(QStringLiteral("Select_AccAssistants1"), total, code);
    return Pick();
}

int TRecordingPickers::Select_AccDetails1(int total, int assistant, const QString& code)
{
    log_.Note(QStringLiteral("Select_AccDetails1"), total, assistant, code);
    return Pick();
}

int TRecordingPickers::Call_insert_tags(const QString& name, quint8 mode)
{
    log_.Note(QStringLiteral("Call_insert_tags"), name, mode);
    if (WhilePicking)
        WhilePicking();
    return CreatedTag;
}

ILibraries::THandle TRecordingLibraries::Tarva_LoadLibrary(const QString& library)
{
    log_.Note(QStringLiteral("Tarva_LoadLibrary"), library);
    return Loadable.value(library, 0);
}

void TRecordingLibraries::Tarva_FreeLibrary(const QString& library, THandle handle)
{
    log_.Note(QStringLiteral("Tarva_FreeLibrary"), library, handle);
}

QFunctionPointer TRecordingLibraries::FindFunction(THandle handle, const QByteArray& function)
{
    log_.Note(QStringLiteral("FindFunction"), handle, QString::fromLatin1(function));
    return Functions.value(function, nullptr);
}

int TRecordingLibraries::Run_DLL_FuncReturnInt(const QString& library, const QString& function)
{
    log_.Note(QStringLiteral("Run_DLL_FuncReturnInt"), library, function);
    if (WhileRunning)
        WhileRunning();
    return Result;
}

void TRecordingMessages::MsgCodeNotAvailable(const QString& subject, QWidget* control, QWidget* form)
{
    log_.Note(QStringLiteral("MsgCodeNotAvailable"), subject, control, form);
    if (WhileShown)
        WhileShown(control);
}

void TRecordingMessages::MsgNotSelected(const QString& subject, QWidget* control, QWidget* form)
{
    log_.Note(QStringLiteral("MsgNotSelected"), subject, control, form);
}

void TRecordingMessages::MsgRepeatedCode(const QString& subject, QWidget* control, QWidget* form)
{
    log_.Note(QStringLiteral("MsgRepeatedCode"), subject, control, form);
}

void TRecordingMessages::MsgRequiredField(const QString& subject, QWidget* control, QWidget* form)
{
    log_.Note(QStringLiteral("MsgRequiredField"), subject, control, form);
}

void TRecordingMessages::MsgHasSubRecords(const QString& subject)
{
    log_.Note(QStringLiteral("MsgHasSubRecords"), subject);
}

void TRecordingMessages::MSGInUse(const QString& subject)
{
    log_.Note(QStringLiteral("MSGInUse"), subject);
}

TMessageResult TRecordingMessages::ShowSmartMessage(TConfirmationMessage message, TMessageButtons buttons,
                                                    int defaultButton)
{
    log_.Note(QStringLiteral("Confirm"), message, buttons, defaultButton);
    if (WhileAsked)
        WhileAsked();
    return Answer;
}

void TRecordingMessages::ShowSmartMessage(TNotificationMessage message, const TMessageArguments& arguments,
                                          QWidget* control, QWidget* form)
{
    log_.Note(QStringLiteral("Notify"), message, arguments[0], control, form);
    if (WhileShown)
        WhileShown(control);
}

void TRecordingMessages::ShowTooltipMessage(const TTooltip& tooltip)
{
    log_.Note(QStringLiteral("ShowTooltipMessage"), tooltip.Title, tooltip.Text, tooltip.Control,
              tooltip.Milliseconds, tooltip.Kind);
    LastTooltip = tooltip;
}

void TRecordingMessages::ShowMessage(const QString& text)
{
    log_.Note(QStringLiteral("ShowMessage"), text);
}

bool TRecordingPictures::LoadFromDb(QImage& picture, TField* field)
{
    log_.Note(QStringLiteral("LoadFromDb"), field ? QStringLiteral("field") : QStringLiteral("-"));
    picture = Picture;
    return !picture.isNull();
}

void TRecordingPictures::FitPicture(QLabel* image, int left, int top, int width, int height)
{
    log_.Note(QStringLiteral("FitPicture"), static_cast<QWidget*>(image), left, top, width, height);
}
