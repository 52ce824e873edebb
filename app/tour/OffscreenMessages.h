#pragma once

/// Keeps one line from the standard error stream, which the off-screen platform prints for every window,
/// since a window that nobody sees takes no size hints. All other messages go where they went.
void HideSizeHintMessage();
