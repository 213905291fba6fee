// SPDX-License-Identifier: MIT
#include "forms/colours.h"

#include <QApplication>
#include <QEvent>
#include <QFont>

#include <algorithm>
#include <cmath>
#include <map>

namespace vantrel {

namespace {

// A channel of sRGB, 0 to 1, without its gamma.
double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

// As WCAG 2.1 defines it: 0 to 1.
double relativeLuminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

// Such themes use one colour for windows, boxes and buttons.
bool isHighContrast(const QPalette& palette) {
    const QColor window = palette.color(QPalette::Window);
    return window == palette.color(QPalette::Base) && window == palette.color(QPalette::Button);
}

// For texts: the colour that suits a light or a dark window, made readable on it.
QColor textColour(const QPalette& palette, const QColor& onLight, const QColor& onDark) {
    if (isHighContrast(palette))
        return palette.color(QPalette::WindowText);
    const QColor ground = palette.color(QPalette::Window);
    return standingOut(ground.lightness() < 128 ? onDark : onLight, ground, textContrast);
}

QColor weaker(const QPalette& palette, int percentOfGround) {
    const QColor text = palette.color(QPalette::WindowText);
    return isHighContrast(palette) ? text
                                   : mixed(text, palette.color(QPalette::Window), percentOfGround);
}

QColor alarmColour(const QPalette& palette) {
    return isHighContrast(palette) ? palette.color(QPalette::Highlight) : QColor(0xC0, 0, 0);
}

QColor alarmTextColour(const QPalette& palette) {
    return isHighContrast(palette) ? palette.color(QPalette::HighlightedText) : QColor(Qt::white);
}

// Keeps a control's own colours as its palette changes.
class ColourKeeper : public QObject {
public:
    static constexpr QLatin1String name{"colours"};

    explicit ColourKeeper(QWidget* control) : QObject(control), m_control(control) {
        setObjectName(name);
        control->installEventFilter(this);
    }

    void set(QPalette::ColorRole role, Colour colour) {
        m_colours[role] = colour;
        apply();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::PaletteChange)
            apply();
        return QObject::eventFilter(watched, event);
    }

private:
    void apply() {
        QPalette palette;
        for (const auto& [role, colour] : m_colours)
            if (colour != nullptr)
                palette.setColor(role, colour(QApplication::palette()));
        m_control->setPalette(palette);
    }

    QWidget* m_control;
    std::map<QPalette::ColorRole, Colour> m_colours;
};

} // namespace

double contrastRatio(const QColor& one, const QColor& other) {
    constexpr double flare = 0.05; // light of the room on the screen
    const auto [dark, light] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
    return (light + flare) / (dark + flare);
}

QColor mixed(const QColor& one, const QColor& other, int percentOfOther) {
    const auto between = [percentOfOther](int a, int b) {
        return (a * (100 - percentOfOther) + b * percentOfOther) / 100;
    };
    return QColor(between(one.red(), other.red()), between(one.green(), other.green()),
                  between(one.blue(), other.blue()));
}

QColor standingOut(QColor colour, const QColor& ground, double contrast) {
    constexpr int step = 10; // per cent
    const QColor end =
        contrastRatio(Qt::white, ground) > contrastRatio(Qt::black, ground) ? Qt::white : Qt::black;
    for (int i = 0; i < 100 / step && contrastRatio(colour, ground) < contrast; ++i)
        colour = mixed(colour, end, step);
    return colour;
}

QColor warningColour(const QPalette& palette) {
    return textColour(palette, QColor(0xC0, 0, 0), QColor(0xFF, 0x80, 0x80));
}

QColor cautionColour(const QPalette& palette) {
    return textColour(palette, QColor(0x8A, 0x55, 0), QColor(0xF0, 0xB0, 0x40));
}

QColor goodColour(const QPalette& palette) {
    return textColour(palette, QColor(0, 0x70, 0x20), QColor(0x60, 0xD0, 0x60));
}

QColor accentColour(const QPalette& palette) {
    return isHighContrast(palette)
               ? palette.color(QPalette::Highlight)
               : textColour(palette, QColor(0x10, 0x60, 0xA0), QColor(0x5A, 0xB4, 0xF0));
}

QColor dimmedColour(const QPalette& palette) {
    return weaker(palette, 30);
}

QColor frameColour(const QPalette& palette) {
    return weaker(palette, 45);
}

QColor faintColour(const QPalette& palette, const QColor& text, const QColor& ground) {
    constexpr double weakest = 4.5;
    constexpr int step = 2; // per cent
    QColor faint = text;
    for (int share = step; share < 100 && !isHighContrast(palette); share += step) {
        const QColor fainter = mixed(text, ground, share);
        if (contrastRatio(fainter, ground) < weakest)
            break;
        faint = fainter;
    }
    return faint;
}

QColor tinted(const QPalette& palette, const QColor& tone) {
    constexpr int tint = 10; // per cent
    const QColor window = palette.color(QPalette::Window);
    return isHighContrast(palette) ? window : mixed(window, tone, tint);
}

QColor lookedUpColour(const QPalette& palette) {
    constexpr int tint = 17; // per cent
    return mixed(palette.color(QPalette::Base), palette.color(QPalette::Highlight), tint);
}

QColor noColour(const QPalette&) {
    return Qt::transparent;
}

void setColour(QWidget* control, QPalette::ColorRole role, Colour colour) {
    auto* keeper = static_cast<ColourKeeper*>(
        control->findChild<QObject*>(ColourKeeper::name, Qt::FindDirectChildrenOnly));
    if (keeper == nullptr)
        keeper = new ColourKeeper(control);
    keeper->set(role, colour);
}

void setAlarmColours(QWidget* panel) {
    setColour(panel, QPalette::WindowText, alarmTextColour);
    setColour(panel, QPalette::Window, alarmColour);
}

void setLookedUp(QWidget* box, bool lookedUp) {
    setColour(box, QPalette::Base, lookedUp ? lookedUpColour : nullptr);
    QFont font = box->font();
    font.setItalic(lookedUp);
    box->setFont(font);
}

} // namespace vantrel
