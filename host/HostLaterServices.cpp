#include "HostLaterServices.h"

#include "Codes.h"
#include "NotOffered.h"

QString THostAccounting::CompleteCode(const QString& code, int length)
{
    return Codes::Complete(code, length);
}

QString THostAccounting::AccGroupsToString(TSelectGroups /*groups*/)
{
    throw EServiceNotOffered("AccGroupsToString");
}

QString THostAccounting::GetHesabName(const QString& /*total*/, const QString& /*assistant*/,
                                      const QString& /*detail*/, THesabType /*kind*/, bool& /*found*/)
{
    throw EServiceNotOffered("GetHesabName");
}

bool THostAccounting::VoucherConflicts()
{
    throw EServiceNotOffered("VoucherConflicts");
}

bool THostAccounting::ExistRefreshAutoVoucher()
{
    throw EServiceNotOffered("ExistRefreshAutoVoucher");
}

void THostAccounting::SaveAutoVouchersAgain(const QString& /*from*/, const QString& /*to*/,
                                            const QString& /*kinds*/, int /*number*/)
{
    throw EServiceNotOffered("SaveAutoVouchersAgain");
}

void THostAccounting::VoucherConflictThread_Start(QWidget* /*control*/)
{
    throw EServiceNotOffered("VoucherConflictThread_Start");
}

int THostPickers::Select_Entity(TSoftwarePart /*part*/, const QString& /*argument*/, bool /*all*/)
{
    throw EServiceNotOffered("Select_Entity");
}

int THostPickers::Select_GroupList(TSoftwarePart /*part*/, const QString& /*argument*/)
{
    throw EServiceNotOffered("Select_GroupList");
}

THCSelectedCode THostPickers::Select_AccountCodes(TSelectGroups /*groups*/, const QString& /*total*/,
                                                  const QString& /*assistant*/, const QString& /*detail*/,
                                                  quint8 /*focusLevel*/)
{
    throw EServiceNotOffered("Select_AccountCodes");
}

int THostPickers::Select_AccTotals1(const QString& /*groups*/, const QString& /*code*/)
{
    throw EServiceNotOffered("Select_AccTotals1");
}

int THostPickers::Select_AccAssistants1(int /*total*/, const QString& /*code*/)
{
    throw EServiceNotOffered("Select_AccAssistants1");
}

int THostPickers::Select_AccDetails1(int /*total*/, int /*assistant*/, const QString& /*code*/)
{
    throw EServiceNotOffered("Select_AccDetails1");
}

int THostPickers::Call_insert_tags(const QString& /*name*/, quint8 /*mode*/)
{
    throw EServiceNotOffered("Call_insert_tags");
}

THostLibraries::THandle THostLibraries::Tarva_LoadLibrary(const QString& /*library*/)
{
    throw EServiceNotOffered("Tarva_LoadLibrary");
}

void THostLibraries::Tarva_FreeLibrary(const QString& /*library*/, THandle /*handle*/)
{
    throw EServiceNotOffered("Tarva_FreeLibrary");
}

QFunctionPointer THostLibraries::FindFunction(THandle /*handle*/, const QByteArray& /*function*/)
{
    throw EServiceNotOffered("FindFunction");
}

int THostLibraries::Run_DLL_FuncReturnInt(const QString& /*library*/, const QString& /*function*/)
{
    throw EServiceNotOffered("Run_DLL_FuncReturnInt");
}

bool THostPictures::LoadFromDb(QImage& /*picture*/, TField* /*field*/)
{
    throw EServiceNotOffered("LoadFromDb");
}

void THostPictures::FitPicture(QLabel* /*image*/, int /*left*/, int /*top*/, int /*width*/, int /*height*/)
{
    throw EServiceNotOffered("FitPicture");
}
