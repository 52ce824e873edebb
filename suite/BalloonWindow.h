#pragma once

#include <QTimer>
#include <QWidget>

/// The window of a balloon: above its control, or below where there is no room, with a tip that points at it.
class TBalloonWindow : public QWidget
{
    Q_OBJECT

public:
    TBalloonWindow(QWidget* control, const QString& text, const QString& title);

    const QString& Text() const { return text_; }
    /// 0 milliseconds leave it until something else takes it away.
    void Appear(int milliseconds);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QSize TextSize(const QString& text, const QFont& font) const;
    QRect ControlOnScreen() const;
    void Place();
    QPolygon Tip() const;
    void PaintText(QPainter& painter, QRect rect, const QString& text, const QFont& font) const;

    QWidget* control_;
    QString text_;
    QString title_;
    QTimer life_;
    QRect placedFor_;
    QRect body_;
    QPoint tip_;
    bool above_ = true;
};
