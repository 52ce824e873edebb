#pragma once

#include <QString>

class QWidget;

enum class TUnsavedAnswer { Save = 1, Discard, Stay };

/// Asks what to do with what is not saved; `sentence` says what that is.
TUnsavedAnswer AskAboutUnsaved(QWidget* window, const QString& sentence);
