#pragma once

#include "NotifyEvent.h"
#include "SuiteExport.h"

#include <QLabel>
#include <QPointer>

/// Label painted as a right-to-left paragraph whatever its first letter is; a colon in front of the caption
/// is shown behind it. Its mnemonic focuses FocusControl; a label without one is clicked, or, where it names
/// the smart check box beside it that carries the same letter, clicks that box. A caption that does not fit
/// ends in an ellipsis and is shown whole as a tool tip. What stands behind a long run of blanks counts as
/// out of sight and is neither measured nor painted.
class SUITE_EXPORT TSmartLabel_TRV : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(bool OnBand READ OnBand WRITE SetOnBand)
    Q_PROPERTY(bool ShowAccelChar READ ShowAccelChar WRITE SetShowAccelChar)

public:
    explicit TSmartLabel_TRV(QWidget* parent = nullptr);
    ~TSmartLabel_TRV() override;

    QString Caption() const { return text(); }                    ///< as it was given, with its ampersands
    void SetCaption(const QString& caption) { setText(caption); } ///< plain text
    void Clear() { setText(QString()); }                          ///< no caption
    QWidget* FocusControl() const;                                ///< null for none
    void SetFocusControl(QWidget* control);                       ///< also its buddy for assistive tools
    /// Whether the label stands on the dark band and is painted in the band's text colour.
    bool OnBand() const { return onBand_; }
    void SetOnBand(bool on);
    /// Whether & marks the caption's mnemonic. True at first; a label that shows data takes it as a character
    /// like others.
    bool ShowAccelChar() const { return showAccelChar_; }
    void SetShowAccelChar(bool show);

    TNotifyEvent OnClick; ///< by mouse, or by the mnemonic of a label without FocusControl

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// The buddy of a label without FocusControl: the toolkit claims the mnemonics of labels with a buddy.
    QWidget* MnemonicHolder() { return showAccelChar_ ? this : nullptr; }
    QString TextInSight() const;
    QString ShownText() const;
    int MnemonicFlag() const { return showAccelChar_ ? Qt::TextShowMnemonic : 0; }
    bool IsElided() const;
    QRect TextRect() const;
    QPalette TextPalette() const;
    void ActivateByMnemonic();
    void RaiseClick();

    bool onBand_ = false;
    bool showAccelChar_ = true;
};
