#pragma once

#include <QString>

/// The longest text that compatibleForm() changes, in characters: more than any number or name has. Putting
/// the combining marks of a text in order takes a time that grows with the square of their number, and texts
/// come from files and the clipboard.
constexpr int longestCompatible = 64;

/// `text` with plain forms for compatible ones (NFKC): full-width letters, digits, points and signs become
/// those of ASCII. One of more than `longestCompatible` characters comes back as it is.
QString compatibleForm(const QString& text);
