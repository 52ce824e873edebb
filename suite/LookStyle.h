#pragma once

#include <QProxyStyle>
#include <QStyleOptionButton>

/// Fusion with the product's focus ring, measures and right-to-left paragraphs.
class TLookStyle : public QProxyStyle
{
    Q_OBJECT

public:
    TLookStyle();

    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette, bool enabled,
                      const QString& text, QPalette::ColorRole textRole) const override;
    QRect itemTextRect(const QFontMetrics& metrics, const QRect& rect, int flags, bool enabled,
                       const QString& text) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    QPalette standardPalette() const override;

private:
    void DrawMenuItem(const QStyleOptionMenuItem& item, QPainter* painter, const QWidget* widget) const;
    void DrawMarkedButton(ControlElement element, QStyleOptionButton option, QPainter* painter,
                          const QWidget* widget) const;
};
