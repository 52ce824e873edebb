#pragma once

#include "ListDescription.h"
#include "Look.h"

#include <QMainWindow>
#include <QVector>

class QAction;
class QMenu;
class QStackedWidget;
class TListForm;
class TReferenceHost;

/// The window of the workbench: menu, navigation at the right, the open list, and the status bar with
/// database, user and date. Keeps its geometry, the palette and the cut of the digits in the host's settings.
class TMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The host must outlive the window. `databaseName` is what the status bar says.
    TMainWindow(TReferenceHost& host, const QString& databaseName);
    ~TMainWindow() override;

    /// Opens a list, or brings the open one forward; the caret stands in its search edit.
    TListForm* OpenList(const QString& key);
    TListForm* CurrentList() const;
    /// Has the open lists read their rows on the connection that was opened again.
    void Reconnect();

    /// The scheme that the settings hold.
    static Look::TScheme SavedScheme(const TReferenceHost& host);
    static Look::TDigits SavedDigits(const TReferenceHost& host);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void AddMenus();
    void AddListActions();
    void AddViewMenu();
    void AddHelpMenu();
    void AddSchemes(QMenu* menu);
    void AddDigits(QMenu* menu);
    QWidget* NewNavigation();
    void AddStatus(const QString& databaseName);
    void ShowKeys();
    void ShowAbout();
    void RestoreWindow();

    TReferenceHost* host_;
    QVector<TListDescription> lists_;
    QVector<QAction*> listActions_;
    QVector<TListForm*> forms_; ///< one for each list, null until it is opened
    QStackedWidget* pages_ = nullptr;
};
