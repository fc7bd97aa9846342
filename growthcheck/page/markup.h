#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Pieces of HTML and SVG, in UTF-8.
namespace GrowthCheck::Markup {

/// `text` for the page: what has a meaning in HTML is taken for itself, and controls for a blank.
QByteArray escaped(const QString& text);

/// "<name attributes>content</name>"; `content` is markup.
QByteArray element(const char* name, const QByteArray& content, const QByteArray& attributes = {});

/// A row of a table, its cells as texts. `cell` is "td" or "th".
QByteArray row(const QStringList& texts, const char* cell = "td", const QByteArray& attributes = {});

/// A number for SVG: up to three decimals, always with a point.
QByteArray number(double value);

} // namespace GrowthCheck::Markup
