// SPDX-License-Identifier: MIT
// Nothing is cut: every page as small as it lets itself be made, in the fonts that desktops have
// and with the longest texts it can hold, and every message box.
#include "forms/colours.h"
#include "forms/form.h"
#include "forms/visiblestyle.h"
#include "platform/qt/latin1.h"
#include "platform/qt/qtdevices.h"
#include "screens/main/qsoentry.h"
#include "screens/start/startnotes.h"
#include "support/qt/formharness.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QTableWidget>
#include <QTimer>
#include <QToolTip>

namespace vantrel::test {
namespace {

const std::string longPath = "/home/operator/contest-logs/sprints of 2026/straight-key/november/"
                             "SKS-W1ABC-PORTABLE-112226.CBR";

struct Look {
    int points;
    QSize most; // of a page: what a small screen leaves inside a frame
};
void PrintTo(const Look& look, std::ostream* out) {
    *out << look.points << " pt";
}

bool tellsAll(QLabel* label) {
    QHelpEvent asked(QEvent::ToolTip, QPoint(1, 1), label->mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(label, &asked);
    const bool told = QToolTip::text() == label->text() || label->toolTip() == label->text();
    QToolTip::hideText();
    return told;
}

bool isWhole(QLabel* label) {
    const QSize room = label->contentsRect().size();
    if (label->wordWrap())
        return label->heightForWidth(label->width()) <= label->height();
    const QSize text = label->fontMetrics().size(Qt::TextShowMnemonic, label->text());
    const bool varies = !label->objectName().isEmpty(); // a caption always has room
    return text.height() <= room.height() &&
           (text.width() <= room.width() || (varies && tellsAll(label)));
}

bool isWhole(const QLineEdit* box) {
    if (box->maxLength() > 32 && (!box->isReadOnly() || !box->toolTip().isEmpty()))
        return true; // of any length: it is scrolled
    const QString longest =
        box->isReadOnly() ? box->text() : QString(box->maxLength(), QLatin1Char('N'));
    return box->fontMetrics().horizontalAdvance(longest) <= box->width() - 4;
}

bool isWhole(const QTableWidget* table) {
    for (int column = 0; column < table->columnCount(); ++column)
        for (int row = 0; row < table->rowCount(); ++row)
            if (const QTableWidgetItem* item = table->item(row, column))
                if (QFontMetrics(item->font()).horizontalAdvance(item->text()) >
                    table->columnWidth(column))
                    return false;
    return true;
}

// Its object name, or its text where it has none; "" when all of it is seen.
std::string cutOf(QWidget* control) {
    bool whole = control->parentWidget()->rect().contains(control->geometry());
    if (auto* label = qobject_cast<QLabel*>(control))
        whole = whole && isWhole(label);
    else if (const auto* box = qobject_cast<QLineEdit*>(control))
        whole = whole && isWhole(box);
    else if (const auto* table = qobject_cast<QTableWidget*>(control))
        whole = whole && isWhole(table);
    else if (qobject_cast<QAbstractButton*>(control) || qobject_cast<QComboBox*>(control))
        whole = whole && control->size().expandedTo(control->minimumSizeHint()) == control->size();
    if (whole)
        return "";
    const std::string text = fromQt(control->property("text").toString());
    return fromQt(control->objectName()) + " \"" + text.substr(0, 40) + "\"; ";
}

class Looks : public ::testing::TestWithParam<Look>, public FormHarness {
protected:
    Looks() {
        QApplication::setStyle(new VisibleStyle);
        QFont font = QApplication::font();
        font.setPointSize(GetParam().points);
        QApplication::setFont(font);
        const Fields longest{.frequency = "21050",
                             .hisCall = "WW0WWW/MMM",
                             .hisName = "WILHELMINA",
                             .hisState = "ONT",
                             .hisNumber = "12345T",
                             .marker = "K3Y/SA"};
        folder.write("LONG-NAMED-LOG-OF-THE-YEAR-2026.CBR",
                     logHeaderLines + contactLine(longest) + "\r\n");
        folder.write("SKSDB5.TXT", "WW0WWW/MMM12345T    WILHELMINAONT\r\n");
        module.settings.myCall = "WW0WWW/MMM";
        module.settings.logFileName = "LONG-NAMED-LOG-OF-THE-YEAR-2026.CBR";
    }
    void openAll();
    std::string cutOn(QWidget* page);
};

void Looks::openAll() {
    screens.open(Screen::start);
    screens.open(Screen::main);
    for (const Screen screen :
         {Screen::correct, Screen::deletion, Screen::editor, Screen::score, Screen::bonus,
          Screen::files, Screen::backup, Screen::updateList, Screen::readData, Screen::memberUpdate,
          Screen::callArea, Screen::standings, Screen::standings2, Screen::k3yBox, Screen::dupe}) {
        form("frmVantrelMain")->activateWindow();
        screens.open(screen);
    }
    screens.openList(ListedFile::log);
    screens.openRoster("SKSDB5.TXT", {"WW0WWW/MMM12345T    WILHELMINAONT"});
    screens.openFinder(Screen::start);
    screens.openHelp("frmVantrelMain");
    screens.askAboutDupe({[] {}, [] {}});
    settle();
}

// What a page shows at times: the longest there is.
const struct {
    const char* page;
    const char* label;
    std::string text;
} longestTexts[] = {
    {"frmVantrelMain", "Label26",
     "LOGGED WW0WWW/MMM 21050 2359  NO NAME  NO STATE  NO SKCC#  REPEATS WW0WWW/MMM 160 METERS "
     "2359"},
    {"frmVantrelMain", "Label12", "FILE NAME:  " + longPath},
    {"frmVantrelMain", "Label11", "AUTO READ OFF"},
    {"frmVantrelMain", "Label10", "160 Meters "},
    {"frmVantrelMain", "Label23", "-- K3Y/EU --"},
    {"frmVantrelMain", "Label25", "NEXT QSO: K3Y/EU"},
    {"frmVantrelMain", "Label28", "WW0WWW/MMM  SKSE"},
    {"frmVantrelMain", "Label29", "1999800"},
    {"frmVantrelMain", "Label30", "12000 QSOs x 150 S/P/C + 32000"},
    {"frmVantrelMain", "Label31", "120 (720/h)"},
    {"frmVantrelMain", "Label32", "LAST 9999 MIN AGO"},
    {"frmVantrelStart", "Label13",
     "/dev/serial/by-id/usb-Silicon_Labs_CP2102_USB_to_UART_Bridge-if00-port0"},
    {"frmVantrelStart", "Label14", "THE OLD LOG IS KEPT AS " + longPath},
    {"frmVantrelStart", "Label15", "12000 QSOS, LAST 2026-11-22 2359"},
    {"frmVantrelStart", "Label16", "THE ROSTER CANNOT BE READ"},
    {"frmVantrelStart", "Label17", "THIS RADIO IS NOT READ: TYPE THE FREQUENCY"},
    {"frmVantrelCorrect", "Label11", " Changes Made....Click EXIT "},
    {"frmVantrelCorrect", "Label12",
     "WW0WWW/MMM 160 METERS 2359 IS NOW A DUPLICATE OF 2358 WITHOUT THE MARK"},
    {"frmVantrelBackup", "Label5", longPath},
    {"frmVantrelBackup", "Label6",
     "12000 QSOS WRITTEN. THE COPY THERE HELD MORE: KEPT AS " + longPath},
    {"frmFileFinder", "Label5", longPath},
    {"frmVantrelScore", "Label1", longPath},
    {"frmVantrelScore", "Label20", "12000 x 150 + 32000"},
    {"frmVantrelList", "Label1", longPath + "   12000 LINES"},
    {"frmVantrelFiles", "Option6Result", "2026-11-22 2359 LONG-NAMED-LOG-OF-THE-YEAR-2026.ADI"},
    {"frmReadSKCCDATA", "Label3", "DONE. . . . 32000 MBRS ADDED. Click EXIT"},
};

std::string Looks::cutOn(QWidget* page) {
    page->resize(0, 0);
    settle();
    std::string cut;
    for (QWidget* control : page->findChildren<QWidget*>())
        if (control->isVisible() && control->parentWidget()->layout() != nullptr)
            cut += cutOf(control);
    return cut;
}

TEST_P(Looks, CutNothingOnAnyPageAsSmallAsItGets) {
    openAll();
    for (const auto& longest : longestTexts)
        control<QLabel>(longest.page, longest.label)->setText(toQt(longest.text));
    // They take a padded number and what is typed over, but a number has six, and six digits are
    // narrow.
    control<QLineEdit>("frmVantrelMain", "Text5")->setMaxLength(6);
    control<QLineEdit>("frmVantrelMain", "Text7")->setMaxLength(5);
    for (QWidget* page : QApplication::topLevelWidgets()) {
        if (!page->isVisible() || qobject_cast<Form*>(page) == nullptr)
            continue;
        const std::string name = fromQt(page->objectName());
        EXPECT_EQ(cutOn(page), "") << name;
        EXPECT_EQ(page->size().boundedTo(GetParam().most), page->size()) << name;
    }
}

// All that is read, in whatever colour it was when its page was opened.
TEST_P(Looks, FollowAPaletteThatChanges) {
    openAll();
    work("frmVantrelDelete", "Text1=ww0www! Command2");
    work("frmVantrelMain", "Text2=ww0");
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(Qt::darkGray, Qt::black));
    settle();
    for (QWidget* page : QApplication::topLevelWidgets())
        for (const QLabel* label : page->findChildren<QLabel*>())
            EXPECT_GE(contrastRatio(label->palette().color(QPalette::Active, QPalette::WindowText),
                                    label->palette().color(QPalette::Active, QPalette::Window)),
                      4.5)
                << fromQt(page->objectName()) << ' ' << fromQt(label->objectName());
    const auto* members = control<QListView>("frmVantrelMain", "List2");
    const QVariant member = members->model()->index(0, 0).data(Qt::ForegroundRole);
    EXPECT_GE(contrastRatio(member.value<QColor>(), Qt::black), 4.5);
    QApplication::setPalette(light);
}

TEST_P(Looks, CutNothingInAMessageBoxAndBreakAPathAtItsSlashesAlone) {
    const Message boxes[] = {
        {std::string(newFileQuestion), BoxIcon::exclamation, "", "WARNING"},
        {std::string(fileNotFoundText), BoxIcon::critical, longPath},
        {std::string(logStartedAgainText), BoxIcon::exclamation, longPath},
        {"ERROR READING FREQUENCY FROM THE CAT PORT", BoxIcon::exclamation,
         "                       AN ERROR HAS OCCURED: Invalid procedure call or argument\n"
         "NO PERMISSION: " +
             longPath + " (the \"dialout\" group)"},
        {"Run-time error '53': File not found", BoxIcon::critical, std::string(200, 'W')},
    };
    for (const Message& message : boxes) {
        QTimer::singleShot(0, qApp, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(fromQt(box->text()), message.text);
            EXPECT_EQ(fromQt(box->informativeText()), message.informative);
            EXPECT_EQ(box->size().boundedTo(GetParam().most), box->size());
            for (QLabel* label : box->findChildren<QLabel*>()) {
                if (!label->isVisible() || label->text().isEmpty())
                    continue;
                EXPECT_TRUE(box->rect().contains(label->geometry())) << message.text;
                const QRect room(0, 0, label->width(), box->height());
                const int flags =
                    label->text().contains(u"WWW") ? Qt::TextWrapAnywhere : Qt::TextWordWrap;
                const QSize needed =
                    label->fontMetrics().boundingRect(room, flags, label->text()).size();
                EXPECT_EQ(needed.boundedTo(label->size()), needed) << message.text;
            }
            box->done(QMessageBox::Ok);
        });
        QtMessages().show(message);
    }
}

INSTANTIATE_TEST_SUITE_P(Fonts, Looks,
                         ::testing::Values(Look{9, {1024, 570}}, Look{11, {1024, 570}},
                                           Look{16, {1366, 738}}));

} // namespace
} // namespace vantrel::test
