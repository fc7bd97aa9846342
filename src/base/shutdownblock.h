#pragma once

#include "base/platformrefusal.h"

/// Has the platform show `reason` when an end of the session is asked for and this program says no to it:
/// Windows shows it beside the button that ends the session all the same. `window` is the identifier of the
/// program's main window (QWidget::winId()). Where it was refused, saying no would be a veto.
PlatformRefusal blockShutdown(quintptr window, const QString& reason);

/// Takes the reason back.
void allowShutdown(quintptr window);
