#pragma once

#include "HostAccounting.h"
#include "HostExport.h"
#include "HostLibraries.h"
#include "HostPickers.h"
#include "HostPictures.h"

/// Codes of the chart of accounts. Everything but CompleteCode throws EServiceNotOffered.
class HOST_EXPORT THostAccounting : public IAccounting
{
public:
    QString CompleteCode(const QString& code, int length) override;
    QString AccGroupsToString(TSelectGroups groups) override;
    QString GetHesabName(const QString& total, const QString& assistant, const QString& detail,
                         THesabType kind, bool& found) override;
    bool VoucherConflicts() override;
    bool ExistRefreshAutoVoucher() override;
    void SaveAutoVouchersAgain(const QString& from, const QString& to, const QString& kinds,
                               int number) override;
    void VoucherConflictThread_Start(QWidget* control) override;
};

/// No selection dialog is offered yet: each operation throws EServiceNotOffered.
class HOST_EXPORT THostPickers : public IPickers
{
public:
    int Select_Entity(TSoftwarePart part, const QString& argument, bool all) override;
    int Select_GroupList(TSoftwarePart part, const QString& argument) override;
    THCSelectedCode Select_AccountCodes(TSelectGroups groups, const QString& total, const QString& assistant,
                                        const QString& detail, quint8 focusLevel) override;
    int Select_AccTotals1(const QString& groups, const QString& code) override;
    int Select_AccAssistants1(int total, const QString& code) override;
    int Select_AccDetails1(int total, int assistant, const QString& code) override;
    int Call_insert_tags(const QString& name, quint8 mode) override;
};

/// No library is loaded yet: each operation throws EServiceNotOffered.
class HOST_EXPORT THostLibraries : public ILibraries
{
public:
    THandle Tarva_LoadLibrary(const QString& library) override;
    void Tarva_FreeLibrary(const QString& library, THandle handle) override;
    QFunctionPointer FindFunction(THandle handle, const QByteArray& function) override;
    int Run_DLL_FuncReturnInt(const QString& library, const QString& function) override;
};

/// No picture is read yet: each operation throws EServiceNotOffered.
class HOST_EXPORT THostPictures : public IPictures
{
public:
    bool LoadFromDb(QImage& picture, TField* field) override;
    void FitPicture(QLabel* image, int left, int top, int width, int height) override;
};
