// SPDX-License-Identifier: MIT
#include "tour/stage.h"

#include "platform/qt/latin1.h"
#include "shared/fixedtext.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPixmap>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace vantrel::test {

namespace fs = std::filesystem;

namespace {

constexpr const char* ownMark = ".vantrel-tour";

// Empties the folder of an earlier tour; anybody else's is left alone.
fs::path emptied(const fs::path& folder) {
    if (fs::exists(folder) && !fs::is_empty(folder) && !fs::exists(folder / ownMark))
        throw std::runtime_error(folder.string() + " holds files that are not a tour's");
    fs::remove_all(folder);
    fs::create_directories(folder / "pictures");
    std::ofstream(folder / ownMark) << "played here\n";
    return fs::canonical(folder);
}

} // namespace

Stage::Stage(const fs::path& where) : folder(emptied(where)), files(folder.string(), calls) {}

void Stage::expectBox(const std::string& text, bool yes) {
    m_boxCame = false;
    m_boxText = text;
    auto* watch = new QTimer(qApp);
    watch->start(50);
    QObject::connect(watch, &QTimer::timeout, qApp, [this, watch, yes] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        watch->deleteLater();
        watch->stop();
        m_boxCame = fromQt(box->text()) == m_boxText;
        if (!m_boxCame)
            m_boxText = "got the box \"" + fromQt(box->text() + box->informativeText()) +
                        "\" instead of \"" + m_boxText + '"';
        save(box, "message");
        const bool question = box->standardButtons().testFlag(QMessageBox::Yes);
        QAbstractButton* button =
            box->button(!question ? QMessageBox::Ok : (yes ? QMessageBox::Yes : QMessageBox::No));
        QTest::mouseClick(button, Qt::LeftButton);
    });
}

void Stage::boxMustHaveCome() const {
    if (!m_boxCame)
        throw std::runtime_error("message box: " + m_boxText);
}

void Stage::picture(const char* formName, const std::string& name) {
    QTest::qWait(50); // long enough for a real display to paint
    save(form(formName), name);
}

void Stage::save(QWidget* window, const std::string& name) {
    const std::string file = zeroPadded(++m_pictures, 2) + '-' + name + ".png";
    if (!window->grab().save(QString::fromStdString((folder / "pictures" / file).string())))
        throw std::runtime_error("cannot save " + file);
}

void Stage::check(const std::string& what, const std::string& got, const std::string& expected) {
    if (got != expected)
        throw std::runtime_error(what + ": got \"" + got + "\", expected \"" + expected + '"');
}

void Stage::checkFile(const std::string& name, const std::string& expected) {
    std::ifstream file(folder / name, std::ios::binary);
    check(name, {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()}, expected);
}

} // namespace vantrel::test
