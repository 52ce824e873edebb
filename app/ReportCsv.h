#pragma once

#include "ReportTable.h"

class QIODevice;

/// A report as comma-separated values: UTF-8 with a byte order mark, every cell quoted, lines ended by CR LF.
namespace ReportCsv {

/// One cell. A text that a spreadsheet would take for a formula gets an apostrophe in front.
QString Cell(const QString& text, TGridColumn::TKind kind);
/// Throws std::runtime_error where the device does not take it.
void Write(QIODevice& device, const TReportTable& table);

} // namespace ReportCsv
