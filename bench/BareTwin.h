#pragma once

#include <QRect>
#include <QString>
#include <vector>

class QWidget;

/// The plain widgets of the toolkit that a form has the same number of, in the same places, as somebody would
/// write them down who needs no more than that: edits, combo boxes, check boxes, labels, buttons and grids,
/// in boxes.
class TBareTwin
{
public:
    /// Takes down what a form consists of. Controls are told by the toolkit's class that they derive from.
    explicit TBareTwin(const QWidget& form);

    /// Makes the plain widgets; the caller owns them.
    QWidget* Make() const;
    int ControlCount() const { return static_cast<int>(controls_.size()); }

private:
    enum TKind { Plain, Label, Button, Check, Combo, Edit, Grid };
    struct TControl
    {
        TKind Kind = Plain;
        int Parent = 0; ///< index of the control that this one stands in
        QRect Place;
        QString Text;
        bool LaysOut = false; ///< its children stand in a row
        bool Hidden = false;
    };

    void Take(const QWidget& widget, int parent);
    static TKind KindOf(const QWidget& widget);
    static QWidget* New(TKind kind, const QString& text, QWidget* parent);

    std::vector<TControl> controls_;
};
