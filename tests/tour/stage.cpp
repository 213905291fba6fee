// SPDX-License-Identifier: MIT
#include "tour/stage.h"

#include "base/fixedtext.h"
#include "platform/qt/latin1.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPixmap>
#include <QTest>
#include <QTimer>

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

void Stage::confirming(const std::string& text, const std::function<void()>& action) {
    std::string came;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, qApp, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        watch.stop();
        came = fromQt(box->text());
        save(box, "message");
        const bool question = box->standardButtons().testFlag(QMessageBox::Yes);
        QAbstractButton* button = box->button(question ? QMessageBox::Yes : QMessageBox::Ok);
        QTest::mouseClick(button, Qt::LeftButton);
    });
    watch.start(50);
    action();
    check("message box", came, text);
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

void Stage::enter(const char* formName, const char* name, std::string_view text) {
    type(formName, name, text);
    press(formName, name, Qt::Key_Return);
}

void Stage::leave(const char* formName) {
    click(formName, "Command1");
    settle();
}

void Stage::write(const std::string& name, const std::string& bytes) const {
    std::ofstream(folder / name, std::ios::binary) << bytes;
}

std::string Stage::read(const std::string& name) const {
    std::ifstream file(folder / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void Stage::check(const std::string& what, const std::string& got,
                  const std::string& expected) const {
    if (got != expected)
        throw std::runtime_error(what + ": got \"" + got + "\", expected \"" + expected + '"');
}

void Stage::checkFile(const std::string& name, const std::string& expected) const {
    check(name, read(name), expected);
}

} // namespace vantrel::test
