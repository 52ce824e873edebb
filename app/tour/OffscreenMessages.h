#pragma once

/// Keeps from the standard error stream what the off-screen platform complains of for every window: that it
/// takes no size hints, is not raised and does not grab the keyboard. All other messages go where they went.
void HideOffscreenMessages();
