#pragma once

#include "Frame.h"

/// An empty frame that keeps a place on a form for a voucher that the owner puts into it.
class BASEFRAME_EXPORT TGetVoucher_FRM : public TFrame
{
    Q_OBJECT

public:
    explicit TGetVoucher_FRM(QWidget* owner = nullptr);
    ~TGetVoucher_FRM() override;
};
