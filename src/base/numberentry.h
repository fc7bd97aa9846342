#pragma once

#include <QString>

class QLineEdit;

/// What an entry for numbers makes of a text that is typed or pasted: compatibility forms become plain ones
/// (NFKC: full-width digits, points and signs, as a Japanese keyboard gives them), white space and line ends
/// go. Of a text that is too long for a number (see base/compatibleform.h) white space alone goes.
QString plainNumberText(const QString& text);

/// Makes `entry` one for numbers: what the operator types or pastes is made plain at once, and input methods
/// are asked for Latin numbers. What the program sets stays as it is.
void makeNumberEntry(QLineEdit& entry);
