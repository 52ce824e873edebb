#include "Pic_Show_UNT.h"

#include "ADOQuery.h"
#include "ATImageBox.h"
#include "HostServices.h"
#include "PictureSet.h"
#include "SmartLabel_TRV.h"
#include "SmartPanel_TRV.h"
#include "SymbolButton.h"
#include "ui_Pic_Show_UNT.h"

#include <QFocusEvent>

TPic_Show::TPic_Show(QWidget* owner) : TFrame(owner), Display_QRY(new TADOQuery(this))
{
    Ui::TPic_Show form;
    form.setupUi(this);
    Name_PNL = form.Name_PNL;
    Pic_IMG = form.Pic_IMG;
    Navigation_PNL = form.Navigation_PNL;
    Prev_BTN = form.Prev_BTN;
    Last_BTN = form.Last_BTN;
    Next_BTN = form.Next_BTN;
    First_BTN = form.First_BTN;
    pnl1 = form.pnl1;
    Name_LBL = form.Name_LBL;
    Close_BTN = form.Close_BTN;
    Display_QRY->setObjectName(QStringLiteral("Display_QRY"));
    Display_QRY->SetConnection(Host().DM.ADOConnection1());
    BindHandlers();
    FormReady();
}

TPic_Show::~TPic_Show() = default;

// No focus proxy: Tab would enter the frame at the picture and pass over the button above it.
void TPic_Show::focusInEvent(QFocusEvent* event)
{
    Pic_IMG->setFocus(event->reason());
}

void TPic_Show::BindHandlers()
{
    const auto onClick = [this](QPushButton* button, void (TPic_Show::*step)() const) {
        connect(button, &QPushButton::clicked, this, [this, step] {
            if (Display_QRY->Active())
                (this->*step)();
        });
    };
    onClick(First_BTN, &TPic_Show::First);
    onClick(Prev_BTN, &TPic_Show::Prev);
    onClick(Next_BTN, &TPic_Show::Next);
    onClick(Last_BTN, &TPic_Show::Last);
}

void TPic_Show::Load(int GroupCode, int ItemCode, bool CheckLast)
{
    if (CheckLast && GroupCode == LastGroupCode && ItemCode == LastItemCode)
        return;
    // Where the database fails, no set counts as shown.
    LastGroupCode = LastItemCode = -1;
    EnableNavigation(false);
    Pic_IMG->Clear();
    Name_LBL->Clear();
    Display_QRY->Close();
    Display_QRY->SQL.Clear();
    for (const QString& line : PictureSet::Statement(GroupCode, ItemCode))
        Display_QRY->SQL.Add(line);
    Display_QRY->Open();
    EnableNavigation(Display_QRY->RecordCount() > 1);
    First();
    LastGroupCode = GroupCode;
    LastItemCode = ItemCode;
}

void TPic_Show::EnableNavigation(bool enabled)
{
    for (TSymbolButton* button : {First_BTN, Prev_BTN, Next_BTN, Last_BTN})
        button->setEnabled(enabled);
}

void TPic_Show::First() const
{
    Name_LBL->Clear();
    Display_QRY->First();
    if (Display_QRY->RecordCount() > 0)
        SetPicture();
    Display_QRY->First();
}

void TPic_Show::Last() const
{
    Name_LBL->Clear();
    Display_QRY->Last();
    if (Display_QRY->RecordCount() > 0)
        SetPicture();
}

void TPic_Show::Next() const
{
    Display_QRY->Next();
    if (Display_QRY->Eof())
        return;
    Name_LBL->Clear();
    SetPicture();
}

void TPic_Show::Prev() const
{
    Display_QRY->Prior();
    if (Display_QRY->Bof())
        return;
    Name_LBL->Clear();
    SetPicture();
}

void TPic_Show::SetPicture() const
{
    const PictureSet::TShown shown = PictureSet::Current(*Display_QRY);
    Pic_IMG->SetPicture(shown.Image);
    if (shown.Name)
        Name_LBL->SetCaption(*shown.Name);
    Pic_IMG->UpdateImageInfo();
}
