// SPDX-License-Identifier: MIT
#include "base/fixedtext.h"
#include "platform/qt/qtprinter.h"
#include "support/contacts.h"
#include "support/tempfolder.h"

#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>
#include <numeric>

namespace vantrel::test {
namespace {

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
        QProcess process;
        process.start(QStringLiteral("pdftotext"),
                      arguments << QString::fromStdString(path) << QStringLiteral("-"));
        process.waitForFinished();
        return process.readAllStandardOutput().toStdString();
    }

    TempFolder folder;
    const std::string path = folder.string() + "/SKS-LOG.PDF";
};

TEST_F(PrintedPdf, LinesStandInTheirColumnsIndented) {
    print({"", "SKS.CBR", "", "   Number of QSOs:   12", "J\xDCRGEN <b>&"});
    const std::string margin(5, ' '); // half an inch
    EXPECT_EQ(text(7.2), margin + "SKS.CBR\n\n" + margin + "   Number of QSOs:   12\n" + margin +
                             "J\xC3\x9CRGEN <b>&\n\f");
}

TEST_F(PrintedPdf, AContactLineIsPrintedWhole) {
    const std::string contact = contactLine({.marker = "K3Y/EU"});
    print({contact, contact});
    const std::string words = "QSO: 14050 CW 2011-06-16 0012 W1ABC 599 JOHN MA 1234T K9SKC 599 "
                              "CLUB IL 5000S K3Y/EU\n";
    EXPECT_EQ(text(), words + words + "\f");
}

TEST_F(PrintedPdf, LongLogsBreakIntoPagesAndWideLinesIntoSeveralAndNothingIsLost) {
    std::vector<std::string> lines{std::string(300, 'X')};
    for (int i = 0; i < 1000; ++i)
        lines.push_back("LINE " + zeroPadded(i, 4));
    print(lines);
    std::string printed = text();
    const auto pages = std::count(printed.begin(), printed.end(), '\f');
    EXPECT_GE(pages, 10);
    EXPECT_LE(pages, 25);
    std::erase_if(printed, [](char character) { return character == '\n' || character == '\f'; });
    EXPECT_EQ(printed, std::accumulate(lines.begin(), lines.end(), std::string()));
}

} // namespace
} // namespace vantrel::test
