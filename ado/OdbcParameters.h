#pragma once

#include "OdbcHandles.h"

#include <memory>
#include <QVariant>
#include <vector>

/// The values of a statement's `?` marks, alive until the statement has run.
class TOdbcParameters
{
public:
    explicit TOdbcParameters(const QVariantList& values);
    TOdbcParameters(const TOdbcParameters&) = delete;
    TOdbcParameters& operator=(const TOdbcParameters&) = delete;
    ~TOdbcParameters();

    SQLRETURN Bind(SQLHANDLE statement);

private:
    struct TParameter;
    static TParameter Describe(const QVariant& value);

    std::vector<TParameter> parameters_;
};
