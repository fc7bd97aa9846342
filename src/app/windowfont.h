#pragma once

#include <QString>
#include <QStringList>

struct Language;

/// The one of `families`, the fonts of a Windows, in which Japanese texts are best shown; empty when it has
/// none.
QString japaneseFamily(const QStringList& families);

/// Has the application write in the font in which Windows writes its own windows, and Japanese texts on a
/// Windows of another language in a Japanese font. The toolkit by itself takes one from the nineties.
/// Elsewhere the toolkit's choice is the desktop's, and stays.
void useFontFor(const Language& language);
