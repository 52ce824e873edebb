#pragma once

#include <QString>

/// Messages of a program that cannot go on: always on the standard error stream, and in a box where somebody
/// can see it.
namespace StartMessages {

void PrintError(const QString& message, const QString& details = {});
/// True where windows are shown on a screen.
bool HasDisplay();
void Tell(const QString& message, const QString& details = {});

} // namespace StartMessages
