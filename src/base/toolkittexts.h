#pragma once

#include <QString>

class QFileDevice;
class QTranslator;

/// Has the toolkit's own texts, those of its dialogs and of its errors, in the language `code` ("ja"): loads
/// its catalogue, from the folder "translations" beside the program or from where the toolkit keeps them,
/// into `translator`, which must live as long as the texts are needed, and installs it. False when there is
/// none, which leaves them in English.
bool speakInToolkit(const QString& code, QTranslator& translator);

/// Why `file` could not be opened, read or written, in that language as far as the catalogue has it: the
/// toolkit itself hands the system's reasons out untranslated.
QString errorText(const QFileDevice& file);
