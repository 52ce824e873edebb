#pragma once

#include <QString>

class TMainWindow;

/// Plays every step of the guided tour and leaves numbered screenshots in the folder. Returns 0, or 1 where a
/// check failed; each failed check is printed.
int PlayTour(TMainWindow& window, const QString& folder);
