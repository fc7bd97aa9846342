#pragma once

#include <QString>

/// The page that leads to `part` ("program", "chart") of the operator's manual in `language` ("ja", "en"):
/// beside the program, else where it was installed. Empty when it is in neither place.
QString manualPage(const QString& language, const QString& part);
