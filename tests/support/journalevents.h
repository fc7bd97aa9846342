#pragma once

#include <QStringList>

/// What the journal in the working directory has told since the last call, without times: "kind name=value
/// …", in order. Events of the kinds `left` are left out.
QStringList journalEvents(const QStringList& left = {});

/// The same of the journal `name`.
QStringList journalEventsOf(const QString& name, const QStringList& left = {});
