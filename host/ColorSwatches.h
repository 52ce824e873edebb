#pragma once

#include "HostExport.h"

#include <QColor>
#include <QVector>
#include <QWidget>

/// Colours side by side, right to left, one of them chosen. The mouse and the arrow keys choose; Home and End
/// go to the ends.
class HOST_EXPORT TColorSwatches : public QWidget
{
    Q_OBJECT

public:
    explicit TColorSwatches(QWidget* parent = nullptr);

    void SetColors(const QVector<QColor>& colors);
    int Count() const { return static_cast<int>(colors_.size()); }
    /// -1 without colours.
    int Current() const { return current_; }
    void SetCurrent(int index);
    /// Where a colour is painted.
    QRect SwatchRect(int index) const;
    /// What a Persian reader calls the colour.
    static QString NameOf(const QColor& color);

    QSize sizeHint() const override;

Q_SIGNALS:
    void currentChanged(int index);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int IndexAt(const QPoint& position) const;
    void DescribeCurrent();

    QVector<QColor> colors_;
    int current_ = -1;
};
