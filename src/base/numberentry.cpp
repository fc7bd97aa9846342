#include "base/numberentry.h"

#include <QLineEdit>

namespace {

void makePlain(QLineEdit& entry)
{
    const QString text = entry.text();
    const QString plain = plainNumberText(text);
    if (plain == text) {
        return;
    }
    const int cursor = plainNumberText(text.left(entry.cursorPosition())).size();
    entry.setText(plain);
    entry.setCursorPosition(cursor);
}

} // namespace

QString plainNumberText(const QString& text)
{
    QString plain;
    for (const QChar character : text.normalized(QString::NormalizationForm_KC)) {
        if (!character.isSpace()) {
            plain.append(character);
        }
    }
    return plain;
}

void makeNumberEntry(QLineEdit& entry)
{
    entry.setInputMethodHints(Qt::ImhPreferNumbers | Qt::ImhPreferLatin | Qt::ImhFormattedNumbersOnly);
    QObject::connect(&entry, &QLineEdit::textEdited, &entry, [&entry] { makePlain(entry); });
}
