#include "SmartPanel_TRV.h"

#include "Look.h"

#include <QPainter>

TSmartPanel_TRV::TSmartPanel_TRV(QWidget* parent) : QFrame(parent)
{
}

TSmartPanel_TRV::~TSmartPanel_TRV() = default;

void TSmartPanel_TRV::SetBevel(TBevel bevel)
{
    bevel_ = bevel;
    setLineWidth(1);
    switch (bevel) {
    case bvNone:
        setFrameStyle(QFrame::NoFrame);
        break;
    case bvLowered:
        setFrameStyle(int{QFrame::Panel} | int{QFrame::Sunken});
        break;
    case bvRaised:
        setFrameStyle(int{QFrame::Panel} | int{QFrame::Raised});
        break;
    }
}

void TSmartPanel_TRV::SetGround(TGround ground)
{
    ground_ = ground;
    // What stands on the band inherits its colours, which are the same in both schemes.
    QPalette inherited;
    if (ground == gBand) {
        inherited.setColor(QPalette::Window, Look::Color(Look::TRole::Band));
        inherited.setColor(QPalette::WindowText, Look::Color(Look::TRole::BandText));
        inherited.setColor(QPalette::Disabled, QPalette::WindowText,
                           Look::ColorOf(Look::TRole::SecondaryText, true));
    }
    setPalette(inherited);
    update();
}

void TSmartPanel_TRV::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), ground_ == gBase ? palette().base() : palette().window());
    drawFrame(&painter);
}
