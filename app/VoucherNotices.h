#pragma once

#include <QPointer>
#include <QWidget>

class QBoxLayout;
class TRefreshAutoVouchers_FRME;
class TReferenceHost;
class TSaveAutoVouchers_FRME;

/// The two bars of automatic vouchers on top of a page. They look after themselves: whenever the page comes
/// to the front they are asked for what they say, and they go when it is done.
class TVoucherNotices : public QWidget
{
    Q_OBJECT

public:
    /// Puts the bars above everything else on the page, whose layout is a column. The host must outlive it.
    TVoucherNotices(TReferenceHost& host, QWidget* page);
    ~TVoucherNotices() override;

    /// Asks the host; what it looks for in the background is shown when it has answered.
    void Check();
    TSaveAutoVouchers_FRME& SaveBar() { return *save_; }
    TRefreshAutoVouchers_FRME& RefreshBar() { return *refresh_; }

Q_SIGNALS:
    void generated(); ///< the user has had vouchers generated; lists of them are out of date

protected:
    void showEvent(QShowEvent* event) override;

private:
    TReferenceHost* host_;
    TSaveAutoVouchers_FRME* save_;
    TRefreshAutoVouchers_FRME* refresh_;
};
