// SPDX-License-Identifier: MIT
#include "platform/qt/qtdevices.h"
#include "support/testing.h"

#include <QProcess>
#include <QStandardPaths>

namespace vantrel::test {
namespace {

// The PDF's text, a form feed after each page.
std::string printed(const std::vector<std::string>& lines, const QStringList& layout) {
    const TempFolder folder;
    folder.write("LOG.PDF", QtPrinter().pdf(lines));
    const QString path = QString::fromStdString(folder.string() + "/LOG.PDF");
    QProcess process;
    process.start(QStringLiteral("pdftotext"), layout + QStringList{path, QStringLiteral("-")});
    process.waitForFinished();
    return process.readAllStandardOutput().toStdString();
}

TEST(PrintedPdf, KeepsColumnsAndBreaksIntoPagesAndNothingIsLost) {
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
        GTEST_SKIP() << "pdftotext is not installed";
    const QStringList columns{QStringLiteral("-fixed"), QStringLiteral("7.2")};
    const std::string margin(5, ' '); // half an inch
    EXPECT_EQ(printed({"", "SKS.CBR", "", "   Number of QSOs:   12", "J\xDCRGEN <b>&"}, columns),
              margin + "SKS.CBR\n\n" + margin + "   Number of QSOs:   12\n" + margin +
                  "J\xC3\x9CRGEN <b>&\n\f");

    const QStringList raw{QStringLiteral("-raw")};
    std::vector<std::string> lines{std::string(300, 'X')};
    std::string all = lines.front();
    for (int i = 0; i < 1000; ++i)
        all += lines.emplace_back("LINE " + zeroPadded(i, 4));
    std::string text = printed(lines, raw);
    const auto pages = std::erase(text, '\f');
    EXPECT_TRUE(pages >= 10 && pages <= 25) << pages;
    std::erase(text, '\n');
    EXPECT_EQ(text, all);
}

} // namespace
} // namespace vantrel::test
