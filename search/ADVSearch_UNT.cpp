#include "ADVSearch_UNT.h"

#include "DrawnIcon.h"
#include "FilterLine.h"
#include "SharedIcon.h"
#include "SmartButton_TRV.h"
#include "SmartCheckBox_TRV.h"
#include "SmartLabel_TRV.h"
#include "ui_ADVSearch_UNT.h"

#include <QEvent>

namespace {

/// A magnifying glass.
QPixmap Glass(const QColor& color)
{
    return DrawnIcon(QPen(color, 5, Qt::SolidLine, Qt::RoundCap), [](QPainter& painter) {
        painter.drawEllipse(QPoint(28, 20), 14, 14);
        painter.drawLine(17, 31, 6, 42);
    });
}

} // namespace

TADVSearch_Fram::TADVSearch_Fram(QWidget* owner) : TFrame(owner)
{
    Ui::TADVSearch_Fram form;
    form.setupUi(this);
    ADVsearch_LBL = form.ADVsearch_LBL;
    ADVSearch_CHK = form.ADVSearch_CHK;
    ADVSearch_BTN = form.ADVSearch_BTN;
    TFilterLine{ADVSearch_CHK, ADVsearch_LBL}.BindLabels();
    ADVSearch_CHK->OnClick = [this](QObject* sender) { ADVSearch_CHKClick(sender); };
    ADVSearch_BTN->OnClick = [this](QObject* sender) { ADVSearch_BTNClick(sender); };
    ShowGlyph();
    FormReady();
}

TADVSearch_Fram::~TADVSearch_Fram() = default;

void TADVSearch_Fram::ADVSearch_BTNClick(QObject* /*Sender*/) const
{
    ADVSearch_CHK->SetChecked(true);
}

void TADVSearch_Fram::ADVSearch_CHKClick(QObject* /*Sender*/)
{
}

void TADVSearch_Fram::ShowGlyph() const
{
    const QColor color = ADVSearch_BTN->palette().color(QPalette::ButtonText);
    ADVSearch_BTN->setIcon(SharedIcon::Of(QStringLiteral("glass"), color, Glass));
}

void TADVSearch_Fram::changeEvent(QEvent* event)
{
    TFrame::changeEvent(event);
    // Later, because the button gets its palette after the frame.
    if (event->type() == QEvent::PaletteChange)
        QMetaObject::invokeMethod(this, &TADVSearch_Fram::ShowGlyph, Qt::QueuedConnection);
}
