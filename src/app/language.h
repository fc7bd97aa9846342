#pragma once

#include <QStringList>

class QTranslator;

/// The two languages of the window.
enum class Language { Japanese, English };

/// Chooses the language from the whole argument vector, the program's own path included.
///
/// Japanese unless told otherwise; of "-j" and "-e" after the program's path the last one wins (exact,
/// case-sensitive); a program path that contains "Nelvoe" anywhere is English whatever the switches say.
/// An empty list gives Japanese.
Language chooseLanguage(const QStringList& arguments);

/// Loads the Japanese catalogue compiled into the program into `translator`; `applicationDirectory` plays no
/// part in finding it. False when the catalogue is missing, which leaves the texts in English.
bool loadJapanese(QTranslator& translator, const QString& applicationDirectory);
