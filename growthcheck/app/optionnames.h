#pragma once

#include <QString>

/// The options that have a value, as they are written behind "--".
namespace GrowthCheck::OptionNames {

inline const QString start = QStringLiteral("start");
inline const QString startAll = QStringLiteral("start-all");
inline const QString startJournal = QStringLiteral("start-from-journal");
inline const QString at = QStringLiteral("at");
inline const QString hold = QStringLiteral("hold");
inline const QString reply = QStringLiteral("reply");
inline const QString layers = QStringLiteral("layers");
inline const QString html = QStringLiteral("html");
inline const QString run = QStringLiteral("run");
inline const QString language = QStringLiteral("language");

} // namespace GrowthCheck::OptionNames
