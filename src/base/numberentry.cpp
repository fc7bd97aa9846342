#include "base/numberentry.h"

#include "base/compatibleform.h"

#include <QLineEdit>

namespace {

QString withoutSpace(const QString& text)
{
    QString dense;
    dense.reserve(text.size());
    for (const QChar character : text) {
        if (!character.isSpace()) {
            dense.append(character);
        }
    }
    return dense;
}

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
    // A number may be pasted with more blanks around it than a number has characters.
    const QString shortest = text.size() > longestCompatible ? withoutSpace(text) : text;
    return withoutSpace(compatibleForm(shortest));
}

void makeNumberEntry(QLineEdit& entry)
{
    entry.setInputMethodHints(Qt::ImhPreferNumbers | Qt::ImhPreferLatin | Qt::ImhFormattedNumbersOnly);
    QObject::connect(&entry, &QLineEdit::textEdited, &entry, [&entry] { makePlain(entry); });
}
