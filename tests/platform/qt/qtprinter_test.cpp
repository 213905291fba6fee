// SPDX-License-Identifier: MIT
#include "platform/qt/qtprinter.h"
#include "shared/fixedtext.h"
#include "support/contacts.h"
#include "support/tempfolder.h"

#include <QProcess>
#include <QStandardPaths>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

using ::testing::HasSubstr;

// The output of a program of the PDF tools on the file; empty when it fails.
std::string output(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.exitCode() == 0 ? process.readAllStandardOutput().toStdString() : "";
}

class PrintedPdf : public ::testing::Test {
protected:
    void SetUp() override {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            GTEST_SKIP() << "pdftotext is not installed";
    }
    void print(const std::vector<std::string>& lines) {
        folder.write("SKS-LOG.PDF", QtPrinter().pdf(lines));
    }
    // The text, a form feed after each page; columns as they stand when `columnWidth` is given
    // (points), else one blank between words.
    std::string text(double columnWidth = 0) const {
        QStringList arguments{QStringLiteral("-raw")};
        if (columnWidth > 0)
            arguments = {QStringLiteral("-fixed"), QString::number(columnWidth)};
        arguments << QString::fromStdString(path) << QStringLiteral("-");
        return output(QStringLiteral("pdftotext"), arguments);
    }
    std::string fonts() const {
        return output(QStringLiteral("pdffonts"), {QString::fromStdString(path)});
    }
    // From the first line with text to the next, in points.
    double lineDistance() const {
        const std::string boxes = output(
            QStringLiteral("pdftotext"),
            {QStringLiteral("-bbox-layout"), QString::fromStdString(path), QStringLiteral("-")});
        std::vector<double> tops;
        for (std::size_t at = boxes.find("<line "); at != std::string::npos;
             at = boxes.find("<line ", at + 1))
            tops.push_back(std::stod(boxes.substr(boxes.find("yMin=\"", at) + 6)));
        return tops.size() < 2 ? 0 : tops[1] - tops[0];
    }

    TempFolder folder;
    const std::string path = folder.string() + "/SKS-LOG.PDF";
};

TEST_F(PrintedPdf, LinesStandInTheirColumnsIndented) {
    print({"", "SKS.CBR", "", "   Number of QSOs:   12", "J\xDCRGEN <b>&"});
    const std::string margin(5, ' '); // half an inch
    EXPECT_EQ(text(7.2), margin + "SKS.CBR\n\n" + margin + "   Number of QSOs:   12\n" + margin +
                             "J\xC3\x9CRGEN <b>&\n\f");
    EXPECT_THAT(fonts(), HasSubstr("Mono"));
    EXPECT_NEAR(lineDistance(), 2 * 13.6, 0.5); // two lines of 12 points
}

TEST_F(PrintedPdf, AContactLineIsPrintedWhole) {
    const std::string contact = contactLine({.marker = "K3Y/EU"});
    print({contact, contact});
    const std::string words = "QSO: 14050 CW 2011-06-16 0012 W1ABC 599 JOHN MA 1234T K9SKC 599 "
                              "CLUB IL 5000S K3Y/EU\n";
    EXPECT_EQ(text(), words + words + "\f");
    EXPECT_LT(lineDistance(), 11);
}

TEST_F(PrintedPdf, ALineWiderThanThePageGoesOnInTheNext) {
    std::string line;
    for (int i = 0; i < 30; ++i)
        line += "ABCDEFGHI" + std::to_string(i % 10);
    print({line});
    std::string joined = text();
    std::erase_if(joined, [](char character) { return character == '\n' || character == '\f'; });
    EXPECT_EQ(joined, line);
}

TEST_F(PrintedPdf, LongLogsBreakIntoPagesAndLoseNoLine) {
    std::vector<std::string> lines;
    std::string expected;
    for (int i = 0; i < 1000; ++i) {
        lines.push_back("LINE " + zeroPadded(i, 4));
        expected += lines.back();
    }
    print(lines);
    std::string printed = text();
    const auto pages = std::count(printed.begin(), printed.end(), '\f');
    EXPECT_GE(pages, 15);
    EXPECT_LE(pages, 25);
    std::erase_if(printed, [](char character) { return character == '\n' || character == '\f'; });
    EXPECT_EQ(printed, expected);
}

} // namespace
} // namespace vantrel::test
