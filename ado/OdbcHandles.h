#pragma once

#ifdef _WIN32
#include <windows.h>
#endif

#include <QString>
#include <sql.h>
#include <sqlext.h>
#include <utility>

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t), "the driver manager and QString both speak UTF-16");

/// Owns one ODBC handle of the given type.
template <SQLSMALLINT HandleType> class TOdbcHandle
{
public:
    TOdbcHandle() = default;
    explicit TOdbcHandle(SQLHANDLE parent) { SQLAllocHandle(HandleType, parent, &handle_); }
    TOdbcHandle(TOdbcHandle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    TOdbcHandle& operator=(TOdbcHandle&& other) noexcept
    {
        std::swap(handle_, other.handle_);
        return *this;
    }
    TOdbcHandle(const TOdbcHandle&) = delete;
    TOdbcHandle& operator=(const TOdbcHandle&) = delete;
    ~TOdbcHandle()
    {
        if (handle_)
            SQLFreeHandle(HandleType, handle_);
    }

    SQLHANDLE Get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }

private:
    SQLHANDLE handle_ = nullptr;
};

using TOdbcEnvironment = TOdbcHandle<SQL_HANDLE_ENV>;
using TOdbcConnection = TOdbcHandle<SQL_HANDLE_DBC>;
using TOdbcStatement = TOdbcHandle<SQL_HANDLE_STMT>;

/// A QString's UTF-16 as the wide-character calls take it. The calls do not write through the pointer.
inline SQLWCHAR* OdbcText(const QString& text)
{
    return const_cast<SQLWCHAR*>(reinterpret_cast<const SQLWCHAR*>(text.utf16()));
}

inline bool Succeeded(SQLRETURN result)
{
    return SQL_SUCCEEDED(result);
}
