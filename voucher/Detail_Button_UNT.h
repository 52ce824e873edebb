#pragma once

#include "Frame.h"

class TADOQuery;
class TSmartButton_TRV;

/// The buttons under a grid of detail rows: delete, edit and new row, from the right. The owner gives them
/// their OnClick and calls SetEnableButton whenever the grid's rows have changed. The name is written as it
/// is on purpose.
class BASEFRAME_EXPORT TDetial_Grid_Frame : public TFrame
{
    Q_OBJECT

public:
    explicit TDetial_Grid_Frame(QWidget* owner = nullptr);
    ~TDetial_Grid_Frame() override;

    /// Editing and deleting need a record; new rows are never affected. A null or closed query has none.
    void SetEnableButton(TADOQuery* query) const;

    TSmartButton_TRV* DeleteRecord_BTN = nullptr;
    TSmartButton_TRV* EditRecord_BTN = nullptr;
    TSmartButton_TRV* NewRecord_BTN = nullptr;
};
