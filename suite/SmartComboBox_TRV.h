#pragma once

#include "ControlEvents.h"
#include "SuiteExport.h"

#include <QComboBox>
#include <QElapsedTimer>

/// Drop-down list. OnChange and OnSelect come only when the user chooses; writing the item index raises
/// nothing.
class SUITE_EXPORT TSmartComboBox_TRV : public QComboBox, public TControlEvents
{
    Q_OBJECT
    Q_PROPERTY(int ItemIndex READ ItemIndex WRITE SetItemIndex DESIGNABLE false)

public:
    explicit TSmartComboBox_TRV(QWidget* parent = nullptr);
    ~TSmartComboBox_TRV() override;

    int ItemIndex() const { return currentIndex(); } ///< -1 for none
    void SetItemIndex(int index);                    ///< out of range selects none
    int Count() const { return count(); }            ///< of the entries
    void Clear();                                    ///< takes all entries out; raises nothing
    /// `object` is a number that travels with the entry, as a code does.
    void AddItem(const QString& text, qint64 object = 0);
    qint64 ItemObject(int index) const; ///< the number of an entry; 0 where there is no such entry
    QString ItemText(int index) const { return itemText(index); } ///< empty where there is no such entry

    void showPopup() override;

    TNotifyEvent OnChange; ///< another entry than before is chosen
    TNotifyEvent OnSelect; ///< an entry is chosen, be it the same again; after OnChange

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override; ///< without the focus the page scrolls instead

private:
    void RaiseChosen(int index);
    bool TypeAhead(const QKeyEvent& event);

    int indexBefore_ = -1; // when the user's action began
    QString typed_;
    QElapsedTimer sinceTyped_;
    bool listWantsFont_ = false; // it is made when it is first opened
};
