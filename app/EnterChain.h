#pragma once

#include <functional>
#include <QObject>
#include <QPointer>
#include <QVector>

class QWidget;

/// Enter goes from control to control, as Tab does, in an order of its own; at the last one it finishes.
class TEnterChain : public QObject
{
    Q_OBJECT

public:
    TEnterChain(const QVector<QWidget*>& controls, QObject* parent);

    /// Controls that Enter steps over at the moment. Controls that cannot take the focus are always stepped
    /// over.
    std::function<bool(const QWidget* control)> Skips;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void finished();

private:
    void Advance(qsizetype place);

    QVector<QPointer<QWidget>> controls_;
};
