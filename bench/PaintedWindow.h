#pragma once

#include <functional>
#include <QWidget>

/// A window that tells when its contents have reached the screen.
class TPaintedWindow : public QWidget
{
    Q_OBJECT

public:
    std::function<void()> OnPainted;

protected:
    bool event(QEvent* event) override;
};
