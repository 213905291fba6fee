// SPDX-License-Identifier: MIT
// What colours mean, in whatever palette the desktop has: texts stand out from their ground 4.5
// times, frames and bars 3 times. Nothing is told by colour alone.
#pragma once

#include <QColor>
#include <QPalette>
#include <QWidget>

namespace vantrel {

// More than the 4.5 that make a text readable: thin letters are a shade weaker than their colour.
constexpr double textContrast = 5.5;

// The contrast ratio of WCAG 2.1: 1, alike, to 21, black on white.
double contrastRatio(const QColor& one, const QColor& other);
QColor mixed(const QColor& one, const QColor& other, int percentOfOther);
// The colour, darkened or lightened until it has that contrast ratio to the ground.
QColor standingOut(QColor colour, const QColor& ground, double contrast);

// In a high-contrast palette all of these are the palette's own.
// Red, amber and green, for texts on the window.
QColor warningColour(const QPalette& palette);
QColor cautionColour(const QPalette& palette);
QColor goodColour(const QPalette& palette);
// What stands out without being wrong: the focus, a K3Y tag.
QColor accentColour(const QPalette& palette);
// For captions: weaker than what they name.
QColor dimmedColour(const QPalette& palette);
// Rings of options, frames of boxes, buttons and sections.
QColor frameColour(const QPalette& palette);
// For what repeats what is known: the palest shade of `text` still readable on `ground`.
QColor faintColour(const QPalette& palette, const QColor& text, const QColor& ground);
// The ground of a box whose text was looked up.
QColor lookedUpColour(const QPalette& palette);
// Transparent.
QColor noColour(const QPalette& palette);

// A colour in the palette of the moment: one of those above.
using Colour = QColor (*)(const QPalette&);
// Gives the control this colour, also when the palette changes; nullptr: the palette's own.
void setColour(QWidget* control, QPalette::ColorRole role, Colour colour);
inline void setTextColour(QWidget* label, Colour colour) {
    setColour(label, QPalette::WindowText, colour);
}
// For a panel that shows one word of alarm: white on red.
void setAlarmColours(QWidget* panel);
// The window tinted with that tone, for a strip across it, and a text readable on the strip.
QColor tinted(const QPalette& palette, const QColor& tone);
template <Colour tone>
QColor tintColour(const QPalette& palette) {
    return tinted(palette, tone(palette));
}
template <Colour tone>
QColor onTintColour(const QPalette& palette) {
    return standingOut(tone(palette), tintColour<tone>(palette), textContrast);
}
// Tints the box and sets its text in italics: it was looked up, not typed.
void setLookedUp(QWidget* box, bool lookedUp);

} // namespace vantrel
