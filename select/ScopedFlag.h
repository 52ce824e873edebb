#pragma once

#include <QPointer>
#include <utility>

/// Sets a flag of an object for a scope, and puts it back, also when an error passes, where the object still
/// lives.
class TScopedFlag
{
public:
    TScopedFlag(QObject* owner, bool& flag, bool value)
        : owner_(owner), flag_(flag), before_(std::exchange(flag, value))
    {
    }
    TScopedFlag(const TScopedFlag&) = delete;
    TScopedFlag& operator=(const TScopedFlag&) = delete;
    ~TScopedFlag()
    {
        if (owner_)
            flag_ = before_;
    }

private:
    QPointer<QObject> owner_;
    bool& flag_;
    bool before_;
};
