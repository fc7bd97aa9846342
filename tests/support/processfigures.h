#pragma once

/// How much memory this process has in use, in MB (10^6 bytes), as the system counts it; 0 where it does not
/// tell.
double residentMb();
