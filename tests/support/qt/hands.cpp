// SPDX-License-Identifier: MIT
#include "support/qt/hands.h"

#include "platform/qt/latin1.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QVariant>

namespace vantrel::test {

namespace {

// Keys go to the line inside an editable combo, as they do when one clicks into it.
QWidget* keyTarget(QWidget* control) {
    auto* combo = qobject_cast<QComboBox*>(control);
    return combo != nullptr && combo->isEditable() ? combo->lineEdit() : control;
}

QWidget* findForm(const char* name) {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->isVisible() && widget->objectName() == QLatin1String(name))
            return widget;
    return nullptr;
}

} // namespace

bool Hands::isOpen(const char* name) const {
    return findForm(name) != nullptr;
}

QWidget* Hands::form(const char* name) const {
    if (QWidget* found = findForm(name))
        return found;
    throw std::runtime_error(std::string("no form ") + name + " shows");
}

std::string Hands::shown(const char* formName, const char* name) const {
    const QWidget* found = control(formName, name);
    const QVariant text = found->property("text");
    return fromQt((text.isValid() ? text : found->property("currentText")).toString());
}

std::string Hands::texts(const char* formName, const std::string& names) const {
    std::istringstream all(names);
    std::string result;
    for (std::string name; all >> name; result += '|')
        result += shown(formName, name.c_str());
    return result;
}

std::vector<std::string> Hands::lines(const char* formName, const char* name) const {
    const QAbstractItemModel* model = control<QAbstractItemView>(formName, name)->model();
    std::vector<std::string> result;
    for (int row = 0; row < model->rowCount(); ++row)
        result.push_back(fromQt(model->index(row, 0).data().toString()));
    return result;
}

void Hands::type(const char* formName, const char* name, std::string_view text) {
    QWidget* target = keyTarget(control(formName, name));
    target->setFocus();
    if (auto* box = qobject_cast<QLineEdit*>(target))
        box->selectAll();
    if (text.empty())
        QTest::keyClick(target, Qt::Key_Delete);
    else
        QTest::keyClicks(target, toQt(text));
}

void Hands::choose(const char* formName, const char* name, std::string_view entry) {
    auto* combo = control<QComboBox>(formName, name);
    const int position = combo->findText(toQt(entry));
    if (position < 0)
        throw std::runtime_error(std::string(name) + " has no entry " + std::string(entry));
    combo->setCurrentIndex(position);
}

void Hands::click(const char* formName, const char* name) {
    auto* button = control<QAbstractButton>(formName, name);
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(10, button->height() / 2));
}

void Hands::work(const char* formName, const std::string& steps) {
    std::istringstream all(steps);
    for (std::string step; all >> step;) {
        const bool enters = step.back() == '!';
        const std::size_t end = step.size() - (enters ? 1 : 0), equals = step.find('=');
        const std::string name = step.substr(0, std::min(equals, end));
        std::string text = equals < end ? step.substr(equals + 1, end - equals - 1) : "";
        std::replace(text.begin(), text.end(), '_', ' ');
        if (equals < end)
            type(formName, name.c_str(), text);
        if (enters)
            press(formName, name.c_str(), Qt::Key_Return);
        else if (equals >= end)
            click(formName, name.c_str());
    }
}

void Hands::press(const char* formName, const char* name, Qt::Key key,
                  Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(keyTarget(control(formName, name)), key, modifiers);
}

void Hands::settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

} // namespace vantrel::test
