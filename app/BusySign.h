#pragma once

#include <QBasicTimer>
#include <QWidget>

/// A turning arc that shows that work is under way.
class TBusySign : public QWidget
{
    Q_OBJECT

public:
    explicit TBusySign(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QBasicTimer timer_;
    int angle_ = 0; ///< degrees
};
