#pragma once

#include <QString>

/// Why a call that asks something of the platform was not done, in English: on Windows the error of the last
/// one
/// ("error 87"), elsewhere that there is no such call.
QString platformRefusal();
