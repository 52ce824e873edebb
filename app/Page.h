#pragma once

#include <QString>
#include <QVector>
#include <QWidget>

class TReferenceHost;

/// A key and what it does, for the window of the keys.
struct TKeyHelp
{
    QString Key;
    QString Meaning;
};

/// A page of the main window: a list or a form. The window makes it when it is first opened and keeps it,
/// with everything that the user has typed, until the window itself is closed.
class TPage : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
    ~TPage() override;

    /// The page has come to the front: reads what it has not read yet and puts the caret where work goes on.
    virtual void Enter() = 0;
    /// What the user has typed is not all saved.
    virtual bool HasUnsaved() const { return false; }
    /// The window wants to close, and not all is saved. False keeps it open; the user has been asked.
    virtual bool MayClose() { return true; }
    /// Writes sizes, orders and the like into the host's settings.
    virtual void SaveState() const {}
    /// The connection was opened again.
    virtual void Reconnect() {}
    /// The keys that work on this page.
    virtual QVector<TKeyHelp> Keys() const = 0;

    /// Keys of what has been added to the page from outside.
    QVector<TKeyHelp> MoreKeys;

Q_SIGNALS:
    /// The user wants to see a voucher; the window opens it.
    void voucherWanted(int fiscalYear, int number);
};
