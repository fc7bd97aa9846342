#pragma once

#include "base/platformrefusal.h"

/// Keeps the PC from going to sleep by itself; the screen may go dark. `powercfg /requests` shows the reason.
class PowerRequest
{
public:
    PowerRequest() = default;
    ~PowerRequest();
    PowerRequest(const PowerRequest&) = delete;
    PowerRequest& operator=(const PowerRequest&) = delete;

    /// Holds the PC awake until release(), for a `reason` in the operator's language; a reason held before is
    /// replaced.
    PlatformRefusal hold(const QString& reason);
    void release();

private:
    [[maybe_unused]] void* request = nullptr; // the platform's, while one is held
};
