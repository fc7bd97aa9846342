#pragma once

#include <QSize>

class QWidget;

/// The scale at which the station's window, frame included, has room in `freePixels` (physical pixels,
/// without task bars): `systemScale` (1 is 96 dpi) or, on a small screen at a large scale, less.
double scaleThatFits(double systemScale, QSize freePixels);

/// Has the toolkit draw at the scale of Windows, fractions included, but never so large that the window has
/// no room on the first screen. To be called before there is an application object. The environment variable
/// QT_SCALE_FACTOR, where somebody sets it, is left alone. Elsewhere the toolkit scales as it does by itself.
void setUpScale();

/// Makes `window`, not yet shown, no larger than the free area of its screen, and puts it in the middle of
/// that area where the platform tells how wide its frame will be.
void fitIntoFreeArea(QWidget& window);
