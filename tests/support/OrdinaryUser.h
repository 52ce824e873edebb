#pragma once

#include <functional>

/// Runs `work` as a user whom the permissions of files and folders bind, also where the superuser runs the
/// tests: in a thread of its own that gives up the privilege to pass over them, which programs started by
/// `work` do not get back. Returns when it is done; what it throws is thrown here.
void AsOrdinaryUser(const std::function<void()>& work);
