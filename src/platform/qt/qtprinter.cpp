// SPDX-License-Identifier: MIT
#include "base/runtimeerror.h"
#include "platform/qt/latin1.h"
#include "platform/qt/qtdevices.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>

namespace vantrel {

namespace {

constexpr double fontSize = 12;
constexpr double smallestFontSize = 8; // a contact line's 107 columns just fit the page then
constexpr double fontStep = 0.25;
constexpr double marginInches = 0.5;

struct PageLayout {
    std::size_t columns;
    double lineHeight;
    double ascent;
};

// Sets the font and says what a page takes in it.
PageLayout layoutWith(double pointSize, QPainter& painter) {
    QFont font(QStringLiteral("Courier New"));
    font.setStyleHint(QFont::Monospace);
    font.setPointSizeF(pointSize);
    painter.setFont(font);
    const QFontMetricsF metrics(painter.font(), painter.device());
    const double columnWidth = metrics.horizontalAdvance(QLatin1Char('0'));
    return {static_cast<std::size_t>(painter.viewport().width() / columnWidth),
            metrics.lineSpacing(), metrics.ascent()};
}

// The largest font in which the longest line fits, else the smallest one and as many columns as
// fit.
PageLayout layoutFor(const std::vector<std::string>& lines, QPainter& painter) {
    std::size_t longest = 0;
    for (const std::string& line : lines)
        longest = std::max(longest, line.size());
    double size = fontSize;
    PageLayout layout = layoutWith(size, painter);
    while (layout.columns < longest && size > smallestFontSize)
        layout = layoutWith(size -= fontStep, painter);
    return layout;
}

// Draws the lines on as many pages as they need; a line wider than the page goes on in the
// next. False when the device cannot be painted on.
bool paintLines(const std::vector<std::string>& lines, QPagedPaintDevice& device) {
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const PageLayout layout = layoutFor(lines, painter);
    double y = 0;
    const auto paint = [&](std::string_view piece) {
        if (y + layout.lineHeight > painter.viewport().height()) {
            device.newPage();
            y = 0;
        }
        painter.drawText(QPointF(0, y + layout.ascent), toQt(piece));
        y += layout.lineHeight;
    };
    for (const std::string& line : lines) {
        std::string_view rest = line;
        while (rest.size() > layout.columns) {
            paint(rest.substr(0, layout.columns));
            rest.remove_prefix(layout.columns);
        }
        paint(rest);
    }
    return painter.end();
}

void setMargins(QPagedPaintDevice& device) {
    device.setPageMargins(QMarginsF(marginInches, marginInches, marginInches, marginInches),
                          QPageLayout::Inch);
}

} // namespace

bool QtPrinter::print(const std::vector<std::string>& lines) {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull())
        return false;
    QPrinter printer(info, QPrinter::HighResolution);
    setMargins(printer);
    if (!paintLines(lines, printer))
        throw RuntimeError(ErrorCode::pathFileAccess,
                           "the printer " + fromQt(info.printerName()) + " takes no job");
    return true;
}

std::string QtPrinter::pdf(const std::vector<std::string>& lines) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
        writer.setPageSize(QPageSize(letter ? QPageSize::Letter : QPageSize::A4));
        setMargins(writer);
        paintLines(lines, writer); // memory can always be painted on
    }
    return bytes.toStdString();
}

} // namespace vantrel
