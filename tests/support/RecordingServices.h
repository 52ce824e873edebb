#pragma once

#include "CallLog.h"
#include "HostServices.h"

#include <functional>
#include <map>
#include <QHash>
#include <QPointer>
#include <QWidget>

/// The services of TRecordingHost: each notes its calls in the host's log and answers from what the test has
/// filled in. Questions nobody has filled in an answer for get "nothing" (0, empty, null).

/// Hands out the connection, query and command that the test has set.
class TRecordingDataModule : public IDataModule
{
public:
    TADOConnection* ADOConnection1() override { return Connection; }
    TADOQuery* SharedQuery() override { return Query; }
    TADOCommand* SharedCommand() override { return Command; }

    TADOConnection* Connection = nullptr;
    TADOQuery* Query = nullptr;
    TADOCommand* Command = nullptr;
};

class TRecordingSettings : public ISettings
{
public:
    const TSettingRecord& SettingRecord() const override { return Record; }
    const TIniOptions& IniOptions() const override { return Options; }
    const TUserInfo& UserInfo() const override { return User; }

    TSettingRecord Record;
    TIniOptions Options;
    TUserInfo User{1, QStringLiteral("کاربر آزمون")};
};

class TRecordingCommonLibrary : public ICommonLibrary
{
public:
    explicit TRecordingCommonLibrary(TCallLog& log) : log_(log) {}

    /// Zeros in front, as hosts usually do; an empty code stays empty.
    QString CompleteCode(const QString& code, int length) override;
    QString FloatToStr_TRV(long double value) override;
    QVariant LookupDBs(const QString& code, const QString& fields, LocateDBsOptions option, QWidget* control,
                       PerLocateOptions persons) override;
    void ResetDataset(TADOQuery* query) override;
    void SetWinControlRightAlign(QWidget* control) override;
    bool LocateLockCode_SoftwarePart(const QString& code, TSoftwarePart part, int option,
                                     bool showMessage) override;
    bool OperationOnLockCode_SoftwarePart(const QString& code, TSoftwarePart part, int option,
                                          TOperationType operation, bool showMessage) override;

    std::map<std::pair<LocateDBsOptions, QString>, QVariant> Lookups; ///< by option and code as typed
    std::function<void()> WhileLookingUp;                             ///< runs before a lookup answers
    QStringList HeldByOthers;                                         ///< "part:code"
    QStringList Held;                                                 ///< "part:code" that this user holds

private:
    TCallLog& log_;
};

class TRecordingAccounting : public IAccounting
{
public:
    explicit TRecordingAccounting(TCallLog& log) : log_(log) {}

    QString CompleteCode(const QString& code, int length) override;
    QString AccGroupsToString(TSelectGroups groups) override;
    QString GetHesabName(const QString& total, const QString& assistant, const QString& detail,
                         THesabType kind, bool& found) override;
    bool VoucherConflicts() override;
    bool ExistRefreshAutoVoucher() override;
    void SaveAutoVouchersAgain(const QString& from, const QString& to, const QString& kinds,
                               int number) override;
    void VoucherConflictThread_Start(QWidget* control) override;

    QHash<QString, QString> Names; ///< by "total/assistant/detail"; what is not here is not found
    bool KnowsAll = false;         ///< what is not in Names is found too, without a name
    bool Conflicts = false;
    bool RefreshAwaits = false;
    std::function<void()> WhileRegenerating; ///< runs during SaveAutoVouchersAgain
    QPointer<QWidget> ConflictControl;       ///< handed over by the last VoucherConflictThread_Start

private:
    TCallLog& log_;
};

class TRecordingPickers : public IPickers
{
public:
    explicit TRecordingPickers(TCallLog& log) : log_(log) {}

    int Select_Entity(TSoftwarePart part, const QString& argument, bool all) override;
    int Select_GroupList(TSoftwarePart part, const QString& argument) override;
    THCSelectedCode Select_AccountCodes(TSelectGroups groups, const QString& total, const QString& assistant,
                                        const QString& detail, quint8 focusLevel) override;
    int Select_AccTotals1(const QString& groups, const QString& code) override;
    int Select_AccAssistants1(int total, const QString& code) override;
    int Select_AccDetails1(int total, int assistant, const QString& code) override;
    int Call_insert_tags(const QString& name, quint8 mode) override;

    int Picked = 0; ///< what the lists answer
    THCSelectedCode PickedAccount;
    int CreatedTag = 0;
    std::function<void()> WhilePicking; ///< runs while a list or the tag dialog is "open"

private:
    int Pick() const;

    TCallLog& log_;
};

class TRecordingLibraries : public ILibraries
{
public:
    explicit TRecordingLibraries(TCallLog& log) : log_(log) {}

    THandle Tarva_LoadLibrary(const QString& library) override;
    void Tarva_FreeLibrary(const QString& library, THandle handle) override;
    QFunctionPointer FindFunction(THandle handle, const QByteArray& function) override;
    int Run_DLL_FuncReturnInt(const QString& library, const QString& function) override;

    QHash<QString, THandle> Loadable;
    QHash<QByteArray, QFunctionPointer> Functions;
    int Result = 0;
    std::function<void()> WhileRunning; ///< runs during Run_DLL_FuncReturnInt

private:
    TCallLog& log_;
};

class TRecordingMessages : public IMessages
{
public:
    explicit TRecordingMessages(TCallLog& log) : log_(log) {}

    void MsgCodeNotAvailable(const QString& subject, QWidget* control, QWidget* form) override;
    void MsgNotSelected(const QString& subject, QWidget* control, QWidget* form) override;
    void MsgRepeatedCode(const QString& subject, QWidget* control, QWidget* form) override;
    void MsgRequiredField(const QString& subject, QWidget* control, QWidget* form) override;
    void MsgHasSubRecords(const QString& subject) override;
    void MSGInUse(const QString& subject) override;
    TMessageResult ShowSmartMessage(TConfirmationMessage message, TMessageButtons buttons,
                                    int defaultButton) override;
    void ShowSmartMessage(TNotificationMessage message, const TMessageArguments& arguments, QWidget* control,
                          QWidget* form) override;
    void ShowTooltipMessage(const TTooltip& tooltip) override;
    void ShowMessage(const QString& text) override;

    TMessageResult Answer = TMessageResult::mrNo;
    std::function<void()> WhileAsked; ///< runs while a confirmation is "open"
    std::function<void(QWidget* control)>
        WhileShown; ///< runs while MsgCodeNotAvailable or a notification is "open"
    TTooltip LastTooltip;

private:
    TCallLog& log_;
};

class TRecordingPictures : public IPictures
{
public:
    explicit TRecordingPictures(TCallLog& log) : log_(log) {}

    bool LoadFromDb(QImage& picture, TField* field) override;
    void FitPicture(QLabel* image, int left, int top, int width, int height) override;

    QImage Picture; ///< what LoadFromDb gives

private:
    TCallLog& log_;
};
