// SPDX-License-Identifier: MIT
// Typed makers of controls: each sets parent, objectName, caption and tool tip and returns
// the control. Tab order is reading order: see readingorder.h.
#pragma once

#include "forms/alertlabel.h"
#include "forms/layouts.h"
#include "forms/linelistmodel.h"
#include "platform/qt/latin1.h"

#include <QFontMetrics>
#include <QFormLayout>
#include <QPushButton>
#include <QRadioButton>

#include <functional>
#include <string_view>

namespace vantrel {

class ReadTable;

class FormBuilder {
public:
    explicit FormBuilder(QWidget* form) : m_form(form) {}

    // A one-line box that takes at most `width` characters; 0: no limit. What is typed takes
    // the place of the blanks that pad it.
    QLineEdit* text(const char* name, int width = 0, const char* toolTip = "");
    // A box that only shows a figure: flat, right-aligned, passed over by Tab.
    QLineEdit* output(const char* name, const char* toolTip = "");
    // What a click runs, inside the guard of the form that the control is on.
    using Handler = std::function<void()>;
    // A button. Its Alt key clicks it before the next key arrives.
    QPushButton* command(const char* name, const char* caption, const char* toolTip = "",
                         Handler clicked = {});
    // The button that closes the form.
    QPushButton* exit(const char* toolTip = "");
    // Plain text, never markup.
    QLabel* label(const char* name, const char* caption = "");
    // Large, bold and centred.
    QLabel* heading(const char* name, const char* text, double enlargement);
    AlertLabel* alert(const char* name);
    // A caption without a name of its own; `buddy` is the box it names, to screen readers too,
    // and gets the focus on its Alt key.
    QLabel* caption(const char* text, QWidget* buddy = nullptr);
    // Makes the label the caption of the box: dimmed, its buddy, and its text the accessible name
    // of a box without one.
    static void tie(QLabel* caption, QWidget* box);
    // A row of a form: a box behind its caption, tied as above.
    template <typename Box>
    Box* row(QFormLayout* form, const char* text, Box* box) {
        form->addRow(caption(text, box), box);
        return box;
    }
    QComboBox* combo(const char* name, const char* toolTip = "");
    // A combo that one can also type into: nothing completes or inserts by itself.
    QComboBox* editableCombo(const char* name, const char* toolTip = "");
    // A click anywhere in its rectangle chooses it.
    QRadioButton* option(const char* name, const char* caption, const char* toolTip = "",
                         Handler clicked = {});
    // An option that runs a job on every click and belongs to no exclusive group.
    QRadioButton* jobOption(const char* name, const char* caption, const char* toolTip = "",
                            Handler clicked = {});
    // `words`: its name to a screen reader.
    ReadTable* table(const char* name, const char* words);
    // A list of lines in the fixed-width font. words: see LineListModel.
    LineList* list(const char* name, const char* toolTip = "",
                   LineListModel::Words words = nullptr);
    // A click, Enter and an arrow key choose alike; `chosen` gets the row, inside the guard.
    static void onChoice(QListView* list, const std::function<void(std::size_t)>& chosen);
    // A framed part of the page, under its title.
    QLayout* section(const char* title, QLayout* content);

    // Any other control.
    template <typename Control>
    static Control* named(Control* control, const char* name, const char* toolTip = "") {
        control->setObjectName(QString::fromLatin1(name));
        control->setToolTip(QString::fromLatin1(toolTip));
        return control;
    }

private:
    QWidget* m_form;
};

// The fixed-width font in which columns line up.
QFont fixedWidthFont();
// The form's font enlarged by `factor`, for what is read across the desk.
QFont enlargedFont(const QWidget* widget, double factor, bool bold = true);
template <typename Control>
Control* bold(Control* control) {
    control->setFont(enlargedFont(control, 1));
    return control;
}
// Lets the label break its text into lines.
inline QLabel* wrapped(QLabel* label) {
    label->setWordWrap(true);
    return label;
}
// For what is read at a glance: `points` beside a text of the usual nine; beside a larger text it
// grows less than that.
QFont glanceFont(const QWidget* widget, double points, bool bold = false);
// The form's font in another family; where that is not installed, the system's nearest.
QFont familyFont(const QWidget* widget, const char* family);
// The width of so many characters of a fixed-width font, which is not always that many times the
// width of one: a character may be a fraction of a pixel wider.
int widthOfColumns(const QFontMetrics& metrics, int columns);
// A box `columns` characters of its font wide, neither more nor less.
void setColumns(QLineEdit* box, int columns);

} // namespace vantrel
