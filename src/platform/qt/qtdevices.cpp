// SPDX-License-Identifier: MIT
#include "platform/qt/qtdevices.h"

#include "base/runtimeerror.h"
#include "platform/filenames.h"

#include <QFileInfo>
#include <QProcess>

namespace vantrel {

void QtLauncher::start(const std::string& path) {
    const QFileInfo program(QString::fromStdString(path));
    if (!program.exists())
        throw RuntimeError(ErrorCode::fileNotFound, shownText(path));
    if (!program.isFile() || !program.isExecutable())
        throw RuntimeError(ErrorCode::permissionDenied,
                           shownText(path) + " is not a program that can be started");
    if (!QProcess::startDetached(program.absoluteFilePath(), {}, program.absolutePath()))
        throw RuntimeError(ErrorCode::pathFileAccess, shownText(path) + " could not be started");
}

} // namespace vantrel
