#pragma once

class TListForm;
class TReferenceHost;
class TReportForm;

/// What pages get in addition to what they are: the bars of automatic vouchers above, the detail area under
/// the lists, the correction of the stock, a glance at a voucher.
namespace PageExtras {

void AddTo(TListForm& list, TReferenceHost& host);
void AddTo(TReportForm& report, TReferenceHost& host);

} // namespace PageExtras
