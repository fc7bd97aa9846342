#pragma once

#include <QString>
#include <QUrl>

/// The page of the operator's manual in `language` ("ja", "en"), one file a language: beside the program,
/// else where it was installed. Empty when it is in neither place.
QString manualFile(const QString& language);

/// The same page at the part of that name, such as "program"; an invalid address when there is no page.
QUrl manualPart(const QString& language, const QString& part);
