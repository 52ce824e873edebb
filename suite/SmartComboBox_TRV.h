#pragma once

#include "ControlEvents.h"
#include "SuiteExport.h"

#include <QComboBox>

/// Drop-down list. OnChange and OnSelect come only when the user chooses; writing the item index raises nothing.
class SUITE_EXPORT TSmartComboBox_TRV : public QComboBox, public TControlEvents {
    Q_OBJECT
    Q_PROPERTY(int ItemIndex READ ItemIndex WRITE SetItemIndex DESIGNABLE false)

public:
    explicit TSmartComboBox_TRV(QWidget* parent = nullptr);
    ~TSmartComboBox_TRV() override;

    int ItemIndex() const { return currentIndex(); }  ///< -1 for none
    void SetItemIndex(int index);                     ///< out of range selects none
    int Count() const { return count(); }
    void Clear();
    /// `object` is a number that travels with the entry, as a code does.
    void AddItem(const QString& text, qint64 object = 0);
    qint64 ItemObject(int index) const;
    QString ItemText(int index) const { return itemText(index); }

    TNotifyEvent OnChange;
    TNotifyEvent OnSelect;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
