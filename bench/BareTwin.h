#pragma once

#include <memory>
#include <QFont>
#include <QIcon>
#include <QList>
#include <QPalette>
#include <QRect>
#include <QSizePolicy>
#include <QString>
#include <QStringList>
#include <vector>

class QLayout;
class QWidget;

/// The same form out of the toolkit's own widgets, as somebody would write it down by hand: as many edits,
/// combo boxes, check boxes, labels, buttons, tabs, grids, panels and menus, with the texts, names, sizes and
/// places that they have on the form, and without anything that they do.
class TBareTwin
{
public:
    /// Takes down what a form consists of. Controls are told by the toolkit's class that they derive from.
    explicit TBareTwin(const QWidget& form);

    /// Makes the plain widgets; the caller owns them.
    QWidget* Make() const;
    /// Menus not counted.
    int ControlCount() const;

private:
    enum TKind { Plain, Panel, Label, Button, Check, Combo, Edit, Tabs, Grid, Menu };
    /// What is written down for a control where it is not what a new one has.
    struct TControl
    {
        TKind Kind = Plain;
        int Parent = -1; ///< index of the control that this one stands in
        int Buddy = -1;
        QString Name;
        QString Text;
        QString AccessibleName;
        QString ToolTip;
        QString Placeholder;
        QStringList Entries; ///< of a combo box, tabs or a menu
        QRect Place;
        QSize Least;
        QSize Greatest;
        QSizePolicy Policy;
        Qt::Alignment Alignment;
        Qt::FocusPolicy Focus = Qt::NoFocus;
        int FrameStyle = 0;
        QFont Font;
        QPalette Colors;
        QList<QIcon> Actions; ///< buttons in an edit
        bool HasPolicy = false;
        bool HasAlignment = false;
        bool HasFocus = false;
        bool HasFont = false;
        bool HasColors = false;
        bool IsRightToLeft = false;
        bool WrapsWords = false;
        bool HidesRowHeader = false;
        bool Hidden = false;
    };
    struct TItem
    {
        int Control = -1; ///< a space where it is -1
        QSize Space;
        QSizePolicy SpacePolicy;
        int Row = 0;
        int Column = 0;
        int Stretch = 0;
    };
    struct TLines
    {
        enum TShape { Horizontal, Vertical, InCells };
        int Owner = 0;
        TShape Shape = Horizontal;
        QMargins Margins;
        int Spacing = 0;
        QList<TItem> Items;
    };

    void Take(const QWidget& widget, int parent);
    void TakeLayout(const QWidget& owner, int index);
    int IndexOf(const QWidget* widget) const;
    static TKind KindOf(const QWidget& widget);
    static void TakeTexts(const QWidget& widget, TControl& control);
    static void TakeLook(const QWidget& widget, const QWidget& plain, TControl& control);
    static bool StandsIn(const QWidget& part, const TControl& whole);
    static QWidget* New(TKind kind, const QString& text, QWidget* parent);
    static void Dress(const TControl& control, QWidget* widget);
    static void Fill(const TControl& control, QWidget* widget);
    static void LayOut(const TLines& lines, const std::vector<QWidget*>& made);

    std::vector<const QWidget*> taken_; ///< by index, while the form is taken down
    std::vector<TControl> controls_;
    std::vector<TLines> layouts_;
};
