#pragma once

#include <QDebug>
#include <QMessageLogger>

/// A debug line whose context names the source unit ("shutter", "temperature", "program", "gpib") instead of
/// a file path, with the line and the function signature of the caller and the category "default". Used like
/// qDebug(): NELVO_DEBUG("shutter") << "All Close" << 7;
///
/// A macro, because only a macro knows the caller's line and function.
#define NELVO_DEBUG(unit) QMessageLogger(unit, __LINE__, Q_FUNC_INFO).debug()
