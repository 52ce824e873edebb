#pragma once

#include "ReportTable.h"

class QIODevice;

/// A report on pages of A4 across: from right to left, with title, condition and column titles on every
/// page, numbers of the pages, and the totals at the end.
namespace ReportPdf {

/// Throws std::runtime_error where the device does not take it. Any thread.
void Write(QIODevice& device, const TReportTable& table);

} // namespace ReportPdf
