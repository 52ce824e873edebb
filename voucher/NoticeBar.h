#pragma once

#include <memory>
#include <QObject>

class QLabel;
class QMovie;
class TSmartPanel_TRV;

/// What the two bars of automatic vouchers are made of besides their texts: a white ground in a dark frame,
/// the same in both schemes, and a picture that moves while it is shown. Belongs to a bar and its controls.
class TNoticeBar : public QObject
{
    Q_OBJECT

public:
    TNoticeBar(TSmartPanel_TRV* outer, TSmartPanel_TRV* inner, QLabel* message, QLabel* picture);
    ~TNoticeBar() override;

    void Animate();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMovie& Movie();

    QLabel* picture_;
    QMovie* movie_ = nullptr; ///< made when the bar is loaded or first shown
};
