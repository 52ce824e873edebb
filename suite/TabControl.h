#pragma once

#include "NotifyEvent.h"
#include "SuiteExport.h"

#include <QTabBar>

/// A row of tabs without pages, the first one at the right. OnChange comes only when the user chooses;
/// writing the tab index raises nothing.
class SUITE_EXPORT TTabControl : public QTabBar
{
    Q_OBJECT
    Q_PROPERTY(int TabHeight READ TabHeight WRITE SetTabHeight)
    Q_PROPERTY(int TabIndex READ TabIndex WRITE SetTabIndex)

public:
    explicit TTabControl(QWidget* parent = nullptr);
    ~TTabControl() override;

    int TabCount() const { return count(); }
    QString TabText(int index) const { return tabText(index); } ///< empty where there is no such tab
    void AddTab(const QString& caption);                        ///< behind the others
    void Clear();                                               ///< takes all tabs out; raises nothing
    int TabIndex() const { return currentIndex(); }             ///< -1 where there are no tabs
    void SetTabIndex(int index);                                ///< an index without a tab is ignored
    int TabHeight() const { return tabHeight_; }                ///< in pixels; 0 leaves it to the style
    void SetTabHeight(int height);

    TNotifyEvent OnChange; ///< the user has chosen another tab

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool writing_ = false; // the change of the tab in progress is the program's
    int tabHeight_ = 0;
};
