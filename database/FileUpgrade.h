#pragma once

#include <QString>

/// Brings the tables of an embedded database up to this program's version, one version after the other, each
/// in one transaction: what fails leaves the version before. Of several programs that open the file one does
/// it. Throws EADOError.
void UpgradeDatabaseFile(const QString& path);
