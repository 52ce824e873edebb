#pragma once

#include "FlowLines.h"
#include "SmartPanel_TRV.h"
#include "SuiteExport.h"

/// Panel that lays its children out one after the other, in the order in which they were made, and goes on in
/// the next line where one ends. Hidden children take no room. A child with the property "KeepWithNext" set
/// is not parted from the one behind it while both fit into one line.
class SUITE_EXPORT TSmartFlowPanel_TRV : public TSmartPanel_TRV
{
    Q_OBJECT
    Q_PROPERTY(TFlowStyle FlowStyle READ FlowStyle WRITE SetFlowStyle)
    Q_PROPERTY(int Spacing READ Spacing WRITE SetSpacing)

public:
    /// The side at which lines begin.
    enum TFlowStyle { fsLeftRightTopBottom, fsRightLeftTopBottom };
    Q_ENUM(TFlowStyle)

    explicit TSmartFlowPanel_TRV(QWidget* parent = nullptr);
    ~TSmartFlowPanel_TRV() override;

    TFlowStyle FlowStyle() const { return flowStyle_; } ///< from the right unless set
    void SetFlowStyle(TFlowStyle style);
    int Spacing() const { return spacing_; } ///< pixels between children
    void SetSpacing(int spacing);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void childEvent(QChildEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QList<QWidget*> ShownChildren() const;
    static QSize SizeOf(const QWidget* child);
    QList<TFlowLines::TPiece> Pieces() const;
    TFlowLines Lines(int width) const;
    void Arrange();

    TFlowStyle flowStyle_ = fsRightLeftTopBottom;
    int spacing_;
};
