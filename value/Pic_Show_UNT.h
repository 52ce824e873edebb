#pragma once

#include "Frame.h"

class QPushButton;
class TADOQuery;
class TATImageBox;
class TSmartLabel_TRV;
class TSmartPanel_TRV;
class TSymbolButton;

/// The pictures of one record, to look at one by one. A picture comes from its file where that is there, from
/// the stored copy otherwise; a picture that cannot be read leaves the place empty, without a word.
class BASEFRAME_EXPORT TPic_Show : public TFrame
{
    Q_OBJECT

public:
    explicit TPic_Show(QWidget* owner = nullptr);
    ~TPic_Show() override;

    /// Opens the pictures of a record and shows the first one; a group below 1 means all groups. With
    /// `CheckLast` nothing happens where the same set was loaded last. Display_QRY stays open on the set.
    void Load(int GroupCode, int ItemCode, bool CheckLast = false);
    /// Each moves and shows; the set must have been loaded.
    void First() const;
    void Prev() const;
    void Next() const;
    void Last() const;
    /// Shows the picture of Display_QRY's current row.
    void SetPicture() const;

    TSmartPanel_TRV* Name_PNL = nullptr;
    TADOQuery* Display_QRY = nullptr;
    TATImageBox* Pic_IMG = nullptr;
    TSmartPanel_TRV* Navigation_PNL = nullptr;
    TSymbolButton* Prev_BTN = nullptr;
    TSymbolButton* Last_BTN = nullptr;
    TSymbolButton* Next_BTN = nullptr;
    TSymbolButton* First_BTN = nullptr;
    TSmartPanel_TRV* pnl1 = nullptr;
    TSmartLabel_TRV* Name_LBL = nullptr;
    QPushButton* Close_BTN = nullptr; ///< for the owner, who connects it to what closes the frame

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    void BindHandlers();
    void EnableNavigation(bool enabled);

    int LastGroupCode = -1;
    int LastItemCode = -1;
};
