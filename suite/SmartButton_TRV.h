#pragma once

#include "ControlEvents.h"
#include "SuiteExport.h"

#include <memory>
#include <QPushButton>

class QMenu;

/// Push button with kinds, a drop-down menu and a width that follows its caption.
class SUITE_EXPORT TSmartButton_TRV : public QPushButton, public TControlEvents
{
    Q_OBJECT
    Q_PROPERTY(TButtonKind ButtonKind READ ButtonKind WRITE SetButtonKind)
    Q_PROPERTY(TButtonType ButtonType READ ButtonType WRITE SetButtonType)
    Q_PROPERTY(bool AutoWidth READ AutoWidth WRITE SetAutoWidth)
    Q_PROPERTY(bool Down READ Down WRITE SetDown)
    Q_PROPERTY(int Margin READ Margin WRITE SetMargin)
    Q_PROPERTY(int ShortCut READ ShortCut WRITE SetShortCut)

public:
    enum TButtonKind { bkStandard, bkDropDown }; ///< ordinals 0 and 1
    Q_ENUM(TButtonKind)
    /// What the button does, which gives it its usual caption and icon.
    enum TButtonType { btNone, btOk, btCancel, btNew, btEdit, btDelete };
    Q_ENUM(TButtonType)

    explicit TSmartButton_TRV(QWidget* parent = nullptr);
    ~TSmartButton_TRV() override;

    TButtonKind ButtonKind() const; ///< bkStandard at first
    /// bkDropDown shows an arrow part that opens DropDownMenu; the rest of the button still clicks.
    void SetButtonKind(TButtonKind kind);
    TButtonType ButtonType() const;
    void SetButtonType(TButtonType type); ///< gives the usual caption and icon where the button has none
    bool AutoWidth() const;
    void SetAutoWidth(bool on);        ///< width follows the caption
    void setText(const QString& text); ///< adapts the width of an AutoWidth button
    bool Down() const;
    void SetDown(bool down); ///< painted as pressed in
    int Margin() const;
    /// Pixels between the leading edge and the icon or caption; -1, the default, centres them.
    void SetMargin(int pixels);
    /// Virtual key in the low byte, plus 8192 Shift, 16384 Ctrl, 32768 Alt: 16505 is Ctrl+F10. 0 for none.
    int ShortCut() const;
    void SetShortCut(int code);
    QMenu* DropDownMenu() const;
    void SetDropDownMenu(QMenu* menu); ///< not owned
    void Click();                      ///< as if the user had pressed it

    TNotifyEvent OnClick; ///< by mouse, key, short cut or Click(); a disabled button raises nothing

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QRect ArrowRect() const;
    void PaintLabel(QPainter& painter, const QStyleOptionButton& option) const;
    void PaintArrow(QPainter& painter, const QStyleOptionButton& option) const;
    QIcon ShownIcon() const;
    void OpenMenu();
    void AdaptWidth();

    struct TPrivate;
    std::unique_ptr<TPrivate> d;
};
