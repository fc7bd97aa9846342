#pragma once

#include <QStringList>
#include <QVector>

class QTranslator;

/// A language of the window.
struct Language
{
    QString argument; ///< chooses it on the command line
    QString catalogue; ///< resource with its texts; empty for English, in which the program is written
};

/// All languages: Japanese, which is the default, English, and one for every other catalogue that was
/// compiled in; that of the catalogue Nelvo_de_DE is chosen by "-de".
const QVector<Language>& languages();
const Language& japanese();
const Language& english();

/// Chooses the language from the whole argument vector, the program's own path included.
///
/// Japanese unless told otherwise; of the languages' arguments after the program's path the last one wins
/// (exact, case-sensitive); a program path that contains "Nelvoe" anywhere is English whatever the arguments
/// say. An empty list gives Japanese.
const Language& chooseLanguage(const QStringList& arguments);

/// Has the application speak `language`: loads its catalogue, compiled into the program, into `translator`,
/// which must live as long as the texts are needed, and installs it. False when there is no catalogue, which
/// leaves the texts in English.
bool speak(const Language& language, QTranslator& translator);

/// The same for the toolkit's own dialogs, whose catalogue comes with the toolkit (speakInToolkit()). False
/// when there is none, which leaves them in English.
bool speakInDialogs(const Language& language, QTranslator& translator);
