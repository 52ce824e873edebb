#include "Tab_Search_UNT.h"

#include "HostServices.h"
#include "TabControl.h"
#include "ui_Tab_Search_UNT.h"

#include <QPointer>

TTab_Search_Frame::TTab_Search_Frame(QWidget* owner) : TFrame(owner), TarvaSearch_Tab(new TTarvaSearch(this))
{
    Ui::TTab_Search_Frame form;
    form.setupUi(this);
    Search_TBC = form.Search_TBC;
    Search_TBC->AddTab(QStringLiteral("تست"));
    TarvaSearch_Tab->setObjectName(QStringLiteral("TarvaSearch_Tab"));
    TarvaSearch_Tab->SetItemIndex(0);
    TarvaSearch_Tab->SetZeroValueIgnore(false);
    Search_TBC->OnChange = [this](QObject* sender) { Search_TBCChange(sender); };
    FormReady();
}

TTab_Search_Frame::~TTab_Search_Frame() = default;

void TTab_Search_Frame::Loaded()
{
    TFrame::Loaded();
    Host().CommonLibrary.SetWinControlRightAlign(Search_TBC);
}

void TTab_Search_Frame::init()
{
    Search_TBC->Clear();
    const TSearchCollection& items = TarvaSearch_Tab->SearchItems;
    if (items.Count() == 0)
        return;
    for (int index = 0; index < items.Count(); ++index)
        Search_TBC->AddTab(items.GetItem(index).Title);
    const QPointer<TTab_Search_Frame> guard(this);
    TarvaSearch_Tab->SetActive(true);
    if (!guard)
        return;
    Search_TBC->SetTabIndex(TarvaSearch_Tab->ItemIndex());
    Host().CommonLibrary.SetWinControlRightAlign(Search_TBC);
}

void TTab_Search_Frame::Search_TBCChange(QObject* /*Sender*/) const
{
    const QPointer<TTarvaSearch> criterion(TarvaSearch_Tab);
    criterion->SetItemIndex(Search_TBC->TabIndex());
    if (!criterion)
        return;
    if (const TSearchItem* item = criterion->CurrentItem())
        criterion->SetValue1(item->ItemValue);
}
