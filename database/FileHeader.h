#pragma once

#include <QString>

/// The first bytes of an embedded database, as its engine documents them. Read and written here without
/// opening the database, so that a file that is refused is not touched.
namespace FileHeader {

enum class TVerdict {
    Good,           ///< of this version or of an older one that can be brought up to it
    Unreadable,     ///< the file cannot be read
    NotADatabase,   ///< not a file of the embedded engine
    Incomplete,     ///< shorter than its header says
    Foreign,        ///< the database of another application
    UnknownVersion, ///< of this application, but of no version that there has been
    NewerVersion,   ///< made by a later version of this application
};

TVerdict Examine(const QString& path);
/// Marks a closed database as one of this application. False when the file cannot be written.
bool Stamp(const QString& path);

} // namespace FileHeader
