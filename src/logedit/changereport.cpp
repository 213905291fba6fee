// SPDX-License-Identifier: MIT
#include "logedit/changereport.h"

#include "shared/screens.h"

namespace vantrel {

bool reportChange(const ChangeResult& result, LogEdit& log, Messages& messages,
                  MainPage* mainPage) {
    if (result.made) {
        const std::optional<RuntimeError> failed = log.reloadLog();
        if (mainPage != nullptr)
            mainPage->showLog();
        if (failed)
            messages.show({failed->headline(), BoxIcon::critical, failed->detail()});
    }
    if (result.notice)
        messages.show(*result.notice);
    return result.made;
}

} // namespace vantrel
