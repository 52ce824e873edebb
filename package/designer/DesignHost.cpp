#include "DesignHost.h"

#include <QElapsedTimer>
#include <QVariant>

namespace {

class TDesignData : public IDataModule
{
public:
    TADOConnection* ADOConnection1() override { return nullptr; }
    TADOQuery* SharedQuery() override { return nullptr; }
    TADOCommand* SharedCommand() override { return nullptr; }
};

class TDesignSettings : public ISettings
{
public:
    const TSettingRecord& SettingRecord() const override { return record_; }
    const TIniOptions& IniOptions() const override { return options_; }
    const TUserInfo& UserInfo() const override { return user_; }

private:
    TSettingRecord record_;
    TIniOptions options_;
    TUserInfo user_;
};

class TDesignLibrary : public ICommonLibrary
{
public:
    QString CompleteCode(const QString& code, int /*length*/) override { return code; }
    QString FloatToStr_TRV(long double value) override { return QString::number(static_cast<double>(value)); }
    QVariant LookupDBs(const QString& /*code*/, const QString& /*fields*/, LocateDBsOptions /*option*/,
                       QWidget* /*control*/, PerLocateOptions /*persons*/) override
    {
        return {};
    }
    void ResetDataset(TADOQuery* /*query*/) override {}
    void SetWinControlRightAlign(QWidget* /*control*/) override {}
    bool LocateLockCode_SoftwarePart(const QString& /*code*/, TSoftwarePart /*part*/, int /*option*/,
                                     bool /*showMessage*/) override
    {
        return false;
    }
    bool OperationOnLockCode_SoftwarePart(const QString& /*code*/, TSoftwarePart /*part*/, int /*option*/,
                                          TOperationType /*operation*/, bool /*showMessage*/) override
    {
        return false;
    }
};

class TDesignAccounting : public IAccounting
{
public:
    QString CompleteCode(const QString& code, int /*length*/) override { return code; }
    QString AccGroupsToString(TSelectGroups /*groups*/) override { return {}; }
    QString GetHesabName(const QString& /*total*/, const QString& /*assistant*/, const QString& /*detail*/,
                         THesabType /*kind*/, bool& found) override
    {
        found = false;
        return {};
    }
    bool VoucherConflicts() override { return false; }
    bool ExistRefreshAutoVoucher() override { return false; }
    void SaveAutoVouchersAgain(const QString& /*from*/, const QString& /*to*/, const QString& /*kinds*/,
                               int /*number*/) override
    {
    }
    void VoucherConflictThread_Start(QWidget* /*control*/) override {}
};

class TDesignPickers : public IPickers
{
public:
    int Select_Entity(TSoftwarePart /*part*/, const QString& /*argument*/, bool /*all*/) override
    {
        return 0;
    }
    int Select_GroupList(TSoftwarePart /*part*/, const QString& /*argument*/) override { return 0; }
    THCSelectedCode Select_AccountCodes(TSelectGroups /*groups*/, const QString& /*total*/,
                                        const QString& /*assistant*/, const QString& /*detail*/,
                                        quint8 /*focusLevel*/) override
    {
        return {};
    }
    int Select_AccTotals1(const QString& /*groups*/, const QString& /*code*/) override { return 0; }
    int Select_AccAssistants1(int /*total*/, const QString& /*code*/) override { return 0; }
    int Select_AccDetails1(int /*total*/, int /*assistant*/, const QString& /*code*/) override { return 0; }
    int Call_insert_tags(const QString& /*name*/, quint8 /*mode*/) override { return 0; }
};

class TDesignLibraries : public ILibraries
{
public:
    THandle Tarva_LoadLibrary(const QString& /*library*/) override { return 0; }
    void Tarva_FreeLibrary(const QString& /*library*/, THandle /*handle*/) override {}
    QFunctionPointer FindFunction(THandle /*handle*/, const QByteArray& /*function*/) override
    {
        return nullptr;
    }
    int Run_DLL_FuncReturnInt(const QString& /*library*/, const QString& /*function*/) override { return 0; }
};

class TDesignMessages : public IMessages
{
public:
    void MsgCodeNotAvailable(const QString& /*subject*/, QWidget* /*control*/, QWidget* /*form*/) override {}
    void MsgNotSelected(const QString& /*subject*/, QWidget* /*control*/, QWidget* /*form*/) override {}
    void MsgRepeatedCode(const QString& /*subject*/, QWidget* /*control*/, QWidget* /*form*/) override {}
    void MsgRequiredField(const QString& /*subject*/, QWidget* /*control*/, QWidget* /*form*/) override {}
    void MsgHasSubRecords(const QString& /*subject*/) override {}
    void MSGInUse(const QString& /*subject*/) override {}
    TMessageResult ShowSmartMessage(TConfirmationMessage /*message*/, TMessageButtons /*buttons*/,
                                    int /*defaultButton*/) override
    {
        return TMessageResult::mrNo;
    }
    void ShowSmartMessage(TNotificationMessage /*message*/, const TMessageArguments& /*arguments*/,
                          QWidget* /*control*/, QWidget* /*form*/) override
    {
    }
    void ShowTooltipMessage(const TTooltip& /*tooltip*/) override {}
    void ShowMessage(const QString& /*text*/) override {}
};

class TDesignPictures : public IPictures
{
public:
    bool LoadFromDb(QImage& /*picture*/, TField* /*field*/) override { return false; }
    void FitPicture(QLabel* /*image*/, int /*left*/, int /*top*/, int /*width*/, int /*height*/) override {}
};

class TDesignClock : public IClock
{
public:
    TDesignClock() { timer_.start(); }
    QString NowDate(const QString& separator) override
    {
        return Today().toString(QStringLiteral("yyyy/MM/dd")).replace(QLatin1Char('/'), separator);
    }
    QDate Today() override { return QDate::currentDate(); }
    quint32 TickCount() override { return static_cast<quint32>(timer_.elapsed()); }

private:
    QElapsedTimer timer_;
};

} // namespace

struct TDesignHost::TServices
{
    TDesignData Data;
    TDesignSettings Settings;
    TDesignLibrary Library;
    TDesignAccounting Accounting;
    TDesignPickers Pickers;
    TDesignLibraries Libraries;
    TDesignMessages Messages;
    TDesignPictures Pictures;
    TDesignClock Clock;
    THostServices Services{Data,      Settings, Library,  Accounting, Pickers,
                           Libraries, Messages, Pictures, Clock};
};

TDesignHost::TDesignHost() : services_(std::make_unique<TServices>())
{
    InstallHost(services_->Services);
}

TDesignHost::~TDesignHost()
{
    RemoveHost();
}
