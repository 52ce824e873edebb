#pragma once

#include "Frame.h"

class TGridPanel;
class TNxExpandPanel;
class TSmartDetailView_TRV;

/// The area of a list that tells more about its current record: one value that is always shown and four more
/// in a part that opens and closes. The owner fills the views with items and calls Reassgin, and binds Alt+1
/// to CollapseOrExpand.
///
/// The frame is as high as what it shows: it asks the owner's layout for that height, and takes it itself
/// where there is no layout.
class BASEFRAME_EXPORT TListDetail_FRAME : public TFrame
{
    Q_OBJECT

public:
    explicit TListDetail_FRAME(QWidget* owner = nullptr);
    ~TListDetail_FRAME() override;

    /// Opens the closed part, closes the open one.
    void CollapseOrExpand() const;
    /// After the views' items have been changed: rebuilds their popup menus. The name is written as it is on
    /// purpose.
    void Reassgin() const;

    TNxExpandPanel* MoreDetail_XPNL = nullptr;
    TSmartDetailView_TRV* DetailView_Fixed_SDV = nullptr;
    TGridPanel* MoreDetail_GPNL = nullptr;
    TSmartDetailView_TRV* DetailView_Large_Top_SDV = nullptr;
    TSmartDetailView_TRV* DetailView_Small_Top_SDV = nullptr;
    TSmartDetailView_TRV* DetailView_Large_Bottom_SDV = nullptr;
    TSmartDetailView_TRV* DetailView_Small_Bottom_SDV = nullptr;

protected:
    bool event(QEvent* event) override;

private:
    void TakeHeight();
};
