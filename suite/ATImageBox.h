#pragma once

#include "ControlEvents.h"
#include "SuiteExport.h"

#include <QImage>
#include <QPixmap>
#include <QWidget>

/// Shows a picture fitted to its area. The wheel zooms around the pointer, + and - around the middle; a
/// picture larger than the area is dragged with the mouse (hand cursor) or moved with the arrow keys; a
/// double click or 0 fits it again.
class SUITE_EXPORT TATImageBox : public QWidget, public TControlEvents
{
    Q_OBJECT

public:
    /// The picture is never shown larger than so many times its size, unless fitting it needs more.
    static constexpr double MostZoom = 16;

    explicit TATImageBox(QWidget* parent = nullptr);
    ~TATImageBox() override;

    const QImage& Picture() const { return picture_; } ///< null for none
    /// The next picture, null for none. It takes the place of the one before at the same zoom;
    /// UpdateImageInfo fits it.
    void SetPicture(const QImage& picture);
    void Clear() { SetPicture({}); } ///< shows no picture
    /// Takes the measures of the picture anew and fits it to the area.
    void UpdateImageInfo();

    /// Whether the picture is fitted, and stays so when the area changes.
    bool IsFitted() const { return fitted_; }
    void Fit(); ///< shows the whole picture as large as the area lets it
    /// Pixels of the widget per pixel of the picture; 1 where there is no picture.
    double Zoom() const { return zoom_; }
    /// Zooms so that what is shown at `anchor` stays there. Not further out than fitted.
    void ZoomAround(const QPointF& anchor, double zoom);
    /// Where the picture lies, in the widget's coordinates; empty where there is none.
    QRectF PictureRect() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    void zoomChanged(); ///< by the user or by code

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    double FittingZoom() const;
    bool IsMovable() const;
    void SetZoom(double zoom);
    void MoveTo(const QPointF& topLeft);
    bool HandleKey(int key);
    void RefreshCursor();
    const QPixmap& Reduced();

    QImage picture_;
    QPixmap reduced_; ///< the picture at the present zoom, for zooms below 1; null where it has to be made
    double zoom_ = 1;
    bool fitted_ = true;
    QPointF topLeft_; ///< of the picture in the widget
    QPointF grip_;    ///< from the picture's corner to the pointer that drags it
    bool dragging_ = false;
};
