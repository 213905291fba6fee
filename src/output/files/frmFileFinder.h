// SPDX-License-Identifier: MIT
// The drive, folder and file picker that three screens share.
#pragma once

#include "forms/page.h"
#include "output/files/filefinder.h"

#include <optional>

namespace vantrel {

class frmFileFinder : public Form {
public:
    explicit frmFileFinder(const FormContext& context);

    // The screen that gets the path.
    void handTo(Screen receiver) { m_receiver = receiver; }
    // Another screen may ask while it shows: it starts again for that one.
    bool loadsAgain() const override { return true; }

protected:
    void load() override;

private:
    void openDrive(int index);
    void returnSelection();

    void showDrive();
    void showFolder();

    QComboBox* m_driveBox;
    QLabel* m_selection;

    Screen m_receiver = Screen::start;
    std::optional<FileFinder> m_finder;
    LineList* m_folders;
    LineList* m_files;
};

} // namespace vantrel
