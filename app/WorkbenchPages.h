#pragma once

#include <functional>
#include <QString>
#include <QVector>

class QWidget;
class TPage;
class TReferenceHost;

/// A page as menu and navigation know it.
struct TPageDescription
{
    QString Key;   ///< by which the program opens it
    QString Title; ///< in menu, navigation and the window's title
    std::function<TPage*(TReferenceHost& host, QWidget* parent)> Create;
    bool IsList = true; ///< lists and forms have a menu each
};

/// All pages in the order of the navigation; Ctrl with the digit of its place opens a page.
QVector<TPageDescription> WorkbenchPages();
