#pragma once

#include "AdoExport.h"

#include <QString>
#include <stdexcept>

/// What went wrong, as far as a caller may want to act on it.
enum class TAdoErrorKind {
    Other,          ///< anything the engine says that is none of the below
    CannotOpen,     ///< file missing, unreadable, wrong connection string, server not reachable
    NotADatabase,   ///< the file is there but is not a database of the engine
    Busy,           ///< another user holds the lock for longer than the connection's busy timeout
    Syntax,         ///< the engine does not understand the statement
    Unsupported,    ///< the dialect layer does not know a construct; Detail() names it
    Constraint,     ///< a key, uniqueness, null or check rule refused the write
    Cancelled,      ///< the statement was abandoned by TADOConnection::Cancel
    ConnectionLost, ///< the connection is dead; nothing was repeated, Reopen() is the user's decision
    WrongState,     ///< a programming error: closed data set, unknown field, wrong conversion
};

/// The one exception of the data access room. Frames do not catch it: it reaches the application's handler.
class ADO_EXPORT EADOError : public std::runtime_error
{
public:
    /// `message` is for the user, the rest for whoever looks after the program; see the getters.
    EADOError(TAdoErrorKind kind, const QString& message, const QString& statement = {},
              const QString& serverMessage = {}, const QString& state = {}, int code = 0);
    ~EADOError() override;

    TAdoErrorKind Kind() const { return kind_; } ///< what a caller can act on
    /// One Persian sentence for the user: what is wrong and, where there is something, what to do.
    QString Message() const { return message_; }
    /// The statement as the caller wrote it; empty where no statement was running.
    QString Statement() const { return statement_; }
    /// The engine's or the server's own words, untranslated.
    QString ServerMessage() const { return serverMessage_; }
    /// The five-letter SQLSTATE of ODBC; empty on the embedded engine.
    QString State() const { return state_; }
    /// The engine's own number: SQLite's extended result code or ODBC's native error.
    int Code() const { return code_; }

private:
    TAdoErrorKind kind_;
    QString message_;
    QString statement_;
    QString serverMessage_;
    QString state_;
    int code_;
};
