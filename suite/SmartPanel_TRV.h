#pragma once

#include "SuiteExport.h"

#include <QFrame>

/// Panel; on the band it carries the dark ground behind search and entry lines.
class SUITE_EXPORT TSmartPanel_TRV : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(TBevel Bevel READ Bevel WRITE SetBevel)
    Q_PROPERTY(TGround Ground READ Ground WRITE SetGround)

public:
    /// The frame around the panel.
    enum TBevel { bvNone, bvLowered, bvRaised };
    Q_ENUM(TBevel)
    /// The ground: that of the window, of the band, or of edits and lists.
    enum TGround { gWindow, gBand, gBase };
    Q_ENUM(TGround)

    explicit TSmartPanel_TRV(QWidget* parent = nullptr);
    ~TSmartPanel_TRV() override;

    TBevel Bevel() const { return bevel_; } ///< bvNone at first
    void SetBevel(TBevel bevel);
    TGround Ground() const { return ground_; } ///< gWindow at first
    void SetGround(TGround ground);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    TBevel bevel_ = bvNone;
    TGround ground_ = gWindow;
};
