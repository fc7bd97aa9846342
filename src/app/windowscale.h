#pragma once

#include <QSize>

class QWidget;
struct Language;

/// The least that the station's form has to have in `language`, in pixels at the scale 1: no text is cut in
/// the fonts of Windows, and the chart is high enough for its labels to be read.
QSize neededFormSize(const Language& language);

/// The scale at which a window around a form of `formSize` has room in `freePixels` (physical pixels, without
/// task bars): `systemScale` (1 is 96 dpi) or, on a small screen at a large scale, less; below 1 only where
/// the width asks for it.
double scaleThatFits(double systemScale, QSize freePixels, QSize formSize);

/// Has the toolkit draw at the scale of Windows, fractions included, but never so large that the window, in
/// `language`, has no room on the first screen. To be called before there is an application object. The
/// environment variable QT_SCALE_FACTOR, where somebody sets it, is left alone. Elsewhere the toolkit scales
/// as it does by itself.
void setUpScale(const Language& language);

/// Makes `window`, not yet shown, no larger than the free area of its screen, and puts it in the middle of
/// that area where the platform tells how wide its frame will be.
void fitIntoFreeArea(QWidget& window);
