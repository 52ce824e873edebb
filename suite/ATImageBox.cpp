#include "ATImageBox.h"

#include "ControlDispatch.h"
#include "Look.h"

#include <cmath>
#include <QAccessibleWidget>
#include <QHash>
#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr double ZoomStep = 1.25;
constexpr int WheelStep = 120; // the toolkit's measure of one notch
constexpr double KeyStep = 32;

/// The toolkit has no accessible object for a widget that shows a picture of its own.
QAccessibleInterface* NewAccessible(const QString& className, QObject* object)
{
    auto* box = className == u"TATImageBox" ? qobject_cast<TATImageBox*>(object) : nullptr;
    return box == nullptr ? nullptr : new QAccessibleWidget(box, QAccessible::Graphic);
}

void InstallAccessible()
{
    static const bool installed = [] {
        QAccessible::installFactory(NewAccessible);
        return true;
    }();
    Q_UNUSED(installed)
}

/// A length inside a room: in its middle where it is smaller, else wherever it leaves no gap.
double Placed(double position, double length, double room)
{
    return length <= room ? (room - length) / 2 : qBound(room - length, position, 0.0);
}

} // namespace

TATImageBox::TATImageBox(QWidget* parent) : QWidget(parent)
{
    InstallAccessible();
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("عکس"));
}

TATImageBox::~TATImageBox() = default;

QSize TATImageBox::sizeHint() const
{
    return {240, 180};
}

void TATImageBox::SetPicture(const QImage& picture)
{
    picture_ = picture;
    dragging_ = false;
    SetZoom(fitted_ || picture_.isNull() ? FittingZoom() : zoom_);
}

void TATImageBox::UpdateImageInfo()
{
    Fit();
}

void TATImageBox::Fit()
{
    fitted_ = true;
    SetZoom(FittingZoom());
}

double TATImageBox::FittingZoom() const
{
    if (picture_.isNull() || size().isEmpty())
        return 1;
    return qMin(static_cast<double>(width()) / picture_.width(),
                static_cast<double>(height()) / picture_.height());
}

QRectF TATImageBox::PictureRect() const
{
    return picture_.isNull() ? QRectF() : QRectF(topLeft_, QSizeF(picture_.size()) * zoom_);
}

void TATImageBox::SetZoom(double zoom)
{
    const bool isAnother = !qFuzzyCompare(zoom, zoom_);
    zoom_ = zoom;
    reduced_ = {};
    MoveTo(topLeft_);
    if (isAnother)
        Q_EMIT zoomChanged();
}

void TATImageBox::ZoomAround(const QPointF& anchor, double zoom)
{
    if (picture_.isNull())
        return;
    const double fitting = FittingZoom();
    const QPointF inPicture = (anchor - topLeft_) / zoom_;
    const double bounded = qBound(fitting, zoom, qMax(fitting, MostZoom));
    fitted_ = bounded <= fitting;
    topLeft_ = anchor - inPicture * bounded;
    SetZoom(bounded);
}

void TATImageBox::MoveTo(const QPointF& topLeft)
{
    const QSizeF shown = QSizeF(picture_.size()) * zoom_;
    topLeft_ = {Placed(topLeft.x(), shown.width(), width()), Placed(topLeft.y(), shown.height(), height())};
    RefreshCursor();
    update();
}

bool TATImageBox::IsMovable() const
{
    return !picture_.isNull() && !fitted_;
}

void TATImageBox::RefreshCursor()
{
    if (!IsMovable())
        unsetCursor();
    else
        setCursor(dragging_ ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
}

bool TATImageBox::HandleKey(int key)
{
    const QPointF middle = QRectF(rect()).center();
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        ZoomAround(middle, zoom_ * ZoomStep);
        return true;
    case Qt::Key_Minus:
        ZoomAround(middle, zoom_ / ZoomStep);
        return true;
    case Qt::Key_0:
        Fit();
        return true;
    default:
        break;
    }
    static const QHash<int, QPointF> steps{{Qt::Key_Left, {KeyStep, 0}},
                                           {Qt::Key_Right, {-KeyStep, 0}},
                                           {Qt::Key_Up, {0, KeyStep}},
                                           {Qt::Key_Down, {0, -KeyStep}}};
    // A picture that cannot be moved leaves the arrows to its form.
    if (!IsMovable() || !steps.contains(key))
        return false;
    MoveTo(topLeft_ + steps.value(key));
    return true;
}

bool TATImageBox::event(QEvent* event)
{
    return ControlDispatch::Event(this, *this, event) || QWidget::event(event);
}

void TATImageBox::keyPressEvent(QKeyEvent* event)
{
    ControlDispatch::KeyPress(this, *this, event, [this](QKeyEvent* own) {
        const bool plain = (own->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == 0;
        if (!plain || !HandleKey(own->key()))
            QWidget::keyPressEvent(own);
    });
}

void TATImageBox::keyReleaseEvent(QKeyEvent* event)
{
    ControlDispatch::KeyRelease(this, *this, event,
                                [this](QKeyEvent* own) { QWidget::keyReleaseEvent(own); });
}

void TATImageBox::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
    ControlDispatch::FocusIn(this, *this, event);
}

void TATImageBox::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
    ControlDispatch::FocusOut(this, *this, event);
}

void TATImageBox::wheelEvent(QWheelEvent* event)
{
    const int turned = event->angleDelta().y();
    if (picture_.isNull() || turned == 0) {
        event->ignore();
        return;
    }
    ZoomAround(event->position(), zoom_ * std::pow(ZoomStep, static_cast<double>(turned) / WheelStep));
    event->accept();
}

void TATImageBox::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !IsMovable())
        return;
    dragging_ = true;
    grip_ = event->position() - topLeft_;
    RefreshCursor();
}

void TATImageBox::mouseMoveEvent(QMouseEvent* event)
{
    if (dragging_)
        MoveTo(event->position() - grip_);
}

void TATImageBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    dragging_ = false;
    RefreshCursor();
}

void TATImageBox::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        Fit();
}

void TATImageBox::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const double fitting = FittingZoom();
    fitted_ = fitted_ || zoom_ <= fitting;
    SetZoom(fitted_ ? fitting : zoom_);
}

const QPixmap& TATImageBox::Reduced()
{
    if (reduced_.isNull()) {
        const double scale = zoom_ * devicePixelRatioF();
        const QSize size = (QSizeF(picture_.size()) * qMin(scale, 1.0)).toSize().expandedTo(QSize(1, 1));
        reduced_ = QPixmap::fromImage(picture_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    return reduced_;
}

void TATImageBox::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    if (!picture_.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        const QRectF target = PictureRect();
        if (zoom_ < 1)
            painter.drawPixmap(target, Reduced(), QRectF(Reduced().rect()));
        else
            painter.drawImage(target, picture_);
    }
    if (hasFocus())
        Look::PaintRing(painter, rect(), Look::RingColor(palette()));
}
