#pragma once

#include <functional>
#include <QObject>

/// A handler that an owner sets on an object; it can be read, saved, cleared and restored.
/// `Sender` is the object that raises the event, or null where a handler is run by hand.
using TNotifyEvent = std::function<void(QObject* Sender)>;
