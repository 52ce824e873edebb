#pragma once

#include "Look.h"
#include "Page.h"
#include "WorkbenchPages.h"

#include <QMainWindow>
#include <QVector>

class QAction;
class QMenu;
class QStackedWidget;
class TListForm;
class TReferenceHost;

/// The window of the workbench: menu, navigation at the right, the open page, and the status bar with
/// database, user and date. Keeps its geometry, the palette and the cut of the digits in the host's settings.
class TMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The host must outlive the window. `databaseName` is what the status bar says.
    TMainWindow(TReferenceHost& host, const QString& databaseName);
    ~TMainWindow() override;

    /// Opens a page, or brings the open one forward. Null where there is none of the key.
    TPage* OpenPage(const QString& key);
    /// The page in front; null before the first one is opened.
    TPage* CurrentPage() const;
    /// The list in front; null where a form is.
    TListForm* CurrentList() const;
    /// Tells the open pages that the connection was opened again.
    void Reconnect();

    /// The scheme that the settings hold.
    static Look::TScheme SavedScheme(const TReferenceHost& host);
    static Look::TDigits SavedDigits(const TReferenceHost& host);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void AddMenus();
    void AddPageActions();
    void OpenPageAt(qsizetype place);
    void OpenVoucher(int fiscalYear, int number);
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
    QVector<TPageDescription> descriptions_;
    QVector<QAction*> pageActions_;
    QVector<TPage*> pages_; ///< one for each description, null until it is opened
    QStackedWidget* stack_ = nullptr;
};
