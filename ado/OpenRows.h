#pragma once

#include "AdoError.h"
#include "Engine.h"

/// Rows that may lose their connection before they have been read.
class IOpenRows : public IEngineRows
{
public:
    /// The connection closes: what has not been read is gone.
    virtual void ConnectionCloses() = 0;
};

/// The one statement that is open on a connection, from its start until its rows have been read to their end
/// or are destroyed. Servers take no other statement meanwhile, so no engine does: a program that reads while
/// it writes would work on one and fail on the other.
class TOpenRows
{
public:
    void Take(IOpenRows* rows, const QString& text); ///< throws EADOError(WrongState) when there are others
    void Release(const IOpenRows* rows);
    /// Throws EADOError(WrongState) when there are open rows.
    void RefuseWhileOpen(const QString& text) const;
    void ConnectionCloses();

    /// For a reading that goes on after the connection has been closed.
    static EADOError CutOff(const QString& text);

private:
    IOpenRows* rows_ = nullptr;
};
